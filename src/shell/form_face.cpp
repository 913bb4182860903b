#include "shell/form_face.h"

#include <utility>

#include "shell/shell_state.h"

namespace quorvex {

Form_Face::~Form_Face() = default;

void Set_Form_Face(std::shared_ptr<Form_Face> face) {
  Shell().face = std::move(face);
}

}  // namespace quorvex
