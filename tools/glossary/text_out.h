// SPDX-License-Identifier: MIT
// Text on its way into a file in UTF-8, many small pieces at a time.
#pragma once

#include "common/system/text.h"
#include "files_in_out.h"

namespace termvik::tool {

class Utf8Output {
 public:
  explicit Utf8Output(Output& output) : output_(output) {}

  Utf8Output& operator<<(TextView text) {
    waiting_.append(text);
    if (waiting_.size() > kPiece) flush();
    return *this;
  }

  void flush() {
    output_.write(toUtf8(waiting_));
    waiting_.clear();
  }

 private:
  static constexpr std::size_t kPiece = 1U << 16U;

  Output& output_;
  Text waiting_;
};

}  // namespace termvik::tool
