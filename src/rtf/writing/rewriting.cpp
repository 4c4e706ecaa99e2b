// Every run of characters that look the same gets a group with its whole look, so that no group
// depends on another.
#include "rtf/writing/rewriting.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "rtf/syntax/ascii.h"
#include "rtf/syntax/lexer.h"
#include "rtf/syntax/words.h"
#include "rtf/writing/colour_numbers.h"
#include "rtf/writing/encode.h"
#include "rtf/writing/paragraph_words.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

constexpr std::uint32_t kFallback = 1;

std::string FontTableOf(const std::vector<FontFace>& faces) {
  std::string table = "{\\fonttbl";
  // Face 0 stands for all fonts that the table lacks.
  for (std::size_t face = 1; face < faces.size(); ++face) {
    table += "{" + NumberedWord("f", static_cast<int>(face)) +
             (faces[face].symbol ? "\\fcharset2 " : " ");
    for (const char32_t c : FromUtf8(faces[face].name)) {
      if (c >= 0x20 && std::u32string_view(U"\\{};").find(c) == std::u32string_view::npos) {
        AppendCharacter(table, c, kFallback, false);
      }
    }
    table += ";}";
  }
  return table + "}";
}

std::string CharacterWords(const CharacterLook& look, ColourNumbers& colours) {
  std::string words = "\\plain";
  if (look.rightToLeft) words += "\\rtlch";
  if (look.font != 0) words += NumberedWord("f", look.font);
  if (look.halfPoints != CharacterLook().halfPoints) words += NumberedWord("fs", look.halfPoints);
  if (look.italic) words += "\\i";
  if (look.struckOut) words += "\\strike";
  if (look.hidden) words += "\\v";
  if (look.deleted) words += "\\deleted";
  if (look.inserted) words += "\\revised";
  if (look.capitals == Capitals::kAll) words += "\\caps";
  if (look.capitals == Capitals::kSmall) words += "\\scaps";
  if (look.spacing != 0) words += NumberedWord("expndtw", look.spacing);
  if (look.script > 0) words += "\\super";
  if (look.script < 0) words += "\\sub";
  if (look.background >= 0) {
    words += NumberedWord("highlight", GroundNumber(static_cast<Colour>(look.background), colours));
  }
  return words;
}

// Whether the bytes are complete groups, which can be put anywhere.
bool AreWholeGroups(std::string_view bytes) {
  if (!bytes.starts_with('{')) return false;
  std::size_t depth = 0;
  Lexer lexer(bytes);
  for (Token token = lexer.Next(); token.kind != Token::kEnd; token = lexer.Next()) {
    if (token.kind == Token::kOpen) ++depth;
    if (depth == 0 && token.kind != Token::kIgnored) return false;
    if (token.kind == Token::kClose) --depth;
  }
  return depth == 0;
}

class Rewriter {
 public:
  explicit Rewriter(const Document& document) : document_(document), colours_(noTable_) {}

  std::string Write();

 private:
  void Open(const Format& format);
  void Put(std::size_t character, const FontFace& face);

  const Document& document_;
  const ColourTable noTable_;
  ColourNumbers colours_;
  std::string body_;
};

std::string Rewriter::Write() {
  const FormatNumbers& ids = document_.FormatIds();
  for (std::size_t i = 0; i < ids.size(); ++i) {
    const Format& format = document_.Formats()[ids[i]];
    if (i == 0 || ids[i] != ids[i - 1]) Open(format);
    Put(i, document_.Fonts()[format.look.font]);
    if (i + 1 == ids.size() || ids[i + 1] != ids[i]) body_ += "}\n";
  }
  return "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1" + FontTableOf(document_.Fonts()) +
         colours_.TableInsertion() + "\n" + body_ + "}\n";
}

void Rewriter::Open(const Format& format) {
  body_ += "{" + ParagraphWords(format.paragraph, document_.Formats().Details(), colours_) +
           CharacterWords(format.look, colours_) +
           WordsBetween({}, InFile(format.now), format.look.rightToLeft, colours_);
  if (body_.back() != ' ') body_ += ' ';
}

void Rewriter::Put(std::size_t character, const FontFace& face) {
  const Origin origin = document_.Origins()[character];
  const std::string_view bytes = document_.BytesOf(static_cast<Position>(character));
  const char32_t c = document_.Text()[character];
  if (c == kObject && AreWholeGroups(bytes)) {
    body_ += "{";
    body_ += bytes;
    body_ += "}";
  } else if (origin.kind == Origin::kCellEnd) {
    body_ += "\\cell ";
  } else if (origin.kind == Origin::kRowEnd) {
    body_ += "\\row ";
  } else {
    AppendCharacter(body_, c, kFallback, face.symbol);
  }
}

}  // namespace

std::string Rewritten(const Document& document) { return Rewriter(document).Write(); }

}  // namespace quill::rtf
