#include "support/workbench.h"

#include <cctype>
#include <stdexcept>
#include <utility>
#include <vector>

#include "text/marks.h"
#include "text/unicode.h"

namespace quill::test {
namespace {

struct Ink {
  char letter;
  Colour colour;
};
constexpr Ink kInks[] = {{'.', kPlain}, {'a', kMarkedA}, {'b', kMarkedB}, {'l', kFoundA}};

Attributes AttributesOf(char drawn) {
  const bool underline = drawn == '_' || std::isupper(static_cast<unsigned char>(drawn)) != 0;
  const char letter =
      drawn == '_' ? '.' : static_cast<char>(std::tolower(static_cast<unsigned char>(drawn)));
  for (const Ink& ink : kInks) {
    if (ink.letter == letter) return {.colour = ink.colour, .underline = underline};
  }
  throw std::logic_error("no ink for a letter of a drawing");
}

char LetterOf(const Attributes& attributes) {
  for (const Ink& ink : kInks) {
    if (ink.colour != attributes.colour) continue;
    if (!attributes.underline) return ink.letter;
    return ink.letter == '.'
               ? '_'
               : static_cast<char>(std::toupper(static_cast<unsigned char>(ink.letter)));
  }
  return '?';
}

std::string Printed(const std::u32string& text) { return "'" + ToUtf8(text) + "'"; }
template <class Number>
std::string Printed(Number number) {
  return ToUtf8(DecimalText(static_cast<double>(number)));
}

}  // namespace

Document Painted(std::u32string_view text, std::string_view drawing) {
  if (text.size() != drawing.size()) throw std::logic_error("text and drawing differ in length");
  FormatTable formats;
  FormatNumbers ids;
  for (const char drawn : drawing) {
    Format format;
    format.now = AttributesOf(drawn);
    ids.Append(1, formats.Add(format));
  }
  OriginList origins(text.size());
  return {Source(),           {}, std::move(formats), std::u32string(text), std::move(ids),
          std::move(origins), 0};
}

std::string Drawing(const TextSurface& surface) {
  std::string drawing;
  for (Position at = 0; at < surface.Length(); ++at) drawing += LetterOf(surface.Doc().At(at));
  return drawing;
}

std::string Fields(const WorkState& state) {
  std::string fields;
  state.ForEach([&](std::string_view name, const auto& value) {
    fields.append(name).append("=");
    fields.append(value.IsEmpty() ? "(empty)" : Printed(value.Get())).append("\n");
  });
  return fields;
}

void Workbench::ShowText(std::u32string_view characters, std::string_view drawing) {
  text.SetDocument(Painted(characters, drawing));
  form.PreFrame.Visible = true;
  form.PostFrame.Visible = true;
}

void Workbench::Open(std::initializer_list<ScriptedDialogs::Answer> answers) {
  dialogs.answers = answers;
  program.Click(form.mnuFileOpen);
}

}  // namespace quill::test
