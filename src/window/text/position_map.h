// Positions of the text, which count characters, and of the widget, which count UTF-16 units: a
// sorted list of the characters beyond U+FFFF stands between them.
#pragma once

#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill {

class PositionMap {
 public:
  void Load(std::u32string_view text);
  // `inserted` stands at `at` where `removed` characters stood.
  void Replace(Position at, Position removed, std::u32string_view inserted);

  int ToWidget(Position position) const;
  // A place inside a character is the one before it.
  Position ToModel(int position) const;

 private:
  std::vector<Position> wide_;
};

}  // namespace quill
