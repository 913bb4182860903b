// Text that is no number, on its way through formatting.
#pragma once

#include <string>

namespace quorvex {

/// Formatting moves digits as single bytes. Text that is no number may hold longer characters: a
/// stand-in takes the place of each while bytes are moved, which keeps their order.
class Long_Characters {
 public:
  /// Takes them out of the text.
  explicit Long_Characters(std::string& text);

  /// Puts them back.
  void restore(std::string& text) const;

 private:
  std::string taken_;
};

}  // namespace quorvex
