// One line of a scenario, read word by word.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quill::scenario {

// A scenario that cannot go on: a step that is wrong, or a modal dialog that finds no fitting
// answer. It is no failed statement of the program and passes through all of its handlers; the
// program may not be used afterwards. The message is one line without the place in the scenario.
class ScenarioError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Words are separated by blanks and tabs. Every member throws ScenarioError where the line goes on
// otherwise than asked for; `what` names in the message what should stand there.
class LineReader {
 public:
  explicit LineReader(std::string_view line) : rest_(line) {}

  bool AtEnd();
  // The next character behind blanks begins a text.
  bool AtText();
  // A bare word.
  std::string_view Word(std::string_view what);
  // A text in double quotes, its escapes resolved.
  std::u32string Text(std::string_view what);
  // Decimal digits. A number beyond all that can be counted comes out as the greatest.
  std::int64_t Number(std::string_view what);
  // All that remains, without the blanks in front; it must not be empty.
  std::string_view Rest(std::string_view what);
  // The line must have ended.
  void End();

 private:
  void SkipBlanks();

  std::string_view rest_;
};

}  // namespace quill::scenario
