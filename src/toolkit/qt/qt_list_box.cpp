// SPDX-License-Identifier: MIT
#include "qt_list_box.h"

#include <algorithm>

#include <QAccessible>
#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QToolTip>

#include "qt_frame_cover.h"
#include "toolkit/shared/shown_limits.h"

namespace termvik {

namespace {

// All rows have one height, so that the view never measures their texts.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    constexpr int kBetweenRows = 1;
    return {0, option.fontMetrics.height() + kBetweenRows};
  }

  // A row that is wider than the list can be read as a tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
      return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString text = index.data().toString();
    const int margin = 2 * (view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const QRect row = view->visualRect(index);
    const bool fits = view->fontMetrics().horizontalAdvance(text) + margin <= row.width();
    // Else a row with `<` in it could be taken for one with marks of HTML.
    const QString tip = fits ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
    QToolTip::showText(event->globalPos(), tip, view->viewport(), row);
    return true;
  }
};

}  // namespace

int RowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || changing_ ? 0 : list_.ListCount();
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || changing_) return {};
  if (role == Qt::DisplayRole) return toQt(list_.List(index.row()).substr(0, kMostShownOfRow));
  if (role == Qt::AccessibleTextRole) return toQt(list_.rowName(index.row()));
  return {};
}

void RowsModel::beginChange() {
  if (changing_) return;
  beginResetModel();
  changing_ = true;
}

void RowsModel::endChange() {
  if (!changing_) return;
  changing_ = false;
  endResetModel();
}

void RowsModel::showRowText(int row) {
  if (!changing_) emit dataChanged(index(row), index(row));
}

class QtListBox::View : public QListView {
 public:
  using QListView::QListView;

 protected:
  // A reader follows the row only while the list has the focus: else it would leave the box.
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    if (hasFocus()) {
      QListView::currentChanged(current, previous);
    } else {  // QListView adds nothing but the reader's events
      // NOLINTNEXTLINE(bugprone-parent-virtual-call)
      QAbstractItemView::currentChanged(current, previous);
    }
  }

  void focusInEvent(QFocusEvent* event) override {
    QListView::focusInEvent(event);
    if (!QAccessible::isActive() || !currentIndex().isValid()) return;
    // After the one that the view itself raises for the list as a whole.
    QTimer::singleShot(0, this, [this] {
      QAccessibleEvent reached(this, QAccessible::Focus);
      reached.setChild(currentIndex().row());
      if (hasFocus() && currentIndex().isValid()) QAccessible::updateAccessibility(&reached);
    });
  }

  // A row stays selected whatever is held down during a click.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override {
    const auto command = QListView::selectionCommand(index, event);
    return command == QItemSelectionModel::NoUpdate || !index.isValid()
               ? QItemSelectionModel::NoUpdate
               : QItemSelectionModel::ClearAndSelect;
  }
};

QtListBox::QtListBox(QWidget* parent, const ControlDesign& design, const Collation& collation)
    : QtControl(new View(parent), design, collation), model_(new RowsModel(*this, widget())) {
  QListView& view = *widget();
  view.setModel(model_);
  view.setItemDelegate(new RowDelegate(&view));
  view.setUniformItemSizes(true);
  view.setSelectionMode(QAbstractItemView::SingleSelection);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.setTextElideMode(Qt::ElideRight);
  new QtFrameCover(view);  // the view owns it
  QObject::connect(view.selectionModel(), &QItemSelectionModel::currentChanged, &view,
                   [this](const QModelIndex& current) {
                     if (current.isValid()) userSelects(current.row());
                   });
}

// Rows come by the hundred thousand: the view hears of them once, when the program selects one of
// them or, at the latest, when it has come to rest.
void QtListBox::showRows() {
  if (model_->isChanging()) return;
  model_->beginChange();
  QMetaObject::invokeMethod(
      model_, [this] { finishChange(); }, Qt::QueuedConnection);
}

void QtListBox::finishChange() {
  if (!model_->isChanging()) return;
  model_->endChange();
  if (ListIndex() >= 0) selectRow();
}

void QtListBox::showRowText(std::int32_t row) { model_->showRowText(row); }

// To the list box that row is selected already, so that the view's signal changes nothing.
void QtListBox::selectRow() { widget()->setCurrentIndex(model_->index(ListIndex())); }

void QtListBox::showSelection() {
  model_->endChange();
  selectRow();
  widget()->scrollTo(model_->index(ListIndex()));
}

}  // namespace termvik
