// How the list functions bring their result to the text of a cell.
#pragma once

#include "host/host_value.h"
#include "lists/list_options.h"

namespace quorvex {

/// Formats what a list function has worked out, by the options of the list: cut to the limit, and
/// one digit more. A number in E notation or in parentheses is written out first, with its sign;
/// every other spelling stays as it is, and so does text that is no number.
NumberText Finish_List(NumberText running, const List_Options& options);

/// The same for text whose every character counts: nothing is written out.
NumberText Finish_Text(NumberText text, const List_Options& options);

}  // namespace quorvex
