// The dictionary panel: what becomes of a lemma, in the list, in the file and on the panel.
#include <gtest/gtest.h>

#include "operators/dictionary_entry.h"
#include "support/workbench.h"

namespace quill::test {
namespace {

struct DictionaryPanel : testing::Test, Workbench {
  DictionaryPanel() {
    ShowText(U"one two three", ".............");
    form.Frame5.Enabled = true;
    form.WorkState.SpecificDictFile = U"road.spd";
  }

  void FillIn(std::u32string_view lemma, std::u32string_view definition) {
    program.Enter(form.add_to_dictionary, lemma);
    program.Enter(form.Text2, definition);
  }
  // The enabled ones among the panel's buttons and its frame.
  std::string Open() const {
    std::string open;
    if (form.A_type_add.Enabled) open += 'A';
    if (form.B_type_add.Enabled) open += 'B';
    if (form.Add_to_global_dict.Enabled) open += 'g';
    if (form.Add_to_spec_dict.Enabled) open += 's';
    if (form.Frame1.Enabled) open += 'F';
    return open;
  }
  void ExpectReset() const {
    EXPECT_EQ(Open(), "");
    EXPECT_EQ(form.add_to_dictionary.Text, U"Lemma?");
    EXPECT_EQ(form.Text2.Text, U"Definition?");
    EXPECT_EQ(form.operator_category.Text, U" ");
  }
};

TEST(OperatorEntry, HasTwoForms) {
  const struct {
    OperatorEntry entry;
    std::u32string list, file;
  } table[] = {
      {{U"the day before", U"B", U"one day earlier"},
       U"the day before\\      |B< one day earlier >",
       U"the day before\\    \\B< one day earlier >"},
      {{U"", U"A", U"|<>\\"}, U"\\      |A< |<>\\ >", U"\\                  \\A< |<>\\ >"},
      // From 17 characters on the gap is one blank.
      {{U"seventeen letters", U" ", U" "},
       U"seventeen letters\\      | <   >",
       U"seventeen letters\\ \\ <   >"},
      {{U"more than seventeen", U"A", U"d"},
       U"more than seventeen\\      |A< d >",
       U"more than seventeen\\ \\A< d >"},
      {{U"a\nb\u2028c\r", U"A", U"d"}, U"a b c \\      |A< d >", U"a b c \\            \\A< d >"},
      {{U"a", U"A", U"d\ne\u2028f\rg"},
       U"a\\      |A< d e\u2028f g >",
       U"a\\                 \\A< d e\u2028f g >"},
  };
  for (const auto& row : table) {
    EXPECT_EQ(ListForm(row.entry), row.list);
    EXPECT_EQ(FileForm(row.entry), row.file);
  }
}

TEST_F(DictionaryPanel, ReservedCharactersAreRefused) {
  for (const char32_t* lemma : {U"\\", U"a|b", U"<", U"then>"}) {
    FillIn(lemma, U"lost");
    program.Click(form.B_type_add);
    dialogs.answers.emplace_back(Button::kOk);
    program.Click(form.Add_to_spec_dict);
    // The box has the focus again and is empty: its GotFocus comes last.
    EXPECT_EQ(form.Focus(), &form.add_to_dictionary);
    EXPECT_EQ(form.add_to_dictionary.Text, U" ");
    EXPECT_EQ(form.add_to_dictionary.BackColor, kWindowBackground);
    EXPECT_EQ(form.Text2.Text, U"Definition?");
    EXPECT_EQ(Open(), "ABF");
  }
  EXPECT_EQ(dialogs.shown.size(), 4U);
  EXPECT_EQ(dialogs.shown[0].box.icon, MessageBox::Icon::kCritical);
  EXPECT_EQ(form.Parse_listbox.ListCount(), 0);
  EXPECT_TRUE(disk.files.empty());
}

TEST_F(DictionaryPanel, OneBlankIsNoLemma) {
  program.Enter(form.add_to_dictionary, U"x");
  program.Enter(form.add_to_dictionary, U" ");
  program.Click(form.A_type_add);
  ExpectReset();

  // Refused at the dictionary button too, where the kind was chosen before.
  FillIn(U"x", U"y");
  program.Click(form.A_type_add);
  program.Enter(form.add_to_dictionary, U" ");
  EXPECT_EQ(Open(), "ABgsF");
  program.Click(form.Add_to_global_dict);
  ExpectReset();
  EXPECT_EQ(form.Parse_listbox.ListCount(), 0);

  // Two blanks are one, and so is nothing at all.
  for (const char32_t* lemma : {U"  ", U""}) {
    FillIn(lemma, U"y");
    program.Click(form.A_type_add);
    program.Click(form.Add_to_global_dict);
  }
  EXPECT_EQ(form.Parse_listbox.ListCount(), 2);
}

TEST_F(DictionaryPanel, AFileThatCannotBeWrittenIsPassedOver) {
  disk.Refuse(DiskCall::kAppendLine, "globaldict.gdf");
  FillIn(U"then", U"d");
  program.Click(form.A_type_add);
  program.Click(form.Add_to_global_dict);
  ExpectReset();
  EXPECT_EQ(form.Parse_listbox.ListCount(), 1);
  EXPECT_TRUE(dialogs.shown.empty());
}

}  // namespace
}  // namespace quill::test
