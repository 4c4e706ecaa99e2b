// The formats that write separate files for each text, in one folder.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "companion/command.h"
#include "companion/tagged_text.h"

namespace quill::companion {

// The name of a text's files without their ending: the name of the text less its last four
// characters.
std::string NameOf(const std::string& path);

// An output file, of one text or of all of them.
struct NamedFile {
  std::string name;
  std::string bytes;
};

struct FolderFormat {
  std::vector<std::string> endings;  // of the files of one text
  std::vector<NamedFile> common;     // files written once, beside them
  std::function<std::vector<NamedFile>(const TaggedText&, Console&)> write;
};

// Checks all files of all texts, then creates the folder given by -o and fills it. Throws
// StatementFailed if -o gives none.
void ExportToFolder(const FolderFormat& format, const Options& options, Console& console);

void ExportJsonLd(const Options& options, Console& console);
void ExportXmi(const Options& options, Console& console);

}  // namespace quill::companion
