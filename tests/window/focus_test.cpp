// Focus: only a user's move raises GotFocus.
#include <QApplication>
#include <QLineEdit>
#include <QtTest>
#include <functional>
#include <vector>

#include "shown_window.h"
#include "user.h"

namespace quill::test {
namespace {

class FocusTest : public WindowTest {
 protected:
  FocusTest() { OpenText("He came yesterday.\\par"); }
};

TEST_F(FocusTest, AUserGoesInWithTheMouseOrATab) {
  Press("Text2");
  EXPECT_EQ(form.Text2.Text.Get(), U" ");
  Keys("a day");
  EXPECT_EQ(form.Text2.Text.Get(), U" a day");
  Press("Text2");
  EXPECT_EQ(form.Text2.Text.Get(), U" a day") << "it had the focus";
  Key(Qt::Key_Tab);
  EXPECT_EQ(FocusName(), "add_to_dictionary");
  EXPECT_EQ(form.add_to_dictionary.Text.Get(), U" ");
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(FocusName(), "Text2");
  EXPECT_EQ(form.Text2.Text.Get(), U" ");
  ExpectShown(window, form);
}

TEST_F(WindowTest, BeginsInTheBoxForTheUserAndTellsNobody) {
  EXPECT_EQ(FocusName(), "UserID1");
  EXPECT_EQ(form.Focus(), nullptr);
  Keys("reader A");
  EXPECT_EQ(form.UserID1.Text.Get(), U"reader A");
  EXPECT_EQ(form.Focus(), &form.UserID1);
  Key(Qt::Key_Tab);
  EXPECT_EQ(form.Focus(), &form.SessionID);
}

TEST_F(FocusTest, FocusThatMovesByItselfRaisesNothing) {
  // The button disables itself, and the next controls in the toolkit's order are boxes.
  DragOver(0, 2);
  Press("DefAMarker");
  ASSERT_FALSE(Widget("DefAMarker").isEnabled());
  EXPECT_EQ(form.Text2.Text.Get(), U"Definition?");
  EXPECT_EQ(form.add_to_dictionary.Text.Get(), U"Lemma ?");

  Press("Text2");
  form.Text2.Text = U"kept";
  QApplication::setActiveWindow(nullptr);
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  Choose("mnuDialogue_off");
  EXPECT_EQ(form.Text2.Text.Get(), U"kept");
}

TEST_F(FocusTest, NothingButAUsersMoveWipesABox) {
  struct Happening {
    const char* what;
    std::function<void(const char* box)> happens;
  };
  const std::vector<Happening> happenings = {
      {"a second click", [&](const char* box) { Press(box); }},
      {"the right button",
       [&](const char* box) { QTest::mousePress(&Widget(box), Qt::RightButton); }},
      {"a click on a disabled button",
       [&](const char*) { QTest::mouseClick(&Widget("AMarkSet"), Qt::LeftButton); }},
      {"hidden and shown",
       [&](const char*) {
         window.hide();
         window.show();
         window.activateWindow();
         EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
       }},
      {"a menu opened and closed",
       [&](const char*) {
         Key(Qt::Key_F, Qt::AltModifier);
         QWidget* const menu = QApplication::activePopupWidget();
         ASSERT_NE(menu, nullptr);
         QTest::keyClick(menu, Qt::Key_Escape);
       }},
  };
  for (const char* const name : {"add_to_dictionary", "Text2"}) {
    auto& box = dynamic_cast<TextBox&>(*form.Find(name));
    for (const auto& [what, happens] : happenings) {
      QApplication::setActiveWindow(&window);
      Press(name);
      box.Text = U"kept";
      Choose(form.mnuDialogue_off.Enabled ? "mnuDialogue_off" : "mnuDialogue_on");
      happens(name);
      EXPECT_EQ(box.Text.Get(), U"kept") << what << " in " << name;
    }
  }
}

TEST_F(FocusTest, AHiddenControlLeavesTheFocusToNobody) {
  Choose("mnuUserID");
  Press("CloseIDFrame");
  EXPECT_FALSE(form.IDFrame.Visible);
  EXPECT_EQ(FocusName(), "") << "keys would do harm in a box that nobody chose";
}

TEST_F(FocusTest, TabFollowsThePanels) {
  const auto expectRound = [&](const char* names) {
    const QStringList stops = QString::fromLatin1(names).split(QLatin1Char(' '));
    ClickAt(0);
    for (const QString& stop : stops) {
      Key(Qt::Key_Tab);
      EXPECT_EQ(FocusName(), stop.toStdString());
    }
    Key(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "RichTextBox1") << "round";
    for (auto stop = stops.rbegin(); stop != stops.rend(); ++stop) {
      Key(Qt::Key_Backtab, Qt::ShiftModifier);
      EXPECT_EQ(FocusName(), stop->toStdString()) << "back";
    }
  };
  for (CommandButton* button : {&form.AMarkSet, &form.BMarkSet, &form.A_type_add, &form.B_type_add,
                                &form.Add_to_spec_dict}) {
    button->Enabled = true;
  }
  expectRound(
      "DefAMarker AMarkReject AMarkedString AMarkSet DefBMarker BMarkReject BMarkedString "
      "BMarkSet A_type_add B_type_add Add_to_spec_dict Text2 add_to_dictionary "
      "Add_global_parsing_list Add_specific_parsing_list Parse_cull Deselect_Parse_Cull "
      "Clear_list Parse_listbox Parse_1 Parse_2 Parse_3");
  Choose("mnuPostProcess");
  Choose("mnuDialogue_off");
  Choose("mnuDialogue_on");
  form.RefFrame.Visible = true;
  for (Control* control : std::initializer_list<Control*>{
           &form.ClassCombo, &form.OperatorCombo, &form.ModeCombo, &form.TypeCombo, &form.GranCombo,
           &form.ValBox, &form.RefTag, &form.Generate_Tag}) {
    control->Enabled = true;
  }
  Choose("mnuUserID");
  expectRound(
      "User_Dialogue FindAMarker FindBMarker Restart_PP marked_term ClassCombo OperatorCombo "
      "ModeCombo TypeCombo GranCombo ValBox RefTag Generate_Tag ID StartPosition EndPosition "
      "RefBox RefTagStart RefTagStop TagChecker TaggedString TagList UserID1 SessionID "
      "CloseIDFrame");
}

TEST_F(FocusTest, TabStopsAtNothingThatIsCovered) {
  Choose("mnuPostProcess");
  OpenText("Once more.\\par");
  ASSERT_TRUE(form.PreFrame.Visible);
  std::vector<std::string> stops;
  for (int i = 0; i < 60; ++i) {
    Key(Qt::Key_Tab);
    stops.push_back(FocusName());
  }
  EXPECT_TRUE(std::count(stops.begin(), stops.end(), "TagList") > 0);
  for (const char* covered : {"DefAMarker", "Parse_1", "ClassCombo", "UserID1"}) {
    EXPECT_EQ(std::count(stops.begin(), stops.end(), covered), 0) << covered;
  }
}

TEST_F(FocusTest, BoxesForwardTheirEdits) {
  DragOver(8, 17);
  Press("DefAMarker");
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete);
  Keys("Y");
  EXPECT_EQ(form.AMarkedString.Text.Get(), U"Yesterday");
  // A no-break space that the model holds outlives an edit beside it.
  form.AMarkedString.Text = U"10\u00A0h\u2028";
  Press("AMarkedString");
  Choose("mnuDialogue_off");
  Key(Qt::Key_End, Qt::ControlModifier);
  Keys("x");
  EXPECT_EQ(form.AMarkedString.Text.Get(), U"10\u00A0h\u2028x");
  ExpectShown(window, form);
}

TEST_F(FocusTest, ComboBoxesTakeTypingAndPickNothingOnEnter) {
  Choose("mnuPostProcess");
  form.ClassCombo.Enabled = true;
  Choose("mnuDialogue_off");
  Press("ClassCombo");
  auto& line = *Widget("ClassCombo").findChild<QLineEdit*>();
  QTest::mouseClick(&line, Qt::LeftButton);
  line.selectAll();
  Keys("grammatic");
  Key(Qt::Key_Return);
  EXPECT_EQ(form.ClassCombo.Text.Get(), U"grammatic");
  EXPECT_FALSE(form.OperatorCombo.Enabled) << "only a pick runs the rules";
  ExpectShown(window, form);
}

}  // namespace
}  // namespace quill::test
