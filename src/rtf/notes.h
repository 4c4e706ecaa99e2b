// Footnotes, endnotes and comments. None of them is text of the document; they are found in the
// kept bytes by one pass when somebody asks.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "text/document.h"

namespace quill::rtf {

struct Note {
  enum Kind : std::uint8_t { kFootnote, kEndnote, kComment };

  Kind kind = kFootnote;
  Offset place = 0;   // in the file: it is anchored where the first character behind it begins
  std::string mark;   // its number, as its file numbers notes; empty for a mark of its own
  Offset author = 0;  // of a comment: where the name stands; 0 for none
};

// All that stand beside the text, in the order of the file.
std::vector<Note> FindNotes(const Document& document);

// Without blanks around it. Paragraphs end in U+000A.
std::u32string TextOf(const Document& document, const Note& note);
// The author of a comment; empty where there is none.
std::u32string AuthorOf(const Document& document, const Note& note);

}  // namespace quill::rtf
