// A text with the tag lists that belong to it, and the reading of both.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "companion/console.h"
#include "companion/options.h"
#include "companion/tag_list.h"
#include "text/document.h"

namespace quill::companion {

// Raised characters of one colour that stand together. Stretches that touch differ in colour.
struct RaisedRun {
  Range range;
  Colour colour = 0;
};

struct Text {
  std::u32string characters;
  std::vector<RaisedRun> raised;  // in order, apart

  Position Length() const { return static_cast<Position>(characters.size()); }
  // The range must lie inside the text.
  std::u32string_view At(Range range) const {
    return std::u32string_view(characters)
        .substr(static_cast<std::size_t>(range.begin), static_cast<std::size_t>(range.Length()));
  }
};

struct TaggedText {
  std::string path;  // as given
  Text text;
  std::vector<TagList> lists;
};

Text TextOf(const Document& document);

// Throws StatementFailed where the file cannot be read or is no text.
Text ReadText(const std::string& path);

// The list that the window would take for the text's.
std::string ListBeside(const std::string& path);

// The lists of one of the files of a call, which need not be there.
std::vector<std::string> ListsOf(const std::string& file, const Options& options);

// Reads one text after the other, each with its lists, and calls visit. Files that cannot be read
// are told and passed over.
void ForEachText(const Options& options, Console& console,
                 const std::function<void(TaggedText&)>& visit);

// The same with what is damaged, or beyond the text, told and left out.
void ForEachSoundText(const Options& options, Console& console,
                      const std::function<void(TaggedText&)>& visit);

}  // namespace quill::companion
