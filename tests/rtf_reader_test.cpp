// Which parts of a file are characters of the text, and with which attributes.
#include <gtest/gtest.h>

#include <string>

#include "rtf/reader.h"
#include "support/rich_text.h"
#include "text/unicode.h"

namespace quill {
namespace {

using std::string_literals::operator""s;

struct Case {
  std::string body;      // of a document with the head below
  std::string expected;  // as Dump writes it
};

// Fonts: 0 Western, 1 Cyrillic, 2 symbols, 3 Japanese, 4 the document's own page.
// Colours: 0 automatic, 1 blue, 2 red.
constexpr const char* kHead =
    "{\\rtf1\\ansi\\ansicpg1250\\deff0{\\fonttbl{\\f0\\fcharset0 Times;}{\\f1\\fcharset204 Arial;}"
    "{\\f2\\fcharset2 Symbol;}{\\f3\\fcharset128 Gothic;}{\\f4\\fcharset1 Other;}}"
    "{\\colortbl;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}";

void ExpectTexts(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    const std::optional<Document> document = rtf::Read(kHead + c.body + "}");
    ASSERT_TRUE(document) << c.body;
    document->Check();
    EXPECT_EQ(Dump(*document), c.expected) << c.body;
  }
}

TEST(RtfReader, TellsCharactersFromWhatIsNone) {
  ExpectTexts({
      // Paragraphs, lines, tables.
      {"a\\par b\\\nc\\sect d\\page e\\column f", "a\nb\nc\nd\ne\nf"},
      {"a\\line b\\lbr0 c", "a\u2028b\u2028c"},
      {"a\\'0db\\'0ac\\'0d\\'0ad\\'0d\r\n\\'0a\\'0a", "a\nb\nc\nd\n\n"},
      {"a\\tab b\tc", "a\tb\tc"},
      {"\\trowd\\intbl a\\cell b\\cell\\row c", "a\tb\t\nc"},
      {"\\itap2 x\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}{\\nonesttables\\par}y", "x\t\ny"},
      {"a\r\nb\nc", "abc"},
      // Names and escapes.
      {"\\{\\}\\\\\\~\\_\\emdash\\endash\\bullet\\lquote x\\rquote", "{}\\\u00A0\u2011—–•‘x’"},
      {"a\\-b\\softline c\\|d\\:e\\u0?f"s + "\0g"s, "abcdefg"},
      {"{\\emspace  }", "\u2003 "},
      {"\\unknown x\\unknown-12y", "xy"},
      // Groups that hold no text.
      {"a{\\*\\strange b}{\\info{\\title b}}{\\header b}{\\footnote b}c", "ac"},
      {"a{\\author b}{\\passwordhash 01}c", "ac"},
      {"a{\\leveltext b}{\\levelnumbers b}{\\listname b}{\\ffname b}{\\moMath b}{\\staticval b}c",
       "ac"},
      {"a{\\listtext 1.\\tab}{\\pntext 2.}{\\xe b}{\\*\\annotation b}c", "ac"},
      {"a{\\field{\\*\\fldinst HYPERLINK}{\\fldrslt b}}{\\fldinst c}", "ab"},
      {"{\\upr{ansi}{\\*\\ud unicode}}", "unicode"},
      {"{\\v hidden}{\\deleted gone}", "hiddengone"},
      {"a{ \\*\\bkmkstart x}b", "a b"},
      {"{\\shp{\\*\\shpinst{\\shptxt b}}{\\shprslt c}}d", "d"},
      // Pictures and objects.
      {"a{\\pict\\wmetafile8 0123}b{\\object{\\*\\objdata 01}{\\result{\\pict 01} c}}", "a￼b￼"},
      {"{\\*\\shppict{\\pict 01}}{\\nonshppict{\\pict 02}}x", "￼x"},
      {"{\\nonshppict{\\pict 02}}{\\*\\shppict{\\pict 01}}x", "￼x"},
      {"{\\pict\\bin4 }}{{x}y", "￼y"},
      // A destination that hides the rest of the document would be a trap.
      {"a\\*\\strange b\\info c", "abc"},
  });
}

// Fields that name one character; the characters of a result take precedence.
TEST(RtfReader, ShowsTheCharacterOfASymbolField) {
  const auto field = [](const std::string& instruction, const std::string& result) {
    return "a{\\field\\flddirty{\\*\\fldinst " + instruction + "}" + result + "}b";
  };
  ExpectTexts({
      {field("SYMBOL 97 \\\\f \"Symbol\" \\\\s 12", "{\\fldrslt\\f2\\fs24}"), "a\uF061b"},
      {field("{symbol }{\\b 0x61 \\\\fSymbol}{\\*\\datafield 00}", ""), "a\uF061b"},
      {field("SYMBOL 61537 \\\\f \"Wingdings 2\" \\\\h", "{\\fldrslt }"), "a\uF061b"},
      {field("SYMBOL 955 \\\\u \\\\f \"Times\"", "{\\fldrslt {\\b }}"), "aλb"},
      {field("SYMBOL 33686 \\\\j", "{\\fldrslt}"), "aヶb"},
      {field("SYMBOL 232", "{\\fldrslt}"), "ačb"},
      {field("SYMBOL 232 \\\\f Symbol", "{\\fldrslt x}"), "axb"},
      {field("SYMBOL 232 \\\\f Symbol", "{\\fldrslt{\\pict 00}}"), "a\uFFFCb"},
      {field("SYMBOL 7", ""), "ab"},
      {field("SYMBOL 1114112 \\\\u", ""), "ab"},
      {field("SYMBOL", ""), "ab"},
      {field("SYMBOL x", ""), "ab"},
      {field("PAGE", ""), "ab"},
      {field("SYMBOL 97", "{\\field{\\fldinst SYMBOL 98}}"), "abb"},
      {"{\\b{\\field{\\fldinst SYMBOL 98 \\\\f Symbol}{\\fldrslt\\b0}}}", "<b>\uF062"},
  });
}

TEST(RtfReader, DecodesByTheFontsCodePage) {
  ExpectTexts({
      {"\\'e9\\f1\\'e9\\f4\\'e8\\f9\\'e8", "éйčč"},
      {"\\f2 A\\'61\\f0 A", "\uF041\uF061A"},
      {"\\f3\\'83\\'56\\'83V\\'83\n\\'56", "シシシ"},
      {"\\f3\\'83\\par", "\uFFFD\n"},
      {"{\\f3 \\'83}\\'41", "\uFFFDA"},
      {"\\f3 \x83\\a", "ソa"},  // its second byte is a backslash
      {"{\\f1\\'e9}\\'e9\\plain\\'e9", "йéé"},
      {"\\'4xy\\'3?z\\'zy\\'4{x}", "\x04y\x03zzy\x04x"},
  });
  EXPECT_EQ(Dump(*rtf::Read("{\\rtf1\\mac \\'8e}")), "é");
  EXPECT_EQ(Dump(*rtf::Read("{\\rtf1\\ansi\\ansicpg65001 \\'c3\\'a9\\'e2\\'82x}")), "é\uFFFDx");
  EXPECT_EQ(
      Dump(*rtf::Read("{\\rtf1\\ansi\\ansicpg65001{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset2 "
                      "S;}}\\f0\\'e2\\'82\\'ac\\f1\\'e2}")),
      "€\uF0E2");
  EXPECT_EQ(Dump(*rtf::Read("{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset134\\cpg65001 A;}}"
                            "\\f0\\'e4\\'b8\\'ad\\'e5\\'9c\\'8b}")),
            "中國");
  EXPECT_EQ(Dump(*rtf::Read("{\\rtf1\\ansi\\ansicpg0 \\'e9\xE9}")), "éé");
}

// Files as the programs of the world begin and write them.
TEST(RtfReader, ReadsWhatProducersWrite) {
  const std::vector<Case> cases = {
      {"{\\rtf1\\ansi\\ansicpg932{\\fonttbl{\\f0\\fcharset0 T;}{\\f1\\fcharset128 "
       "M;}{\\f2\\fcharset134 S;}"
       "{\\f3\\fcharset136 L;}{\\f4\\fcharset129 B;}}\\loch\\f0 "
       "a\\hich\\af0\\dbch\\f1\\'93\\'fa\\'96\\'7b"
       "{\\f2\\'d6\\'d0}{\\f3\\'a4\\'a4}{\\f4\\'b0\\'a1}}",
       "a日本中中가"},
      {"{\\rtf1\\ansi\\ansicpg1252\\cocoartf2639\n{\\fonttbl\\f0\\fswiss\\fcharset0 H;}\n\\f0 "
       "one\\\n"
       "two \\'96 \\uc0\\u55357 \\u56832 \\'97x}",
       "one\ntwo – 😀—x"},
      {"{\\rtf1\\mac\\deff4{\\fonttbl{\\f4\\fnil T;}} \\'d2Hi\\'d3 \\'8e}", " “Hi” é"},
      {"{\\rtf1\\pc \\'82\\'e1}", "éß"},
      {"{\\rtf1\\pca \\'82\\'e1}", "éß"},
      {"{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset161 T;}{\\f1\\fcharset162 U;}{\\f2 V CE;}}"
       "\\f0\\'e1\\f1\\'fe\\f2\\'9a}",
       "αşš"},
      {"{\\rtf1\\fbidis\\ansi\\ansicpg1255{\\fonttbl{\\f0\\fcharset177 D;}{\\f1\\fcharset178 "
       "A;}}\\rtlpar"
       "\\rtlch\\f0\\'f9\\'ec\\'e5\\'ed\\f1\\'e3}",
       "שלוםم"},
      {"{\\rtf1\\ansi\\fromhtml1 {\\*\\htmltag64 <p>}\\htmlrtf {\\htmlrtf0 "
       "Dear\\htmlrtf\\par}\\htmlrtf0 "
       "{\\*\\htmltag84 &nbsp;}\\htmlrtf \\'a0\\htmlrtf0 x}",
       "Dear\n\u00A0x"},
  };
  for (const Case& c : cases) {
    const std::optional<Document> document = rtf::Read(c.body);
    ASSERT_TRUE(document) << c.body;
    EXPECT_EQ(Dump(*document), c.expected) << c.body;
  }
}

TEST(RtfReader, ReadsUnicodeWithItsFallback) {
  ExpectTexts({
      {"\\u8217?x", "’x"},
      {"\\u8217\\'92x\\u8217\r\n?y", "’x’y"},
      {"\\uc0\\u8217 x", "’x"},
      {"{\\uc2\\u12354\\'82\\'a0x}\\u233?y", "あxéy"},
      {"\\u-3913?\\u61624?", "\uF0B7\uF0B8"},
      {"\\u-10179 ?\\u-8694 ?", "😊"},
      {"\\uc0\\u55357\\u56842 x", "😊x"},
      {"\\u55357?\\b\\u56842?", "<b>😊"},
      {"\\u55357?x\\u56842?y", "\uFFFDx\uFFFDy"},
      {"{\\u55357?}{\\u56842?}", "\uFFFD\uFFFD"},
      {"\\u8217}", "’"},
      {"{\\u8217}?", "’?"},
      {"\\uc2\\u8217\\tab xy", "’y"},
      {"\\u128512 ?", "😀"},
      {"\\u1114112 ?", "\uFFFD"},
  });
}

TEST(RtfReader, GivesDirectFormattingAsAttributes) {
  ExpectTexts({
      {"a{\\cf1\\b b\\b0 c}d", "a<c16711680 b>b<c16711680>c</>d"},
      {"\\b1 a\\b2 b\\plain c", "<b>ab</>c"},
      {"\\cf2 a\\cf b\\cf7 c\\cf-1 d\\cf0 e", "<c255>a</>bcde"},
      {"\\ul a\\ulnone b\\ulwave c\\ul0 d\\uldb e\\ulc2 f", "<u>a</>b<u>c</>d<u>ef"},
      {"\\up a\\up4 b\\up0 c\\dn3 d\\dn0 e", "<o60>a<o40>b</>c<o-30>d</>e"},
      {"\\up2147483647999 a", "<o327670>a"},
      {"{\\super a}{\\sub b}\\cb2 c\\highlight2 d", "abcd"},
      {"\\b a\\pard b\\par c", "<b>ab\nc"},
      // Each direction has its own weight; the last of the pair names the run.
      {"\\rtlch\\ab\\ltrch a\\b b\\rtlch c\\ab0 d", "a<b>bc</>d"},
      {"\\ab a\\acf1 b\\aul c", "abc"},
  });
  EXPECT_EQ(Dump(*rtf::Read("{\\rtf1{\\colortbl\\red9\\green0\\blue0;;\\blue2\\red1}"
                            "\\cf0 a\\cf1 b\\cf2 c}")),
            "<c9>a</>b<c131073>c");
  // A table behind the first characters; one behind another.
  EXPECT_EQ(Dump(*rtf::Read("{\\rtf1\\cf1 a{\\colortbl;\\red9;}b}")), "<c9>ab");
  EXPECT_EQ(Dump(*rtf::Read("{\\rtf1{\\colortbl;\\red9;}\\cf1 a{\\colortbl;\\red8;}b}")), "<c9>ab");
}

TEST(RtfReader, TakesMalformedFilesAsFarAsTheyGo) {
  const std::vector<Case> cases = {
      {"{\\rtf1 a{\\b b", "a<b>b"},
      {"{\\rtf1 a}}}b\\par", "a"},
      {"{\\rtf a} \0\0"s, "a"},
      {"\xEF\xBB\xBF\r\n {\\rtf1 a}", "a"},
      {"{\\rtf1 a\\", "a"},
      {"{\\rtf1 a\\'", "a"},
      {"{\\rtf1 a\\u", "a"},
      {"{\\rtf1 a{\\pict\\bin99 x", "a￼"},
      {"{\\rtf1{\\fonttbl{\\f0 x", ""},
      {"{\\rtf1", ""},
  };
  for (const Case& c : cases) {
    const std::optional<Document> document = rtf::Read(c.body);
    ASSERT_TRUE(document) << c.body;
    document->Check();
    EXPECT_EQ(Dump(*document), c.expected) << c.body;
  }
}

TEST(RtfReader, StandsDeepNestingAndHugeNumbers) {
  const int deep = 200000;
  std::string body;
  for (int i = 0; i < deep; ++i) body += i % 2 == 0 ? "{\\b " : "{\\b0 ";
  std::optional<Document> document =
      rtf::Read("{\\rtf1" + body + "x" + std::string(deep, '}') + "y}");
  ASSERT_TRUE(document);
  EXPECT_EQ(Dump(*document), "xy");
  EXPECT_TRUE(rtf::Read("{\\rtf1\\f99999999999\\fs-5\\li99999999\\uc-4\\bin-1 x}"));
  EXPECT_TRUE(rtf::Read("{\\rtf1{\\fonttbl{\\f2147483647 x;}}\\deff2147483647\\plain x}"));
}

TEST(RtfReader, ReadsPlainText) {
  const std::vector<Case> cases = {
      {"", ""},
      {"one\r\ntwo\rthree\nfour", "one\ntwo\nthree\nfour"},
      {"caf\xC3\xA9 \\{}\t\xE2\x80\xA8\xF0\x9F\x98\x8A", "café \\{}\t\u2028😊"},
      {"caf\xE9 \x93x\x94", "café “x”"},
      {"\xEF\xBB\xBFx", "x"},
      {"\xFF\xFEx\0=\xD8\x0A\xDE\n\0"s, "x😊\n"},
      {"\xFE\xFF\0x\0\n\xD8"s, "x\n\uFFFD"},
      {"a\x0C"
       "b",
       "a\x0C"
       "b"},
      {"\\rtf1 x", "\\rtf1 x"},
  };
  for (const Case& c : cases) {
    const std::optional<Document> document = rtf::Read(c.body);
    ASSERT_TRUE(document) << c.body;
    EXPECT_EQ(Dump(*document), c.expected) << c.body;
  }
  EXPECT_FALSE(rtf::Read("a\0b"s));
  EXPECT_FALSE(rtf::Read("\xFF\xFE\0\0"s));
}

}  // namespace
}  // namespace quill
