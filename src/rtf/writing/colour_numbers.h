// Assigns numbers in the colour table to the colours that a save writes.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "text/source.h"

namespace quill::rtf {

// New colours go after the highest number that the file uses, not just after the last entry: a
// number past the table's end means black until an entry is appended there.
class ColourNumbers {
 public:
  // The table must outlive the numbers.
  explicit ColourNumbers(const ColourTable& table);

  // The number of a colour, a new one if the table lacks it. Black is the automatic colour if the
  // table has that.
  std::uint32_t NumberOf(Colour colour);

  bool HasNew() const { return !added_.empty(); }
  // What to insert at the table's end for the new colours; a whole table if the file has none.
  std::string TableInsertion() const;
  // The same for the table that mirrors it.
  std::string MirrorInsertion() const;

 private:
  std::string GapEntries() const;
  std::size_t Gap() const { return firstNew_ - table_.entries.size(); }

  const ColourTable& table_;
  std::size_t firstNew_;
  std::unordered_map<Colour, std::uint32_t> numbers_;
  std::vector<Colour> added_;
};

}  // namespace quill::rtf
