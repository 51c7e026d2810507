// SPDX-License-Identifier: MIT
// Text on its way into a file, many small pieces at a time.
#pragma once

#include <string>

#include "common/system/text.h"
#include "files_in_out.h"

namespace termvik::tool {

class TextOutput {
 public:
  // `encode` gives the bytes of a text.
  using Encode = std::string (*)(TextView);

  explicit TextOutput(Output& output, Encode encode = toUtf8) : output_(output), encode_(encode) {
    waiting_.reserve(2 * kPiece);
  }

  TextOutput& operator<<(TextView text) {
    waiting_.append(text);
    if (waiting_.size() > kPiece) flush();
    return *this;
  }

  void flush() {
    output_.write(encode_(waiting_));
    waiting_.clear();
  }

 private:
  static constexpr std::size_t kPiece = 1U << 14U;

  Output& output_;
  Encode encode_;
  Text waiting_;
};

}  // namespace termvik::tool
