#include "window/main_window.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTimerEvent>
#include <QUrl>
#include <algorithm>
#include <map>

#include "text/marks.h"
#include "window/application.h"
#include "window/controls/binders.h"
#include "window/controls/menus.h"
#include "window/controls/tab_order.h"
#include "window/copies/unsaved_copies.h"
#include "window/layout.h"
#include "window/shared/appearance.h"
#include "window/shared/shown.h"
#include "window/text/mark_names.h"

namespace quill {
namespace {

// The inside of the window. It scrolls on a screen too small even for the least size.
class Room : public QScrollArea {
 public:
  Room(QWidget& parent, std::function<void()> resized)
      : QScrollArea(&parent), resized_(std::move(resized)) {
    setFrameStyle(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    resized_();
  }

 private:
  std::function<void()> resized_;
};

// The path of a single dragged local file; empty for anything else.
QString DroppedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
  const QString path = urls.front().toLocalFile();
  return QFileInfo(path).isFile() ? path : QString();
}

}  // namespace

MainWindow::MainWindow(Program& program)
    : form_(program.Form()),
      actions_(
          program, [this] { Show(); }, [this] { close(); }),
      updates_(
          form_, [this] { Show(); }, [this] { TextLeaves(); }),
      room_(new Room(*this, [this] { Arrange(); })),
      desk_(new QWidget) {
  setObjectName(QStringLiteral("Form1"));
  desk_->setMinimumSize(LeastSize());
  // If the desk took no focus, a window that comes back to the front would give it to some control.
  // A click on the desk changes nothing.
  desk_->setFocusPolicy(Qt::TabFocus);
  desk_->setAccessibleName(QStringLiteral("Quillorandix"));
  room_->setWidget(desk_);
  setCentralWidget(room_);
  BuildMenus();
  BuildMarkLabel();
  BuildControls();
  StackControls();
  updates_.ShowAll();
  Show();
  BuildShortcuts();
  BeginInFirstBox();
  setAcceptDrops(true);
  Application::Instance().installEventFilter(this);
  Application::Instance().AfterInput([this](const QWidget& widget) { ReadBack(widget); });
  const QSize frame(8, 40);
  resize(sizeHint().boundedTo(screen()->availableSize() - frame));
}

QSize MainWindow::sizeHint() const {
  return StoredSize() + QSize(0, menuBar()->sizeHint().height());
}

MainWindow::~MainWindow() {
  Application::Instance().AfterInput(nullptr);
  Application::Instance().removeEventFilter(this);
}

void MainWindow::BuildMenus() {
  menuBar()->setNativeMenuBar(false);
  for (auto& [item, binder] : FillMenuBar(*menuBar(), form_, actions_)) {
    updates_.Follow(*item, *binder);
    binders_.push_back(std::move(binder));
  }
}

// The end of the menu bar is the only place that the catalogue leaves free.
void MainWindow::BuildMarkLabel() {
  mark_ = new QLabel(menuBar());
  mark_->setObjectName(QStringLiteral("MarkAtCaret"));
  mark_->setAccessibleName(QStringLiteral("Mark at the caret"));
  mark_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // The bar would put it higher than its captions.
  mark_->setContentsMargins(0, 2, 12, 0);
  const QString longest = MarkName({kFoundA, true, true, 0});
  mark_->setMinimumWidth(mark_->fontMetrics().horizontalAdvance(longest) + 24);
  menuBar()->setCornerWidget(mark_);
}

void MainWindow::BuildControls() {
  for (Control* const control : form_.Controls()) {
    if (control->Kind() == Kind::kMenuItem || control->Kind() == Kind::kFileDialog) continue;
    QWidget& container = WidgetOf(form_.ContainerOf(*control));
    if (control == &form_.RichTextBox1) {
      auto text = std::make_unique<DocumentBinder>(form_.RichTextBox1, container, actions_);
      updates_.FollowText(*text);
      text_ = text.get();
      binders_.push_back(std::move(text));
    } else {
      binders_.push_back(MakeBinder(*control, container, actions_));
      updates_.Follow(*control, *binders_.back());
    }
  }
}

// The catalogue is ordered front first.
void MainWindow::StackControls() {
  for (auto binder = binders_.rbegin(); binder != binders_.rend(); ++binder) {
    if ((*binder)->Widget() != nullptr) (*binder)->Widget()->raise();
  }
}

// Without captions, so that the menus stay as they are.
void MainWindow::BuildShortcuts() {
  const auto add = [this](QKeySequence::StandardKey key, auto pressed) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, pressed);
  };
  add(QKeySequence::Save, [this] { actions_.Click(form_.mnuFileSave); });
  add(QKeySequence::Cancel, [this] {
    CommandButton& close = form_.Close_Info.IsInReach() ? form_.Close_Info : form_.CloseIDFrame;
    actions_.Do([&](Program& program) { program.PressKeyFor(close); });
  });
}

// The keyboard starts in the open panel; the model is told when the user acts.
void MainWindow::BeginInFirstBox() {
  lastFocus_ = &form_.UserID1;
  auto& box = dynamic_cast<QLineEdit&>(WidgetOf(form_.UserID1));
  box.setFocus();
  box.selectAll();
}

QWidget& MainWindow::WidgetOf(const Control& control) const {
  if (&control == &form_) return *desk_;
  const QString name =
      QString::fromLatin1(control.Name().data(), static_cast<qsizetype>(control.Name().size()));
  return *desk_->findChild<QWidget*>(name);
}

// --- Following the model ---------------------------------------------------------------------

void MainWindow::Show() {
  updates_.ShowChanges();
  if (updates_.TakeWindowChanged()) ShowWindow();
  // A control that lost the keyboard by going out of reach gets it back when it returns.
  const bool isBack = form_.Focus() != nullptr && desk_->hasFocus();
  if (updates_.TakeFocusMoved() || isBack) ShowFocus();
  ShowMarkAtCaret();
  if (copies_ != nullptr) copies_->Look();
}

// A long note is told by its beginning, and as a whole to those who have it read out.
void MainWindow::ShowMarkAtCaret() {
  const QString name = text_->NameAtCaret();
  const QString line = name.simplified();
  mark_->setText(mark_->fontMetrics().elidedText(line, Qt::ElideRight, mark_->minimumWidth() - 24));
  mark_->setAccessibleDescription(name);
}

void MainWindow::TextLeaves() {
  if (copies_ != nullptr) copies_->TextLeaves();
}

void MainWindow::ShowWindow() {
  // "[*]" is a placeholder of the toolkit's.
  setWindowTitle(ToQt(form_.Caption.Get()).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
  Arrange();
}

void MainWindow::ShowFocus() {
  lastFocus_ = form_.Focus();
  if (!lastFocus_->IsInReach()) return;
  QWidget& widget = WidgetOf(*lastFocus_);
  // A move by the user is done already, including the caret's place.
  if (widget.hasFocus() || widget.isAncestorOf(focusWidget())) return;
  updates_.BinderOf(*lastFocus_).TakeFocus();
  room_->ensureWidgetVisible(&widget);
}

void MainWindow::ReadBack(const QWidget& widget) {
  const Control* const control = ControlOf(&widget);
  if (control != nullptr && !actions_.Running()) updates_.BinderOf(*control).ReadBack();
}

void MainWindow::Arrange() {
  for (const Control* const control : form_.Controls()) {
    if (&form_.ContainerOf(*control) != &form_ || control->Kind() == Kind::kMenuItem ||
        control->Kind() == Kind::kFileDialog) {
      continue;
    }
    WidgetOf(*control).setGeometry(
        PlaceIn(room_->viewport()->size(), control->Row(), form_.User_Dialogue.Visible));
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (actions_.Running()) {
    event->ignore();
    return;
  }
  actions_.Do([](Program& program) { program.Close(); });
  event->accept();
}

// --- The user's hands ------------------------------------------------------------------------

bool MainWindow::eventFilter(QObject* object, QEvent* event) {
  const auto* const widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || widget->window() != this) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      if (!actions_.Running()) UserGoesInto(*widget);
      return IsMiddleButton(*widget, *event);
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return IsMiddleButton(*widget, *event);
    case QEvent::KeyPress:
      if (actions_.Running()) return false;
      if (IsMoveByTab(static_cast<const QKeyEvent&>(*event))) return true;
      [[fallthrough]];
    case QEvent::InputMethod:
      if (form_.Focus() == nullptr && !actions_.Running()) UserGoesInto(*widget);
      return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      Drop(static_cast<QDropEvent&>(*event));
      return true;
    default:
      return false;
  }
}

// It would paste the last selection, made here or in another program. Scroll bars may have it.
bool MainWindow::IsMiddleButton(const QWidget& widget, const QEvent& event) {
  return static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton &&
         qobject_cast<const QScrollBar*>(&widget) == nullptr;
}

bool MainWindow::IsMoveByTab(const QKeyEvent& key) {
  const bool back = key.key() == Qt::Key_Backtab;
  const bool tab = back || key.key() == Qt::Key_Tab;
  const Qt::KeyboardModifiers others = key.modifiers() & ~Qt::ShiftModifier;
  return tab && others == Qt::NoModifier && MoveByTab(!back);
}

// No widget sees a drag: a single file is opened, anything else is refused.
void MainWindow::Drop(QDropEvent& event) {
  const QString path = actions_.Running() ? QString() : DroppedFile(*event.mimeData());
  if (path.isEmpty()) return event.ignore();
  event.setDropAction(Qt::CopyAction);
  event.accept();
  if (event.type() != QEvent::Drop) return;
  // The program that the file comes from waits for this event to end.
  dropped_ = path;
  opening_.start(0, this);
}

void MainWindow::timerEvent(QTimerEvent* event) {
  if (event->timerId() != opening_.timerId()) return QMainWindow::timerEvent(event);
  opening_.stop();
  if (!actions_.Running() && openFile_) openFile_(dropped_);
}

// --- Focus -----------------------------------------------------------------------------------

// A control that was hidden while the window was in the background still counts as the toolkit's
// choice for the keyboard; the toolkit would pass over it to whichever control is next.
bool MainWindow::event(QEvent* event) {
  const QWidget* const chosen = focusWidget();
  if (event->type() == QEvent::WindowActivate && chosen != nullptr && !chosen->isVisible()) {
    desk_->setFocus(Qt::OtherFocusReason);
  }
  return QMainWindow::event(event);
}

bool MainWindow::focusNextPrevChild(bool /*next*/) {
  desk_->setFocus(Qt::OtherFocusReason);
  return true;
}

Control* MainWindow::ControlOf(const QWidget* widget) const {
  for (; widget != nullptr && widget != desk_; widget = widget->parentWidget()) {
    Control* const control = form_.Find(widget->objectName().toStdString());
    if (control != nullptr) return control;
  }
  return nullptr;
}

void MainWindow::UserGoesInto(const QWidget& widget) {
  Control* const control = ControlOf(&widget);
  if (control == nullptr || !control->IsInReach() ||
      WidgetOf(*control).focusPolicy() == Qt::NoFocus) {
    return;
  }
  lastFocus_ = control;
  actions_.Do([&](Program& program) { program.GoInto(*control); });
}

bool MainWindow::IsTabStop(const Control& control) const {
  if (!control.IsInReach() || !control.Row().stored.tabStop) return false;
  const QWidget& widget = WidgetOf(control);
  // A panel in front may hide it.
  const QWidget* const seen = desk_->childAt(widget.mapTo(desk_, widget.rect().center()));
  return seen != nullptr &&
         (seen == &widget || widget.isAncestorOf(seen) || &control == &form_.RichTextBox1);
}

bool MainWindow::MoveByTab(bool forward) {
  const std::span<const std::string_view> order = TabOrder();
  const auto size = static_cast<int>(order.size());
  const std::string_view from = lastFocus_ != nullptr ? lastFocus_->Name() : std::string_view();
  const auto found = std::find(order.begin(), order.end(), from);
  int at = found != order.end() ? static_cast<int>(found - order.begin()) : (forward ? -1 : 0);
  for (int step = 0; step < size; ++step) {
    at = (at + (forward ? 1 : size - 1)) % size;
    Control* const control = form_.Find(order[static_cast<std::size_t>(at)]);
    if (!IsTabStop(*control)) continue;
    QWidget& widget = WidgetOf(*control);
    widget.setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    room_->ensureWidgetVisible(&widget);
    UserGoesInto(widget);
    return true;
  }
  return false;
}

}  // namespace quill
