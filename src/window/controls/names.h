// What assistive technology calls the controls, and the order in which Tab visits them.
#pragma once

#include <QString>
#include <span>
#include <string_view>

#include "workbench/catalogue.h"

namespace quill {

// The caption where the control has one, else words that say what it holds.
QString SpokenName(const CatalogueRow& row);

// What the control is for: its tool tip, or else a sentence. Panels are described by the note in
// them, if there is one.
QString SpokenDescription(const CatalogueRow& row);

// Names of controls, panel by panel.
std::span<const std::string_view> TabOrder();

}  // namespace quill
