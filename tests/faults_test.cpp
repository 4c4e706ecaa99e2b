// A disk that fails under the scenario player: every system call of a save, an append and a rewrite
// is struck once, and the files are checked after each. faults/fault_layer.cpp does the striking.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>

#include "support/scenario_folder.h"

namespace quill::test {
namespace {

namespace fs = std::filesystem;

struct Fault {
  const char* kind = "";
  int reason = 0;
  int at = 0;  // 0 strikes nothing
};

constexpr Fault kFaults[] = {{"once", ENOSPC}, {"once", EIO}, {"once", EINTR}, {"once", EACCES},
                             {"onwards", EIO}, {"half"},      {"kill"}};

struct Case {
  const char* name;
  const char* before;  // steps before the calls to strike
  const char* steps;
  const char* file;  // the file that they change
  // The file that keeps the old content once the new one is in place; empty for none.
  const char* kept = "";
  bool tells = false;  // whether a failure is reported
};

constexpr const char* kText =
    "{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;}One {\\cf1 two} three {\\cf1 four} five.}";
// Without the end of the last line, which an append adds first.
constexpr const char* kTags =
    "t_op(1\\ 5\\ 7\\ two\\ S\\ U\\ lexematic\\ b_operator\\ absolute \\ at\\ d \\ 1\\ Reference "
    "Tag\\  \\   )\r\nno tag\r\nt_op(7\\ 15\\ 18\\ four\\ S\\ U\\ lexematic\\ b_operator\\ "
    "absolute "
    "\\ at\\ d \\ 2\\ Reference Tag\\  \\   )";

#define OPEN_TEXT "answer \"x.tbf\"\nclick mnuFileOpen\nclick CloseIDFrame\n"
#define FILL_EDITOR                                                                    \
  "click mnuPostProcess\nclick FindBMarker\npick ClassCombo 1\npick OperatorCombo 1\n" \
  "pick ModeCombo 1\npick TypeCombo 1\nenter ValBox \"x\"\n"
#define MARK "select 0 3\nclick DefAMarker\nclick AMarkSet\n"

const Case kCases[] = {
    {"save", OPEN_TEXT MARK,
     "answer proposed\nanswer ok\nclick mnuFileSave\nexpect RichTextBox1.Text \"One two three "
     "four five.\"\nexpect mnuProcess.Enabled true\n",
     "far/x.tbf", "", true},
    {"save under a new name", OPEN_TEXT MARK,
     "answer \"y.tbf\"\nanswer ok\nclick mnuFileSave\nexpect WorkState.TextBaseFile \"y.tbf\"\n",
     "y.tbf", "", true},
    {"append", OPEN_TEXT FILL_EDITOR,
     "click Generate_Tag\nexpect ID.Text \"8\"\nexpect TagList.ListIndex -1\n"
     "expect RefFrame.Visible false\n",
     "far/x.tlf"},
    {"rewrite", OPEN_TEXT "click mnuPostProcess\nclick TagList 0\n",
     "answer ok\nclick RemoveItem\nexpect TagList.ListIndex -1\nexpect RemoveItem.Enabled false\n",
     "far/x.tlf"},
    {"rewrite that keeps the old file",
     OPEN_TEXT FILL_EDITOR "answer cancel\nclick mnuFileOpen\n" FILL_EDITOR
                           "click Generate_Tag\nclick TagList 0\n",
     "answer ok\nclick RemoveItem\nexpect TagList.List []\nexpect RemoveItem.Enabled false\n",
     "far/x.tlf", "far/x.tlf~"},
};

// A text whose working copy and tag list are links to protected files in another folder, and the
// scenario player, struck by a fault, in its folder.
class StruckFolder {
 public:
  StruckFolder() {
    std::string name = fs::temp_directory_path() / "faults-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder " + name);
    base_ = name;
  }
  ~StruckFolder() { fs::remove_all(base_); }
  StruckFolder(const StruckFolder&) = delete;
  StruckFolder& operator=(const StruckFolder&) = delete;

  void LayOut() const {
    fs::remove_all(Texts());
    fs::create_directories(Texts() / "far");
    const auto put = [&](const char* name, const char* bytes) {
      std::ofstream(Texts() / name, std::ios::binary) << bytes;
      chmod((Texts() / name).c_str(), 0640);
    };
    put("far/x.tbf", kText);
    put("far/x.tlf", kTags);
    put("x.spd", "");
    fs::create_symlink("far/x.tbf", Texts() / "x.tbf");
    fs::create_symlink("far/x.tlf", Texts() / "x.tlf");
  }

  // The status as of wait(2).
  int Play(const std::string& steps, const Fault& fault = {}) const {
    std::ofstream(base_ / "scenario", std::ios::binary) << steps;
    fs::remove(base_ / "log");
    std::ostringstream command;
    command << "cd '" << Texts().string()
            << "' && LD_PRELOAD='" QUILL_FAULT_LAYER "' FAULT_FOLDER='" << Texts().string()
            << "' FAULT_AT=" << fault.at << " FAULT_KIND=" << fault.kind
            << " FAULT_ERRNO=" << fault.reason << " FAULT_LOG=../log exec '" QUILL_PLAY
            << "' ../scenario >../out 2>../err";
    return std::system(command.str().c_str());
  }
  std::string Out() const { return Contents(base_ / "out") + Contents(base_ / "err"); }
  // The names of the calls of the last play.
  std::vector<std::string> Calls() const {
    std::ifstream log(base_ / "log");
    std::vector<std::string> calls;
    for (std::string name; std::getline(log, name);) calls.push_back(name);
    return calls;
  }

  std::optional<std::string> Get(const std::string& name) const {
    if (!fs::exists(Texts() / name)) return std::nullopt;
    return Contents(Texts() / name);
  }
  // Everything in the folder: kinds, permissions and owners by name, and the temporary files.
  struct Entries {
    std::map<std::string, std::string> lasting;
    std::vector<std::string> temporary;
  };
  Entries Look() const {
    Entries entries;
    for (const auto& entry : fs::recursive_directory_iterator(Texts())) {
      const std::string name =
          fs::relative(entry.path().parent_path(), Texts()) / entry.path().filename();
      struct stat status = {};
      EXPECT_EQ(lstat(entry.path().c_str(), &status), 0);
      if (name.ends_with(".quill-saving")) {
        entries.temporary.push_back(name);
      } else {
        entries.lasting[fs::path(name).lexically_normal()] =
            std::to_string(status.st_mode) + " " + std::to_string(status.st_uid);
      }
    }
    return entries;
  }

 private:
  fs::path Texts() const { return base_ / "texts"; }

  fs::path base_;
};

// What a case does if nothing is struck.
struct Undisturbed {
  std::optional<std::string> oldContent;
  std::optional<std::string> newContent;
  std::map<std::string, std::string> oldEntries;
  std::map<std::string, std::string> newEntries;
  std::size_t callsBefore = 0;
  std::vector<std::string> calls;
};

std::string AllSteps(const Case& row) { return std::string(row.before) + row.steps; }

void PlayUndisturbed(const Case& row, const StruckFolder& folder, Undisturbed& found) {
  folder.LayOut();
  ASSERT_EQ(folder.Play(row.before), 0) << folder.Out();
  found.callsBefore = folder.Calls().size();
  found.oldContent = folder.Get(row.file);
  found.oldEntries = folder.Look().lasting;
  folder.LayOut();
  ASSERT_EQ(folder.Play(AllSteps(row)), 0) << folder.Out();
  found.calls = folder.Calls();
  found.newContent = folder.Get(row.file);
  found.newEntries = folder.Look().lasting;
  ASSERT_NE(found.oldContent, found.newContent);
}

void ExpectOldOrNew(const Case& row, const StruckFolder& folder, const Undisturbed& usual) {
  const auto content = folder.Get(row.file);
  EXPECT_TRUE(content == usual.oldContent || content == usual.newContent)
      << content.value_or("no file");
  // Links, permissions and owners too.
  const auto entries = folder.Look();
  for (const auto& [name, kind] : usual.oldEntries) {
    EXPECT_TRUE(entries.lasting.contains(name)) << name;
  }
  for (const auto& [name, kind] : entries.lasting) {
    ASSERT_TRUE(usual.newEntries.contains(name)) << name;
    EXPECT_EQ(kind, usual.newEntries.at(name)) << name;
  }
  EXPECT_LE(entries.temporary.size(), 1U);
  if (*row.kept == '\0') return;
  const auto kept = folder.Get(row.kept);
  EXPECT_TRUE(!kept || kept == usual.oldContent) << *kept;
  EXPECT_TRUE(kept || content == usual.oldContent);
}

void ExpectToHaveGoneOn(const Case& row, const StruckFolder& folder, const Undisturbed& usual,
                        int status) {
  EXPECT_EQ(status, 0) << folder.Out();
  const bool told = folder.Out().find("could not be saved") != std::string::npos;
  if (!row.tells) {
    EXPECT_FALSE(told);
  } else if (!told) {
    EXPECT_EQ(folder.Get(row.file), usual.newContent);
  }
}

bool Fits(const Fault& fault, const std::string& call) {
  if (std::string_view(fault.kind) == "half") return call == "write";
  return fault.reason != EACCES || call == "open";
}

void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

class Faults : public testing::TestWithParam<Case> {};

TEST_P(Faults, LeaveTheOldLinesOrTheNewOnes) {
  const Case& row = GetParam();
  const StruckFolder folder;
  Undisturbed usual;
  ASSERT_NO_FATAL_FAILURE(PlayUndisturbed(row, folder, usual));
  for (std::size_t at = usual.callsBefore; at < usual.calls.size(); ++at) {
    for (Fault fault : kFaults) {
      fault.at = static_cast<int>(at + 1);
      if (!Fits(fault, usual.calls[at])) continue;
      SCOPED_TRACE(usual.calls[at] + ", call " + std::to_string(at + 1) + ": " + fault.kind + " " +
                   std::to_string(fault.reason));
      folder.LayOut();
      const int status = folder.Play(AllSteps(row), fault);
      ExpectOldOrNew(row, folder, usual);
      if (std::string_view(fault.kind) == "kill") {
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
      } else {
        ExpectToHaveGoneOn(row, folder, usual, status);
      }
      if (folder.Look().temporary.empty()) continue;
      folder.Play(AllSteps(row));
      EXPECT_TRUE(folder.Look().temporary.empty());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Every, Faults, testing::ValuesIn(kCases), [](const auto& row) {
  std::string name = row.param.name;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
});

}  // namespace
}  // namespace quill::test
