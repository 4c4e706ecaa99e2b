// The dialogs of the real window, answered by keys.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

#include "hands/dialog_hands.h"
#include "hands/shown_program.h"
#include "support/fakes.h"
#include "window/window_dialogs.h"

namespace quill::test {
namespace {

using Buttons = MessageBox::Buttons;
using Icon = MessageBox::Icon;

class MessageBoxTest : public testing::Test {
 protected:
  MessageBoxTest() { dialogs.Attach(window, form); }

  // Shows a box, lets `look` see it, then presses the keys in turn.
  Button Answer(Buttons buttons, Icon icon, std::initializer_list<Qt::Key> keys,
                const std::function<void(QMessageBox&)>& look = {}) {
    QTimer::singleShot(0, &window, [&] {
      auto* const box = qobject_cast<QMessageBox*>(DialogHands::Open());
      ASSERT_NE(box, nullptr);
      if (look) look(*box);
      for (const Qt::Key key : keys) QTest::keyClick(box, key);
    });
    return dialogs.MsgBox({U"<b>Mark</b> this?", U"Confirm", icon, buttons});
  }

  QWidget window;
  MemoryDisk disk;
  ScriptedDialogs unused;
  Form1 form{unused, disk};
  WindowDialogs dialogs;
};

TEST_F(MessageBoxTest, ShowsWhatIsGiven) {
  Answer(Buttons::kYesNo, Icon::kExclamation, {Qt::Key_Return}, [](QMessageBox& box) {
    EXPECT_EQ(box.text(), "<b>Mark</b> this?");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Confirm");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
  });
  Answer(Buttons::kOk, Icon::kCritical, {Qt::Key_Return},
         [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Critical); });
  Answer(Buttons::kOkCancel, Icon::kQuestion, {Qt::Key_Return},
         [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Question); });
}

TEST_F(MessageBoxTest, Answers) {
  struct Row {
    Buttons buttons;
    Qt::Key key;
    Button pressed;
  };
  for (const Row& row : {Row{Buttons::kOk, Qt::Key_Return, Button::kOk},
                         Row{Buttons::kOk, Qt::Key_Escape, Button::kOk},
                         Row{Buttons::kOkCancel, Qt::Key_Return, Button::kOk},
                         Row{Buttons::kOkCancel, Qt::Key_Escape, Button::kCancel},
                         Row{Buttons::kYesNo, Qt::Key_Return, Button::kYes}}) {
    EXPECT_EQ(Answer(row.buttons, Icon::kNone, {row.key}), row.pressed);
  }
}

TEST_F(MessageBoxTest, AYesNoQuestionHasNoOtherWayOut) {
  const auto look = [](QMessageBox& box) {
    box.close();
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_TRUE(box.isVisible());
    QTimer::singleShot(0, &box, [&box] { box.button(QMessageBox::No)->click(); });
  };
  EXPECT_EQ(Answer(Buttons::kYesNo, Icon::kExclamation, {Qt::Key_Escape}, look), Button::kNo);
}

TEST_F(MessageBoxTest, HasRoomForItsTitle) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
  font.setBold(true);
  QTimer::singleShot(0, &window, [&] {
    QWidget* const box = DialogHands::Open();
    ASSERT_NE(box, nullptr);
    EXPECT_GT(box->width(), QFontMetrics(font).horizontalAdvance(box->windowTitle()) + 100);
    QTest::keyClick(box, Qt::Key_Return);
  });
  dialogs.MsgBox(
      {.prompt = U"?", .title = U"A title that is longer than what the box is asked by"});
}

// The program on its real dialogs.
class DialogsTest : public testing::Test, protected ShownProgram<MemoryDisk, WindowDialogs> {
 protected:
  DialogsTest() {
    dialogs.Attach(window, form);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    disk.files["x.tbf"] = R"({\rtf1\ansi He came.\par})";
    disk.files["x.tlf"] = "t_op(1\\ 4\\ 7\\ came\\ )\r\n";
  }
  void Choose(const char* menuItem) {
    window.findChild<QAction*>(QString::fromLatin1(menuItem))->trigger();
  }
  // Called once for the dialog that opens next.
  template <class Dialog>
  void AtNext(std::function<void(Dialog&)> look) {
    QTimer::singleShot(0, &window, [look = std::move(look)] {
      auto* const dialog = qobject_cast<Dialog*>(DialogHands::Open());
      if (dialog != nullptr) return look(*dialog);
      ADD_FAILURE() << "another dialog, or none";
    });
  }
  static void EnterPath(QFileDialog& dialog, const QString& path) {
    dialog.findChild<QLineEdit*>()->setText(path);
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  }

  QTemporaryDir folder;
};

TEST_F(DialogsTest, OpensATextGivenAtTheStartWithoutADialog) {
  dialogs.ChooseNext("x.tbf");
  Choose("mnuFileOpen");
  EXPECT_EQ(form.RichTextBox1.Text(), U"He came.\n");
  EXPECT_EQ(form.TagList.ListCount(), 1);
  bool asked = false;
  AtNext<QFileDialog>([&](QFileDialog& dialog) {
    asked = true;
    dialog.reject();
  });
  Choose("mnuFileOpen");
  EXPECT_TRUE(asked) << "once only";
}

TEST_F(DialogsTest, AsksForATextAsGiven) {
  AtNext<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Load existing *.tbf-file or new *.rtf-file for tagging");
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.nameFilters(),
              QStringList({"tbf-files (*.tbf)", "rtf-files (*.rtf)", "All files (*)"}));
    EXPECT_EQ(dialog.directory(), QDir::current());
    dialog.reject();
  });
  Choose("mnuFileOpen");
  EXPECT_EQ(form.WorkState.TextBaseFile.Get(), U"");
}

TEST_F(DialogsTest, TheSaveDialogStartsBesideTheTextAndAsksBeforeItOverwrites) {
  const auto in = [&](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
  for (const char* const name : {"shown.tbf", "other.tbf"}) {
    QFile file(in(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  disk.files[in("shown.tbf").toStdString()] = disk.files["x.tbf"];
  dialogs.ChooseNext(in("shown.tbf"));
  Choose("mnuFileOpen");
  const auto save = [&](const char* name, std::function<void()> next = {}) {
    AtNext<QFileDialog>([&, name, next](QFileDialog& dialog) {
      EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder.path().toStdString());
      if (next) next();
      EnterPath(dialog, QString::fromLatin1(name));
    });
    return dialogs.ShowSave(U"Save", U"Tagged TextBaseFiles(*.tbf)|*.tbf", U"");
  };
  EXPECT_EQ(save("new"), in("new.tbf").toStdU32String()) << "with its extension";
  EXPECT_EQ(save("shown.tbf"), in("shown.tbf").toStdU32String()) << "no question";
  int questions = 0;
  const auto answer = [&](QMessageBox::StandardButton button, std::function<void()> next = {}) {
    return [&, button, next] {
      QTimer::singleShot(50, &window, [&, button, next] {
        auto* const box = qobject_cast<QMessageBox*>(DialogHands::Open());
        ASSERT_NE(box, nullptr);
        ++questions;
        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        if (next) next();
        box->button(button)->click();
      });
    };
  };
  EXPECT_EQ(save("other", answer(QMessageBox::Yes)), in("other.tbf").toStdU32String());
  const auto cancelNext = [&] {
    QTimer::singleShot(50, &window, [] {
      auto* const again = qobject_cast<QFileDialog*>(DialogHands::Open());
      ASSERT_NE(again, nullptr) << "a No leads back to the dialog";
      again->reject();
    });
  };
  EXPECT_EQ(save("other", answer(QMessageBox::No, cancelNext)), std::nullopt);
  EXPECT_EQ(questions, 2);
}

TEST_F(DialogsTest, TheFileThatTheTextCameFromIsNotTaken) {
  const auto in = [&](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
  const QString source = in("x.rtf");
  ASSERT_TRUE(QFile(source).open(QIODevice::WriteOnly));
  ASSERT_TRUE(QFile::link(source, in("link.tbf")));
  disk.files[source.toStdString()] = disk.files["x.tbf"];
  dialogs.ChooseNext(source);
  int told = 0;
  // Each name is refused, and the last one taken.
  std::deque<QString> names{in("x.rtf"), in("./x.rtf"), in("link.tbf"), in("new.tbf")};
  QTimer hands;
  QObject::connect(&hands, &QTimer::timeout, [&] {
    if (auto* const file = qobject_cast<QFileDialog*>(DialogHands::Open())) {
      if (names.empty()) return file->reject();
      const QString name = std::exchange(names.front(), {});
      names.pop_front();
      EnterPath(*file, name);
    } else if (auto* const box = qobject_cast<QMessageBox*>(DialogHands::Open())) {
      told += box->text().contains("x.rtf") && box->text().contains("never written") ? 1 : 0;
      QTest::keyClick(box, Qt::Key_Return);
    }
  });
  hands.start(5);
  Choose("mnuFileOpen");
  EXPECT_EQ(told, 3);
  EXPECT_EQ(form.RichTextBox1.FilePath(), in("new.tbf").toStdU32String());
  names = {in("x.rtf"), in("new.tbf")};
  Choose("mnuFileSave");
  EXPECT_EQ(told, 4) << "later, too";
  EXPECT_EQ(disk.files[source.toStdString()], disk.files["x.tbf"]);
}

TEST_F(DialogsTest, NoOtherActionReachesTheProgramWhileOneIsOpen) {
  dialogs.ChooseNext("x.tbf");
  Choose("mnuFileOpen");
  form.TagList.ListIndex = 0;
  form.RemoveItem.Enabled = true;
  Choose("mnuPostProcess");
  AtNext<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Input required");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the program waits for the user";
    const std::u32string text = form.RichTextBox1.Text();
    Choose("mnuPreProcess");
    Choose("mnuFileClose");
    window.close();
    auto* const view = window.findChild<QTextEdit*>("RichTextBox1");
    QTest::keyClicks(view, "x");
    QMimeData dropped;
    dropped.setText("dropped");
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, {});
    QApplication::sendEvent(view->viewport(), &drop);
    window.findChild<QPushButton*>("FindAMarker")->click();
    EXPECT_EQ(form.RichTextBox1.Text(), text);
    EXPECT_TRUE(form.PostFrame.Visible);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(program.Ended());
    EXPECT_TRUE(box.isVisible());
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  window.findChild<QPushButton*>("RemoveItem")->click();
  EXPECT_EQ(form.TagList.ListCount(), 0);
  EXPECT_NE(disk.files["x.tlf"], "") << "a closed box is Cancel";
}

TEST(Question, StandsBesideTheTextOrElseBesideTheTerm) {
  const QRect screen(0, 0, 1000, 700);
  const struct {
    const char* why;
    QRect text;
    QRect term;
    QPoint place;
  } kRows[] = {
      {"below the text", {10, 50, 901, 300}, {400, 100, 60, 20}, {360, 350}},
      {"wherever the term is", {10, 50, 901, 300}, {12, 300, 60, 20}, {360, 350}},
      {"not past the left edge", {-500, 50, 901, 300}, {12, 100, 60, 20}, {0, 350}},
      {"not past the right edge", {500, 50, 901, 300}, {880, 100, 60, 20}, {800, 350}},
      {"above a text that reaches down", {10, 200, 901, 450}, {400, 300, 60, 20}, {360, 100}},
      {"below the term in a text as high as the screen",
       {10, 30, 901, 650},
       {400, 100, 60, 20},
       {360, 180}},
      {"above it near the bottom", {10, 30, 901, 650}, {400, 600, 60, 20}, {360, 440}},
      {"close to it where it is high", {10, 30, 901, 650}, {400, 170, 60, 400}, {360, 570}},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(PlaceOfQuestion({200, 100}, row.text, row.term, screen), row.place) << row.why;
  }
}

}  // namespace
}  // namespace quill::test
