// The order in which Tab visits the controls.
#pragma once

#include <span>
#include <string_view>

namespace quill {

// Names of controls, panel by panel.
std::span<const std::string_view> TabOrder();

}  // namespace quill
