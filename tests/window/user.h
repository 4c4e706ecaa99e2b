// A user of the real window: what hands do with mouse and keyboard, in words of the domain.
#pragma once

#include <gtest/gtest.h>

#include <QTextEdit>
#include <string>

#include "program/program.h"
#include "support/fakes.h"
#include "window/main_window.h"

namespace quill::test {

class WindowTest : public testing::Test {
 protected:
  WindowTest();

  // Opens a rich text of that body, with a working copy of the proposed name, and closes the panel
  // over the text.
  void OpenText(const std::string& body);

  QWidget& Widget(const char* name) const;
  void Press(const char* name);  // with the mouse, in its middle
  void Choose(const char* menuItem);
  void PickRow(const char* combo, int row);  // from the list that drops down
  void ClickRow(const char* list, int row);
  void Keys(const char* text);  // to whatever has the focus
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  void DragOver(Position begin, Position end);  // in the text, with the mouse

  QTextEdit& View() const;
  std::string FocusName() const;

  MemoryDisk disk;
  ScriptedDialogs dialogs;
  Program program{dialogs, disk};
  Form1& form = program.Form();
  MainWindow window{program};
};

}  // namespace quill::test
