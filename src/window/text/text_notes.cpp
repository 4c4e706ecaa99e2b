#include "window/text/text_notes.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextLine>
#include <algorithm>
#include <limits>

#include "window/page/page_layout.h"
#include "window/shared/shown.h"

namespace quill {
namespace {

constexpr double kTickWidth = 7;
constexpr double kTickHeight = 5;
const QColor kTickColour(0x78, 0x80, 0x88);

QString KindOf(rtf::Note::Kind kind) {
  switch (kind) {
    case rtf::Note::kEndnote:
      return QStringLiteral("Endnote");
    case rtf::Note::kComment:
      return QStringLiteral("Comment");
    default:
      return QStringLiteral("Footnote");
  }
}

// Above the character in front of a gap, if that stands in the same cell.
QPointF TickAt(const QTextBlock& block, int gap) {
  const QTextLayout& layout = *block.layout();
  const InRow* const row = RowOf(block);
  const bool beginsCell = gap > 0 && row != nullptr && row->PartAt(gap - 1).end == gap;
  const QTextLine line = layout.lineForTextPosition(gap > 0 && !beginsCell ? gap - 1 : gap);
  if (!line.isValid()) return layout.position();
  return layout.position() + QPointF(line.cursorToX(gap), line.y());
}

void DrawTick(QPainter& painter, QPointF place, double scale) {
  QPainterPath tick(place - QPointF(kTickWidth / 2 * scale, 0));
  tick.lineTo(place + QPointF(kTickWidth / 2 * scale, 0));
  tick.lineTo(place + QPointF(0, kTickHeight * scale));
  painter.fillPath(tick, kTickColour);
}

}  // namespace

const TextNotes::Notes& TextNotes::All() const {
  if (!notes_) notes_ = rtf::FindNotes(document_);
  return *notes_;
}

TextNotes::Stretch TextNotes::Between(Position first, Position last) const {
  const Notes& notes = All();
  const OriginList& origins = document_.Origins();
  const auto placeOf = [&](Position at) {
    return at < document_.Length() ? origins[static_cast<std::size_t>(at)].begin
                                   : std::numeric_limits<Offset>::max();
  };
  const auto firstFrom = [&](Offset place) {
    return std::partition_point(notes.begin(), notes.end(),
                                [place](const rtf::Note& note) { return note.place < place; });
  };
  return {first > 0 ? firstFrom(placeOf(first - 1)) : notes.begin(), firstFrom(placeOf(last))};
}

QString TextNotes::TextAt(Position gap) const {
  const Stretch stretch = Between(gap, gap);
  QStringList texts;
  for (auto note = stretch.begin; note != stretch.end; ++note) texts += TextOf(*note);
  return texts.join(u'\n');
}

QString TextNotes::TextOf(const rtf::Note& note) const {
  QString head = KindOf(note.kind);
  const QString author = ToQt(rtf::AuthorOf(document_, note));
  if (!note.mark.empty()) head += u' ' + QString::fromStdString(note.mark);
  if (!author.isEmpty()) head += QStringLiteral(" by ") + author;
  return head + QStringLiteral(": ") + ToQt(rtf::TextOf(document_, note));
}

void TextNotes::Draw(QPainter& painter, const QTextBlock& block) const {
  if (All().empty()) return;
  const Position first = positions_.ToModel(block.position());
  const Position last = positions_.ToModel(block.position() + block.length() - 1);
  const Stretch stretch = Between(first, last);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  auto at = static_cast<std::size_t>(first);
  for (auto note = stretch.begin; note != stretch.end; ++note) {
    at = document_.Origins().FirstBehind(note->place, at);
    const int gap = positions_.ToWidget(static_cast<Position>(at)) - block.position();
    DrawTick(painter, TickAt(block, gap), PageLayout::Of(*block.document()).ThePage().scale);
  }
  painter.restore();
}

}  // namespace quill
