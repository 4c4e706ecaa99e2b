// What a file said besides its characters.
//
// A document keeps the bytes of its rich text. Every character knows the stretch of bytes that it
// was read from; whatever is between those stretches (formatting words, tables, notes, fields, what
// the program does not understand) is kept by never being touched: a save copies it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "text/format.h"

namespace quill {

// A byte offset in a file. Files are below 4 GB.
using Offset = std::uint32_t;

// The bytes of the source from which one character was read. A typed character has an empty
// stretch: the place where its bytes will be inserted.
struct Origin {
  enum Kind : std::uint32_t {
    kPlain = 0,
    kCellEnd = 1,
    kRowEnd = 2,
  };

  Offset begin = 0;
  std::uint32_t length : 30 = 0;
  Kind kind : 2 = kPlain;

  Offset end() const { return begin + length; }
  bool IsTyped() const { return length == 0; }
  bool operator==(const Origin&) const = default;
};
inline constexpr std::uint32_t kLongestOrigin = (1U << 30U) - 1;

// A group of the file that holds words of the four attributes, then characters and groups of the
// same kind, and nothing else: the form in which marks are saved. If the words are those that a
// save writes, the group is changed or dissolved when its characters change, so that repeated
// marking does not nest ever deeper.
struct MarkGroup {
  Offset open = 0;     // of its opening brace
  Offset content = 0;  // after its words
  Offset close = 0;    // of its closing brace, or the end of the file
  AttributeChange words;
  Attributes outside;  // in force before its opening brace

  bool operator==(const MarkGroup&) const = default;
};

// The colour table of the file, entries numbered from 0.
struct ColourTable {
  struct Entry {
    bool automatic = true;
    Colour colour = 0;
  };

  std::vector<Entry> entries;
  bool present = false;
  bool endsInSemicolon = true;    // the last entry is complete
  Offset end = 0;                 // of its closing brace; without a table, where one would go
  Offset expandedEnd = 0;         // of the closing brace of the table that mirrors it; 0 for none
  std::uint32_t highestUsed = 0;  // highest entry that a colour word of the file names
};

struct Source {
  std::string bytes;
  ColourTable colours;
  std::vector<MarkGroup> groups;  // in the order of their opening braces, nested ones included
  Offset bodyEnd = 0;             // where the first character of an empty text goes
  // Whether all of it is rich text as programs write it. If not, bytes of ours may be read together
  // with their neighbours, so a save is read back before it is trusted.
  bool wellFormed = true;
};

}  // namespace quill
