// The menu bar.
#pragma once

#include <memory>
#include <vector>

#include "window/shared/actions.h"
#include "window/shared/binder.h"

class QMenuBar;

namespace quill {

class Form1;

// Fills the bar with the form's menus and returns a binder for each item, in the order of `items`.
// Items without a caption, which only add space between titles, are left out.
std::vector<std::pair<MenuItem*, std::unique_ptr<Binder>>> FillMenuBar(QMenuBar& bar, Form1& form,
                                                                       Actions& actions);

}  // namespace quill
