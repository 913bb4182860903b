// How forms come before the user's eyes.
#pragma once

#include <memory>

#include "host/export.h"

namespace quorvex {

class frmAbout;
class frmMaxSD;

/// Draws forms, hands on what the user does to their controls, and comes back when the form is
/// unloaded.
class QUORVEX_API Form_Face {
 public:
  Form_Face() = default;
  Form_Face(const Form_Face&) = delete;
  Form_Face& operator=(const Form_Face&) = delete;
  virtual ~Form_Face();

  virtual void show(frmAbout& form) = 0;
  virtual void show(frmMaxSD& form) = 0;
};

/// Puts another face in place of the one in use; null for the one that there is without a toolkit:
/// it shows About as a message, and sets nothing.
QUORVEX_API void Set_Form_Face(std::shared_ptr<Form_Face> face);

}  // namespace quorvex
