' A call of each shape, as a script makes it. Scripts here end without a word where they fail, so
' the last line tells that all were done.
Option Explicit
Dim q, number, other, list, numbers(2), table(1, 1), sorted

Set q = CreateObject("Quorvex.cls_Quorvex")
WScript.Echo q.qvxVERSION
WScript.Echo q.qvxADD("12345678901234567890.5", 1.25)
WScript.Echo q.qvxADD("1234.5", 1, , True)
WScript.Echo q.qvxDIVIDE(1, 7, , , , , 10)
WScript.Echo TypeName(q.qvxISERROR("#NUM!")) & " " & TypeName(q.qvxDEFAULTMAXSD)
WScript.Echo q.qvxABS(Empty) & " " & q.qvxABS(CCur(-2.5)) & " " & q.qvxABS(CByte(7))
list = Array(1, "2.5", 3)
WScript.Echo q.qvxSUM2(list)
WScript.Echo q.qvxSUM2(Array("1.5", 2, , Empty))
WScript.Echo q.qvxSUM2(1, "2.5", list(2), , 4)
numbers(0) = 4: numbers(1) = "4.0": numbers(2) = 5
WScript.Echo q.qvxMODE(numbers)
table(0, 0) = 4: table(0, 1) = 3: table(1, 0) = 2: table(1, 1) = 1
' Such arrays count from 0, and what looks at cells begins with row and column 1.
WScript.Echo q.qvxSUM2(table) & " " & q.qvxCOUNT(table) & " " & q.qvxSUM(table)
sorted = q.qvxMODE(Array("format:table", 7, 7, 5))
WScript.Echo sorted(1, 1) & " " & sorted(1, 2) & " " & sorted(2, 1) & " " & sorted(2, 2)
number = "0012"
other = "003"
q.Recip_Divide number, other, 5
WScript.Echo number & " " & other
WScript.Echo q.Get_Mantissa("123.45", True)
q.SetExcelApp Nothing
On Error Resume Next
q.Min "abc", 1
WScript.Echo Err.Number & " " & (Len(Err.Description) > 0)
Err.Clear
q.qvxADD 1
WScript.Echo Err.Number
Err.Clear
q.qvxABS Null
WScript.Echo Err.Number
Err.Clear
q.qvxNOTHING
WScript.Echo Err.Number
WScript.Echo "DONE"
