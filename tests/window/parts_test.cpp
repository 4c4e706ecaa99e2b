// The parts that need no window, each compared with a plain way to do the same.
#include <gtest/gtest.h>

#include <random>

#include "window/shared/shown.h"
#include "window/text/position_map.h"
#include "window/text/text_changes.h"
#include "window/window_dialogs.h"

namespace quill {
namespace {

// A text and an edit of it, drawn from few characters so that every case comes up.
struct RandomText {
  std::mt19937 random{7};
  std::u32string text = U"ab\U0001F600c";

  Position Below(Position limit) {
    return std::uniform_int_distribution<Position>(0, limit)(random);
  }
  struct Edit {
    Position at, removed;
    std::u32string inserted;
  };
  Edit Next() {
    const auto length = static_cast<Position>(text.size());
    Edit edit{Below(length), 0, {}};
    edit.removed = Below(std::min<Position>(4, length - edit.at));
    for (Position i = Below(4); i > 0; --i) edit.inserted += Below(2) ? U'x' : U'\U0001F601';
    text.replace(static_cast<std::size_t>(edit.at), static_cast<std::size_t>(edit.removed),
                 edit.inserted);
    return edit;
  }
};

TEST(PositionMap, FollowsEdits) {
  RandomText source;
  PositionMap map;
  map.Load(source.text);
  for (int round = 0; round < 500; ++round) {
    const RandomText::Edit edit = source.Next();
    map.Replace(edit.at, edit.removed, edit.inserted);
    int units = 0;
    for (std::size_t i = 0; i <= source.text.size(); ++i) {
      const auto position = static_cast<Position>(i);
      ASSERT_EQ(map.ToWidget(position), units);
      ASSERT_EQ(map.ToModel(units), position);
      if (i == source.text.size()) break;
      if (source.text[i] > 0xFFFF) {
        ASSERT_EQ(map.ToModel(++units), position);
      }
      ++units;
    }
  }
}

// What was shown, after applying the changes, must be the text with its formats.
TEST(TextChanges, LeadFromWhatWasShownToTheText) {
  for (int round = 0; round < 300; ++round) {
    RandomText source;
    source.random.seed(static_cast<unsigned>(round));
    std::u32string formats(source.text.size(), U'0');
    const std::u32string shownText = source.text;
    std::u32string shown = formats;
    TextChanges changes;
    for (int step = 0; step < 6; ++step) {
      if (source.Below(1)) {
        const RandomText::Edit edit = source.Next();
        formats.replace(static_cast<std::size_t>(edit.at), static_cast<std::size_t>(edit.removed),
                        edit.inserted.size(), U'0');
        changes.Replace(edit.at, edit.removed, static_cast<Position>(edit.inserted.size()));
      } else {
        const auto length = static_cast<Position>(source.text.size());
        const Position begin = source.Below(length);
        const Range range{begin, begin + source.Below(length - begin)};
        for (Position i = range.begin; i < range.end; ++i) {
          formats[static_cast<std::size_t>(i)] = U'1' + static_cast<char32_t>(step);
        }
        changes.Format(range);
      }
    }
    if (changes.edited) {
      const auto at = static_cast<std::size_t>(changes.edit.at);
      const auto inserted = static_cast<std::size_t>(changes.edit.inserted);
      const auto removed = static_cast<std::size_t>(changes.edit.removed);
      shown.replace(at, removed, formats.substr(at, inserted));
      std::u32string text = shownText;
      EXPECT_EQ(text.replace(at, removed, source.text.substr(at, inserted)), source.text);
    }
    ASSERT_EQ(shown.size(), formats.size());
    for (const Range& range : changes.MergedFormats(static_cast<Position>(formats.size()))) {
      for (Position i = range.begin; i < range.end; ++i) {
        shown[static_cast<std::size_t>(i)] = formats[static_cast<std::size_t>(i)];
      }
    }
    ASSERT_EQ(shown, formats) << "round " << round;
  }
}

TEST(ForwardEdit, KeepsWhatTheEditDidNotTouch) {
  const struct {
    std::u32string_view model, shown, now, expected;
  } kRows[] = {
      {U"a\u2029b", U"a\uFFFDb", U"a\uFFFDbc", U"a\u2029bc"},
      {U"a\u2029b", U"a\uFFFDb", U"xa\uFFFDb", U"xa\u2029b"},
      {U"a\u2029b", U"a\uFFFDb", U"ab", U"ab"},
      {U"aa", U"aa", U"aaa", U"aaa"},
      {U"abc", U"abc", U"", U""},
  };
  for (const auto& row : kRows) EXPECT_EQ(ForwardEdit(row.model, row.shown, row.now), row.expected);
}

TEST(FileDialog, FiltersAndExtensions) {
  const QStringList filters =
      ToolkitFilters(U" tbf-files(*.tbf)| *.tbf| rtf-files (*.rtf)| *.rtf| All files (*.*)|*.*");
  EXPECT_EQ(filters, QStringList({"tbf-files (*.tbf)", "rtf-files (*.rtf)", "All files (*)"}));
  const struct {
    const char *path, *filter, *expected;
  } kRows[] = {
      {"/a/x", "t (*.tbf)", "/a/x.tbf"},     {"/a/x.tbf", "t (*.tbf)", "/a/x.tbf"},
      {"/a/x.rtf", "t (*.tbf)", "/a/x.rtf"}, {"/a.b/x", "t (*.tbf)", "/a.b/x.tbf"},
      {"/a/x.", "t (*.tbf)", "/a/x.tbf"},    {"/a/x", "All files (*)", "/a/x"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(WithExtension(row.path, row.filter).toStdString(), row.expected) << row.path;
  }
}

}  // namespace
}  // namespace quill
