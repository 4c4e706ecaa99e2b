#include "window/shared/shown.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "text/unicode.h"
#include "window/shared/symbols.h"

namespace quill {
namespace {

constexpr char32_t kParagraphSeparator = 0x2029;
constexpr char32_t kPicture = 0x25A3;

bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

}  // namespace

QString ToQt(std::u32string_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const char32_t c : text) {
    if (QChar::requiresSurrogates(c)) {
      result += QChar(QChar::highSurrogate(c));
      result += QChar(QChar::lowSurrogate(c));
    } else {
      result += QChar(static_cast<char16_t>(IsSurrogate(c) ? kReplacement : c));
    }
  }
  return result;
}

std::u32string FromQt(const QString& text) {
  std::u32string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      result += QChar::surrogateToUcs4(c, text[++i]);
    } else {
      result += c.isSurrogate() ? kReplacement : char32_t{c.unicode()};
    }
  }
  return result;
}

char32_t ShownCharacter(char32_t character) {
  switch (character) {
    case U'\r':
    case kParagraphSeparator:
    case 0xFDD0:
    case 0xFDD1:
      return kReplacement;
    case kObject:
      return kPicture;
    default:
      return IsSurrogate(character) ? kReplacement : character;
  }
}

std::u32string ShownText(std::u32string_view text) {
  std::u32string shown(text);
  std::transform(shown.begin(), shown.end(), shown.begin(), ShownCharacter);
  return shown;
}

std::u32string ShownInText(std::u32string_view text, std::string_view font) {
  std::u32string shown(text);
  std::transform(shown.begin(), shown.end(), shown.begin(), [&](char32_t c) {
    return c == kObject ? c : ShownSymbol(ShownCharacter(c), font);
  });
  return shown;
}

std::u32string RawText(const QTextDocument& document) {
  QTextCursor all(document.firstBlock());
  all.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
  std::u32string text = FromQt(all.selectedText());
  std::replace(text.begin(), text.end(), kParagraphSeparator, kParagraphEnd);
  return text;
}

std::u32string ForwardEdit(std::u32string_view model, std::u32string_view shown,
                           std::u32string_view now) {
  const std::size_t most = std::min(shown.size(), now.size());
  std::size_t head = 0;
  while (head < most && shown[head] == now[head]) ++head;
  std::size_t tail = 0;
  while (tail < most - head && shown[shown.size() - 1 - tail] == now[now.size() - 1 - tail]) ++tail;
  std::u32string edited(model.substr(0, head));
  edited += now.substr(head, now.size() - head - tail);
  edited += model.substr(model.size() - tail);
  return edited;
}

}  // namespace quill
