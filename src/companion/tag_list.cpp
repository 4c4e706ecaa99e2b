#include "companion/tag_list.h"

#include <algorithm>
#include <array>

#include "disk/text_lines.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

constexpr std::u32string_view kOpening = U"t_op(";
constexpr std::u32string_view kClosing = U" )";
constexpr std::size_t kSeparator = 2;  // a backslash and a blank

// By field. Numbers need none: a text without digits is not a number anyway.
constexpr std::array<std::u32string_view, TagField::kCount> kPlaceholders = {
    U"",
    U"",
    U"",
    U"",
    Placeholder::kSessionId,
    Placeholder::kUserId,
    Placeholder::kClass,
    Placeholder::kOperator,
    Placeholder::kMode,
    Placeholder::kType,
    Placeholder::kGranularity,
    Placeholder::kValue,
    Placeholder::kRefTerm,
    U"",
    U""};

bool IsBlank(char32_t c) { return c == U' ' || c == U'\t'; }

std::u32string_view Trimmed(std::u32string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool KeepsBlanks(std::size_t field) {
  return field == TagField::kTerm || field == TagField::kValue || field == TagField::kRefTerm;
}

// Cuts the fields of a line that has all its separators. Returns what is wrong with any other line.
std::string CutStrictly(std::u32string_view line, TagFields& fields) {
  if (!line.starts_with(kOpening)) return "it does not begin with \"t_op(\"";
  if (!line.ends_with(kClosing)) return "it does not end with \" )\"";
  const auto separators = std::count(line.begin(), line.end(), U'\\');
  if (separators != TagField::kCount - 1) {
    return std::to_string(separators) + " backslashes where 14 part its fields";
  }
  fields = CutTag(line);
  // To its end, whatever parentheses it holds.
  const std::size_t begin = line.rfind(U'\\') + kSeparator;
  const std::size_t end = line.size() - kClosing.size();
  fields[TagField::kRefStop] = begin < end ? line.substr(begin, end - begin) : U"";
  return {};
}

std::string ReadSpan(Tag& tag) {
  const std::optional<Position> start = WholeNumber(tag.fields[TagField::kStart]);
  const std::optional<Position> end = WholeNumber(tag.fields[TagField::kEnd]);
  if (!start || *start < 1)
    return "its start is no position: " + ToUtf8(tag.fields[TagField::kStart]);
  if (!end || *end < 1) return "its end is no position: " + ToUtf8(tag.fields[TagField::kEnd]);
  if (*end < *start - 1) return "it ends before it starts";
  tag.span = {*start - 1, *end};
  return {};
}

}  // namespace

TagList ParseTagList(std::string path, std::string bytes) {
  TagList list;
  list.path = std::move(path);
  list.bytes = std::move(bytes);
  list.lines = DecodeLines(list.bytes);
  for (std::size_t i = 0; i < list.lines.size(); ++i) {
    if (list.lines[i].empty()) continue;
    Tag tag;
    tag.line = i + 1;
    std::string what = CutStrictly(list.lines[i], tag.fields);
    if (what.empty()) what = ReadSpan(tag);
    if (what.empty()) {
      list.tags.push_back(tag);
    } else {
      list.damages.push_back({tag.line, std::move(what)});
    }
  }
  return list;
}

void LeaveOutBeyond(TagList& list, Position length) {
  const auto fits = [&](const Tag& tag) { return tag.span.end <= length; };
  const auto beyond = std::stable_partition(list.tags.begin(), list.tags.end(), fits);
  for (auto tag = beyond; tag != list.tags.end(); ++tag) {
    list.damages.push_back({tag->line, "it ends beyond the text"});
  }
  list.tags.erase(beyond, list.tags.end());
  std::sort(list.damages.begin(), list.damages.end(),
            [](const Damage& a, const Damage& b) { return a.line < b.line; });
}

std::u32string_view Given(const Tag& tag, std::size_t field) {
  const std::u32string_view text = tag.fields[field];
  const std::u32string_view trimmed = Trimmed(text);
  if (trimmed == kPlaceholders[field]) return {};
  return KeepsBlanks(field) ? text : trimmed;
}

std::optional<Position> WholeNumber(std::u32string_view field) {
  constexpr Position kBeyondEveryText = 1'000'000'000'000;
  Position number = 0;
  bool any = false;
  for (const char32_t c : field) {
    if (IsBlank(c)) continue;
    if (c < U'0' || c > U'9') return std::nullopt;
    number = std::min(number * 10 + static_cast<Position>(c - U'0'), kBeyondEveryText);
    any = true;
  }
  return any ? std::optional(number) : std::nullopt;
}

std::optional<Reference> ReferenceOf(const Tag& tag) {
  Reference reference;
  reference.term = Given(tag, TagField::kRefTerm);
  const Position start = WholeNumber(tag.fields[TagField::kRefStart]).value_or(0);
  if (start > 0) {
    const Position stop = WholeNumber(tag.fields[TagField::kRefStop]).value_or(-1);
    reference.span = {start - 1, stop};
  }
  if (Trimmed(reference.term).empty()) reference.term = {};
  if (!reference.span && reference.term.empty()) return std::nullopt;
  return reference;
}

References::References(const TagList& list) {
  for (std::size_t i = 0; i < list.tags.size(); ++i) {
    lastAt_[{list.tags[i].span.begin, list.tags[i].span.end}] = i;
  }
}

std::optional<std::size_t> References::TargetOf(const Tag& tag) const {
  const std::optional<Reference> reference = ReferenceOf(tag);
  return reference && reference->span ? LastAt(*reference->span) : std::nullopt;
}

std::optional<std::size_t> References::LastAt(Range span) const {
  const auto found = lastAt_.find({span.begin, span.end});
  return found == lastAt_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace quill::companion
