// SPDX-License-Identifier: MIT
#include "spoken.h"

#include <algorithm>
#include <string>
#include <utility>

#include "lookup/doublets.h"

namespace termvik::spoken {

namespace {

// Nobody listens to more, and a line can have megabytes.
constexpr std::size_t kMostSaid = 4000;

constexpr TextView kStop = u". ";
constexpr TextView kPause = u", ";
constexpr TextView kClosing = u".,:;!?";

Text counted(std::int32_t count, TextView one, TextView several) {
  if (count == 0) return Text(u"no ").append(several);
  return fromUtf8(std::to_string(count)).append(u" ").append(count == 1 ? one : several);
}

Text joined(Text first, TextView mark, TextView second) {
  if (!first.empty() && !second.empty()) {
    first.append(kClosing.find(first.back()) == TextView::npos ? mark : mark.substr(1));
  }
  return first.append(second);
}

}  // namespace

Text sentences(TextView first, TextView second) { return joined(Text(first), kStop, second); }

Text rowName(TextView row) {
  row = row.substr(0, kMostSaid);
  if (!row.ends_with(kDoubletMark)) return Text(row);
  return Text(row.substr(0, row.size() - kDoubletMark.size())).append(u", doublet");
}

// A speech synthesiser makes no pause between lines.
Text lines(TextView article) {
  Text said;
  article = article.substr(0, kMostSaid);
  while (!article.empty()) {
    const std::size_t end = std::min(article.find_first_of(u"\r\n"), article.size());
    said = joined(std::move(said), kPause, article.substr(0, end));
    article.remove_prefix(std::min(end + 1, article.size()));
  }
  return said;
}

Text words(std::int32_t count) { return counted(count, u"word", u"words"); }

Text hits(std::int32_t count) { return counted(count, u"hit", u"hits"); }

Text chosen(TextView option) { return Text(option).append(u" selected"); }

Text ticked(TextView checkBox, bool on) {
  return Text(checkBox).append(on ? u" checked" : u" not checked");
}

}  // namespace termvik::spoken
