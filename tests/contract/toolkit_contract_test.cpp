// SPDX-License-Identifier: MIT
// What every toolkit promises to the program, with real acts of a person's hands on its real
// controls.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dialogs/frm_about_design.h"
#include "lookup/frm_glossary_design.h"
#include "toolkit/hands/hands_by_name.h"

namespace termvik {
namespace {

class ToolkitContract : public testing::TestWithParam<std::string> {
 protected:
  ToolkitContract() {
    list.Click = [this] { log("list " + std::to_string(list.ListIndex())); };
    glossary.Click = [this](std::int16_t index) { log("glossary " + std::to_string(index)); };
    window->Resize = [this] { log("resize"); };
    window->Show();
    events.clear();
  }

  void log(const std::string& event) { events.push_back(event); }

  // What has happened since the last call.
  std::vector<std::string> happened() { return std::exchange(events, {}); }

  OptionButton& option(TextView name, std::int32_t index) const {
    for (const auto& control : window->controls()) {
      if (control->design().name == name && control->design().index == index) {
        return dynamic_cast<OptionButton&>(*control);
      }
    }
    throw std::logic_error("no such option");
  }

  using Events = std::vector<std::string>;

  const Collation collation{"sv_SE"};
  const std::unique_ptr<Hands> hands = makeHands(GetParam(), collation, {28800, 16200});
  const std::unique_ptr<Window> window = hands->toolkit().createWindow(frmGlossaryDesign());
  EditBox& search = window->editBox(u"txtSearch");
  TextBox& article = window->textBox(u"txtArticle");
  ListBox& list = window->listBox(u"lstWords");
  OptionGroup& glossary = window->optionGroup(u"optGlossary");
  Events events;
};

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

TEST_P(ToolkitContract, OnlyAClickWhereNoControlIsIsOneOnTheWindow) {
  const std::unique_ptr<Window> about = hands->toolkit().createWindow(frmAboutDesign());
  about->Show();
  for (Window* shown : {window.get(), about.get()}) {
    shown->Click = [this] { log("window"); };
    for (const auto& control : shown->controls()) {
      happened();
      hands->click(*control);
      const bool isLine = control->design().kind == ControlKind::Line;
      const Events seen = happened();
      EXPECT_EQ(std::count(seen.begin(), seen.end(), "window"), isLine ? 1 : 0)
          << toUtf8(control->design().name);
    }
    hands->clickCorner(*shown);
    EXPECT_EQ(happened(), Events{"window"});
  }
}

TEST_P(ToolkitContract, AnotherControlLeavesTheSelectedTextAlone) {
  hands->replaceText(search, u"skruv");
  hands->click(search);
  search.setSelStart(1);
  search.setSelLength(3);
  hands->click(option(u"optGlossary", 0));
  EXPECT_EQ(search.SelStart(), 1);
  EXPECT_EQ(search.SelLength(), 3);
}

TEST_P(ToolkitContract, PlacesAreKeptToTheFractionOfATwip) {
  list.setWidth(3850.25F);
  list.setTop(1680.5F);
  EXPECT_EQ(list.place(), (Place{240, 1680.5F, 3850.25F, 3660}));
  window->setWidth(11000.5F);
  EXPECT_EQ(happened(), Events{"resize"}) << "raised before the assignment is over";
  window->setLeft(100.25F);
  window->setWidth(11000.5F);
  EXPECT_EQ(happened(), Events{}) << "the size has not changed";
  hands->place(*window, {150, 300, 30, 3000});
  EXPECT_EQ(window->outerPlace(), (Place{150, 300, 30, 3000})) << "however small";
  EXPECT_EQ(happened(), Events{"resize"});
}

TEST_P(ToolkitContract, TheWindowKnowsItsState) {
  hands->place(*window, {300, 300, 12000, 7500});
  happened();
  hands->maximise(*window);
  EXPECT_EQ(window->State(), WindowState::Maximised);
  EXPECT_FALSE(happened().empty());
  EXPECT_GT(window->Width(), 12000);
  hands->minimise(*window);
  EXPECT_EQ(window->State(), WindowState::Minimised);
  hands->restore(*window);
  EXPECT_EQ(window->State(), WindowState::Maximised) << "an icon goes back to what it was";
  hands->restore(*window);
  EXPECT_EQ(window->State(), WindowState::Normal);
  EXPECT_EQ(window->outerPlace(), (Place{300, 300, 12000, 7500}));
  hands->place(*window, {100, 200, 9000, 7000});  // no whole pixels
  hands->maximise(*window);
  hands->restore(*window);
  EXPECT_EQ(window->outerPlace(), (Place{100, 200, 9000, 7000}));
}

TEST_P(ToolkitContract, ClosingAsksNobodyAndAModalBoxHoldsItsCaller) {
  Toolkit& toolkit = hands->toolkit();
  const std::unique_ptr<Window> box =
      toolkit.createWindow({.name = u"box",
                            .clientWidth = 3000,
                            .clientHeight = 1500,
                            .hasTitleBar = false,
                            .controls = {{.kind = ControlKind::CommandButton,
                                          .name = u"cmdOK",
                                          .caption = u"OK",
                                          .place = {150, 150, 1500, 375}}}});
  EXPECT_EQ(toolkit.Forms(), (std::vector<Window*>{window.get(), box.get()}));
  box->commandButton(u"cmdOK").Click = [&] { box->Unload(); };
  hands->seesModalBox = [this](Window& seen) { log("box " + toUtf8(seen.Name())); };
  box->ShowModal();
  EXPECT_EQ(happened(), Events{"box box"});
  EXPECT_EQ(toolkit.Forms(), std::vector<Window*>{window.get()});

  window->QueryUnload = [this] { log("query " + std::to_string(hands->toolkit().Forms().size())); };
  hands->close(*window);
  EXPECT_EQ(happened(), Events{"query 1"}) << "still open while it is asked";
  EXPECT_TRUE(toolkit.Forms().empty());
}

TEST_P(ToolkitContract, MessagesAndTheClipboardCarryTheTextAsItIs) {
  hands->seesMessage = [this](TextView prompt, TextView title) {
    log(toUtf8(title) + ": " + toUtf8(prompt));
  };
  hands->seesClipboard = [this](TextView text) { log(toUtf8(text)); };
  hands->toolkit().MsgBox(u"Två rader: \r\n<b>& inget annat</b>");
  EXPECT_TRUE(hands->toolkit().setClipboardText(u"DUBBLETTER\r\n\r\n"));
  EXPECT_EQ(happened(),
            (Events{"Termvik: Två rader: \r\n<b>& inget annat</b>", "DUBBLETTER\r\n\r\n"}));
}

INSTANTIATE_TEST_SUITE_P(EveryToolkit, ToolkitContract, testing::ValuesIn(toolkitNames()),
                         [](const auto& toolkit) { return toolkit.param; });

}  // namespace
}  // namespace termvik
