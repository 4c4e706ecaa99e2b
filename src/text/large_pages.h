// Large pages for large arrays. With small pages, the page faults of filling an array take longer
// than reading a file into it; large ones cause a small part of those faults.
#pragma once

#include <cstddef>

namespace quill {

// Asks the system for large pages wherever whole ones fit into these bytes; a page is allocated
// when it is first touched. Does nothing on a system without such pages.
void UseLargePages(const void* begin, std::size_t bytes);

}  // namespace quill
