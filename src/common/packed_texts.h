// Many texts side by side in one piece of memory: a walk over them is a walk over bytes that lie
// in order, and a text costs its characters and four bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
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
    characters_.reserve(characters);
  }

  void clear() { *this = PackedTexts(); }

  void append(View text) {
    appendToLast(text);
    endText();
  }

  // A text in pieces: any number of appendToLast, then endText.
  void appendToLast(View piece) {
    characters_.insert(characters_.end(), piece.begin(), piece.end());
  }
  void endText() { ends_.push_back(static_cast<std::uint32_t>(characters_.size())); }

  std::size_t size() const { return ends_.size(); }
  std::size_t characterCount() const { return characters_.size(); }

  // Texts count from 0. A view is good until the next change.
  View operator[](std::size_t index) const {
    const std::size_t begin = beginOf(index);
    return View(characters_.data() + begin, ends_[index] - begin);
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

  const Char* data() const { return characters_.data(); }

 private:
  std::vector<Char> characters_;
  std::vector<std::uint32_t> ends_;
};

}  // namespace termvik
