#include "rtf/fragment.h"

#include <cstddef>
#include <string>

#include "rtf/reader.h"
#include "rtf/syntax/lexer.h"

namespace quill::rtf {
namespace {

// A file that holds more in front of its text must not take the time.
constexpr std::size_t kMostHeader = std::size_t{1} << 17U;

}  // namespace

std::string_view UpToClose(std::string_view bytes) {
  Lexer lexer(bytes);
  for (int depth = 1;;) {
    const Token token = lexer.Next();
    if (token.kind == Token::kOpen) ++depth;
    if (token.kind == Token::kClose) --depth;
    if (depth == 0 || token.kind == Token::kEnd) return bytes.substr(0, token.begin);
  }
}

// The tables of the file and the content: a small file. It breaks off, which does no harm.
std::optional<Document> ReadFragment(const Document& document, std::string_view content) {
  if (document.Length() == 0) return std::nullopt;
  const Source& source = document.GetSource();
  const std::size_t header =
      source.colours.present ? source.colours.end : document.Origins()[0].begin;
  std::string file = header < kMostHeader ? source.bytes.substr(0, header) : "{\\rtf1";
  if (source.colours.present && header < kMostHeader) file += '}';
  file += '{';
  file += content;
  file += '}';
  return Read(std::move(file));
}

}  // namespace quill::rtf
