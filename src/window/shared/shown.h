// Conversions between the program's strings and the toolkit's, and what is shown for characters
// that a widget would misinterpret.
#pragma once

#include <QString>
#include <string>
#include <string_view>

class QTextDocument;

namespace quill {

// Lone surrogates become U+FFFD.
QString ToQt(std::u32string_view text);
std::u32string FromQt(const QString& text);

// What a multi-line widget shows for a character of the model. Characters that would start a new
// paragraph there become U+FFFD, and a picture becomes a square.
char32_t ShownCharacter(char32_t character);
// Character by character, so positions do not change.
std::u32string ShownText(std::u32string_view text);
// The same for a text whose pictures are drawn (their character stays) and in the given typeface,
// which may be a symbol font.
std::u32string ShownInText(std::u32string_view text, std::string_view font);

// All characters of a document as they are, paragraph ends as U+000A. (The toolkit's own plain text
// turns no-break spaces into blanks.)
std::u32string RawText(const QTextDocument& document);

// The model's text after an edit that turned `shown` into `now`. Characters that the edit did not
// touch remain the model's.
std::u32string ForwardEdit(std::u32string_view model, std::u32string_view shown,
                           std::u32string_view now);

}  // namespace quill
