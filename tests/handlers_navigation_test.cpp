// The walk through the marks, against the plain loop that it stands for.
#include <gtest/gtest.h>

#include <random>

#include "support/workbench.h"
#include "text/marks.h"
#include "text/numbers.h"
#include "text/unicode.h"

namespace quill::test {
namespace {

// The walk played on the surface one character at a time.
struct PlainWalk {
  Form1& form;
  Colour wanted;

  void Find() {
    TextSurface& text = form.RichTextBox1;
    form.WorkState.MarkerColor = wanted;
    form.marked_term.Text = U" ";
    form.StartPosition.Text = U"Start";
    form.EndPosition.Text = U"End";
    text.SelStart = 1;
    text.SelLength = text.Length();
    text.SelUnderline = false;
    text.SelStart = 0;
    double scan = form.WorkState.TagEnd.Get() + 1;
    const auto length = static_cast<double>(text.Length());
    form.WorkState.TextLen = text.Length();
    if (Scan(scan, length, true)) FindEnd(length);
  }

  bool Scan(double scan, double length, bool equal) {
    bool found = false;
    for (; scan < length && !found; scan += found ? 0 : 1) {
      form.RichTextBox1.SelStart = static_cast<Position>(scan);
      form.RichTextBox1.SelLength = 1;
      found = (form.RichTextBox1.SelColor.Get() == wanted) == equal;
    }
    form.WorkState.ScanPos = scan;
    return found;
  }

  void FindEnd(double length) {
    TextSurface& text = form.RichTextBox1;
    const Position start = text.SelStart + 1;
    form.StartPosition.Text = DecimalText(static_cast<double>(start));
    form.WorkState.TagStart = static_cast<double>(start);
    text.SelStart = start + 1;
    if (!Scan(static_cast<double>(start) + 1, length, false)) return;
    const Position end = text.SelStart;
    form.EndPosition.Text = DecimalText(static_cast<double>(end));
    form.WorkState.TagEnd = static_cast<double>(end);
    text.SelStart = start - 1;
    text.SelLength = end - (start - 1);
    form.marked_term.Text = text.SelText();
    text.SelUnderline = true;
  }
};

std::string Outcome(const Form1& form) {
  std::string outcome = Drawing(form.RichTextBox1);
  const auto add = [&](std::string_view name, const std::u32string& value) {
    outcome.append(" ").append(name).append("=").append(ToUtf8(value));
  };
  const Range selection = form.RichTextBox1.Selection();
  add("selection", DecimalText(static_cast<double>(selection.begin)) + U"+" +
                       DecimalText(static_cast<double>(selection.Length())));
  outcome += " " + Fields(form.WorkState);
  add("Start", form.StartPosition.Text);
  add("End", form.EndPosition.Text);
  add("term", form.marked_term.Text);
  return outcome;
}

WorkState::Number RandomTagEnd(std::mt19937& random, int length) {
  const int number = static_cast<int>(random() % static_cast<unsigned>(length + 8)) - 4;
  switch (random() % 8) {
    case 0:
      return {};
    case 1:
      return number + 0.25;
    case 2:
      return number + 0.5;
    default:
      return static_cast<double>(number);
  }
}

TEST(Navigation, DoesWhatThePlainLoopDoes) {
  std::mt19937 random(20040316);
  Workbench fast;
  Workbench plain;
  for (int round = 0; round < 5000; ++round) {
    const auto length = static_cast<std::size_t>(random() % 13);
    const std::string_view inks = round % 3 == 0 ? ".aAbBl_" : round % 3 == 1 ? "aaab." : "ab";
    std::string drawing;
    std::u32string characters;
    for (std::size_t i = 0; i < length; ++i) {
      drawing += inks[random() % inks.size()];
      characters += U'p' + static_cast<char32_t>(i);
    }
    const WorkState::Number tagEnd = RandomTagEnd(random, static_cast<int>(length));
    for (Workbench* bench : {&fast, &plain}) {
      bench->ShowText(characters, drawing);
      bench->form.WorkState = {};
      bench->form.WorkState.TagEnd = tagEnd;
    }
    for (int step = 0; step < 3; ++step) {
      const bool kindA = random() % 2 == 0;
      fast.program.Click(kindA ? fast.form.FindAMarker : fast.form.FindBMarker);
      PlainWalk{plain.form, kindA ? kMarkedA : kMarkedB}.Find();
      ASSERT_EQ(Outcome(fast.form), Outcome(plain.form))
          << drawing << " from " << ToUtf8(TextOf(tagEnd)) << ", step " << step;
    }
  }
}

}  // namespace
}  // namespace quill::test
