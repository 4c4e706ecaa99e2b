// The one record of form-level state. It lives as long as the program and is never stored.
#pragma once

#include <string>

#include "text/document.h"
#include "workbench/work_value.h"

namespace quill {

struct WorkState {
  using Text = WorkValue<std::u32string>;
  using Place = WorkValue<Position>;
  // Read from text that a user may have typed, so not always a whole number.
  using Number = WorkValue<double>;

  Text TextBaseFile;              // path of the open text
  Text TagListFile;               // path of its tag list
  Text SpecificDictFile;          // path of its dictionary
  WorkValue<Colour> MarkerColor;  // colour that navigation looks for
  Text MarkedTerm;                // taken from the selection for the manual marker boxes
  Place TextLen;                  // length of the text when a scan began
  Number ScanPos;                 // 0-based: the character that the scan for marks looks at next
  Place ParsePos;                 // 1-based: where the search for a term resumes
  Number TagStart;                // 1-based: first character of the current term
  Number TagEnd;                  // 1-based: its last character; navigation resumes after it
  Text CurrentTag;                // the tag line last taken from TagList
  Text GeneratedTag;              // the tag line just composed
  Number NextTagID;               // number for the tag being generated
  Place CaretPos;                 // 0-based: caret saved during the check for a tag
  WorkValue<int> ParseIndex;      // copy of Parse_listbox.ListIndex
  Text ParseLine;                 // the item of Parse_listbox being searched for
  Text ParseTerm;                 // its term
  Text ParseCategory;             // its category

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
