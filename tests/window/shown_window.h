// Reads every widget of a window back and compares it with the model.
#pragma once

#include <QMainWindow>
#include <string>

#include "workbench/form1.h"

namespace quill::test {

// One line for every difference between what a widget shows and what the model holds; empty if
// there is none. The focus is compared only while the keyboard is in this window.
std::string Differences(QMainWindow& window, const Form1& form);

// Fails if there are differences, and for each control whose widget paints nothing although it has
// something to show.
void ExpectShown(QMainWindow& window, const Form1& form);

// The widget of a control.
QWidget& WidgetOf(const QMainWindow& window, const Control& control);
// The control whose widget is, or contains, this one; nullptr for none.
const Control* ControlOf(const Form1& form, const QWidget* widget);

}  // namespace quill::test
