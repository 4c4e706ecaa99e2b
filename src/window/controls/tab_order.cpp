#include "window/controls/tab_order.h"

namespace quill {
namespace {

// Boxes that empty themselves come after the buttons that use their words, and what a tag needs
// comes before what only shows it.
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

std::span<const std::string_view> TabOrder() { return kTabOrder; }

}  // namespace quill
