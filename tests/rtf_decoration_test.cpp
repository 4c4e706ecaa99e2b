// Labels of lists and cells of tables, as they stand in front of paragraphs.
#include "rtf/decoration.h"

#include <gtest/gtest.h>

#include <string>

#include "rtf/notes.h"
#include "rtf/reader.h"
#include "rtf/table.h"
#include "text/unicode.h"

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

TEST(Decoration, RowsOfTables) {
  const Document document = Load(
      R"(\\trowd a\par\trowd\trleft-100\trbrdrt\brdrs\brdrw30\trbrdrv\brdrdash\clbrdrl\brdrnone)"
      R"(\clcbpat1\cellx2000 \clvmrg\clbrdrr\brdrs\brdrcf1\cellx900\intbl b\cell c\cell\row)"
      R"(\trowd\rtlrow\trqc\clmrg\clshdng5000\cellx10\pard\cellx9\intbl d\cell\row\trowdx)");
  const std::vector<Offset> places = FindRowDefinitions(document.GetSource().bytes);
  ASSERT_EQ(places.size(), 2U);
  const RowDefinition row = RowDefinitionAt(document.GetSource(), places[0]);
  constexpr Colour kOwn = RGB(1, 2, 3);
  const Border none{Border::kNone};
  EXPECT_EQ(row.left, -100);
  ASSERT_EQ(row.cells.size(), 2U);
  EXPECT_EQ(row.cells[0].edge, 2000);
  EXPECT_EQ(row.cells[1].edge, 2000) << "not to the left of the cell before";
  EXPECT_EQ(row.cells[0].shading, kOwn);
  EXPECT_TRUE(row.cells[1].joinsAbove);
  EXPECT_EQ(row.cells[0].borders.top, (Border{Border::kLine, 30, 0})) << "that of the row";
  EXPECT_EQ(row.cells[0].borders.left, none);
  EXPECT_EQ(row.cells[0].borders.right.kind, Border::kLine) << "between cells";
  EXPECT_EQ(row.cells[0].borders.bottom, none);
  EXPECT_EQ(row.cells[1].borders.right, (Border{Border::kLine, 0, kOwn}));
  const RowDefinition second = RowDefinitionAt(document.GetSource(), places[1]);
  EXPECT_TRUE(second.rightToLeft);
  EXPECT_EQ(second.alignment, Alignment::kCentre);
  ASSERT_EQ(second.cells.size(), 1U);
  EXPECT_EQ(second.cells[0].shading, RGB(127, 127, 127));
  EXPECT_EQ(second.cells[0].borders.top, Border{}) << "nothing is told of borders";
}

TEST(Decoration, EndsOfPages) {
  const struct {
    const char* body;  // its first paragraph ends at 1
    bool ends;
  } kCases[] = {
      {R"(a\page b)", true},
      {R"(a\par b)", false},
      {R"(a\page)", false},
      {R"(a\sect\sectd b)", true},
      {R"(a\sect\sectd\sbknone b)", false},
      {R"(a\par\pard\pagebb b)", true},
      {R"(a\par\pagebb\pard b)", false},
      {R"(a\par\pagebb0 b)", false},
  };
  for (const auto& test : kCases) EXPECT_EQ(EndsPage(Load(test.body), 1), test.ends) << test.body;
}

// Kind, mark, the place of the character behind, author and text.
std::string Told(const Document& document) {
  std::string told;
  for (const Note& note : FindNotes(document)) {
    told += std::string(1, "FEC"[note.kind]) + note.mark + " " +
            std::to_string(document.Origins().FirstBehind(note.place, 0)) + " " +
            ToUtf8(AuthorOf(document, note)) + "|" + ToUtf8(TextOf(document, note)) + ";";
  }
  return told;
}

TEST(Decoration, NotesAreFoundInTheKeptBytes) {
  const struct {
    const char* body;
    const char* notes;
  } kCases[] = {
      {R"(a{\super\chftn}{\footnote\pard {\up6\chftn} one\par two} b{\*\footnote * own}c)",
       "F1 1 |one\ntwo;F 3 |* own;"},
      {R"(a\chftn{\footnote \'e9}b{\footnote\ftnalt\chftn e}c{\footnote\chftn f})",
       "F1 1 |\xC3\xA9;E1 2 |e;F2 3 |f;"},
      {R"(\ftnnruc\ftnstart4 a{\footnote\chftn}{\footnote\chftn}\aftnnalc\aftnstart28 )"
       R"({\footnote\ftnalt\chftn})",
       "FIV 1 |;FV 1 |;Ebb 1 |;"},
      {R"(\fet1\aftnnrlc\aftnstart1949{\footnote\chftn}a)", "Emcmxlix 0 |;"},
      {R"(x{\*\atnid J}{\*\atnauthor J\'f6}\chatn{\*\annotation{\*\atnref 1}{\*\atndate 5}says}y)",
       "C 1 J\xC3\xB6|says;"},
      {R"({\header {\footnote h}}a{\*\new {\footnote n}}\\footnote{\pict{\footnote}})", ""},
      {R"(a{\footnote x{\*\annotation y}{\footnote z}}b)", "F 1 |x;"},
      {R"(a{\footnote broken)", "F 1 |broken;"},
  };
  for (const auto& test : kCases) EXPECT_EQ(Told(Load(test.body)), test.notes) << test.body;
}

TEST(Decoration, NotesStayWithTheirCharacters) {
  Document document = Load(R"(ab{\footnote x}cd)");
  document.Type({1, 1}, U"..", {});
  EXPECT_EQ(Told(document), "F 4 |x;");
  document.Type({4, 4}, U"..", {});
  EXPECT_EQ(document.Text(), U"a..b..cd");
  const std::string beside = Told(document);
  EXPECT_TRUE(beside == "F 4 |x;" || beside == "F 6 |x;") << beside;
  document.Type({2, 8}, U"", {});
  EXPECT_EQ(Told(document), "F 2 |x;");
}

}  // namespace
}  // namespace quill::rtf
