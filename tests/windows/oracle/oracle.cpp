// Answers, by GMP and MPFR, what tests ask that run where those aren't.
#include <gmp.h>
#include <mpfr.h>

#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "operations.h"

namespace quorvex::oracle {
namespace {

struct Whole {
  Whole() { mpz_init(value); }
  Whole(const Whole&) = delete;
  Whole& operator=(const Whole&) = delete;
  ~Whole() { mpz_clear(value); }
  mpz_t value;
};

struct Real {
  explicit Real(mpfr_prec_t bits) { mpfr_init2(value, bits); }
  Real(const Real&) = delete;
  Real& operator=(const Real&) = delete;
  ~Real() { mpfr_clear(value); }
  mpfr_t value;
};

std::map<unsigned long, Whole> wholes;
std::map<unsigned long, Real> reals;

/// The operands of a request, in turn.
class Operands {
 public:
  explicit Operands(std::string text) : text_(std::move(text)) {}

  std::string word() {
    const std::size_t end = std::min(text_.find(' ', at_), text_.size());
    std::string word = text_.substr(at_, end - at_);
    at_ = std::min(end + 1, text_.size());
    return word;
  }
  std::string rest() const { return text_.substr(at_); }
  unsigned long count() { return std::stoul(word()); }
  long integer() { return std::stol(word()); }
  mpz_ptr whole() { return wholes.at(count()).value; }
  mpfr_ptr real() { return reals.at(count()).value; }

 private:
  std::string text_;
  std::size_t at_ = 0;
};

/// Gives the answer; empty where nothing was asked.
using Operation = std::function<std::string(Operands&)>;

std::string Digits_Of(mpz_srcptr number) {
  std::string digits(mpz_sizeinbase(number, 10) + 2, '\0');
  mpz_get_str(digits.data(), 10, number);
  return digits.c_str();
}

std::string Decimals_Of(mpfr_srcptr number, int decimals, mpfr_rnd_t rounding) {
  char* written = nullptr;
  mpfr_asprintf(&written, "%.*R*f", decimals, rounding, number);
  const std::unique_ptr<char, decltype(&mpfr_free_str)> owner(written, &mpfr_free_str);
  return written;
}

std::string Shown(double number) {
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", number);
  return text;
}

/// Operands are read in their order, which that of a call's arguments needn't be.
template <typename Body>
Operation Silent(Body body) {
  return [body](Operands& operands) {
    body(operands);
    return std::string();
  };
}

std::map<std::string, Operation> Whole_Operations() {
  std::map<std::string, Operation> all;
#define ANSWER(name)                    \
  all[#name] = Silent([](Operands& o) { \
    mpz_ptr made = o.whole();           \
    mpz_srcptr a = o.whole();           \
    name(made, a, o.whole());           \
  });
  WHOLE_BY_TWO(ANSWER)
#undef ANSWER
#define ANSWER(name)                    \
  all[#name] = Silent([](Operands& o) { \
    mpz_ptr made = o.whole();           \
    name(made, o.whole());              \
  });
  WHOLE_BY_ONE(ANSWER)
#undef ANSWER
#define ANSWER(name)                    \
  all[#name] = Silent([](Operands& o) { \
    mpz_ptr made = o.whole();           \
    mpz_srcptr a = o.whole();           \
    name(made, a, o.count());           \
  });
  WHOLE_BY_ONE_AND_COUNT(ANSWER)
#undef ANSWER
#define ANSWER(name)                    \
  all[#name] = Silent([](Operands& o) { \
    mpz_ptr made = o.whole();           \
    name(made, o.count());              \
  });
  WHOLE_BY_COUNT(ANSWER)
#undef ANSWER
#define ANSWER(name)                           \
  all[#name] = [](Operands& o) {               \
    mpz_srcptr a = o.whole();                  \
    return std::to_string(name(a, o.whole())); \
  };
  WHOLE_COMPARED(ANSWER)
#undef ANSWER
  all["mpz_init"] = Silent([](Operands& o) { wholes.try_emplace(o.count()); });
  all["mpz_clear"] = Silent([](Operands& o) { wholes.erase(o.count()); });
  all["mpz_set_str"] = [](Operands& o) {
    mpz_ptr made = o.whole();
    return std::to_string(mpz_set_str(made, o.rest().c_str(), 10));
  };
  all["mpz_sgn"] = [](Operands& o) {
    mpz_srcptr a = o.whole();
    return std::to_string(mpz_sgn(a));
  };
  all["mpz_sizeinbase"] = [](Operands& o) { return std::to_string(mpz_sizeinbase(o.whole(), 10)); };
  all["mpz_get_str"] = [](Operands& o) { return Digits_Of(o.whole()); };
  return all;
}

std::map<std::string, Operation> Real_Operations() {
  std::map<std::string, Operation> all;
#define ANSWER(name)                    \
  all[#name] = Silent([](Operands& o) { \
    mpfr_ptr made = o.real();           \
    mpfr_srcptr a = o.real();           \
    name(made, a, o.real(), MPFR_RNDN); \
  });
  REAL_BY_TWO(ANSWER)
#undef ANSWER
#define ANSWER(name)                    \
  all[#name] = Silent([](Operands& o) { \
    mpfr_ptr made = o.real();           \
    name(made, o.real(), MPFR_RNDN);    \
  });
  REAL_BY_ONE(ANSWER)
#undef ANSWER
#define ANSWER(name)                     \
  all[#name] = Silent([](Operands& o) {  \
    mpfr_ptr made = o.real();            \
    mpfr_srcptr a = o.real();            \
    name(made, a, o.count(), MPFR_RNDN); \
  });
  REAL_BY_ONE_AND_COUNT(ANSWER)
#undef ANSWER
#define ANSWER(name)                    \
  all[#name] = Silent([](Operands& o) { \
    mpfr_ptr made = o.real();           \
    name(made, o.count(), MPFR_RNDN);   \
  });
  REAL_BY_COUNT(ANSWER)
#undef ANSWER
#define ANSWER(name) all[#name] = Silent([](Operands& o) { name(o.real(), MPFR_RNDN); });
  REAL_CONSTANT(ANSWER)
#undef ANSWER
  all["mpfr_init2"] = Silent([](Operands& o) {
    const unsigned long id = o.count();
    reals.try_emplace(id, o.integer());
  });
  all["mpfr_clear"] = Silent([](Operands& o) { reals.erase(o.count()); });
  all["mpfr_pow_si"] = Silent([](Operands& o) {
    mpfr_ptr made = o.real();
    mpfr_srcptr a = o.real();
    mpfr_pow_si(made, a, o.integer(), MPFR_RNDN);
  });
  all["mpfr_floor"] = Silent([](Operands& o) {
    mpfr_ptr made = o.real();
    mpfr_floor(made, o.real());
  });
  all["mpfr_sin_cos"] = Silent([](Operands& o) {
    mpfr_ptr sine = o.real();
    mpfr_ptr cosine = o.real();
    mpfr_sin_cos(sine, cosine, o.real(), MPFR_RNDN);
  });
  all["mpfr_set_nan"] = Silent([](Operands& o) { mpfr_set_nan(o.real()); });
  all["mpfr_set_d"] = Silent([](Operands& o) {
    mpfr_ptr made = o.real();
    mpfr_set_d(made, std::stod(o.word()), MPFR_RNDN);
  });
  all["mpfr_set_str"] = [](Operands& o) {
    mpfr_ptr made = o.real();
    return std::to_string(mpfr_set_str(made, o.rest().c_str(), 10, MPFR_RNDN));
  };
  all["mpfr_nan_p"] = [](Operands& o) { return std::to_string(mpfr_nan_p(o.real()) != 0); };
  all["mpfr_get_d"] = [](Operands& o) { return Shown(mpfr_get_d(o.real(), MPFR_RNDN)); };
  all["mpfr_asprintf"] = [](Operands& o) {
    mpfr_srcptr number = o.real();
    const auto decimals = static_cast<int>(o.integer());
    return Decimals_Of(number, decimals, o.integer() == 0 ? MPFR_RNDN : MPFR_RNDZ);
  };
  return all;
}

void Serve() {
  std::map<std::string, Operation> operations = Whole_Operations();
  operations.merge(Real_Operations());
  for (std::string line; std::getline(std::cin, line);) {
    Operands operands(std::move(line));
    const std::string answer = operations.at(operands.word())(operands);
    if (!answer.empty()) std::cout << answer << '\n' << std::flush;
  }
}

}  // namespace
}  // namespace quorvex::oracle

int main() {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  try {
    quorvex::oracle::Serve();
  } catch (const std::exception& failure) {
    std::cerr << "The oracle fails: " << failure.what() << '\n';
    return 1;
  }
}
