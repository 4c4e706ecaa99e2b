#include "text/format.h"

namespace quill {
namespace {

// Folds one value into a hash (the multiplier of 64-bit FNV, with the high bits brought down).
void Fold(std::uint64_t& hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x100000001B3U;
  hash ^= hash >> 29U;
}

template <class T>
std::uint64_t Bits(T value) {
  return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
}

void Fold(std::uint64_t& hash, const Attributes& attributes) {
  Fold(hash, attributes.colour | Bits(attributes.bold) << 32U | Bits(attributes.underline) << 33U);
  Fold(hash, Bits(attributes.offset));
}

void Fold(std::uint64_t& hash, const CharacterLook& look) {
  Fold(hash, Bits(look.font) | Bits(look.halfPoints) << 16U | Bits(look.italic) << 32U |
                 Bits(look.struckOut) << 33U | Bits(look.hidden) << 34U |
                 Bits(look.rightToLeft) << 35U | Bits(look.fallback) << 36U |
                 (Bits(look.script) & 3U) << 52U | Bits(look.capitals) << 54U |
                 Bits(look.deleted) << 56U | Bits(look.inserted) << 57U);
  Fold(hash, (Bits(look.background) & 0xFFFFFFFFU) | Bits(look.spacing) << 32U);
}

void Fold(std::uint64_t& hash, const ParagraphLook& look) {
  Fold(hash, Bits(look.alignment) | Bits(look.rightToLeft) << 8U | Bits(look.inTable) << 9U |
                 Bits(look.proportional) << 10U | (Bits(look.left) & 0xFFFFU) << 16U |
                 (Bits(look.right) & 0xFFFFU) << 32U | (Bits(look.first) & 0xFFFFU) << 48U);
  Fold(hash, (Bits(look.before) & 0xFFFFU) | (Bits(look.after) & 0xFFFFU) << 16U |
                 (Bits(look.lineSpacing) & 0xFFFFU) << 32U | Bits(look.details) << 48U);
}

}  // namespace

Attributes Changed(const Attributes& attributes, const AttributeChange& change) {
  return {change.colour.value_or(attributes.colour), change.bold.value_or(attributes.bold),
          change.underline.value_or(attributes.underline),
          change.offset.value_or(attributes.offset)};
}

void Merge(AttributeChange& into, const AttributeChange& change) {
  if (change.colour) into.colour = change.colour;
  if (change.bold) into.bold = change.bold;
  if (change.underline) into.underline = change.underline;
  if (change.offset) into.offset = change.offset;
}

FormatTable::FormatTable() { Add({}); }

FormatId FormatTable::Add(const Format& format) {
  const auto [entry, isNew] = ids_.try_emplace(format, static_cast<FormatId>(formats_.size()));
  if (isNew) formats_.push_back(format);
  return entry->second;
}

std::size_t FormatTable::HashOf(const Format& format) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  Fold(hash, format.now);
  Fold(hash, format.written);
  Fold(hash, format.look);
  Fold(hash, format.paragraph);
  return hash;
}

}  // namespace quill
