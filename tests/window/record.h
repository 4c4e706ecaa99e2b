// What a user does, line by line: drawn and written down, or read from a record to do it again.
#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <string>

namespace quill::test {

class Record {
 public:
  // Thrown where the record that is played has no more lines.
  class Ended {};

  // Writes to a file. A record to play may be null.
  Record(const std::filesystem::path& file, const char* toPlay);
  ~Record();
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  template <class Draw>
  std::string Next(const Draw& draw) {
    return plays_ ? Write(Read()) : Write(draw());
  }
  // Where the record is, and the last lines of it.
  std::string LastLines() const;
  // Tells them of the record that lives, where the process is about to end.
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
