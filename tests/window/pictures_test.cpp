// Pictures in the text, checked by what is painted.
#include <QBuffer>
#include <QTextBlock>
#include <QTextLayout>
#include <QtTest>

#include "shown_window.h"
#include "text/marks.h"
#include "user.h"

namespace quill::test {
namespace {

constexpr QRgb kGreen = qRgb(0, 160, 0);

std::string GreenData(const char* format) {
  QImage image(20, 10, QImage::Format_RGB32);
  image.fill(kGreen);
  QByteArray data;
  QBuffer buffer(&data);
  image.save(&buffer, format, 100);
  return data.toHex().toStdString();
}

class PicturesTest : public WindowTest {
 protected:
  QRect Area(QRgb colour) {
    return AreaOf(Painted(), [&](const QColor& found) {
      return std::abs(found.red() - qRed(colour)) < 8 &&
             std::abs(found.green() - qGreen(colour)) < 8;
    });
  }
};

TEST_F(PicturesTest, AreDrawnAtTheSizeThatTheFileStates) {
  const struct {
    const char* words;
    std::string data;
    QSize size;
  } kCases[] = {
      {R"(\pngblip\picw20\pich10\picwgoal1500\pichgoal750 )", GreenData("PNG"), {100, 50}},
      {R"(\jpegblip\picwgoal3000\pichgoal1500\picscalex50\picscaley50 )",
       GreenData("JPG"),
       {100, 50}},
      {R"(\pngblip\picw40\pich40 )", GreenData("PNG"), {40, 40}},
  };
  for (const auto& test : kCases) {
    OpenText("one {\\pict" + std::string(test.words) + test.data + "} two");
    EXPECT_EQ(form.RichTextBox1.Text(), U"one \uFFFC two");
    const QRect area = Area(kGreen);
    EXPECT_NEAR(area.width(), test.size.width(), 1) << test.words;
    EXPECT_NEAR(area.height(), test.size.height(), 1) << test.words;
    ExpectShown(window, form);
  }
}

TEST_F(PicturesTest, StayDrawnWhereTheTextIsMarkedAndEdited) {
  OpenText("one {\\pict\\pngblip\\picwgoal1500\\pichgoal750 " + GreenData("PNG") + "} two");
  DragOver(0, 9);
  Press("DefAMarker");
  EXPECT_EQ(form.RichTextBox1.Doc().At(4).colour, kMarkedA);
  EXPECT_NEAR(Area(kGreen).width(), 100, 1);
  Press("RichTextBox1");
  Key(Qt::Key_Home, Qt::ControlModifier);
  Keys("In ");
  EXPECT_NEAR(Area(kGreen).width(), 100, 1);
  Key(Qt::Key_End);
  for (int i = 0; i < 5; ++i) Key(Qt::Key_Backspace);
  EXPECT_EQ(form.RichTextBox1.Text(), U"In one ");
  EXPECT_TRUE(Area(kGreen).isEmpty());
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NEAR(Area(kGreen).width(), 100, 1);
  ExpectShown(window, form);
}

TEST_F(PicturesTest, NeverGoBeyondTheLine) {
  OpenText("\\li600{\\pict\\pngblip\\picwgoal30000\\pichgoal3000 " + GreenData("PNG") + "}");
  const QRect area = Area(kGreen);
  EXPECT_GT(area.width(), ThePage().width - 80);
  EXPECT_LE(area.right(), ThePage().left + ThePage().width);
  EXPECT_NEAR(area.width() / static_cast<double>(area.height()), 10, 0.3);
}

TEST_F(PicturesTest, ThatNobodyCanDrawAreFrames) {
  const struct {
    const char* picture;
    QSize size;
  } kCases[] = {
      {R"({\pict\wmetafile8\picwgoal1500\pichgoal750 0100})", {100, 50}},
      {R"({\pict\pngblip\picwgoal1500\pichgoal750 89504e470d0a1a0a00})", {100, 50}},
      {R"({\pict\pngblip\picwgoal1500\pichgoal750 3c7376673e})", {100, 50}},
      {R"({\object\objw1500\objh750{\*\objdata 01}})", {100, 50}},
      {R"({\pict\pngblip\picw0\pich0\picwgoal0 89})", {16, 16}},
      {R"(\u-4?)", {16, 16}},
  };
  for (const auto& test : kCases) {
    OpenText(test.picture);
    const QRect area = Area(qRgb(0xa0, 0xa0, 0xa0));
    EXPECT_NEAR(area.width(), test.size.width(), 1) << test.picture;
    EXPECT_NEAR(area.height(), test.size.height(), 1) << test.picture;
    ExpectShown(window, form);
  }
}

}  // namespace
}  // namespace quill::test
