// Marking by hand: define, Set, Reject, and what they leave behind.
#include <gtest/gtest.h>

#include "support/workbench.h"

namespace quill::test {
namespace {

// The enabled ones of define A, define B, Set A, Set B, the two dictionary buttons, and Frame1.
std::string Buttons(const Form1& form) {
  std::string shown;
  const auto add = [&](const Control& control, const char* name) {
    if (control.Enabled) shown.append(shown.empty() ? "" : " ").append(name);
  };
  add(form.DefAMarker, "DefA");
  add(form.DefBMarker, "DefB");
  add(form.AMarkSet, "SetA");
  add(form.BMarkSet, "SetB");
  add(form.Add_to_global_dict, "Global");
  add(form.Add_to_spec_dict, "Spec");
  add(form.Frame1, "Frame1");
  return shown;
}

struct ManualMarker : testing::Test, Workbench {
  ManualMarker() { ShowText(U"one two three", "............."); }

  void Select(Position start, Position length) { program.Select(start, length); }
  std::string Bold() const {
    std::string bold;
    for (Position at = 0; at < text.Length(); ++at) bold += text.Doc().At(at).bold ? 'x' : '.';
    return bold;
  }
};

TEST_F(ManualMarker, DefineColoursTheSelectionAndTypesItIntoTheBox) {
  Select(4, 3);
  program.Click(form.DefAMarker);
  EXPECT_EQ(Drawing(text), "....aaa......");
  EXPECT_EQ(Bold(), ".............");
  EXPECT_TRUE(form.AMarkedString.Text == U"two");
  EXPECT_TRUE(form.AMarkedString.FontBold);
  EXPECT_EQ(form.Focus(), &form.AMarkedString);
  EXPECT_TRUE(form.WorkState.MarkedTerm == U"two");
  EXPECT_EQ(form.WorkState.MarkerColor.Number(), RGB(0, 0, 255));
  EXPECT_EQ(Buttons(form), "SetA Frame1");
}

TEST_F(ManualMarker, ATermComesBackAsItWasWhateverItsCharacters) {
  const std::u32string term = U"+a^(%~)\r{b}\n[c]\t\u2028\U0001F600";
  ShowText(term, std::string(term.size(), '.'));
  Select(0, text.Length());
  program.Click(form.DefAMarker);
  EXPECT_TRUE(form.AMarkedString.Text == term);
  program.Click(form.AMarkSet);
  EXPECT_EQ(text.Text(), term);
  EXPECT_EQ(Drawing(text), std::string(term.size(), 'a'));
  EXPECT_FALSE(text.CanUndo());
}

TEST_F(ManualMarker, DefineWithoutASelectionOnlyMovesTheButtons) {
  Select(4, 0);
  program.Click(form.DefBMarker);
  EXPECT_EQ(Drawing(text), ".............");
  EXPECT_TRUE(form.BMarkedString.Text == U"");
  EXPECT_FALSE(form.BMarkedString.FontBold);
  EXPECT_TRUE(form.WorkState.MarkedTerm.IsEmpty());
  EXPECT_EQ(form.WorkState.MarkerColor.Number(), RGB(255, 0, 0));
  EXPECT_EQ(form.Focus(), &text);
  EXPECT_EQ(Buttons(form), "SetB Frame1");

  // A Set from there types what the user enters at the caret, as a mark.
  program.Type(form.BMarkedString, U"half ");
  program.Click(form.BMarkSet);
  EXPECT_TRUE(text.Text() == U"one half two three");
  EXPECT_EQ(Drawing(text), "....bbbbb.........");
  EXPECT_EQ(Bold(), "....xxxxx.........");
}

TEST_F(ManualMarker, SetMarksAndHandsTheTermToTheDictionaryPanel) {
  struct Kind {
    CommandButton& define;
    CommandButton& set;
    const char* drawing;
    Colour lemmaColour;
    const char32_t* category;
  };
  for (const Kind& kind :
       {Kind{form.DefAMarker, form.AMarkSet, "....aaa......", RGB(128, 128, 255), U"A"},
        Kind{form.DefBMarker, form.BMarkSet, "....bbb......", RGB(255, 0, 0), U"B"}}) {
    Select(4, 3);
    program.Click(kind.define);
    program.Click(kind.set);
    EXPECT_TRUE(text.Text() == U"one two three");
    EXPECT_EQ(Drawing(text), kind.drawing);
    EXPECT_EQ(Bold(), "....xxx......");
    EXPECT_EQ(text.Selection(), (Range{7, 7}));
    EXPECT_TRUE(form.add_to_dictionary.Text == U"two");
    EXPECT_EQ(form.add_to_dictionary.BackColor.Get(), kind.lemmaColour);
    EXPECT_TRUE(form.operator_category.Text == kind.category);
    EXPECT_EQ(Buttons(form), "DefA DefB Frame1");
    EXPECT_TRUE(form.A_type_add.Enabled && form.B_type_add.Enabled);
    EXPECT_EQ(form.Focus(), &text);
  }
}

TEST_F(ManualMarker, SetWritesTheCorrectedTermOverTheSelectionOfItsMoment) {
  Select(4, 3);
  program.Click(form.DefAMarker);
  program.Enter(form.AMarkedString, U"seven");
  Select(8, 5);
  program.Click(form.AMarkSet);
  EXPECT_TRUE(text.Text() == U"one two seven");
  EXPECT_EQ(Drawing(text), "....aaa.aaaaa");
  EXPECT_EQ(Bold(), "........xxxxx");
}

TEST_F(ManualMarker, SetWithAnEmptyBoxLeavesTheDictionaryButtonsEnabled) {
  Select(4, 0);
  program.Click(form.DefAMarker);
  Select(4, 3);
  program.Click(form.AMarkSet);
  EXPECT_TRUE(text.Text() == U"one two three");
  EXPECT_EQ(Bold(), "....xxx......");
  EXPECT_EQ(text.Selection(), (Range{4, 7}));
  EXPECT_TRUE(form.add_to_dictionary.Text == U"");
  EXPECT_EQ(Buttons(form), "DefA DefB Global Spec Frame1");
}

TEST_F(ManualMarker, KeysArriveAsThemselves) {
  ShowText(U"a+^%~(){}[]\nb", ".............");
  Select(0, 12);
  program.Click(form.DefAMarker);
  EXPECT_TRUE(form.AMarkedString.Text == U"a+^%~(){}[]\n");
  program.Click(form.AMarkSet);
  EXPECT_TRUE(text.Text() == U"a+^%~(){}[]\nb");
  EXPECT_EQ(Drawing(text), "aaaaaaaaaaaa.");
}

TEST_F(ManualMarker, RejectTakesColourAndBoldOffAndEmptiesThePanel) {
  Select(4, 3);
  program.Click(form.DefAMarker);
  program.Click(form.AMarkSet);
  program.Click(form.AMarkReject);  // nothing is selected: the mark stays
  EXPECT_EQ(Drawing(text), "....aaa......");
  Select(4, 3);
  program.Click(form.BMarkReject);
  EXPECT_EQ(Drawing(text), ".............");
  EXPECT_EQ(Bold(), ".............");
  EXPECT_TRUE(form.add_to_dictionary.Text == U" ");
  EXPECT_EQ(form.add_to_dictionary.BackColor.Get(), RGB(255, 255, 255));
  EXPECT_EQ(Buttons(form), "DefA DefB Frame1");
}

// The two kinds differ where the lemma box holds one blank already, so that no Change opens Frame1.
TEST_F(ManualMarker, RejectAClosesFrame1WhereTheLemmaBoxHoldsOneBlank) {
  program.Click(form.BMarkReject);
  EXPECT_TRUE(form.Frame1.Enabled);
  program.Click(form.BMarkReject);
  EXPECT_TRUE(form.Frame1.Enabled);
  program.Click(form.AMarkReject);
  EXPECT_FALSE(form.Frame1.Enabled);
  program.Click(form.BMarkReject);
  EXPECT_FALSE(form.Frame1.Enabled);
  EXPECT_TRUE(form.operator_category.Text == U" ");
}

TEST_F(ManualMarker, RejectOfTheOtherKindLeavesThePendingSetAndItsTerm) {
  Select(4, 3);
  program.Click(form.DefAMarker);
  program.Click(form.BMarkReject);
  EXPECT_EQ(Buttons(form), "DefA DefB SetA Frame1");
  EXPECT_TRUE(form.AMarkedString.Text == U"two");
}

TEST_F(ManualMarker, GoingIntoABoxOfTheDictionaryPanelWipesIt) {
  program.GoInto(form.Text2);
  EXPECT_TRUE(form.Text2.Text == U" ");
  program.Type(form.add_to_dictionary, U"now");
  EXPECT_TRUE(form.add_to_dictionary.Text == U" now");
  EXPECT_TRUE(form.A_type_add.Enabled && form.B_type_add.Enabled && form.Frame1.Enabled);
  EXPECT_TRUE(form.operator_category.Text == U" ");
}

}  // namespace
}  // namespace quill::test
