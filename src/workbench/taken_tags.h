// The lines that the user has taken out of TagList, to edit or remove them, and that are still in
// the tag list file. A rewrite of that file may drop these lines and no others.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace quill {

class TakenTags {
 public:
  // Forgets the lines of any other file.
  void Add(const std::u32string& file, std::u32string line) {
    if (file_ != file) *this = {};
    file_ = file;
    lines_.push_back(std::move(line));
  }
  // Empty if the lines are those of another file.
  std::vector<std::u32string> Of(const std::u32string& file) const {
    return file == file_ ? lines_ : std::vector<std::u32string>();
  }
  void Forget() { *this = {}; }

 private:
  std::u32string file_;
  std::vector<std::u32string> lines_;
};

}  // namespace quill
