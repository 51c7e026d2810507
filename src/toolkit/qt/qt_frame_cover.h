// SPDX-License-Identifier: MIT
// What lies over the frame of an area that scrolls.
#pragma once

#include <QAbstractScrollArea>

namespace termvik {

// Shows that the area has the focus, which most styles do not. And where a logical pixel is no
// whole number of the screen's, so that the area's contents can come to lie over a line of its
// frame, it draws the lines once more.
class QtFrameCover : public QWidget {
 public:
  explicit QtFrameCover(QAbstractScrollArea& area);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QAbstractScrollArea& area_;
};

}  // namespace termvik
