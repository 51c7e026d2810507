// The table of values and its file.
#include "settings/parameters.h"

#include <algorithm>

#include "common/codepage.h"
#include "common/files.h"
#include "common/mathlib.h"
#include "settings/upper_case.h"

namespace termvik {

namespace {

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
  LineReader reader(paramFilePath_);
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
  File file = openToWrite(paramFilePath_);
  if (!file) return false;
  Text lines;
  for (std::size_t i = 0; i < paramNames_.size(); ++i) {
    lines.append(paramNames_[i]).append(u" ").append(paramValues_[i]).append(kLineEnd);
  }
  const std::string bytes = encodeAnsi(lines);
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  return std::fclose(file.release()) == 0 && written;
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
