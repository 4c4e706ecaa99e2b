// The real disk, in a temporary folder: what is kept, what is followed, what is refused.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>

#include "disk/posix_disk.h"
#include "workbench/failure.h"

namespace quill::test {
namespace {

namespace fs = std::filesystem;

class PosixDiskTest : public testing::Test {
 protected:
  PosixDiskTest() {
    std::string name = fs::temp_directory_path() / "disk-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder");
    folder = name;
  }
  ~PosixDiskTest() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return folder / name; }
  std::string Put(const std::string& name, std::string_view bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
  }
  std::string Get(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // The names in the folder, to see what was left behind.
  std::string Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename());
    std::string joined;
    for (const std::string& name : names) joined += name + " ";
    return joined;
  }
  static mode_t ModeOf(const std::string& path) {
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
  }

  fs::path folder;
  PosixDisk disk;
};

// While it lives, no file grows beyond a size.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t most) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &former_);
    const rlimit limit{most, former_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &former_); }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit former_ = {};
};

// The sentence of the failure.
template <class Statement>
std::string Refusal(Statement statement) {
  try {
    statement();
  } catch (const StatementFailed& failure) {
    return failure.what();
  }
  return "no failure";
}

TEST_F(PosixDiskTest, ReplacesAndKeepsPermissions) {
  const mode_t former = umask(022);
  disk.Replace(Path("new"), "first");
  umask(former);
  EXPECT_EQ(ModeOf(Path("new")), 0644U);
  ASSERT_EQ(chmod(Path("new").c_str(), 0640), 0);
  disk.Replace(Path("new"), std::string("a\0b", 3));
  EXPECT_EQ(disk.Read(Path("new")), std::string("a\0b", 3));
  EXPECT_EQ(ModeOf(Path("new")), 0640U);
  if (geteuid() == 0) {
    ASSERT_EQ(chown(Path("new").c_str(), 1234, 4321), 0);
    disk.Replace(Path("new"), "third");
    struct stat status = {};
    ASSERT_EQ(stat(Path("new").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 4321U);
    EXPECT_EQ(ModeOf(Path("new")), 0640U);
  }
  EXPECT_EQ(Names(), "new ");
}

TEST_F(PosixDiskTest, FollowsLinksAlsoToNothing) {
  fs::create_directory(folder / "far");
  Put("far/target", "old");
  fs::create_symlink("far/target", folder / "link");
  fs::create_symlink("link", folder / "link to link");
  fs::create_symlink("far/missing", folder / "dangling");
  disk.Replace(Path("link to link"), "new");
  disk.Replace(Path("dangling"), "made");
  EXPECT_EQ(Get("far/target"), "new");
  EXPECT_EQ(Get("far/missing"), "made");
  EXPECT_TRUE(fs::is_symlink(folder / "link") && fs::is_symlink(folder / "link to link") &&
              fs::is_symlink(folder / "dangling"));
  fs::create_symlink("circle", folder / "circle");
  EXPECT_NE(Refusal([&] { disk.Replace(Path("circle"), "x"); }), "no failure");
}

TEST_F(PosixDiskTest, AFailedReplaceLeavesTheOldFileAndNothingElse) {
  Put("old", "old content");
  const std::string large(100000, 'x');
  {
    const FileSizeLimit limit(4096);
    EXPECT_NE(Refusal([&] { disk.Replace(Path("old"), large); }), "no failure");
    EXPECT_NE(Refusal([&] { disk.Replace(Path("new"), large); }), "no failure");
  }
  EXPECT_EQ(Get("old"), "old content");
  EXPECT_EQ(Names(), "old ");
}

TEST_F(PosixDiskTest, KeepsTheOldFileUnderTheNextFreeName) {
  fs::create_directory(folder / "far");
  Put("far/list", "first");
  ASSERT_EQ(chmod(Path("far/list").c_str(), 0640), 0);
  fs::create_symlink("far/list", folder / "link");
  fs::create_symlink("nowhere", folder / "far/list~2");
  for (const char* bytes : {"second", "third", "fourth"}) {
    disk.ReplaceKeepingOld(Path("link"), bytes);
  }
  EXPECT_EQ(Get("link"), "fourth");
  EXPECT_EQ(Get("far/list~"), "first");
  EXPECT_EQ(Get("far/list~3"), "second");
  EXPECT_EQ(Get("far/list~4"), "third");
  EXPECT_EQ(ModeOf(Path("far/list~")), 0640U);
  EXPECT_TRUE(fs::is_symlink(folder / "link") && fs::is_symlink(folder / "far/list~2"));
  EXPECT_EQ(Names(), "far link ");
  EXPECT_NE(Refusal([&] { disk.ReplaceKeepingOld(Path("missing"), "x"); }), "no failure");
  EXPECT_EQ(Names(), "far link ");
}

TEST_F(PosixDiskTest, AFileThatIsNotReplacedIsNotKeptEither) {
  Put("old", "old content");
  const std::string large(20, 'x');
  for (const rlim_t most : {5U, 15U}) {  // no room for the copy; none for the new content
    const FileSizeLimit limit(most);
    EXPECT_NE(Refusal([&] { disk.ReplaceKeepingOld(Path("old"), large); }), "no failure");
  }
  EXPECT_EQ(Get("old"), "old content");
  EXPECT_EQ(Names(), "old ");
}

TEST_F(PosixDiskTest, ClearsWhatACrashLeftAndLeavesWhatAnotherProgramWrites) {
  Put(".text.tbf.quill-saving", "half a te");
  disk.Replace(Path("text.tbf"), "whole");
  EXPECT_EQ(Names(), "text.tbf ");
  // A link in its place neither leads to another file nor is an obstacle.
  Put("victim", "untouched");
  for (const char* target : {"victim", "missing"}) {
    fs::create_symlink(target, folder / ".text.tbf.quill-saving");
    disk.Replace(Path("text.tbf"), "again");
    EXPECT_EQ(Get("victim"), "untouched");
    EXPECT_EQ(Names(), "text.tbf victim ");
  }

  const std::string busy = Put(".text.tbf.quill-saving", "being written");
  const int other = open(busy.c_str(), O_RDWR);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  EXPECT_NE(Refusal([&] { disk.Replace(Path("text.tbf"), "mine"); }), "no failure");
  close(other);
  EXPECT_EQ(Get("text.tbf"), "again");
  EXPECT_EQ(Get(".text.tbf.quill-saving"), "being written");
  disk.Replace(Path("text.tbf"), "mine");
  EXPECT_EQ(Names(), "text.tbf victim ");
}

TEST_F(PosixDiskTest, KnowsAFileByAnyOfItsNames) {
  Put("one", "same");
  Put("two", "same");
  fs::create_symlink(Path("one"), Path("link"));
  EXPECT_TRUE(disk.IsOneFile(Path("link"), Path("./one")));
  for (const char* const other : {"two", "missing"}) {
    EXPECT_FALSE(disk.IsOneFile(Path("one"), Path(other)));
    EXPECT_FALSE(disk.IsOneFile(Path(other), Path("one")));
  }
}

TEST_F(PosixDiskTest, ReplacesAFileWithTheLongestName) {
  const std::string name(255, 'n');
  disk.Replace(Path(name), "x");
  disk.Replace(Path(name), "y");
  EXPECT_EQ(Get(name), "y");
  EXPECT_EQ(Names(), name + " ");
}

TEST_F(PosixDiskTest, AppendsLinesWithTheirEnds) {
  const std::string kMark = "\xEF\xBB\xBF";
  struct Row {
    std::string before;
    std::string after;
    std::string line = "line";
  };
  for (const Row& row :
       {Row{"", "line\r\n"}, Row{"a\r\n", "a\r\nline\r\n"}, Row{"a\n", "a\nline\r\n"},
        Row{"a\r", "a\rline\r\n"}, Row{"a", "a\r\nline\r\n"},
        // A byte order mark at the start is not part of a line.
        Row{kMark, kMark + "line\r\n"}, Row{"", kMark + kMark + "line\r\n", kMark + "line"},
        Row{kMark, kMark + kMark + "line\r\n", kMark + "line"},
        Row{"a\n" + kMark, "a\n" + kMark + "\r\nline\r\n"}}) {
    disk.AppendLine(Put("list", row.before), row.line);
    EXPECT_EQ(Get("list"), row.after);
  }
  disk.AppendLine(Path("missing"), "first");
  EXPECT_EQ(Get("missing"), "first\r\n");
}

TEST_F(PosixDiskTest, AFailedAppendTakesTheHalfLineBack) {
  Put("list", "whole line");
  {
    const FileSizeLimit limit(14);
    EXPECT_NE(Refusal([&] { disk.AppendLine(Path("list"), "a longer line"); }), "no failure");
  }
  EXPECT_EQ(Get("list"), "whole line");
  disk.AppendLine(Path("list"), "another");
  EXPECT_EQ(Get("list"), "whole line\r\nanother\r\n");
}

TEST_F(PosixDiskTest, CreatesOnlyWhatIsMissing) {
  Put("there", "content");
  const auto old = fs::last_write_time(folder / "there") - std::chrono::hours(1);
  fs::last_write_time(folder / "there", old);
  disk.CreateIfMissing(Path("there"));
  EXPECT_EQ(Get("there"), "content");
  EXPECT_EQ(fs::last_write_time(folder / "there"), old);
  disk.CreateIfMissing(Path("missing"));
  EXPECT_EQ(fs::file_size(folder / "missing"), 0U);
  fs::create_symlink("target", folder / "dangling");
  disk.CreateIfMissing(Path("dangling"));
  EXPECT_TRUE(fs::is_regular_file(folder / "target"));
}

// Every failure is reported with the path; nothing hangs and nothing is changed.
TEST_F(PosixDiskTest, RefusesWhatIsNoFile) {
  fs::create_directory(folder / "dir");
  Put("file", "content");
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  const std::string before = Names();
  for (const std::string& path :
       {Path("dir"), Path("pipe"), std::string("/dev/full"), Path("file/below"),
        Path("no/such/folder"), Path("file") + std::string("\0more", 5), std::string()}) {
    for (const std::string& refusal :
         {Refusal([&] { disk.Read(path); }), Refusal([&] { disk.Replace(path, "x"); }),
          Refusal([&] { disk.AppendLine(path, "x"); }),
          Refusal([&] { disk.CreateIfMissing(path); })}) {
      EXPECT_NE(refusal, "no failure") << path;
      EXPECT_NE(refusal.find(path.c_str()), std::string::npos) << refusal;
    }
  }
  EXPECT_NE(Refusal([&] { disk.Read(Path("missing")); }), "no failure");
  EXPECT_EQ(Names(), before);
  EXPECT_EQ(Get("file"), "content");
}

TEST_F(PosixDiskTest, RefusesAWriteProtectedFileThoughItsFolderIsOpen) {
  chmod(folder.c_str(), 0777);
  chmod(Put("protected", "content").c_str(), 0444);
  const uid_t former = geteuid();
  if (former == 0) {
    ASSERT_EQ(seteuid(65534), 0);
  }
  const std::string refusal = Refusal([&] { disk.Replace(Path("protected"), "x"); });
  const std::string appending = Refusal([&] { disk.AppendLine(Path("protected"), "x"); });
  // It exists: nothing has to be created.
  const std::string making = Refusal([&] { disk.CreateIfMissing(Path("protected")); });
  if (former == 0) {
    ASSERT_EQ(seteuid(former), 0);
  }
  EXPECT_NE(refusal, "no failure");
  EXPECT_NE(appending, "no failure");
  EXPECT_EQ(making, "no failure");
  EXPECT_EQ(Get("protected"), "content");
  EXPECT_EQ(Names(), "protected ");
}

TEST_F(PosixDiskTest, RefusesFilesBeyondWhatOffsetsCount) {
  const std::string path = Put("huge", "");
  std::error_code impossible;
  fs::resize_file(path, 0x100000000ULL, impossible);
  if (impossible) GTEST_SKIP() << "no room for a sparse file of 4 GB";
  EXPECT_NE(Refusal([&] { disk.Read(path); }), "no failure");
}

}  // namespace
}  // namespace quill::test
