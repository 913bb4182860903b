#include "names.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "failures.h"
#include "frame/catalogue.h"
#include "host/conversions.h"
#include "host/platform/windows_text.h"

namespace quorvex::windows {
namespace {

std::string Narrow(LPOLESTR name) {
  return name == nullptr ? std::string() : Narrow_Text(name);
}

DISPID Parameter_Id(const Method& method, const std::string& name) {
  const std::string wanted = To_Capitals(name);
  const auto found = std::ranges::find_if(method.parameters, [&](const Parameter& parameter) {
    return To_Capitals(parameter.name) == wanted;
  });
  return found == method.parameters.end() ? DISPID_UNKNOWN
                                          : static_cast<DISPID>(found - method.parameters.begin());
}

}  // namespace

void Find_Ids(std::span<const LPOLESTR> names, DISPID* ids) {
  std::fill_n(ids, names.size(), DISPID_UNKNOWN);
  const Method* method = Find_Method(Narrow(names[0]));
  if (method == nullptr) throw Refused_Call{DISP_E_UNKNOWNNAME};
  ids[0] = method->slot;
  bool are_known = true;
  for (std::size_t i = 1; i < names.size(); ++i) {
    ids[i] = Parameter_Id(*method, Narrow(names[i]));
    are_known = are_known && ids[i] != DISPID_UNKNOWN;
  }
  if (!are_known) throw Refused_Call{DISP_E_UNKNOWNNAME};
}

}  // namespace quorvex::windows
