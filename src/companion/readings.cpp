#include "companion/readings.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "companion/csv.h"
#include "companion/tagged_text.h"
#include "disk/statement_failed.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

class Labels {
 public:
  Label Of(std::u32string_view value) {
    if (value.empty()) return kNotGiven;
    const auto found = numbers_.find(value);
    if (found != numbers_.end()) return found->second;
    const auto number = static_cast<Label>(numbers_.size());
    return numbers_.emplace(value, number).first->second;
  }

 private:
  std::map<std::u32string, Label, std::less<>> numbers_;
};

// All texts of a call must be the same, or positions would mean different things in each.
class OneText {
 public:
  void Compare(const TaggedText& text) {
    if (!first_) {
      first_ = text.text.characters;
      path_ = text.path;
      return;
    }
    const std::u32string& other = text.text.characters;
    const auto [a, b] = std::mismatch(first_->begin(), first_->end(), other.begin(), other.end());
    if (a == first_->end() && b == other.end()) return;
    throw StatementFailed(path_ + " and " + text.path + " differ from character " +
                          std::to_string(a - first_->begin() + 1) +
                          " on: " + Shown(a, first_->end()) + ", " + Shown(b, other.end()));
  }

 private:
  using Place = std::u32string::const_iterator;
  static std::string Shown(Place at, Place end) {
    constexpr std::ptrdiff_t kShown = 12;
    if (at == end) return "the end";
    std::u32string text(at, at + std::min(kShown, end - at));
    std::replace(text.begin(), text.end(), kParagraphEnd, U' ');
    return "\"" + ToUtf8(text) + "\"";
  }

  std::optional<std::u32string> first_;
  std::string path_;
};

using Spans = std::map<std::pair<Position, Position>, Judgement>;

class Collector {
 public:
  explicit Collector(const Options& options) : by_(options.by) {}

  void Add(const TagList& list) {
    // A list is a reader even if there is nothing in it.
    if (by_ == "file") readers_[PathText(list.path)];
    for (const Tag& tag : list.tags) {
      readers_[NameOf(list, tag)].insert_or_assign({tag.span.begin, tag.span.end},
                                                   JudgementOf(tag));
    }
  }

  std::map<std::string, Reading> Readings() const {
    if (readers_.size() < 2) {
      throw StatementFailed(readers_.empty()
                                ? "there are no readers to compare"
                                : "there is one reader alone, " + readers_.begin()->first +
                                      ": nothing to compare");
    }
    std::map<std::string, Reading> readings;
    for (const auto& [name, spans] : readers_) {
      Reading& reading = readings[name];
      reading.reserve(spans.size());
      for (const auto& [span, judgement] : spans) reading.push_back(judgement);
    }
    return readings;
  }

 private:
  std::string NameOf(const TagList& list, const Tag& tag) const {
    if (by_ == "file") return PathText(list.path);
    const bool user = by_ == "user";
    const std::u32string_view name = Given(tag, user ? TagField::kUserId : TagField::kSessionId);
    if (name.empty()) {
      throw StatementFailed(list.path + ":" + std::to_string(tag.line) + ": the tag names no " +
                            by_ + ", so nobody can tell whose it is");
    }
    return ToUtf8(name);
  }

  Judgement JudgementOf(const Tag& tag) {
    Judgement judgement;
    judgement.span = tag.span;
    for (std::size_t i = 0; i < kEnumeratedFields.size(); ++i) {
      judgement.labels[i] = labels_[i].Of(Given(tag, kEnumeratedFields[i].field));
    }
    if (const auto reference = ReferenceOf(tag)) judgement.reference = {true, reference->span};
    return judgement;
  }

  const std::string& by_;
  std::array<Labels, kEnumeratedFields.size()> labels_;
  std::map<std::string, Spans> readers_;
};

}  // namespace

std::map<std::string, Reading> ReadingsOf(const Options& options, Console& console) {
  OneText oneText;
  Collector collector(options);
  ForEachSoundText(options, console, [&](const TaggedText& text) {
    oneText.Compare(text);
    for (const TagList& list : text.lists) collector.Add(list);
  });
  return collector.Readings();
}

}  // namespace quill::companion
