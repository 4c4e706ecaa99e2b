// The program's strings and the toolkit's: conversions, and what is shown for characters that a
// widget would take for something else.
#pragma once

#include <QString>
#include <string>
#include <string_view>

class QTextDocument;

namespace quill {

// Lone surrogates become U+FFFD.
QString ToQt(std::u32string_view text);
std::u32string FromQt(const QString& text);

// The character that a widget of several lines shows for one of the model's. Characters that
// would make paragraphs of their own there become U+FFFD, and a picture becomes a square.
char32_t ShownCharacter(char32_t character);
// Character by character, so that positions stay.
std::u32string ShownText(std::u32string_view text);
// The same where pictures are drawn (the character that stands for one stays) and in a typeface,
// which may be one of symbols.
std::u32string ShownInText(std::u32string_view text, std::string_view font);

// All characters of a document as they are, paragraph ends as U+000A. (Its plain text is no way to
// them: there a no-break space comes back as a blank.)
std::u32string RawText(const QTextDocument& document);

// The model's text after an edit that made `now` of what was shown of it. Characters that the edit
// did not touch stay the model's own.
std::u32string ForwardEdit(std::u32string_view model, std::u32string_view shown,
                           std::u32string_view now);

}  // namespace quill
