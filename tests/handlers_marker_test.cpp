// Marking by hand, with characters that keystrokes could change.
#include <gtest/gtest.h>

#include "support/workbench.h"

namespace quill::test {
namespace {

struct ManualMarker : testing::Test, Workbench {};

TEST_F(ManualMarker, ATermComesBackAsItWasWhateverItsCharacters) {
  const std::u32string term = U"+a^(%~)\r{b}\n[c]\t\u2028\U0001F600";
  ShowText(term, std::string(term.size(), '.'));
  program.Select(0, text.Length());
  program.Click(form.DefAMarker);
  EXPECT_EQ(form.AMarkedString.Text, term);
  program.Click(form.AMarkSet);
  EXPECT_EQ(text.Text(), term);
  EXPECT_EQ(Drawing(text), std::string(term.size(), 'a'));
  EXPECT_FALSE(text.CanUndo());
}

}  // namespace
}  // namespace quill::test
