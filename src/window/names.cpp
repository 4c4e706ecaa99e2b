#include "window/names.h"

#include <algorithm>
#include <iterator>

#include "window/shown.h"

namespace quill {
namespace {

struct Spoken {
  std::string_view name;
  const char* words;
};

constexpr Spoken kSpoken[] = {
    {"User_Dialogue", "Guidance"},
    {"Infotext", "About the program"},
    {"UserID1", "User ID"},
    {"SessionID", "Session ID"},
    {"RichTextBox1", "Text"},
    {"RefTagStop", "End of the reference term"},
    {"RefTagStart", "Start of the reference term"},
    {"RefBox", "Reference tag"},
    {"marked_term", "Marked term"},
    {"ValBox", "Value"},
    {"TypeCombo", "Type"},
    {"GranCombo", "Granularity"},
    {"ModeCombo", "Mode"},
    {"OperatorCombo", "Operator"},
    {"ClassCombo", "Class"},
    {"EndPosition", "End of the term"},
    {"StartPosition", "Start of the term"},
    {"ID", "Tag ID"},
    {"TaggedString", "Tagged string"},
    {"TagList", "Tags"},
    {"Text2", "Definition"},
    {"add_to_dictionary", "Lemma"},
    {"AMarkedString", "Term of the A marker"},
    {"BMarkedString", "Term of the B marker"},
    {"AMarkReject", "Reject A marker"},
    {"AMarkSet", "Set A marker"},
    {"BMarkReject", "Reject B marker"},
    {"BMarkSet", "Set B marker"},
    {"A_type_add", "A operator"},
    {"B_type_add", "B operator"},
    {"TempList", "Removed terms"},
    {"Parse_listbox", "Terms to search for"},
    {"operator_category", "Category of the operator"},
};

constexpr std::string_view kTabOrder[] = {
    "UserID1", "SessionID", "CloseIDFrame", "Close_Info", "RichTextBox1", "User_Dialogue",
    // Pre-processing
    "DefAMarker", "AMarkSet", "AMarkReject", "AMarkedString", "add_to_dictionary", "Text2",
    "A_type_add", "B_type_add", "Add_to_global_dict", "Add_to_spec_dict", "DefBMarker", "BMarkSet",
    "BMarkReject", "BMarkedString", "Add_global_parsing_list", "Add_specific_parsing_list",
    "Parse_cull", "Undo_Parse_Cull", "Deselect_Parse_Cull", "Clear_list", "Parse_listbox",
    "Parse_1", "Parse_2", "Parse_3",
    // Post-processing
    "FindAMarker", "FindBMarker", "Restart_PP", "marked_term", "ClassCombo", "OperatorCombo",
    "ModeCombo", "TypeCombo", "GranCombo", "ID", "StartPosition", "EndPosition", "ValBox", "RefTag",
    "RefBox", "RefTagStart", "RefTagStop", "TagChecker", "Generate_Tag", "TaggedString", "TagList",
    "RemoveItem"};

}  // namespace

QString SpokenName(const CatalogueRow& row) {
  const auto* found = std::find_if(std::begin(kSpoken), std::end(kSpoken),
                                   [&](const Spoken& spoken) { return spoken.name == row.name; });
  if (found != std::end(kSpoken)) return QString::fromLatin1(found->words);
  return ToQt(row.text).simplified();
}

std::span<const std::string_view> TabOrder() { return kTabOrder; }

}  // namespace quill
