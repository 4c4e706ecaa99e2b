// Large pages for large arrays: they take a small part of the page faults that filling an array
// costs otherwise, which is more time than reading a file into it.
#pragma once

#include <cstddef>

namespace quill {

// Asks the system for large pages where they fit into these bytes as a whole; a page is taken when
// it is first touched. Does nothing on a system without such pages.
void UseLargePages(const void* begin, std::size_t bytes);

}  // namespace quill
