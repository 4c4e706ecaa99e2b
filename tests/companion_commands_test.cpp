// The commands of the companion, from their arguments to what they print.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "companion/command_line.h"
#include "support/scenario_folder.h"

namespace quill::companion {
namespace {

using test::Contents;

struct Outcome {
  int code;
  std::string out;
  std::string err;
};

Outcome Call(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = RunCommandLine(arguments, "0", out, err);
  return {code, out.str(), err.str()};
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  if (from.empty()) return text;
  const std::size_t at = text.find(from);
  if (at == std::string::npos) throw std::logic_error("nothing to replace: " + from);
  return text.replace(at, from.size(), to);
}

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// The letter before a term is its colour: <aYesterday> blue, <bthen> red, <lnow> light blue.
std::string Marked(std::string text) {
  for (const auto& [letter, colour] : {std::pair("<b", "2"), {"<a", "1"}, {"<l", "3"}}) {
    while (text.find(letter) != std::string::npos) {
      text = Replaced(text, letter, std::string("{\\cf") + colour + "\\up3 ");
    }
  }
  while (text.find('>') != std::string::npos) text = Replaced(text, ">", "}");
  return "{\\rtf1\\ansi{\\colortbl;\\red0\\green0\\blue255;\\red255\\green0\\blue0;"
         "\\red128\\green128\\blue255;}" +
         text + "\\par}";
}

constexpr const char* kText = "<aYesterday> he left, <bthen> came <ltonight>.";
constexpr const char* kLines =
    "t_op(1\\ 1\\ 9\\ Yesterday\\ S\\ U\\ lexematic\\ a_operator\\ relative\\ before\\ d \\ "
    "Value ?\\ then\\ 20\\ 23 )\r\n"
    "t_op(2\\ 20\\ 23\\ then\\ S\\ U\\ Class\\ b_operator\\ absolute \\ at\\ d \\ 6\\ "
    "Reference Tag\\  \\   )\r\n"
    "t_op(3\\ 30\\ 36\\ tonight\\ S\\ User-ID\\ lexematic\\ a_operator\\ absolute \\ at\\ d \\ "
    " \"6, 7\" \\ Reference Tag\\ 0\\ 0 )\r\n";

struct Companion : testing::Test {
  test::ScenarioFolder folder{test::OwnScenarios()};

  static void WriteFamily(const std::string& name, const std::string& text,
                          const std::string& lines) {
    Write(name + ".tbf", Marked(text));
    Write(name + ".tlf", lines);
  }
};

TEST_F(Companion, CheckFindsEveryKindOfFaultAndNothingElse) {
  struct Row {
    const char* fault;
    const char* inText;  // replaced in the text by the next
    const char* byText;
    const char* inList;
    const char* byList;
    const char* findings;
  };
  const Row kRows[] = {
      {"none", "", "", "", "", ""},
      {"first word lost", "", "", "t_op(1", "", "0:untagged 1:damaged"},
      {"too few fields", "", "", "\\ S\\ U\\ Class", "\\ S\\ Class",
       "0:untagged 1:reference-without-tag 2:damaged"},
      {"too many", "", "", "6\\ Ref", "6\\6\\ Ref", "0:untagged 1:reference-without-tag 2:damaged"},
      {"no end", "", "", "   )", "   ", "0:untagged 1:reference-without-tag 2:damaged"},
      {"start is no number", "", "", "\\ 30\\", "\\ Start\\", "0:untagged 3:damaged"},
      {"ends before it starts", "", "", "\\ 36\\", "\\ 28\\", "0:untagged 3:damaged"},
      {"words typed", " he left", " he has left", "", "", "1:reference-moved 2:moved 3:moved"},
      {"words typed, marks gone", " he left, <bthen>", " he has left, then", "", "",
       "1:reference-moved 2:moved 2:not-raised 3:moved"},
      {"term corrected", "<bthen>", "<bthus>", "", "", "1:reference-lost 2:lost"},
      {"reference to nowhere", "", "", "then\\ 20\\ 23", "left\\ 14\\ 17",
       "1:reference-without-tag"},
      {"reference to itself", "", "", "then\\ 20\\ 23", "Yesterday\\ 1\\ 9", "1:reference-circle"},
      {"circle of two", "", "", "Reference Tag\\  \\   )", "Yesterday\\ 1\\ 9 )",
       "1:reference-circle"},
      {"lowered", "<bthen>", "then", "", "", "2:not-raised"},
      {"in part", "<ltonight>", "<lto>night", "", "", "3:not-raised"},
      {"wrong colour", "<aYesterday>", "<bYesterday>", "", "", "1:colour"},
      {"not tagged", "he left", "<ahe> left", "", "", "0:untagged"},
      {"number twice", "", "", "t_op(3", "t_op(2", "3:same-number"},
      {"edited", "", "", "t_op(2\\ 20\\ 23\\ then\\ S\\ U",
       "t_op(4\\ 20\\ 23\\ then\\ S\\ U\\ Class\\ a_operator\\ Mode\\ Type\\ d\\ 6\\ \\ \\  )\r\n"
       "t_op(2\\ 20\\ 23\\ then\\ S\\ U",
       "3:stacked"},
      {"beyond the text", "", "", "\\ 36\\ tonight", "\\ 99\\ tonight", "3:lost"},
  };
  for (const Row& row : kRows) {
    const std::string list = Replaced(kLines, row.inList, row.byList);
    WriteFamily("x", Replaced(kText, row.inText, row.byText), list);
    const Outcome outcome = Call({"check", "x.tbf"});
    std::string findings;
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);) {
      const std::string rest = line.substr(std::string("x.tlf:").size());
      const std::size_t colon = rest.find(": ");
      findings += (findings.empty() ? "" : " ") + rest.substr(0, colon) + ":" +
                  rest.substr(colon + 2, rest.find(':', colon + 1) - colon - 2);
    }
    EXPECT_EQ(findings, row.findings) << row.fault << '\n' << outcome.out;
    EXPECT_EQ(outcome.code, findings.empty() ? 0 : 1) << row.fault;
  }
}

TEST_F(Companion, RepairChangesNumbersAndNoOtherByte) {
  const std::string kForeign = "\xEF\xBB\xBF\n\nno tag, and \xE4 byte of Windows-1252\r";
  WriteFamily("x", Replaced(kText, "he left", "she has left"), kForeign + kLines + "\n");
  const Outcome outcome = Call({"repair", "x.tbf", "-o", "new.tlf"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out, "");
  std::string expected = kForeign + kLines + "\n";
  for (const auto& [from, to] : {std::pair("20\\ 23 )", "25\\ 28 )"),
                                 {"20\\ 23\\ then", "25\\ 28\\ then"},
                                 {"30\\ 36", "35\\ 41"}}) {
    expected = Replaced(expected, from, to);
  }
  EXPECT_EQ(Contents("new.tlf"), expected);
  EXPECT_EQ(Call({"repair", "x.tbf", "-o", "new.tlf"}).code, 2);
  EXPECT_EQ(Call({"repair", "x.tbf", "-o", "x.tlf", "--force"}).code, 2);
  EXPECT_EQ(Call({"repair", "x.tbf", "--tags", "new.tlf", "-o", "-"}).out, expected);
}

TEST_F(Companion, CountsCharactersInEveryFormat) {
  Write("x.txt", "\xF0\x9F\x9A\xA2 cafe\xCC\x81\t\"then\", \xE2\x80\xA8now\nend");
  Write("x.tlf",
        "t_op(1\\ 10\\ 13\\ then\\ Session-ID\\ U\\ \\ \\ \\ \\ \\ 1,5\\ now\\ 18\\ 20 )\n"
        "t_op(x\\ 18\\ 20\\ now\\ S\\ U \\ Class \\ b_operator\\ \\ \\ \\ Value ?\\ \\ \\  )\n");
  EXPECT_EQ(Call({"text", "x.txt"}).out, Contents("x.txt"));
  const std::string table = Call({"export", "--to", "csv", "x.txt"}).out;
  EXPECT_EQ(table.substr(table.find("\r\n") + 2),
            "x.txt,1,1,9,13,then,then,,U,,,,,,\"1,5\",now,17,20,2\r\n"
            "x.txt,2,x,17,20,now,now,S,U,,b_operator,,,,,,,,\r\n");
  EXPECT_EQ(Call({"concordance", "--width", "4", "x.txt"}).out,
            "file,line,start,end,left,term,right\r\n"
            "x.txt,1,9,13,\"e\xCC\x81 \"\"\",then,\"\"\",  \"\r\n"
            "x.txt,2,17,20,\"\"\",  \",now, end\r\n");
  EXPECT_EQ(Call({"export", "--to", "jsonld", "-o", "out/in", "x.txt"}).code, 0);
  const std::string page = Contents("out/in/x.jsonld");
  EXPECT_NE(page.find("\"start\":17,\"end\":20"), std::string::npos);
  EXPECT_NE(page.find("\"purpose\":\"linking\",\"source\":\"x.jsonld#L2\""), std::string::npos);
  EXPECT_EQ(Contents("out/in/x.txt"), Contents("x.txt"));
  EXPECT_EQ(Call({"export", "--to", "xmi", "-o", "out", "x.txt"}).code, 0);
  const std::string cas = Contents("out/x.xmi");
  EXPECT_NE(cas.find("begin=\"18\" end=\"21\" session=\"S\""), std::string::npos) << cas;
  EXPECT_NE(cas.find("cafe\xCC\x81&#09;&quot;then&quot;, \xE2\x80\xA8now&#10;end"),
            std::string::npos);
}

TEST_F(Companion, EndsWithACodeThatTellsWhatHappened) {
  WriteFamily("x", kText, kLines);
  WriteFamily("damaged", kText, "t_op\r\n");
  WriteFamily("empty", "", "");
  Write("alone.tbf", Marked("no list"));
  Write("picture", std::string("\0\1", 2));
  struct Row {
    std::vector<std::string> arguments;
    int code;
  };
  const Row kRows[] = {
      {{}, 2},
      {{"--help"}, 0},
      {{"--version"}, 0},
      {{"check", "--help"}, 0},
      {{"tell", "x.tbf"}, 2},
      {{"check"}, 2},
      {{"check", "--colour", "x.tbf"}, 2},
      {{"concordance", "--width", "-1", "x.tbf"}, 2},
      {{"export", "x.tbf"}, 2},
      {{"export", "--to", "pdf", "x.tbf"}, 2},
      {{"export", "--to", "xmi", "x.tbf"}, 2},
      {{"repair", "x.tbf"}, 2},
      {{"text", "x.tbf", "alone.tbf"}, 2},
      {{"--csv", "summary", "x.tbf", "alone.tbf", "empty.tbf"}, 0},
      {{"summary", "damaged.tbf"}, 1},
      {{"summary", "damaged.tbf", "missing.tbf"}, 2},
      {{"summary", "picture"}, 2},
      {{"check", "alone.tbf", "empty.tbf"}, 0},
      {{"check", "x.tlf"}, 2},
      {{"check", "x.tbf", "--tags", "missing.tlf"}, 2},
      {{"check", "x.tbf", "alone.tbf", "--tags", "x.tlf"}, 2},
      {{"check", "--tags", "x.tlf", "x.tbf", "--tags", "x.tlf"}, 0},
      {{"text", "x.tbf", "-o", "x.tbf", "--force"}, 2},
      {{"export", "--to", "jsonld", "-o", "out", "x.tbf", "./x.tbf"}, 2},
      {{"export", "--to", "jsonld", "-o", "out", "x.tbf"}, 0},
      {{"export", "--to", "jsonld", "-o", "out", "x.tbf"}, 2},
      {{"export", "--to", "jsonld", "-o", "out", "x.tbf", "--force"}, 0},
  };
  for (const Row& row : kRows) {
    std::string call;
    for (const std::string& argument : row.arguments) call += argument + " ";
    const Outcome outcome = Call(row.arguments);
    EXPECT_EQ(outcome.code, row.code) << call << outcome.out << outcome.err;
    EXPECT_EQ(outcome.err.empty(), row.code == 0) << call << outcome.err;
  }
}

}  // namespace
}  // namespace quill::companion
