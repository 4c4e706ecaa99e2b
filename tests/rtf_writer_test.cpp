// What a save writes: the source, with the marks in it and nothing else changed.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "rtf/reader.h"
#include "rtf/writer.h"
#include "rtf/writing/rewriting.h"
#include "support/rich_text.h"
#include "text/unicode.h"

namespace quill {
namespace {

constexpr AttributeChange kBlue{.colour = RGB(0, 0, 255), .bold = true};
constexpr AttributeChange kPlain{.colour = 0, .bold = false, .underline = false, .offset = 0};
const std::string kTable = "{\\colortbl;\\red0\\green0\\blue255;}";

std::string Marked(const std::string& file, Range range, const AttributeChange& change = kBlue) {
  Document document = *rtf::Read(file);
  document.Apply(range, change);
  return rtf::Write(document);
}

TEST(RtfWriter, WrapsStretchesAndNothingElse) {
  struct Case {
    std::string body;
    Range range;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"\\b0 He came.", {3, 7}, "\\b0 He {\\cf1\\b came}."},
      // Whatever stands among the characters stays outside of the braces.
      {"ca{\\i m}e\\par", {0, 5}, "{\\cf1\\b ca}{\\i {\\cf1\\b m}}{\\cf1\\b e\\par}"},
      {"ca\\-me{\\*\\x y}s", {0, 5}, "{\\cf1\\b ca}\\-{\\cf1\\b me}{\\*\\x y}{\\cf1\\b s}"},
      {"ca\r\nme", {1, 4}, "c{\\cf1\\b a\r\nme}"},
      {"\\'e9\\u8217 ?x", {0, 2}, "{\\cf1\\b \\'e9\\u8217 ?}x"},
      // Only what differs is said.
      {"\\b x\\cf1 y", {0, 2}, "\\b {\\cf1 x}\\cf1 y"},
      {"{\\b x}", {0, 1}, "{\\b\\cf1 x}"},
      {"{\\pict 00}", {0, 1}, "{\\cf1\\b {\\pict 00}}"},
      {"a{\\field{\\*\\fldinst SYMBOL 97}{\\fldrslt\\f3}}b",
       {1, 2},
       "a{\\cf1\\b {\\field{\\*\\fldinst SYMBOL 97}{\\fldrslt\\f3}}}b"},
      // The weight of a right-to-left run goes by two names.
      {"\\rtlch x", {0, 1}, "\\rtlch {\\cf1\\b\\ab x}"},
      // A mark of an earlier save is taken apart, and what is left of it stays.
      {"a{\\cf1\\b bcd}e", {1, 4}, "a{\\cf1\\b bcd}e"},
      {"a{\\cf1\\b bcd}e", {0, 5}, "{\\cf1\\b a}{\\cf1\\b bcd}{\\cf1\\b e}"},
  };
  for (const Case& c : cases) {
    std::string expected = "{\\rtf1" + kTable + c.expected + "}";
    if (c.body == "{\\b x}") expected = "{\\rtf1" + kTable + "{\\cf1\\b x}}";
    EXPECT_EQ(Marked("{\\rtf1" + kTable + c.body + "}", c.range), expected) << c.body;
  }
}

TEST(RtfWriter, TakesMarksOffAgain) {
  const std::string symbol = "{\\rtf1" + kTable + "a{\\field{\\fldinst SYMBOL 98}}c}";
  EXPECT_EQ(Marked(Marked(symbol, {0, 3}), {0, 3}, kPlain), symbol);
  const std::string file = "{\\rtf1" + kTable + "a{\\cf1\\b b{\\up3 c}d}e}";
  EXPECT_EQ(Marked(file, {1, 4}, kPlain), "{\\rtf1" + kTable + "abcde}");
  EXPECT_EQ(Marked(file, {2, 3}, kPlain), "{\\rtf1" + kTable + "a{\\cf1\\b b{\\cf0\\b0 c}d}e}");
  EXPECT_EQ(Marked(file, {1, 2}, kPlain),
            "{\\rtf1" + kTable + "a{\\cf1\\b {\\cf0\\b0 b}{\\up3 c}d}e}");
  EXPECT_EQ(Marked("{\\rtf1" + kTable + "\\cf1 a}", {0, 1}, kPlain),
            "{\\rtf1" + kTable + "\\cf1 {\\cf0 a}}");
  // Black from behind the end of the table keeps its number when the table reaches there.
  const std::string black =
      Marked("{\\rtf1{\\colortbl\\red9;}\\cf0 a\\cf2 b}", {0, 1}, {.colour = 0});
  EXPECT_EQ(Marked(Marked(black, {1, 2}), {0, 2}, {.colour = 9, .bold = false}),
            "{\\rtf1{\\colortbl\\red9;\\red0\\green0\\blue0;\\red0\\green0\\blue0;"
            "\\red0\\green0\\blue255;}\\cf0 a\\cf2 {\\cf0 b}}");
}

// The words of the four attributes, alone and together, in every spelling.
std::vector<std::string> AttributeWords() {
  std::vector<std::string> words;
  for (const char* underline :
       {"ul",         "uld",       "uldash",     "uldashd", "uldashdd", "uldb", "ulhair",
        "ulhwave",    "ulldash",   "ulth",       "ulthd",   "ulthdash", "ulw",  "ulthdashd",
        "ulthdashdd", "ulthldash", "ululdbwave", "ulwave",  "ulnone",   "ul0",  "uldb0"}) {
    words.push_back("\\" + std::string(underline));
  }
  for (const char* word :
       {"\\b",   "\\b0",  "\\b1",   "\\b2",   "\\up",    "\\up0", "\\up3",  "\\up03",
        "\\dn",  "\\dn4", "\\up-4", "\\cf0",  "\\cf",    "\\cf1", "\\cf01", "\\cf2",
        "\\cf3", "\\cf4", "\\cf9",  "\\cf-1", "\\plain", "\\i"}) {
    words.emplace_back(word);
  }
  const std::vector<std::string> single = words;
  for (const std::string& word : single) {
    words.push_back("\\b" + word);
    words.push_back(word + "\\cf1");
    words.push_back(word + " \\ul");
    words.push_back("\\rtlch" + word);
    words.push_back(word + " {\\up03 x}");
  }
  return words;
}

// Only what a save put in is taken out again: an author's groups stay as they are spelt.
TEST(RtfWriter, LeavesForeignGroupsAsTheyAreSpelt) {
  const std::string table =
      "{\\colortbl;\\red0\\green0\\blue255;\\red255\\green0\\blue0;\\red0\\green0\\blue255;"
      "\\red0\\green0\\blue0;}";
  const std::vector<AttributeChange> marks = {
      kBlue,
      kPlain,
      {.underline = true},
      {.underline = false},
      {.colour = RGB(0, 0, 255), .bold = false, .offset = 25},
      {.colour = RGB(192, 0, 192), .bold = true, .underline = true}};
  for (const std::string outside : {"", "\\b ", "\\cf1 ", "\\uldb ", "\\rtlch\\ab "}) {
    for (const std::string& words : AttributeWords()) {
      for (const char* const end : {" ", "\n", "  "}) {
        const std::string body = outside + "a{" + words + end + "two words}\\par b}";
        const Document original = *rtf::Read("{\\rtf1" + table + body);
        for (const Range range : {Range{1, original.Length() - 2}, Range{2, 4}, Range{0, 3}}) {
          for (const AttributeChange& mark : marks) {
            Document document = original;
            document.Apply(range, mark);
            document = *rtf::Read(rtf::Write(document));
            Restore(document, range, AttributesOf(original, range));
            const std::string file = rtf::Write(document);
            ASSERT_TRUE(SameButForColours(original, file)) << body << "\nnow " << file;
          }
        }
      }
    }
  }
}

TEST(RtfWriter, PutsNewColoursBehindAllThatTheFileUses) {
  struct Case {
    std::string file;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"{\\rtf1 x}", "{\\rtf1 {\\colortbl;\\red0\\green0\\blue255;}{\\cf1\\b x}}"},
      {"{\\rtf1{\\fonttbl{\\f0 A;}}x}",
       "{\\rtf1{\\fonttbl{\\f0 A;}}{\\colortbl;\\red0\\green0\\blue255;}{\\cf1\\b x}}"},
      {"{\\rtfx y}", "{\\rtfx {\\colortbl;\\red0\\green0\\blue255;}{\\cf1\\b y}}"},
      {"{\\rtf1{\\colortbl;\\red9;}x}",
       "{\\rtf1{\\colortbl;\\red9;\\red0\\green0\\blue255;}{\\cf2\\b x}}"},
      {"{\\rtf1{\\colortbl;\\red9}x}",
       "{\\rtf1{\\colortbl;\\red9;\\red0\\green0\\blue255;}{\\cf2\\b x}}"},
      {"{\\rtf1{\\colortbl;}{\\header\\cb3 h}x}",
       "{\\rtf1{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue0;\\red0\\green0\\blue0;"
       "\\red0\\green0\\blue255;}{\\header\\cb3 h}{\\cf4\\b x}}"},
      {"{\\rtf1{\\colortbl;}{\\*\\expandedcolortbl;}x}",
       "{\\rtf1{\\colortbl;\\red0\\green0\\blue255;}{\\*\\expandedcolortbl;"
       "\\cssrgb\\c0\\c0\\c100000;}"
       "{\\cf1\\b x}}"},
  };
  for (const Case& c : cases) EXPECT_EQ(Marked(c.file, {0, 1}), c.expected) << c.file;
}

// Files whose parts braces, or characters put in or taken away, could complete.
std::vector<std::string> BrokenFiles() {
  const std::string fonts = "{\\rtf1{\\fonttbl{\\f0 A;}{\\f1\\fcharset128 J;}}" + kTable;
  return {
      fonts + "\\f1\\'83{\\b A}}",                // a lead byte in front of a mark
      fonts + "\\f1 x\xF7\x08y}",                 // a raw one, which would take a brace
      fonts + "\\f1 \x83\\par {A}}",              // one that only a paragraph's end breaks off
      fonts + "\\f1{\\b\\cf1\\'83}A\\'83\\i B}",  // and one that a mark's brace does
      fonts + "\\u55357?{\\b\\u56842?}x}",        // two halves that are no pair
      fonts + "\\u55357?\\strike\\cf1 y}",
      fonts + "\\u55357?\\i\\uc0\\u56842 y}",         // words that a group around a pair would end
      fonts + "\\u55357?x\\u56842?}",                 // nor these
      fonts + "{x\\pict 00}{\\i\\pict}y{\\object}}",  // pictures without a group of their own
      fonts + "\\f1\\'83\\'\xFF\xFF y}",              // one of them inside a sequence
      fonts + "\\'4xy\\'z\\'8{\\b x}\\'}",            // numbers that lack digits
      fonts + "x\\'0dy\\'0az\\'0d{\\cf1\\b \\'0a}}",  // two paragraph ends that could become one
      fonts + "\\bin3\\cg  x}",                       // data that looks like a word
      fonts + "\\upr xyz}",                           // no group to choose from
      fonts + "\\uc2\\u-2\\x{\\ul\\cf1 http}}",       // a brace ends what stands in for a character
      fonts + "{\\uc3\\u8217 x}y\\uc2\\u8217 {\\pict 00}z\\u8217?}",
      "{\\rtf1 xyz{\\colortbl;\\red9;\\",  // a table that breaks off at a backslash
      "{\\rtf1 xyz\\",
      "{\\rtf1 x{\\i{\\pict 0{0",  // a picture that breaks off
      "{\\rtf1 x{\\pict 0}}{",
      "{\\rtf1 x\\pict 0",
      "{\\rtf1 x{\\b y",
      "{\\rtf1{\\colortbl;\\red9;\\red8;}xyz{\\colortbl;\\red7;}",
      "{\\rtf1{\\colortbl}xyz{\\colortbl;",
      "{\\rtf1 xyz{\\colortbl;\\red9;\\bin99 ",
      "{\\rtf1\\ansi\\pard \\u-3913c\\upr \\u945a{\\uc2\\u228\\'E8a}\\par}",
      "{\\rtf1 a{\\*\\shppict{\\pict\\pngblip 00}}{\\nonsh\\nonshppict{\\pic\\object{{\\*\\",
  };
}

// Saves a document, expects its text in what was saved, and returns that.
Document Saved(const Document& document) {
  const std::string bytes = rtf::Write(document);
  SCOPED_TRACE("saved as " + bytes);
  Document again = *rtf::Read(bytes);
  ExpectSameText(document, again);
  return again;
}

TEST(RtfWriter, KeepsTheTextOfBrokenFiles) {
  for (const std::string& file : BrokenFiles()) {
    SCOPED_TRACE(file);
    const Document original = *rtf::Read(file);
    for (Position at = 0; at < original.Length(); ++at) {
      const Range range{at, at + 1};
      for (const AttributeChange& change : {kBlue, kPlain}) {
        std::vector<std::size_t> sizes;
        Document document = original;
        for (int round = 0; round < 3; ++round) {
          document.Apply(range, change);
          document = Saved(document);
          sizes.push_back(document.GetSource().bytes.size());
          Restore(document, range, AttributesOf(original, range));
          document = Saved(document);
        }
        // What is written anew is longer, once.
        EXPECT_EQ(sizes[2], sizes[1]) << "grew by marking " << at;
      }
      for (const Range& replaced : {Range{at, at}, range, Range{at + 1, at + 1}}) {
        for (const std::u32string typed : {U"", U"A", U"😊}"}) {
          for (const Attributes& attributes : {original.At(at), Attributes{255, true, true, 0}}) {
            Document document = original;
            document.Type(replaced, typed, attributes);
            Saved(document);
          }
        }
      }
    }
  }
}

TEST(RtfWriter, WritesARaisedPositionInHalfPoints) {
  const std::vector<std::pair<Twips, Twips>> cases = {
      {25, 30}, {1, 10}, {20, 20}, {-3, -10}, {0, 0}};
  for (const auto& [set, back] : cases) {
    const std::string file = Marked("{\\rtf1 x}", {0, 1}, {.offset = set});
    EXPECT_EQ(rtf::Read(file)->At(0).offset, back) << set;
    EXPECT_EQ(Marked(file, {0, 1}, {.offset = set}), file) << "set again to " << set;
  }
}

TEST(RtfWriter, PutsTypedCharactersIn) {
  struct Case {
    std::string body;
    Range range;
    std::u32string typed;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"ab", {1, 1}, U"é{\n", "a\\u233?\\{\\par b"},
      {"ab", {0, 2}, U"", ""},
      {"\\b\\'e9x", {0, 1}, U"", "\\b x"},
      {"\\b\\'e9-1", {0, 1}, U"", "\\b -1"},
      {"\\i1\\'e92x", {0, 1}, U"", "\\i1 2x"},
      {"{\\uc0\\b\\'e9}", {0, 1}, U"—x", "{\\uc0\\b\\u8212 x}"},
      {"a{\\b b}c", {2, 2}, U"x", "a{\\b bx}c"},
      {"a\\par\\pard\\qc b", {2, 2}, U"x", "a\\par\\pard\\qc xb"},
      {"", {0, 0}, U"x😊", "x\\u-10179?\\u-8694?"},
  };
  for (const Case& c : cases) {
    Document document = *rtf::Read("{\\rtf1 " + c.body + "}");
    document.Type(c.range, c.typed,
                  document.Length() > 0 ? document.At(std::max<Position>(0, c.range.begin - 1))
                                        : Attributes{});
    EXPECT_EQ(rtf::Write(document), "{\\rtf1 " + c.expected + "}") << c.body;
  }
}

// A file of random pieces of all that matters to the writer.
std::string RandomFile(std::mt19937& random) {
  // clang-format off
  static const char* const kPieces[] = {
      "a", "b", "word ", "\\'e9", "\\u8217?", "\\uc0\\u8217 ", "{", "}", "{\\b ", "{\\cf1\\b ",
      "{\\cf0\\b0 ", "{\\up3 ", "\\par\n", "\\b", "\\b0 ", "\\cf2 ", "\\ul", "\\plain ", "\\-",
      "{\\*\\x y}", "{\\pict 0}", "\\rtlch ", "\\ltrch", "\r\n", "{\\footnote z}", "\\cell ",
      "\\row ", "\\intbl ", "\\pard ", "{\\ulnone ", "7", "-"};
  // clang-format on
  std::string file = "{\\rtf1\\ansi" + kTable;
  const unsigned pieces = random() % 40;
  for (unsigned i = 0; i < pieces; ++i) file += kPieces[random() % std::size(kPieces)];
  return file + "}";
}

TEST(RtfWriter, KeepsRandomFilesThroughRandomMarksAndEdits) {
  std::mt19937 random(11);
  for (int round = 0; round < 4000; ++round) {
    std::string file = RandomFile(random);
    SCOPED_TRACE(file);
    Document document = *rtf::Read(file);
    EXPECT_EQ(rtf::Write(document), file);
    for (int save = 0; save < 3; ++save) {
      for (int step = 0; step < 4 && document.Length() > 0; ++step) {
        const auto length = static_cast<unsigned>(document.Length());
        const auto begin = static_cast<Position>(random() % length);
        const Range range{begin, std::min<Position>(begin + random() % 6, document.Length())};
        if (random() % 3 > 0) {
          Mark(document, range, random() % 7);
        } else if (document.CanDelete(range)) {
          const std::u32string typed =
              std::u32string(U"x 7-é\n").substr(random() % 7, random() % 3);
          std::vector<Cell> gone = document.Type(range, typed, document.At(begin));
          if (random() % 3 == 0) {
            document.Exchange({begin, begin + static_cast<Position>(typed.size())}, gone);
          }
        }
      }
      document.Check();
      file = rtf::Write(document);
      SCOPED_TRACE("saved as " + file);
      Document again = *rtf::Read(file);
      ExpectSameText(document, again);
      if (testing::Test::HasFatalFailure()) return;
      document = std::move(again);
    }
  }
}

// Nobody's programs write such files: what an edit leaves would be read as something else.
TEST(RtfWriter, WritesADamagedTextAnewRatherThanChangeIt) {
  struct Case {
    std::string body;
    Range gone;
    std::string expected;
  };
  const std::vector<Case> cases = {
      // What was harmless behind a character would hide its group at the head of it.
      {"a{x\\*\\unknown y}z", {1, 2}, "ayz"},
      {"a{\\*x\\unknown y}z", {1, 2}, "ayz"},
      {"a{\\*\\line\\unknown y}z", {1, 2}, "ayz"},
      // A brace that stood in for a character no longer does.
      {"a{\\u-1{}\\b b\\*\\unknown y}{\\pict 00}", {1, 3}, "a<b>y</>\uFFFC"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.body);
    Document document = *rtf::Read("{\\rtf1" + c.body);
    document.Type(c.gone, U"", {});
    const Document again = *rtf::Read(rtf::Write(document));
    ExpectSameText(document, again);
    EXPECT_EQ(Dump(again), c.expected);
  }
}

TEST(RtfWriter, RewritesEveryLookThatItKnows) {
  const std::string look =
      "{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset0 Serif;}{\\f3\\fcharset2 Symbol;}"
      "{\\f4\\fcharset128 \\'82\\'6c\\u26126?\\u-10178 ?\\u-9014 "
      "?;}}{\\colortbl;\\red9\\green0\\blue0;}"
      "\\pard\\qc\\li720\\ri20\\fi-20\\sb5\\sa7\\rtlpar\\f0 a{\\f3\\'e1\\fs60\\i b}{\\rtlch\\ab "
      "c}\\par"
      "\\pard\\qj{\\highlight1 d\\highlight7 e}{\\super f}{\\sub\\strike\\v g}\\page"
      "{\\dn4\\cf1\\ul h}{\\*\\shppict{\\pict 00}}{\\nonshppict{\\pict 11}}{\\pict 22}\\qr\\line "
      "{\\pard\\sl-300\\tqr\\tldot\\tx900\\tx90\\box\\brdrdb\\brdrw9\\brsp8\\brdrt\\brdrcf1"
      "\\shading50\\cfpat1\\cbpat7 {\\scaps\\deleted i}\\slmult1{\\caps\\revised\\expnd2 j}\\par}"
      "\\trowd\\intbl i\\cell\\row\\uc3\\u8217???\\{}";
  const Document document = *rtf::Read(look);
  const Document again = *rtf::Read(rtf::Rewritten(document));
  ExpectSameText(document, again);
  EXPECT_EQ(document.Fonts(), again.Fonts());
  EXPECT_NE(again.GetSource().bytes.find("{\\pict 22}"), std::string::npos);
  EXPECT_FALSE(again.CanDelete({again.Length() - 4, again.Length() - 3}));

  std::mt19937 random(12);
  for (int round = 0; round < 500; ++round) {
    Document some = *rtf::Read(RandomFile(random));
    SCOPED_TRACE(some.GetSource().bytes);
    for (Position at = 0; at < some.Length(); at += 3) Mark(some, {at, at + 1}, at);
    ExpectSameText(some, *rtf::Read(rtf::Rewritten(some)));
  }
}

TEST(RtfWriter, DoesNotGrowByAHundredRounds) {
  Document document =
      *rtf::Read("{\\rtf1" + kTable + "one {\\b two three} four\\par five\\'e9six}");
  std::vector<std::size_t> sizes;
  for (int round = 0; round < 100; ++round) {
    document.Apply({2, 11}, kBlue);
    document.Apply({8, 24}, {.colour = RGB(0, 0, 255), .bold = false, .offset = 25});
    sizes.push_back(rtf::Write(document).size());
    document = *rtf::Read(rtf::Write(document));
    document.Apply({0, document.Length()}, kPlain);
    document.Apply({4, 13}, {.bold = true});
    document = *rtf::Read(rtf::Write(document));
  }
  EXPECT_EQ(sizes.front(), sizes.back());
  EXPECT_EQ(Dump(document), "one <b>two three</> four\nfiveésix");
}

}  // namespace
}  // namespace quill
