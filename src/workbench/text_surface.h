// The text control: the text, its attributes, and the one selection.
//
// Positions count characters from 0. Writes of the selection are clamped to the text. Attributes
// written to an empty selection apply to what is typed there next; any write of SelStart or
// SelLength, even of the same value, or a selection by the user discards them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "text/document.h"
#include "workbench/control.h"
#include "workbench/edit_history.h"

namespace quill {

class TextSurface : public Control {
  Position ReadSelStart() const { return selection_.begin; }
  void WriteSelStart(Position start);
  Position ReadSelLength() const { return selection_.Length(); }
  void WriteSelLength(Position length);
  std::optional<Colour> ReadSelColor() const;
  void WriteSelColor(Colour colour);
  std::optional<Twips> ReadSelCharOffset() const;
  void WriteSelCharOffset(Twips offset);
  std::optional<bool> ReadSelBold() const;
  void WriteSelBold(bool bold);
  std::optional<bool> ReadSelUnderline() const;
  void WriteSelUnderline(bool underline);

 public:
  TextSurface(Form1& form, std::string_view name);

  const std::u32string& Text() const { return document_.Text(); }
  Position Length() const { return document_.Length(); }
  std::u32string SelText() const;

  // Writing it empties the selection. Clamped to the text.
  Accessor<TextSurface, &TextSurface::ReadSelStart, &TextSurface::WriteSelStart> SelStart{*this};
  // Clamped to what remains of the text.
  Accessor<TextSurface, &TextSurface::ReadSelLength, &TextSurface::WriteSelLength> SelLength{*this};
  // Reading an attribute gives nothing if its value varies within the selection.
  Accessor<TextSurface, &TextSurface::ReadSelColor, &TextSurface::WriteSelColor> SelColor{*this};
  // In twips.
  Accessor<TextSurface, &TextSurface::ReadSelCharOffset, &TextSurface::WriteSelCharOffset>
      SelCharOffset{*this};
  Accessor<TextSurface, &TextSurface::ReadSelBold, &TextSurface::WriteSelBold> SelBold{*this};
  Accessor<TextSurface, &TextSurface::ReadSelUnderline, &TextSurface::WriteSelUnderline>
      SelUnderline{*this};

  // Selects the span of a tag, given by its first and last character, 1-based. A start below 1 puts
  // the caret at 0 and selects nothing; a span that ends before its start is empty; fractions are
  // rounded to the nearest whole number.
  void SelectSpan(double start, double end);

  // Takes the underline off every character but the first, and puts the caret at 0.
  void ClearUnderlines();

  // As selecting each range and writing its attributes, but leaves the selection alone. The ranges
  // must lie within the text, in ascending order and without overlap.
  void Format(const std::vector<Range>& ranges, const AttributeChange& change);
  // What SelCharOffset would read if the range, which must not be empty, were selected.
  std::optional<Twips> CharOffset(Range range) const;

  // Replaces the text by the file's and puts the caret at 0. Fails, with nothing changed, if
  // the file cannot be read or is not text.
  void LoadFile(const std::u32string& path);
  // Writes the text as rich text. If the file is the one last loaded or saved and another program
  // has changed it since, its content is kept beside it. Fails if it cannot be kept or written.
  void SaveFile(const std::u32string& path);
  // The path last loaded from or saved to; empty before.
  const std::u32string& FilePath() const { return filePath_; }
  // The path that the text came from; empty before.
  const std::u32string& SourcePath() const { return sourcePath_; }

  // Whether the reader is to see the selection when the action ends or a dialog opens: scrolled
  // into sight where it is out of it. The last call decides; keys that change the text ask for it,
  // too.
  void Reveal();
  void LeaveView();

  // Whether the text was changed since it was last loaded or saved. Counted, not compared: a change
  // that was undone counts.
  bool HasUnsavedChanges() const { return document_.Changes() != savedChanges_; }

  // The first position at or behind `from` of a character that has, or lacks, a colour; the text's
  // length if there is none.
  Position FindColour(Position from, Colour colour) const;
  Position FindOtherColour(Position from, Colour colour) const;

  // What the user's keys do. Each leaves the caret behind what it typed, and does nothing if a
  // table would lose the end of a cell or row without the whole row.

  // Selects with mouse or keys; both ends are clamped.
  void UserSelects(Position start, Position length);
  // Replaces the selection, as one edit; NULs are dropped. Characters that the old and the new text
  // share at either end are kept and only take the attributes.
  void TypeOver(std::u32string_view text);
  // Deletes a range as one edit.
  void UserDeletes(Range range);
  bool CanUndo() const { return history_.CanUndo(); }
  bool CanRedo() const { return history_.CanRedo(); }
  void Undo();
  void Redo();

  // The attributes that a character typed now would take.
  Attributes TypingAttributes() const;
  Range Selection() const { return selection_; }
  const Document& Doc() const { return document_; }
  // Puts a text in place without a file; for tests and benchmarks.
  void SetDocument(Document document);

 private:
  bool IsChangedByOthers(const std::string& path, std::string_view bytes) const;
  void Select(Range range);
  void Write(const AttributeChange& change);
  // Reverses an edit.
  void Exchange(Edit& edit);

  Document document_;
  Range selection_;
  AttributeChange remembered_;
  EditHistory history_;
  std::u32string filePath_;
  std::u32string sourcePath_;
  std::size_t fileContent_ = 0;     // a hash of what the file held when last loaded or saved
  std::uint64_t savedChanges_ = 0;  // what the document counted then
};

}  // namespace quill
