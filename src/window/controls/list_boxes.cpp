// List boxes, fast with as many items as a list can hold. The highlighted row is the list's
// ListIndex: the user chooses by a left click on a row or by the keys that move to or find a row,
// and nothing else selects. The selected item is scrolled into view whenever the program selects
// it, and the view scrolls sideways to the end of the longest item.
#include "window/controls/binders.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

#include "window/shared/appearance.h"
#include "window/shared/cut_text.h"
#include "window/shared/shown.h"
#include "window/shared/widget_binder.h"

namespace quill {
namespace {

struct ItemChange {
  bool inserted = false;  // else removed
  int index = 0;
  int weight = 0;  // of the inserted text: a measure of its width
};

// A wide character, such as a Chinese one, takes the room of two.
constexpr char32_t kFirstWide = 0x1100;

int Weight(std::u32string_view item) {
  return static_cast<int>(item.size()) +
         static_cast<int>(
             std::count_if(item.begin(), item.end(), [](char32_t c) { return c >= kFirstWide; }));
}

// In one line: the toolkit would leave out the rest of an item after a line end.
QString Shown(std::u32string_view item) {
  QString line = ToQt(item);
  for (const char16_t end : {u'\n', u'\r', u'\u2028', u'\u2029'}) line.replace(end, u' ');
  return line;
}

// The items of the list, without a copy: what was shown last differs from the list only by changes
// that are followed before anything is painted. All rows report the size of the largest, so that
// the view need not ask each one.
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

  int Height() const { return size_.height(); }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(weights_.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::SizeHintRole) return size_;
    if (role != Qt::DisplayRole || index.row() < 0 || index.row() >= list_.ListCount()) return {};
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
  std::vector<int> weights_;  // of the rows shown
  QSize size_;
};

// The selected row. The toolkit's own selecting, on clicks, keys and changes of the rows, is off:
// what shows as selected is what the binder says.
class Selection : public QItemSelectionModel {
 public:
  using QItemSelectionModel::QItemSelectionModel;

  // An invalid row selects none.
  void Show(const QModelIndex& row) {
    if (!row.isValid()) return Drop();
    QItemSelectionModel::select(QItemSelection(row, row), ClearAndSelect);
    QItemSelectionModel::setCurrentIndex(row, NoUpdate);
  }

  void select(const QModelIndex& /*row*/, SelectionFlags /*command*/) override {}
  void select(const QItemSelection& /*rows*/, SelectionFlags /*command*/) override {}
  void setCurrentIndex(const QModelIndex& /*row*/, SelectionFlags /*command*/) override {}
  void clear() override {}
  void clearCurrentIndex() override {}
  void reset() override {
    const QSignalBlocker quiet(this);
    Drop();
  }

 private:
  void Drop() {
    QItemSelectionModel::select(QItemSelection(), Clear);
    QItemSelectionModel::clearCurrentIndex();
  }
};

bool IsPlain(Qt::KeyboardModifiers modifiers) {
  return (modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

// Reports the item that the user chooses with mouse or keys, which it reads itself.
class ListView : public QListView {
 public:
  ListView(QWidget& parent, const ListBox& list)
      : QListView(&parent),
        list_(list),
        rows_(new Rows(list, this)),
        selection_(new Selection(rows_, this)) {
    setModel(rows_);
    delete selectionModel();
    setSelectionModel(selection_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setAutoScroll(false);
    setHorizontalScrollMode(ScrollPerPixel);
  }

  std::function<void(int)> chosen;

  void ShowAnew() {
    KeepPlace([this] { rows_->Reset(); });
  }
  void Follow(const std::vector<ItemChange>& changes) {
    KeepPlace([&] {
      for (const ItemChange& change : changes) rows_->Follow(change);
    });
  }
  void ShowSelected() { selection_->Show(rows_->index(list_.ListIndex)); }
  void ScrollToSelected() {
    const int left = horizontalScrollBar()->value();
    scrollTo(rows_->index(list_.ListIndex));
    horizontalScrollBar()->setValue(left);
  }

  void keyboardSearch(const QString& typed) override {
    if (typed.isEmpty()) return;
    const bool goesOn =
        typing_.isValid() && typing_.elapsed() < QApplication::keyboardInputInterval();
    typing_.start();
    wanted_ = goesOn ? wanted_ + typed : typed;
    // Typing one letter repeatedly goes through the rows that begin with it.
    const bool again = wanted_.count(wanted_.front()) == wanted_.size();
    const int from = std::max<int>(list_.ListIndex, 0) + (again && list_.ListIndex >= 0 ? 1 : 0);
    const QModelIndexList found =
        rows_->match(rows_->index(from % std::max(list_.ListCount(), 1)), Qt::DisplayRole,
                     again ? wanted_.left(1) : wanted_, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    if (!found.isEmpty()) Move(found.front().row());
  }

 protected:
  bool viewportEvent(QEvent* event) override {
    return (event->type() == QEvent::ToolTip && TellCutRow(static_cast<QHelpEvent&>(*event))) ||
           QListView::viewportEvent(event);
  }

  void mousePressEvent(QMouseEvent* event) override {
    const bool plain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    pressed_ = plain ? RowAt(*event) : -1;
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* /*event*/) override {}
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    const int row = std::exchange(pressed_, -1);
    if (row >= 0 && row == RowAt(*event)) chosen(row);
  }

  void keyPressEvent(QKeyEvent* event) override {
    const QString typed = event->text();
    const std::optional<int> row = IsPlain(event->modifiers()) ? Goal(event->key()) : std::nullopt;
    if (event->matches(QKeySequence::Copy)) {
      Copy();
    } else if (row) {
      Move(*row);
    } else if (IsPlain(event->modifiers()) && !typed.isEmpty() && typed.front().isPrint()) {
      keyboardSearch(typed);
    } else {
      event->ignore();
    }
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

  bool TellCutRow(const QHelpEvent& event) {
    const QString row = indexAt(event.pos()).data().toString();
    constexpr int kMargins = 6;
    if (fontMetrics().horizontalAdvance(row) <= viewport()->width() - kMargins) return false;
    TellWhole(event, row, *this);
    return true;
  }

  int RowAt(const QMouseEvent& event) const { return indexAt(event.position().toPoint()).row(); }

  // Where a key leads from the selected item; with none selected, to the first.
  std::optional<int> Goal(int key) const {
    const int row = list_.ListIndex;
    const int page = std::max(viewport()->height() / std::max(rows_->Height(), 1) - 1, 1);
    const auto from = [row](int step) { return row < 0 ? 0 : row + step; };
    switch (key) {
      case Qt::Key_Up:
        return from(-1);
      case Qt::Key_Down:
        return from(1);
      case Qt::Key_PageUp:
        return from(-page);
      case Qt::Key_PageDown:
        return from(page);
      case Qt::Key_Home:
        return 0;
      case Qt::Key_End:
        return list_.ListCount() - 1;
      default:
        return std::nullopt;
    }
  }

  void Move(int goal) {
    const int row = std::clamp(goal, 0, std::max(list_.ListCount() - 1, 0));
    if (row < list_.ListCount() && row != list_.ListIndex) chosen(row);
  }

  void Copy() const {
    const int row = list_.ListIndex;
    if (row >= 0) QGuiApplication::clipboard()->setText(ToQt(list_.List(row)));
  }

  const ListBox& list_;
  Rows* rows_;
  Selection* selection_;
  int pressed_ = -1;  // the row under the mouse when its button went down
  QString wanted_;    // what was typed to find a row
  QElapsedTimer typing_;
};

class ListBoxBinder final : public WidgetBinder {
 public:
  ListBoxBinder(ListBox& list, QWidget& container, Actions& actions);
  void Show() override;
  void ReadBack() override;
  void ItemInserted(int index) override;
  void ItemRemoved(int index) override;
  void ItemsChanged() override;

 private:
  ListBoxBinder(ListBox& list, ListView& view, Actions& actions);

  // More changes than this are shown as a new list.
  static constexpr std::size_t kMostSingleChanges = 8;

  ListBox& list_;
  ListView& view_;
  std::vector<ItemChange> changes_;  // since the list was last shown
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
  view_.ShowSelected();
  // Even if it was already selected: the user may have scrolled it out of view.
  view_.ScrollToSelected();
}

void ListBoxBinder::ReadBack() {
  WidgetBinder::Show();
  view_.ShowSelected();
}

void ListBoxBinder::ItemInserted(int index) {
  if (changes_.size() > kMostSingleChanges) return;
  changes_.push_back({true, index, Weight(list_.List(index))});
}

void ListBoxBinder::ItemRemoved(int index) {
  if (changes_.size() <= kMostSingleChanges) changes_.push_back({false, index, 0});
}

void ListBoxBinder::ItemsChanged() { changes_.assign(kMostSingleChanges + 1, {}); }

}  // namespace

std::unique_ptr<Binder> BindListBox(ListBox& list, QWidget& container, Actions& actions) {
  return std::make_unique<ListBoxBinder>(list, container, actions);
}

}  // namespace quill
