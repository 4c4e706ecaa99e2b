// The picture of one text: selects what the drawing shows of its tags.

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "companion/command.h"
#include "companion/output.h"
#include "companion/picture.h"
#include "companion/tagged_text.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

constexpr std::array kClasses = {U"lexematic", U"grammatic", U"structural", U"rhetorical"};

PictureTag::Kind KindOf(const Tag& tag) {
  const std::u32string_view kind = Given(tag, TagField::kOperator);
  if (kind == U"a_operator") return PictureTag::Kind::kA;
  return kind == U"b_operator" ? PictureTag::Kind::kB : PictureTag::Kind::kOther;
}

PictureTag::Mode ModeOf(const Tag& tag) {
  const std::u32string_view mode = Given(tag, TagField::kMode);
  if (mode == U"absolute") return PictureTag::Mode::kAbsolute;
  return mode == U"relative" ? PictureTag::Mode::kRelative : PictureTag::Mode::kOther;
}

std::u32string ReferenceText(const Reference& reference) {
  std::u32string text = U"\u2192 " + std::u32string(reference.term);
  if (reference.span) {
    const std::string place = " (" + std::to_string(reference.span->begin + 1) + "\u2013" +
                              std::to_string(reference.span->end) + ")";
    text += FromUtf8(place);
  }
  return text;
}

std::vector<std::u32string> ToldBy(const Tag& tag) {
  std::vector<std::u32string> told;
  for (const std::size_t field : {TagField::kClass, TagField::kOperator, TagField::kMode,
                                  TagField::kType, TagField::kGranularity, TagField::kValue}) {
    if (const auto text = Given(tag, field); !text.empty()) told.emplace_back(text);
  }
  if (const auto reference = ReferenceOf(tag)) told.push_back(ReferenceText(*reference));
  for (const std::size_t field : {TagField::kUserId, TagField::kSessionId}) {
    if (const auto text = Given(tag, field); !text.empty()) told.emplace_back(text);
  }
  return told;
}

PictureTag Drawn(const Tag& tag, Position length) {
  PictureTag drawn;
  drawn.span = tag.span;
  drawn.lane = Given(tag, TagField::kClass);
  drawn.kind = KindOf(tag);
  drawn.mode = ModeOf(tag);
  drawn.term = tag.fields[TagField::kTerm];
  drawn.told = ToldBy(tag);
  const auto reference = ReferenceOf(tag);
  if (drawn.mode == PictureTag::Mode::kRelative && reference && reference->span &&
      reference->span->begin < length) {
    drawn.reference = reference->span;
  }
  return drawn;
}

// The four classes of the tag editor, even if they do not occur; then others by name; then "no
// class".
std::vector<std::u32string> LanesOf(const std::vector<PictureTag>& tags) {
  std::vector<std::u32string> lanes(kClasses.begin(), kClasses.end());
  std::vector<std::u32string> others;
  bool none = false;
  for (const PictureTag& tag : tags) {
    if (tag.lane.empty()) {
      none = true;
    } else if (std::find(lanes.begin(), lanes.end(), tag.lane) == lanes.end()) {
      others.push_back(tag.lane);
    }
  }
  std::sort(others.begin(), others.end());
  others.erase(std::unique(others.begin(), others.end()), others.end());
  lanes.insert(lanes.end(), others.begin(), others.end());
  if (none) lanes.emplace_back();
  return lanes;
}

Picture PictureOf(const TaggedText& text) {
  Picture picture;
  const std::size_t folder = text.path.rfind('/');
  picture.name = FromUtf8(text.path.substr(folder == std::string::npos ? 0 : folder + 1));
  picture.length = text.text.Length();
  for (Position at = 0; at < picture.length; ++at) {
    if (text.text.characters[static_cast<std::size_t>(at)] == kParagraphEnd) {
      picture.paragraphEnds.push_back(at + 1);
    }
  }
  for (const TagList& list : text.lists) {
    for (const Tag& tag : list.tags) picture.tags.push_back(Drawn(tag, picture.length));
  }
  picture.lanes = LanesOf(picture.tags);
  return picture;
}

}  // namespace

void RunPicture(const Options& options, Console& console) {
  Output output(options, console);
  ForEachSoundText(options, console, [&](const TaggedText& text) {
    output.Write(DrawPicture(PictureOf(text)));
    output.Finish();
  });
}

}  // namespace quill::companion
