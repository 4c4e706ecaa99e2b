// Pictures and objects. Each is one character of the text; its size and data are read from that
// character's bytes on demand.
#pragma once

#include <string>
#include <string_view>

#include "text/format.h"

namespace quill::rtf {

struct PictureSize {
  Twips width = 0;  // as shown in the text; 0 if the file does not tell
  Twips height = 0;
};

// The size of the picture or object in a group. Stops reading where the first picture's data
// begins.
PictureSize SizeOfPicture(std::string_view group);

// What the first picture in the group is declared to be, if neither PNG nor JPEG: "WMF", "EMF",
// "BMP" or "PICT"; empty for others.
std::string_view KindOfPicture(std::string_view group);

// The data of the first picture in the group that is declared PNG or JPEG; empty if there is none.
// Skips what is not a hexadecimal digit.
std::string PictureData(std::string_view group);

}  // namespace quill::rtf
