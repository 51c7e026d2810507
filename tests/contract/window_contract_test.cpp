// SPDX-License-Identifier: MIT
// What the windows, messages and clipboard of every toolkit promise to the program, with real acts
// of a person's hands.
#include <algorithm>

#include "dialogs/frm_about_design.h"
#include "toolkit_contract.h"

namespace termvik {
namespace {

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

}  // namespace
}  // namespace termvik
