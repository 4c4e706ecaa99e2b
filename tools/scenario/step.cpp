#include "scenario/step.h"

#include "scenario/line_reader.h"
#include "text/unicode.h"

namespace quill::scenario {
namespace {

std::string Name(LineReader& line) { return std::string(line.Word("a control's name")); }

Step ParseClick(LineReader& line) {
  ClickStep step{Name(line), {}};
  if (!line.AtEnd()) step.item = line.Number("an item's index");
  return step;
}

Step ParsePick(LineReader& line) {
  PickStep step{Name(line)};
  step.row = line.Number("a row's index");
  return step;
}

Step ParseType(LineReader& line) {
  TypeStep step{Name(line), {}};
  step.text = line.Text("a text");
  return step;
}

Step ParseEnter(LineReader& line) {
  EnterStep step{Name(line), {}};
  step.text = line.Text("a text");
  return step;
}

Step ParseSelect(LineReader& line) {
  SelectStep step{line.Number("a start")};
  step.length = line.Number("a length");
  return step;
}

Step ParseClose(LineReader&) { return CloseStep(); }

Step ParseAnswer(LineReader& line) {
  if (line.AtText()) return AnswerStep{AnswerStep::kPath, line.Text("a path")};
  const std::string_view word = line.Word("an answer");
  if (word == "proposed") return AnswerStep{AnswerStep::kProposed, {}};
  if (word == "cancel") return AnswerStep{AnswerStep::kCancel, {}};
  if (word == "ok") return AnswerStep{AnswerStep::kOk, {}};
  if (word == "yes") return AnswerStep{AnswerStep::kYes, {}};
  if (word == "no") return AnswerStep{AnswerStep::kNo, {}};
  throw ScenarioError("no answer is called " + std::string(word));
}

// Comparing or printing a value recurses at each of its brackets.
bool IsShallow(int depth, Json::parse_event_t /*event*/, Json& /*parsed*/) {
  constexpr int kDeepest = 100;
  if (depth > kDeepest) throw ScenarioError("the value is nested too deep");
  return true;
}

Step ParseExpect(LineReader& line) {
  ExpectStep step{std::string(line.Word("what is expected")), {}};
  const std::string_view value = line.Rest("the value");
  try {
    step.value = Json::parse(value, IsShallow);
  } catch (const Json::exception&) {
    throw ScenarioError("this is no JSON value: " + std::string(value));
  }
  return step;
}

Step ParseDump(LineReader&) { return DumpStep(); }

struct Verb {
  std::string_view name;
  Step (*parse)(LineReader&);
};

constexpr Verb kVerbs[] = {
    {"click", ParseClick},   {"pick", ParsePick},     {"type", ParseType},
    {"enter", ParseEnter},   {"select", ParseSelect}, {"close", ParseClose},
    {"answer", ParseAnswer}, {"expect", ParseExpect}, {"dump", ParseDump},
};

}  // namespace

bool IsSkipped(std::string_view line) {
  LineReader reader(line);
  return reader.AtEnd() || reader.Rest("a step").front() == '#';
}

Step ParseStep(std::string_view line) {
  if (!IsUtf8(line)) throw ScenarioError("the line is not UTF-8");
  LineReader reader(line);
  const std::string_view word = reader.Word("a step");
  for (const Verb& verb : kVerbs) {
    if (verb.name != word) continue;
    Step step = verb.parse(reader);
    reader.End();
    return step;
  }
  throw ScenarioError("no step is called " + std::string(word));
}

}  // namespace quill::scenario
