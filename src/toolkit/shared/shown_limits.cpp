// SPDX-License-Identifier: MIT
#include "toolkit/shared/shown_limits.h"

#include <algorithm>

namespace termvik {

namespace {

// No screen has room for more; a message of megabytes must not be measured.
constexpr std::size_t kMostShownOfMessage = 20'000;

Text cutAt(TextView prompt, std::size_t length) {
  if (length > 0 && (prompt[length - 1] & 0xFC00) == 0xD800) --length;  // half a character
  return Text(prompt.substr(0, length)).append(kEllipsis);
}

}  // namespace

Text messageThatFits(TextView prompt, const std::function<bool(TextView text)>& fits) {
  if (prompt.size() <= kMostShownOfMessage && fits(prompt)) return Text(prompt);
  std::size_t shown = 0;  // fits; `limit` does not
  std::size_t limit = std::min(prompt.size(), kMostShownOfMessage);
  while (limit - shown > 1) {
    const std::size_t middle = shown + (limit - shown) / 2;
    (fits(cutAt(prompt, middle)) ? shown : limit) = middle;
  }
  return cutAt(prompt, shown);
}

}  // namespace termvik
