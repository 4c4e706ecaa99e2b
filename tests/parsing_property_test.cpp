// The searches, compared with the plain loop that they replace, on random texts and lists.
#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <random>

#include "support/workbench.h"
#include "text/marks.h"

namespace quill::test {
namespace {

using Chars = std::u32string;

// --- The plain loop: one search after the other, one hit after the other ---------------------

bool SameButCase(char32_t left, char32_t right) {
  const auto fold = [](char32_t c) { return u_foldCase(static_cast<UChar32>(c), 0); };
  return fold(left) == fold(right);
}

// 1-based; 0 for none.
std::size_t InStr(std::size_t from, const Chars& text, const Chars& term) {
  for (std::size_t at = from; at + term.size() <= text.size() + 1; ++at) {
    std::size_t same = 0;
    while (same < term.size() && SameButCase(text[at - 1 + same], term[same])) ++same;
    if (same == term.size()) return at;
  }
  return 0;
}

void PlainDecompose(Form1& form) {
  WorkState& state = form.WorkState;
  const Chars line = form.Parse_listbox.List(state.ParseIndex);
  state.ParseLine = line;
  std::size_t first = 0;
  for (std::size_t i = line.size(); i > 0; --i) {
    if (line[i - 1] == U'\\') first = i;
  }
  std::size_t second = first;
  for (std::size_t i = line.size(); first > 0 && i > first; --i) {
    if (line[i - 1] == U'|' || line[i - 1] == U'\\') second = i;
  }
  if (first > 0) state.ParseTerm = Chars(line.begin(), line.begin() + static_cast<long>(first) - 1);
  state.ParseCategory = second < line.size() ? Chars(1, line[second]) : Chars();
}

void PlainScan(Form1& form, const std::function<void(TextSurface&, const Chars&)>& mark) {
  WorkState& state = form.WorkState;
  TextSurface& text = form.RichTextBox1;
  PlainDecompose(form);
  state.ParsePos = 1;
  state.TextLen = text.Length();
  while (state.ParsePos < state.TextLen) {
    const Chars term = state.ParseTerm.Get();
    const std::size_t found =
        term.empty() ? 0 : InStr(static_cast<std::size_t>(state.ParsePos), text.Text(), term);
    state.TagStart = static_cast<double>(found);
    if (found == 0) break;
    text.SelStart = static_cast<Position>(found) - 1;
    text.SelLength = static_cast<Position>(term.size());
    mark(text, state.ParseCategory.Get());
    text.SelLength = 0;
    state.ParsePos = static_cast<Position>(found + term.size());
    text.SelStart = state.ParsePos.Get();
  }
}

void PlainMark(TextSurface& text, const Chars& category) {
  if (category == U"A") {
    text.SelColor = kFoundA;
    text.SelBold = true;
  }
  if (category == U"B") {
    text.SelColor = kMarkedB;
    text.SelBold = true;
  }
  const std::optional<Twips> offset = text.SelCharOffset;
  if (offset && *offset > 0) text.SelBold = false;
}

void PlainParse1(Form1& form) {
  if (form.Parse_listbox.ListCount() == 0) return;
  form.Parse_listbox.ListIndex = 0;
  while (form.Parse_listbox.ListIndex < form.Parse_listbox.ListCount() - 1) {
    PlainScan(form, PlainMark);
    const int next = form.WorkState.ParseIndex + 1;
    if (next < form.Parse_listbox.ListCount()) {
      form.WorkState.ParseIndex = next;
      form.Parse_listbox.ListIndex = next;
    }
  }
}

// --- Random texts and lists ------------------------------------------------------------------

struct Changes final : Watcher {
  std::vector<Range> formats;
  void FormatChanged(Range range) override { formats.push_back(range); }
};

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  Chars Word(const Chars& letters, std::size_t most) {
    Chars word;
    for (std::size_t length = Below(most + 1); length > 0; --length) {
      word += letters[Below(letters.size())];
    }
    return word;
  }
  Chars Item(const Chars& letters) {
    const Chars lemma = Word(letters, 5);
    const Chars category(1, U"AAABBBab x"[Below(10)]);
    switch (Below(12)) {
      case 0:
        return lemma;
      case 1:
        return lemma + U"\\";
      case 2:
        return lemma + U"\\" + category;
      case 3:
        return category + U"|" + lemma;
      case 4:
        return lemma + U"\\  |";
      case 5:
        return lemma + U"\\   \\" + category + U"< A|B\\A >";
      default:
        return lemma + U"\\      |" + category + U"< d >";
    }
  }
  Document Text(const Chars& letters) {
    const Chars text = Word(letters, Below(4) == 0 ? 3 : 60);
    FormatTable formats;
    FormatNumbers ids;
    while (ids.size() < text.size()) {
      constexpr Colour kColours[] = {0, kMarkedA, kMarkedB, kFoundA};
      constexpr Twips kOffsets[] = {0, 0, 0, 25, 30, -20};
      Format format;
      format.now = {kColours[Below(4)], Below(2) == 0, Below(3) == 0, kOffsets[Below(6)]};
      const std::size_t stretch = std::min(1 + Below(9), text.size() - ids.size());
      ids.Append(stretch, formats.Add(format));
    }
    OriginList origins(text.size());
    return {Source(), {}, std::move(formats), text, std::move(ids), std::move(origins), 0};
  }

 private:
  std::mt19937 random_;
};

// The long s, the Kelvin sign, the sharp s of both cases, dotted and dotless i, the three sigmas,
// and letters beyond U+FFFF.
const Chars kLetters[] = {U"aA",
                          U"aAb",
                          U"abc",
                          U"s\u017FSk\u212A",
                          U"\u00DF\u1E9Es",
                          U"iI\u0130\u0131",
                          U"\u03C3\u03C2\u03A3",
                          U"\U00010400\U00010428\U0001F600",
                          U"a\n \u2028"};

void Prepare(Workbench& bench, Dice dice) {
  const Chars& letters = kLetters[dice.Below(std::size(kLetters))];
  bench.text.SetDocument(dice.Text(letters));
  const std::size_t items = 1 + dice.Below(7);
  for (std::size_t i = 0; i < items; ++i) bench.form.Parse_listbox.AddItem(dice.Item(letters));
  bench.form.Frame5.Enabled = true;
  bench.form.PreFrame.Visible = true;
  if (dice.Below(3) == 0) bench.form.WorkState.ParseTerm = Chars(dice.Word(letters, 3));
  bench.form.WorkState.TagStart = 77;
  bench.text.SelStart = static_cast<Position>(dice.Below(20));
  bench.text.SelLength = static_cast<Position>(dice.Below(3));
  bench.text.SelBold = dice.Below(2) == 0;
}

void ExpectSame(const Form1& fast, const Form1& plain) {
  const TextSurface& text = fast.RichTextBox1;
  for (Position at = 0; at < text.Length(); ++at) {
    EXPECT_EQ(text.Doc().At(at), plain.RichTextBox1.Doc().At(at)) << "at " << at;
  }
  EXPECT_EQ(text.Selection(), plain.RichTextBox1.Selection());
  EXPECT_EQ(text.TypingAttributes(), plain.RichTextBox1.TypingAttributes());
  EXPECT_EQ(fast.Parse_listbox.ListIndex.Get(), plain.Parse_listbox.ListIndex.Get());
  EXPECT_EQ(Fields(fast.WorkState), Fields(plain.WorkState));
}

// The watcher was told of every character that looks different.
void ExpectToldOf(const Changes& changes, const Document& before, const Document& after) {
  for (Position at = 0; at < before.Length(); ++at) {
    if (before.At(at) == after.At(at)) continue;
    const bool told = std::any_of(changes.formats.begin(), changes.formats.end(),
                                  [&](Range range) { return range.begin <= at && at < range.end; });
    EXPECT_TRUE(told) << "at " << at;
  }
}

TEST(ParsingProperty, TheWholeListIsOneTermAfterAnother) {
  for (unsigned seed = 0; seed < 6000 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    Workbench fast;
    Workbench plain;
    Prepare(fast, Dice(seed));
    Prepare(plain, Dice(seed));
    const Document before = fast.text.Doc();
    Changes changes;
    fast.form.SetWatcher(&changes);
    fast.program.Click(fast.form.Parse_1);
    fast.form.SetWatcher(nullptr);
    PlainParse1(plain.form);
    ExpectSame(fast.form, plain.form);
    ExpectToldOf(changes, before, fast.text.Doc());
  }
}

TEST(ParsingProperty, OneTermWithAndWithoutQuestions) {
  for (unsigned seed = 0; seed < 6000 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    const bool asks = seed % 2 == 0;
    Workbench fast;
    Workbench plain;
    Prepare(fast, Dice(seed));
    Prepare(plain, Dice(seed));
    const int item = static_cast<int>(seed) % fast.form.Parse_listbox.ListCount();
    fast.form.Parse_listbox.ListIndex = item;
    plain.form.Parse_listbox.ListIndex = item;
    std::deque<Button> buttons;
    fast.dialogs.ask = [&](const MessageBox&) {
      EXPECT_EQ(fast.text.SelColor.Get(), kAskedAbout);
      EXPECT_TRUE(fast.text.SelBold.Get().value_or(false));
      EXPECT_TRUE(fast.text.SelUnderline.Get().value_or(false));
      const Button button = buttons.at(0);
      buttons.pop_front();
      return button;
    };
    std::mt19937 answers(seed);
    PlainScan(plain.form, [&](TextSurface& text, const Chars& category) {
      if (!asks) return PlainMark(text, category);
      const bool yes = answers() % 3 != 0;
      buttons.push_back(yes ? Button::kYes : Button::kNo);
      if (!yes) text.SelColor = kPlain;
      if (yes) text.SelColor = kAskedAbout;
      if (yes && category == U"A") text.SelColor = kMarkedA;
      if (yes && category == U"B") text.SelColor = kMarkedB;
      const std::optional<Twips> offset = text.SelCharOffset;
      text.SelBold = yes && !(offset && *offset > 0);
      text.SelUnderline = false;
    });
    fast.program.Click(asks ? fast.form.Parse_3 : fast.form.Parse_2);
    EXPECT_TRUE(buttons.empty());
    ExpectSame(fast.form, plain.form);
  }
}

}  // namespace
}  // namespace quill::test
