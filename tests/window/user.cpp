#include "user.h"

#include <QtTest>

namespace quill::test {

WindowTest::WindowTest() : Hands(window) {
  window.resize(window.sizeHint());
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

void WindowTest::OpenText(const std::string& body) {
  disk.files["x.rtf"] =
      R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0 Times New Roman;}}\f0 )" + body + "}";
  if (form.IDFrame.Visible) Press("CloseIDFrame");
  dialogs.answers = {std::u32string(U"x.rtf"), ScriptedDialogs::Proposed{}};
  Choose("mnuFileOpen");
}

}  // namespace quill::test
