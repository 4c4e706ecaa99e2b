// A test of the real window: a program with a disk in memory and scripted dialogs, its window, and
// the hands of a user on it.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <functional>
#include <string>

#include "hands/hands.h"
#include "hands/shown_program.h"
#include "support/fakes.h"
#include "window/page/paragraph.h"

namespace quill::test {

// An action that no user could do fails the test.
class WindowTest : public testing::Test,
                   protected ShownProgram<MemoryDisk, ScriptedDialogs>,
                   protected Hands {
 protected:
  WindowTest();

  // Opens a rich text with that body, with a working copy of the proposed name, and closes the
  // panel over the text.
  void OpenText(const std::string& body);

  // Where the text shows a caret at the position, in coordinates of the viewport.
  QRect CaretAt(Position at) const;
  // How far that is to the right of the page's left edge.
  int CaretOnPage(Position at) const;
  const Page& ThePage() const;
  // The text as it is painted, or a part of it.
  QImage Painted(const QRect& place = {{0, 0}, QSize(-1, -1)}) const;
  // The smallest rectangle around all points of the wanted colours.
  static QRect AreaOf(const QImage& image, const std::function<bool(const QColor&)>& wanted);
};

}  // namespace quill::test
