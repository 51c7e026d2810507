// What every toolkit promises to the program, with a user's real acts on its real controls.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lookup/frm_glossary_design.h"
#include "toolkit/user.h"
#ifdef TERMVIK_WITH_QT
#include "toolkit/qt/qt_user.h"
#endif
#ifdef TERMVIK_WITH_WIN32
#include "toolkit/win32/win32_user.h"
#endif

namespace termvik {
namespace {

using UserMaker = std::function<std::unique_ptr<User>(const Collation&)>;

struct NamedToolkit {
  std::string name;
  UserMaker makeUser;
};

void PrintTo(const NamedToolkit& toolkit, std::ostream* out) { *out << toolkit.name; }

std::vector<NamedToolkit> toolkits() {
  std::vector<NamedToolkit> all = {{"memory", [](const Collation& c) {
                                      return makeMemoryUser(c, {28800, 16200});
                                    }}};
#ifdef TERMVIK_WITH_QT
  all.push_back({"qt", [](const Collation& c) { return makeQtUser(c); }});
#endif
#ifdef TERMVIK_WITH_WIN32
  all.push_back({"win32", [](const Collation& c) { return makeWin32User(c); }});
#endif
  return all;
}

class ToolkitContract : public testing::TestWithParam<NamedToolkit> {
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
  const std::unique_ptr<User> user = GetParam().makeUser(collation);
  const std::unique_ptr<Window> window = user->toolkit().createWindow(frmGlossaryDesign());
  TextBox& search = window->textBox(u"txtSearch");
  TextBox& article = window->textBox(u"txtArticle");
  ListBox& list = window->listBox(u"lstWords");
  OptionGroup& glossary = window->optionGroup(u"optGlossary");
  Events events;
};

TEST_P(ToolkitContract, AKeyIsSeenThenItsCharacterThenTheEdit) {
  search.KeyDown = [this](std::int16_t&) { log("down"); };
  search.KeyPress = [this](std::int16_t& c) { log("press " + std::to_string(c)); };
  search.Change = [this] { log("change " + toUtf8(search.text())); };
  user->type(search, u'å');
  EXPECT_EQ(happened(), (Events{"down", "press 229", "change å"}));
  user->press(search, keys::kEnter);
  EXPECT_EQ(happened(), (Events{"down", "press 13"}));
  user->press(search, keys::kPageDown);
  EXPECT_EQ(happened(), (Events{"down"}));
}

TEST_P(ToolkitContract, AHandlerKeepsAKeyOrACharacterFromTheBox) {
  search.KeyDown = [](std::int16_t& code) { code = 0; };
  search.KeyPress = [this](std::int16_t&) { log("press"); };
  search.Change = [this] { log("change"); };
  user->type(search, u'a');
  EXPECT_EQ(happened(), Events{});
  search.KeyDown = nullptr;
  search.KeyPress = [](std::int16_t& character) { character = 0; };
  user->type(search, u'a');
  EXPECT_EQ(happened(), Events{});
  EXPECT_EQ(search.text(), u"");
}

TEST_P(ToolkitContract, TheKeyCodesAreTheOnesThatTheProgramKnows) {
  std::vector<std::int16_t> codes;
  search.KeyDown = [&](std::int16_t& code) { codes.push_back(code); };
  const std::vector<std::int16_t> pressed = {keys::kUp, keys::kDown, keys::kPageUp, keys::kPageDown,
                                             keys::kEnter};
  for (const std::int16_t code : pressed) user->press(search, code);
  EXPECT_EQ(codes, pressed);
}

TEST_P(ToolkitContract, ABoxHoldsEveryTextToTheCharacter) {
  int changes = 0;
  search.Change = [&] { ++changes; };
  const std::vector<Text> texts = {Text(100'000, u'x'), Text{u'\t', 0xD83D, 0xDE00, 0xD83D, 0x3B1},
                                   Text(u" blanks \u00AD"), Text()};
  for (const Text& text : texts) {
    changes = 0;
    user->replaceText(search, text);
    EXPECT_EQ(search.text(), text);
    EXPECT_EQ(changes, 1);
    user->replaceText(search, text);
    EXPECT_EQ(changes, 1) << "the same text again is no edit";
  }
  article.Change = [this] { log("change"); };
  article.setText(u"S: ord\r\n\r\nnotis");
  EXPECT_EQ(article.text(), u"S: ord\r\n\r\nnotis");
  EXPECT_EQ(happened(), Events{}) << "what the program writes is no edit";
}

TEST_P(ToolkitContract, AClickInTheBoxCanSelectItsText) {
  search.Click = [this] {
    search.setSelStart(0);
    search.setSelLength(static_cast<std::int32_t>(search.text().size()));
  };
  user->replaceText(search, u"skruv");
  EXPECT_EQ(search.SelStart(), 5);
  EXPECT_EQ(search.SelLength(), 0);
  user->click(search);
  EXPECT_EQ(search.SelStart(), 0);
  EXPECT_EQ(search.SelLength(), 5);
  user->type(search, u'b');
  EXPECT_EQ(search.text(), u"b") << "the next key replaces the selected text";
}

TEST_P(ToolkitContract, RowsStandInOrderAndKeepTheirNumbers) {
  const std::vector<std::pair<Text, std::int32_t>> added = {
      {u"öga", 0}, {u"ask", 0}, {u"Zoom", 1}, {u"åsna", 2}, {u"ASK", 1}};
  std::int32_t number = 10;
  for (const auto& [text, rank] : added) {
    list.AddItem(text);
    EXPECT_EQ(list.NewIndex(), rank) << toUtf8(text);
    list.setItemData(list.NewIndex(), number++);
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
  for (const TextView word : {u"b", u"d", u"f"}) list.AddItem(word);
  list.setListIndex(2);
  EXPECT_EQ(happened(), Events{"list 2"});
  list.setListIndex(2);
  EXPECT_EQ(happened(), Events{"list 2"}) << "also for the row that is selected";
  user->clickRow(list, 0);
  user->clickRow(list, 0);
  EXPECT_EQ(happened(), Events{"list 0"}) << "once, however often it is clicked";
  user->press(list, keys::kDown);
  EXPECT_EQ(happened(), Events{"list 1"});
  list.AddItem(u"a");
  EXPECT_EQ(list.ListIndex(), 2) << "the selected row has moved down";
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(happened(), Events{});
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
  user->click(option(u"optGlossary", 1));
  EXPECT_EQ(happened(), Events{}) << "an option that is on raises nothing";
  user->click(option(u"optGlossary", 2));
  EXPECT_EQ(happened(), Events{"glossary 2"});
  EXPECT_FALSE(glossary.Value(1));
  user->click(option(u"optSearch", 1));
  EXPECT_EQ(happened(), Events{"mode 1 alone"});
  EXPECT_TRUE(glossary.Value(2)) << "the groups know nothing of each other";
  glossary.setValue(2, false);
  EXPECT_EQ(happened(), Events{});
  user->click(option(u"optGlossary", 2));
  EXPECT_EQ(happened(), Events{"glossary 2"});
}

TEST_P(ToolkitContract, BoxesButtonsAndMenuItemsTellOfTheUser) {
  CheckBox& check = window->checkBox(u"chkShowDoublet");
  check.Click = [&] { log("check " + std::to_string(check.Value())); };
  EXPECT_EQ(check.Value(), 1);
  user->click(check);
  user->click(check);
  EXPECT_EQ(happened(), (Events{"check 0", "check 1"}));

  CommandButton& button = window->commandButton(u"cmdSearchAgain");
  button.Click = [&] { log("button"); };
  user->click(button);
  EXPECT_EQ(happened(), Events{}) << "the button is off at first";
  button.setEnabled(true);
  user->click(button);
  EXPECT_EQ(happened(), Events{"button"});

  for (const TextView name : {u"mnuGerman", u"mnuCreateWordList", u"mnuDoubletList"}) {
    window->menuItem(name).Click = [this, name] { log(toUtf8(name)); };
    user->choose(*window, window->menuItem(name));
  }
  EXPECT_EQ(happened(), (Events{"mnuGerman", "mnuDoubletList"}));
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
  user->place(*window, {150, 300, 30, 3000});
  EXPECT_EQ(window->outerPlace(), (Place{150, 300, 30, 3000})) << "however small";
  EXPECT_EQ(happened(), Events{"resize"});
}

TEST_P(ToolkitContract, TheWindowKnowsItsState) {
  user->place(*window, {300, 300, 12000, 7500});
  happened();
  user->maximise(*window);
  EXPECT_EQ(window->State(), WindowState::Maximised);
  EXPECT_FALSE(happened().empty());
  EXPECT_GT(window->Width(), 12000);
  user->minimise(*window);
  EXPECT_EQ(window->State(), WindowState::Minimised);
  user->restore(*window);
  EXPECT_EQ(window->State(), WindowState::Maximised) << "an icon goes back to what it was";
  user->restore(*window);
  EXPECT_EQ(window->State(), WindowState::Normal);
  EXPECT_EQ(window->outerPlace(), (Place{300, 300, 12000, 7500}));
}

TEST_P(ToolkitContract, ClosingAsksNobodyAndAModalBoxHoldsItsCaller) {
  Toolkit& toolkit = user->toolkit();
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
  user->seesModalBox = [this](Window& seen) { log("box " + toUtf8(seen.Name())); };
  box->ShowModal();
  EXPECT_EQ(happened(), Events{"box box"});
  EXPECT_EQ(toolkit.Forms(), std::vector<Window*>{window.get()});

  window->QueryUnload = [this] { log("query " + std::to_string(user->toolkit().Forms().size())); };
  user->close(*window);
  EXPECT_EQ(happened(), Events{"query 1"}) << "still open while it is asked";
  EXPECT_TRUE(toolkit.Forms().empty());
}

TEST_P(ToolkitContract, MessagesAndTheClipboardCarryTheTextAsItIs) {
  user->seesMessage = [this](TextView prompt, TextView title) {
    log(toUtf8(title) + ": " + toUtf8(prompt));
  };
  user->seesClipboard = [this](TextView text) { log(toUtf8(text)); };
  user->toolkit().MsgBox(u"Två rader: \r\n<b>& inget annat</b>");
  user->toolkit().setClipboardText(u"DUBBLETTER\r\n\r\n");
  EXPECT_EQ(happened(),
            (Events{"Termvik: Två rader: \r\n<b>& inget annat</b>", "DUBBLETTER\r\n\r\n"}));
}

INSTANTIATE_TEST_SUITE_P(EveryToolkit, ToolkitContract, testing::ValuesIn(toolkits()),
                         [](const auto& toolkit) { return toolkit.param.name; });

}  // namespace
}  // namespace termvik
