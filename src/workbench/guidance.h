// The guidance texts of User_Dialogue. Their runs of blanks show as empty lines at the box's stored
// size.
#pragma once

#include <string>

namespace quill {

std::u32string ProcessGuidance();
std::u32string PreProcessModeText();
std::u32string PostProcessModeText();
std::u32string PreProcessIntro();

}  // namespace quill
