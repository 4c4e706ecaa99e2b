// Labels of lists and cells of tables, as they stand in front of paragraphs.
#include "rtf/decoration.h"

#include <gtest/gtest.h>

#include <string>

#include "rtf/reader.h"

namespace quill::rtf {
namespace {

Document Load(const std::string& body) {
  return *Read(
      R"({\rtf1\ansi{\fonttbl{\f0 Arial;}{\f1\fcharset2 Symbol;}}{\colortbl;\red1\green2\blue3;})" +
      body + "}");
}

TEST(Decoration, Labels) {
  const struct {
    const char* body;  // its second paragraph begins at 2
    const char32_t* label;
    int length;
  } kCases[] = {
      {R"(a\par{\listtext\pard\plain\f0 12.\tab}b\par)", U"12.", 3},
      {R"(a\par\pard\fi-360\li720{\pntext\f1\'b7\tab}{\*\pn\pnlvlblt}b\par)", U"\uF0B7", 1},
      {R"(a\par{\listtext\pard\plain \u8226\'95\tab}b)", U"\u2022", 1},
      {R"(a\par{\listtext{\b i})\tab}{\i b})", U"i)", 2},
      {R"(a\par{\listtext\tab}b)", U"", 0},
      {R"(a\par b{\listtext 1.}c)", U"", 0},
      {R"({\listtext 1.}a\par b)", U"", 0},
      {R"(a\par{\listtext 1)", nullptr, 0},
  };
  for (const auto& test : kCases) {
    const Document document = Load(test.body);
    if (test.label == nullptr) {
      EXPECT_EQ(document.Length(), 2) << test.body;
      continue;
    }
    EXPECT_EQ(LabelOf(document, 2).text, test.label) << test.body;
    EXPECT_EQ(LabelLength(document, 2), test.length) << test.body;
  }
  EXPECT_EQ(LabelOf(Load(R"({\listtext 1.}a\par b)"), 0).text, U"1.");
  EXPECT_EQ(LabelOf(Load(R"({\listtext\pard\plain \f1\'b7\tab}a)"), 0).font, "Symbol");
  EXPECT_EQ(LabelOf(Load("{\\listtext " + std::string(100, 'x') + "}a"), 0).text.size(), 32U);
  EXPECT_EQ(LabelOf(*Read(R"({\rtf1\ansi {\listtext a)\tab}b})"), 0).text, U"a)")
      << "without a colour table";
}

TEST(Decoration, ALabelStaysWithItsParagraph) {
  Document document = Load(R"(a\par{\listtext 1.\tab}b\par c)");
  document.Type({2, 2}, U"x", {});
  EXPECT_EQ(LabelOf(document, 2).text, U"1.");
  document.Type({3, 3}, U"\n", {});
  EXPECT_EQ(LabelOf(document, 4).text, U"") << "of the paragraph that was split off";
  EXPECT_EQ(LabelOf(*Read("plain"), 0).text, U"");
}

TEST(Decoration, CellEdges) {
  const struct {
    const char* body;
    std::vector<Twips> edges;
  } kCases[] = {
      {R"(a\par\trowd\trgaph108\cellx2000\clbrdrt\cellx5600\pard\intbl b\cell c\cell\row)",
       {2000, 5600}},
      {R"(a\par\trowd\cellx1\trowd\cellx2000\cellx900\intbl b\cell\row)", {2000, 2000}},
      {R"(a\par\intbl b\cell\row)", {}},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(CellEdges(Load(test.body), 2), test.edges) << test.body;
  }
}

}  // namespace
}  // namespace quill::rtf
