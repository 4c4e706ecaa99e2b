#include "random_hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QMenu>

#include "line_hands.h"
#include "shown_window.h"

namespace quill::test {
namespace {

// Separated by blanks.
constexpr const char* kKeys =
    "Left Right Up Down Home End PgUp PgDown Ctrl+Left Ctrl+Right Ctrl+Up Ctrl+Down Ctrl+Home "
    "Ctrl+End Shift+Left Shift+Right Shift+Up Shift+Down Shift+End Shift+PgDown Ctrl+Shift+Left "
    "Ctrl+Shift+Right Ctrl+A Ctrl+C Ctrl+X Ctrl+V Ctrl+Z Ctrl+Y Ctrl+Shift+Z Ctrl+S Ctrl+Insert "
    "Shift+Insert Shift+Del Del Backspace Ctrl+Del Ctrl+Backspace Return Enter Shift+Return Tab "
    "Shift+Tab Ctrl+Tab Esc Space Ctrl+Space Shift+Space F1 F2 F4 F6 F10 Alt Alt+F Alt+P Alt+S "
    "Alt+I Alt+Down Alt+Left Menu Ctrl++ Ctrl+- Ctrl+0 Meta+A A T Ctrl+B Ctrl+D Ctrl+H Ctrl+K "
    "Ctrl+U Ctrl+W";
constexpr const char* kPopupKeys = "Down Up Down Return Return Esc Home End A Right Tab Space";
// Percent-encoded: letters of one to four bytes, what the toolkit takes as paragraph ends, the
// character for a picture, and nothing.
constexpr const char* kTexts =
    "a then 12 %20 %C3%A9 %E6%97%A5%E6%9C%AC %F0%9F%98%80 e%CC%81 %5C %7C%3C -3 %D7%90%D7%96 "
    "x%0Ay x%0D%0Ay %09 %EF%BB%BF %C2%A0 %E2%80%A8 %E2%80%A9 %EF%BF%BC %EF%B7%90 24 ";
constexpr const char* kLetters = "a t 1 2 - %20 %C3%A9 %E6%97%A5 %F0%9F%98%80 %3C %CC%81 B";

std::string OneWord(Dice& dice, const char* words) {
  return dice.OneOf(QString::fromLatin1(words).split(QLatin1Char(' '))).toStdString();
}

}  // namespace

std::string RandomHands::Line() {
  if (QApplication::activePopupWidget() != nullptr) return LineInPopup();
  const int kind = dice_.Below(100);
  if (kind < 40) return Click();
  if (kind < 58) return InText();
  if (kind < 72) return "key " + OneWord(dice_, kKeys);
  if (kind < 82) return "letter " + OneWord(dice_, kLetters);
  if (kind < 90) return Menu();
  return Rare();
}

std::string RandomHands::LineInPopup() {
  const QWidget* const popup = QApplication::activePopupWidget();
  if (dice_.Percent(5)) return "popup away";
  if (dice_.Percent(30)) return "popup key " + OneWord(dice_, kPopupKeys);
  const auto* const rows = popup->findChild<QAbstractItemView*>();
  const auto* const menu = qobject_cast<const QMenu*>(popup);
  const int count = menu != nullptr   ? static_cast<int>(menu->actions().size())
                    : rows != nullptr ? rows->model()->rowCount()
                                      : 1;
  return "popup row " + std::to_string(dice_.Below(std::max(count, 1)));
}

const QWidget& RandomHands::WidgetFor(const Control& control) const {
  return WidgetOf(window_, control);
}

// Mostly one in reach, and often a list: most actions on a list must change nothing.
const Control& RandomHands::SomeControl() {
  const ListBox* const lists[] = {&form_.TagList, &form_.Parse_listbox};
  if (const ListBox* const list = dice_.OneOf(lists); list->IsInReach() && dice_.Percent(15)) {
    return *list;
  }
  const bool anywhere = dice_.Percent(4);
  for (;;) {
    const Control& control = *dice_.OneOf(form_.Controls());
    if (control.Kind() == Kind::kMenuItem || control.Kind() == Kind::kFileDialog) continue;
    if (!WidgetFor(control).isVisible()) continue;
    const bool acts = control.Kind() != Kind::kFrame && control.Kind() != Kind::kLabel;
    if (anywhere || (acts && control.IsInReach())) return control;
  }
}

std::string RandomHands::Place(const QWidget& widget) {
  return widget.objectName().toStdString() + ' ' + std::to_string(dice_.Below(widget.width())) +
         ' ' + std::to_string(dice_.Below(widget.height()));
}

std::string RandomHands::Click() {
  const Control& control = SomeControl();
  const bool plain = dice_.Percent(75);
  if (!plain && dice_.Percent(15)) return "context " + PlaceOf(control);
  const std::string verb = plain ? "click" : OneWord(dice_, "click click double triple");
  const std::string button = plain ? "left" : OneWord(dice_, "left left right right middle");
  const std::string modifiers = plain ? "-" : OneWord(dice_, "- - - ctrl shift alt ctrl+shift");
  return verb + ' ' + button + ' ' + modifiers + ' ' + PlaceOf(control);
}

// Selects by mouse, most often a word.
std::string RandomHands::InText() {
  const QWidget& view = WidgetFor(form_.RichTextBox1);
  // Where the lines of a short text are.
  const std::string place = "RichTextBox1 " + std::to_string(dice_.Below(view.width())) + ' ' +
                            std::to_string(dice_.Below(std::min(view.height(), 140)));
  const std::string modifiers = OneWord(dice_, "- - - - - - ctrl shift");
  if (dice_.Percent(50)) return "double left " + modifiers + ' ' + place;
  if (dice_.Percent(50)) return "click left " + modifiers + ' ' + place;
  if (dice_.Percent(20)) return "context " + place;
  return "drag left " + modifiers + ' ' + place + ' ' + std::to_string(dice_.Below(view.width())) +
         ' ' + std::to_string(dice_.Below(140));
}

std::string RandomHands::Menu() {
  const bool opened = !(form_.WorkState.TextBaseFile == U"");
  if (!opened || dice_.Percent(5)) return "menu mnuFileOpen";
  for (;;) {
    const Control& control = *dice_.OneOf(form_.Controls());
    const auto* const item = dynamic_cast<const MenuItem*>(&control);
    if (item == nullptr || item->Click == nullptr || !item->IsInReach()) continue;
    if (&form_.ContainerOf(*item) == &form_) continue;  // opened by its items
    if (item == &form_.mnuFileClose && !dice_.Percent(3)) continue;
    if (item == &form_.mnuFileOpen && !dice_.Percent(20)) continue;
    return "menu " + std::string(item->Name());
  }
}

std::string RandomHands::Rare() {
  switch (dice_.Below(9)) {
    case 0:
      return Drop();
    case 1:
      return "resize " + std::to_string(300 + dice_.Below(1100)) + ' ' +
             std::to_string(200 + dice_.Below(900));
    case 2:
      return "away";
    case 3:
      return dice_.Below(40) == 0 ? "close" : "away";
    case 4:
      return (dice_.Percent(70) ? "clipboard plain " : "clipboard html ") + OneWord(dice_, kTexts);
    case 5:
      return "compose " + OneWord(dice_, kTexts) + ' ' + OneWord(dice_, kTexts);
    case 6:
      return std::string(dice_.Percent(30) ? "wheel ctrl " : "wheel - ") + PlaceOf(SomeControl()) +
             (dice_.Percent(50) ? " 120" : " -120");
    case 7:
      return "drag left - " + Place(WidgetFor(SomeControl())) + ' ' +
             std::to_string(dice_.Below(400)) + ' ' + std::to_string(dice_.Below(200));
    default:
      return dice_.Percent(50) ? "key Tab" : "key Return";
  }
}

std::string RandomHands::Drop() {
  if (dice_.Percent(30)) {
    return "drop file " + PlaceOf(SomeControl()) + ' ' + LineHands::Encoded(FileName(true));
  }
  const Control& to = dice_.Percent(60) ? form_.RichTextBox1 : SomeControl();
  return (dice_.Percent(50) ? "drop plain " : "drop html ") + PlaceOf(to) + ' ' +
         OneWord(dice_, kTexts);
}

QString RandomHands::FileName(bool toOpen) {
  const QStringList texts = {QStringLiteral("*.rtf"), QStringLiteral("*.tbf"),
                             QStringLiteral("*.TBF")};
  QStringList names =
      QDir::current().entryList(toOpen ? texts : texts.mid(1), QDir::Files, QDir::Name);
  names += toOpen ? QStringList{QStringLiteral("missing.rtf")}
                  : QStringList{QStringLiteral("a.tbf"), QStringLiteral("b.tbf"),
                                QStringLiteral("new"), QStringLiteral("x.TBF")};
  return dice_.OneOf(names);
}

}  // namespace quill::test
