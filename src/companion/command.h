// A command of the companion, as a row of one table, from which the command line and its help are
// made.
#pragma once

#include <vector>

#include "companion/console.h"
#include "companion/options.h"

namespace quill::companion {

struct Command {
  // What a command takes besides FILE, -o and --force.
  enum Takes : unsigned {
    kManyFiles = 1U << 0U,
    kLists = 1U << 1U,
    kManyLists = 1U << 2U,
    kNeedsOutput = 1U << 3U,
    kCsv = 1U << 4U,
    kTo = 1U << 5U,
    kWidth = 1U << 6U,
    kBy = 1U << 7U,
  };

  const char* name;
  const char* summary;
  unsigned takes;
  void (*run)(const Options&, Console&);
};

const std::vector<Command>& Commands();

void RunText(const Options& options, Console& console);
void RunCheck(const Options& options, Console& console);
void RunRepair(const Options& options, Console& console);
void RunExport(const Options& options, Console& console);
void RunConcordance(const Options& options, Console& console);
void RunSummary(const Options& options, Console& console);
void RunAgree(const Options& options, Console& console);
void RunPicture(const Options& options, Console& console);

}  // namespace quill::companion
