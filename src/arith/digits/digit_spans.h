// Addition and subtraction of spans of ASCII digits, eight digits at a time, from right to left.
//
// All spans of a call have the same length. The output may be one of the inputs. Every routine
// yields to the host within long spans.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvex {

/// Room that a result keeps for what formatting puts beside its digits, so that it is the one text
/// that a call allocates.
inline constexpr std::size_t room_for_marks = 8;

}  // namespace quorvex

namespace quorvex::digit_spans {

/// out = a + b + carry. Returns the carry that runs over.
bool Add(char* out, const char* a, const char* b, std::size_t length, bool carry);

/// out = a + carry. Returns the carry that runs over.
bool Add_Carry(char* out, const char* a, std::size_t length, bool carry);

/// Gives a number so many digits more, and adds others to it at its end. They may reach into what
/// it had, which has room for what they carry.
void Extend(std::string& number, std::size_t places, std::string_view digits);

/// out = a - b - borrow. Returns the borrow that is owed.
bool Subtract(char* out, const char* a, const char* b, std::size_t length, bool borrow);

/// out = a - borrow. Returns the borrow that is owed.
bool Subtract_Borrow(char* out, const char* a, std::size_t length, bool borrow);

/// out = 0 - b: the tens complement of b. Returns the borrow that is owed.
bool Complement(char* out, const char* b, std::size_t length);

}  // namespace quorvex::digit_spans
