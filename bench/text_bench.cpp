// What a text costs: memory, and the time for operations on all of it. Prints one table.
//
// Every run is a separate process, which loads a file as the program does, so that page faults and
// peak are those of this text. Figures are medians of the runs; times are processor times, so that
// other work on the machine counts little.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "disk/posix_disk.h"
#include "generated_text.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "words.h"

namespace quill::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::pair<const char*, Kind> kTexts[] = {
    {"prose", Kind::kProse}, {"dense", Kind::kDense}, {"marked", Kind::kMarked}};

// What one run measured. Times are milliseconds of processor time, except `wall`.
struct Figures {
  double characters = 0;
  double fileBytes = 0;
  double wall = 0;
  double user = 0;
  double system = 0;
  double faults = 0;
  double heldBytes = 0;  // by the loaded document, its file included
  double peakBytes = 0;  // the most held while it loaded
  double save = 0;
  double mark = 0;
  double saveMarked = 0;
  double walk = 0;
};

constexpr double Figures::*kAll[] = {&Figures::characters, &Figures::fileBytes,  &Figures::wall,
                                     &Figures::user,       &Figures::system,     &Figures::faults,
                                     &Figures::heldBytes,  &Figures::peakBytes,  &Figures::save,
                                     &Figures::mark,       &Figures::saveMarked, &Figures::walk};

// Reads a figure from /proc/self that the kernel gives in kB.
double Bytes(const char* file, const std::string& name) {
  std::ifstream lines(std::string("/proc/self/") + file);
  for (std::string word; lines >> word;) {
    double kilobytes = 0;
    if (word == name && lines >> kilobytes) return kilobytes * 1024;
  }
  throw std::runtime_error("this system does not tell " + name);
}

double Milliseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

double Milliseconds(clockid_t clock) {
  timespec time = {};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

rusage Usage() {
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return usage;
}

template <class Work>
double Timed(Work work, clockid_t clock = CLOCK_PROCESS_CPUTIME_ID) {
  const double start = Milliseconds(clock);
  work();
  return Milliseconds(clock) - start;
}

Document Load(const std::string& path, Figures& figures) {
  std::optional<Document> document;
  const double held = Bytes("smaps_rollup", "Rss:");
  const rusage before = Usage();
  figures.wall = Timed([&] { document = rtf::Read(PosixDisk().Read(path)); }, CLOCK_MONOTONIC);
  const rusage after = Usage();
  if (!document) throw std::runtime_error("the generated text does not load");
  figures.user = Milliseconds(after.ru_utime) - Milliseconds(before.ru_utime);
  figures.system = Milliseconds(after.ru_stime) - Milliseconds(before.ru_stime);
  figures.faults = static_cast<double>(after.ru_minflt - before.ru_minflt);
  figures.heldBytes = Bytes("smaps_rollup", "Rss:") - held;
  figures.peakBytes = Bytes("status", "VmHWM:") - held;
  return std::move(*document);
}

Figures Measure(const std::string& path) {
  // Allocates what the program itself needs before there is a text.
  rtf::Write(rtf::Blank());
  Figures figures;
  Document document = Load(path, figures);
  figures.characters = static_cast<double>(document.Length());
  figures.fileBytes = static_cast<double>(document.GetSource().bytes.size());
  std::size_t size = 0;
  const auto save = [&] { size += rtf::Write(document).size(); };
  constexpr Colour kNowhere = RGB(1, 2, 3);
  const Range all{0, document.Length()};
  Position found = 0;
  figures.walk = Timed([&] { found = document.FindColour(all, kNowhere); });
  figures.save = Timed(save);
  const std::vector<Range> words = EverySecondWord(document.Text());
  figures.mark = Timed([&] { document.Apply(words, {.colour = RGB(255, 0, 0), .bold = true}); });
  figures.saveMarked = Timed(save);
  if (found != all.end || size < 2 * document.GetSource().bytes.size()) {
    throw std::runtime_error("the text is not what it should be");
  }
  return figures;
}

// Runs the work in a separate process.
template <class Work>
Figures Apart(Work work) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe");
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) {
    int status = 1;
    try {
      const Figures figures = work();
      if (write(ends[1], &figures, sizeof figures) == sizeof figures) status = 0;
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s\n", error.what());
    }
    _exit(status);
  }
  close(ends[1]);
  Figures figures;
  const bool got = read(ends[0], &figures, sizeof figures) == sizeof figures;
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (!got || status != 0) throw std::runtime_error("a run failed");
  return figures;
}

Figures MedianOf(const std::vector<Figures>& runs) {
  Figures median;
  for (const auto figure : kAll) {
    std::vector<double> values;
    for (const Figures& run : runs) values.push_back(run.*figure);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    median.*figure = *middle;
  }
  return median;
}

void PrintRow(const char* name, const Figures& f) {
  const auto perCharacter = [&](double bytes) { return (bytes - f.fileBytes) / f.characters; };
  std::printf(
      "%-8s %10.0f %6.1f | %7.1f %7.1f %7.1f %7.0f | %5.1f %5.1f | %7.1f %7.1f %7.1f %7.2f\n", name,
      f.characters, f.fileBytes / 1e6, f.wall, f.user, f.system, f.faults,
      perCharacter(f.heldBytes), perCharacter(f.peakBytes), f.save, f.mark, f.saveMarked, f.walk);
  std::fflush(stdout);
}

void MeasureAll(int runs) {
  std::printf("%-8s %10s %6s | %7s %7s %7s %7s | %5s %5s | %7s %7s %7s %7s\n", "text", "characters",
              "MB", "load", "user", "system", "faults", "B/ch", "peak", "save", "mark", "save",
              "walk");
  const fs::path file = fs::temp_directory_path() / ("text_bench." + std::to_string(getpid()));
  for (const auto& [name, kind] : kTexts) {
    for (const std::int64_t characters : {100'000, 1'000'000, 10'000'000}) {
      Apart([&] {
        std::ofstream(file, std::ios::binary) << GeneratedText(kind, characters);
        return Figures();
      });
      std::vector<Figures> figures;
      for (int i = 0; i < runs; ++i)
        figures.push_back(Apart([&] { return Measure(file.string()); }));
      PrintRow(name, MedianOf(figures));
    }
  }
  fs::remove(file);
}

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) try {
  quill::bench::MeasureAll(argc > 1 ? std::max(1, std::atoi(argv[1])) : 9);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "text_bench: %s\n", error.what());
  return 1;
}
