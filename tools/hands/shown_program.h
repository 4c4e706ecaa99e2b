// A program with its window, on a disk and dialogs of one's choice.
#pragma once

#include "program/program.h"
#include "window/main_window.h"

namespace quill {

template <class ItsDisk, class ItsDialogs>
struct ShownProgram {
  ItsDisk disk;
  ItsDialogs dialogs;
  Program program{dialogs, disk};
  Form1& form = program.Form();
  MainWindow window{program};
};

}  // namespace quill
