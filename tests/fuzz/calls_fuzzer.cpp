// Any bytes as a call of the catalogue with arguments of all kinds: it gives a value or fails, and
// no more. And as operands of arithmetic, whose results are held to what they must be exactly.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "frame/catalogue.h"
#include "fuzz/require.h"
#include "host/deadline.h"
#include "support/localized.h"
#include "support/surroundings.h"
#include "support/whole_number.h"
#include "text/compare_numbers.h"
#include "text/tokens.h"

namespace {

using namespace quorvex;

constexpr double all_digits = 100000;

void Require(bool condition, const char* complaint, const std::string& a, const std::string& b) {
  if (!condition) quorvex::Require(false, complaint, a + " and " + b);
}

std::string Digits(FuzzedDataProvider& data, std::size_t most) {
  std::string digits = data.ConsumeRandomLengthString(most);
  for (char& digit : digits)
    digit = static_cast<char>('0' + static_cast<unsigned char>(digit) % 10);
  return digits;
}

std::string Whole(FuzzedDataProvider& data) {
  std::string digits = Digits(data, 300);
  digits.append(data.ConsumeIntegralInRange<std::size_t>(0, 40), data.ConsumeBool() ? '0' : '9');
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
  return digits.empty() ? "7" : digits;
}

std::string Number(FuzzedDataProvider& data) {
  std::string number = data.ConsumeBool() ? "-" : "";
  number += Whole(data);
  if (data.ConsumeBool()) number += "." + Digits(data, 60);
  if (number.back() == '.') number += '5';
  return number;
}

HostValue Argument(FuzzedDataProvider& data, int depth = 0) {
  switch (data.ConsumeIntegralInRange(0, depth == 0 ? 9 : 6)) {
    case 0:
      return Missing;
    case 1:
      return HostValue(data.ConsumeFloatingPoint<double>());
    case 2:
      return HostValue(static_cast<double>(data.ConsumeIntegralInRange(-40, 400)));
    case 3:
      return HostValue(data.ConsumeBool());
    case 4:
      return HostValue(Number(data));
    case 5:
      return HostValue(data.ConsumeRandomLengthString(40));
    case 6:
      return HostValue(static_cast<Error_Code>(2000 + data.ConsumeIntegralInRange(0, 50)));
    case 7: {
      Array array;
      array.columns = data.ConsumeIntegralInRange<std::size_t>(1, 3);
      array.rows = data.ConsumeIntegralInRange<std::size_t>(1, 4);
      for (std::size_t i = 0; i < array.rows * array.columns; ++i)
        array.values.push_back(Argument(data, depth + 1));
      return HostValue(std::move(array));
    }
    default: {
      List list(data.ConsumeIntegralInRange<std::size_t>(0, 6));
      for (HostValue& element : list) element = Argument(data, depth + 1);
      return HostValue(std::move(list));
    }
  }
}

// Methods that open forms or change what holds for all calls have tests of their own.
bool Stays_Within(const Method& method) {
  return method.result != Result_Kind::nothing && method.family != "Shell";
}

void Check_Any_Call(FuzzedDataProvider& data, cls_Quorvex& engine) {
  static const std::vector<const Method*> methods = [] {
    std::vector<const Method*> found;
    for (const Method& method : Catalogue())
      if (Stays_Within(method)) found.push_back(&method);
    return found;
  }();
  const Method& method = *methods[data.ConsumeIntegralInRange<std::size_t>(0, methods.size() - 1)];
  std::vector<HostValue> arguments;
  for (std::size_t place = 0; place < method.parameters.size() && data.remaining_bytes() > 0;
       ++place) {
    arguments.push_back(Argument(data));
  }
  try {
    (void)Invoke(engine, method, std::move(arguments));
  } catch (const Run_Time_Failure&) {
    // Which says of itself what is wrong; anything else ends the run.
  }
}

void Check_Division(FuzzedDataProvider& data, cls_Quorvex& engine) {
  const std::string a = Whole(data);
  const std::string b = Whole(data);
  const std::string rest =
      engine.qvxMOD(a, b, Missing, Missing, Missing, Missing, Missing, all_digits);
  const std::string truth = (Whole_Number(a) % Whole_Number(b)).text();
  Require(rest == truth, "the remainder is wrong", a, b);
  const Whole_Number multiple = Whole_Number(a) - Whole_Number(rest);
  const std::string quotient =
      engine.qvxDIVIDE(multiple.text(), b, Missing, Missing, Missing, Missing, all_digits);
  Require(quotient == (multiple / Whole_Number(b)).text(), "an exact quotient is wrong", a, b);
}

void Check_Divisor(FuzzedDataProvider& data, cls_Quorvex& engine) {
  const std::string factor = Whole(data);
  const std::string a = Product(Whole(data), factor);
  const std::string b = Product(Whole(data), factor);
  if (a == b) return;  // which are left as they are beyond nine digits
  const std::string common = Whole_Number::Common_Divisor(Whole_Number(a), Whole_Number(b)).text();
  const List numbers = {HostValue(a), HostValue(b), HostValue("format:MSD=100000")};
  Require(engine.qvxGCD(numbers).text() == common, "no greatest common divisor", a, b);
}

void Check_Undoing(FuzzedDataProvider& data, cls_Quorvex& engine) {
  const std::string a = Number(data);
  const std::string b = Number(data);
  const NumberText sum = engine.qvxADD(a, b, Missing, Missing, Missing, Missing, all_digits);
  const NumberText back =
      engine.qvxSUBTRACT(sum, b, Missing, Missing, Missing, Missing, all_digits);
  Require(Is_True(Compare_Numbers(back, a, true, false)), "a sum can't be undone", a, b);
}

// A result of n digits and one of twice as many differ by two units of the last of the n at most.
void Check_Limits(FuzzedDataProvider& data, cls_Quorvex& engine) {
  const std::string a = Whole(data);
  const std::string b = Whole(data);
  const double digits = data.ConsumeIntegralInRange(5, 150);
  const bool is_root = data.ConsumeBool();
  const auto result = [&](double limit) {
    const NumberText whole =
        is_root ? engine.qvxSQRT(a, Missing, Missing, Missing, limit)
                : engine.qvxDIVIDE(a, b, Missing, Missing, Missing, Missing, limit);
    return whole;
  };
  const NumberText rough = result(digits);
  const NumberText fine = result(2 * digits);
  NumberText difference =
      engine.qvxSUBTRACT(rough, fine, Missing, Missing, Missing, Missing, all_digits);
  if (difference.starts_with('-')) difference.erase(0, 1);
  const NumberText bound =
      engine.qvxMULTIPLY(rough, "2E-" + std::to_string(static_cast<int>(digits) - 1), Missing,
                         Missing, Missing, Missing, all_digits);
  Require(!Is_True(Compare_Numbers(difference, bound, false, false)), "limits differ", rough, fine);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const auto deadline = std::make_shared<Deadline>(Seconds(2));
  Current_Platform().yielder = deadline;
  deadline->begin_call();
  const Locale_Guard locale{Locale{}};
  const Memory_Guard memory(std::size_t{1} << 26U);
  FuzzedDataProvider data(bytes, size);
  cls_Quorvex engine;
  using Check = void (*)(FuzzedDataProvider&, cls_Quorvex&);
  constexpr Check checks[] = {Check_Any_Call, Check_Any_Call, Check_Division,
                              Check_Divisor,  Check_Undoing,  Check_Limits};
  try {
    checks[data.ConsumeIntegralInRange<std::size_t>(0, std::size(checks) - 1)](data, engine);
  } catch (const Run_Time_Failure& failure) {
    // A busy machine has less time than there is.
    if (failure.number() == Failure_Number::interrupted) return 0;
    quorvex::Require(false, "a calculation failed", failure.what());
  }
  return 0;
}
