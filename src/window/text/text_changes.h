// What changed in the text since it was last shown, gathered over an action.
#pragma once

#include <vector>

#include "text/document.h"

namespace quill {

struct TextChanges {
  // `inserted` characters stand at `at` where `removed` characters were shown. It spans all edits.
  struct Edit {
    Position at = 0;
    Position removed = 0;
    Position inserted = 0;
  };

  bool loaded = false;  // the whole text is another one; the rest does not matter then
  bool edited = false;
  Edit edit;
  std::vector<Range> formats;  // in the positions of the text as it is now, as they came

  void Load();
  void Replace(Position at, Position removed, Position inserted);
  void Format(Range range);

  // The formats in order, inside a text of that length, each character once.
  std::vector<Range> MergedFormats(Position length) const;
};

}  // namespace quill
