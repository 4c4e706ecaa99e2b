#include "generated_text.h"

#include <array>
#include <cstddef>
#include <random>
#include <string_view>
#include <utility>

namespace quill::bench {
namespace {

constexpr std::string_view kHead =
    "{\\rtf1\\ansi\\deff0\\adeflang1025\n"
    "{\\fonttbl{\\f0\\froman\\fprq2\\fcharset0 Times New Roman;}"
    "{\\f1\\fswiss\\fprq2\\fcharset0 Arial;}{\\f2\\fnil\\fprq2\\fcharset0 DejaVu Sans;}}\n"
    "{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}\n"
    "{\\stylesheet{\\s0\\snext0\\rtlch\\af2\\afs24\\alang1081 \\ltrch\\lang1033\\langfe2052"
    "\\hich\\af0\\loch\\nowidctlpar\\hyphpar0\\ltrpar\\cf0\\f0\\fs24\\lang1033 Normal;}\n"
    "{\\s16\\sbasedon0\\snext16\\loch\\sl276\\slmult1\\sb0\\sa140 Text Body;}\n}"
    "{\\*\\generator a word processor}\\deftab709\n"
    "\\paperh16838\\paperw11906\\margl1134\\margr1134\\margt1134\\margb1134\\sectd\\sbknone\n";

constexpr std::string_view kParagraph =
    "\\pard\\plain \\s16\\rtlch\\af2\\afs24\\alang1081 \\ltrch\\lang1033\\langfe2052\\hich\\af2"
    "\\loch\\nowidctlpar\\hyphpar0\\sl276\\slmult1\\sb0\\sa140\\ltrpar\\cf0\\f0\\fs24\\lang1033"
    "\\ql\\li0\\ri0\\lin0\\rin0\\fi0\\sb0\\sa140\\sl276\\slmult1\\ltrpar";
constexpr std::string_view kRun =
    "{\\rtlch\\af2\\afs24\\alang1081 \\ltrch\\hich\\af0\\loch\\kerning0\\lang1033\\cf0\\fs24"
    "\\f0\\loch\n";
constexpr std::string_view kMark = "{\\cf2\\b ";

constexpr std::array<std::string_view, 24> kWords = {
    "the",  "of",    "before", "yesterday", "when", "evening", "she",     "remembered",
    "had",  "year",  "always", "a",         "then", "house",   "waiting", "afternoon",
    "once", "until", "he",     "said",      "at",   "moment",  "while",   "winter"};

// Precedes an item of a list.
constexpr std::string_view kLabel = "{\\listtext\\pard\\plain \\u8226\\'95\\tab}\\fi-360\\li720 ";
constexpr std::string_view kRow = "\\trowd\\trgaph108\\cellx2000\\cellx5600\\cellx8600\\intbl ";
constexpr std::string_view kPicture =
    "{\\*\\shppict{\\pict\\pngblip\\picw4\\pich4\\picwgoal900\\pichgoal600\n"
    "89504e470d0a1a0a0000000d49484452000000040000000408020000002693092900000011494441"
    "5478da6338b1200a8e1888e30000e2721c21048fa4eb0000000049454e44ae426082"
    "}}";

class Writer {
 public:
  Writer(Kind kind, std::int64_t characters) : kind_(kind), wanted_(characters) {
    out_.reserve(static_cast<std::size_t>(characters) * 7 / 2 + 4096);
  }

  std::string Write() {
    out_ = kHead;
    if (kind_ == Kind::kControlWords) {
      while (out_.size() < 3 * static_cast<std::size_t>(wanted_)) {
        out_ += kParagraph;
        out_ += kRun;
        out_ += '}';
      }
    } else {
      while (written_ < wanted_) Paragraph();
    }
    out_ += '}';
    return std::move(out_);
  }

 private:
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_()) % limit; }

  void Paragraph() {
    ++paragraphs_;
    if (kind_ != Kind::kDense) out_ += kParagraph;
    if (kind_ == Kind::kLaidOut && paragraphs_ % 8 == 3) return Row();
    if (kind_ == Kind::kLaidOut && paragraphs_ % 8 == 6) out_ += kLabel;
    if (kind_ == Kind::kLaidOut && paragraphs_ % 32 == 1) Character(kPicture);
    for (std::size_t runs = 1 + Below(3); runs > 0; --runs) Run();
    out_ += "\n\\par ";
    ++written_;
  }

  void Row() {
    out_ += kRow;
    for (int cell = 0; cell < 3; ++cell) {
      for (std::size_t words = 1 + Below(4); words > 0; --words) Word();
      Character("\\cell ");
    }
    Character("\\row\n");
  }

  void Run() {
    out_ += kRun;
    const bool quoted = Below(4) == 0;
    if (quoted) Character("\\u8220\\'93");
    for (std::size_t words = 8 + Below(24); words > 0; --words) Word();
    if (quoted) Character("\\u8221\\'94");
    out_ += '}';
  }

  void Word() {
    const bool marked = kind_ == Kind::kMarked && wordIsMarked_;
    wordIsMarked_ = !wordIsMarked_;
    const std::string_view word = kWords[Below(kWords.size())];
    if (marked) out_ += kMark;
    out_ += word;
    written_ += static_cast<std::int64_t>(word.size());
    if (marked) out_ += '}';
    if (Below(30) == 0) {
      Character("\\u8217\\'92");
      Character("s");
    }
    if (Below(12) == 0) Character(",");
    Character(" ");
  }

  void Character(std::string_view bytes) {
    out_ += bytes;
    ++written_;
  }

  Kind kind_;
  std::int64_t wanted_;
  std::int64_t written_ = 0;
  int paragraphs_ = 0;
  bool wordIsMarked_ = false;
  std::mt19937_64 random_{20240229};
  std::string out_;
};

}  // namespace

std::string GeneratedText(Kind kind, std::int64_t characters) {
  return Writer(kind, characters).Write();
}

}  // namespace quill::bench
