// A test of the real window: a program with a disk in memory and scripted dialogs, its window, and
// the hands of a user on it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "hands/hands.h"
#include "program/program.h"
#include "support/fakes.h"
#include "window/main_window.h"

namespace quill::test {

struct ShownProgram {
  MemoryDisk disk;
  ScriptedDialogs dialogs;
  Program program{dialogs, disk};
  Form1& form = program.Form();
  MainWindow window{program};
};

// An action that no user could do fails the test.
class WindowTest : public testing::Test, protected ShownProgram, protected Hands {
 protected:
  WindowTest();

  // Opens a rich text of that body, with a working copy of the proposed name, and closes the panel
  // over the text.
  void OpenText(const std::string& body);
};

}  // namespace quill::test
