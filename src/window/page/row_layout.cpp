#include "window/page/row_layout.h"

#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "window/shared/appearance.h"

namespace quill {
namespace {

constexpr int kInTable = QTextFormat::UserProperty + 1;
constexpr double kRowPadding = 3;  // above and below what a row holds

int WholePixels(double length) { return static_cast<int>(std::lround(length)); }

// Lays out a line that ends with a place at the latest. The toolkit can be told how many characters
// a line holds at most, but counts those as one that are seen as one.
void FillLine(QTextLine& line, int end, double width) {
  line.setLeadingIncluded(true);
  const int start = line.textStart();
  const auto reaches = [&](int characters) {
    line.setNumColumns(characters, width);
    return start + line.textLength();
  };
  int most = std::max(end - start, 1);
  if (reaches(most) <= end) return;
  int least = 1;
  while (least < most) {
    const int middle = (least + most + 1) / 2;
    if (reaches(middle) <= end) {
      least = middle;
    } else {
      most = middle - 1;
    }
  }
  reaches(least);
}

// How wide a line's text is, without the tab that ends its cell.
double TextWidth(const QTextLine& line, const CellPart& part, bool rightToLeft) {
  const int end = line.textStart() + line.textLength();
  if (!part.endsCell || end != part.end) return line.naturalTextWidth();
  const double tab = line.cursorToX(end - 1);
  return rightToLeft ? line.x() + line.width() - tab : tab - line.x();
}

// How far a line that begins where the paragraph does is to move, by its alignment.
double ShiftOf(const QTextLine& line, const CellPart& part, bool rightToLeft) {
  const Qt::Alignment alignment = part.style.alignment();
  const bool centre = alignment.testFlag(Qt::AlignHCenter);
  // Set right is absolute, and so it is the beginning where one reads from right to left.
  const bool end = alignment.testFlag(Qt::AlignRight) && !rightToLeft;
  if (!centre && !end) return 0;
  const double room = std::max(line.width() - TextWidth(line, part, rightToLeft), 0.0);
  const double shift = std::floor(centre ? room / 2 : room);
  return rightToLeft ? -shift : shift;
}

// Breaks the paragraphs of one row.
class RowBreaker {
 public:
  RowBreaker(const Page& page, RowOnPage& row)
      : page_(page), row_(row), flow_(row.columns.size(), WholePixels(kRowPadding * page.scale)) {}

  void Break(const QTextBlock& paragraph, const InRow& place) {
    layout_ = paragraph.layout();
    rightToLeft_ = paragraph.textDirection() == Qt::RightToLeft;
    layout_->setTextOption(OptionOf(paragraph, Qt::AlignLeft));
    layout_->beginLayout();
    for (const CellPart& part : place.parts) BreakPart(part, place.number);
    layout_->endLayout();
  }
  int Height() const { return flow_.Height(); }

 private:
  int Scaled(double length) const { return WholePixels(length * page_.scale); }

  void BreakPart(const CellPart& part, int paragraph) {
    if (!part.hasRoom) return BreakWithoutRoom(part);
    flow_.Begin(part.column, Scaled(part.style.topMargin()), Scaled(part.style.bottomMargin()));
    double indent = part.style.textIndent() * page_.scale;
    for (int at = -1; at < part.end; indent = 0) {
      QTextLine line = layout_->createLine();
      // An empty paragraph behind a cell's end has no line, but its place.
      if (!line.isValid()) {
        flow_.Take(part.column, lineHeight_);
        return;
      }
      PlaceLine(line, part, indent, paragraph);
      at = line.textStart() + std::max(line.textLength(), 1);
    }
  }

  // At the end of the cell, where nobody points at it.
  void BreakWithoutRoom(const CellPart& part) {
    QTextLine line = layout_->createLine();
    const ColumnPlace& column = row_.columns[part.column];
    FillLine(line, part.end, column.TextWidth());
    line.setPosition(QPointF(column.TextLeft() + column.TextWidth(), lineTop_));
  }

  void PlaceLine(QTextLine& line, const CellPart& part, double indent, int paragraph) {
    const ColumnPlace& column = row_.columns[part.column];
    const double left = part.style.leftMargin() * page_.scale;
    const double right = part.style.rightMargin() * page_.scale;
    FillLine(line, part.end, std::max(column.TextWidth() - left - right - indent, 1.0));
    // A typeface may want its lines closer together than they are high.
    lineHeight_ = static_cast<int>(std::ceil(line.ascent() + line.descent() + line.leading()));
    const double x = column.TextLeft() + left + (rightToLeft_ ? 0 : indent);
    const int top = lineTop_ = flow_.Take(part.column, lineHeight_);
    line.setPosition(QPointF(x, top));
    line.setPosition(QPointF(x + ShiftOf(line, part, rightToLeft_), top));
    row_.lines.push_back({paragraph, line.lineNumber(), part.column, static_cast<double>(top)});
  }

  const Page& page_;
  RowOnPage& row_;
  CellFlow flow_;
  QTextLayout* layout_ = nullptr;
  bool rightToLeft_ = false;
  int lineTop_ = 0;  // of the line before
  int lineHeight_ = 0;
};

// Where an input method's text stands in a paragraph, that pushes on what is behind it.
std::vector<CellPart> WithPreedit(std::vector<CellPart> parts, const QTextLayout& layout) {
  const auto length = static_cast<int>(layout.preeditAreaText().size());
  for (CellPart& part : parts) {
    const bool isLast = &part == &parts.back() && !part.endsCell;
    if (part.end > layout.preeditAreaPosition() || isLast) part.end += length;
  }
  return parts;
}

}  // namespace

void SetInTable(QTextBlockFormat& style) { style.setProperty(kInTable, true); }

bool IsInTable(const QTextBlockFormat& style) { return style.boolProperty(kInTable); }

const CellPart& InRow::PartAt(int place) const {
  const auto part = std::find_if(parts.begin(), parts.end(),
                                 [place](const CellPart& other) { return place < other.end; });
  return part != parts.end() ? *part : parts.back();
}

const InRow* RowOf(const QTextBlock& paragraph) {
  return static_cast<const InRow*>(paragraph.userData());
}

void LeaveRow(QTextBlock& paragraph) {
  if (paragraph.userData() != nullptr) paragraph.setUserData(nullptr);
}

QTextBlock FirstOfRow(const QTextBlock& paragraph) {
  const InRow* const place = RowOf(paragraph);
  if (place == nullptr) return paragraph;
  return paragraph.document()->findBlockByNumber(paragraph.blockNumber() - place->number);
}

int BreakRow(const TableRow& row, const Page& page) {
  const auto placed = std::make_shared<RowOnPage>();
  placed->columns = PlaceColumns(row.plan, page.width, page.scale);
  for (const RowPlan::Column& column : row.plan.columns) placed->looks.push_back(column.look);
  RowBreaker breaker(page, *placed);
  QTextBlock paragraph = row.first;
  int number = 0;
  for (const std::vector<CellPart>& parts : row.paragraphs) {
    auto* const place = new InRow(placed, number++, WithPreedit(parts, *paragraph.layout()));
    paragraph.setUserData(place);  // which owns it
    breaker.Break(paragraph, *place);
    paragraph = paragraph.next();
  }
  placed->paragraphs = number;
  return placed->height = breaker.Height();
}

double RoomAt(const QTextBlock& paragraph, int place, const Page& page) {
  const InRow* const inRow = RowOf(paragraph);
  if (inRow == nullptr) {
    const QTextBlockFormat style = paragraph.blockFormat();
    return page.width - (style.leftMargin() + style.rightMargin()) * page.scale;
  }
  const CellPart& part = inRow->PartAt(place);
  const double margins = part.style.leftMargin() + part.style.rightMargin();
  return inRow->row->columns[part.column].TextWidth() - margins * page.scale;
}

// --- Painting --------------------------------------------------------------------------------

void PaintShading(QPainter& painter, const RowOnPage& row, QPointF place) {
  for (std::size_t i = 0; i < row.columns.size(); ++i) {
    const ColumnPlace& column = row.columns[i];
    if (!row.looks[i].shading) continue;
    painter.fillRect(
        QRectF(place.x() + column.left, place.y(), column.right - column.left, row.height),
        ToQColor(*row.looks[i].shading));
  }
}

namespace {

// Whether a column goes on into the row below.
bool GoesOn(const ColumnPlace& column, const RowOnPage* below) {
  for (std::size_t i = 0; below != nullptr && i < below->columns.size(); ++i) {
    if (below->looks[i].joinsAbove && below->columns[i].left == column.left) return true;
  }
  return false;
}

}  // namespace

void PaintBorders(QPainter& painter, const RowOnPage& row, const RowOnPage* below, QPointF place,
                  double scale) {
  const auto thick = [scale](const CellLine& line) {
    return line.width > 0 ? std::max(std::round(line.width * scale), 1.0) : 0;
  };
  const double top = place.y();
  const double bottom = top + row.height;
  for (std::size_t i = 0; i < row.columns.size(); ++i) {
    const CellLook& look = row.looks[i];
    const double left = place.x() + row.columns[i].left;
    const double right = place.x() + row.columns[i].right;
    const auto draw = [&](const CellLine& line, QRectF where) {
      if (!where.isEmpty()) painter.fillRect(where, ToQColor(line.colour));
    };
    // Cells beside each other draw the line that they share at the same place.
    const double length = right - left + thick(look.right);
    if (!look.joinsAbove) draw(look.top, {left, top, length, thick(look.top)});
    if (!GoesOn(row.columns[i], below))
      draw(look.bottom, {left, bottom, length, thick(look.bottom)});
    draw(look.left, {left, top, thick(look.left), bottom - top});
    draw(look.right, {right, top, thick(look.right), bottom - top});
  }
}

}  // namespace quill
