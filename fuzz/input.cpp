// SPDX-License-Identifier: MIT
#include "input.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "common/system/codepage.h"
#include "support/store.h"

namespace termvik::fuzz {

const Collation& Input::collation() {
  // None is what a computer has whose user has chosen no locale.
  static constexpr std::array<const char*, 7> kLocales = {"sv_SE", "da_DK", "fr_CA", "cs_CZ",
                                                          "hu_HU", "tr_TR", ""};
  static std::array<std::unique_ptr<const Collation>, kLocales.size()> collations;
  const std::size_t index = below(kLocales.size());
  if (!collations.at(index)) collations.at(index) = std::make_unique<Collation>(kLocales.at(index));
  return *collations.at(index);
}

Text Input::text(std::size_t most) {
  return below(3) == 0 ? textOf(test::Dice::kOutside, most) : textOfFile(most);
}

Text Input::textOfFile(std::size_t most) {
  static const Text codePage = ansiCharacters();
  return textOf(below(2) == 0 ? TextView(codePage) : test::Dice::kHard, most);
}

Text Input::textOf(TextView characters, std::size_t most) {
  Text text;
  for (const char byte : bytes(most)) {
    text += characters[static_cast<unsigned char>(byte) % characters.size()];
  }
  return text;
}

void expect(bool holds, const char* what, std::initializer_list<TextView> texts) {
  if (holds) return;
  for (const TextView text : texts) std::fprintf(stderr, "text: `%s`\n", toUtf8(text).c_str());
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

void expectSame(const std::string& program, const std::string& plain, const char* what) {
  if (program == plain) return;
  std::fprintf(stderr, "the program: %s\nplainly:     %s\n", program.c_str(), plain.c_str());
  expect(false, what);
}

}  // namespace termvik::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  termvik::fuzz::Input input(bytes, size);
  termvik::fuzz::fuzz(input);
  return 0;
}
