// SPDX-License-Identifier: MIT
// The table of values and its file.
#include "settings/parameters.h"

#include <algorithm>

#include "common/system/codepage.h"
#include "common/system/files.h"
#include "common/system/line_reader.h"
#include "common/system/mathlib.h"
#include "upper_case.h"

namespace termvik {

namespace {

// No more of the file is read: what the program writes has a few hundred bytes.
constexpr std::size_t kMostOfFile = 1U << 16U;

bool isSlot(std::int32_t index) { return index >= 1 && index <= parameters::paramCount; }

std::size_t at(std::int32_t index) { return static_cast<std::size_t>(index) - 1; }

}  // namespace

void parameters::setupPNames() {
  paramFilePath_ = fileIn(app_.Path, u"Termvik.par");
  paramNames_ = {u"WINDOWSSTATE", u"WINTOP",    u"WINLEFT",
                 u"WINWIDTH",     u"WINHEIGHT", u"GLOSSARYINDEX"};
}

bool parameters::readParameters() {
  if (!fileExists(paramFilePath_)) return false;
  LineReader reader(*app_.files, paramFilePath_, kMostOfFile);
  std::string_view bytes;
  while (reader.next(bytes)) readLine(trim(decodeAnsi(bytes)));
  return true;
}

// A name in any mix of case, then the value. A line that begins with another word is passed over.
void parameters::readLine(TextView line) {
  std::int64_t pos = 1;
  const Text name = upperCase(Mathlib::nextWord(line, pos));
  const auto known = std::find(paramNames_.begin(), paramNames_.end(), name);
  if (name.empty() || known == paramNames_.end()) return;
  const auto slot = static_cast<std::size_t>(known - paramNames_.begin());
  paramValues_[slot] = trim(line.substr(static_cast<std::size_t>(pos) - 1));
}

bool parameters::writeParameters() const {
  Text lines;
  for (std::size_t i = 0; i < paramNames_.size(); ++i) {
    lines.append(paramNames_[i]).append(u" ").append(paramValues_[i]).append(kLineEnd);
  }
  return writeFile(*app_.files, paramFilePath_, encodeAnsi(lines));
}

Text parameters::getParam(std::int32_t index) const {
  return isSlot(index) ? paramValues_[at(index)] : Text();
}

void parameters::setParam(std::int32_t index, TextView value, bool writeNow) {
  if (!isSlot(index)) return;
  paramValues_[at(index)] = value;
  if (writeNow) writeParameters();
}

}  // namespace termvik
