// Rows of the methods of the add-in itself.
#include "frame/rows/result_texts.h"
#include "frame/rows/row.h"

namespace quorvex::catalogue {

std::vector<Method> Shell_Rows() {
  return {
      Row<&cls_Quorvex::SetExcelApp>({
          .name = "SetExcelApp",
          .slot = 1,
          .family = "Shell",
          .description =
              "Tells the add-in the host that it runs in. An empty argument changes nothing.",
          .parameters = {Operand_Parameter("excel_app", "the host's application object")},
          .results = {"Nothing.", {"The call fails for a value that is no application of a host."}},
      }),
      Row<&cls_Quorvex::qvxHelpfilePath>({
          .name = "qvxHelpfilePath",
          .slot = 2,
          .family = "Shell",
          .description = "Returns where the help file belongs.",
          .results = {"The whole path, beside the library; nobody looks whether the file is there.",
                      {nothing_fails}},
      }),
      Row<&cls_Quorvex::qvxABOUT>({
          .name = "qvxABOUT",
          .slot = 81,
          .family = "Shell",
          .description = "Shows what Quorvex is, and the default of significant digits.",
          .results = {"Nothing, when the dialog is closed.",
                      {"The call fails for a stored limit that is no number."}},
      }),
      Row<&cls_Quorvex::qvxVERSION>({
          .name = "qvxVERSION",
          .slot = 82,
          .family = "Shell",
          .category = add_in_information,
          .description = "Returns the version number of Quorvex.",
          .example = "qvxVERSION()",
          .results = {"The version, as text.", {nothing_fails}},
      }),
      Row<&cls_Quorvex::qvxTEST>({
          .name = "qvxTEST",
          .slot = 84,
          .family = "Shell",
          .description = "Returns a greeting, to see that Quorvex is there.",
          .example = "qvxTEST()",
          .results = {"The greeting, with the version.", {nothing_fails}},
      }),
  };
}

}  // namespace quorvex::catalogue
