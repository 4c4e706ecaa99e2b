// The texts in the window at startup, word by word: a third of the catalogue.
#include <gtest/gtest.h>

#include "text/unicode.h"
#include "workbench/catalogue.h"

namespace quill::test {
namespace {

TEST(Catalogue, ReadsAsItIsGiven) {
  const struct {
    const char* name;
    const char32_t* text;
    bool enabled = true;
    bool visible = true;
    const char32_t* toolTip = U"";
  } kRows[] = {
      {"Form1", U"Quillorandix - Temporal Expression Marker and Tagger v.1.07"},
      {"Infoframe", U"Quillorandix 1.07 / 16.03.2004", true, false},
      {"IDFrame", U"User and Session ID Definition"},
      {"UserID1", U"User-ID"},
      {"SessionID", U"Session-ID"},
      {"CloseIDFrame", U"Close this window"},
      {"PostFrame", U"Post-processing: Semantic instantiation of tags", true, false},
      {"RefTag", U"Determine selected reference tag", false},
      {"RefFrame", U"Reference Tag Definition", true, false},
      {"RemoveItem", U"Delete selected tag", false},
      {"Restart_PP", U"Restart"},
      {"FindAMarker", U"Next <A> Marker"},
      {"ValBox", U"Value ?", false},
      {"GranCombo", U"Granularity", false},
      {"ID", U"Tag-ID"},
      {"Generate_Tag", U"Generate / Edit  TAG ", false},
      {"TagChecker", U"Check for Tag"},
      {"add_to_dictionary", U"Lemma ?"},
      {"Text2", U"Definition?"},
      {"Add_to_spec_dict", U"...to specific dictionary", false, true,
       U"The term and definition will be added to the dictionary unique to this text"},
      {"AMarkReject", U"Reject", true, true,
       U"Click here to undo your selection or an A-Marker previously set."},
      {"AMarkSet", U"Set", false, true, U"Click here to insert an A-Marker into the text file"},
      {"BMarkSet", U"Set", false},
      {"DefAMarker", U"<A> Marker", true, true,
       U"Click here to verify your selection for the A-Marker"},
      {"Frame5", U"Automatic pre-tagging", false},
      {"Parse_3", U"Parse text for selected term only and confirm  markup step-by-step"},
      {"TempList", U"", true, false},
      {"Parse_listbox", U"", true, true,
       U"This is the list of terms defined as 'temporal operators' which will be automatically "
       U"marked in the text."},
      {"operator_category", U"operator_category", true, false},
      {"mnuProcess", U"&Process", false},
      {"mnuPreProcess", U"&Pre-process file (mark <TAGS>)"},
      {"mnuDialogue_on", U"&User Dialogue on"},
  };
  for (const auto& row : kRows) {
    const CatalogueRow& found = RowOf(row.name);
    EXPECT_EQ(ToUtf8(found.text), ToUtf8(row.text)) << row.name;
    EXPECT_EQ(ToUtf8(found.stored.toolTip), ToUtf8(row.toolTip)) << row.name;
    EXPECT_EQ(found.stored.enabled, row.enabled) << row.name;
    EXPECT_EQ(found.stored.visible, row.visible) << row.name;
  }
  EXPECT_EQ(ToUtf8(RowOf("User_Dialogue").text).substr(0, 27), "Welcome to Quillorandix!  \n");
  EXPECT_TRUE(ComboRows("GranCombo")[1] == U"instant ");
  EXPECT_TRUE(ComboRows("ClassCombo")[0] == U"Class\t");
}

}  // namespace
}  // namespace quill::test
