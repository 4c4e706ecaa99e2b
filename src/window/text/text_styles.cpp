#include "window/text/text_styles.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "text/marks.h"
#include "window/page/row_layout.h"
#include "window/shared/appearance.h"
#include "window/shared/lengths.h"
#include "window/text/paragraph_borders.h"
#include "window/text/text_pictures.h"

namespace quill {
namespace {

// What a file may ask for; more than that makes lines that nobody can read.
constexpr int kLeastHalfPoints = 4;
constexpr int kMostHalfPoints = 400;
constexpr int kMostTwips = 7200;
constexpr Twips kMostPage = 31680;

constexpr double kSmallCapital = 0.8;  // of a letter's size

constexpr int kLeastLine = 60;  // twips
constexpr int kMostLines = 10;
constexpr int kLineInTwips = 240;  // as the spacing of lines is counted

// Deleted and hidden text: read well enough, and paler than the rest.
constexpr Colour kFaded = RGB(112, 112, 112);

double PixelsOf(int twips) { return std::clamp(twips, -kMostTwips, kMostTwips) / kTwipsInPixel; }

int ShownHalfPoints(const CharacterLook& look) {
  return std::clamp<int>(look.halfPoints, kLeastHalfPoints, kMostHalfPoints);
}

// Itself, or what the desktop's font settings put in its place. In a list of families the toolkit
// would pass over one that is not installed. To ask takes long, and many formats share a typeface.
QString Installed(const QString& family) {
  static QHash<QString, QString> known;
  QString& installed = known[family];
  if (installed.isEmpty()) {
    installed = QFontDatabase::hasFamily(family) ? family : QFontInfo(QFont(family)).family();
  }
  return installed;
}

// The families for what the text's own lacks. The toolkit takes characters that many scripts share,
// such as the ideographic full stop, from any font that has them: from one for Mongolian, say,
// between Chinese words. A Chinese family has those as they are meant.
QStringList StandIns() {
  QStringList families{Installed(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family())};
  const QStringList chinese = QFontDatabase::families(QFontDatabase::SimplifiedChinese);
  if (!chinese.isEmpty()) families += chinese.front();
  return families;
}

void SetFont(QTextCharFormat& style, const CharacterLook& look,
             const std::vector<FontFace>& fonts) {
  static const QStringList standIns = StandIns();
  QStringList families;
  if (look.font < fonts.size() && !fonts[look.font].name.empty()) {
    families += Installed(QString::fromStdString(fonts[look.font].name));
  }
  families += standIns;
  style.setFontFamilies(families);
  style.setFontPointSize(ShownHalfPoints(look) / 2.0);
}

QTextCharFormat CharacterStyle(const Format& format, const std::vector<FontFace>& fonts) {
  const CharacterLook& look = format.look;
  QTextCharFormat style;
  style.setObjectType(TextPictures::kObjectType);
  SetFont(style, look, fonts);
  style.setForeground(ToQColor(ShownColour(format)));
  style.setFontWeight(format.now.bold ? QFont::Bold : QFont::Normal);
  style.setFontUnderline(format.now.underline);
  style.setFontItalic(look.italic);
  style.setFontStrikeOut(look.struckOut || look.deleted);
  if (look.capitals == Capitals::kAll) style.setFontCapitalization(QFont::AllUppercase);
  if (look.spacing != 0) {
    style.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    style.setFontLetterSpacing(PixelsOf(look.spacing));
  }
  if (look.background >= 0) style.setBackground(ToQColor(static_cast<Colour>(look.background)));
  if (look.script != 0) {
    style.setVerticalAlignment(look.script > 0 ? QTextCharFormat::AlignSuperScript
                                               : QTextCharFormat::AlignSubScript);
  }
  if (format.now.offset != 0) {
    style.setBaselineOffset(RaisedPercent(format.now.offset, ShownHalfPoints(look)));
  }
  return style;
}

Qt::Alignment AlignmentOf(const ParagraphLook& look) {
  switch (look.alignment) {
    case Alignment::kCentre:
      return Qt::AlignHCenter;
    case Alignment::kRight:
      return Qt::AlignRight | Qt::AlignAbsolute;
    case Alignment::kJustified:
      return Qt::AlignJustify;
    default:
      return Qt::AlignLeft;  // where the paragraph begins
  }
}

void SetLineSpacing(QTextBlockFormat& style, const ParagraphLook& look) {
  const int spacing = look.lineSpacing;
  if (look.proportional) {
    if (spacing <= 0 || spacing == kLineInTwips) return;
    style.setLineHeight(
        100.0 * std::clamp(spacing, kLineInTwips / 2, kMostLines * kLineInTwips) / kLineInTwips,
        QTextBlockFormat::ProportionalHeight);
  } else if (spacing > 0) {
    style.setLineHeight(PixelsOf(spacing), QTextBlockFormat::MinimumHeight);
  } else if (spacing < 0) {
    style.setLineHeight(PixelsOf(std::max(-spacing, kLeastLine)), QTextBlockFormat::FixedHeight);
  }
}

QTextOption::TabType TypeOf(TabAlignment alignment) {
  switch (alignment) {
    case TabAlignment::kCentre:
      return QTextOption::CenterTab;
    case TabAlignment::kRight:
      return QTextOption::RightTab;
    case TabAlignment::kDecimal:
      return QTextOption::DelimiterTab;
    default:
      return QTextOption::LeftTab;
  }
}

void SetTabs(QTextBlockFormat& style, const std::vector<TabStop>& stops) {
  QList<QTextOption::Tab> tabs;
  for (const TabStop& stop : stops) {
    tabs.append(QTextOption::Tab(std::min(stop.position, kMostPage) / kTwipsInPixel,
                                 TypeOf(stop.alignment), u'.'));
  }
  if (!tabs.isEmpty()) style.setTabPositions(tabs);
}

}  // namespace

QTextBlockFormat ParagraphStyle(const ParagraphLook& look, const ParagraphFrame& frame) {
  QTextBlockFormat style;
  style.setAlignment(AlignmentOf(look));
  style.setLayoutDirection(look.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  style.setLeftMargin(std::max(0.0, PixelsOf(look.left)));
  style.setRightMargin(std::max(0.0, PixelsOf(look.right)));
  style.setTextIndent(std::max(PixelsOf(look.first), -style.leftMargin()));
  style.setTopMargin(std::max(0.0, PixelsOf(look.before)) + RoomOf(frame.borders[kTopBorder]));
  style.setBottomMargin(std::max(0.0, PixelsOf(look.after)) + RoomOf(frame.borders[kBottomBorder]));
  SetLineSpacing(style, look);
  SetTabs(style, frame.tabs);
  if (look.inTable) SetInTable(style);
  return style;
}

Colour ShownColour(const Format& format) {
  const bool faded = format.look.deleted || format.look.hidden;
  return faded && !IsMarkColour(format.now.colour) ? kFaded : format.now.colour;
}

double RaisedPercent(Twips offset, int halfPoints) {
  // A tagged term stands a point and a quarter above its line: too little to be seen at a glance.
  constexpr double kLeastPercent = 22;
  constexpr double kMostPercent = 60;
  const double percent = 10.0 * offset / halfPoints;
  return std::copysign(std::clamp(std::abs(percent), kLeastPercent, kMostPercent), percent);
}

void TextStyles::Use(const Document& document) {
  document_ = &document;
  characters_.clear();
  paragraphs_.clear();
  known_.clear();
}

void TextStyles::Learn(FormatId id) {
  if (id < known_.size() && known_[id]) return;
  if (id >= known_.size()) {
    const std::size_t size = document_->Formats().Size();
    characters_.resize(size);
    paragraphs_.resize(size);
    known_.resize(size);
  }
  const Format& format = document_->Formats()[id];
  characters_[id] = CharacterStyle(format, document_->Fonts());
  paragraphs_[id] = ParagraphStyle(
      format.paragraph, FrameOf(document_->Formats().Details()[format.paragraph.details]));
  known_[id] = true;
}

const QTextCharFormat& TextStyles::Character(FormatId id) {
  Learn(id);
  return characters_[id];
}

QTextCharFormat TextStyles::SmallCapital(FormatId id) {
  QTextCharFormat style = Character(id);
  style.setFontCapitalization(QFont::AllUppercase);
  style.setFontPointSize(style.fontPointSize() * kSmallCapital);
  // It is a part of the letter's size, and all letters of a word are raised alike.
  style.setBaselineOffset(style.baselineOffset() / kSmallCapital);
  return style;
}

const QTextBlockFormat& TextStyles::Paragraph(FormatId id) {
  Learn(id);
  return paragraphs_[id];
}

}  // namespace quill
