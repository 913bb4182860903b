// Texts that are read as a whole.
#pragma once

#include <filesystem>
#include <string>

namespace quorvex {

/// All that a descriptor, or a file, gives. Throws `std::system_error` where reading fails, and
/// `Run_Time_Failure` where it takes too long or needs more memory than there is.
std::string Text_From(int descriptor);
std::string Text_Of_File(const std::filesystem::path& file);

}  // namespace quorvex
