// Plays the scenarios beside this file, and tests the player's rules: what it refuses, and how.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "scenario/player.h"
#include "scenario/state.h"
#include "support/scenario_folder.h"

namespace quill::test {
namespace {

using scenario::Json;
using scenario::Outcome;

struct Played {
  Outcome outcome = Outcome::kPassed;
  std::string out;
  std::string err;
};

Played Play(const std::string& name, const std::string& scenario) {
  std::ostringstream out;
  std::ostringstream err;
  const Outcome outcome = scenario::PlayOnNewProgram(name, scenario, out, err);
  return {outcome, out.str(), err.str()};
}

std::vector<Json> Lines(const std::string& jsonLines) {
  std::vector<Json> lines;
  std::istringstream in(jsonLines);
  for (std::string line; std::getline(in, line);) lines.push_back(Json::parse(line));
  return lines;
}

// There may be members other than those wanted.
void ExpectMembers(const Json& wanted, const Json& found, const std::string& where) {
  if (!wanted.is_object() || !found.is_object()) {
    EXPECT_EQ(wanted, found) << where;
    return;
  }
  for (const auto& [name, value] : wanted.items()) {
    const std::string member = where + "." + name;
    ASSERT_TRUE(found.contains(name)) << member;
    ExpectMembers(value, found[name], member);
  }
}

void ExpectLines(const std::string& wanted, const std::string& found) {
  const std::vector<Json> wantedLines = Lines(wanted);
  const std::vector<Json> foundLines = Lines(found);
  ASSERT_EQ(wantedLines.size(), foundLines.size()) << found;
  for (std::size_t i = 0; i < wantedLines.size(); ++i) {
    ExpectMembers(wantedLines[i], foundLines[i], "line " + std::to_string(i + 1));
  }
}

void PlayFile(const std::filesystem::path& folder, const std::string& name) {
  const std::string scenario = Contents(folder / (name + ".scenario"));
  const std::filesystem::path expected = folder / (name + ".expected.jsonl");
  const ScenarioFolder place(folder);
  const Played played = Play(name, scenario);
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.outcome, Outcome::kPassed);
  if (exists(expected)) ExpectLines(Contents(expected), played.out);
}

class Scenarios : public testing::TestWithParam<std::string> {};

TEST_P(Scenarios, EndAsExpected) { PlayFile(OwnScenarios(), GetParam()); }

INSTANTIATE_TEST_SUITE_P(Own, Scenarios, testing::ValuesIn(ScenariosIn(OwnScenarios())),
                         [](const auto& row) { return row.param; });

TEST(SharedScenarios, EndAsExpected) {
  const std::vector<std::string> names = ScenariosIn(QUILL_SHARED_SCENARIOS);
  if (names.empty()) GTEST_SKIP() << "no shared scenarios beside this project";
  for (const std::string& name : names) PlayFile(QUILL_SHARED_SCENARIOS, name);
}

struct Broken {
  const char* why;
  std::string line;
};

TEST(Player, BreaksOffAtWrongSteps) {
  const Broken rows[] = {
      {"unknown step", "press AMarkSet"},
      {"steps are in lower case", "Dump"},
      {"unknown name", "click NoButton"},
      {"names are exact", "click amarkset"},
      {"a name is no text", "click \"AMarkSet\""},
      {"name missing", "click"},
      {"a list needs its item", "click TagList"},
      {"a button has no items", "click AMarkSet 0"},
      {"a frame can't be clicked", "click PreFrame"},
      {"a box can't be clicked", "click ID"},
      {"a label can't be clicked", "click Label1"},
      {"an item beyond the list", "click TagList 0"},
      {"an index below 0", "pick ClassCombo -1"},
      {"an index is digits", "pick ClassCombo 1x"},
      {"a row beyond the list", "pick ClassCombo 5"},
      {"an index beyond counting", "pick ClassCombo 99999999999999999999"},
      {"a list box has no edit line", "pick TagList 0"},
      {"row missing", "pick ClassCombo"},
      {"a button takes no keys", "type AMarkSet \"x\""},
      {"a text needs quotes", "type ID x"},
      {"text missing", "type ID"},
      {"two texts", "type ID \"x\" \"y\""},
      {"unfinished text", "type ID \"x"},
      {"a backslash before the closing quote", "type ID \"x\\\""},
      {"unknown escape", "type ID \"\\x\""},
      {"words behind a text", "type ID \"x\"y"},
      {"the text is not entered as a whole", "enter RichTextBox1 \"x\""},
      {"length missing", "select 1"},
      {"start below 0", "select -1 1"},
      {"words too many", "select 1 2 3"},
      {"words too many", "close now"},
      {"words too many", "dump all"},
      {"unknown answer", "answer perhaps"},
      {"answer missing", "answer"},
      {"words too many", "answer ok ok"},
      {"value missing", "expect ID.Text"},
      {"no JSON", "expect ID.Text Tag-ID"},
      {"two values", "expect ID.Enabled true true"},
      {"nested too deep", "expect ID.Text " + std::string(300000, '[') + std::string(300000, ']')},
      {"member missing", "expect ID \"x\""},
      {"unknown member", "expect AMarkSet.Text \"Set\""},
      {"unknown field", "expect WorkState.None null"},
      {"unknown control", "expect None.Text \"\""},
      {"not UTF-8", "type ID \"\xFF\""},
      {"a dialog without an answer", "click mnuFileOpen"},
  };
  for (const Broken& row : rows) {
    const Played played = Play("wrong", "dump\n\n" + row.line + "\ndump\n");
    EXPECT_EQ(played.outcome, Outcome::kBroken) << row.why << ": " << row.line;
    EXPECT_EQ(played.err.rfind("wrong:3: ", 0), 0U) << row.why << ": " << played.err;
    EXPECT_EQ(played.err.find('\n') + 1, played.err.size()) << row.why << ": " << played.err;
    EXPECT_EQ(Lines(played.out).size(), 1U) << row.why;
  }
}

TEST(Player, RefusesAnswersThatDoNotFit) {
  for (const std::string answer : {"proposed", "ok", "yes", "no"}) {
    const Played played = Play("wrong", "answer " + answer + "\nclick mnuFileOpen\n");
    EXPECT_EQ(played.outcome, Outcome::kBroken) << answer;
    EXPECT_EQ(played.err.rfind("wrong:2: ", 0), 0U) << played.err;
  }
}

TEST(ScriptedDialogs, MessageBoxesTakeTheAnswersThatTheyHaveButtonsFor) {
  using scenario::AnswerStep;
  using Icon = MessageBox::Icon;
  using Buttons = MessageBox::Buttons;
  struct Row {
    Icon icon;
    Buttons buttons;
    AnswerStep::Kind answer;
    std::optional<Button> pressed;  // nothing if the answer does not fit
    int printedButtons = 0;
    int printedResult = 0;
  };
  const Row rows[] = {
      {Icon::kNone, Buttons::kOk, AnswerStep::kOk, Button::kOk, 0, 1},
      {Icon::kNone, Buttons::kOk, AnswerStep::kCancel, {}},
      {Icon::kNone, Buttons::kOk, AnswerStep::kYes, {}},
      {Icon::kNone, Buttons::kOk, AnswerStep::kProposed, {}},
      {Icon::kCritical, Buttons::kOk, AnswerStep::kOk, Button::kOk, 16, 1},
      {Icon::kQuestion, Buttons::kOkCancel, AnswerStep::kOk, Button::kOk, 33, 1},
      {Icon::kQuestion, Buttons::kOkCancel, AnswerStep::kCancel, Button::kCancel, 33, 2},
      {Icon::kQuestion, Buttons::kOkCancel, AnswerStep::kNo, {}},
      {Icon::kQuestion, Buttons::kOkCancel, AnswerStep::kPath, {}},
      {Icon::kExclamation, Buttons::kYesNo, AnswerStep::kYes, Button::kYes, 52, 6},
      {Icon::kExclamation, Buttons::kYesNo, AnswerStep::kNo, Button::kNo, 52, 7},
      {Icon::kExclamation, Buttons::kYesNo, AnswerStep::kCancel, {}},
      {Icon::kExclamation, Buttons::kYesNo, AnswerStep::kOk, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(&row - rows);
    std::ostringstream out;
    scenario::ScriptedDialogs dialogs(out);
    dialogs.Add({row.answer, U"x"}, 1);
    const MessageBox box{U"Why?", U"Title", row.icon, row.buttons};
    if (!row.pressed) {
      EXPECT_ANY_THROW(dialogs.MsgBox(box));
      continue;
    }
    EXPECT_EQ(dialogs.MsgBox(box), row.pressed);
    const Json wanted = {{"MsgBox",
                          {{"prompt", "Why?"},
                           {"buttons", row.printedButtons},
                           {"title", "Title"},
                           {"result", row.printedResult}}}};
    EXPECT_EQ(Lines(out.str()), std::vector<Json>{wanted});
  }
}

TEST(Player, TellsWhatWasNotAsExpectedAndGoesOn) {
  const Played played = Play("odd",
                             "expect ID.Text \"7\"\n"
                             "expect WorkState.TagEnd null\n"
                             "expect TagList.ListIndex -1.0\n"
                             "expect Ended true\n"
                             "dump\n");
  EXPECT_EQ(played.outcome, Outcome::kUnexpected);
  EXPECT_EQ(played.err,
            "odd:1: ID.Text: wanted \"7\", found \"Tag-ID\"\n"
            "odd:4: Ended: wanted true, found false\n");
  EXPECT_EQ(Lines(played.out).size(), 1U);
}

TEST(Player, TakesAnyLineEndsAndBlanks) {
  const Played played = Play("ends",
                             "\xEF\xBB\xBF# begins with a byte order mark\r\n"
                             " \t\r\n"
                             "  # a comment\r\n"
                             " expect \t ID.Text   \"Tag-ID\" \r\n"
                             "enter UserID1 \"a\\\"b\\\\c\\td \xC3\xA9\"\r\n"
                             "expect UserID1.Text \"a\\\"b\\\\c\\td \xC3\xA9\"");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.outcome, Outcome::kPassed);
}

TEST(Player, DumpsLinesThatNoReaderBreaks) {
  const Played played = Play("breaks", "enter UserID1 \"\xE2\x80\xA8\xC2\x85\"\ndump\n");
  EXPECT_EQ(played.out.find_first_of("\x80\x85\xA8"), std::string::npos);
  EXPECT_EQ(Lines(played.out).at(0)["UserID1"]["Text"], "\xE2\x80\xA8\xC2\x85");
}

// The exit status of the program itself.
int Status(const std::string& arguments, const std::string& environment = "") {
  const std::string command =
      "env " + environment + " '" QUILL_PLAY "' " + arguments + " >play.out 2>play.err";
  const int status = std::system(command.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(Play, EndsWithTheOutcomeAsItsStatus) {
  const ScenarioFolder place(OwnScenarios());
  std::ofstream("good") << "expect Ended false\n";
  std::ofstream("odd") << "expect Ended true\ndump\n";
  std::ofstream("wrong") << "dump\nexpect Ended true\nclick mnuFileOpen\n";
  EXPECT_EQ(Status("good"), 0);
  EXPECT_EQ(Status("odd"), 1);
  EXPECT_EQ(Lines(Contents("play.out")).size(), 1U);
  EXPECT_EQ(Status("wrong"), 2);
  EXPECT_EQ(Lines(Contents("play.out")).size(), 1U);
  EXPECT_EQ(Contents("play.err").rfind("wrong:2: Ended: ", 0), 0U);
  for (const char* arguments : {"", "missing", ".", "good odd"}) {
    EXPECT_EQ(Status(arguments), 2) << arguments;
    EXPECT_EQ(Contents("play.err").rfind("play: ", 0), 0U) << arguments;
  }
}

// In Swedish the letter comes after all others.
TEST(Play, SortsAsTheUsersLocaleDoes) {
  const ScenarioFolder place(OwnScenarios());
  const std::string start =
      "answer \"day.rtf\"\nanswer proposed\nclick mnuFileOpen\n"
      "click Add_specific_parsing_list\nexpect Parse_listbox.List ";
  std::ofstream("day.spd") << "z\n\u00E4\n";
  std::ofstream("german") << start << "[\"\u00E4\",\"z\"]\n";
  std::ofstream("swedish") << start << "[\"z\",\"\u00E4\"]\n";
  const struct {
    const char* environment;
    const char* order;
  } kRows[] = {{"LC_ALL=sv_SE LC_COLLATE=de_DE LANG=de_DE", "swedish"},
               {"LC_ALL=de_DE LC_COLLATE=sv_SE LANG=sv_SE", "german"},
               {"LC_ALL= LC_COLLATE=sv_SE LANG=de_DE", "swedish"},
               {"LC_ALL= LC_COLLATE= LANG=sv_SE", "swedish"},
               {"LC_ALL=C LC_COLLATE=sv_SE LANG=sv_SE", "german"}};
  for (const auto& row : kRows) EXPECT_EQ(Status(row.order, row.environment), 0) << row.environment;
}

}  // namespace
}  // namespace quill::test
