#include "window/list_box_binder.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <functional>
#include <numeric>

#include "window/appearance.h"
#include "window/shown.h"

namespace quill {
namespace {

// A wide character, as of Chinese, takes the room of two.
constexpr char32_t kFirstWide = 0x1100;

int Weight(std::u32string_view item) {
  return static_cast<int>(item.size()) +
         static_cast<int>(
             std::count_if(item.begin(), item.end(), [](char32_t c) { return c >= kFirstWide; }));
}

QString Shown(std::u32string_view item) {
  return ToQt(item).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

// The items of the list, without a copy: what was shown last differs from the list only by changes
// that are to be followed before anything is painted. All rows tell the size of the largest, so
// that the view need not ask each one.
class Rows : public QAbstractListModel {
 public:
  Rows(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

  void Reset() {
    beginResetModel();
    weights_.clear();
    weights_.reserve(list_.Items().size());
    for (const std::u32string& item : list_.Items()) weights_.push_back(Weight(item));
    endResetModel();
  }
  void Follow(const ItemChange& change) {
    const auto place = weights_.begin() + change.index;
    if (change.inserted) {
      beginInsertRows({}, change.index, change.index);
      weights_.insert(place, change.weight);
      endInsertRows();
    } else {
      beginRemoveRows({}, change.index, change.index);
      weights_.erase(place);
      endRemoveRows();
    }
  }
  void Measure(const QFontMetrics& metrics) { size_ = QSize(Width(metrics), metrics.height() + 3); }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(weights_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::SizeHintRole) return size_;
    if (role != Qt::DisplayRole || index.row() >= list_.ListCount()) return {};
    return Shown(list_.List(index.row()));
  }

 private:
  // Of the widest row, which is among the heaviest: measuring every row takes too long.
  int Width(const QFontMetrics& metrics) const {
    constexpr std::size_t kMeasured = 16;
    std::vector<int> rows(weights_.size());
    std::iota(rows.begin(), rows.end(), 0);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(kMeasured, rows.size()));
    std::partial_sort(rows.begin(), end, rows.end(), [this](int a, int b) {
      return weights_[static_cast<std::size_t>(a)] > weights_[static_cast<std::size_t>(b)];
    });
    int width = 0;
    for (auto row = rows.begin(); row != end; ++row) {
      width = std::max(width, metrics.horizontalAdvance(Shown(list_.List(*row))));
    }
    constexpr int kMargins = 12;
    return width + kMargins;
  }

  const ListBox& list_;
  std::vector<int> weights_;  // of the rows on show
  QSize size_;
};

}  // namespace

// Tells which item the user chose, with the mouse or with the keys.
class ListView : public QListView {
 public:
  ListView(QWidget& parent, const ListBox& list) : QListView(&parent), rows_(new Rows(list, this)) {
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

  void ShowAnew() {
    KeepPlace([this] { rows_->Reset(); });
  }
  void Follow(const std::vector<ItemChange>& changes) {
    KeepPlace([&] {
      for (const ItemChange& change : changes) rows_->Follow(change);
    });
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
  template <class Change>
  void KeepPlace(Change&& change) {
    const int left = horizontalScrollBar()->value();
    const int top = verticalScrollBar()->value();
    change();
    rows_->Measure(fontMetrics());
    doItemsLayout();
    horizontalScrollBar()->setValue(left);
    verticalScrollBar()->setValue(top);
  }

  Rows* rows_;
};

ListBoxBinder::ListBoxBinder(ListBox& list, QWidget& container, Actions& actions)
    : ListBoxBinder(list, *new ListView(container, list), actions) {}

ListBoxBinder::ListBoxBinder(ListBox& list, ListView& view, Actions& actions)
    : WidgetBinder(list, view, actions), list_(list), view_(view) {
  view.ShowAnew();
  SetColours(view, BackgroundOf(list.Row()), ToQColor(list.Row().stored.foreColor));
  view.chosen = [this](int row) {
    TheActions().Do([&](Program& program) { program.ClickItem(list_, row); });
    Show();
  };
}

void ListBoxBinder::Show() {
  WidgetBinder::Show();
  if (changes_.size() > kMostSingleChanges) {
    view_.ShowAnew();
  } else if (!changes_.empty()) {
    view_.Follow(changes_);
  }
  changes_.clear();
  // Also where it is selected already: the user may have scrolled it away.
  view_.SelectRow(list_.ListIndex);
}

void ListBoxBinder::ItemInserted(int index) {
  if (changes_.size() > kMostSingleChanges) return;
  changes_.push_back({true, index, Weight(list_.List(index))});
}

void ListBoxBinder::ItemRemoved(int index) {
  if (changes_.size() <= kMostSingleChanges) changes_.push_back({false, index, 0});
}

void ListBoxBinder::ItemsChanged() { changes_.assign(kMostSingleChanges + 1, {}); }

}  // namespace quill
