// The files that belong to a text: its working copy (.tbf), its tag list (.tlf) and its dictionary
// (.spd). Each name is the path with its last four characters, whatever they are, replaced.
#pragma once

#include <string>

namespace quill {

std::u32string WorkingCopyOf(const std::u32string& path);
std::u32string TagListOf(const std::u32string& path);
std::u32string DictionaryOf(const std::u32string& path);

// Whether the path ends in "tbf", in lower case.
bool IsWorkingCopy(const std::u32string& path);

}  // namespace quill
