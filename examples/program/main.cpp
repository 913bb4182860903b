// A savings account to the last digit: a program of somebody else's, built against the installed
// library.
//
// Yearly interest of 3.75 % on 10,000 for 20 years. The exact balance has 81 digits; a 64-bit float
// knows the first 15.
#include <quorvex/quorvex.h>

#include <exception>
#include <iostream>

namespace {

void Show_Balance(quorvex::cls_Quorvex& engine) {
  const quorvex::NumberText growth = engine.qvxPOWER("1.0375", 20);
  const quorvex::NumberText balance = engine.qvxMULTIPLY("10000", growth);
  std::cout << "exact:    " << balance << '\n';
  std::cout << "to cents: " << engine.qvxROUND(balance, 2) << '\n';
}

// The functions as data: find one by its name, and call it with a list of values.
void Show_Call_By_Name(quorvex::cls_Quorvex& engine) {
  const quorvex::Method* method = quorvex::Find_Method("qvxisgreater");
  const quorvex::Call_Result answer =
      quorvex::Invoke(engine, *method, {"0.10000000000000000001", "0.1"});
  std::cout << method->name << ": " << std::get<quorvex::HostValue>(answer).text() << '\n';
}

// A token is a result. What can't be called at all is an exception that tells why.
void Show_Failures(quorvex::cls_Quorvex& engine) {
  std::cout << "1 / 0:    " << engine.qvxDIVIDE(1, 0) << '\n';
  try {
    quorvex::Invoke(engine, *quorvex::Find_Method("qvxISNUMBER"), {});
  } catch (const quorvex::Run_Time_Failure& failure) {
    std::cout << "failure " << static_cast<int>(failure.number()) << ": " << failure.what() << '\n';
  }
}

}  // namespace

int main() {
  try {
    quorvex::cls_Quorvex engine;
    Show_Balance(engine);
    Show_Call_By_Name(engine);
    Show_Failures(engine);
    std::cout << "Quorvex " << quorvex::version << '\n';
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
