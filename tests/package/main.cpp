// Uses what an installed library offers: the class, the catalogue, a failure that leaves a method.
#include <quorvex.h>

#include <iostream>

int main() {
  quorvex::cls_Quorvex engine;
  if (engine.qvxADD("99999999999999999999", 1) != "100000000000000000000") return 1;
  const quorvex::Method* method = quorvex::Find_Method("qvxisnumber");
  if (method == nullptr) return 2;
  try {
    quorvex::Invoke(engine, *method, {});
    return 3;
  } catch (const quorvex::Run_Time_Failure& failure) {
    if (failure.number() != quorvex::Failure_Number::type_mismatch) return 4;
  }
  std::cout << "version " << quorvex::version << '\n';
}
