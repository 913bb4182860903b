// How a variable list is walked, the same for all list functions.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "host/host_value.h"
#include "lists/list_options.h"
#include "text/operand.h"

namespace quorvex {

/// Whether a walk goes on behind an element.
enum class Walk { on, end };

/// Calls `visit` with each cell of an array or range, row by row.
void For_Each_Cell(const HostValue& block, const std::function<Walk(const HostValue&)>& visit);

/// Calls `visit` with the text of each element of a list as it was written, but for empty text:
/// blank cells and arguments left out are passed over. Arrays and ranges are walked row by row. An
/// error value that is an argument of its own stands as "#VALUE!"; one in a cell has the text of an
/// error, which is no number.
///
/// Fails with type_mismatch for a one-dimensional list among the arguments, and for an array among
/// the cells of another.
void For_Each_Text(const List& list, const std::function<Walk(std::string_view)>& visit);

/// An element as arithmetic sees it.
struct List_Element {
  std::string_view text;                // in capitals
  const Plain_Number* plain = nullptr;  // the same, if it has been read as one
};

/// Walks a list as arithmetic does: `visit` gets each element, and option strings go into
/// `options`, where they act on all that follows. The element lives as long as the call of `visit`.
/// Fails as `For_Each_Text` and `Read_Option_String` do.
void Walk_List(const List& list, List_Options& options,
               const std::function<Walk(const List_Element&)>& visit);

/// Text in capitals: the text itself where it holds nothing to fold, otherwise `scratch`.
std::string_view Capitals_Of(std::string_view text, std::string& scratch);

}  // namespace quorvex
