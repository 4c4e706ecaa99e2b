// The tables in front of a file's text: fonts and colours.
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

  // Reads on from inside the table's group to its closing brace, which is the last token taken.
  // `standard` is the code page of the document, `fallback` how many characters follow a \u.
  void Read(Lexer& lexer, const CodePage& standard, std::uint32_t fallback);
  // The font of a number, or nullptr where the table has none.
  const Font* Find(std::int32_t number) const;
  // Whether a font of that name, whatever its case, is one of symbols: by the table or, where that
  // does not say so, because everybody knows it.
  bool IsSymbol(std::string_view name) const;
  // Face 0 stands for every font that the file does not declare.
  std::vector<FontFace> TakeFaces() { return std::move(faces_); }

 private:
  // The font that is being read.
  struct Entry {
    bool begun = false;
    std::int32_t number = 0;
    int charset = -1;
    int codePage = 0;
    std::u32string name;
    std::string bytes;  // what follows of the name, in the font's own code page
  };
  void Read(const Token& token, std::string_view bytes);
  void ReadWord(const Token& token);
  void ReadName(std::string_view bytes);
  void EndBytes();
  void Finish();
  const CodePage& PageOf(const Entry& entry) const;

  std::vector<FontFace> faces_;
  std::unordered_set<std::string> symbolNames_;  // in small letters
  std::unordered_map<std::int32_t, Font> fonts_;
  Entry entry_;
  const CodePage* standard_ = nullptr;
  std::uint32_t fallback_ = 1;
  std::uint32_t fallbackLeft_ = 0;
};

// Reads the colour table on from inside its group to its closing brace. Returns false where the
// file breaks off before; then the table is as it was.
bool ReadColourTable(Lexer& lexer, ColourTable& table);

// The colour that a number names; black where the entry is automatic or missing.
Colour ColourOf(const ColourTable& table, std::int32_t number);

// Notes the number of a colour word.
void NoteColour(ColourTable& table, std::int32_t number);

}  // namespace quill::rtf
