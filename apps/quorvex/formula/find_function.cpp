#include "formula/find_function.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "formula/choices.h"
#include "formula/literals.h"
#include "host/conversions.h"

namespace quorvex {

namespace {

// All functions begin with it, and people leave it out.
constexpr std::string_view prefix = "QVX";
constexpr std::size_t longest_typed = 40;

using Pair = std::pair<std::string_view, std::string_view>;

// Spreadsheets' own functions, and what stands in their place.
constexpr std::array counterparts{
    Pair{"SUM", "qvxSUM2: it takes ranges and values and passes over text that is no number"},
    Pair{"AVERAGE",
         "qvxAVERAGE, with \"format:MSD=50\" as its last argument for the digits to show"},
    Pair{"PRODUCT", "qvxPRODUCT"},
    Pair{"COUNT", "qvxCOUNT: it counts text that is a number, too"},
    Pair{"MAX", "qvxMAX: its first argument must be a number"},
    Pair{"MIN", "qvxMIN: its first argument must be a number"},
    Pair{"MEDIAN", "qvxMEDIAN"},
    Pair{"MODE", "qvxMODE"},
    Pair{"LARGE", "qvxLARGE"},
    Pair{"SMALL", "qvxSMALL"},
    Pair{"RANK", "qvxRANK"},
    Pair{"SORT", "qvxSORT"},
    Pair{"ROUND",
         "qvxROUND: a negative count of places acts one place short, so -2 rounds to tens"},
    Pair{"ROUNDUP", "qvxROUNDUP: it carries a 9 in the last place also where nothing is cut off"},
    Pair{"ROUNDDOWN", "qvxROUNDDOWN"},
    Pair{"TRUNC", "qvxTRUNC: a negative count of places acts one place short, so -2 cuts to tens"},
    Pair{"INT", "qvxINT"},
    Pair{"MOD", "qvxMOD"},
    Pair{"QUOTIENT", "qvxTRUNC(number / divisor, 0)"},
    Pair{"ABS", "qvxABS"},
    Pair{"SIGN", "qvxSIGN"},
    Pair{"EVEN", "qvxEVEN"},
    Pair{"ODD", "qvxODD"},
    Pair{"POWER", "qvxPOWER, or the operator ^"},
    Pair{"SQRT", "qvxSQRT"},
    Pair{"EXP", "qvxEXP"},
    Pair{"LN", "qvxLN"},
    Pair{"LOG", "qvxLOG"},
    Pair{"LOG10", "qvxLOG(number, 10)"},
    Pair{"FACT", "qvxFACT"},
    Pair{"FACTDOUBLE", "qvxFACTDOUBLE"},
    Pair{"GCD", "qvxGCD"},
    Pair{"LCM", "qvxLCM"},
    Pair{"PI", "qvxPi(digits)"},
    Pair{"SIN", "qvxSIN"},
    Pair{"COS", "qvxCOS"},
    Pair{"TAN", "qvxTAN"},
    Pair{"ASIN", "qvxASIN"},
    Pair{"ACOS", "qvxACOS"},
    Pair{"ATAN", "qvxATAN"},
    Pair{"DEGREES", "qvxDEGREES"},
    Pair{"RADIANS", "qvxRADIANS"},
    Pair{"POISSON", "qvxPOISSON"},
    Pair{"ISERROR", "qvxISERROR: it calls any text with a # an error"},
    Pair{"ISNUMBER", "qvxISNUMBER: it says what the functions can read, text as well"},
    Pair{"CONCATENATE", "the operator &"},
    Pair{"CONCAT", "the operator &"},
    Pair{"TEXT", "qvxFORMAT"},
    Pair{"FIXED", "qvxFORMAT"},
};

// Characters to put in, take out, replace or swap with the next one.
std::size_t Edit_Distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> before_last(to.size() + 1);
  std::vector<std::size_t> last(to.size() + 1);
  std::vector<std::size_t> row(to.size() + 1);
  for (std::size_t column = 0; column <= to.size(); ++column) row[column] = column;
  for (std::size_t line = 1; line <= from.size(); ++line) {
    before_last.swap(last);
    last.swap(row);
    row[0] = line;
    for (std::size_t column = 1; column <= to.size(); ++column) {
      const bool same = from[line - 1] == to[column - 1];
      row[column] =
          std::min({last[column] + 1, row[column - 1] + 1, last[column - 1] + (same ? 0U : 1U)});
      const bool swapped = line > 1 && column > 1 && from[line - 1] == to[column - 2] &&
                           from[line - 2] == to[column - 1];
      if (swapped) row[column] = std::min(row[column], before_last[column - 2] + 1);
    }
  }
  return row[to.size()];
}

}  // namespace

std::string Signature(const Method& method) {
  std::string text(method.name);
  text += '(';
  for (const Parameter& parameter : method.parameters) {
    if (&parameter != &method.parameters.front()) text += ", ";
    text +=
        parameter.optional ? "[" + std::string(parameter.name) + "]" : std::string(parameter.name);
  }
  return text + ")";
}

bool Is_Worksheet_Function(const Method& method) {
  return Same_Word(method.name.substr(0, prefix.size()), prefix);
}

const Method* Find_Function(std::string_view name, Functions functions) {
  const bool is_reached =
      functions == Functions::all || Same_Word(name.substr(0, prefix.size()), prefix);
  return is_reached ? Find_Method(name) : nullptr;
}

std::optional<std::string_view> Nearest_Function(std::string_view typed, Functions functions) {
  if (typed.size() > longest_typed) return std::nullopt;
  std::string wanted = To_Capitals(typed);
  // Every name has letters.
  if (wanted.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos) return std::nullopt;
  if (!wanted.starts_with(prefix.substr(0, 2))) wanted.insert(0, prefix);
  // A slip in a third of what tells the functions apart is as far as a guess makes sense.
  const std::size_t telling = wanted.size() > prefix.size() ? wanted.size() - prefix.size() : 0;
  std::size_t nearest = std::max<std::size_t>(1, telling / 3) + 1;
  std::optional<std::string_view> name;
  for (const Method& method : Catalogue()) {
    if (functions == Functions::of_worksheets && !Is_Worksheet_Function(method)) continue;
    const std::size_t distance = Edit_Distance(wanted, To_Capitals(method.name));
    if (distance >= nearest) continue;
    nearest = distance;
    name = method.name;
  }
  return name;
}

std::string_view Counterpart(std::string_view spreadsheet_function) {
  const auto found = std::find_if(counterparts.begin(), counterparts.end(), [&](const auto& pair) {
    return Same_Word(pair.first, spreadsheet_function);
  });
  return found == counterparts.end() ? std::string_view() : found->second;
}

std::string Advice_On_Function(std::string_view typed, Functions functions) {
  if (const std::string_view counterpart = Counterpart(typed); !counterpart.empty())
    return "; use " + std::string(counterpart);
  const auto nearest = Nearest_Function(typed, functions);
  return nearest ? "; did you mean " + std::string(*nearest) + "?" : "";
}

}  // namespace quorvex
