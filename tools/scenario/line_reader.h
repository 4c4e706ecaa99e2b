// One line of a scenario, read word by word.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quill::scenario {

// A scenario that cannot continue: an invalid step, or a modal dialog without a suitable answer. It
// is not a failed statement of the program and passes through all handlers; the program must not be
// used afterwards. The message is one line, without the place in the scenario.
class ScenarioError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Words are separated by blanks and tabs. Every member throws ScenarioError if the line does not
// continue as asked for; in the message, `what` names what was expected.
class LineReader {
 public:
  explicit LineReader(std::string_view line) : rest_(line) {}

  bool AtEnd();
  // Whether the next character after blanks begins a text.
  bool AtText();
  // A bare word.
  std::string_view Word(std::string_view what);
  // A text in double quotes, its escapes resolved.
  std::u32string Text(std::string_view what);
  // Decimal digits. A number that is too large becomes the largest possible one.
  std::int64_t Number(std::string_view what);
  // The rest of the line, without leading blanks; it must not be empty.
  std::string_view Rest(std::string_view what);
  // The line must have ended.
  void End();

 private:
  void SkipBlanks();

  std::string_view rest_;
};

}  // namespace quill::scenario
