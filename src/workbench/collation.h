// The order of sorted lists.
#pragma once

#include <string>
#include <string_view>

namespace quill {

// A text's place in the order of the user's locale (LC_ALL, LC_COLLATE or LANG, the first that is
// set; the root order where that is C or POSIX), as the process found it at its first call. Keys
// compare as strings of bytes; texts that collate alike have equal keys.
std::string CollationKey(std::u32string_view text);

}  // namespace quill
