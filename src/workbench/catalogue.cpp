#include "workbench/catalogue.h"

#include <stdexcept>
#include <string>
#include <unordered_map>

namespace quill {
namespace {

// The lines fit the box at its stored size; the runs of blanks make empty lines in it.
constexpr std::u32string_view kWelcome =
    U"Welcome to Quillorandix!  \n"
    U"                                     \n"
    U"This window \n"
    U"contains the user \n"
    U"dialogue that will guide you \n"
    U"through the markup and \n"
    U"tagging process.                      \n"
    U"                                                   \n"
    U"To start working \n"
    U"with Quillorandix, first \n"
    U"open a text file using the \n"
    U"File-Menu.\n";

constexpr std::u32string_view kInfotext =
    U"Quillorandix helps scholars to study how narrative texts express time. The words and phrases "
    U"that carry time are marked in the text and then described one by one, each in a line of the "
    U"text's tag list. The two kinds of mark follow an old distinction of the philosophy of time: "
    U"in an A-series events are past, present or future as seen from a moving now; in a B-series "
    U"they are ordered once and for all as earlier and later. A-operators (blue) steer where the "
    U"reader's now stands; B-operators (red) order the events of the narrated world among "
    U"themselves.";

// clang-format off: a row a line
constexpr CatalogueRow kRows[] = {
    {"Form1", Kind::kForm, "", U"Quillorandix - Temporal Expression Marker and Tagger v.1.07", {0, 0, 14535, 10830}, {.backColor = kMenuBarColour, .foreColor = RGB(128, 0, 128)}},
    {"User_Dialogue", Kind::kTextBox, "Form1", kWelcome, {11160, 120, 3015, 4335}, {.visible = false, .backColor = kToolTipBackground, .foreColor = RGB(0, 0, 64), .multiLine = true, .verticalScrollBar = true, .points = 12}},
    {"Infoframe", Kind::kFrame, "Form1", U"Quillorandix 1.07 / 16.03.2004", {1080, 600, 9015, 2535}, {.visible = false, .backColor = kLightEdge, .foreColor = RGB(0, 0, 64)}},
    {"Close_Info", Kind::kButton, "Infoframe", U"Close", {6840, 2040, 1815, 375}},
    {"Infotext", Kind::kTextBox, "Infoframe", kInfotext, {240, 480, 8415, 1335}, {.backColor = kToolTipBackground, .foreColor = RGB(0, 0, 64), .multiLine = true, .tabStop = false}},
    {"IDFrame", Kind::kFrame, "Form1", U"User and Session ID Definition", {2400, 1320, 5775, 2535}, {.backColor = kActiveBorder}},
    {"UserID1", Kind::kTextBox, "IDFrame", U"User-ID", {240, 1320, 2055, 285}, {.foreColor = RGB(128, 0, 128)}},
    {"CloseIDFrame", Kind::kButton, "IDFrame", U"Close this window", {1680, 1920, 2655, 375}},
    {"SessionID", Kind::kTextBox, "IDFrame", U"Session-ID", {3600, 1320, 1935, 285}, {.foreColor = RGB(128, 0, 128)}},
    {"Label1", Kind::kLabel, "IDFrame", U"If you plan to execute multi-user and/or multi-session tagging, this window allows you to set a unique User-ID for every tagger, and a unique session ID for every tagging session.", {240, 600, 5295, 735}},
    {"RichTextBox1", Kind::kRichText, "Form1", U"", {120, 120, 14055, 4335}, {.backColor = kWindowBackground, .points = 12}},
    {"CommonDialog1", Kind::kFileDialog, "Form1", U""},
    {"PostFrame", Kind::kFrame, "Form1", U"Post-processing: Semantic instantiation of tags", {0, 4680, 14175, 5775}, {.visible = false, .foreColor = RGB(0, 0, 0)}},
    {"TagChecker", Kind::kButton, "PostFrame", U"Check for Tag", {12240, 360, 1695, 375}},
    {"RefFrame", Kind::kFrame, "PostFrame", U"Reference Tag Definition", {6960, 840, 5175, 975}, {.visible = false}},
    {"RefTagStop", Kind::kTextBox, "RefFrame", U"", {4200, 600, 855, 285}, {.backColor = kMenuBarColour, .foreColor = RGB(128, 0, 128)}},
    {"RefTagStart", Kind::kTextBox, "RefFrame", U"", {1800, 600, 975, 285}, {.backColor = kMenuBarColour, .foreColor = RGB(128, 0, 128)}},
    {"RefBox", Kind::kTextBox, "RefFrame", U"Reference Tag", {1800, 240, 3255, 285}},
    {"RefTag", Kind::kButton, "RefFrame", U"Determine selected reference tag", {120, 240, 1575, 615}, {.enabled = false}},
    {"RemoveItem", Kind::kButton, "PostFrame", U"Delete selected tag", {11880, 5040, 2055, 375}, {.enabled = false}},
    {"Restart_PP", Kind::kButton, "PostFrame", U"Restart", {3720, 480, 855, 375}},
    {"marked_term", Kind::kTextBox, "PostFrame", U"", {360, 960, 6495, 375}},
    {"ValBox", Kind::kTextBox, "PostFrame", U"Value ?", {5640, 1920, 1215, 315}, {.enabled = false}},
    {"FindBMarker", Kind::kButton, "PostFrame", U"Next <B> Marker", {2040, 480, 1575, 375}, {.backColor = RGB(255, 0, 0), .showsBackColor = true}},
    {"FindAMarker", Kind::kButton, "PostFrame", U"Next <A> Marker", {360, 480, 1575, 375}, {.backColor = RGB(128, 128, 255), .showsBackColor = true}},
    {"TypeCombo", Kind::kComboBox, "PostFrame", U"Type", {4320, 1440, 1215, 315}, {.enabled = false}},
    {"GranCombo", Kind::kComboBox, "PostFrame", U"Granularity", {5640, 1440, 1215, 315}, {.enabled = false}},
    {"ModeCombo", Kind::kComboBox, "PostFrame", U"Mode", {3000, 1440, 1215, 315}, {.enabled = false}},
    {"OperatorCombo", Kind::kComboBox, "PostFrame", U"Operator", {1680, 1440, 1215, 315}, {.enabled = false}},
    {"ClassCombo", Kind::kComboBox, "PostFrame", U"Class", {360, 1440, 1215, 315}, {.enabled = false}},
    {"EndPosition", Kind::kTextBox, "PostFrame", U"End", {3000, 1920, 1215, 320}, {.backColor = kActiveBorder, .foreColor = RGB(128, 0, 128), .centred = true, .bold = true, .points = 8.25}},
    {"StartPosition", Kind::kTextBox, "PostFrame", U"Start", {1680, 1920, 1215, 320}, {.backColor = kActiveBorder, .foreColor = RGB(128, 0, 128), .centred = true, .bold = true, .points = 8.25}},
    {"ID", Kind::kTextBox, "PostFrame", U"Tag-ID", {360, 1920, 1215, 320}, {.backColor = kActiveBorder, .foreColor = RGB(128, 0, 128), .centred = true, .bold = true, .points = 8.25}},
    {"Generate_Tag", Kind::kButton, "PostFrame", U"Generate / Edit  TAG ", {12240, 960, 1695, 855}, {.enabled = false}},
    {"TaggedString", Kind::kTextBox, "PostFrame", U"Tagged string", {360, 2400, 13575, 285}, {.backColor = kMenuBarColour, .foreColor = RGB(0, 0, 0)}},
    {"TagList", Kind::kListBox, "PostFrame", U"", {360, 2760, 13575, 2205}, {.backColor = kActiveBorder}},
    {"PreFrame", Kind::kFrame, "Form1", U"Pre-processing: Manual and semi-automatic pre-tagging of temporal expressions ", {120, 4560, 14055, 5535}, {.visible = false}},
    {"Text2", Kind::kTextBox, "PreFrame", U"Definition?", {4680, 1080, 1695, 375}},
    {"add_to_dictionary", Kind::kTextBox, "PreFrame", U"Lemma ?", {3720, 1080, 855, 375}, {.backColor = RGB(255, 255, 255)}},
    {"Add_to_spec_dict", Kind::kButton, "PreFrame", U"...to specific dictionary", {5640, 1560, 1815, 375}, {.enabled = false, .toolTip = U"The term and definition will be added to the dictionary unique to this text"}},
    {"AMarkReject", Kind::kButton, "PreFrame", U"Reject", {2520, 1080, 855, 375}, {.toolTip = U"Click here to undo your selection or an A-Marker previously set."}},
    {"AMarkSet", Kind::kButton, "PreFrame", U"Set", {1680, 1080, 735, 375}, {.enabled = false, .backColor = RGB(128, 128, 255), .showsBackColor = true, .toolTip = U"Click here to insert an A-Marker into the text file"}},
    {"BMarkReject", Kind::kButton, "PreFrame", U"Reject", {9960, 1080, 735, 375}},
    {"BMarkSet", Kind::kButton, "PreFrame", U"Set", {9000, 1080, 855, 375}, {.enabled = false, .backColor = RGB(255, 0, 0), .showsBackColor = true}},
    {"DefAMarker", Kind::kButton, "PreFrame", U"<A> Marker", {480, 1080, 1095, 375}, {.backColor = RGB(128, 128, 255), .showsBackColor = true, .toolTip = U"Click here to verify your selection for the A-Marker"}},
    {"DefBMarker", Kind::kButton, "PreFrame", U" <B> Marker", {7800, 1080, 1095, 375}, {.backColor = RGB(255, 0, 0), .showsBackColor = true}},
    {"AMarkedString", Kind::kTextBox, "PreFrame", U"", {480, 1560, 2895, 405}, {.foreColor = RGB(0, 0, 255), .multiLine = true}},
    {"BMarkedString", Kind::kTextBox, "PreFrame", U"", {7800, 1560, 2895, 405}, {.foreColor = RGB(255, 0, 0), .multiLine = true}},
    {"Frame2", Kind::kFrame, "PreFrame", U"Mark as an A-Operator:", {360, 840, 3135, 1335}},
    {"Frame4", Kind::kFrame, "PreFrame", U"Mark as a B-Operator", {7680, 840, 3135, 1335}},
    {"Frame5", Kind::kFrame, "PreFrame", U"Automatic pre-tagging", {240, 2760, 10695, 2295}, {.enabled = false}},
    {"Parse_3", Kind::kButton, "Frame5", U"Parse text for selected term only and confirm  markup step-by-step", {7440, 1320, 3135, 735}},
    {"TempList", Kind::kListBox, "Frame5", U"", {2400, 1920, 735, 255}, {.visible = false}},
    {"Deselect_Parse_Cull", Kind::kButton, "Frame5", U"Deselect", {2160, 1320, 1095, 375}},
    {"Undo_Parse_Cull", Kind::kButton, "Frame5", U"Undo", {1320, 1320, 735, 375}, {.enabled = false}},
    {"Parse_listbox", Kind::kListBox, "Frame5", U"", {3360, 360, 3975, 1815}, {.sorted = true, .toolTip = U"This is the list of terms defined as 'temporal operators' which will be automatically marked in the text."}},
    {"Parse_cull", Kind::kButton, "Frame5", U"Remove item", {120, 1320, 1095, 375}},
    {"Clear_list", Kind::kButton, "Frame5", U"Clear list", {120, 1800, 3135, 375}},
    {"Parse_2", Kind::kButton, "Frame5", U"Parse text for selected term only ", {7440, 840, 3135, 375}},
    {"Parse_1", Kind::kButton, "Frame5", U"Parse text for all listed terms", {7440, 360, 3135, 375}},
    {"Add_specific_parsing_list", Kind::kButton, "Frame5", U"Read in specific operators", {120, 840, 3135, 375}},
    {"Add_global_parsing_list", Kind::kButton, "Frame5", U"Read in global operators", {120, 360, 3135, 375}},
    {"Frame1", Kind::kFrame, "PreFrame", U"Add this operator to the knowledge base", {3600, 840, 3975, 1335}},
    {"B_type_add", Kind::kButton, "Frame1", U"B", {3360, 240, 495, 375}, {.enabled = false, .backColor = RGB(255, 0, 0), .showsBackColor = true}},
    {"A_type_add", Kind::kButton, "Frame1", U"A", {2880, 240, 495, 375}, {.enabled = false, .backColor = RGB(128, 128, 255), .showsBackColor = true}},
    {"Add_to_global_dict", Kind::kButton, "Frame1", U"... to global dictionary", {120, 720, 1815, 375}, {.enabled = false, .toolTip = U"The term and definition will be added to the global dictionary available for all texts"}},
    {"Frame3", Kind::kFrame, "PreFrame", U"Manual pre-tagging", {240, 480, 10695, 1935}, {.backColor = kInactiveBorder}},
    {"operator_category", Kind::kTextBox, "Frame3", U"operator_category", {5520, 120, 1815, 405}, {.visible = false}},
    {"spaceMnu0", Kind::kMenuItem, "Form1", U""},
    {"spaceMenu01", Kind::kMenuItem, "Form1", U""},
    {"mnuFile", Kind::kMenuItem, "Form1", U"&File"},
    {"mnuFileOpen", Kind::kMenuItem, "mnuFile", U"&Open file for tagging"},
    {"mnuFileSave", Kind::kMenuItem, "mnuFile", U"&Save a tagged file"},
    {"mnuFileClose", Kind::kMenuItem, "mnuFile", U"&Exit Quillorandix"},
    {"mnuSpace1", Kind::kMenuItem, "Form1", U""},
    {"mnuSpace2", Kind::kMenuItem, "Form1", U""},
    {"mnuProcess", Kind::kMenuItem, "Form1", U"&Process", {}, {.enabled = false}},
    {"mnuPreProcess", Kind::kMenuItem, "mnuProcess", U"&Pre-process file (mark <TAGS>)"},
    {"mnuPostProcess", Kind::kMenuItem, "mnuProcess", U"&Post-process file (expand <TAGS>)"},
    {"mnuSpace4", Kind::kMenuItem, "Form1", U""},
    {"mnuSpace3", Kind::kMenuItem, "Form1", U""},
    {"mnuSettings", Kind::kMenuItem, "Form1", U"&Settings"},
    {"mnuDialogue_off", Kind::kMenuItem, "mnuSettings", U"&User Dialogue off"},
    {"mnuDialogue_on", Kind::kMenuItem, "mnuSettings", U"&User Dialogue on"},
    {"mnuUserID", Kind::kMenuItem, "mnuSettings", U"&Define User and Session ID"},
    {"mnuSppace6", Kind::kMenuItem, "Form1", U""},
    {"mnuInfo", Kind::kMenuItem, "Form1", U"&Info"},
    {"mnuVLK", Kind::kMenuItem, "mnuInfo", U"&About Quillorandix"},
};
// clang-format on

constexpr std::u32string_view kClassRows[] = {U"Class\t", U"lexematic", U"grammatic", U"structural",
                                              U"rhetorical"};
constexpr std::u32string_view kOperatorRows[] = {U"Operator", U"a_operator", U"b_operator"};
// The trailing blanks belong to the values.
constexpr std::u32string_view kModeRows[] = {U"Mode", U"absolute ", U"relative"};
constexpr std::u32string_view kGranularityRows[] = {
    U"Granularity", U"instant ", U"sec ",  U"min ",        U"h ",     U"d ",
    U"week ",       U"month ",   U"year ", U"generation ", U"epoch ", U"vague"};

}  // namespace

std::span<const CatalogueRow> Catalogue() { return kRows; }

const CatalogueRow& RowOf(std::string_view name) {
  static const auto byName = [] {
    std::unordered_map<std::string_view, const CatalogueRow*> rows;
    for (const CatalogueRow& row : kRows) rows.emplace(row.name, &row);
    return rows;
  }();
  const auto found = byName.find(name);
  if (found == byName.end()) throw std::logic_error("no control " + std::string(name));
  return *found->second;
}

std::span<const std::u32string_view> ComboRows(std::string_view name) {
  if (name == "ClassCombo") return kClassRows;
  if (name == "OperatorCombo") return kOperatorRows;
  if (name == "ModeCombo") return kModeRows;
  if (name == "GranCombo") return kGranularityRows;
  return {};
}

}  // namespace quill
