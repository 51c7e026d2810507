// SPDX-License-Identifier: MIT
// What the tool says while it works: sentences on standard error, and a line that shows how far
// long work has come.
#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "words.h"

namespace termvik::tool {

// Why a command ends without a result: wrong usage, a file that cannot be read or written, or that
// is not what it should be. The text is what is told.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Severity : std::uint8_t { Note, Warning, Error };

std::string_view severityName(Severity severity);

// A text as a message shows it: in UTF-8, with characters that a terminal would obey as U+001B.
std::string shown(TextView text);
std::string inQuotes(TextView text);

// `U+0142`: the code of a character, which can be a surrogate pair.
std::string codeName(TextView character);

// `1 entry`, `2 entries`.
std::string counted(std::size_t count, std::string_view one, std::string_view many);

class Messages {
 public:
  // `toTerminal`: a person looks at `out`, so that a progress line makes sense.
  Messages(std::ostream& out, bool toTerminal) : out_(out), toTerminal_(toTerminal) {}
  ~Messages() { clearProgress(); }
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;

  // The next input; its name stands at the beginning of all that is told of its lines.
  std::uint16_t addInput(const std::string& name);
  const std::string& inputName(std::uint16_t input) const { return inputs_[input]; }

  void tell(Severity severity, Place place, std::string_view text);
  void tell(Severity severity, std::string_view text);
  void say(std::string_view line);

  // An error or warning that stands elsewhere, in the findings of `check`.
  void count(Severity severity);

  bool anyError() const { return errors_ > 0; }
  bool anyErrorOrWarning() const { return errors_ + warnings_ > 0; }

  // `done` of `total` steps of the work `what` are over. Shown after a second, on a terminal.
  void progress(std::string_view what, std::size_t done, std::size_t total);
  void clearProgress();

 private:
  using Clock = std::chrono::steady_clock;

  std::ostream& out_;
  bool toTerminal_;
  std::vector<std::string> inputs_;
  std::size_t errors_ = 0;
  std::size_t warnings_ = 0;
  Clock::time_point nextProgress_ = Clock::now() + std::chrono::seconds(1);
  bool progressShown_ = false;
};

// The beginning of each message about a place.
std::string placeText(const std::string& name, std::size_t line);

}  // namespace termvik::tool
