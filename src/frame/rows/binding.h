// Calls of methods with lists of host values: the arguments are converted to what the method's
// signature says, and its result to what a call gives.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "frame/rows/method.h"
#include "host/conversions.h"
#include "host/locale_of_call.h"

namespace quorvex::binding {

template <typename>
constexpr bool unknown = false;

template <typename Type>
constexpr Parameter_Kind Kind_Of() {
  using Value = std::remove_cvref_t<Type>;
  if constexpr (std::is_same_v<Value, HostValue>) {
    return Parameter_Kind::value;
  } else if constexpr (std::is_same_v<Value, NumberText> ||
                       std::is_same_v<Value, std::optional<std::string_view>>) {
    return Parameter_Kind::text;
  } else if constexpr (std::is_same_v<Value, std::optional<double>>) {
    return Parameter_Kind::number;
  } else if constexpr (std::is_same_v<Value, std::int32_t>) {
    return Parameter_Kind::integer;
  } else if constexpr (std::is_same_v<Value, bool>) {
    return Parameter_Kind::boolean;
  } else if constexpr (std::is_same_v<Value, List>) {
    return Parameter_Kind::list;
  } else if constexpr (std::is_same_v<Value, std::shared_ptr<Host_Application>>) {
    return Parameter_Kind::object;
  } else {
    static_assert(unknown<Value>, "no kind of parameter is of this type");
  }
}

/// Whether a method changes what it is given for a parameter of that type.
template <typename Type>
constexpr bool is_changed =
    std::is_lvalue_reference_v<Type> && !std::is_const_v<std::remove_reference_t<Type>>;

template <typename Type>
constexpr Result_Kind Result_Of() {
  if constexpr (std::is_void_v<Type>) {
    return Result_Kind::nothing;
  } else if constexpr (std::is_same_v<Type, NumberText>) {
    return Result_Kind::text;
  } else if constexpr (std::is_same_v<Type, HostValue>) {
    return Result_Kind::value;
  } else if constexpr (std::is_same_v<Type, bool>) {
    return Result_Kind::boolean;
  } else {
    return Result_Kind::record;
  }
}

template <typename Type>
constexpr std::string_view Record_Of() {
  if constexpr (std::is_same_v<Type, type_Restrictionator>) {
    return "type_Restrictionator";
  } else if constexpr (std::is_same_v<Type, type_Division_Recip>) {
    return "type_Division_Recip";
  } else {
    static_assert(Result_Of<Type>() != Result_Kind::record, "no record of this type has a name");
    return {};
  }
}

/// A value's own text, or the text made of it, for the length of a call.
class Text_Argument {
 public:
  explicit Text_Argument(const HostValue& argument)
      : made_(argument.is_text() ? NumberText() : To_Text(argument)),
        text_(argument.is_text() ? argument.text() : made_) {}
  Text_Argument(const Text_Argument&) = delete;
  Text_Argument& operator=(const Text_Argument&) = delete;
  ~Text_Argument() = default;

  operator const NumberText&() const { return text_; }

 private:
  NumberText made_;
  const NumberText& text_;
};

/// The same for a text that may be left out.
class Optional_Text_Argument {
 public:
  explicit Optional_Text_Argument(const HostValue& argument) {
    if (!argument.is_missing()) text_ = Text_Of(argument, made_);
  }
  Optional_Text_Argument(const Optional_Text_Argument&) = delete;
  Optional_Text_Argument& operator=(const Optional_Text_Argument&) = delete;
  ~Optional_Text_Argument() = default;

  operator std::optional<std::string_view>() const { return text_; }

 private:
  std::string made_;
  std::optional<std::string_view> text_;
};

/// A list for the length of a call: a missing one is empty, and any other value that is no list is
/// the only element of one.
class List_Argument {
 public:
  explicit List_Argument(const HostValue& argument);
  List_Argument(const List_Argument&) = delete;
  List_Argument& operator=(const List_Argument&) = delete;
  ~List_Argument() = default;

  operator const List&() const { return list_; }

 private:
  List made_;
  const List& list_;
};

/// Makes a value its own text, and gives that text to be changed.
NumberText& Text_In_Place(HostValue& argument);

/// Values can't hold an object of the host: null for a missing or empty one, a failure for any
/// other.
std::shared_ptr<Host_Application> Application_In(const HostValue& argument);

/// An argument as a parameter takes it: itself for a parameter of any value, and otherwise
/// converted. Only an argument that the method changes is changed. A truth value that is left out
/// is false.
template <typename Type>
decltype(auto) Take(HostValue& argument) {
  constexpr Parameter_Kind kind = Kind_Of<Type>();
  if constexpr (kind == Parameter_Kind::value) {
    return (argument);
  } else if constexpr (kind == Parameter_Kind::number) {
    return argument.is_missing() ? std::nullopt : std::optional<double>(To_Number(argument));
  } else if constexpr (kind == Parameter_Kind::integer) {
    return To_Int32(argument);
  } else if constexpr (kind == Parameter_Kind::boolean) {
    return !argument.is_missing() && To_Boolean(argument);
  } else if constexpr (kind == Parameter_Kind::list) {
    return List_Argument(argument);
  } else if constexpr (kind == Parameter_Kind::object) {
    return Application_In(argument);
  } else if constexpr (is_changed<Type>) {
    return Text_In_Place(argument);
  } else if constexpr (std::is_same_v<std::remove_cvref_t<Type>, NumberText>) {
    return Text_Argument(argument);
  } else {
    return Optional_Text_Argument(argument);
  }
}

inline Call_Result Give(HostValue value) {
  return value;
}
inline Call_Result Give(NumberText text) {
  return HostValue(std::move(text));
}
inline Call_Result Give(bool boolean) {
  return HostValue(boolean);
}
Call_Result Give(const type_Restrictionator& options);
Call_Result Give(const type_Division_Recip& quotient);

template <auto method>
struct Bound;

template <typename Result, typename... Types, Result (cls_Quorvex::*method)(Types...)>
struct Bound<method> {
  static constexpr std::array<Parameter_Kind, sizeof...(Types)> kinds{Kind_Of<Types>()...};
  static constexpr std::array<bool, sizeof...(Types)> changes{is_changed<Types>...};
  static constexpr Result_Kind result = Result_Of<Result>();
  static constexpr std::string_view record = Record_Of<Result>();

  static Call_Result Invoke(cls_Quorvex& engine, std::span<HostValue> arguments) {
    return Invoke(engine, arguments, std::index_sequence_for<Types...>{});
  }

 private:
  template <std::size_t... places>
  static Call_Result Invoke(cls_Quorvex& engine, [[maybe_unused]] std::span<HostValue> arguments,
                            std::index_sequence<places...>) {
    if constexpr (sizeof...(Types) == 0) {
      return Call(engine);
    } else {
      // Texts are made of numbers and numbers of texts by the same locale as the method works in.
      Locale_Of_Call locale;
      const auto call = [&](auto&&... taken) {
        locale.hand_over();
        return Call(engine, std::forward<decltype(taken)>(taken)...);
      };
      return call(Take<Types>(arguments[places])...);
    }
  }

  template <typename... Taken>
  static Call_Result Call(cls_Quorvex& engine, Taken&&... taken) {
    if constexpr (std::is_void_v<Result>) {
      (engine.*method)(std::forward<Taken>(taken)...);
      return {};
    } else {
      return Give((engine.*method)(std::forward<Taken>(taken)...));
    }
  }
};

}  // namespace quorvex::binding
