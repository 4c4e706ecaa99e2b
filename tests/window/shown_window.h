// Reads every widget of a window back and compares it with the model.
#pragma once

#include <QMainWindow>

#include "workbench/form1.h"

namespace quill::test {

// Fails once for each control whose widget shows anything else than the model holds, or that
// paints nothing where it has something to show.
void ExpectShown(QMainWindow& window, const Form1& form);

}  // namespace quill::test
