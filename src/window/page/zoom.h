// How large the text is shown. A zoomed text is laid out as for a device with more dots to the
// inch: fonts, indents and pictures grow alike, and neither model nor styles know of it.
#pragma once

#include <QPaintDevice>

class QTextDocument;

namespace quill {

class PageLayout;

class Zoom final : public QPaintDevice {
 public:
  // In percent.
  static constexpr int kLeast = 50;
  static constexpr int kMost = 400;
  int Percent() const { return percent_; }
  // By so many steps of the usual sizes, as far as these go. Returns whether anything changed.
  bool Step(int steps);
  bool Reset();
  // Lays out a text accordingly.
  void ApplyTo(PageLayout& page);

  QPaintEngine* paintEngine() const override { return nullptr; }

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  int percent_ = 100;
};

// How many times larger than 1/96 inch the pixels of a widget's document are.
double ScaleOf(const QTextDocument& shown);

}  // namespace quill
