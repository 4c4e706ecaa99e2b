#include "rtf/symbol_font.h"

#include <cstddef>
#include <optional>

#include "rtf/syntax/symbol_field.h"

namespace quill::rtf {

std::string FontOfSymbol(std::string_view group) {
  constexpr std::string_view kInstruction = "\\fldinst";
  const std::size_t at = group.find(kInstruction);
  if (at == std::string_view::npos) return "";
  const std::optional<SymbolField> field = ReadSymbolField(group.substr(at + kInstruction.size()));
  return field ? field->font : "";
}

}  // namespace quill::rtf
