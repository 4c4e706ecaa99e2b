// Rich text for the benchmarks: long, the same at every run, and written as a word processor writes
// it.
#pragma once

#include <cstdint>
#include <string>

namespace quill::bench {

enum class Kind {
  kProse,         // paragraphs with settings, runs, curly quotes: a novel without marks
  kDense,         // the same with fewer settings: nearly two characters in three bytes
  kMarked,        // the same, with every second word blue and bold in a group of its own
  kLaidOut,       // prose with items of lists, rows of tables and pictures in it
  kControlWords,  // settings and nothing that they set: as many bytes, no characters
};

// Rich text of at least that many characters, up to the end of a paragraph, at about three bytes a
// character as a rule.
std::string GeneratedText(Kind kind, std::int64_t characters);

}  // namespace quill::bench
