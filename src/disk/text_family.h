// The files that belong to a text: its working copy (.tbf), its tag list (.tlf) and its dictionary
// (.spd), all named by a plain cut of the path's last four characters, whatever they are.
#pragma once

#include <string>

namespace quill {

std::u32string WorkingCopyOf(const std::u32string& path);
std::u32string TagListOf(const std::u32string& path);
std::u32string DictionaryOf(const std::u32string& path);

// Whether the path ends in "tbf", in small letters, and so is taken for a working copy.
bool IsWorkingCopy(const std::u32string& path);

}  // namespace quill
