#include "rtf/writing/patched_copy.h"

#include <algorithm>
#include <utility>

#include "rtf/syntax/ascii.h"
#include "text/large_pages.h"

namespace quill::rtf {
namespace {

constexpr std::string_view kLineEnds = "\r\n";

std::size_t BackslashesAtEnd(std::string_view bytes) {
  const std::size_t last = bytes.find_last_not_of('\\');
  return last == std::string_view::npos ? bytes.size() : bytes.size() - 1 - last;
}

// How bytes end: in the letters of a control word, in its number, or otherwise.
enum class Ending { kOther, kLetters, kNumber };

Ending EndingOf(std::string_view bytes) {
  // No control word is longer; a longer run of letters is text.
  constexpr std::size_t kLongest = 300;
  const std::string_view tail = bytes.substr(bytes.size() - std::min(bytes.size(), kLongest));
  std::size_t at = tail.size();
  while (at > 0 && IsDigit(tail[at - 1])) --at;
  const bool number = at < tail.size();
  if (at > 0 && tail[at - 1] == '-') --at;
  const std::size_t lettersEnd = at;
  while (at > 0 && IsLetter(tail[at - 1])) --at;
  if (at == lettersEnd) return Ending::kOther;
  if (BackslashesAtEnd(tail.substr(0, at)) % 2 == 0) return Ending::kOther;
  return number ? Ending::kNumber : Ending::kLetters;
}

}  // namespace

PatchedCopy::PatchedCopy(std::string_view source, std::vector<Patch> patches)
    : source_(source), patches_(std::move(patches)) {
  out_.reserve(source.size() + source.size() / 16 + 1024);
  UseLargePages(out_.data(), source.size());
}

bool PatchedCopy::OnlyLineEndsUpTo(Offset to) const {
  if (nextPatch_ < patches_.size() && patches_[nextPatch_].begin < to) return false;
  const std::string_view gap = source_.substr(at_, to > at_ ? to - at_ : 0);
  return gap.find_first_not_of(kLineEnds) == std::string_view::npos;
}

void PatchedCopy::CopyTo(Offset to) {
  while (nextPatch_ < patches_.size() && patches_[nextPatch_].begin <= to) {
    const Patch& patch = patches_[nextPatch_];
    const bool insertion = patch.begin == patch.end;
    if (patch.begin == to && !insertion) break;
    CopyBytes(patch.begin);
    if (patch.behindText) EndText();
    Append(patch.bytes);
    SkipTo(patch.end);
    ++nextPatch_;
  }
  CopyBytes(to);
}

void PatchedCopy::CopyBytes(Offset to) {
  if (to <= at_) return;
  if (seam_) out_ += Separator(source_[at_]);
  seam_ = false;
  out_ += source_.substr(at_, to - at_);
  at_ = to;
}

void PatchedCopy::SkipTo(Offset to) {
  if (to <= at_) return;
  at_ = to;
  seam_ = true;
}

void PatchedCopy::Append(std::string_view own) {
  if (own.empty()) return;
  out_ += Separator(own.front());
  out_ += own;
  seam_ = true;
}

// What to put between the copy so far and the next byte, so that the byte is not read as part of a
// control word.
std::string_view PatchedCopy::Separator(char next) const {
  if (!IsLetter(next) && !IsDigit(next) && next != '-' && next != ' ') return "";
  switch (EndingOf(std::string_view(out_).substr(textEnd_))) {
    case Ending::kLetters:
      return " ";
    case Ending::kNumber:
      return IsDigit(next) || next == ' ' ? " " : "";
    case Ending::kOther:
      return "";
  }
  return "";
}

}  // namespace quill::rtf
