// Many texts side by side in one piece of memory: a walk over them is a walk over bytes that lie
// in order, and a text costs its characters and four bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace termvik {

template <class Char>
class PackedTexts {
 public:
  using View = std::basic_string_view<Char>;

  // The most characters that all texts together can have.
  static constexpr std::size_t kMostCharacters = std::numeric_limits<std::uint32_t>::max();

  void reserve(std::size_t texts, std::size_t characters) {
    ends_.reserve(texts);
    if (characters > room_) moveTo(characters);
  }

  // A text is what takeRoom has taken since the last endText.
  void endText() { ends_.push_back(static_cast<std::uint32_t>(used_)); }

  // Room for `most` characters that the caller writes; takeRoom adds the first `count` of them.
  Char* roomFor(std::size_t most) {
    if (most > room_ - used_) moveTo(std::max(used_ + most, 2 * used_));
    return characters_.get() + used_;
  }
  void takeRoom(std::size_t count) { used_ += count; }

  std::size_t size() const { return ends_.size(); }
  std::size_t characterCount() const { return used_; }

  // Texts count from 0. A view is good until the next change.
  View operator[](std::size_t index) const {
    const std::size_t begin = beginOf(index);
    return View(characters_.get() + begin, ends_[index] - begin);
  }

  // Where text `index` begins among all characters.
  std::size_t beginOf(std::size_t index) const { return index == 0 ? 0 : ends_[index - 1]; }

  // The text that has the character at `place` of all characters; no text before `from` has it.
  // Looks in widening steps, since it is mostly near.
  std::size_t indexAt(std::size_t place, std::size_t from) const {
    std::size_t step = 1;
    while (from + step < ends_.size() && ends_[from + step] <= place) {
      from += step;
      step *= 2;
    }
    const auto at = [this](std::size_t i) {
      return ends_.begin() + static_cast<std::ptrdiff_t>(std::min(i, ends_.size()));
    };
    const auto behind = std::upper_bound(at(from), at(from + step + 1), place);
    return static_cast<std::size_t>(behind - ends_.begin());
  }

  const Char* data() const { return characters_.get(); }

 private:
  void moveTo(std::size_t room) {
    auto moved = std::make_unique_for_overwrite<Char[]>(room);
    std::copy_n(characters_.get(), used_, moved.get());
    characters_ = std::move(moved);
    room_ = room;
  }

  std::unique_ptr<Char[]> characters_;  // no vector: what is added is written once (bench/load)
  std::size_t room_ = 0;                // for so many characters
  std::size_t used_ = 0;
  std::vector<std::uint32_t> ends_;
};

}  // namespace termvik
