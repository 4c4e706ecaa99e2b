// One paragraph of the page: its lines, and what they are taken for before anybody looks at them.
#pragma once

#include <QTextCharFormat>
#include <unordered_map>

#include "window/page/line_spacing.h"

class QTextBlock;
class QTextDocument;
class QTextLayout;
class QTextLine;
class QTextOption;

namespace quill {

// Where the lines of a text stand, before the margins of their paragraphs. In pixels.
struct Page {
  double left = 0;
  double width = 0;
  double margin = 0;  // above the text and below it
  double scale = 1;   // of what is counted in 1/96 inch

  bool operator==(const Page&) const = default;
};

// The page in a view of that width: no wider than a reader's eye finds the next line, and in the
// middle. `letters` is the text's usual typeface.
Page PageIn(double width, const QTextDocument& shown, const QTextCharFormat& letters);

// How the toolkit is to break a paragraph into lines, which stand in them as `alignment` says.
QTextOption OptionOf(const QTextBlock& block, Qt::Alignment alignment);

// Breaks a paragraph into lines. Returns their height, a whole number of pixels.
int BreakIntoLines(const QTextBlock& block, const Page& page);

// The line at a height, in the paragraph's own coordinates: above all of them the first, below them
// the last. The paragraph must have lines.
QTextLine LineAt(const QTextLayout& paragraph, double height);

// Between a paragraph and the one above it: the wider of their two margins.
int SpaceAbove(const QTextBlock& block, const Page& page);

// How high the lines of paragraphs will be, about, told from how many characters they have.
class HeightGuess {
 public:
  HeightGuess(const QTextDocument& shown, const Page& page);
  // With the space above it.
  int Of(const QTextBlock& block);

 private:
  struct Letters {
    double width = 0;
    int lineHeight = 0;
  };
  struct Margins {
    double sides = 0;
    double above = 0;
    double below = 0;
    LineSpacing spacing;
  };
  const Letters& LettersOf(const QTextBlock& block);
  const Margins& MarginsOf(const QTextBlock& block);

  const QTextDocument& shown_;
  Page page_;
  // By the toolkit's numbers of the formats.
  std::unordered_map<int, Letters> letters_;
  std::unordered_map<int, Margins> margins_;
};

}  // namespace quill
