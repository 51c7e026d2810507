// SPDX-License-Identifier: MIT
// What happens when memory runs out: one message, an empty window that can be used, and files as
// they were.
#include <new>

#include "short_memory.h"
#include "support/desk.h"

namespace termvik::test {

struct OutOfMemory : Desk {
  OutOfMemory() {
    folder.write("graphword.txt", kGraph);
    folder.write("toolsword.txt", kTools);
    folder.write("Termvik.par", kParameters);
    hands->seesClipboard = nullptr;  // the player would ask for memory of its own
  }

  ~OutOfMemory() override {
    EXPECT_EQ(folder.read("graphword.txt") + folder.read("toolsword.txt"), kGraph + kTools);
    EXPECT_EQ(folder.read("Termvik.par"), kParameters) << "nothing but closing writes it";
  }

  // As the program does where a toolkit's own work has run out of memory.
  template <class Act>
  void act(Act act) {
    try {
      act();
    } catch (const std::bad_alloc&) {
      program->form().runOutOfMemory();
    }
  }

  MenuItem& menu(TextView name) { return window().menuItem(name); }
  void click(TextView name, std::int32_t index) {
    for (const auto& control : window().controls()) {
      const ControlDesign& design = control->design();
      if (design.name == name && design.index == index) hands->click(*control);
    }
  }

  // Back from whatever has happened to a list of all words.
  void reRead() {
    hands->replaceText(search(), u"");
    click(u"optSearch", 0);
    click(u"optGlossary", 2);
    hands->choose(window(), menu(u"mnuSwedish"));
    hands->choose(window(), menu(u"mnuReRead"));
  }

  const std::string kGraph = "S: a/E: b/---/S: bult/C: a note/of two lines/---/S: c/S: a long word";
  const std::string kTools = "S: d/---/S: bult/E: bolt";
  const std::string kParameters = "GLOSSARYINDEX 2";
  const std::string kMessage = "Termvik does not have enough memory for these glossaries|";
  std::unique_ptr<Program> program = std::make_unique<Program>(hands->toolkit(), swedish(), app);
};

TEST_F(OutOfMemory, AnyRequestCanFailAndTheProgramGoesOn) {
  const std::array<std::pair<const char*, std::function<void()>>, 7> acts = {{
      {"look up", [this] { hands->replaceText(search(), u"bul"); }},
      {"full search", [this] { click(u"optSearch", 1); }},
      {"language", [this] { hands->choose(window(), menu(u"mnuEnglish")); }},
      {"report", [this] { hands->choose(window(), menu(u"mnuDoubletList")); }},
      {"versions", [this] { hands->choose(window(), menu(u"mnuShowGlossVersions")); }},
      {"export", [this] { menu(u"mnuCreateWordList").Click(); }},
      {"read again", [this] { hands->choose(window(), menu(u"mnuReRead")); }},
  }};
  program->start();
  const std::string all = rows();
  int told = 0;
  for (const auto& [name, step] : acts) {
    for (std::size_t number = 1;; ++number) {
      messages.clear();
      bool hasFailed = false;
      {
        const ShortMemory once = ShortMemory::once(number);
        act(step);
        hasFailed = ShortMemory::hasFailed();
      }
      if (!hasFailed) break;
      if (messages.find(kMessage) != std::string::npos) {
        ++told;
        EXPECT_EQ(messages, kMessage) << name << number;
        EXPECT_EQ(rows() + article(), "") << name << number;
        hands->replaceText(search(), u"a");
        hands->press(search(), keys::kDown);
      }
      reRead();
      ASSERT_EQ(rows(), all) << name << number;
    }
  }
  EXPECT_GT(told, 100);
}

// From too little for anything but the window to enough for all.
TEST_F(OutOfMemory, GlossariesThatDoNotFitLeaveAnEmptyWindow) {
  std::string large = kGraph;
  for (int i = 0; i < 500; ++i) large += "/---/S: word" + std::to_string(i) + "/C: its comment";
  bool hasFailed = true;
  for (std::size_t bytes = 1U << 12U; hasFailed; bytes += bytes / 8) {
    folder.write("graphword.txt", large);
    program = std::make_unique<Program>(hands->toolkit(), swedish(), app);
    messages.clear();
    {
      const ShortMemory budget = ShortMemory::of(bytes);
      program->start();
      hands->replaceText(search(), u"b");
      hasFailed = ShortMemory::hasFailed();
    }
    EXPECT_EQ(messages, hasFailed ? kMessage : "") << bytes;
    EXPECT_EQ(list().ListCount(), hasFailed ? 0 : 506);
    folder.write("graphword.txt", kGraph);
    reRead();
    EXPECT_EQ(list().ListCount(), 6);
  }
}

// Its text is the square of that number, which the memory for it may not outgrow.
TEST_F(OutOfMemory, AReportOfManyEqualWordsTakesTheMemoryOfItsText) {
  constexpr std::size_t kWords = 1000;
  std::string words = "S: bult";
  for (std::size_t i = 1; i < kWords; ++i) words += "/bult";
  folder.write("graphword.txt", words);
  program->start();
  std::size_t size = 0;
  hands->seesClipboard = [&size](TextView text) { size = text.size() * sizeof(char16_t); };
  hands->choose(window(), menu(u"mnuDoubletList"));
  EXPECT_GT(size, kWords * kWords * sizeof(u"bult"));
  messages.clear();
  {
    const ShortMemory budget = ShortMemory::of(size + size / 10);
    hands->choose(window(), menu(u"mnuDoubletList"));
  }
  EXPECT_EQ(messages.find(kMessage), std::string::npos);
  folder.write("graphword.txt", kGraph);
}

}  // namespace termvik::test
