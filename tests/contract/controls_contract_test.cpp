// SPDX-License-Identifier: MIT
// What the controls of every toolkit promise to the program, with real acts of a person's hands.
#include "toolkit_contract.h"

namespace termvik {
namespace {

TEST_P(ToolkitContract, AKeyIsSeenThenItsCharacterThenTheEdit) {
  search.KeyDown = [this](std::int16_t&) { log("down"); };
  search.KeyPress = [this](std::int16_t& c) { log("press " + std::to_string(c)); };
  search.Change = [this] { log("change " + toUtf8(search.text())); };
  hands->type(search, u'å');
  EXPECT_EQ(happened(), (Events{"down", "press 229", "change å"}));
  hands->press(search, keys::kEnter);
  EXPECT_EQ(happened(), (Events{"down", "press 13"}));
  hands->press(search, keys::kPageDown);
  EXPECT_EQ(happened(), (Events{"down"}));
}

TEST_P(ToolkitContract, AHandlerKeepsAKeyOrACharacterFromTheBox) {
  search.KeyDown = [](std::int16_t& code) { code = 0; };
  search.KeyPress = [this](std::int16_t&) { log("press"); };
  search.Change = [this] { log("change"); };
  hands->type(search, u'a');
  EXPECT_EQ(happened(), Events{});
  search.KeyDown = nullptr;
  search.KeyPress = [](std::int16_t& character) { character = 0; };
  hands->type(search, u'a');
  EXPECT_EQ(happened(), Events{});
  EXPECT_EQ(search.text(), u"");
}

TEST_P(ToolkitContract, TheKeyCodesAreTheOnesThatTheProgramKnows) {
  std::vector<std::int16_t> codes;
  search.KeyDown = [&](std::int16_t& code) { codes.push_back(code); };
  const std::vector<std::int16_t> pressed = {keys::kUp, keys::kDown, keys::kPageUp, keys::kPageDown,
                                             keys::kEnter};
  for (const std::int16_t code : pressed) hands->press(search, code);
  EXPECT_EQ(codes, pressed);
}

TEST_P(ToolkitContract, ABoxHoldsEveryTextToTheCharacter) {
  int changes = 0;
  search.Change = [&] { ++changes; };
  const std::vector<Text> texts = {Text(100'000, u'x'), Text{u'\t', 0xD83D, 0xDE00, 0xD83D, 0x3B1},
                                   Text(u" blanks \u00AD"), Text()};
  for (const Text& text : texts) {
    changes = 0;
    hands->replaceText(search, text);
    EXPECT_EQ(search.text(), text);
    EXPECT_EQ(changes, 1);
    hands->replaceText(search, text);
    EXPECT_EQ(changes, 1) << "the same text again is no edit";
  }
  article.setText(u"S: ord\r\n\r\nnotis");
  EXPECT_EQ(article.text(), u"S: ord\r\n\r\nnotis");
}

TEST_P(ToolkitContract, AClickInTheBoxCanSelectItsText) {
  search.Click = [this] {
    search.setSelStart(0);
    search.setSelLength(static_cast<std::int32_t>(search.text().size()));
  };
  hands->replaceText(search, u"skruv");
  EXPECT_EQ(search.SelStart(), 5);
  EXPECT_EQ(search.SelLength(), 0);
  hands->click(search);
  EXPECT_EQ(search.SelStart(), 0);
  EXPECT_EQ(search.SelLength(), 5);
  hands->type(search, u'b');
  EXPECT_EQ(search.text(), u"b") << "the next key replaces the selected text";
}

TEST_P(ToolkitContract, RowsStandInOrderAndKeepTheirNumbers) {
  const std::vector<std::pair<Text, std::int32_t>> added = {
      {u"öga", 0}, {u"ask", 0}, {u"Zoom", 1}, {u"åsna", 2}, {u"ASK", 1}};
  std::int32_t number = 10;
  for (const auto& [text, rank] : added) {
    list.AddItem(text, number++);
    EXPECT_EQ(list.NewIndex(), rank) << toUtf8(text);
  }
  list.setList(4, u"aaa");
  std::vector<std::pair<Text, std::int32_t>> rows;
  rows.reserve(added.size());
  for (std::int32_t row = 0; row < list.ListCount(); ++row) {
    rows.emplace_back(list.List(row), list.ItemData(row));
  }
  EXPECT_EQ(rows, (std::vector<std::pair<Text, std::int32_t>>{
                      {u"ask", 11}, {u"ASK", 14}, {u"Zoom", 12}, {u"åsna", 13}, {u"aaa", 10}}));
  EXPECT_EQ(happened(), Events{}) << "rows come and change without a click";
}

TEST_P(ToolkitContract, SelectingARowRaisesClickBeforeTheCallIsOver) {
  for (const TextView word : {u"b", u"d", u"f"}) list.AddItem(word, 1);
  list.setListIndex(2);
  EXPECT_EQ(happened(), Events{"list 2"});
  list.setListIndex(2);
  EXPECT_EQ(happened(), Events{"list 2"}) << "also for the row that is selected";
  hands->clickRow(list, 0);
  hands->clickRow(list, 0);
  EXPECT_EQ(happened(), Events{"list 0"}) << "once, however often it is clicked";
  hands->press(list, keys::kDown);
  EXPECT_EQ(happened(), Events{"list 1"});
  for (const TextView word : {u"e", u"D", u"c", u"a"}) list.AddItem(word, 1);
  EXPECT_EQ(list.List(list.ListIndex()), u"d") << "selected wherever rows have come in";
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.NewIndex(), -1);
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(happened(), Events{});
}

TEST_P(ToolkitContract, KeysInAnEmptyListSelectNothing) {
  for (const std::int16_t code : {keys::kUp, keys::kDown, keys::kPageUp, keys::kPageDown}) {
    hands->press(list, code);
  }
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(happened(), Events{});
}

TEST_P(ToolkitContract, RowsAreCountedBeyondSixteenBits) {
  constexpr std::int32_t kRows = 70'000;
  for (std::int32_t i = 0; i < kRows; ++i) {
    list.AddItem(fromUtf8(std::to_string(100'000 + i % 10 * 1000 + i / 10)), i);
  }
  hands->settle();
  list.setListIndex(kRows - 2);
  hands->press(list, keys::kDown);
  hands->press(list, keys::kDown);
  EXPECT_EQ(happened(), (Events{"list 69998", "list 69999"})) << "below the last row is nothing";
  EXPECT_EQ(list.List(kRows - 1), u"115999");
  EXPECT_EQ(list.ItemData(kRows - 1), 69999);
  list.AddItem(u"0", 1);
  EXPECT_EQ(list.ListIndex(), kRows);
  hands->settle();
  hands->press(list, keys::kUp);
  EXPECT_EQ(happened(), Events{"list 69999"});
  list.Clear();
  list.AddItem(u"one", 1);
  hands->settle();
  hands->clickRow(list, 0);
  EXPECT_EQ(happened(), Events{"list 0"});
}

TEST_P(ToolkitContract, AnOptionThatTurnsOnTurnsTheOthersOffFirst) {
  OptionGroup& mode = window->optionGroup(u"optSearch");
  mode.Click = [this, &mode](std::int16_t index) {
    log("mode " + std::to_string(index) + (mode.Value(1 - index) ? " both" : " alone"));
  };
  EXPECT_FALSE(glossary.Value(0) || glossary.Value(1) || glossary.Value(2));
  glossary.setValue(1, true);
  EXPECT_EQ(happened(), Events{"glossary 1"});
  glossary.setValue(1, true);
  hands->click(option(u"optGlossary", 1));
  EXPECT_EQ(happened(), Events{}) << "an option that is on raises nothing";
  hands->click(option(u"optGlossary", 2));
  EXPECT_EQ(happened(), Events{"glossary 2"});
  EXPECT_FALSE(glossary.Value(1));
  hands->click(option(u"optSearch", 1));
  EXPECT_EQ(happened(), Events{"mode 1 alone"});
  EXPECT_TRUE(glossary.Value(2)) << "the groups know nothing of each other";
  glossary.setValue(2, false);
  EXPECT_EQ(happened(), Events{});
  hands->click(option(u"optGlossary", 2));
  EXPECT_EQ(happened(), Events{"glossary 2"});
}

TEST_P(ToolkitContract, BoxesButtonsAndMenuItemsTellOfTheUser) {
  CheckBox& check = window->checkBox(u"chkShowDoublet");
  check.Click = [&] { log("check " + std::to_string(check.Value())); };
  EXPECT_EQ(check.Value(), 1);
  hands->click(check);
  hands->click(check);
  EXPECT_EQ(happened(), (Events{"check 0", "check 1"}));

  CommandButton& button = window->commandButton(u"cmdSearchAgain");
  button.Click = [&] { log("button"); };
  hands->click(button);
  EXPECT_EQ(happened(), Events{}) << "the button is off at first";
  button.setEnabled(true);
  hands->click(button);
  EXPECT_EQ(happened(), Events{"button"});

  for (const TextView name : {u"mnuGerman", u"mnuCreateWordList", u"mnuDoubletList"}) {
    window->menuItem(name).Click = [this, name] { log(toUtf8(name)); };
    hands->choose(*window, window->menuItem(name));
  }
  EXPECT_EQ(happened(), (Events{"mnuGerman", "mnuDoubletList"}));
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(EveryToolkit, ToolkitContract, testing::ValuesIn(toolkitNames()),
                         [](const auto& toolkit) { return toolkit.param; });

}  // namespace termvik
