#include "functions.h"

#include <cctype>

namespace quorvex::calc {

std::vector<const Method*> Offered_Functions() {
  std::vector<const Method*> offered;
  for (const Method& method : Catalogue()) {
    if (!method.category.empty()) offered.push_back(&method);
  }
  return offered;
}

std::string Function_Name(const Method& method) {
  constexpr std::size_t prefix = 3;
  std::string name(method.name);
  for (std::size_t place = prefix; place < name.size(); ++place) {
    name[place] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[place])));
  }
  return name;
}

bool Takes_List(const Method& method) {
  return !method.parameters.empty() && method.parameters[0].kind == Parameter_Kind::list;
}

}  // namespace quorvex::calc
