// Forms and questions where nobody is there to see them.
#pragma once

#include "host/platform.h"
#include "shell/form_face.h"

namespace quorvex {

/// Answers No to every question, and OK to what is none.
class Quiet_Box final : public Message_Box {
 public:
  Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                      Message_Buttons buttons) override;
};

/// Closes every form as soon as it is opened; nothing is set.
class Quiet_Face final : public Form_Face {
 public:
  void show(frmAbout& form) override;
  void show(frmMaxSD& form) override;
};

/// Has all forms and questions of this run pass unseen.
void Show_No_Forms();

}  // namespace quorvex
