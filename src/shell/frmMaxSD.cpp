#include "shell/frmMaxSD.h"

#include <algorithm>
#include <string_view>

#include "host/conversions.h"
#include "host/platform.h"
#include "shell/frmAbout.h"
#include "shell/recalculate_formulas.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"
#include "text/options.h"

namespace quorvex {
namespace {

constexpr std::string_view digits_only = "Enter digits (0-9) only.";
constexpr std::string_view maximum = "2147483648";
// Behind the end of any text.
constexpr std::size_t end_of_text = 999;

std::size_t First_Bad(std::string_view text) {
  return text.find_first_not_of("0123456789");
}

// By the digits, since there may be more of them than a float can have.
bool Is_Above_Maximum(std::string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits.size() > maximum.size() || (digits.size() == maximum.size() && digits > maximum);
}

std::string Above_Maximum_Text() {
  return "The maximum is " + std::string(maximum) + " significant digits.";
}

void Complain(std::string_view text) {
  Current_Platform().message_box->show("Quorvex", text, Message_Icon::error, Message_Buttons::ok);
}

bool Wants_Recalculation() {
  return Current_Platform().message_box->show(
             "Set Default Max SD",
             "Recalculate Quorvex formulas now?\n\nCaution:\nRecalculating here will only "
             "recalculate Quorvex formulas in worksheet cells and defined names. To recalculate "
             "Quorvex formulas anywhere else, close and reopen the workbook.",
             Message_Icon::question, Message_Buttons::yes_no) == Message_Answer::yes;
}

}  // namespace

frmMaxSD::frmMaxSD() {
  txtMaxSD.Change = [this] { txtMaxSD_Change(); };
}

void frmMaxSD::Load() {
  lblMainText.Caption =
      "You can customize that default maximum number of significant digits here. The number you "
      "enter here will be used in Quorvex functions where you have omitted the "
      "maximum_significant_digits parameter.";
  accept(Number_To_Text(Default_MaxSD()));
  is_loaded_ = true;
}

void frmMaxSD::accept(const std::string& text) {
  txtMaxSD.set_Text(text);
  txtMaxSD.set_SelStart(end_of_text);
  accepted_ = text;
}

void frmMaxSD::txtMaxSD_Change() {
  current_ = txtMaxSD.Text();
  const std::size_t bad = First_Bad(current_);
  if (bad != std::string::npos) {
    Complain(digits_only);
    txtMaxSD.set_Text(accepted_);
    txtMaxSD.set_SelStart(bad);
  } else if (Is_Above_Maximum(current_)) {
    Complain(Above_Maximum_Text());
    accept(std::string(maximum));
  } else {
    accepted_ = current_;
  }
}

void frmMaxSD::cmdOK_Click() {
  Set_Default_MaxSD(Text_To_Number(txtMaxSD.Text()));
  storing_problem_ = Store_Default_MaxSD();
  Default_frmAbout()->Show_Default();
  if (Wants_Recalculation()) Recalculate_Formulas();
  unload();
}

void frmMaxSD::cmdCancel_Click() {
  unload();
}

void frmMaxSD::unload() {
  is_loaded_ = false;
  if (Shell().max_sd.get() == this) Shell().max_sd.reset();
}

std::shared_ptr<frmMaxSD> Default_frmMaxSD() {
  Shell_State& shell = Shell();
  if (shell.max_sd == nullptr) shell.max_sd = std::make_shared<frmMaxSD>();
  return shell.max_sd;
}

std::optional<std::string> MaxSD_Problem(const std::string& text) {
  if (text.empty() || First_Bad(text) != std::string::npos) return std::string(digits_only);
  if (Is_Above_Maximum(text)) return Above_Maximum_Text();
  return std::nullopt;
}

}  // namespace quorvex
