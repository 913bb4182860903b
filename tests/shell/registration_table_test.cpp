// What the host's function dialog is told.
#include "shell/registration_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "frame/catalogue.h"

namespace quorvex {
namespace {

struct Listed_Category {
  const char* category;
  const char* macros;
};

// Worksheets and their users know the functions by these categories, in this order.
const std::vector<Listed_Category> listed = {
    {"High-Precision Operators",
     "qvxADD qvxSUBTRACT qvxMULTIPLY qvxDIVIDE qvxPOWER qvxROOT qvxISEQUAL qvxISNOTEQUAL "
     "qvxISGREATER qvxISGREATEROREQUAL qvxISLESS qvxISLESSOREQUAL"},
    {"High-Precision Math",
     "qvxABS qvxACOS qvxASIN qvxATAN qvxCHANGESIGN qvxCOS qvxDEGREES qvxE qvxEVEN qvxEVEN2 "
     "qvxEXP qvxFACT qvxFACTDOUBLE qvxFRAC qvxGCD qvxGCD2 qvxINT qvxLCM qvxLCM2 qvxLN "
     "qvxLOG qvxMOD qvxMODTRUNC qvxNEG qvxODD qvxODD2 qvxPI qvxPRODUCT qvxRADIANS "
     "qvxREDUCEFRACTION qvxREMAINDER qvxROUND qvxROUNDDOWN qvxROUNDUP qvxSIGN qvxSIN "
     "qvxSQRT qvxSQRTPI qvxSUM qvxSUM2 qvxTAN qvxTRUNC"},
    {"High-Precision Text", "qvxEXCLUDE qvxEXCLUDENOTNUM qvxEXTRACT qvxEXTRACTNUM"},
    {"High-Precision Statistical",
     "qvxAVERAGE qvxCOUNT qvxLARGE qvxMAX qvxMEDIAN qvxMIN qvxMODE qvxSMALL qvxRANK "
     "qvxPOISSON"},
    {"High-Precision Information", "qvxISERROR qvxISEVEN qvxISNUMBER qvxISODD"},
    {"Quorvex Add-In Information", "qvxVERSION qvxXLA"},
    {"High-Precision Miscellaneous", "qvxSORT qvxFORMAT"},
    {"High-Precision - More Info", "More_Information"},
};

/// A macro and its category.
using Listed_Macro = std::pair<std::string, std::string>;

std::vector<Listed_Macro> Listed_Macros() {
  std::vector<Listed_Macro> macros;
  for (const auto& [category, names] : listed) {
    std::istringstream words(names);
    for (std::string name; words >> name;) macros.emplace_back(name, category);
  }
  return macros;
}

TEST(RegistrationTable, IsWholeAndInOrderUnderItsCategories) {
  std::vector<Listed_Macro> registered;
  for (const Registration& row : Registration_Table()) {
    registered.emplace_back(row.macro, row.category);
    EXPECT_FALSE(row.description.empty()) << row.macro;
  }
  EXPECT_EQ(registered.size(), 77U);
  EXPECT_EQ(registered, Listed_Macros());
}

TEST(RegistrationTable, HoldsEveryMethodThatIsOfferedInADialog) {
  std::set<std::string_view> there;
  const auto table = Registration_Table();
  for (const Registration& row : table)
    if (const Method* method = Find_Method(row.macro)) there.insert(method->name);
  for (const Method& method : Catalogue())
    EXPECT_EQ(there.contains(method.name), !method.category.empty()) << method.name;
}

/// The length as hosts count it: in words of 16 bits.
std::ptrdiff_t Count_Words(std::string_view utf8) {
  return std::ranges::count_if(utf8, [](char byte) { return (byte & 0xC0) != 0x80; }) +
         std::ranges::count_if(utf8, [](char byte) { return (byte & 0xF8) == 0xF0; });
}

TEST(RegistrationTable, DescribesInWhatAHostTakesAndTellsThePrecision) {
  const std::set<std::string> without_numbers = {"qvxISERROR", "qvxFORMAT", "qvxVERSION", "qvxXLA",
                                                 "More_Information"};
  for (const Registration& row : Registration_Table()) {
    // A host refuses the whole description where it is longer.
    EXPECT_LE(Count_Words(row.description), 255) << row.macro;
    EXPECT_EQ(row.description.find(", with up to 32,767 significant digits of precision.") !=
                  std::string::npos,
              !without_numbers.contains(row.macro))
        << row.macro;
  }
}

TEST(RegistrationTable, DescribesTheFunctionsInTheWordsThatUsersKnow) {
  const std::map<std::string, std::string> known = {
      {"qvxADD", "Adds two numbers, with up to 32,767 significant digits of precision."},
      {"qvxSUBTRACT",
       "Subtracts one number from another, with up to 32,767 significant digits of precision. "
       "Number2 is subtracted from number1."},
      {"qvxPOWER",
       "Raises one number to the power of another number, with up to 32,767 significant "
       "digits of precision. Num is raised to the power of pwr."},
      {"qvxROOT",
       "Gets the specified root of a number, with up to 32,767 significant digits of "
       "precision."},
      {"qvxISGREATER",
       "Determines whether one number is larger than another, with up to 32,767 significant "
       "digits of precision. Returns TRUE if the first number is larger than the second; "
       "returns FALSE if the first number is smaller than the second number, or if they are "
       "equal."},
      {"qvxABS",
       "Returns the absolute value of a number, with up to 32,767 significant digits of "
       "precision. The absolute value of a number is the number with its negative sign (if it "
       "had one) removed."},
      {"qvxCHANGESIGN",
       "Changes the sign of a number, with up to 32,767 significant digits of precision. "
       "Positive numbers are changed to negative, and negative numbers are changed to "
       "positive."},
      {"qvxNEG",
       "Returns a number with a negative sign, with up to 32,767 significant digits of "
       "precision."},
      {"qvxE",
       "Returns the mathematical constant e, the base of natural logarithms, with up to "
       "32,767 significant digits of precision. e's decimal places continue infinitely and "
       "never repeat."},
      {"qvxPI",
       "Returns the mathematical constant Pi, the ratio of circumference of a circle divided "
       "by its diameter, with up to 32,767 significant digits of precision. Pi is the same "
       "for all circles. Pi's decimal places continue infinitely and never repeat."},
      {"qvxLN",
       "Returns the natural logarithm of a number, with up to 32,767 significant digits of "
       "precision. The natural logarithm is the logarithm to the base of the constant e "
       "(approximately 2.71828). qvxLN uses the constant e with up to 32,767 significant "
       "digits."},
      {"qvxSIN",
       "Returns the sine of an angle, with up to 32,767 significant digits of precision. For "
       "any given angle in a right triangle, the angle's sine is the length of the side "
       "opposite the angle divided by the length of the side opposite the right angle."},
      {"qvxSUM2",
       "Returns the sum of the numeric arguments, with up to 32,767 significant digits of "
       "precision.  \"format:negative,thousands,currency,exponent,MSD=n\""},
      {"qvxMODE",
       "Returns the most frequently occurring of the numeric arguments, with up to 32,767 "
       "significant digits of precision. Array-enter to return table. "
       "\"format:table,blank=<text>&,negative,thousands,currency,exponent,MSD=n\""},
      {"qvxPOISSON",
       "Returns the Poisson distribution, with up to 32,767 significant digits of precision. "
       "Can return cumulative or non-cumulative Poisson distribution."},
      {"qvxISNUMBER",
       "Determines whether a value or text string can be evaluated as a number by Quorvex "
       "functions, with up to 32,767 significant digits of precision. Returns TRUE if input "
       "can be evaluated as a number by Quorvex functions; returns FALSE if not."},
      {"qvxISERROR",
       "Determines whether a value returned by an Quorvex function is an error value. Returns "
       "TRUE if it is an error; FALSE if not."},
      {"qvxSORT",
       "Sorts a range of numbers, with up to 32,767 significant digits of precision. Must be "
       "array-entered."},
      {"qvxFORMAT", "Applies formatting to a number entered as text."},
      {"qvxVERSION", "Returns the version number of Quorvex."},
      {"qvxXLA", "Returns the version number of the Quorvex.xla file."},
  };
  for (const Registration& row : Registration_Table()) {
    const auto description = known.find(row.macro);
    if (description != known.end()) {
      EXPECT_EQ(row.description, description->second) << row.macro;
    }
  }
}

}  // namespace
}  // namespace quorvex
