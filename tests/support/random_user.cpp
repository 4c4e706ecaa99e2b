#include "support/random_user.h"

#include <algorithm>

#include "text/unicode.h"

namespace quill::test {
namespace {

using Action = RandomUser::Action;

std::string Quoted(std::u32string_view text) {
  std::string quoted = "\"";
  for (const char c : ToUtf8(text)) {
    if (c == '"' || c == '\\') quoted += '\\';
    if (c == '\n') {
      quoted += "\\n";
    } else if (c == '\t') {
      quoted += "\\t";
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

// How often, in percent, an action on the control is accepted once it is drawn.
int ChanceOf(const Control& control) {
  const std::string_view name = control.Name();
  const auto* const item = dynamic_cast<const MenuItem*>(&control);
  if (item == nullptr) return name == "Clear_list" ? 10 : 100;
  if (item->Click == nullptr || name == "mnuFileClose") return 2;
  if (name == "mnuFileOpen") return control.Form().WorkState.TextBaseFile == U"" ? 100 : 20;
  return name == "mnuPostProcess" ? 100 : 30;
}

}  // namespace

std::optional<std::u32string> RandomDialogs::Cancel() {
  cancelled = true;
  Write("cancel");
  return std::nullopt;
}

std::optional<std::u32string> RandomDialogs::ShowOpen(const std::u32string& /*title*/,
                                                      const std::u32string& /*filter*/) {
  if (dice_.Percent(10)) return Cancel();
  std::vector<std::string> names = {"missing.rtf", "x"};
  for (const auto& [name, content] : disk_.files) {
    if (name.ends_with("tbf") || name.ends_with("rtf") || dice_.Percent(5)) names.push_back(name);
  }
  opened = FromUtf8(dice_.OneOf(names));
  Write(Quoted(opened));
  return opened;
}

std::optional<std::u32string> RandomDialogs::ShowSave(const std::u32string& /*title*/,
                                                      const std::u32string& /*filter*/,
                                                      const std::u32string& proposed) {
  constexpr std::u32string_view kNames[] = {U"a.tbf", U"b.tbf", U"other.tbf", U"x.TBF", U"x"};
  if (dice_.Percent(10)) return Cancel();
  if (dice_.Percent(80)) {
    Write("proposed");
    return proposed;
  }
  const std::u32string name(dice_.OneOf(kNames));
  Write(Quoted(name));
  return name;
}

Button RandomDialogs::MsgBox(const MessageBox& box) {
  if (box.title == U"Save failed") ++saveFailures;
  const bool first = dice_.Percent(70);
  Button pressed = Button::kOk;
  if (box.buttons == MessageBox::Buttons::kYesNo) pressed = first ? Button::kYes : Button::kNo;
  if (box.buttons == MessageBox::Buttons::kOkCancel && !first) pressed = Button::kCancel;
  constexpr const char* kAnswers[] = {"ok", "cancel", "yes", "no"};
  Write(kAnswers[static_cast<int>(pressed)]);
  button = pressed;
  return pressed;
}

Control& RandomUser::ChooseControl() {
  Form1& form = program_.Form();
  // Controls that are seldom in reach are taken when they are.
  Control* const seldom[] = {&form.Generate_Tag, &form.RemoveItem, &form.RefTag,
                             &form.Add_to_spec_dict, &form.Add_to_global_dict};
  for (Control* control : seldom) {
    if (control->IsInReach() && dice_.Percent(10)) return *control;
  }
  Control* const editor[] = {&form.ClassCombo, &form.OperatorCombo, &form.ModeCombo,
                             &form.TypeCombo,  &form.GranCombo,     &form.ValBox,
                             &form.TagList};
  if (Control* const one = dice_.OneOf(editor); one->IsInReach() && dice_.Percent(80)) return *one;
  const std::vector<Control*>& controls = form.Controls();
  const bool anywhere = dice_.Percent(5);
  for (;;) {
    Control& control = *dice_.OneOf(controls);
    const bool acts = control.Kind() != Kind::kFrame && control.Kind() != Kind::kLabel &&
                      control.Kind() != Kind::kFileDialog;
    if (acts && (anywhere || control.IsInReach()) && dice_.Percent(ChanceOf(control))) {
      return control;
    }
  }
}

std::u32string RandomUser::SomeText() {
  static constexpr std::u32string_view kTexts[] = {
      U"then", U" ",  U"12", U"é",    U"日本", U"\U0001F600", U"a\\ b", U")",
      U"\n",   U"\t", U"-3", U"then", U"אז",   U"\"",         U"x\ny",  U"0"};
  const std::u32string& text = program_.Form().RichTextBox1.Text();
  if (dice_.Percent(70) || text.empty()) return std::u32string(dice_.OneOf(kTexts));
  const auto at = static_cast<std::size_t>(dice_.Below(static_cast<int>(text.size())));
  std::u32string piece = text.substr(at, static_cast<std::size_t>(dice_.Below(6)));
  // The texts of a scenario hold neither of these.
  std::erase_if(piece, [](char32_t c) { return c == U'\r' || c == U'\0'; });
  return piece;
}

Action RandomUser::ChooseSelection() {
  const TextSurface& text = program_.Form().RichTextBox1;
  Action action{.control = &program_.Form().RichTextBox1, .step = {}};
  action.kind = Action::Kind::kSelect;
  action.number = dice_.Below(static_cast<int>(text.Length()) + 3);
  action.length = dice_.Below(dice_.Percent(5) ? 10000 : 9);
  action.step = "select " + std::to_string(action.number) + ' ' + std::to_string(action.length);
  return action;
}

Action RandomUser::ChooseFor(Control& control) {
  Action action{.control = &control, .step = {}};
  const std::string name(control.Name());
  if (auto* const list = dynamic_cast<ListBox*>(&control)) {
    if (list->ListCount() == 0) return ChooseSelection();
    action.kind = Action::Kind::kClickItem;
    action.number = dice_.Below(list->ListCount());
    action.step = "click " + name + ' ' + std::to_string(action.number);
    return action;
  }
  auto* const combo = dynamic_cast<ComboBox*>(&control);
  if (combo != nullptr && combo->ListCount() > 0 && dice_.Percent(90)) {
    action.kind = Action::Kind::kPick;
    action.number = dice_.Below(combo->ListCount());
    action.step = "pick " + name + ' ' + std::to_string(action.number);
    return action;
  }
  if (control.Kind() == Kind::kButton || control.Kind() == Kind::kMenuItem) {
    action.step = "click " + name;
    return action;
  }
  action.text = SomeText();
  const bool enters = control.Kind() != Kind::kRichText && dice_.Percent(60);
  action.kind = enters ? Action::Kind::kEnter : Action::Kind::kType;
  action.step = (enters ? "enter " : "type ") + name + ' ' + Quoted(action.text);
  return action;
}

Action RandomUser::Choose() {
  if (dice_.Percent(8)) return ChooseSelection();
  if (dice_.Below(3000) == 0) {
    Action action{.control = &program_.Form(), .step = "close"};
    action.kind = Action::Kind::kClose;
    return action;
  }
  return ChooseFor(ChooseControl());
}

void RandomUser::Do(const Action& action) {
  scenario_ << "# about to " << action.step << std::endl;
  Control& control = *action.control;
  switch (action.kind) {
    case Action::Kind::kClick:
      if (auto* button = dynamic_cast<CommandButton*>(&control)) program_.Click(*button);
      if (auto* item = dynamic_cast<MenuItem*>(&control)) program_.Click(*item);
      break;
    case Action::Kind::kClickItem:
      program_.ClickItem(dynamic_cast<ListBox&>(control), action.number);
      break;
    case Action::Kind::kPick:
      program_.Pick(dynamic_cast<ComboBox&>(control), action.number);
      break;
    case Action::Kind::kType:
      program_.Type(control, action.text);
      break;
    case Action::Kind::kEnter:
      program_.Enter(control, action.text);
      break;
    case Action::Kind::kSelect:
      program_.Select(action.number, action.length);
      break;
    case Action::Kind::kClose:
      program_.Close();
      break;
  }
  scenario_ << action.step << std::endl;
}

}  // namespace quill::test
