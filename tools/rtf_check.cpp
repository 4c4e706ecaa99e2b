// Tells of files whether the program can be trusted with them: each is loaded, marked, saved,
// loaded again and unmarked, and one line says what came of it.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
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
    "usage: rtf_check [--copies FOLDER] FILE...\n"
    "Loads, marks and saves each file (the files themselves are only read) and prints a line on\n"
    "each. With --copies, the marked copy goes to FOLDER/marked, what is left when the marks are\n"
    "taken off again to FOLDER/unmarked, and a list of the marks to FOLDER/marks.\n"
    "Ends with 1 if a file cannot be read or a property fails, with 2 if it is called wrongly.\n";

struct Options {
  std::optional<fs::path> copies;
  std::vector<fs::path> files;
};

std::optional<Options> OptionsOf(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--copies") {
      if (++i == arguments.size()) return std::nullopt;
      options.copies = arguments[i];
    } else if (arguments[i].starts_with("--")) {
      return std::nullopt;
    } else {
      options.files.emplace_back(arguments[i]);
    }
  }
  if (options.files.empty()) return std::nullopt;
  return options;
}

// What came of one file.
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

class Copies {
 public:
  explicit Copies(const std::optional<fs::path>& folder) : folder_(folder) {
    if (!folder_) return;
    for (const char* kind : {"marked", "unmarked", "marks"})
      fs::create_directories(*folder_ / kind);
  }

  void Put(const char* kind, const fs::path& file, const std::string& bytes) const {
    if (!folder_) return;
    std::ofstream out(*folder_ / kind / file.filename(), std::ios::binary);
    out << bytes;
    out.close();
    if (!out) throw std::runtime_error("the copy of " + file.string() + " could not be written");
  }

 private:
  std::optional<fs::path> folder_;
};

// A line for each mark: its begin, its end, the attributes that it has (colour, bold, underline and
// raised position), and the word.
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
  // In a damaged file something may stay.
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

int Main(const std::vector<std::string>& arguments) {
  const std::optional<Options> options = OptionsOf(arguments);
  if (!options) {
    std::cerr << kUsage;
    return 2;
  }
  const Copies copies(options->copies);
  bool good = true;
  for (const fs::path& file : options->files) {
    const Finding finding = Check(file, copies);
    std::cout << file.string() << ": " << finding.line << std::endl;
    good = good && finding.good;
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
