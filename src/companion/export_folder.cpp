#include "companion/export_folder.h"

#include <filesystem>
#include <map>

#include "companion/output.h"
#include "disk/descriptor.h"
#include "disk/statement_failed.h"

namespace quill::companion {
namespace {

std::string Beside(const std::string& folder, const std::string& name) {
  return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

void CheckNames(const std::vector<std::string>& files) {
  std::map<std::string, std::string> seen;
  for (const std::string& file : files) {
    const auto [first, isNew] = seen.try_emplace(NameOf(file), file);
    if (!isNew) {
      throw StatementFailed(first->second + " and " + file + " would both become " + first->first);
    }
  }
}

std::vector<std::string> FilesOf(const FolderFormat& format, const Options& options) {
  std::vector<std::string> paths;
  for (const NamedFile& file : format.common) paths.push_back(Beside(options.output, file.name));
  for (const std::string& file : options.files) {
    for (const std::string& ending : format.endings) {
      paths.push_back(Beside(options.output, NameOf(file) + ending));
    }
  }
  return paths;
}

// If the folder does not exist, the outputs can fail only because it cannot be created.
void CheckFolderAndFiles(const FolderFormat& format, const Options& options) {
  std::error_code problem;
  if (std::filesystem::exists(options.output, problem)) {
    CheckOutputs(FilesOf(format, options), options);
  } else if (problem) {
    throw StatementFailed(options.output + " could not be opened: " + problem.message());
  }
}

void MakeFolder(const std::string& folder) {
  std::error_code problem;
  std::filesystem::create_directories(folder, problem);
  if (problem) throw StatementFailed(folder + " could not be made: " + problem.message());
}

}  // namespace

std::string NameOf(const std::string& path) {
  const std::string list = ListBeside(path.substr(FolderPart(path).size()));
  return list.substr(0, list.rfind('.'));
}

void ExportToFolder(const FolderFormat& format, const Options& options, Console& console) {
  if (options.output == "-") {
    throw StatementFailed("--to " + options.to + " makes files: name a folder for them with -o");
  }
  CheckNames(options.files);
  CheckFolderAndFiles(format, options);
  MakeFolder(options.output);
  const auto write = [&](const NamedFile& file) {
    WriteOutput(Beside(options.output, file.name), file.bytes);
  };
  for (const NamedFile& file : format.common) write(file);
  ForEachSoundText(options, console, [&](const TaggedText& text) {
    for (const NamedFile& file : format.write(text, console)) write(file);
  });
}

}  // namespace quill::companion
