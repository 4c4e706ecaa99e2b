// Reads every widget of a window back and compares it with the model.
#pragma once

#include <QMainWindow>
#include <string>

#include "workbench/form1.h"

namespace quill::test {

// A line for everything that a widget shows otherwise than the model holds; empty where there is
// nothing. The focus is compared while the keyboard is in this window.
std::string Differences(QMainWindow& window, const Form1& form);

// Fails where there are differences, and for each control whose widget paints nothing where it has
// something to show.
void ExpectShown(QMainWindow& window, const Form1& form);

// The widget of a control.
QWidget& WidgetOf(const QMainWindow& window, const Control& control);
// The control that a widget belongs to, as a part of its own widget; nullptr for none.
const Control* ControlOf(const Form1& form, const QWidget* widget);

}  // namespace quill::test
