#include <ostream>

#include "parts.h"

namespace quorvex::windows {

void Write_Workbook_Module(std::ostream& out) {
  out << "\n";
}

}  // namespace quorvex::windows
