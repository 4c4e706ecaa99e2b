#include "window/page/zoom.h"

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "window/page/page_layout.h"

namespace quill {
namespace {

constexpr int kDotsInInch = 96;
constexpr int kSizes[] = {Zoom::kLeast, 67,  80,  90,  100, 110,        125,
                          150,          175, 200, 250, 300, Zoom::kMost};

}  // namespace

bool Zoom::Step(int steps) {
  const auto at = std::find(std::begin(kSizes), std::end(kSizes), percent_) - std::begin(kSizes);
  const auto last = static_cast<std::ptrdiff_t>(std::size(kSizes)) - 1;
  const int percent = kSizes[std::clamp<std::ptrdiff_t>(at + steps, 0, last)];
  return std::exchange(percent_, percent) != percent;
}

bool Zoom::Reset() { return std::exchange(percent_, 100) != 100; }

void Zoom::ApplyTo(PageLayout& page) {
  page.setPaintDevice(percent_ == 100 ? nullptr : this);
  page.LayOutAnew();
}

int Zoom::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return kDotsInInch * percent_ / 100;
    default:
      return QPaintDevice::metric(metric);
  }
}

double ScaleOf(const QTextDocument& shown) {
  const QPaintDevice* const device = shown.documentLayout()->paintDevice();
  return device != nullptr ? device->logicalDpiY() / static_cast<double>(kDotsInInch) : 1;
}

}  // namespace quill
