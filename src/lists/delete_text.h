// Repeated deletion of one text from another.
#pragma once

#include <string>
#include <string_view>

namespace quorvex {

/// Deletes the first occurrence of `entry` until there is none left; what
/// a deletion brings together is deleted as well. Linear in the text. Fails with
/// out_of_memory where there is no room for four bytes beside each of the text.
void Delete_Every(std::string& text, std::string_view entry);

}  // namespace quorvex
