// The locale as one call of the engine sees it.
#pragma once

#include <optional>

#include "host/platform.h"

namespace quorvex {

/// In force on its thread until the end of its scope: the first use of separators or currency asks
/// for them, and all later ones get what that one got, so that a change of the user's settings
/// can't come between. A call from within a call (a host may run one while it is yielded to) has
/// its own; but a method goes on in the one that it is handed, in which its arguments were
/// converted.
class Locale_Of_Call {
 public:
  Locale_Of_Call() noexcept : outer_(innermost_) {
    if (outer_ != nullptr && outer_->is_handed_over_) {
      outer_->is_handed_over_ = false;
    } else {
      innermost_ = this;
    }
  }
  ~Locale_Of_Call() { innermost_ = outer_; }
  Locale_Of_Call(const Locale_Of_Call&) = delete;
  Locale_Of_Call& operator=(const Locale_Of_Call&) = delete;

  /// The next one on this thread, which the called method opens, goes on in this one.
  void hand_over() noexcept { is_handed_over_ = true; }

  /// `Current_Separators`, for routines that are busy enough to notice the way there.
  static Separators separators() {
    const Locale_Of_Call* const call = innermost_;
    return call != nullptr && call->separators_ ? *call->separators_ : ask_for_separators();
  }
  /// `Current_Currency`.
  static Currency currency();

 private:
  static Separators ask_for_separators();

// Where it can, the C library keeps room for small variables of threads beside those of the
// program, which are found without a call.
#if defined(__GLIBC__)
  [[gnu::tls_model("initial-exec")]]
#endif
  // Of no type that must be destroyed: a thread would then hold the library in the process.
  static thread_local constinit Locale_Of_Call* innermost_;

  Locale_Of_Call* outer_;
  bool is_handed_over_ = false;
  std::optional<Separators> separators_;
  std::optional<Currency> currency_;
};

}  // namespace quorvex
