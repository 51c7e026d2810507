// SPDX-License-Identifier: MIT
#include "messages.h"

#include <array>
#include <cstdio>

namespace termvik::tool {

namespace {

constexpr std::chrono::milliseconds kBetweenProgress(100);

// Writes blanks over the progress line; not every console knows a sequence for that.
std::string clearLine() { return "\r" + std::string(60, ' ') + "\r"; }

bool isControl(char16_t character) {
  return character < u' ' || (character >= 0x7F && character < 0xA0);
}

}  // namespace

std::string_view severityName(Severity severity) {
  constexpr std::array<std::string_view, 3> kNames = {"note", "warning", "error"};
  return kNames.at(static_cast<std::size_t>(severity));
}

std::string shown(TextView text) {
  Text plain;
  for (const char16_t character : text) {
    if (isControl(character)) {
      plain.append(fromUtf8(codeName({&character, 1})));
    } else {
      plain += character;
    }
  }
  return toUtf8(plain);
}

std::string codeName(TextView character) {
  unsigned code = character[0];
  if (character.size() == 2) {
    code = 0x10000U + ((code - 0xD800U) << 10U) + (character[1] - 0xDC00U);
  }
  std::array<char, 16> name{};
  std::snprintf(name.data(), name.size(), "U+%04X", code);
  return name.data();
}

std::string inQuotes(TextView text) {
  constexpr std::size_t kMost = 60;  // characters; a place is told, so that the rest can be found
  if (text.size() <= kMost) return "'" + shown(text) + "'";
  return "'" + shown(text.substr(0, kMost)) + "...'";
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
  return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string placeText(const std::string& name, std::size_t line) {
  return name + ":" + std::to_string(line) + ": ";
}

std::uint16_t Messages::addInput(const std::string& name) {
  constexpr std::size_t kMost = 0xFFFF;
  if (inputs_.size() == kMost) throw Failure("more than 65535 files at once");
  inputs_.push_back(name);
  return static_cast<std::uint16_t>(inputs_.size() - 1);
}

void Messages::tell(Severity severity, Place place, std::string_view text) {
  clearProgress();
  out_ << placeText(inputName(place.input), place.line);
  out_ << severityName(severity) << ": " << text << '\n';
  count(severity);
}

void Messages::tell(Severity severity, std::string_view text) {
  clearProgress();
  out_ << "termvik-glossary: " << severityName(severity) << ": " << text << '\n';
  count(severity);
}

void Messages::say(std::string_view line) {
  clearProgress();
  out_ << line << '\n';
}

void Messages::count(Severity severity) {
  if (severity == Severity::Error) ++errors_;
  if (severity == Severity::Warning) ++warnings_;
}

void Messages::progress(std::string_view what, std::size_t done, std::size_t total) {
  if (!toTerminal_ || total == 0 || Clock::now() < nextProgress_) return;
  out_ << '\r' << what << ": " << 100 * done / total << " %" << std::flush;
  progressShown_ = true;
  nextProgress_ = Clock::now() + kBetweenProgress;
}

void Messages::clearProgress() {
  if (progressShown_) out_ << clearLine() << std::flush;
  progressShown_ = false;
}

}  // namespace termvik::tool
