// SPDX-License-Identifier: MIT
// The real main window, for the tests of what a person finds in it.
#pragma once

#include <memory>

#include <QCoreApplication>
#include <gtest/gtest.h>

#include "lookup/frm_glossary_design.h"
#include "qt_controls.h"
#include "qt_window.h"
#include "toolkit/qt/qt_hands.h"

namespace termvik {

class QtMainWindow : public testing::Test {
 protected:
  QtMainWindow() {
    window->Show();
    QCoreApplication::processEvents();
  }

  QMainWindow& widget() const { return dynamic_cast<QtWindow&>(*window).widget(); }

  const Collation collation{"sv_SE"};
  const std::unique_ptr<Hands> hands = makeQtHands(collation);
  const std::unique_ptr<Window> window = hands->toolkit().createWindow(frmGlossaryDesign());
};

}  // namespace termvik
