// The state of the program as JSON.
#pragma once

#include <string_view>

#include "program/program.h"
#include "scenario/step.h"

namespace quill::scenario {

// One object with a member for the form and each control, by name, and the members WorkState,
// Focus and Ended.
Json State(const Program& program);

// One member of that object: "NAME.MEMBER", "Focus" or "Ended". Throws ScenarioError for any other
// target.
Json StateMember(const Program& program, std::string_view target);

}  // namespace quill::scenario
