#include "workbench/text_surface.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "rtf/reader.h"
#include "rtf/writer.h"
#include "text/unicode.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// The value of an attribute over a range; nothing if it varies.
template <class T>
std::optional<T> Common(const Document& document, Range range, T Attributes::*attribute) {
  const FormatNumbers& ids = document.FormatIds();
  const auto end = static_cast<std::size_t>(range.end);
  const T value = document.At(range.begin).*attribute;
  for (auto at = static_cast<std::size_t>(range.begin); at < end; at = ids.EndOfStretch(at, end)) {
    if (document.Formats()[ids[at]].now.*attribute != value) return std::nullopt;
  }
  return value;
}

template <class T>
std::optional<T> SelectionValue(const TextSurface& surface, T Attributes::*attribute) {
  if (surface.Selection().Length() == 0) return surface.TypingAttributes().*attribute;
  return Common(surface.Doc(), surface.Selection(), attribute);
}

std::size_t HashOf(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }

AttributeChange AllOf(const Attributes& attributes) {
  return {attributes.colour, attributes.bold, attributes.underline, attributes.offset};
}

}  // namespace

TextSurface::TextSurface(Form1& form, std::string_view name)
    : Control(form, name), document_(rtf::Blank()) {}

std::u32string TextSurface::SelText() const { return std::u32string(document_.Text(selection_)); }

void TextSurface::WriteSelStart(Position start) {
  remembered_ = {};
  const Position at = std::clamp<Position>(start, 0, Length());
  Select({at, at});
}

void TextSurface::WriteSelLength(Position length) {
  remembered_ = {};
  const Position room = Length() - selection_.begin;
  Select({selection_.begin, selection_.begin + std::clamp<Position>(length, 0, room)});
}

void TextSurface::SelectSpan(double start, double end) {
  // Longer than any text, and a cast from double is still exact.
  constexpr double kFar = 1e15;
  const double from = std::clamp(start, -kFar, kFar);
  const double first = std::round(from);
  const double length = std::round(std::clamp(end, -kFar, kFar) - from) + 1;
  SelStart = static_cast<Position>(first) - 1;
  SelLength = first < 1 ? 0 : static_cast<Position>(length);
}

void TextSurface::ClearUnderlines() {
  SelStart = 1;
  SelLength = Length();
  SelUnderline = false;
  SelStart = 0;
}

void TextSurface::Select(Range range) {
  if (range == selection_) return;
  selection_ = range;
  Form().TheWatcher().SelectionChanged();
}

std::optional<Colour> TextSurface::ReadSelColor() const {
  return SelectionValue(*this, &Attributes::colour);
}
std::optional<bool> TextSurface::ReadSelBold() const {
  return SelectionValue(*this, &Attributes::bold);
}
std::optional<bool> TextSurface::ReadSelUnderline() const {
  return SelectionValue(*this, &Attributes::underline);
}
std::optional<Twips> TextSurface::ReadSelCharOffset() const {
  return SelectionValue(*this, &Attributes::offset);
}

void TextSurface::WriteSelColor(Colour colour) { Write({.colour = colour}); }
void TextSurface::WriteSelBold(bool bold) { Write({.bold = bold}); }
void TextSurface::WriteSelUnderline(bool underline) { Write({.underline = underline}); }
void TextSurface::WriteSelCharOffset(Twips offset) { Write({.offset = offset}); }

void TextSurface::Write(const AttributeChange& change) {
  if (selection_.Length() == 0) {
    Merge(remembered_, change);
  } else {
    Format({selection_}, change);
  }
}

void TextSurface::Format(const std::vector<Range>& ranges, const AttributeChange& change) {
  for (const Range& changed : document_.Apply(ranges, change)) {
    Form().TheWatcher().FormatChanged(changed);
  }
}

std::optional<Twips> TextSurface::CharOffset(Range range) const {
  return Common(document_, range, &Attributes::offset);
}

Attributes TextSurface::TypingAttributes() const {
  if (selection_.Length() > 0) return document_.At(selection_.begin);
  if (Length() == 0) return Changed({}, remembered_);
  return Changed(document_.At(std::max<Position>(selection_.begin - 1, 0)), remembered_);
}

Position TextSurface::FindColour(Position from, Colour colour) const {
  return document_.FindColour({std::min(from, Length()), Length()}, colour);
}

Position TextSurface::FindOtherColour(Position from, Colour colour) const {
  return document_.FindOtherColour({std::min(from, Length()), Length()}, colour);
}

void TextSurface::LoadFile(const std::u32string& path) {
  std::string bytes = Form().TheDisk().Read(EncodePath(path));
  const std::size_t content = HashOf(bytes);
  std::optional<Document> read = rtf::Read(std::move(bytes));
  if (!read) throw StatementFailed("the file is no text: " + EncodePath(path));
  SetDocument(std::move(*read));
  filePath_ = path;
  sourcePath_ = path;
  fileContent_ = content;
}

void TextSurface::SaveFile(const std::u32string& path) {
  const std::string name = EncodePath(path);
  const std::string bytes = rtf::Write(document_);
  if (IsChangedByOthers(name, bytes)) {
    Form().TheDisk().ReplaceKeepingOld(name, bytes);
  } else {
    Form().TheDisk().Replace(name, bytes);
  }
  filePath_ = path;
  fileContent_ = HashOf(bytes);
  savedChanges_ = document_.Changes();
}

// Compares contents: a change can leave the time and size of a file as they were.
bool TextSurface::IsChangedByOthers(const std::string& path, std::string_view bytes) const {
  Disk& disk = Form().TheDisk();
  if (!disk.IsOneFile(path, EncodePath(filePath_))) return false;
  const std::string there = disk.Read(path);
  return HashOf(there) != fileContent_ && there != bytes;
}

void TextSurface::Reveal() { Form().TheWatcher().RevealAsked(true); }

void TextSurface::LeaveView() { Form().TheWatcher().RevealAsked(false); }

void TextSurface::SetDocument(Document document) {
  Form().TheWatcher().TextLeaves();
  document_ = std::move(document);
  savedChanges_ = document_.Changes();
  history_.Clear();
  remembered_ = {};
  selection_ = {};
  Form().TheWatcher().TextLoaded();
}

void TextSurface::UserSelects(Position start, Position length) {
  SelStart = start;
  SelLength = length;
}

void TextSurface::TypeOver(std::u32string_view text) {
  std::u32string typed(text);
  std::erase(typed, U'\0');
  if (typed.empty()) return;
  const Attributes attributes = TypingAttributes();
  const Range over = selection_;
  const std::u32string_view old = document_.Text(over);
  const std::size_t most = std::min(old.size(), typed.size());
  std::size_t head = 0;
  while (head < most && old[head] == typed[head]) ++head;
  std::size_t tail = 0;
  while (tail < most - head && old[old.size() - 1 - tail] == typed[typed.size() - 1 - tail]) ++tail;
  const Range middle{over.begin + static_cast<Position>(head),
                     over.end - static_cast<Position>(tail)};
  if (!document_.CanDelete(middle)) return;

  const std::u32string_view put =
      std::u32string_view(typed).substr(head, typed.size() - head - tail);
  if (middle.Length() > 0 || !put.empty()) {
    Edit edit{middle.begin, static_cast<Position>(put.size()), {}};
    edit.cells = document_.Type(middle, put, attributes);
    Form().TheWatcher().TextReplaced(middle.begin, middle.Length(), edit.inserted);
    history_.Add(std::move(edit));
  }
  const Position caret = over.begin + static_cast<Position>(typed.size());
  Format({{over.begin, caret}}, AllOf(attributes));
  remembered_ = {};
  Select({caret, caret});
  Reveal();
}

void TextSurface::UserDeletes(Range range) {
  if (range.Length() == 0 || !document_.CanDelete(range)) return;
  Edit edit{range.begin, 0, document_.Type(range, {}, {})};
  Form().TheWatcher().TextReplaced(range.begin, range.Length(), 0);
  history_.Add(std::move(edit));
  remembered_ = {};
  Select({range.begin, range.begin});
  Reveal();
}

void TextSurface::Undo() {
  if (CanUndo()) Exchange(history_.StepBack());
}

void TextSurface::Redo() {
  if (CanRedo()) Exchange(history_.StepForward());
}

void TextSurface::Exchange(Edit& edit) {
  const Range range{edit.at, edit.at + edit.inserted};
  std::vector<Cell> gone = document_.Exchange(range, edit.cells);
  edit.inserted = static_cast<Position>(edit.cells.size());
  edit.cells = std::move(gone);
  Form().TheWatcher().TextReplaced(edit.at, range.Length(), edit.inserted);
  remembered_ = {};
  Select({edit.at + edit.inserted, edit.at + edit.inserted});
  Reveal();
}

}  // namespace quill
