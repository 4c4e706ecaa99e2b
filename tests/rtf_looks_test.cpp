// How characters and paragraphs look besides the marks, and that looks are no characters.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "rtf/reader.h"
#include "text/paragraph_frame.h"

namespace quill::rtf {
namespace {

Document Load(const std::string& body) {
  return *Read(R"({\rtf1\ansi{\colortbl;\red1\green2\blue3;\red200\green100\blue0;})" + body + "}");
}

TEST(RtfLooks, OfCharactersAndParagraphs) {
  const struct {
    const char* body;  // its text is "a"
    std::function<void(CharacterLook&, ParagraphLook&)> change;
  } kCases[] = {
      {R"(\deleted a)", [](auto& c, auto&) { c.deleted = true; }},
      {R"(\deleted\revised\deleted0 a)", [](auto& c, auto&) { c.inserted = true; }},
      {R"(\caps a)", [](auto& c, auto&) { c.capitals = Capitals::kAll; }},
      {R"(\caps\scaps a)", [](auto& c, auto&) { c.capitals = Capitals::kSmall; }},
      {R"(\scaps\v\deleted\expnd4\plain a)", [](auto&, auto&) {}},
      {R"({\caps}\scaps0 a)", [](auto&, auto&) {}},
      {R"(\expnd-6 a)", [](auto& c, auto&) { c.spacing = -30; }},
      {R"(\expnd4\expndtw21 a)", [](auto& c, auto&) { c.spacing = 21; }},
      {R"(\expnd2000000000 a)", [](auto& c, auto&) { c.spacing = 32767; }},
      {R"(\sl360\slmult1 a)",
       [](auto&, auto& p) { p = {.proportional = true, .lineSpacing = 360}; }},
      {R"(\sl360\slmult1\slmult0\sl-200 a)", [](auto&, auto& p) { p.lineSpacing = -200; }},
      {R"(\sl360\slmult1\tx700\box\brdrs\pard a)", [](auto&, auto&) {}},
      // Behind a star they name a group that nobody reads, as they did before they told anything.
      {R"({\*\sl360 b}{\*\expnd4 b}{\*\tx700 b}{\*\shading100 b}a)", [](auto&, auto&) {}},
      {R"({\*\brdrcf2 a})", [](auto&, auto&) {}},
      // The borders of other things.
      {R"(\brdrt\clbrdrt\brdrs\trbrdrb\brdrs\chbrdr\brdrw10\pgbrdrl\brdrs a)", [](auto&, auto&) {}},
  };
  for (const auto& test : kCases) {
    const Document document = Load(test.body);
    EXPECT_EQ(document.Text(), U"a") << test.body;
    CharacterLook character;
    ParagraphLook paragraph;
    test.change(character, paragraph);
    EXPECT_TRUE(document.FormatAt(0).look == character) << test.body;
    EXPECT_TRUE(document.FormatAt(0).paragraph == paragraph) << test.body;
  }
}

TEST(RtfLooks, FramesOfParagraphs) {
  const Border single{BorderStyle::kSingle, 15, 0, 0};
  const struct {
    const char* body;
    ParagraphFrame frame;
  } kCases[] = {
      {R"(\tx2000\tqr\tldot\tx1000\tqc\tlhyph\tx3000\tqdec\tlul\tx2000 a)",
       {.tabs = {{1000, TabAlignment::kRight, Leader::kDots},
                 {2000, TabAlignment::kDecimal, Leader::kLine},
                 {3000, TabAlignment::kCentre, Leader::kHyphens}}}},
      {R"(\box\brdrs\brdrl\brdrdb\brdrw30\brsp80\brdrcf2 a)",
       {.borders = {{single, single, {BorderStyle::kDouble, 30, 80, RGB(200, 100, 0)}, single}}}},
      {R"(\brdrbtw\brdrdash\clbrdrt\brdrw90 a)",
       {.borders = {{{}, {}, {}, {}, {BorderStyle::kDashed, 15, 0, 0}}}}},
      {R"(\cbpat2 a)", {.shading = RGB(200, 100, 0)}},
      {R"(\shading2500 a)", {.shading = RGB(191, 191, 191)}},
      {R"(\shading5000\cfpat1\cbpat2 a)", {.shading = RGB(101, 51, 2)}},
      {R"(\cbpat2\cbpat0\shading0 a)", {}},
  };
  for (const auto& test : kCases) {
    const Document document = Load(test.body);
    const auto list = document.FormatAt(0).paragraph.details;
    EXPECT_TRUE(FrameOf(document.Formats().Details()[list]) == test.frame) << test.body;
  }
}

TEST(RtfLooks, DetailsWithoutEndAreLetGo) {
  ParagraphDetails details;
  ParagraphDetails::List list = 0;
  for (int i = 0; i < 300; ++i) list = details.Add(list, {ParagraphDetail::kTabStop, 0, i});
  EXPECT_EQ(details[list].size(), 100U);
  for (int i = 0; i < 70'000; ++i) list = details.Add(0, {ParagraphDetail::kTabStop, 0, i});
  EXPECT_EQ(list, 0);
  EXPECT_EQ(details[details.Add(0, {ParagraphDetail::kTabStop, 0, 99})].front().value, 99);
}

}  // namespace
}  // namespace quill::rtf
