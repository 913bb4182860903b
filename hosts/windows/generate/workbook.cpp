#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "frame/catalogue.h"
#include "frame/class/add_in.h"
#include "identity.h"
#include "parts.h"

namespace quorvex::windows {
namespace {

// Functions of cells hand ranges on as they are: the library reads them itself.
constexpr std::string_view beginning = R"(Attribute VB_Name = "Quorvex_Functions"
' The code of the add-in workbook Quorvex.xla: a function for each one of the library, and what joins
' the library and the spreadsheet. Written by quorvex_windows_tables: change the catalogue, not this.
Option Explicit

Private kept_class As Object

' The library, made when it is first needed.
Private Function The_Class() As Object
    If kept_class Is Nothing Then
        Set kept_class = CreateObject("@class")
        kept_class.SetExcelApp Application
    End If
    Set The_Class = kept_class
End Function

Public Sub Auto_Open()
    Dim button As Object
    The_Class
    On Error Resume Next
    Remove_Entry
    Set button = Application.CommandBars("Worksheet Menu Bar").Controls.Add(1, , , , True)
    button.Style = 2
    button.Caption = "About Quorvex..."
    button.Tag = "Quorvex"
    button.OnAction = "'" & ThisWorkbook.Name & "'!About_Quorvex"
End Sub

Public Sub Auto_Close()
    On Error Resume Next
    Remove_Entry
    Set kept_class = Nothing
End Sub

Private Sub Remove_Entry()
    Dim button As Object
    Set button = Application.CommandBars.FindControl(, , "Quorvex")
    If Not button Is Nothing Then button.Delete
End Sub

Public Sub About_Quorvex()
    The_Class.qvxABOUT
End Sub

' The block of cells that a formula is entered into. Of a single cell nothing is said, so that a
' result may spill over as many as it has.
Private Sub Use_Block(ByRef height As Variant, ByRef width As Variant)
    If TypeName(Application.Caller) <> "Range" Then Exit Sub
    If Application.Caller.Rows.Count * Application.Caller.Columns.Count = 1 Then Exit Sub
    If IsMissing(height) Then height = CDbl(Application.Caller.Rows.Count)
    If IsMissing(width) Then width = CDbl(Application.Caller.Columns.Count)
End Sub

' The arguments of a function as one list. An array of one dimension that stands alone, such as an
' array constant of one row, is the list itself.
Private Function One_List(ByRef given As Variant) As Variant
    One_List = given
    If UBound(given) <> 0 Then Exit Function
    If IsObject(given(0)) Then Exit Function
    If Has_One_Dimension(given(0)) Then One_List = given(0)
End Function

Private Function Has_One_Dimension(ByRef value As Variant) As Boolean
    Dim last As Long
    If Not IsArray(value) Then Exit Function
    On Error Resume Next
    last = UBound(value, 2)
    Has_One_Dimension = Err.Number <> 0
End Function

' A value that was left out.
Private Function Left_Out(Optional nothing_here As Variant) As Variant
    Left_Out = nothing_here
End Function

Public Function qvxXLA() As Variant
    qvxXLA = "@version"
End Function

Public Function More_Information() As Variant
    More_Information = "Quorvex tells more of each function in " & The_Class.qvxHelpfilePath
End Function
)";

std::string Replaced(std::string text, std::string_view mark, std::string_view by) {
  return text.replace(text.find(mark), mark.size(), by);
}

// A list in parentheses, over as many lines as it takes.
std::string In_Lines(std::string start, const std::vector<std::string>& items) {
  constexpr std::size_t longest = 96;
  std::string text;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::string item = items[i] + (i + 1 < items.size() ? ", " : "");
    if (start.size() + item.size() > longest) {
      text += start + "_\n";
      start = "        ";
    }
    start += item;
  }
  return text + start + ")";
}

const Parameter* Find(const Method& method, std::string_view name) {
  const auto found = std::ranges::find(method.parameters, name, &Parameter::name);
  return found == method.parameters.end() ? nullptr : &*found;
}

bool Wants_Block(const Method& method) {
  return Find(method, "rows") != nullptr && Find(method, "cols") != nullptr;
}

std::vector<std::string> Declared(const Method& method) {
  if (method.takes_all_as_list)
    return {"ParamArray " + std::string(method.parameters[0].name) + "() As Variant"};
  std::vector<std::string> declared;
  for (const Parameter& parameter : method.parameters) {
    declared.push_back((parameter.optional ? "Optional " : "") + std::string(parameter.name) +
                       " As Variant");
  }
  return declared;
}

std::vector<std::string> Handed_On(const Method& method) {
  std::vector<std::string> names;
  for (const Parameter& parameter : method.parameters) names.emplace_back(parameter.name);
  if (method.takes_all_as_list) names[0] = "all_of_it";
  return names;
}

void Write_Function(std::ostream& out, const Method& method) {
  const std::string name(method.worksheet_name);
  const std::string indent = "    ";
  out << "\n" << In_Lines("Public Function " + name + "(", Declared(method)) << " As Variant\n";
  if (method.takes_all_as_list) {
    // An array of arguments can't be handed on as such.
    out << indent << "Dim all_of_it As Variant\n"
        << indent << "all_of_it = " << method.parameters[0].name << "\n"
        << indent << "all_of_it = One_List(all_of_it)\n";
  }
  if (Wants_Block(method)) {
    if (method.takes_all_as_list) {
      out << indent << "Dim rows As Variant, cols As Variant\n"
          << indent << "rows = Left_Out()\n"
          << indent << "cols = Left_Out()\n";
    }
    out << indent << "Use_Block rows, cols\n";
  }
  const std::string call = indent + name + " = The_Class." + std::string(method.name);
  out << (method.parameters.empty() ? call : In_Lines(call + "(", Handed_On(method))) << "\n";
  out << "End Function\n";
}

}  // namespace

void Write_Workbook_Module(std::ostream& out) {
  out << Replaced(Replaced(std::string(beginning), "@class", prog_id), "@version", add_in_version);
  for (const Method& method : Catalogue()) {
    if (!method.category.empty()) Write_Function(out, method);
  }
}

}  // namespace quorvex::windows
