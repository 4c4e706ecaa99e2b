// A random user on the real window, with real dialogs and files: after every action the widgets
// show what the model holds, and the invariants hold.
//
// QUILL_WALK_ACTIONS is the number of actions (3000), QUILL_WALK_SEED the first seed (1). Actions
// are recorded line by line. A walk that fails, even by ending the process, leaves its record, and
// QUILL_WALK_RECORD names a record to replay.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QtTest>
#include <csignal>
#include <optional>
#include <regex>

#include "disk/posix_disk.h"
#include "hands/dialog_hands.h"
#include "hands/shown_program.h"
#include "line_hands.h"
#include "random_hands.h"
#include "record.h"
#include "rtf/writer.h"
#include "shown_window.h"
#include "support/walk_texts.h"
#include "text/unicode.h"
#include "window/application.h"
#include "window/copies/unsaved_copies.h"
#include "window/shared/shown.h"
#include "window/window_dialogs.h"

namespace quill::test {
namespace {

namespace fs = std::filesystem;

// Warnings of the toolkit are faults of the window, except those of the offscreen platform.
std::string warnings;
void Collect(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
  if (!message.startsWith(QLatin1String("This plugin"))) warnings += message.toStdString() + '\n';
}

Files FilesIn(const fs::path& folder) {
  Files files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().filename()] = {std::istreambuf_iterator<char>(file), {}};
  }
  return files;
}

// A box and what it must hold after a key that types a letter.
struct Typed {
  const Control* box = nullptr;
  QString text;
};

template <class Cursor>
QString TypedOver(const QString& text, const Cursor& begin, const Cursor& end, const QString& key) {
  return text.left(begin) + key + text.mid(end);
}

class Walk : ShownProgram<PosixDisk, WindowDialogs> {
 public:
  Walk(std::uint32_t seed, const char* toPlay)
      : dice_(seed), record_(root_.filePath(QStringLiteral("record")).toStdString(), toPlay) {
    root_.setAutoRemove(false);
    const QDir root(root_.path());
    root.mkdir(QStringLiteral("texts"));
    QDir::setCurrent(root.filePath(QStringLiteral("texts")));
    qputenv("XDG_STATE_HOME", root.filePath(QStringLiteral("state")).toUtf8());
    for (const auto& [file, bytes] : Texts()) std::ofstream(file, std::ios::binary) << bytes;
    dialogs.Attach(window, form);
    window.OnDroppedFile([this](const QString& path) {
      dialogs.ChooseNext(path);
      window.findChild<QAction*>(QStringLiteral("mnuFileOpen"))->trigger();
    });
    answers_.AtOthers([this](QDialog& dialog) { Answer(dialog); });
    QObject::connect(&popups_, &QTimer::timeout, &popups_, &LeaveWaitingPopup);
    popups_.start(2);
    using std::chrono_literals::operator""ms;
    copies_.emplace(form, UserCopyFolder(), UnsavedCopies::Pace{10ms, 50ms});
    window.Inform(&*copies_);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }
  ~Walk() {
    window.Inform(nullptr);
    QDir::setCurrent(QDir::tempPath());
    root_.setAutoRemove(!testing::Test::HasFailure());
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  bool Ended() const { return program.Ended(); }
  // A text with unsaved changes has its copy when it leaves.
  void ExpectCopy() {
    copies_->Take();
    if (!form.RichTextBox1.HasUnsavedChanges()) return;
    const std::string text = rtf::Write(form.RichTextBox1.Doc());
    const Files copies = FilesIn(UserCopyFolder());
    EXPECT_TRUE(std::any_of(copies.begin(), copies.end(),
                            [&](const auto& copy) { return copy.second == text; }));
  }
  std::string LastLines() const { return record_.LastLines(); }

  void Step() {
    const std::string line = record_.Next([this] { return user_.Line(); });
    const Files files = FilesIn(fs::current_path());
    const std::u32string text = form.RichTextBox1.Text();
    const int givenUp = Application::Instance().GivenUp();
    const std::optional<Typed> typed = TypedBy(line);
    const std::map<const ListBox*, int> rows = RowsAfter(line);
    try {
      hands_.Do(line);
      answers_.Finish();
    } catch (const HandsFailed& failure) {
      ADD_FAILURE() << failure.what();
    }
    EXPECT_EQ(Application::Instance().GivenUp(), givenUp) << "something threw inside the toolkit";
    if (Ended()) return;
    EXPECT_EQ(Differences(window, form), "");
    EXPECT_EQ(std::exchange(warnings, {}), "");
    for (const auto& [list, row] : rows) EXPECT_EQ(list->ListIndex, row) << list->Name();
    if (typed && typed->box->IsInReach()) {
      EXPECT_EQ(TextOf(*typed->box).toStdString(), typed->text.toStdString());
    }
    if (IsOfMouseAlone(line)) {
      EXPECT_EQ(ToUtf8(form.RichTextBox1.Text()), ToUtf8(text));
    }
    ExpectFilesWhole(files, FilesIn(fs::current_path()));
  }

 private:
  // --- Dialogs ---------------------------------------------------------------------------------

  void Answer(QDialog& dialog) {
    EXPECT_EQ(Differences(window, form), "") << "behind a dialog";
    NoteSource();
    if (auto* const files = qobject_cast<QFileDialog*>(&dialog)) return AnswerFileDialog(*files);
    auto& box = dynamic_cast<QMessageBox&>(dialog);
    while (box.isVisible()) {
      const QString answer = QString::fromStdString(record_.Next([&] { return BoxAnswer(box); }));
      if (answer.startsWith(QLatin1String("answer key "))) {
        QTest::keyClick(&box,
                        answer.endsWith(QLatin1String("Esc")) ? Qt::Key_Escape : Qt::Key_Return);
      } else {
        QAbstractButton* const button = box.buttons().value(answer.section(u' ', 2).toInt());
        QTest::mouseClick(button, Qt::LeftButton);
      }
    }
  }
  // Keys also reach the menu of the bar's own button, which waits in its own event loop.
  static void LeaveWaitingPopup() {
    QWidget* const popup = QApplication::activePopupWidget();
    const bool waits = QThread::currentThread()->loopLevel() > 0 && DialogHands::Open() == nullptr;
    if (popup != nullptr && waits) QTest::keyClick(popup, Qt::Key_Escape);
  }
  std::string BoxAnswer(const QMessageBox& box) {
    if (dice_.Percent(20)) return dice_.Percent(50) ? "answer key Esc" : "answer key Return";
    return "answer button " + std::to_string(dice_.Below(static_cast<int>(box.buttons().size())));
  }
  void AnswerFileDialog(QFileDialog& dialog) {
    const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
    const std::string answer = record_.Next([&]() -> std::string {
      if (dice_.Percent(10)) return "answer cancel";
      if (!opens && !source_.empty() && dice_.Percent(10)) return "answer name " + source_;
      return "answer name " + LineHands::Encoded(user_.FileName(opens));
    });
    constexpr std::string_view kName = "answer name ";
    if (answer.starts_with(kName)) {
      DialogHands::TypeName(dialog, answer.substr(kName.size()).c_str());
    }
    if (dialog.isVisible()) dialog.reject();
  }
  // The file that the text came from, if it must stay as it is.
  void NoteSource() {
    const fs::path source(ToUtf8(form.RichTextBox1.SourcePath()));
    source_ = source.extension() == ".rtf" ? source.filename().string() : "";
  }

  // --- What must hold --------------------------------------------------------------------------

  static QString TextOf(const Control& control) {
    const auto* const combo = dynamic_cast<const ComboBox*>(&control);
    return ToQt(combo != nullptr ? combo->Text.Get()
                                 : dynamic_cast<const TextBox&>(control).Text.Get());
  }

  // Boxes take what is typed into them.
  std::optional<Typed> TypedBy(const std::string& line) const {
    if (!line.starts_with("letter ")) return std::nullopt;
    const QString key = LineHands::Decoded(QString::fromStdString(line.substr(7)));
    QWidget* const widget = QApplication::focusWidget();
    const Control* const box = ControlOf(form, widget);
    if (box == nullptr || QApplication::activePopupWidget() != nullptr) return std::nullopt;
    if (const auto* const edit = qobject_cast<QLineEdit*>(widget)) {
      const int begin = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
      const int end = edit->hasSelectedText() ? edit->selectionEnd() : begin;
      return Typed{box, TypedOver(TextOf(*box), begin, end, key)};
    }
    if (const auto* const edit = qobject_cast<QPlainTextEdit*>(widget)) {
      const QTextCursor cursor = edit->textCursor();
      return Typed{box,
                   TypedOver(TextOf(*box), cursor.selectionStart(), cursor.selectionEnd(), key)};
    }
    return std::nullopt;
  }

  // The row of each list after a mouse action: the clicked row or, after anything else, the same as
  // before.
  std::map<const ListBox*, int> RowsAfter(const std::string& line) const {
    const LineHands::Target target = hands_.TargetOf(line);
    const auto* const list = dynamic_cast<const ListBox*>(ControlOf(form, target.widget));
    // A file that is dropped on a list may be opened, with other tags.
    const bool mayMove = line.starts_with("drag") || line.starts_with("drop file");
    if (list == nullptr || mayMove) return {};
    const bool left = line.find(" left ") != std::string::npos;
    const auto* const view = qobject_cast<QAbstractItemView*>(target.widget->parentWidget());
    if (!left || view == nullptr || !list->IsInReach()) return {{list, list->ListIndex}};
    const QModelIndex row = view->indexAt(target.point);
    if (line.find(" - ") == std::string::npos) return {};
    return {{list, row.isValid() ? row.row() : list->ListIndex.Get()}};
  }

  // The mouse alone changes no characters, wherever it is pressed, except on buttons and in menus.
  bool IsOfMouseAlone(const std::string& line) const {
    if (line.starts_with("drop file")) return false;
    const Control* const control = ControlOf(form, hands_.TargetOf(line).widget);
    return control != nullptr && control->Kind() != Kind::kButton;
  }

  // Texts stay as they were, dictionaries grow, and every file belongs to a text.
  void ExpectFilesWhole(const Files& before, const Files& after) {
    static const std::regex companion(R"(.*\.([tT][bB][fF]|tlf|spd|gdf)(~\d*)?)");
    NoteSource();
    for (const auto& [name, bytes] : before) {
      ASSERT_TRUE(after.contains(name)) << name;
      const std::string& now = after.at(name);
      if (now == bytes) continue;
      const bool grows = name.ends_with(".spd") || name.ends_with(".gdf");
      EXPECT_TRUE(grows ? now.starts_with(bytes) : !name.ends_with(".rtf") && !name.ends_with("~"))
          << name << " was written";
    }
    for (const auto& [name, bytes] : after) {
      EXPECT_TRUE(before.contains(name) || std::regex_match(name, companion)) << name;
    }
  }

  QTemporaryDir root_;
  Dice dice_;
  Record record_;
  LineHands hands_{window};
  RandomHands user_{dice_, window, form};
  DialogHands answers_;
  QTimer popups_;
  std::optional<UnsavedCopies> copies_;
  std::string source_;
};

// Nothing waits for a second click or a second letter. Other tests of the process do.
class NoWaiting {
 public:
  NoWaiting() {
    QApplication::setDoubleClickInterval(1);
    QApplication::setKeyboardInputInterval(0);
  }
  ~NoWaiting() {
    QApplication::setDoubleClickInterval(doubleClick_);
    QApplication::setKeyboardInputInterval(letters_);
  }
  NoWaiting(const NoWaiting&) = delete;
  NoWaiting& operator=(const NoWaiting&) = delete;

 private:
  int doubleClick_ = QApplication::doubleClickInterval();
  int letters_ = QApplication::keyboardInputInterval();
};

int Setting(const char* name, int usual) {
  const char* const value = std::getenv(name);
  return value == nullptr ? usual : std::atoi(value);
}

TEST(RandomHands, SeeWhatTheModelHolds) {
  constexpr int kLongestWalk = 300;
  const NoWaiting noWaiting;
  const QtMessageHandler former = qInstallMessageHandler(Collect);
  std::signal(SIGABRT, Record::TellAtEnd);
  const char* const toPlay = std::getenv("QUILL_WALK_RECORD");
  const int actions = Setting("QUILL_WALK_ACTIONS", 3000);
  auto seed = static_cast<std::uint32_t>(Setting("QUILL_WALK_SEED", 1));
  for (int done = 0; done < actions; ++seed) {
    Walk walk(seed, toPlay);
    for (int i = 0; i < kLongestWalk && done < actions && !walk.Ended(); ++i, ++done) {
      try {
        walk.Step();
      } catch (const Record::Ended&) {
        done = actions;
      }
      if (i % 50 == 49) walk.ExpectCopy();
      if (!HasFailure()) continue;
      qInstallMessageHandler(former);
      FAIL() << "seed " << seed << ", action " << i << "; " << walk.LastLines();
    }
  }
  qInstallMessageHandler(former);
}

}  // namespace
}  // namespace quill::test
