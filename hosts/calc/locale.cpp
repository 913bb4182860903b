// The office's own settings of separators and currency, which can differ from the system's.
#include <com/sun/star/i18n/LocaleData2.hpp>
#include <com/sun/star/lang/Locale.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/NumberFormatsSupplier.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

#include <algorithm>
#include <string>
#include <string_view>

#include "host/locale_rules.h"
#include "office.h"
#include "text.h"

namespace quorvex::calc {
namespace {

using namespace com::sun::star;

constexpr std::string_view apostrophe = "'";
constexpr std::string_view typographic_apostrophe = "\u2019";

// A currency as a format writes it: "[$€-407]" or "[$CHF]" stands for the symbol.
struct Format_Currency {
  std::string symbol;
  Currency_Side side = Currency_Side::before;
};

// Blanks between symbol and number belong to the symbol, on either side.
Format_Currency Currency_Of(std::string_view format) {
  format = format.substr(0, format.find(';'));
  const std::size_t mark = format.find("[$");
  const std::size_t end = format.find(']', mark);
  if (mark == std::string_view::npos || end == std::string_view::npos) return {"$"};
  std::string_view symbol = format.substr(mark + 2, end - mark - 2);
  symbol = symbol.substr(0, symbol.find('-'));
  Format_Currency currency{std::string(symbol)};
  if (mark < format.find_first_of("#0")) {
    const std::size_t first_digit = std::min(format.find_first_of("#0", end), format.size());
    currency.symbol += format.substr(end + 1, first_digit - end - 1);
  } else {
    const std::size_t last_digit = format.find_last_of("#0", mark);
    currency.side = Currency_Side::after;
    currency.symbol.insert(0, format.substr(last_digit + 1, mark - last_digit - 1));
  }
  // Formats put quote marks around literal text and a backslash before a literal character.
  std::erase_if(currency.symbol, [](char sign) { return sign == '"' || sign == '\\'; });
  return currency;
}

// What the office told last; it calls from one thread at a time.
bool groups_by_apostrophe = false;

class Locale_Of_Office final : public Locale_Source {
 public:
  explicit Locale_Of_Office(const Context& context)
      : data_(i18n::LocaleData2::create(context).get()), context_(context) {}

  Separators separators() override {
    const Locale locale = Usable_Locale(Report());
    return {locale.decimal_separator, locale.thousands_separator};
  }

  Currency currency() override {
    Locale_Report report = Report();
    const Format_Currency found = Currency_Of(To_Utf8(Currency_Format()));
    report.currency_symbol = found.symbol;
    report.currency_side = found.side;
    const Locale locale = Usable_Locale(report);
    return {locale.currency_symbol, locale.currency_side};
  }

 private:
  // An empty locale stands for the user's.
  Locale_Report Report() {
    const i18n::LocaleDataItem item = data_->getLocaleItem(lang::Locale());
    Locale_Report report;
    report.decimal_separator = To_Utf8(item.decimalSeparator);
    report.thousands_separator = To_Utf8(item.thousandSeparator);
    groups_by_apostrophe = report.thousands_separator == apostrophe;
    if (groups_by_apostrophe) report.monetary_thousands_separator = typographic_apostrophe;
    return report;
  }

  rtl::OUString Currency_Format() {
    const auto formats =
        util::NumberFormatsSupplier::createWithDefaultLocale(context_)->getNumberFormats();
    const uno::Reference<util::XNumberFormatTypes> types(formats, uno::UNO_QUERY_THROW);
    const sal_Int32 key = types->getStandardFormat(util::NumberFormat::CURRENCY, lang::Locale());
    rtl::OUString format;
    formats->getByKey(key)->getPropertyValue("FormatString") >>= format;
    return format;
  }

  uno::Reference<i18n::XLocaleData4> data_;
  Context context_;
};

// Puts one apostrophe for another wherever it stands between digits.
void Replace_Between_Digits(std::string& text, std::string_view from, std::string_view to) {
  const auto is_digit = [&](std::size_t place) {
    return place < text.size() && text[place] >= '0' && text[place] <= '9';
  };
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
    if (is_digit(at - 1) && is_digit(at + from.size())) text.replace(at, from.size(), to);
    ++at;
  }
}

}  // namespace

std::shared_ptr<Locale_Source> Office_Locale(const Context& context) {
  return std::make_shared<Locale_Of_Office>(context);
}

void Read_Apostrophes(std::string& text) {
  if (text.find(apostrophe) == std::string::npos) return;
  Current_Separators();
  if (groups_by_apostrophe) Replace_Between_Digits(text, apostrophe, typographic_apostrophe);
}

void Write_Apostrophes(std::string& text) {
  if (groups_by_apostrophe) Replace_Between_Digits(text, typographic_apostrophe, apostrophe);
}

}  // namespace quorvex::calc
