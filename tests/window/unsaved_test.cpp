// Copies of unsaved texts: when the window writes them, and what becomes of them in their folder.
#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <regex>

#include "disk/posix_disk.h"
#include "rtf/reader.h"
#include "text/unicode.h"
#include "user.h"
#include "window/copies/unsaved_copies.h"

namespace quill::test {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;
using Names = std::vector<std::string>;

// The names in a folder, of the copies only or of everything.
Names NamesIn(const fs::path& folder, const char* extension = "") {
  Names names;
  if (!fs::exists(folder)) return names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::string name = entry.path().filename();
    if (name.ends_with(extension)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The colour of the first character of the only copy.
std::optional<Colour> ColourInCopy(const fs::path& folder) {
  const Names names = NamesIn(folder, ".rtf");
  if (names.size() != 1) return std::nullopt;
  const auto text = rtf::Read(PosixDisk().Read(folder / names[0]));
  return text ? std::optional(text->At(0).colour) : std::nullopt;
}

constexpr Colour kMarked = RGB(0, 0, 255);
constexpr const char* kTold = "unsaved changes are not kept";
constexpr UnsavedCopies::Pace kNever{1h, 1h};

class UnsavedTest : public WindowTest {
 protected:
  UnsavedTest() {
    OpenText("He came yesterday.");
    Keep(kNever);
  }
  ~UnsavedTest() override { window.Inform(nullptr); }

  void Keep(UnsavedCopies::Pace pace) {
    copies.reset();
    copies.emplace(form, folder, pace);
    copies->Look();
    window.Inform(&*copies);
  }
  void MarkFirstWord() {
    DragOver(0, 2);
    Press("DefAMarker");
    Press("AMarkSet");
  }
  void Save() {
    dialogs.answers = {ScriptedDialogs::Proposed{}};
    Choose("mnuFileSave");
  }
  Names Copies() const { return NamesIn(folder, ".rtf"); }

  QTemporaryDir home;
  std::string folder = home.filePath("state/quillorandix").toStdString();
  std::optional<UnsavedCopies> copies;
};

TEST_F(UnsavedTest, AreCopiedInAPauseAndAtTheLatestAfterAWhile) {
  for (const auto& pace : {UnsavedCopies::Pace{1ms, 1h}, UnsavedCopies::Pace{1h, 1ms}}) {
    Keep(pace);
    MarkFirstWord();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ColourInCopy(folder) == kMarked; }));
    Save();
    OpenText("He came yesterday.");
  }
}

TEST_F(UnsavedTest, AreCopiedWhenTheTextLeaves) {
  const struct {
    const char* way;
    std::function<void()> leave;
  } kRows[] = {
      {"another text", [&] { OpenText("Another."); }},
      {"the same text again", [&] { OpenText("He came yesterday."); }},
      {"a signal", [&] { copies->Take(); }},
      {"an exit whose save fails",
       [&] {
         disk.Refuse(DiskCall::kReplace, "x.tbf");
         dialogs.answers = {ScriptedDialogs::Proposed{}};
         Choose("mnuFileClose");
         copies.reset();
       }},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.way);
    fs::remove_all(folder);
    MarkFirstWord();
    EXPECT_EQ(Copies(), Names());
    row.leave();
    EXPECT_EQ(ColourInCopy(folder), kMarked);
    Keep(kNever);
    if (!program.Ended()) OpenText("He came yesterday.");
  }
}

TEST_F(UnsavedTest, LieInAFolderOfTheUsersAloneAndNowhereElse) {
  const auto files = disk.files;
  MarkFirstWord();
  window.close();
  copies.reset();
  const std::regex name(R"(x \(\d{4}-\d\d-\d\d \d\d\.\d\d\)\.rtf)");
  ASSERT_EQ(Copies().size(), 1U);
  EXPECT_TRUE(std::regex_match(Copies()[0], name)) << Copies()[0];
  EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(folder + "/" + Copies()[0]).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(disk.files, files);
}

TEST_F(UnsavedTest, HaveNoCopyWithoutAChangeOrAfterASave) {
  Keep({1ms, 1ms});
  DragOver(3, 7);
  QTest::qWait(20);
  copies->Take();
  EXPECT_FALSE(fs::exists(folder)) << "nothing changed";
  MarkFirstWord();
  copies->Take();
  ASSERT_EQ(Copies().size(), 1U);
  const auto written = fs::last_write_time(folder + "/" + Copies()[0]);
  DragOver(3, 7);
  QTest::qWait(20);
  copies->Take();
  EXPECT_EQ(fs::last_write_time(folder + "/" + Copies()[0]), written) << "nothing changed since";
  Save();
  EXPECT_EQ(NamesIn(folder), Names());
  window.close();
  copies.reset();
  EXPECT_EQ(NamesIn(folder), Names());
}

TEST_F(UnsavedTest, AreCopiedWhileAQuestionIsOpen) {
  Keep({1ms, 1ms});
  form.Parse_listbox.AddItem(U"came\\    \\A< d >");
  form.Parse_listbox.ListIndex = 0;
  OpenText("Came. He came.");
  int questions = 0;
  dialogs.ask = [&](const MessageBox&) {
    const bool marked = ++questions > 1;
    EXPECT_EQ(QTest::qWaitFor([&] { return ColourInCopy(folder) == kMarked; }, marked ? 5000 : 0),
              marked);
    return Button::kYes;
  };
  Press("Parse_3");
  EXPECT_EQ(questions, 2);
}

TEST_F(UnsavedTest, OfTwoWindowsHaveACopyEach) {
  ShownProgram<MemoryDisk, ScriptedDialogs> other;
  UnsavedCopies others(other.form, folder, kNever);
  other.window.Inform(&others);
  other.disk.files = disk.files;
  other.form.RichTextBox1.LoadFile(U"x.tbf");
  other.program.TypeInText(U"Yes. ");
  MarkFirstWord();
  copies->Take();
  others.Take();
  EXPECT_EQ(Copies().size(), 2U);
  Save();
  ASSERT_EQ(Copies().size(), 1U);
  EXPECT_EQ(rtf::Read(PosixDisk().Read(folder + "/" + Copies()[0]))->Text(),
            U"Yes. He came yesterday.");
}

TEST_F(UnsavedTest, OpenedFromTheirCopyStayWhileTheyAreOnShow) {
  std::string path;
  {
    const UnsavedCopy copy = CopyFolder(folder).Make("/texts/x.tbf");
    copy.Write(R"({\rtf1 He came.})");
    path = copy.Path();
    fs::last_write_time(path, fs::file_time_type::clock::now() - 24h * 31);
  }
  disk.files[path] = PosixDisk().Read(path);
  dialogs.answers = {std::u32string(DecodePath(path)), ScriptedDialogs::Cancel{}};
  Choose("mnuFileOpen");
  CopyFolder(folder).Prune();
  EXPECT_TRUE(fs::exists(path));
  MarkFirstWord();
  copies.reset();
  ASSERT_EQ(ColourInCopy(folder), kMarked) << "the copy of the copy, and no other";
  EXPECT_EQ(Copies()[0].find('('), 2U) << "named after the text";
}

TEST_F(UnsavedTest, AreLeftAloneWhereNoCopyCanBe) {
  std::ofstream(home.filePath("file").toStdString()) << "a file";
  fs::create_directory(home.filePath("elsewhere").toStdString());
  fs::create_directory_symlink(home.filePath("elsewhere").toStdString(),
                               home.filePath("link").toStdString());
  for (const std::string& place :
       {home.filePath("file").toStdString(), home.filePath("link").toStdString(),
        std::string("/proc/nowhere/quillorandix"), std::string()}) {
    SCOPED_TRACE(place);
    folder = place;
    Keep(kNever);
    testing::internal::CaptureStderr();
    MarkFirstWord();
    copies->Take();
    copies->Take();
    Save();
    OpenText("He came yesterday.");
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_EQ(told.find(kTold), told.rfind(kTold)) << told;
    EXPECT_NE(told.find(kTold), std::string::npos);
  }
  EXPECT_EQ(NamesIn(home.filePath("elsewhere").toStdString()), Names());
}

// --- The folder ------------------------------------------------------------------------------

class CopyFolderTest : public testing::Test {
 protected:
  // The toolkit cannot remove every name.
  ~CopyFolderTest() override { fs::remove_all(path); }

  // Leaves a copy behind.
  std::string Leave(const std::string& text, std::chrono::hours age) {
    const UnsavedCopy copy = folder.Make(text);
    copy.Write(text);
    fs::last_write_time(copy.Path(), fs::file_time_type::clock::now() - age);
    return copy.Path();
  }
  static bool Has(const std::string& path) { return fs::exists(path); }

  QTemporaryDir home;
  std::string path = home.filePath("copies").toStdString();
  CopyFolder folder{path};
};

TEST_F(CopyFolderTest, IsPruned) {
  const std::string oldest = Leave("/a/x.tbf", 60h);
  const std::string older = Leave("/a/x.tbf", 30h);
  const std::string newest = Leave("/a/x.tbf", 20h);
  const std::string namesake = Leave("/b/x.tbf", 3h);
  const std::string old = Leave("/a/old.tbf", 24h * 31);
  const std::string companion = old.substr(0, old.size() - 4);
  std::ofstream(companion + ".spd");
  std::ofstream(companion + ".tlf") << "a tag";
  const UnsavedCopy used = folder.Make("/a/x.tbf");
  used.Write("used");
  std::ofstream(path + "/own.rtf") << "the user's own";
  folder.Prune();
  EXPECT_FALSE(Has(oldest));
  EXPECT_TRUE(Has(older)) << "for a day";
  EXPECT_TRUE(Has(newest));
  EXPECT_TRUE(Has(namesake)) << "a text of the same name elsewhere";
  EXPECT_FALSE(Has(old));
  EXPECT_FALSE(Has(companion + ".spd"));
  EXPECT_TRUE(Has(companion + ".tlf")) << "it is not empty";
  EXPECT_TRUE(Has(used.Path()));
  EXPECT_TRUE(Has(path + "/own.rtf"));
  EXPECT_EQ(NamesIn(path, ".lock").size(), 4U);
}

TEST_F(CopyFolderTest, HoldsTwentyTexts) {
  const std::string first = Leave("/a/first.tbf", 100h);
  const std::string second = Leave("/a/second.tbf", 50h);
  for (int text = 1; text < 20; ++text) Leave("/a/" + std::to_string(text), 1h);
  folder.Prune();
  EXPECT_FALSE(Has(first));
  EXPECT_TRUE(Has(second));
}

TEST_F(CopyFolderTest, KeepsACopyThatAnotherWindowHasOpen) {
  UnsavedCopy written = folder.Make("/a/x.tbf");
  written.Write("x");
  const std::string copy = written.Path();
  std::optional<UnsavedCopy> opened = folder.Use(copy);
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->TextPath(), "/a/x.tbf");
  written.Remove();
  EXPECT_TRUE(Has(copy));
  opened->Remove();
  EXPECT_EQ(NamesIn(path), Names());
  EXPECT_FALSE(folder.Use(copy));
}

TEST_F(CopyFolderTest, NamesCopiesAfterTheirTexts) {
  const struct {
    std::string text;
    std::string name;
  } kRows[] = {{"/a/the ferry.tbf", "the ferry ("},
               {"/a/x.y.rtf", "x.y ("},
               {"", "untitled ("},
               {"/a/.tbf", "tbf ("},
               {"/a/\xFF.tbf", "\xFF ("},
               {"/a/" + std::string(240, 'n') + ".tbf", "nnn"},
               {"/a/x", "x ("}};
  for (const auto& row : kRows) {
    const fs::path copy = Leave(row.text, 0h);
    EXPECT_TRUE(Has(copy)) << row.text;
    EXPECT_TRUE(copy.filename().string().starts_with(row.name)) << copy;
  }
}

// --- The real program ------------------------------------------------------------------------

// The program in a separate process, in which a hand marks the first word of a text.
class ProcessTest : public testing::Test {
 protected:
  // Returns when the word is marked.
  void Start(const char* afterwards = "") {
    fs::remove_all(Folder());
    std::ofstream(Text()) << R"({\rtf1\ansi He came yesterday.\par})";
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_STATE_HOME", home.filePath("state"));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_PLUGIN_PATH", QUILL_PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "quill_hand");
    environment.insert("QUILL_HAND", afterwards);
    program.setProcessEnvironment(environment);
    program.start(QUILL_PROGRAM, {QString::fromStdString(Text())});
    std::string said;
    while (said.find("marked") == std::string::npos && program.waitForReadyRead()) {
      said += program.readAllStandardOutput().toStdString();
    }
    ASSERT_NE(said.find("marked"), std::string::npos) << program.readAllStandardError().data();
  }
  void ExpectCopy() {
    EXPECT_EQ(ColourInCopy(Folder()), kMarked);
    EXPECT_EQ(NamesIn(home.path().toStdString()), Names({"state", "x.spd", "x.tbf", "x.tlf"}));
  }
  std::string Text() const { return home.filePath("x.tbf").toStdString(); }
  std::string Folder() const { return home.filePath("state/quillorandix").toStdString(); }

  QTemporaryDir home;
  QProcess program;
};

TEST_F(ProcessTest, KeepsACopyBeforeASignalEndsIt) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    SCOPED_TRACE(signal);
    ASSERT_NO_FATAL_FAILURE(Start());
    ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), signal), 0);
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(program.exitCode(), signal);
    ExpectCopy();
  }
}

TEST_F(ProcessTest, KeepsACopyWhenItIsClosed) {
  for (const char* const way : {"close", "exit"}) {
    SCOPED_TRACE(way);
    ASSERT_NO_FATAL_FAILURE(Start(way));
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    ExpectCopy();
  }
}

}  // namespace
}  // namespace quill::test
