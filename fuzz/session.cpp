// SPDX-License-Identifier: MIT
#include "session.h"

#include <utility>

#include "common/system/codepage.h"
#include "input.h"
#include "toolkit/memory/memory_hands.h"

namespace termvik::fuzz {

Session::Session(const Collation& collation, std::array<std::string, 2> files)
    : collation_(collation),
      files_(std::move(files)),
      hands_(makeMemoryHands(collation, {28800, 16200})),
      plain_(collation.collator()) {
  hands_->seesClipboard = [this](TextView text) { clipboard_ = text; };
}

void Session::start(std::int16_t glossary) {
  app_.memory.write("Termvik.par", "GLOSSARYINDEX " + std::to_string(glossary) + "\r\n");
  app_.memory.write("graphword.txt", files_[0]);
  app_.memory.write("toolsword.txt", files_[1]);
  program_.emplace(hands_->toolkit(), collation_, app_);
  program_->start();
  plain_.start(files_, glossary);
  expectSameState();
}

void Session::reRead(const std::array<std::string, 2>& files) {
  files_ = files;
  app_.memory.write("graphword.txt", files_[0]);
  app_.memory.write("toolsword.txt", files_[1]);
  choose(u"mnuReRead");
  plain_.reRead(files_);
  expectSameState();
}

void Session::changeText(TextView text) {
  hands_->replaceText(window().editBox(u"txtSearch"), text);
  plain_.changeText(text);
  expectSameState();
}

void Session::type(char16_t character) {
  if (character == keys::kEnter) return pressKey(keys::kEnter);  // which looks up once more
  EditBox& box = window().editBox(u"txtSearch");
  hands_->goToEnd(box);
  hands_->type(box, character);
  plain_.changeText(box.text());
  expectSameState();
}

void Session::pressKey(std::int16_t key) {
  hands_->press(window().editBox(u"txtSearch"), key);
  plain_.pressKey(key);
  expectSameState();
}

void Session::clickRow(std::int32_t row) {
  hands_->clickRow(window().listBox(u"lstWords"), row);
  plain_.clickRow(row);
  expectSameState();
}

void Session::clickEachRow() {
  for (std::int32_t row = 0; row < list().ListCount(); ++row) clickRow(row);
}

void Session::clickOption(TextView name, std::int16_t index) {
  for (const auto& control : window().controls()) {
    const ControlDesign& design = control->design();
    if (design.name == name && design.index == index) hands_->click(*control);
  }
}

void Session::chooseGlossary(std::int16_t index) {
  clickOption(u"optGlossary", index);
  plain_.chooseGlossary(index);
  expectSameState();
}

void Session::chooseSearch(std::int16_t index) {
  clickOption(u"optSearch", index);
  plain_.chooseSearch(index);
  expectSameState();
}

void Session::searchAgain() {
  hands_->click(window().commandButton(u"cmdSearchAgain"));
  plain_.searchAgain();
  expectSameState();
}

void Session::clickDoublets() {
  CheckBox& box = window().checkBox(u"chkShowDoublet");
  hands_->click(box);
  plain_.checkDoublets(box.Value() == 1);
  expectSameState();
}

void Session::choose(TextView menuItem) { hands_->choose(window(), window().menuItem(menuItem)); }

void Session::chooseLanguage(TextView menuItem, TextView type) {
  choose(menuItem);
  plain_.chooseLanguage(type);
  expectSameState();
}

void Session::copyDoublets() {
  choose(u"mnuDoubletList");
  expectSame(clipboard_, plain_.doubletReport(), "report of doublets");
}

void Session::exportRows() {
  window().menuItem(u"mnuCreateWordList").Click();
  expectSame(app_.memory.read("tmpWordList.txt"), encodeAnsi(plain_.exported()), "exported file");
}

void Session::place(const Place& place) { hands_->place(window(), place); }

// None is as good as both.
std::int16_t Session::glossaryToStore() const {
  constexpr std::int16_t kBoth = 2;
  return plain_.glossary() < 0 ? kBoth : plain_.glossary();
}

// The choice of glossary is what the next start finds.
void Session::close() {
  hands_->close(window());
  program_.reset();
  const std::string& file = app_.memory.read("Termvik.par");
  expect(file.ends_with("GLOSSARYINDEX " + std::to_string(glossaryToStore()) + "\r\n"),
         "stored glossary");
}

void Session::expectSameRows() {
  const ListBox& list = this->list();
  const PlainRows& plain = plain_.rows();
  expectSame(list.ListCount(), plain.count(), "number of rows");
  for (std::int32_t row = 0; row < plain.count(); ++row) {
    expectSame(list.List(row), plain.text(row), "text of a row");
    expectSame(list.ItemData(row), plain.itemData(row), "entry of a row");
  }
}

void Session::expectSameState() {
  expectSameRows();
  expectSame(list().ListIndex(), plain_.selected(), "selected row");
  expectSame(window().textBox(u"txtArticle").text(), plain_.article(), "article");
  expectSame(program_->form().selectedGlossary(), glossaryToStore(), "chosen glossary");
  expectSame(window().optionGroup(u"optSearch").Value(1) ? 1 : 0, plain_.search(), "search mode");
  expect(window().commandButton(u"cmdSearchAgain").Enabled() == plain_.canSearchAgain(),
         "button that searches again");
}

}  // namespace termvik::fuzz
