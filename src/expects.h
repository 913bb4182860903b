// Contracts between routines.
//
// Depends on nothing, so that every source may include it, those of the library of products among
// them, whatever floor it stands on.
#pragma once

#if defined(QUORVEX_CONTRACTS)

#include <cstdio>
#include <cstdlib>

namespace quorvex {

// Each source has its own: sources that are compiled for newer machines must share no code.
[[noreturn]] static inline void End_For_Contract(const char* condition, const char* file,
                                                 int line) {
  std::fprintf(stderr, "%s:%d: Expected: %s\n", file, line, condition);
  std::abort();
}

}  // namespace quorvex

/// Ends the program where a caller breaks a routine's contract, in builds with checks; others don't
/// look at the condition. What a user gives is never a contract: it gets an error.
#define Expects(condition) \
  ((condition) ? static_cast<void>(0) : ::quorvex::End_For_Contract(#condition, __FILE__, __LINE__))

#else

// Not evaluated, but the names in it are used.
#define Expects(condition) static_cast<void>(sizeof(static_cast<bool>(condition)))

#endif
