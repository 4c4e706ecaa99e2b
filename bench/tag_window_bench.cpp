// Tags on the real window: from a click until what came of it is painted, with a list as long as it
// can be.
#include <benchmark/benchmark.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTextEdit>
#include <QtTest>
#include <memory>

#include "generated_text.h"
#include "no_machine.h"
#include "rtf/reader.h"
#include "tag_lines.h"
#include "window/appearance.h"
#include "window/main_window.h"

namespace quill::bench {

class Tags {
 public:
  Tags() {
    Form().RichTextBox1.SetDocument(*rtf::Read(GeneratedText(Kind::kProse, 3'200'000)));
    Form().mnuProcess.Enabled = true;
    Form().IDFrame.Visible = false;
    program_.Click(Form().mnuPostProcess);
    for (int i = 0; i < ListBox::kMostItems; ++i) Form().TagList.AddItem(TagLine(i));
    window_ = std::make_unique<MainWindow>(program_);
    window_->show();
    Paint();
  }

  Form1& Form() { return program_.Form(); }
  void Press(const char* name) {
    QTest::mouseClick(window_->findChild<QWidget*>(QString::fromLatin1(name)), Qt::LeftButton);
    Paint();
  }
  void ClickRow(int row) {
    auto& list = *window_->findChild<QAbstractItemView*>(QStringLiteral("TagList"));
    const QModelIndex index = list.model()->index(row, 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      {10, list.visualRect(index).center().y()});
    Paint();
  }
  void ScrollListTo(int row) {
    auto& list = *window_->findChild<QAbstractItemView*>(QStringLiteral("TagList"));
    list.scrollTo(list.model()->index(row, 0), QAbstractItemView::PositionAtTop);
    Paint();
  }
  void PutCaretAt(Position at) {
    auto& view = *window_->findChild<QTextEdit*>(QStringLiteral("RichTextBox1"));
    program_.Select(at, 0);
    QTextCursor cursor(view.document());
    cursor.setPosition(static_cast<int>(at));
    view.setTextCursor(cursor);
    Paint();
  }

 private:
  static void Paint() { QApplication::processEvents(); }

  NoDialogs dialogs_;
  NoDisk disk_;
  Program program_{dialogs_, disk_};
  std::unique_ptr<MainWindow> window_;
};

// Made at the first use, and taken down while the toolkit still runs.
std::unique_ptr<Tags> shownTags;

Tags& Shown() {
  if (!shownTags) shownTags = std::make_unique<Tags>();
  return *shownTags;
}

namespace {

void Select(benchmark::State& state) {
  Tags& tags = Shown();
  int row = 0;
  for (auto _ : state) {
    state.PauseTiming();
    row = (row + 9973) % 30'000;
    tags.ScrollListTo(row);
    state.ResumeTiming();
    tags.ClickRow(row);
    if (tags.Form().TagList.ListIndex != row) return state.SkipWithError("another row");
  }
}

void Check(benchmark::State& state) {
  Tags& tags = Shown();
  int row = 0;
  for (auto _ : state) {
    state.PauseTiming();
    row = (row + 9973) % 32'000;
    tags.PutCaretAt(kSpacing * row + 2);
    state.ResumeTiming();
    tags.Press("TagChecker");
    if (tags.Form().TagList.ListIndex != row) return state.SkipWithError("another row");
  }
}

// With the rewrite of the file up to the door of the disk.
void Remove(benchmark::State& state) {
  Tags& tags = Shown();
  for (auto _ : state) {
    state.PauseTiming();
    tags.ScrollListTo(20'000);
    tags.ClickRow(20'000);
    const int before = tags.Form().TagList.ListCount();
    state.ResumeTiming();
    tags.Press("RemoveItem");
    if (tags.Form().TagList.ListCount() != before - 1) return state.SkipWithError("none removed");
  }
}

BENCHMARK(Select)->Name("TagsInWindow/Select")->Iterations(30)->Unit(benchmark::kMillisecond);
BENCHMARK(Check)->Name("TagsInWindow/Check")->Iterations(30)->Unit(benchmark::kMillisecond);
BENCHMARK(Remove)->Name("TagsInWindow/Remove")->Iterations(30)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  quill::SetLook(application);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  quill::bench::shownTags.reset();
  return 0;
}
