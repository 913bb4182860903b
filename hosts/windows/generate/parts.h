// What the generator writes.
#pragma once

#include <iosfwd>
#include <string_view>

namespace quorvex::windows {

/// The description of the interface, for the compiler of type libraries.
void Write_Interface(std::ostream& out);

/// The methods of the interface in C++, each handing its arguments on.
void Write_Methods(std::ostream& out);

/// The code of the add-in workbook.
void Write_Workbook_Module(std::ostream& out);

/// Separates the items of a list.
class Comma {
 public:
  std::string_view operator()() {
    const std::string_view before = first_ ? "" : ", ";
    first_ = false;
    return before;
  }

 private:
  bool first_ = true;
};

}  // namespace quorvex::windows
