// The one record of form-level state. It lives as long as the program and is never stored.
#pragma once

#include "workbench/work_value.h"

namespace quill {

struct WorkState {
  WorkValue TextBaseFile;      // path of the open text
  WorkValue TagListFile;       // path of its tag list
  WorkValue SpecificDictFile;  // path of its dictionary
  WorkValue MarkerColor;       // colour that navigation looks for
  WorkValue MarkedTerm;        // taken from the selection for the manual marker boxes
  WorkValue TextLen;           // length of the text when a scan began
  WorkValue ScanPos;           // 0-based: the character that the scan for marks looks at next
  WorkValue ParsePos;          // 1-based: where the search for a term goes on
  WorkValue TagStart;          // 1-based: first character of the current term
  WorkValue TagEnd;            // 1-based: its last character; navigation goes on behind it
  WorkValue CurrentTag;        // the tag line last taken from TagList
  WorkValue GeneratedTag;      // the tag line just composed
  WorkValue NextTagID;         // number for the tag being generated
  WorkValue CaretPos;          // 0-based: caret saved for the check for a tag
  WorkValue ParseIndex;        // copy of Parse_listbox.ListIndex
  WorkValue ParseLine;         // the item of Parse_listbox being searched for
  WorkValue ParseTerm;         // its term
  WorkValue ParseCategory;     // its category

  // Calls visit(name, field) for every field, in the order above.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    visit("TextBaseFile", TextBaseFile);
    visit("TagListFile", TagListFile);
    visit("SpecificDictFile", SpecificDictFile);
    visit("MarkerColor", MarkerColor);
    visit("MarkedTerm", MarkedTerm);
    visit("TextLen", TextLen);
    visit("ScanPos", ScanPos);
    visit("ParsePos", ParsePos);
    visit("TagStart", TagStart);
    visit("TagEnd", TagEnd);
    visit("CurrentTag", CurrentTag);
    visit("GeneratedTag", GeneratedTag);
    visit("NextTagID", NextTagID);
    visit("CaretPos", CaretPos);
    visit("ParseIndex", ParseIndex);
    visit("ParseLine", ParseLine);
    visit("ParseTerm", ParseTerm);
    visit("ParseCategory", ParseCategory);
  }
};

}  // namespace quill
