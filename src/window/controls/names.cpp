#include "window/controls/names.h"

#include <algorithm>
#include <iterator>

#include "window/shared/shown.h"

namespace quill {
namespace {

// A name of nullptr is the caption; a description of nullptr the tool tip, or none for a panel.
struct Spoken {
  std::string_view control;
  const char* name;
  const char* description;
};

constexpr Spoken kSpoken[] = {
    {"User_Dialogue", "Guidance", "What can be done next."},
    {"Infotext", "About the program", "Where the program comes from."},
    {"Close_Info", nullptr, "Closes the note on the program."},
    {"UserID1", "User ID", "Your name as a tagger. It stands in every tag that you make."},
    {"SessionID", "Session ID", "A name for today's work. It stands in every tag that you make."},
    {"CloseIDFrame", nullptr, "Closes this panel. What you entered is kept."},
    {"RichTextBox1", "Text", "The text on show. Select a term in it to mark the term."},
    // Pre-processing
    {"DefAMarker", nullptr, nullptr},
    {"AMarkSet", "Set A marker", nullptr},
    {"AMarkReject", "Reject A marker", nullptr},
    {"AMarkedString", "Term of the A marker",
     "The selected term. A change of it goes into the text when the marker is set."},
    {"DefBMarker", nullptr, "Takes the term selected in the text for a B marker."},
    {"BMarkSet", "Set B marker", "Marks the term in the text."},
    {"BMarkReject", "Reject B marker", "Gives up the selected term, or takes its B marker away."},
    {"BMarkedString", "Term of the B marker",
     "The selected term. A change of it goes into the text when the marker is set."},
    {"add_to_dictionary", "Lemma", "The form under which the term stands in a dictionary."},
    {"Text2", "Definition", "What the term means, for its entry in a dictionary."},
    {"A_type_add", "A operator", "The entry is to be an A operator."},
    {"B_type_add", "B operator", "The entry is to be a B operator."},
    {"Add_to_global_dict", "Add to global dictionary", nullptr},
    {"Add_to_spec_dict", "Add to specific dictionary", nullptr},
    {"operator_category", "Category of the operator", "Whether the entry is of kind A or B."},
    {"Add_global_parsing_list", nullptr,
     "Puts the terms of the dictionary for all texts on the list of terms."},
    {"Add_specific_parsing_list", nullptr,
     "Puts the terms of this text's own dictionary on the list of terms."},
    {"Parse_cull", nullptr, "Takes the selected term off the list of terms."},
    {"Undo_Parse_Cull", nullptr, "Puts the term that was removed last back on the list."},
    {"Deselect_Parse_Cull", nullptr, "Leaves no term of the list selected."},
    {"Clear_list", nullptr, "Takes all terms off the list of terms."},
    {"Parse_listbox", "Terms to search for", nullptr},
    {"TempList", "Removed terms", "Terms that were taken off the list of terms."},
    {"Parse_1", nullptr, "Marks every place of the text where a listed term stands."},
    {"Parse_2", nullptr, "Marks every place of the text where the selected term stands."},
    {"Parse_3", nullptr, "Shows each place of the selected term and asks whether to mark it."},
    // Post-processing
    {"FindAMarker", nullptr, "Goes to the next term marked as an A operator."},
    {"FindBMarker", nullptr, "Goes to the next term marked as a B operator."},
    {"Restart_PP", nullptr, "Begins again at the start of the text."},
    {"marked_term", "Marked term", "The term that the tag describes."},
    {"ClassCombo", "Class", "By what kind of means the term expresses time."},
    {"OperatorCombo", "Operator", "Whether the term is an A or a B operator."},
    {"ModeCombo", "Mode", "Absolute, or relative to the term of another tag."},
    {"TypeCombo", "Type", "How the term lies to the time, or to the term that it refers to."},
    {"GranCombo", "Granularity", "The unit of the time."},
    {"ID", "Tag ID", "The number of the tag."},
    {"StartPosition", "Start of the term", "Position in the text of the term's first character."},
    {"EndPosition", "End of the term", "Position in the text of the term's last character."},
    {"ValBox", "Value", "The time that the term stands for, where the mode is absolute."},
    {"RefTag", nullptr, "Takes the tag of the term selected in the text as the reference."},
    {"RefBox", "Reference tag", "The term that a relative tag refers to."},
    {"RefTagStart", "Start of the reference term",
     "Position in the text of the reference term's first character."},
    {"RefTagStop", "End of the reference term",
     "Position in the text of the reference term's last character."},
    {"TagChecker", nullptr, "Selects the tag of the term in which the caret stands."},
    {"Generate_Tag", nullptr,
     "Makes the tag and stores it. A selected tag gives way to the new one."},
    {"TaggedString", "Tagged string", "The tag as one line."},
    {"TagList", "Tags", "The tags of the text. A tag that is selected is shown in the text."},
    {"RemoveItem", nullptr, "Takes the selected tag off the list and the mark off its term."},
};

const Spoken* SpokenOf(const CatalogueRow& row) {
  const auto* const found =
      std::find_if(std::begin(kSpoken), std::end(kSpoken),
                   [&](const Spoken& spoken) { return spoken.control == row.name; });
  return found != std::end(kSpoken) ? found : nullptr;
}

// Boxes that empty themselves come behind what is done with their words, and what a tag needs comes
// before what only shows it.
constexpr std::string_view kTabOrder[] = {
    "UserID1", "SessionID", "CloseIDFrame", "Close_Info", "RichTextBox1", "User_Dialogue",
    // Pre-processing
    "DefAMarker", "AMarkReject", "AMarkedString", "AMarkSet", "DefBMarker", "BMarkReject",
    "BMarkedString", "BMarkSet", "A_type_add", "B_type_add", "Add_to_global_dict",
    "Add_to_spec_dict", "Text2", "add_to_dictionary", "Add_global_parsing_list",
    "Add_specific_parsing_list", "Parse_cull", "Undo_Parse_Cull", "Deselect_Parse_Cull",
    "Clear_list", "Parse_listbox", "Parse_1", "Parse_2", "Parse_3",
    // Post-processing
    "FindAMarker", "FindBMarker", "Restart_PP", "marked_term", "ClassCombo", "OperatorCombo",
    "ModeCombo", "TypeCombo", "GranCombo", "ValBox", "RefTag", "Generate_Tag", "ID",
    "StartPosition", "EndPosition", "RefBox", "RefTagStart", "RefTagStop", "TagChecker",
    "TaggedString", "TagList", "RemoveItem"};

}  // namespace

QString SpokenName(const CatalogueRow& row) {
  const Spoken* const spoken = SpokenOf(row);
  if (spoken != nullptr && spoken->name != nullptr) return QString::fromLatin1(spoken->name);
  return ToQt(row.text).simplified();
}

QString SpokenDescription(const CatalogueRow& row) {
  if (!row.stored.toolTip.empty()) return ToQt(row.stored.toolTip);
  const Spoken* const spoken = SpokenOf(row);
  if (spoken != nullptr) return QString::fromLatin1(spoken->description);
  // A note in a panel is what the panel has to say.
  for (const CatalogueRow& inside : Catalogue()) {
    if (inside.kind == Kind::kLabel && inside.container == row.name) return ToQt(inside.text);
  }
  return {};
}

std::span<const std::string_view> TabOrder() { return kTabOrder; }

}  // namespace quill
