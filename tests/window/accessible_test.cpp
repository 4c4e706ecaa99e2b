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

}  // namespace
}  // namespace quill::test
