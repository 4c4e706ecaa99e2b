// A place to play scenarios in.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quill::test {

// A fresh folder that is the current one while this lives: the files of scenarios are relative to
// it. It holds copies of the texts of a folder of scenarios, and an empty folder `folder.tbf`, to
// which no text can be saved.
class ScenarioFolder {
 public:
  explicit ScenarioFolder(const std::filesystem::path& texts);
  ~ScenarioFolder();
  ScenarioFolder(const ScenarioFolder&) = delete;
  ScenarioFolder& operator=(const ScenarioFolder&) = delete;

 private:
  std::filesystem::path former_;
  std::filesystem::path folder_;
};

// The folder of this project's scenarios.
std::filesystem::path OwnScenarios();
// The names, without extension, of the scenarios in a folder, sorted. Empty if the folder is
// missing.
std::vector<std::string> ScenariosIn(const std::filesystem::path& folder);

std::string Contents(const std::filesystem::path& path);

}  // namespace quill::test
