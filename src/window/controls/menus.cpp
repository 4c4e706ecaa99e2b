#include "window/controls/menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <utility>

#include "window/shared/shown.h"
#include "workbench/form1.h"

namespace quill {
namespace {

class MenuItemBinder final : public Binder {
 public:
  MenuItemBinder(MenuItem& item, QAction& action) : item_(item), action_(action) {
    action.setObjectName(
        QString::fromLatin1(item.Name().data(), static_cast<qsizetype>(item.Name().size())));
    action.setMenuRole(QAction::NoRole);
  }

  // A disabled title puts the items under it out of reach.
  void Show() override { action_.setEnabled(item_.IsInReach()); }

 private:
  MenuItem& item_;
  QAction& action_;
};

}  // namespace

std::vector<std::pair<MenuItem*, std::unique_ptr<Binder>>> FillMenuBar(QMenuBar& bar, Form1& form,
                                                                       Actions& actions) {
  std::vector<std::pair<MenuItem*, std::unique_ptr<Binder>>> binders;
  std::map<const Control*, QMenu*> menus;
  for (Control* const control : form.Controls()) {
    auto* const item = dynamic_cast<MenuItem*>(control);
    if (item == nullptr || item->Row().text.empty()) continue;
    const auto click = [item, &actions] { actions.Click(*item); };
    const Control& container = form.ContainerOf(*item);
    QAction* action = nullptr;
    if (&container == &form) {
      QMenu* const menu = bar.addMenu(ToQt(item->Row().text));
      menus[item] = menu;
      action = menu->menuAction();
      QObject::connect(menu, &QMenu::aboutToShow, menu, click);
    } else {
      action = menus.at(&container)->addAction(ToQt(item->Row().text));
      QObject::connect(action, &QAction::triggered, action, click);
    }
    binders.emplace_back(item, std::make_unique<MenuItemBinder>(*item, *action));
  }
  return binders;
}

}  // namespace quill
