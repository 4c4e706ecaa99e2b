// From a lemma to the parsing list on the real window, by mouse and keyboard.
#include <QtTest>

#include "shown_window.h"
#include "user.h"

namespace quill::test {
namespace {

TEST_F(WindowTest, FromALemmaToTheParsingListAndBack) {
  OpenText(R"(He came yesterday and left.\par)");
  disk.files["globaldict.gdf"] =
      "now\\               \\A< here >\r\nb\\                 \\B< x >\r\n";
  Press("add_to_dictionary");
  Key(Qt::Key_A, Qt::ControlModifier);
  Keys("soon");
  Press("A_type_add");
  ExpectShown(window, form);
  Press("Add_to_spec_dict");
  const std::vector<std::u32string> added = {U"soon\\      |A< Definition? >"};
  ASSERT_EQ(form.Parse_listbox.Items(), added);
  EXPECT_EQ(FocusName(), "RichTextBox1");
  ExpectShown(window, form);

  Press("Add_global_parsing_list");
  ASSERT_EQ(form.Parse_listbox.ListCount(), 3);
  ExpectShown(window, form);
  ClickRow("Parse_listbox", 1);
  EXPECT_EQ(form.WorkState.ParseIndex.Get(), 1);
  Press("Parse_cull");
  EXPECT_EQ(form.Parse_listbox.ListCount(), 2);
  EXPECT_EQ(form.Parse_listbox.ListIndex, -1);
  ExpectShown(window, form);
  Press("Undo_Parse_Cull");
  ASSERT_EQ(form.Parse_listbox.ListCount(), 3);
  EXPECT_EQ(form.Parse_listbox.List(1), U"now\\               \\A< here >");
  ExpectShown(window, form);
}

}  // namespace
}  // namespace quill::test
