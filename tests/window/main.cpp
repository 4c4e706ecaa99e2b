#include <gtest/gtest.h>

#include "window/application.h"
#include "window/shared/appearance.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  quill::Application application(argc, argv);
  quill::SetLook(application);
  return RUN_ALL_TESTS();
}
