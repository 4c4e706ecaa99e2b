#include <gtest/gtest.h>

#include <QApplication>

#include "window/appearance.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  quill::SetLook(application);
  return RUN_ALL_TESTS();
}
