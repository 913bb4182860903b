// Calls of the engine to be tried with too little memory.
#pragma once

#include <string>
#include <vector>

#include "frame/catalogue.h"
#include "host/host_value.h"

namespace quorvex {

struct Tried_Call {
  std::string name;  // for messages: where it comes from
  const Method* method = nullptr;
  std::vector<HostValue> arguments;
};

/// The calls of a file of requests, each line one. Throws for a line that is none.
std::vector<Tried_Call> Calls_Of(const std::string& file);

/// Those of the golden lines that are written in the usual locale.
std::vector<Tried_Call> Golden_Calls();

/// The same call with numbers of 5,000 digits in the places of its texts that are numbers, of which
/// half are decimals, and without its longer companions where no argument is such a text.
std::vector<Tried_Call> Lengthened(const Tried_Call& call);

/// Long results from short arguments.
std::vector<Tried_Call> Calls_With_Long_Results();

}  // namespace quorvex
