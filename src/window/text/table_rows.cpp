#include "window/text/table_rows.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "window/shared/lengths.h"
#include "window/text/paragraph_decoration.h"
#include "window/text/text_styles.h"

namespace quill {
namespace {

constexpr int kMostParagraphs = 256;
constexpr std::size_t kMostCells = 64;
constexpr double kUsualWidth = 600;  // of a row whose file tells nothing
const CellLine kUsualLine{1, RGB(0xC8, 0xC8, 0xC8)};

bool IsInTable(const QTextBlock& block) {
  return block.isValid() && quill::IsInTable(block.blockFormat());
}

CellLine LineOf(const rtf::Border& border) {
  constexpr Twips kUsualTwips = 15;
  if (border.kind == rtf::Border::kUntold) return kUsualLine;
  if (border.kind == rtf::Border::kNone) return {};
  const Twips width = border.width > 0 ? border.width : kUsualTwips;
  return {std::clamp(width / kTwipsInPixel, 0.5, 6.0), border.colour};
}

CellLook LookOf(const rtf::RowDefinition::Cell& cell) {
  const rtf::Borders& borders = cell.borders;
  return {LineOf(borders.top),   LineOf(borders.left), LineOf(borders.bottom),
          LineOf(borders.right), cell.shading,         cell.joinsAbove};
}

// Gives the text its columns: merged cells are one, and cells that the file does not define are as
// wide as the last that it does.
class PlanMaker {
 public:
  explicit PlanMaker(const rtf::RowDefinition& row) {
    plan_.left = row.left / kTwipsInPixel;
    plan_.alignment = row.alignment;
    plan_.rightToLeft = row.rightToLeft;
    for (const rtf::RowDefinition::Cell& cell : row.cells) Add(cell);
  }

  // Puts parts into the columns of their cells.
  void Place(std::vector<CellPart>& parts) {
    int begin = 0;
    for (CellPart& part : parts) {
      const std::size_t cell = part.column;
      part.column = ColumnOf(cell);
      const bool joins = cell > 0 && ColumnOf(cell - 1) == part.column;
      part.hasRoom = !joins || !part.endsCell || part.end - begin > 1;
      begin = part.end;
    }
  }
  RowPlan Take() { return std::move(plan_); }

 private:
  std::size_t ColumnOf(std::size_t cell) {
    while (columns_.size() <= std::min(cell, kMostCells - 1)) AddUsual();
    return columns_[std::min(cell, columns_.size() - 1)];
  }
  void Add(const rtf::RowDefinition::Cell& cell) {
    const double right = cell.edge / kTwipsInPixel;
    if (cell.joinsBefore && !plan_.columns.empty()) {
      plan_.columns.back().right = right;
      plan_.columns.back().look.right = LineOf(cell.borders.right);
    } else {
      plan_.columns.push_back({right, LookOf(cell)});
    }
    columns_.push_back(plan_.columns.size() - 1);
  }
  void AddUsual() {
    const std::size_t count = plan_.columns.size();
    const double last = count == 0 ? plan_.left : plan_.columns.back().right;
    const double before = count < 2 ? plan_.left : plan_.columns[count - 2].right;
    const double width = count == 0 ? kUsualWidth : last - before;
    CellLook look = count == 0 ? LookOf({}) : plan_.columns.back().look;
    plan_.columns.push_back({last + width, look});
    columns_.push_back(count);
  }

  RowPlan plan_;
  std::vector<std::size_t> columns_;  // of the cells
};

}  // namespace

TableRows::TableRows(const Document& document, const PositionMap& positions)
    : document_(document), positions_(positions) {}

TableRow TableRows::Tell(const QTextBlock& paragraph) {
  const Paragraphs paragraphs = ParagraphsOf(paragraph);
  const QTextBlock behind = paragraphs.last.next();
  PlanMaker plan(DefinitionBefore(paragraphs.last.position() + paragraphs.last.length() - 1));
  TableRow row{paragraphs.first, {}, {}};
  std::size_t cell = paragraphs.cellsBefore;
  for (QTextBlock block = row.first; block != behind; block = block.next()) {
    row.paragraphs.push_back(PartsOf(block, cell));
    cell += CellEndsIn(block).size();
    plan.Place(row.paragraphs.back());
  }
  row.plan = plan.Take();
  return row;
}

std::vector<CellPart> TableRows::PartsOf(const QTextBlock& paragraph, std::size_t cell) const {
  const int place = paragraph.position();
  std::vector<CellPart> parts;
  int begin = 0;
  for (const int end : CellEndsIn(paragraph)) {
    // The style is that of the character which ends the part.
    parts.push_back({end, cell++, true, true, StyleOf(place + begin, place + end - 1)});
    begin = end;
  }
  const int end = paragraph.length() - 1;
  if (begin < end || parts.empty() || !EndsRow(paragraph)) {
    parts.push_back({end, cell, false, true, StyleOf(place + begin, place + end)});
  }
  return parts;
}

TableRows::Paragraphs TableRows::ParagraphsOf(const QTextBlock& paragraph) const {
  Paragraphs row{paragraph, paragraph, 0};
  int count = 1;
  for (QTextBlock block = paragraph.previous();
       count <= kMostParagraphs && IsInTable(block) && !EndsRow(block); block = block.previous()) {
    row.first = block;
    row.cellsBefore += CellEndsIn(block).size();
    ++count;
  }
  for (; count <= kMostParagraphs && IsInTable(row.last.next()) && !EndsRow(row.last); ++count) {
    row.last = row.last.next();
  }
  if (HoldsNestedCells(row)) return {paragraph, paragraph, 0};
  if (count > kMostParagraphs) return {paragraph, paragraph, row.cellsBefore};
  row.cellsBefore = 0;
  return row;
}

bool TableRows::HoldsNestedCells(const Paragraphs& row) const {
  const QTextBlock behind = row.last.next();
  for (QTextBlock block = row.first; block != behind; block = block.next()) {
    if (HoldsNestedCell(block)) return true;
  }
  return false;
}

std::vector<int> TableRows::CellEndsIn(const QTextBlock& paragraph) const {
  const QString text = paragraph.text();
  std::vector<int> ends;
  for (qsizetype at = text.indexOf(u'\t'); at >= 0; at = text.indexOf(u'\t', at + 1)) {
    const int place = paragraph.position() + static_cast<int>(at);
    if (KindAt(place) == Origin::kCellEnd) ends.push_back(static_cast<int>(at) + 1);
  }
  return ends;
}

bool TableRows::HoldsNestedCell(const QTextBlock& paragraph) const {
  const std::vector<int> ends = CellEndsIn(paragraph);
  return std::any_of(ends.begin(), ends.end(), [&](int end) {
    const Position at = positions_.ToModel(paragraph.position() + end - 1);
    return document_.BytesOf(at).starts_with("\\nest");
  });
}

bool TableRows::EndsRow(const QTextBlock& paragraph) const {
  return KindAt(paragraph.position() + paragraph.length() - 1) == Origin::kRowEnd;
}

Origin::Kind TableRows::KindAt(int place) const {
  const Position at = positions_.ToModel(place);
  if (at >= document_.Length()) return Origin::kPlain;
  return document_.Origins()[static_cast<std::size_t>(at)].kind;
}

QTextBlockFormat TableRows::StyleOf(int begin, int end) const {
  if (document_.Length() == 0) return {};
  const Position last = std::min(positions_.ToModel(end), document_.Length() - 1);
  return WithLabelRoom(ParagraphStyle(document_.FormatAt(last).paragraph), document_,
                       positions_.ToModel(begin));
}

rtf::RowDefinition TableRows::DefinitionBefore(int place) {
  if (document_.Length() == 0) return {};
  const Source& source = document_.GetSource();
  if (!definitions_) definitions_ = rtf::FindRowDefinitions(source.bytes);
  const auto at =
      static_cast<std::size_t>(std::min(positions_.ToModel(place), document_.Length() - 1));
  const auto behind =
      std::upper_bound(definitions_->begin(), definitions_->end(), document_.Origins()[at].begin);
  if (behind == definitions_->begin()) return {};
  return rtf::RowDefinitionAt(source, *std::prev(behind));
}

}  // namespace quill
