// One process does it all: there is no way here to split one into several that go on alike.
#include <iostream>

#include "batch/serve.h"

namespace quorvex {

void Serve_In_Parallel(int input, int output, unsigned /*processes*/, const Answer_Function& answer,
                       const Batch_Bounds& bounds) {
  std::cerr << "warning: --jobs is not available on Windows; one process answers all calls.\n"
            << std::flush;
  Serve(input, output, answer, bounds);
}

}  // namespace quorvex
