// SPDX-License-Identifier: MIT
#include "common/system/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace termvik {

namespace {

// Of a number beyond the range of a double: 0 for `1e-400`, nothing for `1e400`. std::from_chars
// does not tell the two apart.
std::optional<double> zeroIfTooSmall(const std::string& ascii) {
  std::istringstream stream(ascii);
  stream.imbue(std::locale::classic());
  double number = 0;
  if (!(stream >> number)) return std::nullopt;
  return number;
}

std::optional<double> toDouble(TextView text, char16_t decimalSeparator) {
  text = trim(text);
  if (text.starts_with(u'+')) {
    text.remove_prefix(1);
    if (text.starts_with(u'-')) return std::nullopt;
  }
  std::string ascii;
  for (const char16_t character : text) {
    const bool isPart = TextView(u"0123456789+-eE").find(character) != TextView::npos;
    if (!isPart && character != decimalSeparator) return std::nullopt;
    ascii += isPart ? static_cast<char>(character) : '.';
  }
  double number = 0;
  const char* end = ascii.data() + ascii.size();
  const auto [stop, error] = std::from_chars(ascii.data(), end, number);
  if (stop != end || error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc::result_out_of_range) return zeroIfTooSmall(ascii);
  return number;
}

template <class Integer>
std::optional<Integer> toInteger(TextView text, char16_t decimalSeparator) {
  const auto number = toDouble(text, decimalSeparator);
  if (!number) return std::nullopt;
  const double rounded = std::nearbyint(*number);  // ties go to the even neighbour
  if (rounded < std::numeric_limits<Integer>::min() ||
      rounded > std::numeric_limits<Integer>::max()) {
    return std::nullopt;
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

Text wholeNumberText(std::int32_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

Text measureText(float measure, char16_t decimalSeparator) {
  std::array<char, 64> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), measure,
                                     std::chars_format::fixed);
  Text text(buffer.data(), written.ptr);
  const std::size_t point = text.find(u'.');
  if (point != Text::npos) text[point] = decimalSeparator;
  return text;
}

std::optional<std::int32_t> toInt32(TextView text, char16_t decimalSeparator) {
  return toInteger<std::int32_t>(text, decimalSeparator);
}

std::optional<std::int16_t> toInt16(TextView text, char16_t decimalSeparator) {
  return toInteger<std::int16_t>(text, decimalSeparator);
}

}  // namespace termvik
