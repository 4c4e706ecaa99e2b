// Tables: where columns, cells and their lines stand, and how the user moves in them.
#include <QTextBlock>
#include <QtTest>

#include "shown_window.h"
#include "user.h"
#include "window/page/table_row.h"

namespace quill {

void PrintTo(const ColumnPlace& place, std::ostream* out) {
  *out << place.left << " to " << place.right << ", gap " << place.gap;
}

}  // namespace quill

namespace quill::test {
namespace {

RowPlan Plan(double left, std::vector<double> rights, Alignment alignment = Alignment::kLeft) {
  RowPlan plan{left, {}, alignment};
  for (const double right : rights) plan.columns.push_back({right, {}});
  return plan;
}

TEST(TableRow, ColumnsFitThePage) {
  const struct {
    RowPlan plan;
    double width;
    double scale;
    std::vector<ColumnPlace> expected;
  } kCases[] = {
      {Plan(0, {100, 300}), 600, 1, {{0, 100, 7}, {100, 300, 7}}},
      {Plan(0, {100, 300}), 600, 2, {{0, 200, 14}, {200, 600, 14}}},
      {Plan(0, {100, 300}), 150, 1, {{0, 50, 7}, {50, 150, 7}}},
      {Plan(-7, {93, 593}), 600, 1, {{-7, 93, 7}, {93, 593, 7}}},
      {Plan(-50, {100}), 600, 1, {{-7, 143, 7}}},
      {Plan(500, {700}), 600, 1, {{400, 600, 7}}},
      {Plan(0, {0, 0}), 600, 1, {{0, 12, 2}, {12, 24, 2}}},
      {Plan(0, {100, 300}, Alignment::kCentre), 600, 1, {{150, 250, 7}, {250, 450, 7}}},
      {Plan(0, {100, 300}, Alignment::kRight), 600, 1, {{300, 400, 7}, {400, 600, 7}}},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(PlaceColumns(test.plan, test.width, test.scale), test.expected);
  }
  RowPlan mirrored = Plan(0, {100, 300});
  mirrored.rightToLeft = true;
  EXPECT_EQ(PlaceColumns(mirrored, 600, 1),
            (std::vector<ColumnPlace>{{500, 600, 7}, {300, 500, 7}}));
}

TEST(TableRow, LinesAreFoundInTheirColumn) {
  CellFlow flow(2, 3);
  flow.Begin(0, 10, 10);
  EXPECT_EQ(flow.Take(0, 20), 3) << "no space at the edge of a cell";
  EXPECT_EQ(flow.Take(0, 20), 23);
  flow.Begin(1, 0, 5);
  EXPECT_EQ(flow.Take(1, 20), 3);
  flow.Begin(1, 8, 0);
  EXPECT_EQ(flow.Take(1, 30), 31);
  EXPECT_EQ(flow.Height(), 64);

  const std::vector<ColumnPlace> columns{{0, 100, 7}, {100, 300, 7}};
  const std::vector<CellTextLine> lines{{0, 0, 0, 3}, {0, 1, 0, 23}, {0, 2, 1, 3}, {1, 0, 1, 31}};
  const struct {
    double x, y;
    std::size_t line;
  } kHits[] = {{50, 0, 0},  {50, 22, 0},  {50, 23, 1},  {50, 900, 1}, {-9, 9, 0},
               {150, 0, 2}, {150, 30, 2}, {150, 31, 3}, {999, 50, 3}};
  for (const auto& hit : kHits) EXPECT_EQ(LineNear(lines, columns, hit.x, hit.y), hit.line);
  EXPECT_EQ(NextInColumn(lines, 0, 0, true), 1U);
  EXPECT_EQ(NextInColumn(lines, 0, 1, true), std::nullopt);
  EXPECT_EQ(NextInColumn(lines, 1, 0, false), 2U);
  EXPECT_EQ(NextInColumn(lines, 0, 2, false), std::nullopt);
}

class TableTest : public WindowTest {
 protected:
  // A click beside each character finds it again; after a row's last cell, that cell's end. An
  // accent is one character with its letter, and a merged cell has no place of its own.
  void ExpectHits() {
    const Document& document = form.RichTextBox1.Doc();
    const std::u32string& text = document.Text();
    for (Position at = 1; at < document.Length(); ++at) {
      const bool endsRow = document.Origins()[static_cast<std::size_t>(at)].kind == Origin::kRowEnd;
      const auto place = static_cast<std::size_t>(at);
      if (text[place] == U'\u0301' || text.substr(place - 1, 2) == U"\t\t") continue;
      const int hit = View().cursorForPosition(CaretAt(at).center()).position();
      EXPECT_EQ(hit, endsRow ? at - 1 : at) << at;
    }
  }
  void ZoomIn(int steps) {
    for (int i = 0; i < steps; ++i) QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    QApplication::processEvents();
  }
};

// A row of cells of one paragraph, one of cells with several, with an e of two characters, and one
// from right to left; in the last one cells are merged.
constexpr const char* kTable =
    R"(one\par\trowd\cellx1500\cellx4500\intbl a b c d e f g h i j k l\cell\qr e\u769?e\u769?\cell\row )"
    R"(\pard\intbl p\par q\cell\qc x\par y\par zz\cell\row )"
    R"(\trowd\rtlrow\cellx1500\cellx4500\pard\intbl r\cell s\cell\row )"
    R"(\trowd\clmgf\cellx1500\clmrg\cellx3000\clvmrg\cellx4500\pard\intbl m\cell\cell n\cell\row\pard END)";

TEST_F(TableTest, CellsStandBesideEachOther) {
  OpenText(kTable);
  const std::u32string& text = form.RichTextBox1.Text();
  const auto at = [&](char32_t c) { return static_cast<Position>(text.rfind(c)); };
  const Position a = 4;
  const Position e = 28;
  ASSERT_EQ(text.substr(static_cast<std::size_t>(e), 4), U"e\u0301e\u0301");
  for (const int scale : {1, 2}) {
    SCOPED_TRACE(scale);
    if (scale == 2) ZoomIn(5);
    EXPECT_EQ(ThePage().scale, scale);
    EXPECT_EQ(CaretOnPage(a), 7 * scale);
    EXPECT_EQ(CaretAt(a).top(), CaretAt(e).top());
    EXPECT_GT(CaretAt(at(U'l')).top(), CaretAt(a).top()) << "wrapped in its column";
    EXPECT_LT(CaretOnPage(at(U'l')), 100 * scale);
    EXPECT_NEAR(CaretOnPage(e + 4), 293 * scale, 2) << "set right";
    EXPECT_EQ(CaretAt(at(U'p')).top(), CaretAt(at(U'x')).top());
    EXPECT_EQ(CaretAt(at(U'q')).top(), CaretAt(at(U'y')).top());
    EXPECT_NEAR(CaretOnPage(at(U'z')), 200 * scale, 2) << "in the middle";
    EXPECT_EQ(CaretOnPage(at(U's')), static_cast<int>(ThePage().width) - 293 * scale);
    EXPECT_EQ(CaretOnPage(at(U'm')), 7 * scale);
    EXPECT_EQ(CaretOnPage(at(U'n')), 207 * scale);
    EXPECT_EQ(CaretOnPage(text.size() - 3), 0) << "behind the table";
    ExpectHits();
  }
}

TEST_F(TableTest, UpAndDownGoAsTheEyeDoes) {
  OpenText(kTable);
  const std::u32string& text = form.RichTextBox1.Text();
  const auto at = [&](char32_t c) { return static_cast<Position>(text.rfind(c)); };
  const auto goes = [&](Qt::Key key, Position to) {
    Key(key);
    EXPECT_EQ(form.RichTextBox1.SelStart, to);
  };
  ClickAt(0);
  goes(Qt::Key_Down, 4);
  Key(Qt::Key_End);
  EXPECT_EQ(CaretAt(form.RichTextBox1.SelStart).top(), CaretAt(4).top());
  ClickAt(at(U'p'));
  goes(Qt::Key_Down, at(U'q'));
  goes(Qt::Key_Down, at(U's'));
  goes(Qt::Key_Down, at(U'm'));
  Key(Qt::Key_Down);
  EXPECT_EQ(CaretAt(form.RichTextBox1.SelStart).top(), CaretAt(at(U'E')).top());
  goes(Qt::Key_Up, at(U'm'));
  ClickAt(at(U'x'));
  goes(Qt::Key_Down, at(U'y'));
  goes(Qt::Key_Down, at(U'z'));
  Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"y\nz");
}

TEST_F(TableTest, CellsAreEdited) {
  OpenText(kTable);
  const std::u32string before = form.RichTextBox1.Text();
  const auto x = static_cast<Position>(before.rfind(U'x'));
  ClickAt(x);
  Keys("w");
  Key(Qt::Key_Return);
  EXPECT_EQ(CaretAt(x).top(), CaretAt(x - 4).top());
  EXPECT_GT(CaretAt(x + 2).top(), CaretAt(x).top());
  ExpectHits();
  ExpectShown(window, form);
  QInputMethodEvent preedit(QStringLiteral("wwwww"), {});
  QApplication::sendEvent(&View(), &preedit);
  EXPECT_EQ(CaretAt(x).top(), CaretAt(x - 4).top());
  QInputMethodEvent none;
  QApplication::sendEvent(&View(), &none);
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form.RichTextBox1.Text(), before);
  ExpectHits();
}

// As hostile as files are: many cells, a long one, a table that never ends, one without definition.
TEST_F(TableTest, NoRowTakesLong) {
  std::string cells;
  std::string edges;
  std::string paragraphs;
  for (int i = 1; i <= 100; ++i) {
    edges += "\\cellx" + std::to_string(i * 90);
    cells += "c\\cell ";
  }
  for (int i = 0; i < 20'000; ++i) paragraphs += "\\intbl p\\par ";
  const struct {
    const char* name;
    std::string body;
  } kCases[] = {
      {"cells", "\\trowd" + edges + "\\intbl " + cells + "\\row\\pard end"},
      {"long", "\\trowd\\cellx2000\\cellx4000\\intbl " + std::string(100'000, 'n') + " " +
                   std::string(100'000, 'n') + "\\cell b\\cell\\row\\pard end"},
      {"endless", paragraphs},
      {"nested",
       "\\trowd\\cellx4000\\intbl a\\par\\itap2 b\\nestcell{\\*\\nesttableprops\\trowd"
       "\\cellx900\\nestrow}\\itap1\\cell\\row\\pard end"},
      {"undefined", "\\intbl a\\cell b\\cell c\\row\\pard a\\cell\\row end"},
  };
  for (const auto& test : kCases) {
    SCOPED_TRACE(test.name);
    QElapsedTimer clock;
    clock.start();
    OpenText(test.body);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown}) {
      QTest::keyClick(&View(), key);
    }
    QTest::keyClick(&View(), Qt::Key_End, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_LT(CaretAt(form.RichTextBox1.Length()).bottom(), View().viewport()->height());
    EXPECT_LT(clock.elapsed(), 5000);
  }
}

}  // namespace
}  // namespace quill::test
