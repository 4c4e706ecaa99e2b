// The files that belong to a text: its working copy (.tbf), its tag list (.tlf) and its dictionary
// (.spd), all named by a plain cut of the path's last four characters, whatever they are.
#pragma once

#include <string>

namespace quill {

class Form1;

// The path without its last four characters; nothing of a path that has no more than four.
std::u32string BaseOf(const std::u32string& path);

// Whether the path ends in "tbf", in small letters, and so is taken for a working copy.
bool IsWorkingCopy(const std::u32string& path);

// Sets TagListFile from TextBaseFile.
void DeriveTagListFile(Form1& form);

// Sets SpecificDictFile from TextBaseFile and makes the file if it is missing.
void OpenSpecificDict(Form1& form);

// Lets TagListFile follow TextBaseFile, makes the file if it is missing, and shows the guidance to
// the Process menu. Fails, without the guidance, where the file cannot be made.
void EnsureTagListFile(Form1& form);

}  // namespace quill
