#include "rtf/reader.h"

#include <new>
#include <string_view>
#include <utility>

#include "rtf/reading/parser.h"
#include "rtf/writing/plain_text.h"

namespace quill::rtf {
namespace {

// Where rich text begins, past a byte order mark and blanks; npos if the bytes are something else.
std::size_t FindRichText(std::string_view bytes) {
  constexpr std::string_view kBlanks = " \t\r\n";
  std::size_t at = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
  while (at < bytes.size() && kBlanks.find(bytes[at]) != std::string_view::npos) {
    ++at;
  }
  return bytes.substr(at).starts_with("{\\rtf") ? at : std::string_view::npos;
}

}  // namespace

std::optional<Document> Read(std::string bytes) try {
  if (bytes.size() > kLongestOrigin) return std::nullopt;
  if (FindRichText(bytes) == std::string_view::npos) {
    std::optional<std::string> richText = FromPlainText(bytes);
    if (!richText || richText->size() > kLongestOrigin) return std::nullopt;
    bytes = std::move(*richText);
  }
  Parser parser(std::move(bytes), {});
  Document document = parser.Parse();
  if (!parser.TableCameLate()) return document;
  // A colour table after the first characters applies to them too: parse again with it.
  const Source& source = document.GetSource();
  return Parser(source.bytes, source.colours).Parse();
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

Document Blank() { return *Read(""); }

}  // namespace quill::rtf
