' Builds the add-in workbook Quorvex.xla out of Quorvex.bas, in the spreadsheet of this machine.
'
'     cscript //nologo build_workbook.vbs [FOLDER]
'
' Without a folder it goes to the user's add-ins, where the spreadsheet looks for them.
'
' The spreadsheet must trust programs with its code: File, Options, Trust Center, Trust Center
' Settings, Macro Settings, "Trust access to the VBA project object model". Switch it off afterwards.
Option Explicit

Const add_in_format = 18

Dim files, here, folder, target, spreadsheet, book
Set files = CreateObject("Scripting.FileSystemObject")
here = files.GetParentFolderName(WScript.ScriptFullName)

On Error Resume Next
Set spreadsheet = CreateObject("Excel.Application")
If Err.Number <> 0 Then Fail "No spreadsheet is installed that programs can start"
If WScript.Arguments.Count > 0 Then
    folder = files.GetAbsolutePathName(WScript.Arguments(0))
Else
    folder = spreadsheet.UserLibraryPath
End If
If Err.Number <> 0 Then Fail "The spreadsheet does not tell its folder of add-ins; give one"
If Not files.FolderExists(folder) Then files.CreateFolder folder
If Err.Number <> 0 Then Fail "There is no folder " & folder & ", and it can't be made"
target = files.BuildPath(folder, "Quorvex.xla")
spreadsheet.DisplayAlerts = False
Set book = spreadsheet.Workbooks.Add
book.VBProject.VBComponents.Import files.BuildPath(here, "Quorvex.bas")
If Err.Number <> 0 Then Fail "The code can't be put in; see the beginning of this script"
book.Title = "Quorvex"
book.IsAddin = True
book.SaveAs target, add_in_format
If Err.Number <> 0 Then Fail "The workbook can't be written"
book.Close False
spreadsheet.Quit
WScript.Echo "Written: " & target
WScript.Echo "In the spreadsheet: File, Options, Add-ins, Go, Browse, and choose it."

' Whatever fails on the way out, the script ends.
Sub Fail(reason)
    Dim message
    message = reason & ": " & Err.Description
    On Error Resume Next
    WScript.Echo message
    If IsObject(book) Then book.Close False
    If IsObject(spreadsheet) Then spreadsheet.Quit
    WScript.Quit 1
End Sub
