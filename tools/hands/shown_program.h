// A program with its window, on a given disk and given dialogs.
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
