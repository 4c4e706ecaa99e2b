// How far apart the lines of a paragraph stand, as its style says.
#pragma once

class QTextBlockFormat;

namespace quill {

// In whole pixels. A natural height is what a line takes by itself.
class LineSpacing {
 public:
  LineSpacing() = default;
  // `scale` is that of the page.
  LineSpacing(const QTextBlockFormat& style, double scale);

  // From the top of a line to that of the next one.
  int Advance(double natural) const;
  // How far below its top a line's characters begin. Room that a line is given for its least height
  // is above them, room in proportion to its own is below.
  int Above(double natural, double ascent) const;
  bool IsExact() const { return exact_ > 0; }
  bool IsNatural() const { return times_ == 1 && least_ == 0 && exact_ == 0; }

 private:
  double times_ = 1;
  int least_ = 0;
  int exact_ = 0;
};

}  // namespace quill
