// The texts that guide the user in User_Dialogue. The runs of blanks make empty lines in the box at
// its stored size.
#pragma once

#include <string>

namespace quill {

std::u32string ProcessGuidance();
std::u32string PreProcessModeText();
std::u32string PostProcessModeText();
std::u32string PreProcessIntro();

}  // namespace quill
