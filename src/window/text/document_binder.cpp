#include "window/text/document_binder.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <utility>

#include "rtf/symbol_font.h"
#include "text/unicode.h"
#include "window/page/page_layout.h"
#include "window/shared/appearance.h"
#include "window/shared/shown.h"
#include "window/shared/symbols.h"
#include "window/text/paragraph_decoration.h"

namespace quill {
namespace {

// Half an inch, as in word processors, in pixels.
constexpr double kTabStop = 48;

std::unique_ptr<QTextDocument> EmptyDocument(const QFont& font) {
  auto document = std::make_unique<QTextDocument>();
  document->setUndoRedoEnabled(false);
  document->setDefaultFont(font);
  document->setDocumentMargin(8);
  PageLayout::For(*document);
  QTextOption option = document->defaultTextOption();
  option.setTabStopDistance(kTabStop);
  document->setDefaultTextOption(option);
  return document;
}

// A stretch that has one style.
struct Piece {
  Range range;
  FormatId format;
  bool smallCapitals = false;
};

// Adds a stretch of small capitals and others, apart.
void AddApart(std::vector<Piece>& pieces, const Document& document, const Piece& whole) {
  const auto isSmall = [](char32_t c) { return QChar::isLower(c); };
  for (Position at = whole.range.begin; at < whole.range.end;) {
    const std::u32string_view rest = document.Text({at, whole.range.end});
    const bool small = isSmall(rest.front());
    const auto end = std::ranges::find_if(rest, [&](char32_t c) { return isSmall(c) != small; });
    const Position next = at + (end - rest.begin());
    pieces.push_back({{at, next}, whole.format, small});
    at = next;
  }
}

// Splits a range where the style changes.
std::vector<Piece> PiecesOf(const Document& document, Range range) {
  std::vector<Piece> pieces;
  const FormatNumbers& ids = document.FormatIds();
  const auto last = static_cast<std::size_t>(range.end);
  for (auto at = static_cast<std::size_t>(range.begin); at < last;) {
    const std::size_t end = ids.EndOfStretch(at, last);
    const Piece piece{{static_cast<Position>(at), static_cast<Position>(end)}, ids[at]};
    if (document.Formats()[piece.format].look.capitals == Capitals::kSmall) {
      AddApart(pieces, document, piece);
    } else {
      pieces.push_back(piece);
    }
    at = end;
  }
  return pieces;
}

QTextCharFormat CharacterStyle(TextStyles& styles, const Piece& piece) {
  return piece.smallCapitals ? styles.SmallCapital(piece.format) : styles.Character(piece.format);
}

// A symbol that a field stands for is shown by the typeface that the field names.
void ShowSymbolFields(std::u32string& shown, const Document& document, Position begin) {
  const std::string_view bytes = document.GetSource().bytes;
  auto at = static_cast<std::size_t>(begin);
  for (char32_t& c : shown) {
    const Origin& origin = document.Origins()[at++];
    if (c < 0xF020 || c > 0xF0FF || origin.IsTyped() || bytes[origin.begin] != '{') continue;
    c = ShownSymbol(c, rtf::FontOfSymbol(bytes.substr(origin.begin, origin.length)));
  }
}

}  // namespace

DocumentBinder::DocumentBinder(TextSurface& text, QWidget& container, Actions& actions)
    : DocumentBinder(text, *new DocumentView(container, text, actions), actions) {}

DocumentBinder::DocumentBinder(TextSurface& text, DocumentView& view, Actions& actions)
    : WidgetBinder(text, view, actions), text_(text), view_(view) {
  SetColours(view, BackgroundOf(text.Row()), Qt::black);
  changes_.Load();
}

void DocumentBinder::Show() {
  WidgetBinder::Show();
  const TextChanges changes = std::exchange(changes_, {});
  if (changes.loaded) {
    ShowWhole();
  } else {
    ShowChanges(changes);
  }
  if (std::exchange(selectionMoved_, false) || changes.loaded || changes.edited) {
    view_.ShowSelection();
  }
  if (!std::exchange(reveal_, false)) return;
  if (changes.edited) {
    view_.ensureCursorVisible();
  } else {
    // Also what is selected already: the user may have scrolled it away.
    view_.Reveal(text_.Selection());
  }
}

void DocumentBinder::ShowChanges(const TextChanges& changes) {
  if (!changes.edited && changes.formats.empty()) return;
  view_.KeepPlace([&] {
    if (changes.edited) ShowEdit(changes.edit);
    ShowFormats(changes.MergedFormats(text_.Length()));
  });
}

FormatId DocumentBinder::ParagraphFormat(Position position) const {
  const std::u32string& text = text_.Text();
  if (text.empty()) return 0;
  const std::size_t end = text.find(kParagraphEnd, static_cast<std::size_t>(position));
  return text_.Doc().FormatIds()[std::min(end, text.size() - 1)];
}

QTextBlockFormat DocumentBinder::StyleOf(Position paragraph) {
  return StyleWithRoom(styles_.Paragraph(ParagraphFormat(paragraph)), text_.Doc(), paragraph);
}

void DocumentBinder::ShowWhole() {
  styles_.Use(text_.Doc());
  view_.Positions().Load(text_.Text());
  std::unique_ptr<QTextDocument> document = EmptyDocument(view_.font());
  QTextCursor cursor(document.get());
  cursor.beginEditBlock();
  cursor.setBlockFormat(StyleOf(0));
  cursor.setBlockCharFormat(styles_.Character(ParagraphFormat(0)));
  Insert(cursor, {0, text_.Length()});
  cursor.endEditBlock();
  view_.Exchange(std::move(document));
}

std::u32string_view DocumentBinder::Part(Range range) const { return text_.Doc().Text(range); }

void DocumentBinder::Insert(QTextCursor& cursor, Range range) {
  for (const Piece& piece : PiecesOf(text_.Doc(), range)) {
    const FontFace& face = text_.Doc().Fonts()[text_.Doc().Formats()[piece.format].look.font];
    std::u32string shown = ShownInText(Part(piece.range), face.name);
    ShowSymbolFields(shown, text_.Doc(), piece.range.begin);
    const QTextCharFormat style = CharacterStyle(styles_, piece);
    std::size_t line = 0;
    for (;;) {
      const std::size_t end = std::min(shown.find(kParagraphEnd, line), shown.size());
      if (end > line)
        cursor.insertText(ToQt(std::u32string_view(shown).substr(line, end - line)), style);
      if (end == shown.size()) break;
      line = end + 1;
      const Position next = piece.range.begin + static_cast<Position>(line);
      cursor.insertBlock(StyleOf(next), styles_.Character(ParagraphFormat(next)));
    }
  }
}

void DocumentBinder::ShowEdit(const TextChanges::Edit& edit) {
  // The cursor first: it still counts what was shown.
  QTextCursor cursor = view_.CursorAt({edit.at, edit.at + edit.removed});
  const Range inserted{edit.at, edit.at + edit.inserted};
  view_.Positions().Replace(edit.at, edit.removed, Part(inserted));
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  Insert(cursor, inserted);
  ShowParagraphs(inserted);
  cursor.endEditBlock();
}

void DocumentBinder::ShowParagraphs(Range range) {
  QTextCursor cursor = view_.CursorAt({range.begin, range.begin});
  const QTextBlock last = view_.document()->findBlock(view_.Positions().ToWidget(range.end)).next();
  for (QTextBlock block = cursor.block(); block.isValid() && block != last; block = block.next()) {
    const QTextBlockFormat style = StyleOf(view_.Positions().ToModel(block.position()));
    if (block.blockFormat() != style) QTextCursor(block).setBlockFormat(style);
  }
}

void DocumentBinder::ShowFormats(const std::vector<Range>& ranges) {
  const PositionMap& positions = view_.Positions();
  QTextCursor cursor(view_.document());
  cursor.beginEditBlock();
  for (const Range& range : ranges) {
    for (const Piece& piece : PiecesOf(text_.Doc(), range)) {
      cursor.setPosition(positions.ToWidget(piece.range.begin));
      cursor.setPosition(positions.ToWidget(piece.range.end), QTextCursor::KeepAnchor);
      cursor.setCharFormat(CharacterStyle(styles_, piece));
    }
  }
  cursor.endEditBlock();
}

}  // namespace quill
