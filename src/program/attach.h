// Which handler runs at which event.
#pragma once

#include "workbench/form1.h"

namespace quill {

void AttachHandlers(Form1& form);

}  // namespace quill
