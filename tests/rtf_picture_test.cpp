// The size and data of pictures, both as word processors write them and malformed.
#include "rtf/picture.h"

#include <gtest/gtest.h>

namespace quill::rtf {
namespace {

TEST(Picture, Size) {
  const struct {
    const char* group;
    Twips width;
    Twips height;
  } kCases[] = {
      {R"({\pict\pngblip\picw40\pich30\picwgoal1200\pichgoal900 89})", 1200, 900},
      {R"({\pict\picscalex50\picscaley200\picwgoal1200\pichgoal900\pngblip 89})", 600, 1800},
      {R"({\pict\jpegblip\picw40\pich30 ff})", 600, 450},
      // Hundredths of a millimetre.
      {R"({\pict\wmetafile8\picw2540\pich1270 01})", 1440, 720},
      {R"({\pict{\*\picprop{\sp{\sn a}{\sv 1}}}\picwgoal300\pichgoal200{\*\blipuid 0f}\pngblip 89})",
       300, 200},
      {R"({\*\shppict{\pict\picwgoal15\pichgoal30\pngblip 89}}{\nonshppict{\pict\picwgoal9 01}})",
       15, 30},
      {R"({\object\objemb\objw500\objh400{\*\objdata 0102}{\result text}})", 500, 400},
      {R"({\object\objw500{\result{\pict\wmetafile8\picwgoal70\pichgoal80 01}}})", 70, 80},
      {R"({\pict\picwgoal100\pichgoal200\pngblip\bin4 }}}})", 100, 200},
      {R"({\pict\picwgoal-5\pichgoal99999999\picscaley32767 89})", 0, 31680},
      {R"({\pict\picwgoal10})", 10, 0},
      {R"({\pict)", 0, 0},
      {"", 0, 0},
      {"\xEF\xBF\xBC", 0, 0},
  };
  for (const auto& test : kCases) {
    const PictureSize size = SizeOfPicture(test.group);
    EXPECT_EQ(size.width, test.width) << test.group;
    EXPECT_EQ(size.height, test.height) << test.group;
  }
}

TEST(Picture, Data) {
  const struct {
    const char* group;
    const char* data;
  } kCases[] = {
      {"{\\pict\\pngblip 89504E\r\n47 0d}", "\x89PNG\r"},
      {"{\\pict\\picw1\\jpegblip\\bin3 a}b}", "a}b"},
      {R"({\pict\pngblip{\*\blipuid 0f0f}4142})", "AB"},
      {R"({\nonshppict{\pict\wmetafile8 01}}{\*\shppict{\pict\pngblip 41}})", "A"},
      {R"({\object{\*\objdata 4343}{\result{\pict\emfblip 44}{\pict\pngblip 41}}})", "A"},
      {R"({\pict\pngblip 4x1g4)", "A"},
      {R"({\pict\wmetafile8 41})", ""},
      {R"({\pict\pngblip})", ""},
  };
  for (const auto& test : kCases) EXPECT_EQ(PictureData(test.group), test.data) << test.group;
}

TEST(Picture, Kind) {
  const struct {
    const char* group;
    const char* kind;
  } kCases[] = {
      {R"({\pict\wmetafile8\picw40 01})", "WMF"},
      {R"({\object{\result{\pict\emfblip 44}}})", "EMF"},
      {R"({\pict\macpict 01})", "PICT"},
      {R"({\pict\dibitmap0 01})", "BMP"},
      {R"({\pict\pngblip 01}{\pict\wmetafile8 01})", ""},
      {R"({\object{\*\objdata 0102}})", ""},
  };
  for (const auto& test : kCases) EXPECT_EQ(KindOfPicture(test.group), test.kind) << test.group;
}

}  // namespace
}  // namespace quill::rtf
