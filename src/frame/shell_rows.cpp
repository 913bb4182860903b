// Rows of the catalogue: the methods of the add-in itself.
#include "frame/catalogue_rows.h"
#include "frame/result_texts.h"

namespace quorvex::catalogue {

std::vector<Method> Host_Rows() {
  return {
      Row<&cls_Quorvex::SetExcelApp>(
          "SetExcelApp", "Shell", not_offered,
          "Tells the add-in the host that it runs in. An empty argument changes nothing.", "",
          {Operand_Parameter("excel_app", "the host's application object")},
          {"Nothing.", {"The call fails for a value that is no application of a host."}}),
      Row<&cls_Quorvex::qvxHelpfilePath>(
          "qvxHelpfilePath", "Shell", not_offered, "Returns where the help file belongs.", "", {},
          {"The whole path, beside the library; nobody looks whether the file is there.",
           {nothing_fails}}),
  };
}

std::vector<Method> About_Rows() {
  return {
      Row<&cls_Quorvex::qvxABOUT>("qvxABOUT", "Shell", not_offered,
                                  "Shows what Quorvex is, and the default of significant digits.",
                                  "", {},
                                  {"Nothing, when the dialog is closed.",
                                   {"The call fails for a stored limit that is no number."}}),
      Row<&cls_Quorvex::qvxVERSION>("qvxVERSION", "Shell", add_in_information,
                                    "Returns the version number of Quorvex.", "qvxVERSION()", {},
                                    {"The version, as text.", {nothing_fails}}),
  };
}

std::vector<Method> Test_Rows() {
  return {
      Row<&cls_Quorvex::qvxTEST>("qvxTEST", "Shell", not_offered,
                                 "Returns a greeting, to see that Quorvex is there.", "qvxTEST()",
                                 {}, {"The greeting, with the version.", {nothing_fails}}),
  };
}

}  // namespace quorvex::catalogue
