// The tag line: composed, cut into fields, and cut when damaged.
#include "tags/tag_record.h"

#include <gtest/gtest.h>

#include "text/unicode.h"

namespace quill::test {
namespace {

constexpr std::u32string_view kAbsolute =
    U"t_op(1\\ 412\\ 415\\ 1914\\ Session-ID\\ User-ID\\ lexematic\\ b_operator\\ absolute \\ at\\ "
    U"year \\ 1914\\ Reference Tag\\  \\   )";

TEST(TagRecord, IsComposedAndCutToTheCharacter) {
  const TagFields fields = {U"1",       U"412",       U"415",           U"1914",      U"Session-ID",
                            U"User-ID", U"lexematic", U"b_operator",    U"absolute ", U"at",
                            U"year ",   U"1914",      U"Reference Tag", U" ",         U" "};
  EXPECT_EQ(ComposeTag(fields), kAbsolute);
  const TagFields cut = CutTag(kAbsolute);
  for (std::size_t i = 0; i < TagField::kRefStop; ++i)
    EXPECT_EQ(ToUtf8(cut[i]), ToUtf8(fields[i])) << "field " << i + 1;
  // The blank of the closing " )" belongs to the last field as it is cut.
  EXPECT_EQ(cut[TagField::kRefStop], U"  ");
}

struct CutRow {
  const char* about;
  const char32_t* line;
  std::vector<std::u32string> fields;  // those behind them are empty
};

TEST(TagRecord, CutsWhatItFinds) {
  const CutRow rows[] = {
      {"nothing", U"", {}},
      {"no separator", U"t_op(1", {}},
      {"one separator", U"t_op(1\\ 4", {U"1"}},
      {"three separators", U"t_op(1\\ 4\\ 7\\ now", {U"1", U"4", U"7"}},
      {"a separator in the head", U"t\\ 4\\ 7\\ now", {U"", U"4", U"7"}},
      {"a separator without its blank", U"t_op(1\\4\\ 7\\ ", {U"1", U"", U"7"}},
      {"backslashes side by side", U"t_op(1\\\\ 4\\ x", {U"1", U"", U"4"}},
      {"a backslash in a field shifts those behind",
       U"t_op(1\\ 2\\ 3\\ a\\b\\ S\\ U\\ C\\ O\\ M\\ T\\ G\\ V\\ R\\ 8\\ 9 )",
       {U"1", U"2", U"3", U"a", U"", U"S", U"U", U"C", U"O", U"M", U"T", U"G", U"V", U"R",
        U"8\\ 9 "}},
      {"parentheses in the term",
       U"t_op(1\\ 2\\ 3\\ a) (b\\ S\\ U\\ C\\ O\\ M\\ T\\ G\\ V\\ R\\ 8\\ 9 )",
       {U"1", U"2", U"3", U"a) (b", U"S", U"U", U"C", U"O", U"M", U"T", U"G", U"V", U"R", U"8",
        U"9 "}},
      {"a parenthesis in the last field but one, behind which the search begins",
       U"t_op(1\\ 2\\ 3\\ a\\ S\\ U\\ C\\ O\\ M\\ T\\ G\\ V\\ R\\ 8)\\ 9 )",
       {U"1", U"2", U"3", U"a", U"S", U"U", U"C", U"O", U"M", U"T", U"G", U"V", U"R", U"8)", U""}},
      {"no closing parenthesis",
       U"t_op(1\\ 2\\ 3\\ a\\ S\\ U\\ C\\ O\\ M\\ T\\ G\\ V\\ R\\ 8\\ 9",
       {U"1", U"2", U"3", U"a", U"S", U"U", U"C", U"O", U"M", U"T", U"G", U"V", U"R", U"8", U""}},
  };
  for (const CutRow& row : rows) {
    const TagFields cut = CutTag(row.line);
    for (std::size_t i = 0; i < TagField::kCount; ++i) {
      const std::u32string expected = i < row.fields.size() ? row.fields[i] : U"";
      EXPECT_EQ(ToUtf8(cut[i]), ToUtf8(expected)) << row.about << ", field " << i + 1;
    }
  }
}

TEST(TagRecord, NumbersAreDigitsOnly) {
  EXPECT_EQ(CutTagNumber(kAbsolute), 1);
  EXPECT_EQ(CutTagNumber(U"t_op(0041\\ "), 41);
  EXPECT_EQ(CutTagNumber(U"17\\ without a parenthesis"), 17);
  for (const char32_t* line :
       {U"", U"t_op(12", U"t_op(\\ 4", U"t_op( 1\\ 4", U"t_op(1 \\ 4", U"t_op(-1\\ 4",
        U"t_op(1.5\\ 4", U"t_op(a\\ 4", U"4\\ t_op(5", U"t_op((1\\ 4"}) {
    EXPECT_EQ(CutTagNumber(line), std::nullopt) << ToUtf8(line);
  }
}

}  // namespace
}  // namespace quill::test
