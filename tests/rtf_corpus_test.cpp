// Properties that every rich text file must have, tested on the project's small files and, if
// available, on real files of many producers.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/rich_text.h"
#include "support/scenario_folder.h"
#include "text/marks.h"

namespace quill {
namespace {

std::vector<std::filesystem::path> RealFiles() {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(QUILL_SHARED_RTF, error)) {
    // One of them is not text: bytes of all kinds, including NULs.
    const bool isText =
        entry.path().filename().string().find("destinationtest-2") == std::string::npos;
    if (entry.path().extension() == ".rtf" && isText) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

class RealFile : public testing::Test {
 protected:
  void SetUp() override {
    if (RealFiles().empty()) GTEST_SKIP() << "no real rich text files beside the project";
  }
};

// Random stretches of a text, a few characters each.
std::vector<Range> SomeStretches(const Document& document, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<Range> stretches;
  const Position length = document.Length();
  if (length == 0) return stretches;
  for (int i = 0; i < 12; ++i) {
    const auto begin = static_cast<Position>(random() % static_cast<unsigned>(length));
    stretches.push_back({begin, std::min<Position>(length, begin + 1 + random() % 9)});
  }
  return stretches;
}

TEST_F(RealFile, ComesBackByteForByteAfterMarkingAndUnmarking) {
  for (const auto& path : RealFiles()) {
    SCOPED_TRACE(path.filename().string());
    const std::string bytes = test::Contents(path);
    std::optional<Document> document = rtf::Read(bytes);
    ASSERT_TRUE(document);
    document->Check();
    const bool plain = document->GetSource().bytes != bytes;
    if (plain) continue;
    for (const Range& range : SomeStretches(*document, 1)) {
      const std::vector<Attributes> before = AttributesOf(*document, range);
      document->Apply(range, {kMarkedA, true, true, kRaised});
      Restore(*document, range, before);
    }
    EXPECT_TRUE(rtf::Write(*document) == bytes);
  }
}

TEST_F(RealFile, KeepsTextAndAttributesOfAMarkedSave) {
  for (const auto& path : RealFiles()) {
    SCOPED_TRACE(path.filename().string());
    std::optional<Document> document = rtf::Read(test::Contents(path));
    ASSERT_TRUE(document);
    for (const Range& range : SomeStretches(*document, 2)) Mark(*document, range, range.begin);
    const std::optional<Document> again = rtf::Read(rtf::Write(*document));
    ASSERT_TRUE(again);
    ExpectSameText(*document, *again);
  }
}

// Changes all four attributes of every word; the rest of the file must stay.
TEST_F(RealFile, ComesBackFromMarkedSavesButForItsColours) {
  for (const auto& path : RealFiles()) {
    SCOPED_TRACE(path.filename().string());
    const std::optional<Document> original = rtf::Read(test::Contents(path));
    ASSERT_TRUE(original);
    if (!original->GetSource().wellFormed) continue;
    const Range all{0, original->Length()};
    Document document = *original;
    for (const Range& word : MarkWords(document, 1)) {
      const Attributes& now = original->At(word.begin);
      document.Apply(word, {RGB(1, 2, 3), !now.bold, !now.underline, now.offset + 40});
    }
    document = *rtf::Read(rtf::Write(document));
    Restore(document, all, AttributesOf(*original, all));
    EXPECT_TRUE(SameButForColours(*original, rtf::Write(document)));
  }
}

TEST_F(RealFile, DoesNotGrowByMarkingAndUnmarking) {
  for (const auto& path : RealFiles()) {
    SCOPED_TRACE(path.filename().string());
    std::optional<Document> document = rtf::Read(test::Contents(path));
    ASSERT_TRUE(document);
    if (document->Length() == 0) continue;
    const Document original = *document;
    const std::vector<Range> stretches = SomeStretches(*document, 3);
    std::size_t firstMarked = 0;
    std::size_t firstUnmarked = 0;
    for (int round = 0; round < 4; ++round) {
      for (const Range& range : stretches) document->Apply(range, {kMarkedB, true, false, kRaised});
      std::string bytes = rtf::Write(*document);
      if (round == 0) firstMarked = bytes.size();
      EXPECT_EQ(bytes.size(), firstMarked);
      document = rtf::Read(std::move(bytes));
      for (const Range& range : stretches) {
        Restore(*document, range, AttributesOf(original, range));
      }
      bytes = rtf::Write(*document);
      if (round == 0) firstUnmarked = bytes.size();
      EXPECT_EQ(bytes.size(), firstUnmarked);
      document = rtf::Read(std::move(bytes));
      ExpectSameText(original, *document);
    }
  }
}

TEST_F(RealFile, KeepsWhatWasTypedAndDeleted) {
  for (const auto& path : RealFiles()) {
    SCOPED_TRACE(path.filename().string());
    std::optional<Document> document = rtf::Read(test::Contents(path));
    ASSERT_TRUE(document);
    std::mt19937 random(4);
    for (int i = 0; i < 12; ++i) {
      const auto length = static_cast<unsigned>(document->Length());
      const auto begin = static_cast<Position>(random() % (length + 1));
      const Position end = std::min<Position>(document->Length(), begin + random() % 4);
      const std::u32string typed =
          std::u32string(U"a 9-{\\é€😀\n\t").substr(random() % 10, random() % 4);
      if (!document->CanDelete({begin, end})) continue;
      document->Type({begin, end}, typed, Attributes{});
    }
    document->Check();
    const std::optional<Document> again = rtf::Read(rtf::Write(*document));
    ASSERT_TRUE(again);
    ExpectSameText(*document, *again);
  }
}

TEST_F(RealFile, LoadsAndSavesHoweverItIsCutOff) {
  std::mt19937 random(5);
  for (const auto& path : RealFiles()) {
    SCOPED_TRACE(path.filename().string());
    const std::string bytes = test::Contents(path);
    for (int i = 0; i < 20; ++i) {
      const std::string cut = bytes.substr(0, random() % (bytes.size() + 1));
      std::optional<Document> document = rtf::Read(cut);
      if (!document) continue;
      document->Check();
      if (document->GetSource().bytes == cut) {
        EXPECT_TRUE(rtf::Write(*document) == cut);
      }
      document->Apply({0, document->Length()}, {.bold = true});
      const std::optional<Document> again = rtf::Read(rtf::Write(*document));
      ASSERT_TRUE(again);
      ExpectSameText(*document, *again);
    }
  }
}

}  // namespace
}  // namespace quill
