// The text control: selection and its clamps, attributes, typing, undo; the document under it
// against a plain vector of characters.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "program/program.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/fakes.h"
#include "support/rich_text.h"
#include "text/marks.h"
#include "text/unicode.h"

namespace quill {
namespace {

class Surface : public testing::Test {
 protected:
  void Load(const std::string& body) {
    text_.SetDocument(*rtf::Read("{\\rtf1{\\colortbl;\\red0\\green0\\blue255;}" + body + "}"));
  }
  // The text with the selection in brackets.
  std::string Shown() {
    std::u32string shown = text_.Text();
    shown.insert(static_cast<std::size_t>(text_.Selection().end), U"]");
    shown.insert(static_cast<std::size_t>(text_.Selection().begin), U"[");
    return ToUtf8(shown);
  }
  void Select(Position start, Position length) {
    text_.SelStart = start;
    text_.SelLength = length;
  }

  test::ScriptedDialogs dialogs_;
  test::MemoryDisk disk_;
  Program program_{dialogs_, disk_};
  TextSurface& text_ = program_.Form().RichTextBox1;
};

TEST_F(Surface, ClampsTheSelection) {
  Load("abcdef");
  const std::vector<std::tuple<Position, Position, std::string>> cases = {
      {2, 2, "ab[cd]ef"},  {2, 99, "ab[cdef]"}, {6, 1, "abcdef[]"},
      {99, 3, "abcdef[]"}, {-4, 2, "[ab]cdef"}, {3, -1, "abc[]def"}};
  for (const auto& [start, length, shown] : cases) {
    Select(start, length);
    EXPECT_EQ(Shown(), shown) << start << " " << length;
  }
  Select(1, 3);
  text_.SelStart = 1;
  EXPECT_EQ(Shown(), "a[]bcdef") << "a write of the same start empties the selection";
}

TEST_F(Surface, SelectsTheSpansOfTags) {
  Load("abcdef");
  const std::vector<std::tuple<double, double, std::string>> cases = {
      {2, 3, "a[bc]def"},      {1, 6, "[abcdef]"},
      {0, 3, "[]abcdef"},      {-5, 2, "[]abcdef"},
      {3, 1, "ab[]cdef"},      {4, 99, "abc[def]"},
      {50, 60, "abcdef[]"},    {2.4, 3.4, "a[bc]def"},
      {1e300, 2, "abcdef[]"},  {INFINITY, INFINITY, "abcdef[]"},
      {2, -1e300, "a[]bcdef"}, {0.6, 2, "[ab]cdef"}};
  for (const auto& [start, end, shown] : cases) {
    text_.SelectSpan(start, end);
    EXPECT_EQ(Shown(), shown) << start << " to " << end;
  }
}

TEST_F(Surface, ReadsOneValueOrNone) {
  Load("a{\\cf1\\up3 bc}d");
  Select(1, 2);
  EXPECT_EQ(text_.SelColor.Get(), kMarkedA);
  EXPECT_EQ(text_.SelCharOffset.Get(), 30);
  Select(0, 2);
  EXPECT_EQ(text_.SelColor.Get(), std::nullopt);
  EXPECT_EQ(text_.SelCharOffset.Get(), std::nullopt);
  EXPECT_EQ(text_.SelBold.Get(), false);
}

TEST_F(Surface, TypesOverASelectionAsOneEdit) {
  Load("{\\b one {\\footnote note}two} three");
  Select(0, 7);
  text_.SelColor = kMarkedA;
  text_.TypeOver(U"one two");
  EXPECT_EQ(Dump(text_.Doc()), "<c16711680 b>one two</> three");
  EXPECT_NE(rtf::Write(text_.Doc()).find("{\\footnote note}"), std::string::npos);
  EXPECT_FALSE(text_.CanUndo()) << "nothing was typed but what stood there";
  Select(0, 7);
  text_.TypeOver(U"one or two");
  EXPECT_EQ(Shown(), "one or two[] three");
  EXPECT_EQ(Dump(text_.Doc()), "<c16711680 b>one or two</> three");
  text_.Undo();
  EXPECT_EQ(Dump(text_.Doc()), "<c16711680 b>one two</> three");
  text_.Redo();
  EXPECT_EQ(Dump(text_.Doc()), "<c16711680 b>one or two</> three");
  Load("another text");
  EXPECT_FALSE(text_.CanUndo());
}

TEST_F(Surface, KeepsTheEndsOfCellsAndRows) {
  Load("x\\par\\trowd\\intbl a\\cell b\\cell\\row\\pard y");
  // x¶ a→ b→ ¶ y
  EXPECT_EQ(Dump(text_.Doc()), "x\na\tb\t\ny");
  const std::vector<std::tuple<Position, Position, std::string>> cases = {
      {3, 1, "x\na\tb\t\ny"}, {2, 2, "x\na\tb\t\ny"}, {6, 1, "x\na\tb\t\ny"},
      {4, 3, "x\na\tb\t\ny"}, {2, 1, "x\nq\tb\t\ny"}, {2, 5, "x\nqy"}};
  for (const auto& [start, length, expected] : cases) {
    Load("x\\par\\trowd\\intbl a\\cell b\\cell\\row\\pard y");
    Select(start, length);
    program_.Type(text_, U"q");
    EXPECT_EQ(Dump(text_.Doc()), expected) << start << " " << length;
  }
}

// The document under random edits, compared with a vector of characters with their attributes.
TEST(Document, AgreesWithAPlainVector) {
  std::mt19937 random(21);
  for (int round = 0; round < 60; ++round) {
    Document document = *rtf::Read("{\\rtf1 some {\\b bold} text\\par and {\\cf1 more}}");
    std::vector<std::pair<char32_t, Attributes>> plain;
    for (Position at = 0; at < document.Length(); ++at) {
      plain.emplace_back(document.Text()[static_cast<std::size_t>(at)], document.At(at));
    }
    for (int step = 0; step < 60; ++step) {
      const auto begin = static_cast<std::ptrdiff_t>(random() % (plain.size() + 1));
      const auto length = std::min<std::ptrdiff_t>(random() % 5, std::ssize(plain) - begin);
      const Range range{begin, begin + length};
      if (random() % 2 == 0) {
        const AttributeChange change{.colour = static_cast<Colour>(random() % 2),
                                     .underline = random() % 2 == 0};
        const std::vector<Range> changed = document.Apply(range, change);
        std::vector<Range> expected;
        for (std::ptrdiff_t i = begin; i < begin + length; ++i) {
          const Attributes now = Changed(plain[static_cast<std::size_t>(i)].second, change);
          if (now == plain[static_cast<std::size_t>(i)].second) continue;
          plain[static_cast<std::size_t>(i)].second = now;
          if (expected.empty() || expected.back().end != i) expected.push_back({i, i});
          expected.back().end = i + 1;
        }
        ASSERT_EQ(changed, expected);
      } else {
        const Attributes attributes{static_cast<Colour>(random() % 3), random() % 2 == 0, false, 0};
        const std::u32string typed(random() % 3, static_cast<char32_t>(U'a' + random() % 5));
        document.Type(range, typed, attributes);
        plain.erase(plain.begin() + begin, plain.begin() + begin + length);
        plain.insert(plain.begin() + begin, typed.size(),
                     {typed.empty() ? U'a' : typed[0], attributes});
      }
      document.Check();
      ASSERT_EQ(static_cast<std::size_t>(document.Length()), plain.size());
      for (std::size_t i = 0; i < plain.size(); ++i) {
        ASSERT_EQ(document.Text()[i], plain[i].first);
        ASSERT_EQ(document.At(static_cast<Position>(i)), plain[i].second) << "at " << i;
      }
      const auto wanted = static_cast<Colour>(random() % 3);
      const auto from = static_cast<Position>(random() % (plain.size() + 1));
      Position found = from;
      while (found < document.Length() && document.At(found).colour != wanted) ++found;
      ASSERT_EQ(document.FindColour({from, document.Length()}, wanted), found);
    }
  }
}

}  // namespace
}  // namespace quill
