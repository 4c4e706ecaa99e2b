// The formats that make files of their own for each text, in one folder.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "companion/command.h"
#include "companion/tagged_text.h"

namespace quill::companion {

// The name of a text's files without ending: that of its own file less four characters.
std::string NameOf(const std::string& path);

// A file that comes of a text, or of all of them.
struct NamedFile {
  std::string name;
  std::string bytes;
};

struct FolderFormat {
  std::vector<std::string> endings;  // of the files of one text
  std::vector<NamedFile> common;     // files beside them
  std::function<std::vector<NamedFile>(const TaggedText&, Console&)> write;
};

// Checks all files of all texts, makes the folder that -o names and fills it. Throws
// StatementFailed where -o names none.
void ExportToFolder(const FolderFormat& format, const Options& options, Console& console);

void ExportJsonLd(const Options& options, Console& console);
void ExportXmi(const Options& options, Console& console);

}  // namespace quill::companion
