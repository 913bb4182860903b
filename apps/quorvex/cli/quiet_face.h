// Forms and questions where nobody is there to see them.
#pragma once

#include <memory>

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

/// Has forms drawn by this face, and remembers it for `Closed_Forms`.
void Use_Face(std::shared_ptr<Form_Face> face);

/// Has all forms and questions of this run pass unseen.
void Show_No_Forms();

/// As long as it lives, forms and questions pass unseen.
class Closed_Forms {
 public:
  Closed_Forms();
  ~Closed_Forms();
  Closed_Forms(const Closed_Forms&) = delete;
  Closed_Forms& operator=(const Closed_Forms&) = delete;

 private:
  std::shared_ptr<Form_Face> face_;
  std::shared_ptr<Message_Box> box_;
};

}  // namespace quorvex
