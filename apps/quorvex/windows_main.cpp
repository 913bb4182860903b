// The quorvex command-line tool. What the C library makes of the command line is in the code page
// of the system, and file names stand in it where a formula multiplies.
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "host/platform/windows_api.h"
#include "host/platform/windows_text.h"
// After the system's header, which it needs.
#include <shellapi.h>

int main() {
  int count = 0;
  wchar_t** const wide = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> words;
  for (int i = 0; i < count; ++i) words.push_back(quorvex::Narrow_Text(wide[i]));
  ::LocalFree(wide);
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return quorvex::Run_Command_Line(count, pointers.data());
}
