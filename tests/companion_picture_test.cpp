// The picture of tags, read back as an XML tree with marks, titles and arcs.
#include "companion/picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <pugixml.hpp>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "companion/command_line.h"
#include "support/scenario_folder.h"

namespace quill::companion {
namespace {

using Kind = PictureTag::Kind;
using Mode = PictureTag::Mode;

PictureTag Tag(Range span, std::u32string lane, std::u32string term) {
  PictureTag tag;
  tag.span = span;
  tag.lane = std::move(lane);
  tag.term = std::move(term);
  tag.kind = Kind::kA;
  tag.mode = Mode::kAbsolute;
  return tag;
}

Picture Story() {
  Picture picture;
  picture.name = U"a & b <c>";
  picture.length = 1000;
  picture.lanes = {U"lexematic", U"grammatic"};
  return picture;
}

// Marks in the order of the file: elements with a title, except the drawing itself.
std::vector<pugi::xml_node> MarksIn(const pugi::xml_document& svg) {
  std::vector<pugi::xml_node> marks;
  for (const auto& found : svg.select_nodes("//g//*[title]")) marks.push_back(found.node());
  return marks;
}

std::vector<std::string> TitlesIn(const pugi::xml_document& svg) {
  std::vector<std::string> titles;
  for (const pugi::xml_node& mark : MarksIn(svg)) titles.emplace_back(mark.child_value("title"));
  return titles;
}

std::size_t ArcsIn(const pugi::xml_document& svg) {
  return svg.select_nodes("//g[@id='references']/path").size();
}

pugi::xml_document Parsed(const std::string& svg) {
  pugi::xml_document document;
  EXPECT_TRUE(document.load_string(svg.c_str())) << svg.substr(0, 200);
  return document;
}

TEST(CompanionPicture, SaysOfEveryMarkWhatItsTagSays) {
  Picture picture = Story();
  picture.tags = {Tag({9, 12}, U"lexematic", U"1 < 2 & \"3\""),
                  Tag({9, 12}, U"grammatic", U"\x01\xFFFF")};
  picture.tags[0].told = {U"lexematic", U"at"};
  const pugi::xml_document svg = Parsed(DrawPicture(picture));
  EXPECT_EQ(TitlesIn(svg), (std::vector<std::string>{"1 < 2 & \"3\" (10\u201312): lexematic; at",
                                                     "\uFFFD\uFFFD (10\u201312)"}));
  EXPECT_STREQ(svg.child("svg").child_value("title"), "Temporal operators in a & b <c>");
}

TEST(CompanionPicture, TellsKindsAndModesWithoutColour) {
  Picture picture = Story();
  std::set<std::string> looks;
  for (const Kind kind : {Kind::kA, Kind::kB, Kind::kOther}) {
    for (const Mode mode : {Mode::kAbsolute, Mode::kRelative, Mode::kOther}) {
      picture.tags = {Tag({500, 510}, U"lexematic", U"then")};
      picture.tags[0].kind = kind;
      picture.tags[0].mode = mode;
      const pugi::xml_document svg = Parsed(DrawPicture(picture));
      const auto marks = MarksIn(svg);
      ASSERT_EQ(marks.size(), 1U);
      const pugi::xml_node style = marks[0].parent();
      const std::string filling =
          std::string(style.attribute("fill").value()) == "#fff" ? "hollow" : "filled";
      looks.insert(std::string(marks[0].name()) + marks[0].attribute("d").value() + filling +
                   style.attribute("fill-opacity").value());
    }
  }
  EXPECT_EQ(looks.size(), 9U);
}

TEST(CompanionPicture, DrawsAnArcToEachReference) {
  Picture picture = Story();
  for (const Range to : {Range{100, 110}, Range{900, 910}, Range{500, 510}}) {
    picture.tags.push_back(Tag({500, 510}, U"lexematic", U"then"));
    picture.tags.back().reference = to;
  }
  picture.tags.push_back(Tag({500, 510}, U"lexematic", U"then"));
  EXPECT_EQ(ArcsIn(Parsed(DrawPicture(picture))), 3U);
}

TEST(CompanionPicture, MarksInALaneStandApartWhileThereIsRoom) {
  Picture picture = Story();
  for (Position at = 0; at < 60; ++at) {
    picture.tags.push_back(Tag({500 + at % 20, 501 + at % 20}, U"lexematic", U"now"));
  }
  const pugi::xml_document svg = Parsed(DrawPicture(picture));
  std::size_t marks = 0;
  for (const auto& row : svg.select_nodes("//g[@transform and not(@id)]")) {
    std::vector<double> places;
    for (const auto& mark : row.node().select_nodes(".//circle")) {
      places.push_back(mark.node().attribute("cx").as_double());
      const double radius = mark.node().attribute("r").as_double();
      if (places.size() > 1) {
        EXPECT_GE(places.back() - places[places.size() - 2], 2 * radius);
      }
      ++marks;
    }
  }
  EXPECT_EQ(marks, 60U);
}

TEST(CompanionPicture, StaysSmallAndTheSame) {
  std::mt19937 random(5);
  Picture picture = Story();
  picture.length = 3'200'000;
  for (Position at = 100; at < picture.length; at += 103) picture.paragraphEnds.push_back(at);
  for (int i = 0; i < 5000; ++i) {
    const auto at = static_cast<Position>(random() % 3'199'000);
    picture.tags.push_back(Tag({at, at + 20}, i % 2 == 0 ? U"lexematic" : U"grammatic",
                               std::u32string(20 + i % 200, U'日')));
    picture.tags.back().told = {U"lexematic", U"a_operator", U"relative",
                                U"before",    U"year",       std::u32string(60, U'&')};
    picture.tags.back().reference = Range{at / 2, at / 2 + 5};
  }
  const std::string svg = DrawPicture(picture);
  EXPECT_LE(svg.size(), 1'000'000U);
  EXPECT_EQ(svg, DrawPicture(picture));
  const pugi::xml_document parsed = Parsed(svg);
  EXPECT_EQ(MarksIn(parsed).size(), 5000U);
  EXPECT_EQ(ArcsIn(parsed), 5000U);
  EXPECT_NO_FATAL_FAILURE(Parsed(DrawPicture(Picture{})));
}

TEST(CompanionPicture, InTheDocumentsIsWhatTheProgramDraws) {
  std::ostringstream out;
  std::ostringstream err;
  const std::string project = QUILL_PROJECT;
  ASSERT_EQ(
      RunCommandLine({"picture", project + "/examples/the-ferry.tbf", "-o", "-"}, "1", out, err),
      0);
  EXPECT_EQ(out.str(), test::Contents(project + "/docs/pictures/the-ferry.svg"));
}

}  // namespace
}  // namespace quill::companion
