// What assistive technology finds when it walks the window.
#include <QAccessible>
#include <functional>
#include <map>

#include "window/shared/shown.h"
#include "window/user.h"

namespace quill::test {
namespace {

using Visit = std::function<void(QAccessibleInterface&)>;

void Walk(QAccessibleInterface* node, const Visit& visit) {
  if (node == nullptr || node->state().invisible) return;
  visit(*node);
  for (int i = 0; i < node->childCount(); ++i) Walk(node->child(i), visit);
}

class AccessibleTest : public WindowTest {
 protected:
  // The controls that are announced, by name.
  std::map<std::string, QAccessibleInterface*> Announced() {
    std::map<std::string, QAccessibleInterface*> found;
    Walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& node) {
      if (node.object() == nullptr) return;
      const std::string name = node.object()->objectName().toStdString();
      if (form.Find(name) != nullptr) found[name] = &node;
    });
    return found;
  }

  void ExpectSpeaks() {
    for (const auto& [name, node] : Announced()) {
      const Control& control = *form.Find(name);
      if (control.Kind() == Kind::kMenuItem) continue;
      ExpectNode(control, *node);
    }
    Walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& node) {
      if (!node.state().focusable || node.object() == nullptr || node.object() == &window) return;
      EXPECT_FALSE(node.text(QAccessible::Name).isEmpty())
          << node.object()->objectName().toStdString() << " of "
          << node.object()->metaObject()->className();
    });
  }

  static QAccessible::Role RoleOf(Kind kind) {
    switch (kind) {
      case Kind::kButton:
        return QAccessible::Button;
      case Kind::kComboBox:
        return QAccessible::ComboBox;
      case Kind::kListBox:
        return QAccessible::List;
      case Kind::kFrame:
        return QAccessible::Grouping;
      case Kind::kLabel:
        return QAccessible::StaticText;
      default:
        return QAccessible::EditableText;
    }
  }

  static void ExpectNode(const Control& control, QAccessibleInterface& node) {
    SCOPED_TRACE(std::string(control.Name()));
    EXPECT_EQ(node.role(), RoleOf(control.Kind()));
    EXPECT_FALSE(node.text(QAccessible::Name).trimmed().isEmpty());
    if (control.Kind() == Kind::kFrame || control.Kind() == Kind::kLabel) return;
    EXPECT_FALSE(node.text(QAccessible::Description).isEmpty());
    EXPECT_NE(node.text(QAccessible::Description), node.text(QAccessible::Name));
    EXPECT_EQ(node.state().disabled != 0, !control.IsInReach());
  }
};

TEST_F(AccessibleTest, AnnouncesEveryControlWithRoleNameAndDescription) {
  const auto expectShows = [&](std::initializer_list<const char*> shown,
                               std::initializer_list<const char*> gone) {
    const auto announced = Announced();
    for (const char* const name : shown) EXPECT_TRUE(announced.contains(name)) << name;
    for (const char* const name : gone) EXPECT_FALSE(announced.contains(name)) << name;
    ExpectSpeaks();
  };
  expectShows({"RichTextBox1", "IDFrame", "UserID1", "Label1"},
              {"User_Dialogue", "Infotext", "DefAMarker", "TagList"});
  OpenText("He came yesterday.\\par");
  expectShows({"RichTextBox1", "DefAMarker", "Parse_listbox", "Add_to_global_dict"},
              {"UserID1", "TagList", "TempList", "operator_category"});
  Choose("mnuDialogue_off");
  Choose("mnuDialogue_on");
  Choose("mnuVLK");
  DragOver(3, 7);
  Press("DefAMarker");
  expectShows({"User_Dialogue", "Infotext", "add_to_dictionary"}, {"TagList"});
  Press("Close_Info");
  Choose("mnuPostProcess");
  expectShows({"TagList", "ClassCombo", "Generate_Tag"}, {"DefAMarker", "RefBox", "Infotext"});
  form.RefFrame.Visible = true;
  Choose("mnuDialogue_off");
  expectShows({"RefFrame", "RefBox", "RefTag"}, {"User_Dialogue"});
}

TEST_F(AccessibleTest, SaysNothingOfAPanelBehindAnother) {
  OpenText("He came yesterday.\\par");
  Choose("mnuPostProcess");
  OpenText("Once more.\\par");
  ASSERT_TRUE(form.PreFrame.Visible && form.PostFrame.Visible);
  const auto announced = Announced();
  EXPECT_TRUE(announced.contains("TagList"));
  for (const char* const covered : {"PreFrame", "DefAMarker", "Frame5", "Parse_1"}) {
    EXPECT_FALSE(announced.contains(covered)) << covered;
  }
}

TEST_F(AccessibleTest, DescribesAPanelByItsNote) {
  EXPECT_EQ(Announced().at("IDFrame")->text(QAccessible::Description),
            ToQt(form.Label1.Row().text));
}

TEST_F(AccessibleTest, ReadsOutTheItemsOfListsAndMenus) {
  const auto texts = [](QAccessibleInterface* from) {
    QStringList found;
    Walk(from, [&](QAccessibleInterface& node) { found += node.text(QAccessible::Name); });
    return found;
  };
  const auto interfaceOf = [&](const char* name) {
    return QAccessible::queryAccessibleInterface(&Widget(name));
  };
  OpenText("He came yesterday.\\par");
  form.TagList.AddItem(U"t_op(1)");
  form.ModeCombo.Enabled = true;
  Choose("mnuPostProcess");
  EXPECT_TRUE(texts(interfaceOf("TagList")).contains("t_op(1)"));
  // The list of a combo box is hidden until it drops down, and yet can be read.
  QAccessibleInterface* const rows = interfaceOf("ModeCombo")->child(0);
  ASSERT_EQ(rows->role(), QAccessible::List);
  ASSERT_EQ(rows->childCount(), 3);
  EXPECT_EQ(rows->child(2)->text(QAccessible::Name), "relative");
  int titles = 0;
  Walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& node) {
    if (node.role() != QAccessible::MenuItem) return;
    ++titles;
    EXPECT_FALSE(node.text(QAccessible::Name).isEmpty());
    EXPECT_FALSE(node.text(QAccessible::Accelerator).isEmpty());
  });
  EXPECT_EQ(titles, 4);
}

TEST_F(AccessibleTest, GivesItsTextToAssistiveTechnology) {
  OpenText("He {\\b came} yesterday.\\par");
  DragOver(3, 7);
  QAccessibleInterface* const node = QAccessible::queryAccessibleInterface(&View());
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->role(), QAccessible::EditableText);
  QAccessibleTextInterface* const text = node->textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(0, 17), QStringLiteral("He came yesterday"));
  int start = 0;
  int end = 0;
  text->selection(0, &start, &end);
  EXPECT_EQ(start, 3);
  EXPECT_EQ(end, 7);
  EXPECT_EQ(text->cursorPosition(), 7);
  EXPECT_TRUE(text->attributes(4, &start, &end).contains(QStringLiteral("font-weight:bold")));
  EXPECT_EQ(start, 3);
  EXPECT_EQ(end, 7);
  EXPECT_FALSE(text->attributes(9, &start, &end).contains(QStringLiteral("font-weight:bold")));
}

}  // namespace
}  // namespace quill::test
