// The font and colour tables of a file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "rtf/syntax/code_page.h"
#include "rtf/syntax/lexer.h"
#include "text/document.h"

namespace quill::rtf {

struct Font {
  std::uint16_t face = 0;  // index into the document's fonts
  const CodePage* page = nullptr;
};

class FontTable {
 public:
  FontTable();

  // Reads from inside the table's group up to and including its closing brace. `standard` is the
  // document's code page, `fallback` the number of characters that follow a \u.
  void Read(Lexer& lexer, const CodePage& standard, std::uint32_t fallback);
  // The font with that number, or nullptr.
  const Font* Find(std::int32_t number) const;
  // Whether a font is a symbol font, by the table or by its well-known name. Ignores case.
  bool IsSymbol(std::string_view name) const;
  // Face 0 stands for all fonts that the file does not declare.
  std::vector<FontFace> TakeFaces() { return std::move(faces_); }

 private:
  // The font that is being read.
  struct Entry {
    bool begun = false;
    std::int32_t number = 0;
    int charset = -1;
    int codePage = 0;
    std::u32string name;
    std::string bytes;  // of the name after that, in the font's own code page
  };
  void Read(const Token& token, std::string_view bytes);
  void ReadWord(const Token& token);
  void ReadName(std::string_view bytes);
  void EndBytes();
  void Finish();
  const CodePage& PageOf(const Entry& entry) const;

  std::vector<FontFace> faces_;
  std::unordered_set<std::string> symbolNames_;  // in lower case
  std::unordered_map<std::int32_t, Font> fonts_;
  Entry entry_;
  const CodePage* standard_ = nullptr;
  std::uint32_t fallback_ = 1;
  std::uint32_t fallbackLeft_ = 0;
};

// Reads from inside the colour table's group up to and including its closing brace. Returns false,
// and leaves the table alone, if the file breaks off before that.
bool ReadColourTable(Lexer& lexer, ColourTable& table);

// The colour with that number; black if the entry is automatic or missing.
Colour ColourOf(const ColourTable& table, std::int32_t number);

// Records that a word uses that number.
void NoteColour(ColourTable& table, std::int32_t number);

}  // namespace quill::rtf
