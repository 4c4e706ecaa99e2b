#include "rtf/writing/colour_numbers.h"

#include <algorithm>

namespace quill::rtf {
namespace {

constexpr Colour kBlack = 0;

unsigned Part(Colour colour, unsigned which) { return colour >> (8 * which) & 0xFFU; }

}  // namespace

ColourNumbers::ColourNumbers(const ColourTable& table)
    : table_(table), firstNew_(std::max<std::size_t>(table.entries.size(), table.highestUsed + 1)) {
  std::uint32_t number = 0;
  for (const ColourTable::Entry& entry : table.entries) {
    if (!entry.automatic) numbers_.try_emplace(entry.colour, number);
    ++number;
  }
  if (Gap() > 0) numbers_.try_emplace(kBlack, number);
}

std::uint32_t ColourNumbers::NumberOf(Colour colour) {
  const auto& entries = table_.entries;
  if (colour == kBlack && (entries.empty() || entries[0].automatic)) return 0;
  const auto next = static_cast<std::uint32_t>(firstNew_ + added_.size());
  const auto [entry, isNew] = numbers_.try_emplace(colour, next);
  if (isNew) added_.push_back(colour);
  return entry->second;
}

std::string ColourNumbers::TableInsertion() const {
  std::string text = table_.present ? "" : "{\\colortbl";
  if (!table_.endsInSemicolon) text += ';';
  text += GapEntries();
  for (const Colour colour : added_) {
    text += "\\red" + std::to_string(Part(colour, 0)) + "\\green" +
            std::to_string(Part(colour, 1)) + "\\blue" + std::to_string(Part(colour, 2)) + ";";
  }
  if (!table_.present) text += '}';
  return text;
}

// Entries that the file uses but its table lacks are black to other programs. The first entry of a
// table is the automatic colour.
std::string ColourNumbers::GapEntries() const {
  std::string text;
  for (std::size_t number = table_.entries.size(); number < firstNew_; ++number) {
    text += number == 0 ? ";" : "\\red0\\green0\\blue0;";
  }
  return text;
}

std::string ColourNumbers::MirrorInsertion() const {
  // Parts count hundred thousandths.
  const auto part = [](Colour colour, unsigned which) {
    return "\\c" + std::to_string((Part(colour, which) * 100000 + 127) / 255);
  };
  std::string text(Gap(), ';');
  for (const Colour colour : added_) {
    text += "\\cssrgb" + part(colour, 0) + part(colour, 1) + part(colour, 2) + ";";
  }
  return text;
}

}  // namespace quill::rtf
