#include "shell/registration_table.h"

#include <array>
#include <string_view>

#include "frame/catalogue.h"

namespace quorvex {
namespace {

// The order in which the macros of a category are listed. A macro is named like its method, in
// capitals throughout.
constexpr std::array macros = {"qvxADD",          "qvxSUBTRACT",
                               "qvxMULTIPLY",     "qvxDIVIDE",
                               "qvxPOWER",        "qvxROOT",
                               "qvxISEQUAL",      "qvxISNOTEQUAL",
                               "qvxISGREATER",    "qvxISGREATEROREQUAL",
                               "qvxISLESS",       "qvxISLESSOREQUAL",
                               "qvxABS",          "qvxACOS",
                               "qvxASIN",         "qvxATAN",
                               "qvxCHANGESIGN",   "qvxCOS",
                               "qvxDEGREES",      "qvxE",
                               "qvxEVEN",         "qvxEVEN2",
                               "qvxEXP",          "qvxFACT",
                               "qvxFACTDOUBLE",   "qvxFRAC",
                               "qvxGCD",          "qvxGCD2",
                               "qvxINT",          "qvxLCM",
                               "qvxLCM2",         "qvxLN",
                               "qvxLOG",          "qvxMOD",
                               "qvxMODTRUNC",     "qvxNEG",
                               "qvxODD",          "qvxODD2",
                               "qvxPI",           "qvxPRODUCT",
                               "qvxRADIANS",      "qvxREDUCEFRACTION",
                               "qvxREMAINDER",    "qvxROUND",
                               "qvxROUNDDOWN",    "qvxROUNDUP",
                               "qvxSIGN",         "qvxSIN",
                               "qvxSQRT",         "qvxSQRTPI",
                               "qvxSUM",          "qvxSUM2",
                               "qvxTAN",          "qvxTRUNC",
                               "qvxEXCLUDE",      "qvxEXCLUDENOTNUM",
                               "qvxEXTRACT",      "qvxEXTRACTNUM",
                               "qvxAVERAGE",      "qvxCOUNT",
                               "qvxLARGE",        "qvxMAX",
                               "qvxMEDIAN",       "qvxMIN",
                               "qvxMODE",         "qvxSMALL",
                               "qvxRANK",         "qvxPOISSON",
                               "qvxISERROR",      "qvxISEVEN",
                               "qvxISNUMBER",     "qvxISODD",
                               "qvxVERSION",      "qvxXLA",
                               "qvxSORT",         "qvxFORMAT",
                               "More_Information"};

// Macros of the workbook that no method of the class stands behind.
const Registration* Find_Workbook_Macro(std::string_view macro) {
  static const std::array<Registration, 2> workbook_macros = {
      Registration{"qvxXLA", "Returns the version number of the Quorvex.xla file.",
                   "Quorvex Add-In Information"},
      Registration{"More_Information",
                   "The add-in's help and the function reference tell more of each function, with "
                   "its arguments and examples.",
                   "High-Precision - More Info"}};
  for (const Registration& row : workbook_macros)
    if (row.macro == macro) return &row;
  return nullptr;
}

}  // namespace

std::vector<Registration> Registration_Table() {
  std::vector<Registration> table;
  table.reserve(macros.size());
  for (const std::string_view macro : macros) {
    if (const Registration* row = Find_Workbook_Macro(macro)) {
      table.push_back(*row);
    } else if (const Method* method = Find_Method(macro)) {
      table.push_back(
          {std::string(macro), std::string(method->description), std::string(method->category)});
    }
  }
  return table;
}

}  // namespace quorvex
