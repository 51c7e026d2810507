// SPDX-License-Identifier: MIT
// What the program remembers from one run to the next.
#include "support/desk.h"

namespace termvik::test {

struct Settings : Desk {
  // Left, top, width and height of the window, `-` for what is as the system chose it.
  std::string place() {
    const Place first = hands->toolkit().createWindow(window().design())->outerPlace();
    const Place now = window().outerPlace();
    std::ostringstream measures;
    for (const auto part : {&Place::left, &Place::top, &Place::width, &Place::height}) {
      now.*part == first.*part ? measures << "- " : measures << now.*part << ' ';
    }
    return measures.str();
  }
};

TEST_F(Settings, AreAppliedAsFarAsTheyFit) {
  struct Case {
    std::string state, top, left, width, height, glossary;  // as the file has them
    std::string window, list;                               // as they become
  };
  const std::array cases = {
      Case{"0", "300", "450", "9000", "6000", "0", "450 300 9000 6000 ", "a/1 "},
      // Each measure at its limits on a screen of 28800 by 16200, and beyond.
      Case{"0", "14199", "26799", "2001", "15199", "1", "26799 14199 2001 15199 ", "b/2 "},
      Case{"0", "14200", "26799", "2002", "15200", " 2 ", "26799 - - - ", "a/1 b/2 "},
      Case{"0", "0", "0", "28800", "1", "3", "0 0 28800 1 ", ""},
      Case{"0", "0", "0", "28801", "1", "", "0 0 - 1 ", ""},
      Case{"0", "1", "26800", "27300", "2", "-1", "- 1 27300 2 ", ""},
      Case{"0", "1", "26800", "27301", "2", "x", "- 1 - 2 ", ""},
      Case{"0", "-1", "-1", "0", "0", "1x", "- - - - ", ""},
      // What cannot be converted ends the placing; what was placed stays, and so does the glossary.
      Case{"0", "", "20", "30", "40", "1", "- - - - ", "b/2 "},
      Case{"0", "10", "2 0", "30", "40", "1", "- 10 - - ", "b/2 "},
      Case{"0", "10", "20", "1,5", "40", "1", "20 10 - - ", "b/2 "},
      Case{"0", "10", "20", "30", "2147483648", "1", "20 10 30 - ", "b/2 "},
      Case{"0", "10", "+20", "+-30", "40", "1", "20 10 - - ", "b/2 "},
      Case{"0", "1e-400", "-0.1e-999", "1e400", "40", "1", "0 0 - - ", "b/2 "},
      Case{"0", "10.5", "11.5", "30.4999", "4e2", "9", "12 10 30 400 ", ""},
      // The window's state.
      Case{"1", "10", "20", "30", "40", "70000", "20 10 30 40 ", ""},
      Case{"2", "10", "20", "30", "40", "1", "0 0 28800 16200 ", "b/2 "},
      Case{"2", "", "", "", "", "0", "0 0 28800 16200 ", "a/1 "},
      Case{"3", "10", "20", "30", "40", "1.4", "20 10 30 40 ", "b/2 "},
      Case{"", "10", "20", "30", "40", "+1", "- - - - ", ""},
      Case{"x", "10", "20", "30", "40", "0.5", "- - - - ", "a/1 "},
  };
  open("S: a", "S: b");
  for (const Case& given : cases) {
    const std::string file = "WINDOWSSTATE " + given.state + "/WINTOP " + given.top + "/WINLEFT " +
                             given.left + "/WINWIDTH " + given.width + "/WINHEIGHT " +
                             given.height + "/GLOSSARYINDEX " + given.glossary;
    play("close");
    folder.write("Termvik.par", file);
    play("start");
    EXPECT_EQ(place(), given.window) << file;
    EXPECT_EQ(rows(), given.list) << file;
    EXPECT_EQ(window().State() == WindowState::Maximised, given.state == "2") << file;
  }
}

TEST_F(Settings, KeepFractionsInTheUsersOwnWayOfWriting) {
  app.decimalSeparator = u',';
  play("start\nwindow -15 1200.5 9000 6001.5\nclose");
  EXPECT_EQ(folder.read("Termvik.par"),
            "WINDOWSSTATE 0/WINTOP 1200,5/WINLEFT -15/WINWIDTH 9000/WINHEIGHT 6001,5/"
            "GLOSSARYINDEX 2/");
  play("start");
  EXPECT_EQ(place(), "- 1200 9000 6002 ");
}

}  // namespace termvik::test
