// The order of sorted lists.
#pragma once

#include <string>
#include <string_view>

namespace quill {

// The sort key of a text in the user's locale (the first of LC_ALL, LC_COLLATE and LANG that is
// set; the root order if that is C or POSIX), which is read once, at the first call. Keys compare
// as byte strings; texts that collate alike have equal keys.
std::string CollationKey(std::u32string_view text);

}  // namespace quill
