// Has the engine form products with the kind of instructions that QUORVEX_INSTRUCTIONS names,
// portable, avx2 or avx512, for programs with this source: with that of the linked routines, since
// the loaded library of products can't be told.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string_view>

#include "host/platform.h"
#include "native/generic/instructions.h"

extern "C" int Multiply(const char* op1, const char* op2, char* product, const char* accessCode);

namespace quorvex {
namespace {

class Linked_Library : public Library_Loader {
 public:
  explicit Linked_Library(std::shared_ptr<Library_Loader> others) : others_(std::move(others)) {}

  void* symbol(const char* library, const char* name) override {
    if (std::string_view(name) == "Multiply") return reinterpret_cast<void*>(&Multiply);
    return others_->symbol(library, name);
  }
  std::string folder() override { return others_->folder(); }

 private:
  std::shared_ptr<Library_Loader> others_;
};

native::Instructions Kind_Of(std::string_view name) {
  constexpr struct {
    std::string_view name;
    native::Instructions kind;
  } kinds[] = {{"portable", native::Instructions::portable},
               {"avx2", native::Instructions::avx2},
               {"avx512", native::Instructions::avx512}};
  for (const auto& known : kinds)
    if (name == known.name && known.kind <= native::Best_Instructions()) return known.kind;
  std::cerr << "This machine has no instructions called \"" << name << "\".\n";
  std::exit(EXIT_FAILURE);
}

bool Force_Instructions() {
  const char* const name = std::getenv("QUORVEX_INSTRUCTIONS");
  if (name == nullptr) return false;
  native::Use_Instructions(Kind_Of(name));
  auto& libraries = Current_Platform().libraries;
  libraries = std::make_shared<Linked_Library>(libraries);
  return true;
}

[[maybe_unused]] const bool is_forced = Force_Instructions();

}  // namespace
}  // namespace quorvex
