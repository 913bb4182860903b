// The functions that the office offers: those of the catalogue that have a place in a dialog.
#pragma once

#include <string>
#include <vector>

#include "frame/catalogue.h"

namespace quorvex::calc {

/// In the order in which they are generated and called, by index.
std::vector<const Method*> Offered_Functions();

/// The name that files store, and that the user sees in capitals: the method's in the spelling of
/// worksheets. It never changes, since files hold it.
std::string Function_Name(const Method& method);

/// True where one parameter takes all arguments.
bool Takes_List(const Method& method);

}  // namespace quorvex::calc
