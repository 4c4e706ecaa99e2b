#include "window/list_box_binder.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <functional>

#include "window/appearance.h"
#include "window/shown.h"

namespace quill {
namespace {

// The items as they were last shown. All rows tell the size of the largest, so that the view need
// not ask each one.
class Rows : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Set(const std::vector<std::u32string>& items, const QFontMetrics& metrics) {
    beginResetModel();
    rows_.clear();
    rows_.reserve(static_cast<qsizetype>(items.size()));
    for (const std::u32string& item : items) {
      rows_.push_back(ToQt(item).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    }
    size_ = QSize(Width(metrics), metrics.height() + 3);
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::SizeHintRole) return size_;
    if (role == Qt::DisplayRole) return rows_[index.row()];
    return {};
  }

 private:
  // Of the widest row, which is among the longest: measuring every row takes too long.
  int Width(const QFontMetrics& metrics) const {
    constexpr qsizetype kMeasured = 16;
    std::vector<const QString*> longest;
    longest.reserve(static_cast<std::size_t>(rows_.size()));
    for (const QString& row : rows_) longest.push_back(&row);
    const auto end = longest.begin() + std::min(kMeasured, rows_.size());
    std::partial_sort(longest.begin(), end, longest.end(),
                      [](const QString* a, const QString* b) { return a->size() > b->size(); });
    int width = 0;
    for (auto row = longest.begin(); row != end; ++row) {
      width = std::max(width, metrics.horizontalAdvance(**row));
    }
    constexpr int kMargins = 12;
    return width + kMargins;
  }

  QList<QString> rows_;
  QSize size_;
};

}  // namespace

// Tells which item the user chose, with the mouse or with the keys.
class ListView : public QListView {
 public:
  explicit ListView(QWidget& parent) : QListView(&parent), rows_(new Rows(this)) {
    setModel(rows_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setHorizontalScrollMode(ScrollPerPixel);
  }

  std::function<void(int)> chosen;

  int SelectedRow() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.empty() ? -1 : selected.front().row();
  }

  void SetItems(const std::vector<std::u32string>& items) {
    const int left = horizontalScrollBar()->value();
    const int top = verticalScrollBar()->value();
    rows_->Set(items, fontMetrics());
    doItemsLayout();
    horizontalScrollBar()->setValue(left);
    verticalScrollBar()->setValue(top);
  }

  void SelectRow(int row) {
    if (row < 0) {
      selectionModel()->clear();
      return;
    }
    setCurrentIndex(rows_->index(row));
    const int left = horizontalScrollBar()->value();
    scrollTo(rows_->index(row));
    horizontalScrollBar()->setValue(left);
  }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    QListView::mouseReleaseEvent(event);
    const int row = SelectedRow();
    if (event->button() == Qt::LeftButton && row >= 0) chosen(row);
  }

  void keyPressEvent(QKeyEvent* event) override {
    const int before = SelectedRow();
    // From no selection, a key goes to the first item and not past it.
    if (before < 0) selectionModel()->clearCurrentIndex();
    QListView::keyPressEvent(event);
    const int row = SelectedRow();
    if (row >= 0 && row != before) chosen(row);
  }

 private:
  Rows* rows_;
};

ListBoxBinder::ListBoxBinder(ListBox& list, QWidget& container, Actions& actions)
    : ListBoxBinder(list, *new ListView(container), actions) {}

ListBoxBinder::ListBoxBinder(ListBox& list, ListView& view, Actions& actions)
    : WidgetBinder(list, view, actions), list_(list), view_(view) {
  SetColours(view, BackgroundOf(list.Row()), ToQColor(list.Row().stored.foreColor));
  view.chosen = [this](int row) {
    TheActions().Do([&](Program& program) { program.ClickItem(list_, row); });
    Show();
  };
}

void ListBoxBinder::Show() {
  WidgetBinder::Show();
  if (changed_) view_.SetItems(list_.Items());
  if (changed_ || view_.SelectedRow() != list_.ListIndex) view_.SelectRow(list_.ListIndex);
  changed_ = false;
}

}  // namespace quill
