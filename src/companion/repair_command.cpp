#include <array>
#include <string>
#include <string_view>

#include "companion/command.h"
#include "companion/output.h"
#include "companion/placement.h"
#include "companion/tagged_text.h"
#include "disk/text_lines.h"
#include "text/unicode.h"

// Lines are changed as bytes: backslashes and digits are the same in every encoding that a list may
// have, and everything else stays as it is.
namespace quill::companion {
namespace {

// A number to be written into a field.
struct Correction {
  std::size_t field;
  Position number;
};

// The place of a field in the bytes of a line.
struct Extent {
  std::size_t begin;
  std::size_t end;
};

// Not for the first field. The last one extends to the end of the line.
Extent ExtentOf(std::string_view line, std::size_t field) {
  std::size_t separator = line.find('\\');
  for (std::size_t i = 1; i < field; ++i) separator = line.find('\\', separator + 1);
  const std::size_t end = std::min(line.find('\\', separator + 1), line.size());
  return {std::min(separator + 2, end), end};
}

void WriteNumber(std::string& line, const Correction& correction) {
  constexpr const char* kDigits = "0123456789";
  const Extent extent = ExtentOf(line, correction.field);
  const std::string_view field =
      std::string_view(line).substr(extent.begin, extent.end - extent.begin);
  const std::size_t first = field.find_first_of(kDigits);
  if (first == std::string_view::npos) return;
  const std::size_t last = field.find_last_of(kDigits);
  line.replace(extent.begin + first, last - first + 1, std::to_string(correction.number));
}

std::string PlaceText(Range range) {
  return std::to_string(range.begin + 1) + "-" + std::to_string(range.end);
}

class Repair {
 public:
  Repair(const TaggedText& text, Console& console)
      : text_(text.text),
        list_(text.lists.front()),
        placement_(Place(text_, list_)),
        console_(console) {}

  std::string Run() {
    for (const Damage& damage : list_.damages) {
      console_.Complain(list_.path, damage.line, "damaged: " + damage.what);
    }
    std::string result;
    std::string_view rest = list_.bytes;
    std::size_t tag = 0;
    std::size_t number = 0;
    for (const std::string_view line : SplitLines(list_.bytes)) {
      const auto gap = static_cast<std::size_t>(line.data() - rest.data());
      result += rest.substr(0, gap);
      rest.remove_prefix(gap + line.size());
      ++number;
      const bool isTag = tag < list_.tags.size() && list_.tags[tag].line == number;
      result += isTag ? Repaired(line, tag++) : std::string(line);
    }
    result += rest;
    return result;
  }

 private:
  std::string Repaired(std::string_view bytes, std::size_t i) {
    std::string line(bytes);
    const Tag& tag = list_.tags[i];
    Correct(line, tag, "", {TagField::kStart, TagField::kEnd}, tag.span, placement_.tags[i],
            tag.fields[TagField::kTerm]);
    const std::optional<Reference> reference = ReferenceOf(tag);
    if (reference && reference->span) {
      Correct(line, tag, "reference ", {TagField::kRefStart, TagField::kRefStop}, *reference->span,
              placement_.references[i], reference->term);
    }
    return line;
  }

  void Correct(std::string& line, const Tag& tag, const std::string& what,
               std::array<std::size_t, 2> fields, Range span, std::optional<Range> place,
               std::u32string_view term) {
    const std::string named = what + "\"" + ToUtf8(term) + "\"";
    if (place && *place != span) {
      WriteNumber(line, {fields[0], place->begin + 1});
      WriteNumber(line, {fields[1], place->end});
      console_.Remark(list_.path + ":" + std::to_string(tag.line) + ": moved: " + named + " from " +
                      PlaceText(span) + " to " + PlaceText(*place));
    } else if (!place && !Stands(span, term, !what.empty())) {
      console_.Complain(list_.path, tag.line,
                        (what.empty() ? "lost: " : "reference-lost: ") + named + " is not at " +
                            PlaceText(span) + ", and no place for it is known");
    }
  }

  // A reference without a term has nothing that could be missing.
  bool Stands(Range span, std::u32string_view term, bool isReference) const {
    if (isReference && term.empty()) return true;
    return span.begin <= span.end && span.end <= text_.Length() && text_.At(span) == term;
  }

  const Text& text_;
  const TagList& list_;
  Placement placement_;
  Console& console_;
};

}  // namespace

void RunRepair(const Options& options, Console& console) {
  Output output(options, console);
  bool done = false;
  ForEachText(options, console, [&](const TaggedText& text) {
    output.Write(Repair(text, console).Run());
    done = true;
  });
  if (done) output.Finish();
}

}  // namespace quill::companion
