// SPDX-License-Identifier: MIT
// A window of the program as a Qt main window.
#pragma once

#include <memory>

#include <QButtonGroup>
#include <QEventLoop>
#include <QMainWindow>
#include <QPointer>

#include "common/toolkit/toolkit.h"
#include "toolkit/shared/known_place.h"

namespace termvik {

class QtAnnouncer;
class QtToolkit;

class QtWindow : public Window {
 public:
  QtWindow(QtToolkit& toolkit, const Collation& collation, const WindowDesign& design);
  ~QtWindow() override;

  Place outerPlace() const override { return place_.outer(); }
  void setOuterPlace(const Place& place) override;
  WindowState State() const override;
  void maximise() override;
  ScreenSize Screen() const override;
  void Show() override;
  void ShowModal() override;
  void Unload() override;

  QMainWindow& widget();
  QAction* action(const MenuItem& item) const;

 protected:
  bool hasListener() const override;
  void speak(TextView utterance, TextView news) override;

 private:
  class MainWindow;

  // qt_window.cpp
  void userCloses();
  bool isBareAt(QPoint position) const;

  // qt_window_parts.cpp
  void addControls(const Collation& collation);
  void addControl(const ControlDesign& design, const QFont& captionFont,
                  const Collation& collation);
  QButtonGroup& exclusiveGroup(const ControlDesign& design);
  QWidget* containerOf(const ControlDesign& design) const;
  void addMenu(const QFont& captionFont);
  bool userPressesKey(int key);
  void showHiddenItem(QAction* action);
  void focusMenuBar();
  void leaveMenuBar();
  void tellOfSwitchedOffItem();

  // qt_window_place.cpp
  void placeWidget(const Place& place);
  QRect outerPixels() const;
  void learnFrame();
  void watchFrame();
  void readPlace();

  QtToolkit& toolkit_;
  std::unique_ptr<QMainWindow> widget_;
  QtAnnouncer* announcer_ = nullptr;  // made when there is something to say
  QEventLoop modalLoop_;
  std::vector<std::pair<const MenuItem*, QAction*>> actions_;
  QPointer<QWidget> focusBehindMenu_;

  KnownPlace place_;
  QMargins frame_;  // the frame that place_ was reckoned with
  bool frameKnown_ = false;
  bool wantsWidth_ = false;     // the program has set it and the frame is not yet known
  bool wantsHeight_ = false;    // likewise
  bool wantsPosition_ = false;  // likewise
  bool placing_ = false;        // the program places the window, not the user
  bool open_ = true;
};

}  // namespace termvik
