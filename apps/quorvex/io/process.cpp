#include "io/process.h"

#include <clocale>
#include <csignal>
#include <cstdlib>

namespace quorvex {

void Prepare_Process() {
  // A reader that goes away ends the run with no noise; see `Output_Closed`.
  std::signal(SIGPIPE, SIG_IGN);
  // Typed characters are UTF-8 even where no locale is set.
  if (std::setlocale(LC_CTYPE, "") == nullptr || MB_CUR_MAX == 1)
    std::setlocale(LC_CTYPE, "C.UTF-8");
}

}  // namespace quorvex
