// Writes from the catalogue what Windows and the spreadsheet must be told of the class.
//
//     quorvex_windows_tables interface|methods|module > FILE
#include <iostream>
#include <string_view>

#include "parts.h"

int main(int count, char** arguments) {
  const std::string_view what = count == 2 ? arguments[1] : "";
  if (what == "interface") {
    quorvex::windows::Write_Interface(std::cout);
  } else if (what == "methods") {
    quorvex::windows::Write_Methods(std::cout);
  } else if (what == "module") {
    quorvex::windows::Write_Workbook_Module(std::cout);
  } else {
    std::cerr << "usage: quorvex_windows_tables interface|methods|module\n";
    return 2;
  }
  return std::cout.flush() ? 0 : 1;
}
