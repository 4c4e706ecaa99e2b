#include "support/rich_text.h"

#include <gtest/gtest.h>

#include "text/unicode.h"

namespace quill {
void ExpectSameText(const Document& expected, const Document& actual) {
  ASSERT_EQ(Difference(expected, actual), "")
      << "expected " << Dump(expected) << "\nfound " << Dump(actual);
}

std::string Dump(const Document& document) {
  std::string dump;
  Attributes last;
  for (Position at = 0; at < document.Length(); ++at) {
    const Attributes& now = document.At(at);
    if (now != last) {
      std::string words;
      if (now.colour != 0) words += " c" + std::to_string(now.colour);
      if (now.bold) words += " b";
      if (now.underline) words += " u";
      if (now.offset != 0) words += " o" + std::to_string(now.offset);
      dump += words.empty() ? "</>" : "<" + words.substr(1) + ">";
      last = now;
    }
    dump += ToUtf8(document.Text().substr(static_cast<std::size_t>(at), 1));
  }
  return dump;
}

}  // namespace quill
