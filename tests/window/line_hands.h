// A user's hands that do what a line says, so that actions can be repeated.
//
// A line is a verb and its words, separated by blanks; texts are percent-encoded UTF-8. A place is
// the name of a control and a point in its widget; the action applies to whatever is on top there.
//
//     click|double|triple BUTTON MODIFIERS PLACE
//     drag BUTTON MODIFIERS PLACE X Y             from the place to another point
//     context PLACE                               a right click that opens a context menu
//     wheel MODIFIERS PLACE DELTA
//     key KEYS                                    as "Ctrl+Shift+Left"
//     letter TEXT                                 one key that types a text
//     compose PREEDIT COMMIT                      by an input method
//     clipboard plain|html TEXT
//     drop plain|html|file PLACE TEXT             a file is named from the current folder
//     menu ITEM
//     popup row N | popup key KEYS | popup away   in the menu or list that is open
//     resize WIDTH HEIGHT
//     away                                        to another window, and back
//     close
#pragma once

#include <QStringList>

#include "hands/hands.h"

namespace quill::test {

class LineHands : private Hands {
 public:
  explicit LineHands(QMainWindow& window) : Hands(window), window_(window) {}

  void Do(const std::string& line);

  // The topmost widget at the place that the line names, and the point in it; no widget if the line
  // names none or the place is out of sight.
  struct Target {
    QWidget* widget = nullptr;
    QPoint point;
  };
  Target TargetOf(const std::string& line) const;

  static std::string Encoded(const QString& text);
  static QString Decoded(const QString& word);

 private:
  Target At(const QStringList& words, qsizetype control) const;
  void Mouse(const QStringList& words);
  void OpenContextMenu(const Target& target);
  void Wheel(const QStringList& words);
  static void Letter(const QString& text);
  static void Compose(const QString& preedit, const QString& commit);
  void Drop(const QStringList& words);
  void ChooseItem(const char* item);
  static void UsePopup(const QStringList& words);
  void GoAway();

  QMainWindow& window_;
};

}  // namespace quill::test
