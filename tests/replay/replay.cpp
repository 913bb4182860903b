// Answers like `quorvex batch`, for systems where the rest of the tool can't be built.
//   quorvex_replay batch [--decimal TEXT] [--thousands TEXT] [--currency TEXT]
//                        [--currency-side before|after]
#include <unistd.h>

#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

#include "batch/answer.h"
#include "batch/serve.h"
#include "host/platform.h"

namespace quorvex {
namespace {

Locale Locale_Of(int argc, char** argv) {
  Locale locale;
  for (int at = 2; at + 1 < argc; at += 2) {
    const std::string option = argv[at];
    const std::string value = argv[at + 1];
    if (option == "--decimal") {
      locale.decimal_separator = value;
    } else if (option == "--thousands") {
      locale.thousands_separator = value;
    } else if (option == "--currency") {
      locale.currency_symbol = value;
    } else if (option == "--currency-side") {
      locale.currency_side = value == "after" ? Currency_Side::after : Currency_Side::before;
    } else {
      throw std::invalid_argument("there is no option " + option);
    }
  }
  return locale;
}

}  // namespace
}  // namespace quorvex

int main(int argc, char** argv) {
  try {
    quorvex::Current_Platform().locale = quorvex::Fixed_Locale(quorvex::Locale_Of(argc, argv));
    quorvex::Answerer answerer;
    quorvex::Serve(STDIN_FILENO, STDOUT_FILENO,
                   [&answerer](std::string& out, std::string_view line) {
                     answerer.append_answer(out, line);
                   });
  } catch (const std::exception& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
  }
  return 0;
}
