#include "record.h"

#include <cstdio>
#include <stdexcept>

namespace quill::test {
namespace {

Record* living = nullptr;

}  // namespace

Record::Record(const std::filesystem::path& file, const char* toPlay)
    : path_(file), written_(file), plays_(toPlay != nullptr) {
  if (plays_) played_.open(toPlay);
  if (!written_ || (plays_ && !played_)) throw std::runtime_error("no record to write or to play");
  living = this;
}

Record::~Record() { living = nullptr; }

std::string Record::Read() {
  std::string line;
  if (!std::getline(played_, line)) throw Ended();
  return line;
}

std::string Record::Write(std::string line) {
  constexpr std::size_t kTold = 12;
  written_ << line << std::endl;
  ++count_;
  if (last_.size() == kTold) last_.pop_front();
  last_.push_back(line);
  return line;
}

std::string Record::LastLines() const {
  std::string lines = path_.string() + " has " + std::to_string(count_) + " lines; the last:\n";
  for (const std::string& line : last_) lines += "  " + line + '\n';
  return lines;
}

void Record::TellAtEnd(int /*signal*/) {
  if (living != nullptr) std::fputs(living->LastLines().c_str(), stderr);
}

}  // namespace quill::test
