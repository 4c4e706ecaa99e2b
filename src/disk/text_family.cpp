#include "disk/text_family.h"

#include <algorithm>

namespace quill {
namespace {

// Empty for a path of four characters or fewer.
std::u32string BaseOf(const std::u32string& path) {
  constexpr std::size_t kCut = 4;
  return path.substr(0, path.size() - std::min(path.size(), kCut));
}

}  // namespace

std::u32string WorkingCopyOf(const std::u32string& path) { return BaseOf(path) + U".tbf"; }

std::u32string TagListOf(const std::u32string& path) { return BaseOf(path) + U".tlf"; }

std::u32string DictionaryOf(const std::u32string& path) { return BaseOf(path) + U".spd"; }

bool IsWorkingCopy(const std::u32string& path) { return path.ends_with(U"tbf"); }

}  // namespace quill
