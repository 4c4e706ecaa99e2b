// The steps of a scenario, as its lines have them. Names are not looked up yet.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quill::scenario {

// Keeps members in the order in which they are written.
using Json = nlohmann::ordered_json;

struct ClickStep {
  std::string name;
  std::optional<std::int64_t> item;  // of a list box
};
struct PickStep {
  std::string name;
  std::int64_t row = 0;
};
struct TypeStep {
  std::string name;
  std::u32string text;
};
struct EnterStep {
  std::string name;
  std::u32string text;
};
struct SelectStep {
  std::int64_t start = 0;
  std::int64_t length = 0;
};
struct CloseStep {};

struct AnswerStep {
  enum Kind { kPath, kProposed, kCancel, kOk, kYes, kNo };
  Kind kind = kPath;
  std::u32string path;
};

struct ExpectStep {
  std::string target;
  Json value;
};
struct DumpStep {};

using Step = std::variant<ClickStep, PickStep, TypeStep, EnterStep, SelectStep, CloseStep,
                          AnswerStep, ExpectStep, DumpStep>;

// Whether the line is blank or a comment (its first character other than a blank is `#`).
bool IsSkipped(std::string_view line);

// Reads a line, without its line end, that is not skipped. Throws ScenarioError if it is not a
// step.
Step ParseStep(std::string_view line);

}  // namespace quill::scenario
