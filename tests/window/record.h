// What a user does, line by line: chosen and recorded, or read from a record to replay it.
#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <string>

namespace quill::test {

class Record {
 public:
  // Thrown when the record being replayed has no more lines.
  class Ended {};

  // Records to `file`. The record to replay may be null.
  Record(const std::filesystem::path& file, const char* toPlay);
  ~Record();
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  template <class Draw>
  std::string Next(const Draw& draw) {
    return plays_ ? Write(Read()) : Write(draw());
  }
  // The path of the record, and its last lines.
  std::string LastLines() const;
  // Prints them, if there is a record, when the process is about to end.
  static void TellAtEnd(int signal);

 private:
  std::string Read();
  std::string Write(std::string line);

  std::filesystem::path path_;
  std::ofstream written_;
  bool plays_;
  std::ifstream played_;
  int count_ = 0;
  std::deque<std::string> last_;
};

}  // namespace quill::test
