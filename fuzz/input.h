// SPDX-License-Identifier: MIT
// What a fuzz target is made of: the choices and texts that the fuzzer's bytes stand for, and a
// check that stops it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <initializer_list>
#include <string>

#include "common/collation/collation.h"
#include "common/system/text.h"

namespace termvik::fuzz {

class Input {
 public:
  Input(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes, size) {}

  bool isUsedUp() { return bytes_.remaining_bytes() == 0; }
  std::size_t below(std::size_t limit) {
    return bytes_.ConsumeIntegralInRange<std::size_t>(0, limit - 1);
  }
  template <class Choices>
  auto oneOf(const Choices& choices) {
    return choices[below(choices.size())];
  }

  // Of Swedish, and of the languages whose words are hard to bring into order; made once.
  const Collation& collation();

  // Of no more than `most` characters: of any that a file can hold, of those that are hard to tell
  // apart, or of those that no file can hold.
  Text text(std::size_t most);
  Text textOfFile(std::size_t most);  // of the first two kinds

  // Up to its end in the input, which a backslash and another character than that mark.
  std::string bytes(std::size_t most) { return bytes_.ConsumeRandomLengthString(most); }
  std::string allBytes() { return bytes_.ConsumeRemainingBytesAsString(); }

 private:
  Text textOf(TextView characters, std::size_t most);

  FuzzedDataProvider bytes_;
};

// Ends the program, which the fuzzer then keeps the input of, when what must hold does not.
// Tells the texts that it is about.
void expect(bool holds, const char* what, std::initializer_list<TextView> texts = {});

// The same for two texts that must be equal, which are told when they are not.
void expectSame(const std::string& program, const std::string& plain, const char* what);
inline void expectSame(TextView program, TextView plain, const char* what) {
  if (program != plain) expectSame(toUtf8(program), toUtf8(plain), what);
}
inline void expectSame(std::int64_t program, std::int64_t plain, const char* what) {
  if (program != plain) expectSame(std::to_string(program), std::to_string(plain), what);
}

// Each target's: what is done with an input.
void fuzz(Input& input);

}  // namespace termvik::fuzz
