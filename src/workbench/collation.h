// The order of sorted lists.
#pragma once

#include <string_view>

namespace quill {

// Whether `left` stands before `right` in the order of the user's locale (LC_ALL, LC_COLLATE or
// LANG, the first that is set; the root order where that is C or POSIX), as the process found it
// at its first call.
bool CollatesBefore(std::u32string_view left, std::u32string_view right);

}  // namespace quill
