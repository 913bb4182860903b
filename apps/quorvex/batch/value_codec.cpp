// Host values as JSON and back.
#include "batch/value_codec.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "batch/json_document.h"
#include "host/run_time_failure.h"

namespace quorvex {
namespace {

using nlohmann::json;

[[noreturn]] void Refuse(std::string_view place, std::string_view reason) {
  throw Invalid_Request(std::string(place) + ": " + std::string(reason));
}

std::string Element(std::string_view place, std::size_t index) {
  return std::string(place) + "[" + std::to_string(index) + "]";
}

HostValue Error_From_Json(const json& code, std::string_view place) {
  constexpr std::array codes = {Error_Code::null,         Error_Code::division_by_zero,
                                Error_Code::value,        Error_Code::reference,
                                Error_Code::name,         Error_Code::number,
                                Error_Code::not_available};
  for (const Error_Code known : codes) {
    if (code.is_number_integer() && code == static_cast<int>(known)) return known;
  }
  Refuse(place, "an error is one of the codes 2000, 2007, 2015, 2023, 2029, 2036 and 2042");
}

HostValue List_From_Json(json&& items, std::string_view place) {
  if (!items.is_array()) Refuse(place, "a list is given as [value, ...]");
  List list;
  list.reserve(items.size());
  for (json& item : items)
    list.push_back(Value_From_Json(std::move(item), Element(place, list.size())));
  return list;
}

HostValue Array_From_Json(json&& rows, std::string_view place) {
  if (!rows.is_array()) Refuse(place, "an array is given as [[value, ...], ...]");
  Array array;
  for (json& row : rows) {
    const std::string row_place = Element(place, array.rows);
    if (!row.is_array() || row.empty()) Refuse(row_place, "a row is given as [value, ...]");
    if (array.rows == 0) array.columns = row.size();
    if (row.size() != array.columns) Refuse(row_place, "all rows have to be of the same length");
    for (json& cell : row) array.values.push_back(Value_From_Json(std::move(cell), row_place));
    ++array.rows;
  }
  return array;
}

HostValue Object_From_Json(json&& object, std::string_view place) {
  constexpr std::string_view forms =
      "an object is one of {\"missing\": true}, {\"error\": code}, {\"array\": [[...]]} and "
      "{\"list\": [...]}";
  if (object.size() != 1) Refuse(place, forms);
  const std::string& key = object.begin().key();
  json& content = object.begin().value();
  if (key == "missing" && content == true) return Missing;
  if (key == "error") return Error_From_Json(content, place);
  if (key == "list") return List_From_Json(std::move(content), place);
  if (key == "array") return Array_From_Json(std::move(content), place);
  Refuse(place, forms);
}

// The shortest decimals that read back as the same number. From the size on at which not every
// whole number is a float, whole digits would be more than those, and would read back as text.
void Append_Number(std::string& out, double number) {
  if (!std::isfinite(number))
    throw Run_Time_Failure(Failure_Number::overflow, "The result is no finite number.");
  // Whole zeros are read as integers, which know no sign.
  if (number == 0 && std::signbit(number)) {
    out += "-0.0";
    return;
  }
  constexpr double first_gap = 9007199254740992;  // 2^53
  std::array<char, 32> buffer{};
  char* const end = buffer.data() + buffer.size();
  const auto written = std::fabs(number) < first_gap ? std::to_chars(buffer.data(), end, number)
                                                     : std::to_chars(buffer.data(), end, number,
                                                                     std::chars_format::scientific);
  out.append(buffer.data(), written.ptr);
}

void Append_Number_Object(std::string& out, std::string_view key, int number) {
  out.append("{\"").append(key).append("\":").append(std::to_string(number)).append("}");
}

void Append_List(std::string& out, const List& list) {
  out += "{\"list\":[";
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i > 0) out += ',';
    Append_Json(out, list[i]);
  }
  out += "]}";
}

// `cell` gives the value at a row and a column, both counted from 0.
template <typename Cell>
void Append_Rows(std::string& out, std::size_t rows, std::size_t columns, const Cell& cell) {
  out += "{\"array\":[";
  for (std::size_t row = 0; row < rows; ++row) {
    out += row > 0 ? ",[" : "[";
    for (std::size_t column = 0; column < columns; ++column) {
      if (column > 0) out += ',';
      Append_Json(out, cell(row, column));
    }
    out += ']';
  }
  out += "]}";
}

void Append_Array(std::string& out, const Array& array) {
  Append_Rows(out, array.rows, array.columns,
              [&](std::size_t row, std::size_t column) -> const HostValue& {
                return array.values[row * array.columns + column];
              });
}

void Append_Range(std::string& out, const Range& range) {
  Append_Rows(out, range.rows(), range.columns(),
              [&](std::size_t row, std::size_t column) { return range.cell(row + 1, column + 1); });
}

}  // namespace

HostValue Value_From_Json(json&& json, std::string_view place) {
  using Type = nlohmann::json::value_t;
  switch (json.type()) {
    case Type::null:
      return HostValue::Empty();
    case Type::boolean:
      return json.get<bool>();
    case Type::number_integer:
    case Type::number_unsigned:
    case Type::number_float:
      return json.get<double>();
    case Type::string:
      return std::move(json.get_ref<std::string&>());
    case Type::object:
      return Object_From_Json(std::move(json), place);
    case Type::array:
      Refuse(place, R"(a bare [...] is no value; write {"list": [...]} or {"array": [[...]]})");
    default:
      Refuse(place, "this is no value");
  }
}

void Append_Json(std::string& out, const HostValue& value) {
  switch (value.kind()) {
    case HostValue::Kind::missing:
      out += "{\"missing\":true}";
      return;
    case HostValue::Kind::empty:
      out += "null";
      return;
    case HostValue::Kind::number:
      Append_Number(out, value.number());
      return;
    case HostValue::Kind::text:
      Append_Json_String(out, value.text());
      return;
    case HostValue::Kind::boolean:
      out += value.boolean() ? "true" : "false";
      return;
    case HostValue::Kind::error:
      Append_Number_Object(out, "error", static_cast<int>(value.error()));
      return;
    case HostValue::Kind::array:
      Append_Array(out, value.array());
      return;
    case HostValue::Kind::list:
      Append_List(out, value.list());
      return;
    case HostValue::Kind::range:
      Append_Range(out, value.range());
      return;
  }
}

}  // namespace quorvex
