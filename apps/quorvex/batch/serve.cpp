// The loop of `quorvex batch` in one process.
#include "batch/serve.h"

#include "batch/answer.h"
#include "batch/request.h"
#include "io/line_io.h"

namespace quorvex {

void Serve(int input, int output, const Answer_Function& answer,
           std::atomic<std::uint64_t>* started) {
  Line_Reader reader(input);
  Line_Writer writer(output);
  while (const auto line = reader.next_line(writer)) {
    if (reader.was_too_long()) {
      Append_Invalid(writer.buffer(), "", too_long_line);
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
