// The parsing list: reading dictionaries into it, and thinning it out.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "operators/dictionary_entry.h"
#include "support/scenario_folder.h"
#include "support/workbench.h"
#include "text/unicode.h"

namespace quill::test {
namespace {

struct ParsingList : testing::Test, Workbench {
  ParsingList() {
    ShowText(U"one two three", ".............");
    form.Frame5.Enabled = true;
    form.WorkState.SpecificDictFile = U"road.spd";
  }

  void Read(const std::string& bytes) {
    disk.files["road.spd"] = bytes;
    program.Click(form.Add_specific_parsing_list);
  }
  std::u32string Items() const {
    std::u32string items;
    for (const std::u32string& item : form.Parse_listbox.Items()) items += item + U";";
    return items;
  }
  void Remove(int item) {
    program.ClickItem(form.Parse_listbox, item);
    program.Click(form.Parse_cull);
  }
};

TEST_F(ParsingList, ReadsAnyLineEndAndBothCodePages) {
  Read("\xEF\xBB\xBFzuletzt\\\r\ndann\\\rsp\xC3\xA4ter\\\n\nsp\xE4t\\");
  EXPECT_EQ(Items(), U";dann\\;spät\\;später\\;zuletzt\\;");
  EXPECT_EQ(form.User_Dialogue.Text,
            U"The temporal operators unique to the current text base "
            U"file have been added to the parsing list.");
  // A second reading adds them again, beside the first.
  Read("dann\\");
  EXPECT_EQ(Items(), U";dann\\;dann\\;spät\\;später\\;zuletzt\\;");
}

TEST_F(ParsingList, ADictionaryThatCannotBeReadIsTold) {
  Read("b\na\n");
  program.ClickItem(form.Parse_listbox, 1);
  program.Click(form.Add_global_parsing_list);
  EXPECT_EQ(Items(), U"a;b;");
  EXPECT_EQ(form.Parse_listbox.ListIndex, -1);
  // Deselecting raised an event: the searches would find nothing.
  EXPECT_EQ(form.WorkState.ParseIndex.Get(), -1);
  EXPECT_EQ(form.User_Dialogue.Text,
            U"There is no global dictionary yet: it is made when the "
            U"first term is added to it.");
  disk.Refuse(DiskCall::kRead, "road.spd");
  program.Click(form.Add_specific_parsing_list);
  EXPECT_EQ(form.User_Dialogue.Text, U"The dictionary of this text could not be read.");

  disk.files["globaldict.gdf"] = "";
  program.Click(form.Add_global_parsing_list);
  EXPECT_EQ(Items(), U"a;b;");
  EXPECT_EQ(form.User_Dialogue.Text,
            U"The pre-defined global temporal operator terms have "
            U"been added to the parsing list.");
}

TEST_F(ParsingList, ReadingInOneGoIsAddingOneByOne) {
  std::mt19937 random(7);
  std::vector<std::u32string> lines;
  for (int i = 0; i < 400; ++i) {
    std::u32string line;
    // Few letters, two of which collate as equal, so that the order of adding shows.
    for (unsigned length = random() % 4; length > 0; --length)
      line += U"aAä\u0000\u200Db"[random() % 6];
    lines.push_back(line);
  }
  ListBox& oneByOne = form.Parse_listbox;
  for (const std::u32string& line : lines) oneByOne.AddItem(line);
  const std::vector<std::u32string> expected = oneByOne.Items();
  oneByOne.Clear();
  const auto middle = lines.begin() + 150;
  oneByOne.AddItems({lines.begin(), middle});
  oneByOne.RemoveItem(3);
  oneByOne.Clear();
  oneByOne.AddItems({lines.begin(), middle});
  oneByOne.AddItems({middle, lines.end()});
  EXPECT_EQ(oneByOne.Items(), expected);
}

TEST_F(ParsingList, AFullListTakesNoMore) {
  std::string bytes;
  for (int i = 0; i < ListBox::kMostItems - 1; ++i) bytes += "b\\\n";
  Read(bytes);
  Read("c\\\na\\\n");
  ASSERT_EQ(form.Parse_listbox.ListCount(), ListBox::kMostItems);
  // One after another: there was room for the first.
  EXPECT_EQ(form.Parse_listbox.Items().back(), U"c\\");
  EXPECT_EQ(form.Parse_listbox.Items().front(), U"b\\");

  // The file takes what the list does not.
  program.Enter(form.add_to_dictionary, U"d");
  program.Click(form.A_type_add);
  program.Click(form.Add_to_spec_dict);
  EXPECT_NE(disk.files["road.spd"].find("\nd\\"), std::string::npos);
  EXPECT_FALSE(form.Frame1.Enabled);
  // Nor do the removed ones come back: they are forgotten.
  form.TempList.AddItem(U"a\\");
  form.Undo_Parse_Cull.Enabled = true;
  program.Click(form.Undo_Parse_Cull);
  EXPECT_EQ(form.TempList.ListCount(), 0);
  EXPECT_FALSE(form.Undo_Parse_Cull.Enabled);
  form.TempList.AddItems(std::vector<std::u32string>(ListBox::kMostItems, U"a"));
  Remove(0);
  EXPECT_EQ(form.Parse_listbox.ListCount(), ListBox::kMostItems - 1);
  EXPECT_TRUE(form.Undo_Parse_Cull.Enabled);
}

// Every line an entry in file form, and none twice.
TEST_F(ParsingList, TheExampleDictionaryIsWellFormed) {
  const std::string bytes =
      Contents(OwnScenarios().parent_path().parent_path() / "examples" / "globaldict.gdf");
  disk.files["globaldict.gdf"] = bytes;
  program.Click(form.Add_global_parsing_list);
  EXPECT_GE(form.Parse_listbox.ListCount(), 190);
  std::set<std::u32string_view> lemmas;
  for (const std::u32string& item : form.Parse_listbox.Items()) {
    const ItemParts parts = CutItem(item);
    ASSERT_TRUE(parts.Lemma) << ToUtf8(item);
    EXPECT_TRUE(parts.Category == U"A" || parts.Category == U"B") << ToUtf8(item);
    EXPECT_TRUE(lemmas.insert(*parts.Lemma).second) << "twice: " << ToUtf8(item);
    const std::size_t opening = item.find(U"< ");
    ASSERT_NE(opening, std::u32string::npos) << ToUtf8(item);
    const std::u32string definition = item.substr(opening + 2, item.size() - opening - 4);
    const OperatorEntry entry{std::u32string(*parts.Lemma), std::u32string(parts.Category),
                              definition};
    EXPECT_EQ(FileForm(entry), item) << ToUtf8(item);
    EXPECT_NE(bytes.find(ToUtf8(item) + "\r\n"), std::string::npos) << ToUtf8(item);
  }
}

}  // namespace
}  // namespace quill::test
