// What the option string of qvxMODE says beside the formatting.
#pragma once

#include <optional>
#include <string_view>

#include "host/host_value.h"
#include "lists/list_options.h"

namespace quorvex {

struct Mode_Options {
  List_Options list;
  bool table = false;               // TABLE: all numbers with their counts
  std::optional<NumberText> blank;  // BLANK=: what fills the cells that the table leaves
};

/// Reads an option string, given as it was written and in capitals. The filler reaches from BLANK=
/// to the next "&", or to the end, and is taken as written; the first one stands. It is a part of
/// the string all the same, so that words in it act. Once every word that formats has been seen, a
/// string is passed over whole. Fails as `Read_Option_String` does.
void Read_Mode_Options(std::string_view text, std::string_view capitals, Mode_Options& options);

}  // namespace quorvex
