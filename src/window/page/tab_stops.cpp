#include "window/page/tab_stops.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace quill {
namespace {

// A number without a decimal sign ends at its stop.
void AlignNumbers(QTextOption::Tab& stop, const QString& text) {
  if (stop.type != QTextOption::DelimiterTab) return;
  if (!text.contains(stop.delimiter)) stop.delimiter = u',';
  if (!text.contains(stop.delimiter)) stop.type = QTextOption::RightTab;
}

bool StandsBefore(const QTextOption::Tab& a, const QTextOption::Tab& b) {
  return a.position < b.position;
}

// Behind the others, as far as the page goes.
void AddUsualStops(QList<QTextOption::Tab>& stops, double distance, double width) {
  const double last = stops.isEmpty() ? 0 : stops.back().position;
  for (int stop = static_cast<int>(std::floor(last / distance)) + 1; stop * distance < width;
       ++stop) {
    stops.append(QTextOption::Tab(stop * distance, QTextOption::LeftTab));
  }
}

}  // namespace

TabStops::TabStops(const QTextBlock& paragraph, const Page& page) {
  const QString text = paragraph.text();
  lastTab_ = static_cast<int>(text.lastIndexOf(u'\t'));
  if (lastTab_ < 0) return;
  const QTextBlockFormat style = paragraph.blockFormat();
  const bool rightToLeft = paragraph.textDirection() == Qt::RightToLeft;
  begin_ = rightToLeft ? style.rightMargin() : style.leftMargin();
  indent_ = style.textIndent();
  const double width = page.width / page.scale;
  stops_ = style.tabPositions();
  for (QTextOption::Tab& stop : stops_) {
    AlignNumbers(stop, text);
    // What is to end beyond the page ends with the line.
    const double most = std::floor(width - style.rightMargin());
    if (stop.type == QTextOption::RightTab) stop.position = std::min(stop.position, most);
  }
  // Where the first line hangs out, a tab in it goes to where the others begin.
  if (indent_ < 0) {
    const QTextOption::Tab others(begin_, QTextOption::LeftTab);
    stops_.insert(std::ranges::upper_bound(stops_, others, StandsBefore), others);
  }
  const QTextOption usual = paragraph.document()->defaultTextOption();
  AddUsualStops(stops_, usual.tabStopDistance(), width);
}

void TabStops::UseForFirst(QTextLayout& layout) const { Use(layout, begin_ + indent_); }

bool TabStops::MissOthers(const QTextLayout& layout) const {
  return indent_ != 0 && layout.lineCount() > 1 && lastTab_ >= layout.lineAt(1).textStart();
}

void TabStops::UseForOthers(QTextLayout& layout) const {
  Use(layout, begin_);
  if (indent_ >= 0) return;
  QTextOption option = layout.textOption();
  QList<QTextOption::Tab> stops = option.tabs();
  const QTextOption::Tab others(-indent_, QTextOption::LeftTab);
  stops.erase(stops.begin(), std::ranges::upper_bound(stops, others, StandsBefore));
  stops.prepend(others);
  option.setTabs(stops);
  layout.setTextOption(option);
}

void TabStops::Use(QTextLayout& layout, double begin) const {
  if (stops_.isEmpty()) return;
  QList<QTextOption::Tab> stops = stops_;
  for (QTextOption::Tab& stop : stops) stop.position -= begin;
  QTextOption option = layout.textOption();
  option.setTabs(stops);
  layout.setTextOption(option);
}

}  // namespace quill
