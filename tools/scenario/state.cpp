#include "scenario/state.h"

#include <cmath>
#include <span>

#include "scenario/line_reader.h"
#include "text/unicode.h"

namespace quill::scenario {
namespace {

// One member of a kind of control, and how its value is read.
struct Member {
  std::string_view name;
  Json (*read)(const Control&);
};

Json ValueOf(const std::u32string& text) { return ToUtf8(text); }

Json ValueOf(Colour colour) {
  constexpr Colour kNumber = 0xFFU;
  if (IsSystemColour(colour)) return "system " + std::to_string(colour & kNumber);
  return colour;
}

Json ValueOf(int number) { return number; }

Json ValueOf(Position place) { return place; }

Json ValueOf(double number) {
  constexpr double kExact = 9007199254740992;  // up to here doubles hold every whole number
  if (number != std::floor(number) || std::abs(number) > kExact) return number;
  return static_cast<std::int64_t>(number);
}

template <class T>
Json ValueOf(const WorkValue<T>& value) {
  return value.IsEmpty() ? Json() : ValueOf(value.Get());
}

// Runs of characters that print alike; a raised position prints as just that, whatever its height.
Json RunsOf(const Document& document) {
  struct Shown {
    Colour colour;
    bool bold, underline, raised;
    bool operator==(const Shown&) const = default;
  };
  const auto shown = [&](FormatId id) -> Shown {
    const Attributes& now = document.Formats()[id].now;
    return {now.colour, now.bold, now.underline, now.offset > 0};
  };
  const FormatNumbers& ids = document.FormatIds();
  Json runs = Json::array();
  for (std::size_t begin = 0, end = 0; begin < ids.size(); begin = end) {
    const Shown run = shown(ids[begin]);
    FormatId last = ids[begin];
    for (end = begin + 1; end < ids.size(); ++end) {
      if (ids[end] == last) continue;
      last = ids[end];
      if (shown(last) != run) break;
    }
    runs.push_back(Json::array({end - begin, run.colour, run.bold, run.underline, run.raised}));
  }
  return runs;
}

const TextBox& Box(const Control& control) { return static_cast<const TextBox&>(control); }
const ComboBox& Combo(const Control& control) { return static_cast<const ComboBox&>(control); }
const ListBox& List(const Control& control) { return static_cast<const ListBox&>(control); }
const TextSurface& Surface(const Control& control) {
  return static_cast<const TextSurface&>(control);
}

Json RowsOf(const ComboBox& combo) {
  Json rows = Json::array();
  for (int i = 0; i < combo.ListCount(); ++i) rows.push_back(ToUtf8(combo.List(i)));
  return rows;
}

Json ItemsOf(const ListBox& list) {
  Json items = Json::array();
  for (const std::u32string& item : list.Items()) items.push_back(ToUtf8(item));
  return items;
}

constexpr Member kEveryControl[] = {
    {"Enabled", [](const Control& c) { return Json(c.Enabled.Get()); }},
    {"Visible", [](const Control& c) { return Json(c.Visible.Get()); }},
};
constexpr Member kTextBox[] = {
    {"Text", [](const Control& c) { return ValueOf(Box(c).Text.Get()); }},
    {"BackColor", [](const Control& c) { return ValueOf(Box(c).BackColor.Get()); }},
    {"ForeColor", [](const Control& c) { return ValueOf(Box(c).ForeColor.Get()); }},
    {"FontBold", [](const Control& c) { return Json(Box(c).FontBold.Get()); }},
};
constexpr Member kComboBox[] = {
    {"Text", [](const Control& c) { return ValueOf(Combo(c).Text.Get()); }},
    {"List", [](const Control& c) { return RowsOf(Combo(c)); }},
};
constexpr Member kListBox[] = {
    {"List", [](const Control& c) { return ItemsOf(List(c)); }},
    {"ListIndex", [](const Control& c) { return Json(List(c).ListIndex.Get()); }},
};
constexpr Member kRichText[] = {
    {"Text", [](const Control& c) { return ValueOf(Surface(c).Text()); }},
    {"SelStart", [](const Control& c) { return Json(Surface(c).SelStart.Get()); }},
    {"SelLength", [](const Control& c) { return Json(Surface(c).SelLength.Get()); }},
    {"Runs", [](const Control& c) { return RunsOf(Surface(c).Doc()); }},
};
constexpr Member kForm[] = {
    {"Caption", [](const Control& c) { return ValueOf(c.Form().Caption.Get()); }},
};

// The members of a kind beyond those of every control.
std::span<const Member> MembersOf(Kind kind) {
  switch (kind) {
    case Kind::kTextBox:
      return kTextBox;
    case Kind::kComboBox:
      return kComboBox;
    case Kind::kListBox:
      return kListBox;
    case Kind::kRichText:
      return kRichText;
    case Kind::kForm:
      return kForm;
    default:
      return {};
  }
}

Json ControlState(const Control& control) {
  Json state;
  for (const Member& member : kEveryControl) state[member.name] = member.read(control);
  for (const Member& member : MembersOf(control.Kind())) state[member.name] = member.read(control);
  return state;
}

Json WorkStateOf(const Form1& form) {
  Json state;
  form.WorkState.ForEach(
      [&](std::string_view name, const auto& value) { state[name] = ValueOf(value); });
  return state;
}

Json FocusOf(const Form1& form) {
  return form.Focus() != nullptr ? Json(form.Focus()->Name()) : Json();
}

[[noreturn]] void RefuseTarget(std::string_view target) {
  throw ScenarioError("nothing is called " + std::string(target));
}

Json ControlMember(const Control& control, std::string_view name, std::string_view target) {
  for (const auto members : {std::span<const Member>(kEveryControl), MembersOf(control.Kind())}) {
    for (const Member& member : members) {
      if (member.name == name) return member.read(control);
    }
  }
  RefuseTarget(target);
}

}  // namespace

Json State(const Program& program) {
  const Form1& form = program.Form();
  Json state;
  state[form.Name()] = ControlState(form);
  for (const Control* control : form.Controls()) state[control->Name()] = ControlState(*control);
  state["WorkState"] = WorkStateOf(form);
  state["Focus"] = FocusOf(form);
  state["Ended"] = program.Ended();
  return state;
}

Json StateMember(const Program& program, std::string_view target) {
  const Form1& form = program.Form();
  if (target == "Focus") return FocusOf(form);
  if (target == "Ended") return program.Ended();
  const std::size_t point = target.find('.');
  if (point == std::string_view::npos) RefuseTarget(target);
  const std::string_view name = target.substr(0, point);
  const std::string_view member = target.substr(point + 1);
  if (name == "WorkState") {
    const Json fields = WorkStateOf(form);
    if (!fields.contains(member)) RefuseTarget(target);
    return fields[member];
  }
  const Control* const control = name == form.Name() ? &form : form.Find(name);
  if (control == nullptr) RefuseTarget(target);
  return ControlMember(*control, member, target);
}

}  // namespace quill::scenario
