#include "conversion.h"

#include <com/sun/star/uno/Sequence.hxx>

#include <bit>
#include <cstdint>
#include <memory>
#include <utility>
#include <variant>

#include "host/platform.h"
#include "office.h"
#include "text.h"

namespace quorvex::calc {
namespace {

using com::sun::star::uno::Any;
using com::sun::star::uno::Sequence;
using com::sun::star::uno::TypeClass_STRING;
using com::sun::star::uno::TypeClass_VOID;

using Matrix = Sequence<Sequence<Any>>;

// The office's own numbers of errors, which it finds in the payload of a NaN.
enum class Office_Error : std::uint64_t {
  no_code = 521,
  number = 503,
  value = 519,
  no_convergence = 523,
  reference = 524,
  name = 525,
  division_by_zero = 532,
  not_available = 32767,
};

// The host's number for it, which the engine itself never raises.
constexpr Failure_Number division_by_zero{11};

Any Error(Office_Error error) {
  constexpr std::uint64_t quiet_nan = 0x7ff8000000000000;
  return Any(std::bit_cast<double>(quiet_nan | static_cast<std::uint64_t>(error)));
}

Office_Error Error_Of(Error_Code code) {
  switch (code) {
    case Error_Code::null:
      return Office_Error::no_code;
    case Error_Code::division_by_zero:
      return Office_Error::division_by_zero;
    case Error_Code::reference:
      return Office_Error::reference;
    case Error_Code::name:
      return Office_Error::name;
    case Error_Code::number:
      return Office_Error::number;
    case Error_Code::not_available:
      return Office_Error::not_available;
    case Error_Code::value:
      break;
  }
  return Office_Error::value;
}

// A matrix of one element: a reference to one cell arrives so.
class Single_Cell final : public Range {
 public:
  explicit Single_Cell(HostValue value) : value_(std::move(value)) {}
  std::size_t rows() const override { return 1; }
  std::size_t columns() const override { return 1; }
  HostValue cell(std::size_t /*row*/, std::size_t /*column*/) const override { return value_; }

 private:
  HostValue value_;
};

HostValue Element(const Any& element) {
  HostValue value = From_Office(element);
  if (value.is_missing() || (value.is_text() && value.text().empty())) return HostValue::Empty();
  return value;
}

HostValue From_Matrix(const Matrix& matrix) {
  Array array;
  array.rows = static_cast<std::size_t>(matrix.getLength());
  array.columns = array.rows == 0 ? 0 : static_cast<std::size_t>(matrix[0].getLength());
  if (array.rows == 1 && array.columns == 1) {
    return std::shared_ptr<const Range>(std::make_shared<Single_Cell>(Element(matrix[0][0])));
  }
  array.values.reserve(array.rows * array.columns);
  for (const Sequence<Any>& row : matrix) {
    for (const Any& element : row) {
      if (array.values.size() % steps_between_yields == 0) Yield();
      array.values.push_back(Element(element));
    }
  }
  return array;
}

Any Text(const std::string& text) {
  if (Is_Ascii(text)) return Any(To_Utf16(text));
  std::string written = text;
  Write_Apostrophes(written);
  return Any(To_Utf16(written));
}

Any To_Matrix(const Array& array) {
  Matrix matrix(static_cast<sal_Int32>(array.rows));
  Sequence<Any>* const rows = matrix.getArray();
  std::size_t done = 0;
  for (std::size_t row = 0; row < array.rows; ++row) {
    rows[row].realloc(static_cast<sal_Int32>(array.columns));
    Any* const cells = rows[row].getArray();
    for (std::size_t column = 0; column < array.columns; ++column) {
      if (done % steps_between_yields == 0) Yield();
      cells[column] = To_Office(array.values[done++]);
    }
  }
  return Any(matrix);
}

// Reads a range as the array that it is.
Array Read(const Range& range) {
  Array array;
  array.rows = range.rows();
  array.columns = range.columns();
  for (std::size_t row = 1; row <= array.rows; ++row) {
    Yield();
    for (std::size_t column = 1; column <= array.columns; ++column) {
      array.values.push_back(range.cell(row, column));
    }
  }
  return array;
}

}  // namespace

HostValue From_Office(const Any& value) {
  switch (value.getValueTypeClass()) {
    case TypeClass_VOID:
      return {};
    case TypeClass_STRING: {
      std::string text = To_Utf8(*static_cast<const rtl::OUString*>(value.getValue()));
      Read_Apostrophes(text);
      return text;
    }
    default:
      break;
  }
  double number = 0;
  if (value >>= number) return number;
  bool truth = false;
  if (value >>= truth) return truth;
  Matrix matrix;
  if (value >>= matrix) return From_Matrix(matrix);
  throw Run_Time_Failure(Failure_Number::type_mismatch,
                         "The office hands over a value of an unknown kind.");
}

HostValue From_Office(const Any& value, const Parameter& parameter) {
  HostValue argument = From_Office(value);
  if (!parameter.is_truth_value || argument.kind() != HostValue::Kind::number) return argument;
  if (argument.number() == 1) return true;
  if (argument.number() == 0) return false;
  return argument;
}

Any To_Office(const HostValue& value) {
  switch (value.kind()) {
    case HostValue::Kind::text:
      return Text(value.text());
    case HostValue::Kind::number:
      return Any(value.number());
    case HostValue::Kind::boolean:
      return Any(value.boolean() ? 1.0 : 0.0);
    case HostValue::Kind::error:
      return Error(Error_Of(value.error()));
    case HostValue::Kind::array:
      return To_Matrix(value.array());
    case HostValue::Kind::range:
      return To_Matrix(Read(value.range()));
    case HostValue::Kind::missing:
    case HostValue::Kind::empty:
    case HostValue::Kind::list:
      break;
  }
  return Any(rtl::OUString());
}

Any To_Office(const Call_Result& result) {
  if (const auto* value = std::get_if<HostValue>(&result)) return To_Office(*value);
  return Any(rtl::OUString());
}

Any Cell_Error(const Run_Time_Failure& failure) {
  if (failure.number() == division_by_zero) return Error(Office_Error::division_by_zero);
  switch (failure.number()) {
    case Failure_Number::overflow:
      return Error(Office_Error::number);
    case Failure_Number::too_complex:
    case Failure_Number::interrupted:
      return Error(Office_Error::no_convergence);
    default:
      return Value_Error();
  }
}

Any Value_Error() {
  return Error(Office_Error::value);
}

}  // namespace quorvex::calc
