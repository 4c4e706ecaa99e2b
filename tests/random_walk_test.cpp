// Random users: the invariants hold whatever they do.
//
// QUILL_WALK_ACTIONS is the number of actions (20000), QUILL_WALK_SEED the first seed (1). A walk
// that fails leaves a folder with its texts and its scenario, for the player. In walks with an odd
// seed the user also does what no scenario tells, and other programs write tags.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "disk/text_lines.h"
#include "rtf/reader.h"
#include "scenario/state.h"
#include "support/random_user.h"
#include "support/rich_text.h"
#include "support/scenario_folder.h"
#include "support/walk_texts.h"
#include "text/unicode.h"

namespace quill::test {
namespace {

namespace fs = std::filesystem;
using Lines = std::multiset<std::u32string>;

Lines LinesOf(const std::string& file) {
  const std::vector<std::u32string> lines = DecodeLines(file);
  return {lines.begin(), lines.end()};
}

std::string FileOf(const std::vector<std::u32string>& items) {
  std::string file;
  for (const std::u32string& item : items) file += EncodeLine(item) + "\r\n";
  return file;
}

struct Seen {
  int tags = 0;
  int edits = 0;
  int rewrites = 0;
  int copies = 0;
  int loads = 0;
  int saves = 0;
};

// The state of the program, before an action and after it.
struct Look {
  Files files;
  std::vector<std::u32string> tags;
  int selected = -1;
  bool refusesTag = false;
};

class Walk {
 public:
  explicit Walk(std::uint32_t seed) : untold_(seed % 2 != 0), dice_(seed) {
    std::string name = fs::temp_directory_path() / "walk-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder " + name);
    folder_ = name;
    scenario_.open(folder_ / "walk.scenario", std::ios::binary);
    disk_.files = Texts();
    for (const auto& [file, bytes] : disk_.files) {
      std::ofstream(folder_ / file, std::ios::binary) << bytes;
    }
  }
  ~Walk() {
    if (!testing::Test::HasFailure()) fs::remove_all(folder_);
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  bool Ended() const { return program_.Ended(); }
  fs::path Folder() const { return folder_; }

  void Step(Seen& seen, bool thoroughly) {
    if (untold_ && dice_.Percent(10)) DoTheUntold();
    const RandomUser::Action action = user_.Choose();
    const bool inReach = action.control == &form_ || action.control->IsInReach();
    const Look before = Now();
    const scenario::Json state = inReach ? scenario::Json() : scenario::State(program_);
    dialogs_.opened.clear();
    dialogs_.button.reset();
    user_.Do(action);
    if (!inReach) {
      EXPECT_EQ(state, scenario::State(program_)) << "something out of reach was reached";
    }
    ExpectIndicesInside();
    ExpectTagsWhereTheyBelong(inReach ? action.control : nullptr, before, Now(), seen);
    ExpectOtherFilesWhole(before.files, seen);
    if (thoroughly) {
      EXPECT_NO_THROW(form_.RichTextBox1.Doc().Check());
    }
  }

 private:
  void DoTheUntold() {
    const Position length = form_.RichTextBox1.Length();
    const int begin = dice_.Below(static_cast<int>(length) + 1);
    const int choice = dice_.Below(6);
    scenario_ << "# untold " << choice << ' ' << begin << std::endl;
    if (choice == 0) disk_.files["a.tlf"] += "a stranger's line\r\n";
    if (choice == 1) disk_.files["b.tlf"] += "no tag";
    if (choice < 2) return;
    program_.GoInto(form_.RichTextBox1);
    if (choice == 2) program_.DeleteInText({begin, std::min<Position>(begin + 3, length)});
    if (choice == 3) program_.TypeInText(U"x \u65e5\ny");
    if (choice == 4) program_.UndoInText();
    if (choice == 5) program_.RedoInText();
    ExpectIndicesInside();
  }

  Look Now() const {
    return {disk_.files, form_.TagList.Items(), form_.TagList.ListIndex,
            form_.StartPosition.Text == U"Start" || form_.EndPosition.Text == U"End"};
  }

  void ExpectIndicesInside() const {
    const TextSurface& text = form_.RichTextBox1;
    const Range selection = text.Selection();
    EXPECT_TRUE(0 <= selection.begin && selection.begin <= selection.end &&
                selection.end <= text.Length())
        << selection.begin << ' ' << selection.end << " in " << text.Length();
    for (const ListBox* list : {&form_.TagList, &form_.Parse_listbox, &form_.TempList}) {
      EXPECT_TRUE(-1 <= list->ListIndex && list->ListIndex < list->ListCount())
          << list->Name() << ' ' << list->ListIndex;
    }
  }

  // The table of what changes the list and its file.
  void ExpectTagsWhereTheyBelong(const Control* control, const Look& before, const Look& after,
                                 Seen& seen) {
    if (control == &form_.mnuFileOpen) {
      ExpectLoaded(before, after, seen);
    } else if (control == &form_.Generate_Tag && !before.refusesTag) {
      ExpectAppended(before, after, seen);
    } else if (control == &form_.RemoveItem && before.selected != -1) {
      ExpectRemoved(before, after, seen);
    } else {
      EXPECT_EQ(before.tags, after.tags);
      ExpectTagFiles(before.files, after.files);
    }
  }

  // Files of tags are as they were; empty ones may have been made.
  static void ExpectTagFiles(Files expected, const Files& found) {
    for (const auto& [name, bytes] : found) {
      if (name.find(".tlf") == std::string::npos) continue;
      const auto was = expected.find(name);
      EXPECT_EQ(bytes, was == expected.end() ? "" : was->second) << name;
    }
  }

  void ExpectLoaded(const Look& before, const Look& after, Seen& seen) {
    ExpectTagFiles(before.files, after.files);
    const std::string path = ToUtf8(dialogs_.opened);
    const auto file = before.files.find(path);
    if (path.size() < 4 || file == before.files.end() || !rtf::Read(file->second)) {
      EXPECT_TRUE(after.tags.empty());
      return;
    }
    ++seen.loads;
    gaveUp_.clear();
    const std::string tags = path.substr(0, path.size() - 4) + ".tlf";
    EXPECT_EQ(DecodeLines(after.files.at(tags)), after.tags);
  }

  std::string TagFile() const { return ToUtf8(form_.WorkState.TagListFile.Get()); }

  // The tags without the selected one, which the user takes out.
  std::vector<std::u32string> GiveUp(const Look& before, const std::string& file) {
    std::vector<std::u32string> rest = before.tags;
    if (before.selected == -1) return rest;
    if (file != gaveUpOf_) gaveUp_.clear();
    gaveUpOf_ = file;
    const auto line = rest.begin() + before.selected;
    for (const std::u32string& part : DecodeLines(EncodeLine(*line))) gaveUp_.insert(part);
    if (line->empty()) gaveUp_.insert(U"");
    rest.erase(line);
    return rest;
  }

  void ExpectAppended(const Look& before, const Look& after, Seen& seen) {
    ++seen.tags;
    if (before.selected != -1) ++seen.edits;
    const std::u32string tag = form_.WorkState.GeneratedTag.Get();
    std::vector<std::u32string> tags = GiveUp(before, formerTagFile_);
    tags.push_back(tag);
    EXPECT_EQ(tags, after.tags);
    Files files = before.files;
    std::string& file = files[TagFile()];
    if (!file.empty() && file.back() != '\n') file += "\r\n";
    file += FileOf({tag});
    ExpectTagFiles(files, after.files);
  }

  void ExpectRemoved(const Look& before, const Look& after, Seen& seen) {
    EXPECT_EQ(GiveUp(before, TagFile()), after.tags);
    Files files = before.files;
    if (dialogs_.button == Button::kOk) {
      ++seen.rewrites;
      const std::string old = files[TagFile()];
      files[TagFile()] = FileOf(after.tags);
      if (LosesForeignLine(old, files[TagFile()])) {
        ++seen.copies;
        std::string kept = TagFile() + "~";
        for (int n = 2; files.contains(kept); ++n) kept = TagFile() + "~" + std::to_string(n);
        files[kept] = old;
      }
      gaveUp_.clear();
    }
    ExpectTagFiles(files, after.files);
    EXPECT_EQ(files.size(), after.files.size());
  }

  bool LosesForeignLine(const std::string& old, const std::string& fresh) const {
    Lines left = LinesOf(old);
    const auto drop = [&](const Lines& lines) {
      for (const std::u32string& line : lines) {
        if (const auto at = left.find(line); at != left.end()) left.erase(at);
      }
    };
    drop(LinesOf(fresh));
    if (gaveUpOf_ == TagFile()) drop(gaveUp_);
    return !left.empty();
  }

  // Input files stay, dictionaries grow, and a saved text reads back as the text in the window.
  void ExpectOtherFilesWhole(const Files& before, Seen& seen) {
    formerTagFile_ = TagFile();
    for (const auto& [name, bytes] : disk_.files) {
      const auto was = before.find(name);
      const std::string old = was == before.end() ? "" : was->second;
      // The disk in memory accepts a file without a name: the dictionary before any text.
      if (bytes == old || name.empty() || name.find(".tlf") != std::string::npos) continue;
      if (name.ends_with(".spd") || name.ends_with(".gdf")) {
        EXPECT_TRUE(bytes.starts_with(old)) << name;
        continue;
      }
      EXPECT_FALSE(name.ends_with(".rtf")) << name << " was written";
      ++seen.saves;
      const auto saved = rtf::Read(bytes);
      ASSERT_TRUE(saved) << name;
      ExpectSameText(form_.RichTextBox1.Doc(), *saved);
    }
  }

  bool untold_;
  Dice dice_;
  fs::path folder_;
  std::ofstream scenario_;
  MemoryDisk disk_;
  RandomDialogs dialogs_{dice_, disk_, scenario_};
  Program program_{dialogs_, disk_};
  Form1& form_ = program_.Form();
  RandomUser user_{program_, dice_, scenario_};
  // Lines that the user took out of the list of one file, since it was loaded or rewritten.
  Lines gaveUp_;
  std::string gaveUpOf_;
  std::string formerTagFile_;
};

int Setting(const char* name, int usual) {
  const char* const value = getenv(name);
  return value == nullptr ? usual : std::atoi(value);
}

TEST(RandomUsers, NeverLeaveTheRails) {
  constexpr int kLongestWalk = 500;
  constexpr int kThorough = 25;
  const int actions = Setting("QUILL_WALK_ACTIONS", 20000);
  Seen seen;
  auto seed = static_cast<std::uint32_t>(Setting("QUILL_WALK_SEED", 1));
  for (int done = 0; done < actions; ++seed) {
    Walk walk(seed);
    for (int i = 0; i < kLongestWalk && done < actions && !walk.Ended(); ++i, ++done) {
      walk.Step(seen, i % kThorough == 0);
      if (!HasFailure()) continue;
      FAIL() << "seed " << seed << ", step " << i << "; to play it: cd " << walk.Folder()
             << " && play walk.scenario\n"
             << Contents(walk.Folder() / "walk.scenario");
    }
  }
  std::cout << seen.loads << " loads, " << seen.saves << " saves, " << seen.tags << " tags, "
            << seen.edits << " edits, " << seen.rewrites << " rewrites, " << seen.copies
            << " copies\n";
  // A walk that never gets to the tags would prove nothing about them.
  EXPECT_TRUE(seen.saves > 0 && seen.edits > 0 && seen.rewrites > 0 && seen.copies > 0);
}

}  // namespace
}  // namespace quill::test
