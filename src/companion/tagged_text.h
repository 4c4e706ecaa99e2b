// A text with its tag lists, and how both are read.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "companion/console.h"
#include "companion/options.h"
#include "companion/tag_list.h"
#include "text/document.h"

namespace quill::companion {

// A run of raised characters of one colour. Runs that touch differ in colour.
struct RaisedRun {
  Range range;
  Colour colour = 0;
};

struct Text {
  std::u32string characters;
  std::vector<RaisedRun> raised;  // in order, without overlap

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

// Throws StatementFailed if the file cannot be read or is not text.
Text ReadText(const std::string& path);

// The list that the window would load with the text.
std::string ListBeside(const std::string& path);

// The lists of one of the files of a call; they need not exist.
std::vector<std::string> ListsOf(const std::string& file, const Options& options);

// Reads one text after another, each with its lists, and calls `visit`. Files that cannot be read
// are reported and skipped.
void ForEachText(const Options& options, Console& console,
                 const std::function<void(TaggedText&)>& visit);

// The same, but lines that are damaged or beyond the text are reported and left out.
void ForEachSoundText(const Options& options, Console& console,
                      const std::function<void(TaggedText&)>& visit);

}  // namespace quill::companion
