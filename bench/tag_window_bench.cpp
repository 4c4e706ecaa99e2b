// Tags on the real window, with the longest possible list.
#include <QAbstractItemView>
#include <QTextEdit>
#include <QtTest>
#include <memory>

#include "generated_text.h"
#include "rtf/reader.h"
#include "tag_lines.h"
#include "window_bench.h"

namespace quill::bench {

class Tags : public ShownProgram {
 public:
  Tags() {
    Form().RichTextBox1.SetDocument(*rtf::Read(GeneratedText(Kind::kProse, 3'200'000)));
    Form().mnuProcess.Enabled = true;
    TheProgram().Click(Form().mnuPostProcess);
    for (int i = 0; i < ListBox::kMostItems; ++i) Form().TagList.AddItem(TagLine(i));
    ShowWindow();
  }

  void ClickRow(int row) {
    auto& list = Find<QAbstractItemView>("TagList");
    const QModelIndex index = list.model()->index(row, 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      {10, list.visualRect(index).center().y()});
  }
  void ScrollListTo(int row) {
    auto& list = Find<QAbstractItemView>("TagList");
    list.scrollTo(list.model()->index(row, 0), QAbstractItemView::PositionAtTop);
  }
  void PutCaretAt(Position at) {
    auto& view = Find<QTextEdit>("RichTextBox1");
    TheProgram().Select(at, 0);
    QTextCursor cursor(view.document());
    cursor.setPosition(static_cast<int>(at));
    view.setTextCursor(cursor);
  }
};

// Created at first use, and destroyed while the toolkit still runs.
std::unique_ptr<Tags> shownTags;

Tags& Shown() {
  if (!shownTags) shownTags = std::make_unique<Tags>();
  return *shownTags;
}

namespace {

void Select(benchmark::State& state) {
  Tags& tags = Shown();
  int row = 0;
  const auto scroll = [&] {
    row = (row + 9973) % 30'000;
    tags.ScrollListTo(row);
  };
  FromRestToRest(state, scroll, [&] { tags.ClickRow(row); });
  if (tags.Form().TagList.ListIndex != row) state.SkipWithError("another row");
}

void Check(benchmark::State& state) {
  Tags& tags = Shown();
  int row = 0;
  const auto go = [&] {
    row = (row + 9973) % 32'000;
    tags.PutCaretAt(kSpacing * row + 2);
  };
  FromRestToRest(state, go, [&] { tags.Press("TagChecker"); });
  if (tags.Form().TagList.ListIndex != row) state.SkipWithError("another row");
}

// Includes rewriting the file, except for the disk itself.
void Remove(benchmark::State& state) {
  Tags& tags = Shown();
  const int before = tags.Form().TagList.ListCount();
  const auto select = [&] {
    tags.ScrollListTo(20'000);
    tags.ClickRow(20'000);
  };
  FromRestToRest(state, select, [&] { tags.Press("RemoveItem"); });
  if (tags.Form().TagList.ListCount() >= before) state.SkipWithError("none removed");
}

void Times(benchmark::internal::Benchmark* benchmark) {
  benchmark->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(Select)->Name("TagsInWindow/Select")->Apply(Times);
BENCHMARK(Check)->Name("TagsInWindow/Check")->Apply(Times);
BENCHMARK(Remove)->Name("TagsInWindow/Remove")->Apply(Times);

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) {
  return quill::bench::RunWindowBenchmarks(argc, argv, [] { quill::bench::shownTags.reset(); });
}
