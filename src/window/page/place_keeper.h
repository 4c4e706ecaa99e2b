// Keeps what is read where it is on the screen, whatever becomes of the text above it: other marks,
// another zoom or width, heights that are better known. A view calls it wherever these change and
// wherever it was scrolled.
#pragma once

#include <QTextCursor>
#include <functional>

class QScrollBar;
class QTextEdit;

namespace quill {

class PageLayout;

class PlaceKeeper {
 public:
  // The view must outlive it.
  explicit PlaceKeeper(QTextEdit& view);

  // The text goes, and another one comes, which is seen from its beginning.
  void Stop() { page_ = nullptr; }
  void Start(PageLayout& page);
  // Does something that may scroll the view or change what stands where, and puts the line back
  // that was at the top.
  void Keep(const std::function<void()>& change);
  // Lays out what the user has scrolled to.
  void Scrolled();
  // While it does, scrolling is no user's.
  bool IsMoving() const { return moving_; }

 private:
  void Correct(double top, int difference);
  void Restore();
  void LayOutSight(const std::function<double()>& wanted);
  void Note();
  QScrollBar& Bar() const;
  int ViewHeight() const;

  QTextEdit& view_;
  PageLayout* page_ = nullptr;  // owned by the text on show
  // The first line on show, and how far below the view's top it begins.
  QTextCursor line_;
  double offset_ = 0;
  bool moving_ = false;
};

}  // namespace quill
