#include "window/page/place_keeper.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <cmath>

#include "window/page/page_layout.h"

namespace quill {
namespace {

// What comes into sight may be lower than guessed, so that more comes into sight.
constexpr int kMostRounds = 6;

}  // namespace

PlaceKeeper::PlaceKeeper(QTextEdit& view) : view_(view) {
  QObject::connect(&Bar(), &QScrollBar::sliderReleased, &view, [this] { Scrolled(); });
}

QScrollBar& PlaceKeeper::Bar() const { return *view_.verticalScrollBar(); }

int PlaceKeeper::ViewHeight() const { return view_.viewport()->height(); }

void PlaceKeeper::Start(PageLayout& page) {
  page_ = &page;
  page.TellCorrections([this](double top, int difference) { Correct(top, difference); });
  line_ = QTextCursor(view_.document());
  line_.setKeepPositionOnInsert(true);
  offset_ = page.LineOf(0).top;
  Restore();
}

void PlaceKeeper::Note() {
  const PageLayout::Line line = page_->LineAt(Bar().value());
  line_.setPosition(line.position);
  offset_ = line.top - Bar().value();
}

void PlaceKeeper::Keep(const std::function<void()>& change) {
  {
    const QScopedValueRollback<bool> moving(moving_, true);
    change();
  }
  Restore();
}

void PlaceKeeper::Restore() {
  if (page_ == nullptr || moving_) return;
  LayOutSight([this] { return page_->LineOf(line_.position()).top - offset_; });
}

void PlaceKeeper::Scrolled() {
  if (page_ == nullptr || moving_) return;
  const QScrollBar& bar = Bar();
  if (bar.value() > 0 && bar.value() == bar.maximum()) {
    LayOutSight([&bar] { return bar.maximum(); });
    return;
  }
  // What is there already stays where it is, and what comes above it takes its room. Under the
  // mouse the scroll bar stays as well: there the topmost paragraph is what stays.
  QTextBlock fixed = page_->ParagraphAt(bar.value());
  for (QTextBlock block = fixed;
       !bar.isSliderDown() && block.isValid() && page_->TopOf(block) < bar.value() + ViewHeight();
       block = block.next()) {
    if (block.layout()->lineCount() == 0) continue;
    fixed = block;
    break;
  }
  const double offset = page_->TopOf(fixed) - bar.value();
  LayOutSight([this, fixed, offset] { return page_->TopOf(fixed) - offset; });
}

void PlaceKeeper::LayOutSight(const std::function<double()>& wanted) {
  const QScopedValueRollback<bool> moving(moving_, true);
  QScrollBar& bar = Bar();
  for (int round = 0; round < kMostRounds; ++round) {
    wanted();  // may lay out a paragraph, of which the size comes to depend
    if (!bar.isSliderDown() || bar.value() == bar.maximum()) page_->AnnounceSize();
    bar.setValue(static_cast<int>(std::lround(wanted())));
    if (!page_->LayOut(bar.value(), bar.value() + ViewHeight())) break;
  }
  Note();
}

void PlaceKeeper::Correct(double top, int difference) {
  if (moving_ || Bar().isSliderDown()) return;
  const QScopedValueRollback<bool> moving(moving_, true);
  QScrollBar& bar = Bar();
  const int value = bar.value() + (top < bar.value() ? difference : 0);
  page_->AnnounceSize();
  bar.setValue(value);
}

}  // namespace quill
