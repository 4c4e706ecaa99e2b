// Rich text for the benchmarks: long, the same at every run, and written the way a word processor
// writes it.
#pragma once

#include <cstdint>
#include <string>

namespace quill::bench {

enum class Kind {
  kProse,         // paragraphs with settings, runs, curly quotes: a novel without marks
  kDense,         // the same with fewer settings: nearly two characters in three bytes
  kMarked,        // the same, with every second word blue and bold, each in its own group
  kLaidOut,       // prose with items of lists, rows of tables and pictures in it
  kControlWords,  // settings with nothing to apply to: as many bytes, no characters
};

// Rich text of at least that many characters, ending with a paragraph; usually about three bytes
// per character.
std::string GeneratedText(Kind kind, std::int64_t characters);

}  // namespace quill::bench
