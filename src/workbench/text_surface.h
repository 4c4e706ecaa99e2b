// The text control: the text, its attributes, and the one selection.
//
// Positions count characters from 0. Writes of the selection are clamped to the text. Attributes
// written to an empty selection apply to what is typed there next; they are discarded by any write
// of SelStart or SelLength, even of the same value, and by any selection that the user makes.
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
  // Clamped to the rest of the text.
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

  // Removes the underline from every character but the first, which is intended, and puts the caret
  // at 0.
  void ClearUnderlines();

  // Like selecting each range and writing its attributes, but leaves the selection alone. The
  // ranges must lie within the text, in ascending order and without overlap.
  void Format(const std::vector<Range>& ranges, const AttributeChange& change);
  // What SelCharOffset would read if the range, which must not be empty, were selected.
  std::optional<Twips> CharOffset(Range range) const;

  // Replaces the text with the file's and puts the caret at 0. Fails, with nothing changed, if the
  // file cannot be read or is not text.
  void LoadFile(const std::u32string& path);
  // Writes the text as rich text. If the file is the one last loaded or saved and another program
  // has changed it since, its content is kept beside it. Fails if the old content cannot be kept or
  // the new one cannot be written.
  void SaveFile(const std::u32string& path);
  // The path last loaded from or saved to; empty before.
  const std::u32string& FilePath() const { return filePath_; }
  // The path that the text came from; empty before.
  const std::u32string& SourcePath() const { return sourcePath_; }

  // Whether the selection is scrolled into view, if it is out of view, when the action ends or a
  // dialog opens. The last call decides; keys that change the text ask for it, too.
  void Reveal();
  void LeaveView();

  // Whether the text has changed since it was last loaded or saved. Changes are counted, not
  // compared: one that was undone counts.
  bool HasUnsavedChanges() const { return document_.Changes() != savedChanges_; }

  // The first position from `from` on of a character that has, or lacks, a colour; the length of
  // the text if there is none.
  Position FindColour(Position from, Colour colour) const;
  Position FindOtherColour(Position from, Colour colour) const;

  // What the user's keys do. Each leaves the caret after what it typed, and does nothing if a table
  // would lose the end of a cell or row without the whole row.

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
  // Sets the text without a file; for tests and benchmarks.
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
  std::size_t fileContent_ = 0;     // hash of the file's content when last loaded or saved
  std::uint64_t savedChanges_ = 0;  // the document's count of changes then
};

}  // namespace quill
