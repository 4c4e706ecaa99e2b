// The two modes, the panels, and the wording of the guidance.
#include <gtest/gtest.h>

#include "info/guidance.h"
#include "support/workbench.h"
#include "text/unicode.h"

namespace quill::test {
namespace {

struct Blanks {
  std::size_t at;
  std::size_t count;
  bool operator==(const Blanks&) const = default;
};

// The runs of more than one blank.
std::vector<Blanks> BlankRuns(const std::u32string& text) {
  std::vector<Blanks> runs;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_not_of(U' ', at), text.size());
    if (end - at > 1) runs.push_back({at, end - at});
    at = std::max(end, at + 1);
  }
  return runs;
}

std::string WithoutRuns(std::u32string text) {
  const std::vector<Blanks> runs = BlankRuns(text);
  for (auto run = runs.rbegin(); run != runs.rend(); ++run) text.replace(run->at, run->count, U"|");
  return ToUtf8(text);
}

TEST(Guidance, HasItsWordsAndItsRunsOfBlanks) {
  // The first part ends in a blank of its own, before the run.
  EXPECT_EQ(WithoutRuns(ProcessGuidance()),
            "To proceed to the markup functions, select the relevant option from the "
            "Process-Menu:|Select >>Pre-Process<< to identify textual elements requiring "
            "markup.|Select >>Post-Process<< to describe the textual elements highlighted during "
            "Pre-Processing.");
  EXPECT_EQ(BlankRuns(ProcessGuidance()), (std::vector<Blanks>{{85, 68}, {222, 67}}));
  EXPECT_EQ(ProcessGuidance().size(), 380U);

  EXPECT_EQ(
      WithoutRuns(PreProcessModeText()),
      "In Pre-Processing mode, you identify the textual elements that carry information about "
      "time, the so-called >>temporal operators<<. We distinguish between A- and "
      "B-operators:|A-operators control the way in which we build up a mental image of the "
      "world represented in the text: they determine what a reader will consider to fall "
      "into past, present or future at any given >>point in text<<.|B-operators help us to "
      "structure a represented world internally in terms of before-after relations among its "
      "elements and events.");
  const std::vector<Blanks> runs = BlankRuns(PreProcessModeText());
  ASSERT_EQ(runs.size(), 2U);
  EXPECT_EQ(runs[0].count, 67U);
  EXPECT_EQ(runs[1].count, 65U);

  EXPECT_TRUE(BlankRuns(PostProcessModeText()).empty());
  EXPECT_TRUE(BlankRuns(PreProcessIntro()).empty());
}

TEST(Modes, SwitchBetweenTheFramesAndLoseNothing) {
  Workbench bench;
  Form1& form = bench.form;
  form.mnuProcess.Enabled = true;
  form.StartPosition.Text = U"5";
  form.AMarkedString.Text = U"pending";
  bench.program.Click(form.mnuPostProcess);
  EXPECT_TRUE(form.PostFrame.Visible && !form.PreFrame.Visible);
  EXPECT_TRUE(form.User_Dialogue.Text == PostProcessModeText());
  EXPECT_TRUE(form.ClassCombo.Enabled);  // the rules have run
  EXPECT_EQ(form.Focus(), &bench.text);
  bench.program.Click(form.mnuPreProcess);
  EXPECT_TRUE(form.PreFrame.Visible && !form.PostFrame.Visible);
  EXPECT_TRUE(form.User_Dialogue.Text == PreProcessModeText());
  EXPECT_TRUE(form.StartPosition.Text == U"5" && form.AMarkedString.Text == U"pending");
}

TEST(Modes, DialogueItemsArePairedAfterTheirFirstUse) {
  Workbench bench;
  Form1& form = bench.form;
  EXPECT_TRUE(form.mnuDialogue_on.Enabled && form.mnuDialogue_off.Enabled);
  bench.program.Click(form.mnuDialogue_off);
  EXPECT_TRUE(form.mnuDialogue_on.Enabled && !form.mnuDialogue_off.Enabled);
  bench.program.Click(form.mnuDialogue_on);
  EXPECT_TRUE(form.User_Dialogue.Visible);
  EXPECT_TRUE(!form.mnuDialogue_on.Enabled && form.mnuDialogue_off.Enabled);
  bench.program.Click(form.mnuDialogue_off);
  EXPECT_FALSE(form.User_Dialogue.Visible);
}

TEST(Modes, PanelsOpenAndCloseOverTheText) {
  Workbench bench;
  Form1& form = bench.form;
  bench.program.Click(form.CloseIDFrame);
  EXPECT_FALSE(form.IDFrame.Visible);
  bench.program.Click(form.mnuUserID);
  EXPECT_TRUE(form.IDFrame.Visible);
  for (MenuItem* item : {&form.mnuInfo, &form.mnuVLK}) {
    bench.program.Click(*item);
    EXPECT_TRUE(form.Infoframe.Visible);
    bench.program.Click(form.Close_Info);
    EXPECT_FALSE(form.Infoframe.Visible);
  }
}

}  // namespace
}  // namespace quill::test
