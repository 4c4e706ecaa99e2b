#include "window/page/paragraph.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "window/page/line_spacing.h"
#include "window/page/tab_stops.h"
#include "window/page/zoom.h"

namespace quill {
namespace {

constexpr double kMostCharactersInLine = 100;
constexpr double kLeastLineWidth = 1;

QFontMetricsF MetricsOf(const QTextCharFormat& format, const QTextDocument& shown) {
  const QFont font = format.font().resolve(shown.defaultFont());
  QPaintDevice* const device = shown.documentLayout()->paintDevice();
  return device != nullptr ? QFontMetricsF(font, device) : QFontMetricsF(font);
}

// No line is lower than a picture in it.
LineSpacing SpacingOf(const QTextBlock& block, const Page& page) {
  const LineSpacing spacing(block.blockFormat(), page.scale);
  const bool cuts = spacing.IsExact() && block.text().contains(QChar::ObjectReplacementCharacter);
  return cuts ? LineSpacing() : spacing;
}

int WholePixels(double length) { return static_cast<int>(std::lround(length)); }

int LayLines(const QTextBlock& block, const Page& page) {
  const QTextBlockFormat format = block.blockFormat();
  const LineSpacing spacing = SpacingOf(block, page);
  const bool rightToLeft = block.textDirection() == Qt::RightToLeft;
  const double left = format.leftMargin() * page.scale;
  const double width = page.width - left - format.rightMargin() * page.scale;
  QTextLayout& layout = *block.layout();
  layout.beginLayout();
  int top = 0;
  double height = 0;
  double indent = format.textIndent() * page.scale;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLeadingIncluded(true);
    line.setLineWidth(std::max(width - indent, kLeastLineWidth));
    // A typeface may want its lines closer together than they are high.
    const double natural = line.ascent() + line.descent() + line.leading();
    const double begin = top + spacing.Above(natural, line.ascent());
    line.setPosition(QPointF(left + (rightToLeft ? 0 : indent), begin));
    top += spacing.Advance(natural);
    height = spacing.IsNatural() ? begin + line.height() : top;
    indent = 0;
  }
  layout.endLayout();
  return static_cast<int>(std::ceil(height));
}

}  // namespace

Page PageIn(double width, const QTextDocument& shown, const QTextCharFormat& letters) {
  const double scale = ScaleOf(shown);
  const double margin = WholePixels(shown.documentMargin() * scale);
  const double room = std::max(width - 2 * margin, kLeastLineWidth);
  const double most =
      std::ceil(kMostCharactersInLine * MetricsOf(letters, shown).averageCharWidth());
  const double measure = std::min(room, std::max(most, kLeastLineWidth));
  return {margin + std::floor((room - measure) / 2), measure, margin, scale};
}

QTextOption OptionOf(const QTextBlock& block, Qt::Alignment alignment) {
  QTextOption option = block.document()->defaultTextOption();
  option.setTextDirection(block.textDirection());
  option.setAlignment(QStyle::visualAlignment(block.textDirection(), alignment));
  return option;
}

int BreakIntoLines(const QTextBlock& block, const Page& page) {
  QTextLayout& layout = *block.layout();
  layout.setTextOption(OptionOf(block, block.blockFormat().alignment()));
  const TabStops stops(block, page);
  stops.UseForFirst(layout);
  const int height = LayLines(block, page);
  if (!stops.MissOthers(layout)) return height;
  stops.UseForOthers(layout);
  return LayLines(block, page);
}

QTextLine LineAt(const QTextLayout& paragraph, double height) {
  for (int i = 0; i + 1 < paragraph.lineCount(); ++i) {
    if (paragraph.lineAt(i + 1).y() > height) return paragraph.lineAt(i);
  }
  return paragraph.lineAt(paragraph.lineCount() - 1);
}

int SpaceAbove(const QTextBlock& block, const Page& page) {
  const QTextBlock before = block.previous();
  if (!before.isValid()) return 0;
  return WholePixels(
      page.scale * std::max(block.blockFormat().topMargin(), before.blockFormat().bottomMargin()));
}

HeightGuess::HeightGuess(const QTextDocument& shown, const Page& page)
    : shown_(shown), page_(page) {}

int HeightGuess::Of(const QTextBlock& block) {
  const Letters& letters = LettersOf(block);
  const Margins& margins = MarginsOf(block);
  const double room = std::max(page_.width - margins.sides, letters.width);
  const double lines = std::max(std::ceil((block.length() - 1) * letters.width / room), 1.0);
  const QTextBlock before = block.previous();
  const double space = before.isValid() ? std::max(margins.above, MarginsOf(before).below) : 0;
  return WholePixels(lines * margins.spacing.Advance(letters.lineHeight) + space);
}

const HeightGuess::Letters& HeightGuess::LettersOf(const QTextBlock& block) {
  const auto [entry, isNew] = letters_.try_emplace(block.charFormatIndex());
  if (isNew) {
    const QFontMetricsF metrics = MetricsOf(block.charFormat(), shown_);
    entry->second = {std::max(metrics.averageCharWidth(), 1.0),
                     static_cast<int>(std::ceil(metrics.lineSpacing()))};
  }
  return entry->second;
}

const HeightGuess::Margins& HeightGuess::MarginsOf(const QTextBlock& block) {
  const auto [entry, isNew] = margins_.try_emplace(block.blockFormatIndex());
  if (isNew) {
    const QTextBlockFormat format = block.blockFormat();
    entry->second = {page_.scale * (format.leftMargin() + format.rightMargin()),
                     page_.scale * format.topMargin(), page_.scale * format.bottomMargin(),
                     LineSpacing(format, page_.scale)};
  }
  return entry->second;
}

}  // namespace quill
