// Opening, saving and leaving when something fails. Scenarios cover the rest.
#include <gtest/gtest.h>

#include "disk/text_lines.h"
#include "support/workbench.h"
#include "text/unicode.h"
#include "workbench/guidance.h"

namespace quill::test {
namespace {

using Cancel = ScriptedDialogs::Cancel;
using Proposed = ScriptedDialogs::Proposed;
using std::u32string;

constexpr char32_t kStart[] = U"Quillorandix - Temporal Expression Marker and Tagger v.1.07";

struct FilesBench : Workbench {
  FilesBench() {
    disk.files["x.rtf"] = "old text";
    disk.files["x.tbf"] = "a copy";
    disk.files["picture.png"] = std::string("\x89PNG\0\0", 6);
  }

  // What a scholar sees of it: the caption, the two families' state, the list.
  std::string State() const {
    const WorkState& work = form.WorkState;
    std::string state = ToUtf8(form.Caption.Get());
    state += "; base " + ToUtf8(work.TextBaseFile.Get());
    state += "; tags " + ToUtf8(work.TagListFile.Get());
    state += "; dictionary " + ToUtf8(work.SpecificDictFile.Get());
    state += form.PreFrame.Visible ? "; PreFrame" : "";
    state += form.Frame5.Enabled ? " Frame5" : "";
    state += form.mnuProcess.Enabled ? " mnuProcess" : "";
    return state;
  }
};

struct Files : testing::Test, FilesBench {};

TEST_F(Files, EndsEarlyAsTheUserOrTheDiskWants) {
  struct Row {
    const char* about;
    std::vector<ScriptedDialogs::Answer> answers;
    std::pair<DiskCall, const char*> refused;
    const char* state;
    const char32_t* text;
    u32string guidance;
  };
  const u32string welcome(RowOf("User_Dialogue").text);
  const u32string saveFirst =
      U"Please save a *.tbf working copy before you start working with this file.";
  const std::string start = ToUtf8(kStart);
  const std::pair<DiskCall, const char*> nothing{DiskCall::kRead, "nothing"};
  const Row rows[] = {
      {"cancelled", {Cancel()}, nothing, "START; base ; tags ; dictionary ", U"", welcome},
      {"a short name",
       {u32string(U"abc")},
       nothing,
       "START; base ; tags ; dictionary ",
       U"",
       welcome},
      {"no file",
       {u32string(U"none.rtf")},
       nothing,
       "START; base none.rtf; tags ; dictionary ; PreFrame",
       U"",
       welcome},
      {"no text",
       {u32string(U"picture.png")},
       nothing,
       "START; base picture.png; tags ; dictionary ; PreFrame",
       U"",
       welcome},
      {"no tag list",
       {u32string(U"x.rtf")},
       {DiskCall::kCreateIfMissing, "x.tlf"},
       "START; base x.rtf; tags x.tlf; dictionary ; PreFrame",
       U"old text",
       welcome},
      {"an unreadable tag list",
       {u32string(U"x.rtf")},
       {DiskCall::kRead, "x.tlf"},
       "START; base x.rtf; tags x.tlf; dictionary ; PreFrame",
       U"old text",
       welcome},
      {"no dictionary",
       {u32string(U"x.rtf")},
       {DiskCall::kCreateIfMissing, "x.spd"},
       "START; base x.rtf; tags x.tlf; dictionary x.spd; PreFrame",
       U"old text",
       PreProcessIntro()},
      {"no working copy",
       {u32string(U"x.rtf"), Cancel()},
       nothing,
       "Quillorandix v 1.07 processing x.rtf; base x.rtf; tags x.tlf; dictionary x.spd; PreFrame "
       "Frame5",
       U"old text",
       saveFirst},
      {"no tag list beside the working copy",
       {u32string(U"x.rtf"), u32string(U"y.tbf")},
       {DiskCall::kCreateIfMissing, "y.tlf"},
       "Quillorandix v 1.07 processing x.rtf; base y.tbf; tags y.tlf; dictionary x.spd; PreFrame "
       "Frame5",
       U"old text",
       saveFirst},
      {"a save that fails",
       {u32string(U"x.rtf"), u32string(U"y.tbf")},
       {DiskCall::kReplace, "y.tbf"},
       "Quillorandix v 1.07 processing x.rtf; base y.tbf; tags y.tlf; dictionary x.spd; PreFrame "
       "Frame5",
       U"old text",
       ProcessGuidance()},
  };
  for (const Row& row : rows) {
    FilesBench bench;
    bench.disk.Refuse(row.refused.first, row.refused.second);
    bench.dialogs.answers.assign(row.answers.begin(), row.answers.end());
    bench.form.TagList.AddItem(U"of the former text");
    bench.program.Click(bench.form.mnuFileOpen);
    std::string expected = row.state;
    if (expected.starts_with("START")) expected.replace(0, 5, start);
    EXPECT_EQ(bench.State(), expected) << row.about;
    EXPECT_EQ(bench.text.Text(), row.text) << row.about;
    EXPECT_EQ(bench.form.User_Dialogue.Text, row.guidance) << row.about;
    EXPECT_EQ(bench.form.TagList.ListCount(), 0) << row.about;
    EXPECT_FALSE(bench.disk.Has("y.tbf")) << row.about;
  }
}

TEST_F(Files, CutsFourCharactersWhateverTheyAre) {
  struct Row {
    const char32_t* path;
    const char32_t* proposed;
    const char* tagList;
  };
  for (const Row& row : {Row{U"x.html", U"x..tbf", "x..tlf"}, Row{U"x.TBF", U"x.tbf", "x.tlf"},
                         Row{U"abcd", U".tbf", ".tlf"},
                         Row{U"\U0001F600é\xDCE9.rtf", U"\U0001F600é\xDCE9.tbf",
                             "\xF0\x9F\x98\x80\xC3\xA9\xE9.tlf"}}) {
    FilesBench bench;
    bench.disk.files[EncodePath(row.path)] = "text";
    bench.Open({u32string(row.path), Cancel()});
    ASSERT_EQ(bench.dialogs.shown.size(), 2U);
    EXPECT_EQ(bench.dialogs.shown[1].proposed, row.proposed);
    EXPECT_TRUE(bench.disk.Has(row.tagList)) << row.tagList;
  }
}

TEST_F(Files, StopsAtMoreTagsThanAListHolds) {
  for (int i = 0; i <= ListBox::kMostItems; ++i) disk.files["x.tlf"] += "tag\n";
  Open({u32string(U"x.tbf")});
  EXPECT_EQ(form.TagList.ListCount(), ListBox::kMostItems);
  EXPECT_EQ(State(), ToUtf8(kStart) + "; base x.tbf; tags x.tlf; dictionary ; PreFrame");
}

TEST(Saving, KeepsAWorkingCopyThatSomebodyElseChanged) {
  const struct {
    const char* about;
    std::optional<std::string> there;  // when the text is saved
    std::optional<std::string> kept;
  } kCases[] = {{"nobody did", "a copy", {}},
                {"of the same length", "b copy", "b copy"},
                {"emptied", "", ""},
                {"gone", {}, {}}};
  for (const auto& test : kCases) {
    SCOPED_TRACE(test.about);
    FilesBench bench;
    auto& files = bench.disk.files;
    bench.Open({u32string(U"x.tbf")});
    const auto save = [&] {
      bench.dialogs.answers = {Proposed()};
      bench.program.Click(bench.form.mnuFileSave);
    };
    files.erase("x.tbf");
    if (test.there) files["x.tbf"] = *test.there;
    save();
    EXPECT_EQ(bench.disk.Has("x.tbf~"), test.kept.has_value());
    if (test.kept) {
      EXPECT_EQ(files["x.tbf~"], *test.kept);
    }
    const std::string saved = files["x.tbf"];
    EXPECT_TRUE(saved.starts_with("{\\rtf1"));
    save();
    EXPECT_EQ(bench.disk.Has("x.tbf~"), test.kept.has_value()) << "it is known by then";
    files["x.tbf"] = "of a second window";
    save();
    EXPECT_EQ(files[test.kept ? "x.tbf~2" : "x.tbf~"], "of a second window");
    EXPECT_EQ(files["x.tbf"], saved);
  }
}

TEST_F(Files, SaveTellsTheUserOfAFailure) {
  struct Row {
    DiskCall call;
    const char* path;
    bool guidance;
  };
  for (const Row& row :
       {Row{DiskCall::kCreateIfMissing, "y.tlf", false}, Row{DiskCall::kReplace, "y.tbf", true}}) {
    FilesBench bench;
    bench.Open({u32string(U"x.tbf")});
    bench.disk.Refuse(row.call, row.path);
    bench.dialogs.answers = {u32string(U"y.tbf"), Button::kOk};
    bench.program.Click(bench.form.mnuFileSave);
    const Shown& box = bench.dialogs.shown.back();
    EXPECT_EQ(box.dialog, "MsgBox");
    EXPECT_EQ(box.box.prompt, U"The text could not be saved to y.tbf.");
    EXPECT_EQ(box.title, U"Save failed");
    EXPECT_EQ(box.box.icon, MessageBox::Icon::kCritical);
    EXPECT_FALSE(bench.disk.Has("y.tbf"));
    EXPECT_EQ(bench.form.User_Dialogue.Text == ProcessGuidance(), row.guidance);
    EXPECT_EQ(bench.State(),
              "Quillorandix v 1.07 processing x.tbf; base y.tbf; tags y.tlf; dictionary x.spd; "
              "PreFrame Frame5 mnuProcess");
  }
}

TEST_F(Files, ExitSavesAndEndsTheProgram) {
  Open({u32string(U"x.tbf")});
  dialogs.answers = {u32string(U"y.tbf")};
  program.Click(form.mnuFileClose);
  EXPECT_TRUE(disk.Has("y.tbf") && disk.Has("y.tlf"));
  EXPECT_TRUE(form.Caption == U"Quillorandix v1.05 ----- saved files y.tbf + y.tlf");
  EXPECT_TRUE(program.Ended());
}

TEST_F(Files, ExitEndsTheProgramAlsoWhereNothingCouldBeSaved) {
  Open({u32string(U"none.rtf")});  // fails, and yet its name is then proposed
  disk.Refuse(DiskCall::kCreateIfMissing, "none.tlf");
  disk.Refuse(DiskCall::kReplace, "none.tbf");
  dialogs.answers = {Proposed()};
  program.Click(form.mnuFileClose);
  EXPECT_EQ(form.Caption, U"Quillorandix v1.05 ----- saved files none.tbf + none.tlf");
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(dialogs.shown.size(), 2U);
}

TEST(TextLines, TakeEveryLineEndAndEveryOldFile) {
  struct Row {
    const char* about;
    std::string bytes;
    std::vector<u32string> lines;
  };
  const Row rows[] = {
      {"nothing", "", {}},
      {"no end", "a", {U"a"}},
      {"one end makes no further line", "a\r\n", {U"a"}},
      {"a blank line", "\r\n", {U""}},
      {"every end", "a\r\nb\nc\rd", {U"a", U"b", U"c", U"d"}},
      {"blank lines between", "a\n\n\rb\r\r\n", {U"a", U"", U"", U"b", U""}},
      {"a byte order mark",
       "\xEF\xBB\xBF"
       "a\n",
       {U"a"}},
      {"nothing but a byte order mark", "\xEF\xBB\xBF", {}},
      {"each line by itself", "\xC3\xA4\n\xE4\x80\n", {U"ä", U"ä€"}},
  };
  for (const Row& row : rows) EXPECT_EQ(DecodeLines(row.bytes), row.lines) << row.about;
}

TEST(TextLines, WriteAParagraphEndAsALineEnd) {
  EXPECT_EQ(EncodeLine(U"ä\nb\r\nc\x2028"), "\xC3\xA4\r\nb\r\nc\xE2\x80\xA8");
}

}  // namespace
}  // namespace quill::test
