// One request of the batch protocol.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"
#include "host/host_value.h"

namespace quorvex {

/// What a line asks for. Either `problem` says why it is no request, or `method` is set.
struct Request {
  std::string id;  // JSON text; empty if none was given
  const Method* method = nullptr;
  std::vector<HostValue> arguments;
  std::vector<bool> given;  // which arguments the line names, be it as missing
  bool explain = false;     // whether the answer shall say why it is a token
  std::string problem;
};

/// Reads a line. Never throws for what the line holds.
Request Read_Request(std::string_view line);

/// A sentence on a required argument that the line doesn't give; empty if it gives all of them. An
/// empty list may be left out.
std::string Missing_Argument(const Request& request);

/// Whether a line holds blanks only: such lines are skipped.
bool Is_Blank_Line(std::string_view line);

}  // namespace quorvex
