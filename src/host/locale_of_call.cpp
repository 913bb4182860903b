#include "host/locale_of_call.h"

namespace quorvex {

thread_local constinit Locale_Of_Call* Locale_Of_Call::innermost_ = nullptr;

Separators Locale_Of_Call::ask_for_separators() {
  const Separators found = Current_Platform().locale->separators();
  if (innermost_ != nullptr) innermost_->separators_ = found;
  return found;
}

Currency Locale_Of_Call::currency() {
  if (innermost_ != nullptr && innermost_->currency_) return *innermost_->currency_;
  const Currency found = Current_Platform().locale->currency();
  if (innermost_ != nullptr) innermost_->currency_ = found;
  return found;
}

Separators Current_Separators() {
  return Locale_Of_Call::separators();
}

Currency Current_Currency() {
  return Locale_Of_Call::currency();
}

Locale Current_Locale() {
  const Separators separators = Current_Separators();
  const Currency currency = Current_Currency();
  return {separators.decimal(), separators.thousands(), currency.symbol(), currency.side()};
}

}  // namespace quorvex
