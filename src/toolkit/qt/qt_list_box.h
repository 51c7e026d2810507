// SPDX-License-Identifier: MIT
// The sorted list: a Qt view over the rows, without a copy of any of them.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "qt_controls.h"

namespace termvik {

// The rows as Qt's views ask for them. Between beginChange and endChange it shows none.
class RowsModel : public QAbstractListModel {
  Q_OBJECT

 public:
  RowsModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  void beginChange();
  void endChange();
  bool isChanging() const { return changing_; }
  void showRowText(int row);

 private:
  const ListBox& list_;
  bool changing_ = false;
};

class QtListBox : public QtControl<ListBox, QListView> {
 public:
  QtListBox(QWidget* parent, const ControlDesign& design, const Collation& collation);

 protected:
  void showRows() override;
  void showRowText(std::int32_t row) override;
  void showSelection() override;

 private:
  class View;

  void finishChange();
  void selectRow();

  RowsModel* model_;
};

}  // namespace termvik
