// The forms of the add-in as windows.
#pragma once

#include <memory>

#include "shell/form_face.h"

namespace quorvex::windows {

std::shared_ptr<Form_Face> Window_Form_Face();

}  // namespace quorvex::windows
