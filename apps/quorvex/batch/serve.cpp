// The loop of `quorvex batch` in one process.
#include "batch/serve.h"

#include "batch/answer.h"
#include "batch/request.h"

namespace quorvex {

void Serve(int input, int output, const Answer_Function& answer, const Batch_Bounds& bounds,
           std::atomic<std::uint64_t>* started) {
  Line_Reader reader(input, bounds.longest_line);
  Line_Writer writer(output);
  while (const auto line = reader.next_line(writer)) {
    if (!reader.problem().empty()) {
      Append_Invalid(writer.buffer(), "", reader.problem());
    } else if (Is_Blank_Line(*line)) {
      continue;
    } else {
      if (started != nullptr) ++*started;
      answer(writer.buffer(), *line);
    }
    writer.line_done();
  }
  writer.flush();
}

}  // namespace quorvex
