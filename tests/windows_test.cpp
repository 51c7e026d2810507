// SPDX-License-Identifier: MIT
// The windows themselves, the commands whose outcome hangs on files that come and go, and what a
// replay script may not do.
#include "support/desk.h"

namespace termvik::test {

using Windows = Desk;

TEST_F(Windows, AboutStandsInTheMiddleOfTheScreenAndClosesInThreeWays) {
  open("");
  std::size_t opened = 0;
  hands->seesModalBox = [&](Window& box) {
    EXPECT_EQ(box.outerPlace(), (Place{10050, 5167.5, 8700, 5865}));
    EXPECT_EQ(flat(box.textBox(u"Text2").text()),
              "Authors: Sigvard Ek and Tore Holm/Version: 1.0.4  2004-12-21");
    const std::array<std::function<void()>, 3> ways = {box.commandButton(u"cmdOK").Click, box.Click,
                                                       box.Deactivate};
    EXPECT_EQ(hands->toolkit().Forms().size(), 2U);
    ways.at(opened++)();
    EXPECT_EQ(hands->toolkit().Forms().size(), 1U);
  };
  play("menu mnuAbout\nmenu mnuAbout\nmenu mnuAbout");
  EXPECT_EQ(opened, 3U);
}

TEST_F(Windows, ShowTheFilesAsTheyAreAtTheLastReading) {
  open("S: alfa", "S: gamma/E: alpha1");
  const std::filesystem::path graph = folder.path / "graphword.txt";
  const std::filesystem::path tools = folder.path / "toolsword.txt";
  for (const std::string mode : {"", "\noption optSearch 1"}) {
    messages.clear();
    play("text gam" + mode);
    folder.write("graphword.txt", "S: gam/E: old/---/S: alfa");
    play("menu mnuReRead");
    EXPECT_EQ(rows() + article(), "alfa/2 gam/1 gamma/3 S: gam/E: old//");
    std::filesystem::remove(graph);
    std::filesystem::create_directory(graph);
    play("menu mnuReRead");
    EXPECT_EQ(rows() + article(), "gamma/1 S: gamma/E: alpha1//");
    std::filesystem::permissions(tools, std::filesystem::perms::none);
    if (disk().openToRead(tools)) {  // some may read all files
      std::filesystem::permissions(tools, std::filesystem::perms::all);
      std::filesystem::resize_file(tools, 0);
    }
    play("menu mnuReRead\nmenu mnuShowGlossVersions");
    EXPECT_EQ(rows() + article(), "S: gamma/E: alpha1//");
    std::filesystem::remove(graph);
    std::filesystem::remove(tools);
    folder.write("graphword.txt", "S: alfa");
    play("menu mnuReRead");
    EXPECT_EQ(rows(), "alfa/1 ");
    folder.write("toolsword.txt", "S: gamma/E: alpha1");
    play("menu mnuReRead");
    EXPECT_EQ(rows() + article(), "alfa/1 gamma/2 S: gamma/E: alpha1//");
    EXPECT_EQ(window().optionGroup(u"optSearch").Value(1), !mode.empty());
    EXPECT_EQ(messages,
              "Could not find the glossary file @/graphword.txt|"
              "Could not find the glossary file @/graphword.txt|"
              "Graphical glossary:/Filename: @/graphword.txt/First line: //"
              "Tools glossary:/Filename: @/toolsword.txt/First line: |"
              "Could not find the glossary file @/toolsword.txt|");
  }
}

TEST_F(Windows, GoOnWhereFilesCannotBeWritten) {
  std::filesystem::create_directory(folder.path / "tmpWordList.txt");
  std::filesystem::create_directory(folder.path / "Termvik.par");
  open("S: a");
  play("call mnuCreateWordList_Click\nclose\nstart");
  EXPECT_EQ(rows(), "");
  EXPECT_EQ(messages, "a/1 Could not write the file @/tmpWordList.txt|");
}

// The clipboard is another program's.
class ToolkitWithoutClipboard : public Toolkit {
 public:
  explicit ToolkitWithoutClipboard(Toolkit& toolkit) : toolkit_(toolkit) {}

  std::unique_ptr<Window> createWindow(const WindowDesign& design) override {
    return toolkit_.createWindow(design);
  }
  std::vector<Window*> Forms() const override { return toolkit_.Forms(); }
  void MsgBox(TextView prompt) override { toolkit_.MsgBox(prompt); }
  bool setClipboardText(TextView) override { return false; }

 private:
  Toolkit& toolkit_;
};

TEST_F(Windows, SayThatTheClipboardCouldNotBeOpened) {
  ToolkitWithoutClipboard toolkit(hands->toolkit());
  Program program(toolkit, swedish(), app);
  program.start();
  messages.clear();
  window().menuItem(u"mnuDoubletList").Click();
  EXPECT_EQ(messages, "Could not open the clipboard|");
}

TEST_F(Windows, ScriptsThatMakeNoSenseAreRefused) {
  EXPECT_THROW(play("state"), replay::ScriptError);
  open("S: a");
  for (const char* line :
       {"start", "fly", "row 1", "row -1", "row", "key Home", "window 1 2 3", "window 1 2 3 x",
        "option optGlossary 3", "option optSpeed 0", "check 2", "menu mnuFile", "click lstWords",
        "call Form_Load", "state 1", "rows 0", "close now"}) {
    EXPECT_THROW(play(line), replay::ScriptError) << line;
  }
}

}  // namespace termvik::test
