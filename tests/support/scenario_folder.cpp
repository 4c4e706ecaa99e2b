#include "support/scenario_folder.h"

#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quill::test {
namespace fs = std::filesystem;

namespace {

bool IsText(const fs::path& path) {
  const fs::path extension = path.extension();
  return extension != ".scenario" && extension != ".jsonl" && extension != ".md";
}

fs::path NewFolder() {
  std::string name = fs::temp_directory_path() / "scenario-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder " + name);
  return name;
}

}  // namespace

ScenarioFolder::ScenarioFolder(const fs::path& texts)
    : former_(fs::current_path()), folder_(NewFolder()) {
  for (const auto& entry : fs::directory_iterator(texts)) {
    if (IsText(entry.path())) fs::copy(entry.path(), folder_ / entry.path().filename());
  }
  fs::create_directory(folder_ / "folder.tbf");
  fs::current_path(folder_);
}

ScenarioFolder::~ScenarioFolder() {
  std::error_code ignored;
  fs::current_path(former_, ignored);
  fs::remove_all(folder_, ignored);
}

fs::path OwnScenarios() { return fs::path(QUILL_TEST_DATA) / "scenarios"; }

std::vector<std::string> ScenariosIn(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code missing;
  for (const auto& entry : fs::directory_iterator(folder, missing)) {
    if (entry.path().extension() == ".scenario") names.push_back(entry.path().stem());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string Contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace quill::test
