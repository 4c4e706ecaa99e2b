// The notes of a text: small ticks above the gaps where they are anchored, and what they say. Which
// gap that is is told from the places of the characters in the file, so that edits move ticks with
// their characters.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "rtf/notes.h"
#include "window/text/position_map.h"

class QPainter;
class QTextBlock;

namespace quill {

class TextNotes {
 public:
  // Both must outlive the notes.
  TextNotes(const Document& document, const PositionMap& positions)
      : document_(document), positions_(positions) {}

  // Forgets those of the text before.
  void Clear() { notes_.reset(); }
  // The notes anchored in front of a character, as "Footnote 3: see above", each in lines of its
  // own; empty where there is none.
  QString TextAt(Position gap) const;
  // Draws the ticks of a paragraph that is laid out.
  void Draw(QPainter& painter, const QTextBlock& block) const;

 private:
  using Notes = std::vector<rtf::Note>;
  // Those anchored from the gap in front of one character to that in front of another.
  struct Stretch {
    Notes::const_iterator begin;
    Notes::const_iterator end;
  };
  Stretch Between(Position first, Position last) const;
  const Notes& All() const;
  QString TextOf(const rtf::Note& note) const;

  const Document& document_;
  const PositionMap& positions_;
  mutable std::optional<Notes> notes_;  // once somebody has asked
};

}  // namespace quill
