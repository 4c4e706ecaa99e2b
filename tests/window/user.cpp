#include "user.h"

#include <QtTest>

#include "window/page/page_layout.h"

namespace quill::test {

WindowTest::WindowTest() : Hands(window) {
  window.resize(window.sizeHint());
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

void WindowTest::OpenText(const std::string& body) {
  disk.files["x.rtf"] =
      R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0 Times New Roman;}}\f0 )" + body + "}";
  if (form.IDFrame.Visible) Press("CloseIDFrame");
  dialogs.answers = {std::u32string(U"x.rtf"), ScriptedDialogs::Proposed{}};
  Choose("mnuFileOpen");
}

QRect WindowTest::CaretAt(Position at) const {
  QTextCursor cursor(View().document());
  cursor.setPosition(static_cast<int>(at));
  return View().cursorRect(cursor);
}

int WindowTest::CaretOnPage(Position at) const {
  return CaretAt(at).left() - static_cast<int>(ThePage().left);
}

const Page& WindowTest::ThePage() const { return PageLayout::Of(*View().document()).ThePage(); }

QImage WindowTest::Painted(const QRect& place) const {
  return View().viewport()->grab(place).toImage();
}

QRect WindowTest::AreaOf(const QImage& image, const std::function<bool(const QColor&)>& wanted) {
  QRect area;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (wanted(image.pixelColor(x, y))) area |= QRect(x, y, 1, 1);
    }
  }
  return area;
}

}  // namespace quill::test
