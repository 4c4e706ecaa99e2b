// Checks whether the program can be trusted with files: each is loaded, marked, saved, loaded again
// and unmarked, and the result is printed as one line.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "round_trip/round_trip.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "text/unicode.h"

namespace quill {
namespace {

namespace fs = std::filesystem;

constexpr const char* kUsage =
    "usage: rtf_check [--copies FOLDER] [--seconds N] FILE...\n"
    "Loads, marks and saves each file (the files themselves are only read) and prints a line on\n"
    "each. With --copies, the marked copy goes to FOLDER/marked, what is left when the marks are\n"
    "taken off again to FOLDER/unmarked, and a list of the marks to FOLDER/marks, under the "
    "folders\n"
    "in which the files lie below the one that holds them all. With --seconds, a file that takes\n"
    "longer counts as failed, and so does one that ends the check.\n"
    "Ends with 1 if a file cannot be read or a property fails, with 2 if it is called wrongly.\n";

struct Options {
  std::optional<fs::path> copies;
  unsigned seconds = 0;  // per file; 0 for no limit
  std::vector<fs::path> files;
};

std::optional<Options> OptionsOf(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--copies") {
      if (++i == arguments.size()) return std::nullopt;
      options.copies = arguments[i];
    } else if (arguments[i] == "--seconds") {
      if (++i == arguments.size()) return std::nullopt;
      const char* const end = arguments[i].data() + arguments[i].size();
      const auto [stop, error] = std::from_chars(arguments[i].data(), end, options.seconds);
      if (error != std::errc() || stop != end || options.seconds == 0) return std::nullopt;
    } else if (arguments[i].starts_with("--")) {
      return std::nullopt;
    } else {
      options.files.emplace_back(arguments[i]);
    }
  }
  if (options.files.empty()) return std::nullopt;
  return options;
}

// The result for one file.
struct Finding {
  std::string line;
  bool good = true;

  void Add(std::string_view property, const std::string& difference) {
    line += ", ";
    line += property;
    line += difference.empty() ? ": yes" : ": NO (" + difference + ")";
    good = good && difference.empty();
  }
};

fs::path Absolute(const fs::path& file) { return fs::absolute(file).lexically_normal(); }

// The innermost folder that contains all the files.
fs::path CommonFolder(const std::vector<fs::path>& files) {
  fs::path common = Absolute(files.front()).parent_path();
  for (const fs::path& file : files) {
    const fs::path folder = Absolute(file).parent_path();
    while (std::mismatch(common.begin(), common.end(), folder.begin(), folder.end()).first !=
           common.end()) {
      common = common.parent_path();
    }
  }
  return common;
}

class Copies {
 public:
  explicit Copies(const Options& options)
      : folder_(options.copies), common_(CommonFolder(options.files)) {}

  void Put(const char* kind, const fs::path& file, const std::string& bytes) const {
    if (!folder_) return;
    const fs::path copy = *folder_ / kind / Absolute(file).lexically_relative(common_);
    fs::create_directories(copy.parent_path());
    std::ofstream out(copy, std::ios::binary);
    out << bytes;
    out.close();
    if (!out) throw std::runtime_error("the copy of " + file.string() + " could not be written");
  }

 private:
  std::optional<fs::path> folder_;
  fs::path common_;
};

// A line for each mark: its start, its end, its attributes (colour, bold, underline and raised
// position), and the word.
std::string ListOf(const Document& document, const std::vector<Range>& marks) {
  std::ostringstream list;
  for (const Range& mark : marks) {
    const Attributes& a = document.At(mark.begin);
    list << mark.begin << ' ' << mark.end << ' ' << a.colour << ' ' << a.bold << ' ' << a.underline
         << ' ' << a.offset << ' ' << ToUtf8(document.Text(mark)) << '\n';
  }
  return list.str();
}

void CheckMarks(Document document, const fs::path& file, const Copies& copies, Finding& finding) {
  const Document original = document;
  const Range all{0, document.Length()};
  const std::vector<Attributes> before = AttributesOf(document, all);

  MarkWords(document);
  Restore(document, all, before);
  const bool same = rtf::Write(document) == original.GetSource().bytes;
  finding.Add("same bytes after mark and unmark", same ? "" : "they differ");

  const std::vector<Range> marks = MarkWords(document);
  const std::string marked = rtf::Write(document);
  copies.Put("marked", file, marked);
  copies.Put("marks", file, ListOf(document, marks));
  std::optional<Document> again = rtf::Read(marked);
  finding.Add("same text and attributes after a marked save and load",
              again ? Difference(document, *again) : "it does not load");
  if (!again) return;

  Restore(*again, all, before);
  const std::string unmarked = rtf::Write(*again);
  copies.Put("unmarked", file, unmarked);
  again = rtf::Read(unmarked);
  finding.Add("and after the marks are taken off",
              again ? Difference(original, *again) : "it does not load");
  // In a damaged file, traces may remain.
  const bool clean = !original.GetSource().wellFormed || SameButForColours(original, unmarked);
  finding.Add("and the same bytes but for the table of colours", clean ? "" : "they differ");
}

Finding Check(const fs::path& file, const Copies& copies) {
  using Seconds = std::chrono::duration<double>;
  Finding finding;
  std::ifstream in(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  if (!in.good() && !in.eof()) return {"not loaded: the file cannot be read", false};
  const auto start = std::chrono::steady_clock::now();
  std::optional<Document> document = rtf::Read(bytes);
  const Seconds seconds = std::chrono::steady_clock::now() - start;
  if (!document) return {"not loaded: neither rich text nor text", true};
  document->Check();
  std::ostringstream line;
  line << "loaded" << (document->GetSource().bytes == bytes ? "" : " as plain text") << ", "
       << document->Length() << " characters, " << seconds.count() << " s";
  finding.line = line.str();
  CheckMarks(std::move(*document), file, copies, finding);
  return finding;
}

// Prints the result for a file. Returns whether it is good.
bool Report(const fs::path& file, const Finding& finding) {
  std::cout << file.string() << ": " << finding.line << std::endl;
  return finding.good;
}

// Checks a file in a separate process, so that a crash does not end the whole run.
bool CheckWithin(unsigned seconds, const fs::path& file, const Copies& copies) {
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process could be started");
  if (child == 0) {
    alarm(seconds);
    try {
      _exit(Report(file, Check(file, copies)) ? 0 : 1);
    } catch (const std::exception& error) {
      _exit(Report(file, {error.what(), false}) ? 0 : 1);
    }
  }
  int status = 0;
  if (waitpid(child, &status, 0) != child) throw std::runtime_error("a process was lost");
  if (WIFEXITED(status)) return WEXITSTATUS(status) == 0;
  const bool late = WTERMSIG(status) == SIGALRM;
  return Report(file, {late ? "not checked: it takes longer than " + std::to_string(seconds) + " s"
                            : "the check ended by signal " + std::to_string(WTERMSIG(status)),
                       false});
}

int Main(const std::vector<std::string>& arguments) {
  const std::optional<Options> options = OptionsOf(arguments);
  if (!options) {
    std::cerr << kUsage;
    return 2;
  }
  const Copies copies(*options);
  bool good = true;
  for (const fs::path& file : options->files) {
    const bool fine = options->seconds > 0 ? CheckWithin(options->seconds, file, copies)
                                           : Report(file, Check(file, copies));
    good = good && fine;
  }
  return good ? 0 : 1;
}

}  // namespace
}  // namespace quill

int main(int argc, char** argv) try {
  return quill::Main({argv + 1, argv + argc});
} catch (const std::exception& error) {
  std::cerr << "rtf_check: " << error.what() << '\n';
  return 1;
}
