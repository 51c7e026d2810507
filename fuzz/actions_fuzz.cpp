// SPDX-License-Identifier: MIT
// Sequences of a user's acts against a small model of the window.
#include <array>
#include <string>

#include "input.h"
#include "session.h"

namespace termvik::fuzz {

namespace {

constexpr std::size_t kMostOfFile = 300;
constexpr std::size_t kMostOfText = 20;

using Files = std::array<std::string, 2>;

// What is read as well as usual glossaries are.
Files anyFiles(Input& input) {
  static const Files kUsual = {
      "S: bult\r\nskruv\r\nE: bolt\r\nC: av metall\r\n---\r\nS: \xE5ska\r\nD: Gewitter\r\n---\r\n"
      "S: Bult\r\nE: bolt\r\nF: boulon\r\n---\r\nE: thunder\r\nC: see \xE5ska",
      "S: bult\r\n---\r\nS: stra\xDF"
      "e\r\nD: Stra\xDF"
      "e\r\nC: strasse\r\n---\r\nS: \xE6ra\r\nE: honour"};
  if (input.below(2) == 0) return kUsual;
  std::string graph = input.bytes(kMostOfFile);
  return {std::move(graph), input.bytes(kMostOfFile)};
}

void actOnList(Input& input, Session& session) {
  static constexpr std::array<std::int16_t, 5> kKeys = {keys::kUp, keys::kDown, keys::kPageUp,
                                                        keys::kPageDown, keys::kEnter};
  switch (input.below(5)) {
    case 0:
      return session.changeText(input.text(kMostOfText));
    case 1:
      for (const char16_t character : input.text(kMostOfText)) session.type(character);
      return;
    case 2:
      if (session.list().ListCount() == 0) return;
      return session.clickRow(static_cast<std::int32_t>(
          input.below(static_cast<std::size_t>(session.list().ListCount()))));
    default:
      return session.pressKey(input.oneOf(kKeys));
  }
}

void choose(Input& input, Session& session) {
  switch (input.below(9)) {
    case 0:
      return session.chooseLanguage(u"mnuSwedish", u"S");
    case 1:
      return session.chooseLanguage(u"mnuEnglish", u"E");
    case 2:
      return session.chooseLanguage(u"mnuGerman", u"D");
    case 3:
      return session.chooseLanguage(u"mnuFrance", u"F");
    case 4:
      return session.chooseGlossary(static_cast<std::int16_t>(input.below(3)));
    case 5:
      return session.chooseSearch(static_cast<std::int16_t>(input.below(2)));
    case 6:
      return session.searchAgain();
    case 7:
      return session.clickDoublets();
    default:
      return session.reRead(anyFiles(input));
  }
}

void actOnTheRest(Input& input, Session& session) {
  switch (input.below(4)) {
    case 0:
      return session.copyDoublets();
    case 1:
      return session.exportRows();
    case 2: {
      const auto measure = [&] { return static_cast<float>(input.below(60000)) - 15000; };
      const float left = measure();
      const float top = measure();
      return session.place({left, top, measure() + 15000, measure() + 15000});
    }
    default:
      session.close();
      return session.start(static_cast<std::int16_t>(input.below(3)));
  }
}

}  // namespace

void fuzz(Input& input) {
  const Collation& collation = input.collation();
  Session session(collation, anyFiles(input));
  session.start(input.oneOf(std::array<std::int16_t, 4>{-1, 0, 1, 2}));  // -1: none is stored
  while (!input.isUsedUp()) {
    const std::size_t kind = input.below(8);
    if (kind < 4) actOnList(input, session);
    if (kind >= 4 && kind < 7) choose(input, session);
    if (kind == 7) actOnTheRest(input, session);
  }
}

}  // namespace termvik::fuzz
