// The methods of the add-in itself, and how the class starts.
#include "frame/class/add_in.h"
#include "frame/class/cls_Quorvex.h"
#include "host/platform.h"

namespace quorvex {

cls_Quorvex::cls_Quorvex() {
  Class_Initialize();
}

void cls_Quorvex::SetExcelApp(const std::shared_ptr<Host_Application>& excel_app) {
  Excel_App(excel_app, false);
}

NumberText cls_Quorvex::qvxHelpfilePath() {
  return Current_Platform().libraries->folder() + "\\Quorvex.chm";
}

void cls_Quorvex::qvxABOUT() {
  Show_About();
}

NumberText cls_Quorvex::qvxVERSION() {
  return NumberText(add_in_version);
}

NumberText cls_Quorvex::qvxTEST() {
  return "Welcome to Quorvex " + NumberText(add_in_version) + "!";
}

}  // namespace quorvex
