// Rich text, loaded, marked, edited, saved and loaded again. The last bytes of the input, usually
// after the file's last brace, determine what is done where.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "require.h"
#include "round_trip/round_trip.h"
#include "rtf/reader.h"
#include "rtf/writer.h"

namespace quill::fuzz {
namespace {

// One operation on a text.
struct Step {
  Range range;
  unsigned look = 0;
};

std::vector<Step> StepsOf(std::string_view bytes, Position length) {
  constexpr std::size_t kBytes = 3;  // of one step
  const auto number = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  std::vector<Step> steps;
  const std::size_t count = bytes.empty() ? 0 : 1 + number(bytes.size() - 1) % 3U;
  for (std::size_t at = bytes.size(); steps.size() < count && at >= kBytes; at -= kBytes) {
    const Position begin = (number(at - 1) * Position{7} + number(at - 2)) % length;
    const Position end = std::min<Position>(length, begin + 1 + number(at - 3) % 8);
    steps.push_back({{begin, end}, static_cast<unsigned>(number(at - 2) / 8U + steps.size())});
  }
  return steps;
}

Document Saved(const Document& document, std::size_t* size = nullptr) {
  std::string bytes = rtf::Write(document);
  if (size != nullptr) *size = bytes.size();
  std::optional<Document> again = rtf::Read(std::move(bytes));
  Require(again.has_value(), "what was saved does not load");
  again->Check();
  const std::string difference = Difference(document, *again);
  Require(difference.empty(), difference);
  return std::move(*again);
}

void MarkAll(Document& document, const std::vector<Step>& steps) {
  for (const Step& step : steps) Mark(document, step.range, step.look);
}

void CheckMarks(const Document& original, const std::vector<Step>& steps) {
  const Range all{0, original.Length()};
  const std::vector<Attributes> before = AttributesOf(original, all);
  Document document = original;
  MarkAll(document, steps);
  Restore(document, all, before);
  Require(rtf::Write(document) == original.GetSource().bytes,
          "marking and unmarking changed the bytes");

  // A text that is written anew may become longer once, so sizes are compared from the second round
  // on.
  std::size_t first = 0;
  for (int round = 0; round < 3; ++round) {
    MarkAll(document, steps);
    std::size_t size = 0;
    document = Saved(document, &size);
    if (round <= 1) first = size;
    Require(size <= first, "the file grew by marking again");
    Restore(document, all, before);
    document = Saved(document);
  }
  const std::string difference = Difference(original, document);
  Require(difference.empty(), difference);
}

void CheckEdits(Document document, const std::vector<Step>& steps) {
  for (const Step& step : steps) {
    const Range range{std::min(step.range.begin, document.Length()),
                      std::min(step.range.end, document.Length())};
    const std::u32string typed = std::u32string(U"a 9-{\\\u00e9\u20ac\U0001F600\n\t;}")
                                     .substr(step.look % 13, step.look % 4);
    const Attributes attributes =
        range.Length() > 0 ? document.At(range.begin) : Attributes{RGB(255, 0, 0), true, false, 0};
    // In a broken file, a text that has become empty has no certain place for new characters.
    const bool whole = range.Length() == document.Length();
    if (whole || !document.CanDelete(range)) {
      Mark(document, range, step.look);
      continue;
    }
    const std::vector<Cell> gone = document.Type(range, typed, attributes);
    if (step.look % 5 == 0) {
      const auto end = range.begin + static_cast<Position>(typed.size());
      document.Exchange({range.begin, end}, gone);
    }
  }
  document.Check();
  Saved(document);
}

void Check(std::string bytes) {
  const std::string_view whole = bytes;
  const std::optional<Document> document = rtf::Read(bytes);
  if (!document) return;
  // Longer texts only repeat the same things.
  constexpr Position kLongest = 3000;
  if (document->Length() == 0 || document->Length() > kLongest) return;
  const std::vector<Step> steps = StepsOf(whole, document->Length());
  CheckMarks(*document, steps);
  CheckEdits(*document, steps);
}

}  // namespace
}  // namespace quill::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  quill::fuzz::Check(bytes.starts_with("{\\rtf") ? std::move(bytes) : "{\\rtf1" + bytes);
  return 0;
}
