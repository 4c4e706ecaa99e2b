// Pictures and objects, which in the text are one character each, read from the bytes of that
// character when they are asked for.
#pragma once

#include <string>
#include <string_view>

#include "text/format.h"

namespace quill::rtf {

struct PictureSize {
  Twips width = 0;  // as the text shows it; 0 where the file does not tell
  Twips height = 0;
};

// The size of the picture or object whose group these bytes are. Reads no further than to where
// the first picture's own data begins.
PictureSize SizeOfPicture(std::string_view group);

// The data of the first picture in the group that the file says is PNG or JPEG; empty where there
// is none. What is no hexadecimal digit there is passed over.
std::string PictureData(std::string_view group);

}  // namespace quill::rtf
