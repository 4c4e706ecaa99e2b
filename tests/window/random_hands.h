// Chooses at random what a user might do next on the window, as lines for hands: mostly what
// advances the work, but also everything else that can be done with mouse, keyboard and clipboard.
#pragma once

#include <QMainWindow>
#include <string>
#include <string_view>
#include <vector>

#include "support/random_user.h"

namespace quill::test {

class RandomHands {
 public:
  RandomHands(Dice& dice, QMainWindow& window, const Form1& form)
      : dice_(dice), window_(window), form_(form) {}

  std::string Line();
  // A name to give to a file dialog, mostly of a file of the current folder.
  QString FileName(bool toOpen);

 private:
  std::string LineInPopup();
  std::string Click();
  std::string InText();
  std::string Menu();
  std::string Rare();
  std::string Drop();
  std::string Place(const QWidget& widget);
  std::string PlaceOf(const Control& control) { return Place(WidgetFor(control)); }
  const QWidget& WidgetFor(const Control& control) const;
  const Control& SomeControl();

  Dice& dice_;
  QMainWindow& window_;
  const Form1& form_;
};

}  // namespace quill::test
