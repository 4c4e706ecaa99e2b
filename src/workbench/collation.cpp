#include "workbench/collation.h"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

namespace quill {
namespace {

std::string LocaleName() {
  for (const char* variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    std::string name(value);
    if (name == "C" || name == "POSIX" || name.starts_with("C.")) return "";
    return name;
  }
  return "";
}

const icu::Collator& UserCollator() {
  static const std::unique_ptr<icu::Collator> collator = [] {
    UErrorCode status = U_ZERO_ERROR;
    const std::string name = LocaleName();
    const icu::Locale locale =
        name.empty() ? icu::Locale::getRoot() : icu::Locale::createCanonical(name.c_str());
    std::unique_ptr<icu::Collator> made(icu::Collator::createInstance(locale, status));
    if (U_FAILURE(status) != 0) throw std::runtime_error("ICU has no collation data");
    return made;
  }();
  return *collator;
}

icu::UnicodeString ToIcu(std::u32string_view text) {
  return icu::UnicodeString::fromUTF32(reinterpret_cast<const UChar32*>(text.data()),
                                       static_cast<int32_t>(text.size()));
}

}  // namespace

std::string CollationKey(std::u32string_view text) {
  const icu::UnicodeString characters = ToIcu(text);
  // The key's length without the zero that ends it.
  const int32_t length = UserCollator().getSortKey(characters, nullptr, 0);
  std::string key(static_cast<std::size_t>(length), '\0');
  UserCollator().getSortKey(characters, reinterpret_cast<uint8_t*>(key.data()), length);
  key.pop_back();
  return key;
}

}  // namespace quill
