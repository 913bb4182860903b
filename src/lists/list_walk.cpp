#include "lists/list_walk.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using Kind = HostValue::Kind;

void Yield_At(std::size_t element) {
  if (element % steps_between_yields == 0) Yield();
}

template <typename Visit>
Walk Walk_Array(const Array& array, const Visit& visit) {
  for (std::size_t i = 0; i < array.values.size(); ++i) {
    Yield_At(i + 1);
    if (visit(array.values[i]) == Walk::end) return Walk::end;
  }
  return Walk::on;
}

template <typename Visit>
Walk Walk_Range(const Range& range, const Visit& visit) {
  const std::size_t rows = range.rows();
  const std::size_t columns = range.columns();
  std::size_t cells = 0;
  for (std::size_t row = 1; row <= rows; ++row) {
    for (std::size_t column = 1; column <= columns; ++column) {
      Yield_At(++cells);
      if (visit(range.cell(row, column)) == Walk::end) return Walk::end;
    }
  }
  return Walk::on;
}

template <typename Visit>
Walk Walk_Block(const HostValue& block, const Visit& visit) {
  return block.kind() == Kind::array ? Walk_Array(block.array(), visit)
                                     : Walk_Range(block.range(), visit);
}

// True if any byte is a small letter or stands above them. Digits, capitals and the usual marks of
// numbers stand below.
bool May_Fold(std::string_view text) {
  constexpr std::uint64_t ones = 0x0101010101010101U;
  constexpr std::uint64_t to_high_bit = ones * (0x80 - 'a');
  std::uint64_t found = 0;
  std::size_t place = 0;
  for (std::uint64_t word = 0; place + sizeof word <= text.size(); place += sizeof word) {
    std::memcpy(&word, text.data() + place, sizeof word);
    found |= word | (word + to_high_bit);
  }
  const auto rest = text.substr(place);
  return (found & (ones * 0x80)) != 0 ||
         std::ranges::any_of(rest, [](char c) { return static_cast<unsigned char>(c) >= 'a'; });
}

template <typename Visit>
class Text_Walk {
 public:
  explicit Text_Walk(const Visit& visit) : visit_(visit) {}

  Walk argument(const HostValue& value) {
    if (Is_Single_Cell(value)) return argument(Cell_Of(value));
    switch (value.kind()) {
      case Kind::missing:
        return Walk::on;
      case Kind::error:
        return visit_(value_token);
      case Kind::array:
        return Walk_Array(value.array(), [this](const HostValue& each) { return cell(each); });
      case Kind::range:
        return used_cells(value.range());
      case Kind::list:
        throw Run_Time_Failure(Failure_Number::type_mismatch,
                               "A list among the arguments has no rows and columns.");
      default:
        return cell(value);
    }
  }

 private:
  // Blank cells are passed over, and whole columns are mostly blank.
  Walk used_cells(const Range& range) {
    Walk walked = Walk::on;
    range.visit_used([&](const HostValue& each) {
      walked = cell(each);
      return walked == Walk::on;
    });
    return walked;
  }

  Walk cell(const HostValue& value) {
    const std::string_view text = Text_Of(value, scratch_);
    return text.empty() ? Walk::on : visit_(text);
  }

  const Visit& visit_;
  std::string scratch_;
};

template <typename Visit>
void Walk_Texts(const List& list, const Visit& visit) {
  Text_Walk<Visit> walk(visit);
  for (std::size_t i = 0; i < list.size(); ++i) {
    Yield_At(i + 1);
    if (walk.argument(list[i]) == Walk::end) return;
  }
}

// Whether a plain number is written in capitals: digits are, and so are most separators.
bool Is_In_Capitals(std::string_view text, const Plain_Number& number) {
  const bool has_separator =
      number.parts.integer.size() + static_cast<std::size_t>(number.negative) != text.size();
  return !has_separator || !May_Fold(Decimal_Separator());
}

}  // namespace

void For_Each_Cell(const HostValue& block, const std::function<Walk(const HostValue&)>& visit) {
  Walk_Block(block, visit);
}

void For_Each_Text(const List& list, const std::function<Walk(std::string_view)>& visit) {
  Walk_Texts(list, visit);
}

void Walk_List(const List& list, List_Options& options,
               const std::function<Walk(const List_Element&)>& visit) {
  std::string scratch;
  Walk_Texts(list, [&](std::string_view text) {
    if (Plain_Number plain; Read_Plain(text, plain) && Is_In_Capitals(text, plain)) {
      return visit({text, &plain});
    }
    const std::string_view capitals = Capitals_Of(text, scratch);
    if (!Is_Option_String(capitals)) return visit({capitals});
    Read_Option_String(capitals, options);
    return Walk::on;
  });
}

std::string_view Capitals_Of(std::string_view text, std::string& scratch) {
  if (!May_Fold(text)) return text;
  return scratch = To_Capitals(text);
}

}  // namespace quorvex
