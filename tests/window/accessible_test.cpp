// What assistive technology finds when it walks the window.
#include <QAccessible>
#include <functional>

#include "window/user.h"

namespace quill::test {
namespace {

bool TakesFocus(const QAccessibleInterface& node) { return node.state().focusable != 0; }

using Visit = std::function<void(QAccessibleInterface&)>;

void Walk(QAccessibleInterface* node, const Visit& visit) {
  if (node == nullptr) return;
  visit(*node);
  for (int i = 0; i < node->childCount(); ++i) Walk(node->child(i), visit);
}

TEST_F(WindowTest, NamesWhateverTakesTheFocusToAssistiveTechnology) {
  int seen = 0;
  Walk(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& node) {
    if (!TakesFocus(node) || node.object() == nullptr || node.object() == &window) return;
    ++seen;
    const std::string what = node.object()->objectName().toStdString() + " of " +
                             node.object()->metaObject()->className();
    EXPECT_FALSE(node.text(QAccessible::Name).isEmpty()) << what;
    EXPECT_NE(node.role(), QAccessible::NoRole) << what;
  });
  EXPECT_GT(seen, 40);
}

TEST_F(WindowTest, GivesItsTextToAssistiveTechnology) {
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
