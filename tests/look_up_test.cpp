// SPDX-License-Identifier: MIT
// The rule of the search box, over rows without a window.
#include "lookup/look_up.h"

#include "lookup/doublets.h"
#include "lookup/word_rows.h"
#include "support/desk.h"

namespace termvik::test {

static SortedRows rowsOf(const Collation& collation, const std::vector<Text>& texts) {
  SortedRows rows(collation);
  for (const Text& text : texts) rows.add(text, 0);
  return rows;
}

TEST(LookUpRule, SelectsTheFirstRowOfTheLongestPart) {
  struct Case {
    std::vector<Text> rows;
    Text text;
    Text selected;
    Text inView;  // the end of the run; nothing when the text does not begin a row
  };
  const std::vector<Text> plain = {u"band", u"bild",  u"Bildruta", u"bit",
                                   u"data", u"dator", u"zoom"};
  const std::vector<Text> french = {u"négatif", u"neuf", u"nêtre", u"nœud", u"noir", u"nom"};
  std::vector<Case> cases = {
      {plain, u"", u"band", u""},
      {plain, u"b", u"band", u"bit"},
      {plain, u"bi", u"bild", u"bit"},
      {plain, u"BIL", u"bild", u"Bildruta"},
      {plain, u"bix", u"bild", u""},
      {plain, u"c", u"band", u""},
      {plain, u"zz", u"zoom", u""},
      {plain, u"dataxy", u"data", u""},
      // A row that sorts after the text for its accent or its ligature ends nothing.
      {french, u"noir", u"noir", u"noir"},
      {french, u"nég", u"négatif", u"négatif"},
      {french, u"nêt", u"nêtre", u"nêtre"},
      {french, u"neu", u"neuf", u"neuf"},
      {french, u"nœ", u"nœud", u"nœud"},
      {{u"Beil", u"Beißzange", u"Beistrich"}, u"Beistrich", u"Beistrich", u"Beistrich"},
      // Parts have as many characters in the row as in the text.
      {{u"Straße", u"Strauß"}, u"strass", u"Straße", u""},
      {{u"Straße"}, u"straß", u"Straße", u"Straße"},
      {{u"œuf"}, u"oeuf", u"œuf", u"œuf"},  // as long as all of the row
      // What no file can hold: accents of their own, other letters.
      {{u"e", u"é", u"f"}, u"e\u0301", u"é", u"é"},
      {{u"a", u"b"}, u"λ", u"a", u""},
  };
  // Nor characters of two halves, which Wine knows no letters for.
  if (swedish().equal(u"𝐛", u"b")) {
    cases.push_back({{u"a", u"b", u"c"}, u"𝐛", u"b", u"b"});
    cases.push_back({{u"a", u"b", u"bc"}, u"b𝐜", u"bc", u"bc"});
  }
  const Collation french_("fr_FR");
  for (const Case& given : cases) {
    const bool isFrench = given.rows == french;
    const SortedRows rows = rowsOf(isFrench ? french_ : swedish(), given.rows);
    const FoundRows found = lookUp(rows, given.text);
    EXPECT_EQ(toUtf8(rows.text(found.top)), toUtf8(given.selected)) << toUtf8(given.text);
    const Text inView(given.inView.empty() ? u"" : rows.text(found.bottom));
    EXPECT_EQ(toUtf8(inView), toUtf8(given.inView)) << toUtf8(given.text);
  }
}

// A row that was marked keeps its place, wherever its text would stand.
TEST(LookUpRule, GoesOnBehindAMarkedRow) {
  SortedRows rows = rowsOf(swedish(), {u"färg", u"färg", u"färg ny", u"färg-balans", u"färga"});
  rows.setText(0, u"färgö");
  rows.setText(1, u"färgö");
  for (const TextView word : {u"färg-balans", u"färg ny", u"färga"}) {
    EXPECT_EQ(toUtf8(rows.text(lookUp(rows, word).top)), toUtf8(word));
  }
}

// Every word that ships can be reached by typing it, in every list, with the doublets marked.
TEST(LookUpRule, ReachesEveryWordThatShips) {
  defWords words(swedish(), TERMVIK_DATA_FOLDER, [](TextView) { FAIL(); });
  words.readGlossaries();
  for (const TextView type : {u"S", u"E", u"D", u"F"}) {
    words.gWordType = type;
    SortedRows rows(swedish());
    visitWords(words, {.graphical = true, .tools = true},
               [&](TextView word, std::int32_t entry) { rows.add(word, entry); });
    markDoublets(rows, [&](std::int32_t row, TextView text) { rows.setText(row, text); });
    ASSERT_GT(rows.count(), 2000);
    for (std::int32_t row = 0; row < rows.count(); ++row) {
      const TextView word = rows.text(row).substr(0, rows.text(row).find(u" ------"));
      const TextView selected = rows.text(lookUp(rows, word).top);
      ASSERT_TRUE(swedish().equal(selected.substr(0, word.size()), word))
          << toUtf8(word) << " ends on " << toUtf8(selected);
    }
  }
}

}  // namespace termvik::test
