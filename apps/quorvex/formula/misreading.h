// Text that calculations read otherwise than it looks.
#pragma once

#include <string>
#include <vector>

#include "frame/class/cls_Quorvex.h"
#include "host/host_value.h"

namespace quorvex {

/// Adds a sentence for number text that is taken for another number than it looks like; of a block,
/// or a list, for the first one in it. `place` comes before it.
void Add_Misreading(cls_Quorvex& engine, const std::string& place, const HostValue& value,
                    std::vector<std::string>& notes);

/// Adds a sentence for text with digits that is no number, which functions of lists pass over.
/// `name` is that of the function.
void Add_Passed_Over(cls_Quorvex& engine, const std::string& name, const HostValue& list,
                     std::vector<std::string>& notes);

/// Adds a note that isn't among them yet.
void Add_Note(std::string note, std::vector<std::string>& notes);

}  // namespace quorvex
