Attribute VB_Name = "Quorvex_Functions"
' The code of the add-in workbook Quorvex.xla: a function for each one of the library, and what joins
' the library and the spreadsheet. Written by quorvex_windows_tables: change the catalogue, not this.
Option Explicit

Private kept_class As Object

' The library, made when it is first needed.
Private Function The_Class() As Object
    If kept_class Is Nothing Then
        Set kept_class = CreateObject("Quorvex.cls_Quorvex")
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
    qvxXLA = "3.1"
End Function

Public Function More_Information() As Variant
    More_Information = "Quorvex tells more of each function in " & The_Class.qvxHelpfilePath
End Function

Public Function qvxSUM(rngArray As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant, Optional maximum_significant_digits As Variant) As Variant
    qvxSUM = The_Class.qvxSUM(rngArray, format_negative, format_thousands, format_currency, _
        exponential_notation, maximum_significant_digits)
End Function

Public Function qvxSQRT(num As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maxSD As Variant) As Variant
    qvxSQRT = The_Class.qvxSQRT(num, format_thousands, format_currency, exponential_notation, _
        maxSD)
End Function

Public Function qvxSQRTPI(num As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maxSD As Variant) As Variant
    qvxSQRTPI = The_Class.qvxSQRTPI(num, format_thousands, format_currency, _
        exponential_notation, maxSD)
End Function

Public Function qvxISODD(num As Variant) As Variant
    qvxISODD = The_Class.qvxISODD(num)
End Function

Public Function qvxISEVEN(num As Variant) As Variant
    qvxISEVEN = The_Class.qvxISEVEN(num)
End Function

Public Function qvxEVEN(num As Variant, Optional RoundNegTowardZero As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxEVEN = The_Class.qvxEVEN(num, RoundNegTowardZero, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxODD(num As Variant, Optional RoundNegTowardZero As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxODD = The_Class.qvxODD(num, RoundNegTowardZero, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxEVEN2(num As Variant, Optional RoundNegAwayFromZero As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxEVEN2 = The_Class.qvxEVEN2(num, RoundNegAwayFromZero, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxODD2(num As Variant, Optional RoundNegAwayFromZero As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxODD2 = The_Class.qvxODD2(num, RoundNegAwayFromZero, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxISERROR(num As Variant) As Variant
    qvxISERROR = The_Class.qvxISERROR(num)
End Function

Public Function qvxAVERAGE(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxAVERAGE = The_Class.qvxAVERAGE(all_of_it)
End Function

Public Function qvxMEDIAN(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxMEDIAN = The_Class.qvxMEDIAN(all_of_it)
End Function

Public Function qvxMODE(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    Dim rows As Variant, cols As Variant
    rows = Left_Out()
    cols = Left_Out()
    Use_Block rows, cols
    qvxMODE = The_Class.qvxMODE(all_of_it, rows, cols)
End Function

Public Function qvxSORT(numlist As Variant, Optional descending As Variant, _
        Optional left_to_right As Variant, Optional fit_to_array As Variant, _
        Optional blank_text As Variant, Optional rows As Variant, Optional cols As Variant) As Variant
    Use_Block rows, cols
    qvxSORT = The_Class.qvxSORT(numlist, descending, left_to_right, fit_to_array, blank_text, _
        rows, cols)
End Function

Public Function qvxLARGE(numlist As Variant, k As Variant) As Variant
    qvxLARGE = The_Class.qvxLARGE(numlist, k)
End Function

Public Function qvxSMALL(numlist As Variant, k As Variant) As Variant
    qvxSMALL = The_Class.qvxSMALL(numlist, k)
End Function

Public Function qvxRANK(num As Variant, numlist As Variant, Optional ascending As Variant, _
        Optional tie_compensation As Variant) As Variant
    qvxRANK = The_Class.qvxRANK(num, numlist, ascending, tie_compensation)
End Function

Public Function qvxEXCLUDE(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxEXCLUDE = The_Class.qvxEXCLUDE(all_of_it)
End Function

Public Function qvxEXCLUDENOTNUM(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxEXCLUDENOTNUM = The_Class.qvxEXCLUDENOTNUM(all_of_it)
End Function

Public Function qvxEXTRACT(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxEXTRACT = The_Class.qvxEXTRACT(all_of_it)
End Function

Public Function qvxEXTRACTNUM(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxEXTRACTNUM = The_Class.qvxEXTRACTNUM(all_of_it)
End Function

Public Function qvxPRODUCT(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxPRODUCT = The_Class.qvxPRODUCT(all_of_it)
End Function

Public Function qvxSUM2(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxSUM2 = The_Class.qvxSUM2(all_of_it)
End Function

Public Function qvxCOUNT(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxCOUNT = The_Class.qvxCOUNT(all_of_it)
End Function

Public Function qvxMAX(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxMAX = The_Class.qvxMAX(all_of_it)
End Function

Public Function qvxMIN(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxMIN = The_Class.qvxMIN(all_of_it)
End Function

Public Function qvxISNUMBER(num As Variant) As Variant
    qvxISNUMBER = The_Class.qvxISNUMBER(num)
End Function

Public Function qvxINT(num As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant) As Variant
    qvxINT = The_Class.qvxINT(num, format_negative, format_thousands, format_currency, _
        exponential_notation)
End Function

Public Function qvxTRUNC(num As Variant, Optional num_digits As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxTRUNC = The_Class.qvxTRUNC(num, num_digits, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxFACT(num As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant, Optional maximum_significant_digits As Variant) As Variant
    qvxFACT = The_Class.qvxFACT(num, format_negative, format_thousands, format_currency, _
        exponential_notation, maximum_significant_digits)
End Function

Public Function qvxFACTDOUBLE(num As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant, Optional maximum_significant_digits As Variant) As Variant
    qvxFACTDOUBLE = The_Class.qvxFACTDOUBLE(num, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxFRAC(num As Variant, Optional as_int As Variant, Optional sign As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant) As Variant
    qvxFRAC = The_Class.qvxFRAC(num, as_int, sign, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxMOD(dividend As Variant, divisor As Variant, Optional sign As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant) As Variant
    qvxMOD = The_Class.qvxMOD(dividend, divisor, sign, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxMODTRUNC(dividend As Variant, divisor As Variant, Optional sign As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant) As Variant
    qvxMODTRUNC = The_Class.qvxMODTRUNC(dividend, divisor, sign, format_negative, _
        format_thousands, format_currency, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxREMAINDER(dividend As Variant, divisor As Variant, Optional sign As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant) As Variant
    qvxREMAINDER = The_Class.qvxREMAINDER(dividend, divisor, sign, format_negative, _
        format_thousands, format_currency, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxABS(num As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant) As Variant
    qvxABS = The_Class.qvxABS(num, format_negative, format_thousands, format_currency, _
        exponential_notation)
End Function

Public Function qvxSIGN(num As Variant) As Variant
    qvxSIGN = The_Class.qvxSIGN(num)
End Function

Public Function qvxNEG(num As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant) As Variant
    qvxNEG = The_Class.qvxNEG(num, format_negative, format_thousands, format_currency, _
        exponential_notation)
End Function

Public Function qvxCHANGESIGN(num As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant) As Variant
    qvxCHANGESIGN = The_Class.qvxCHANGESIGN(num, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxADD(number1 As Variant, number2 As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional format_decimal_place As Variant, Optional preserve_decimal_place As Variant) As Variant
    qvxADD = The_Class.qvxADD(number1, number2, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits, _
        format_decimal_place, preserve_decimal_place)
End Function

Public Function qvxSUBTRACT(number1 As Variant, number2 As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional format_decimal_place As Variant, Optional preserve_decimal_place As Variant) As Variant
    qvxSUBTRACT = The_Class.qvxSUBTRACT(number1, number2, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits, _
        format_decimal_place, preserve_decimal_place)
End Function

Public Function qvxMULTIPLY(number1 As Variant, number2 As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional format_decimal_place As Variant, Optional preserve_decimal_place As Variant) As Variant
    qvxMULTIPLY = The_Class.qvxMULTIPLY(number1, number2, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits, _
        format_decimal_place, preserve_decimal_place)
End Function

Public Function qvxDIVIDE(number1 As Variant, number2 As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional format_decimal_place As Variant, Optional preserve_decimal_place As Variant) As Variant
    qvxDIVIDE = The_Class.qvxDIVIDE(number1, number2, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits, _
        format_decimal_place, preserve_decimal_place)
End Function

Public Function qvxROOT(number1 As Variant, number2 As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional restrict_input_lengths As Variant, Optional format_decimal_place As Variant, _
        Optional preserve_decimal_place As Variant) As Variant
    qvxROOT = The_Class.qvxROOT(number1, number2, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits, _
        restrict_input_lengths, format_decimal_place, preserve_decimal_place)
End Function

Public Function qvxPOWER(number1 As Variant, number2 As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional restrict_input_lengths As Variant, Optional format_decimal_place As Variant, _
        Optional preserve_decimal_place As Variant) As Variant
    qvxPOWER = The_Class.qvxPOWER(number1, number2, format_negative, format_thousands, _
        format_currency, exponential_notation, maximum_significant_digits, _
        restrict_input_lengths, format_decimal_place, preserve_decimal_place)
End Function

Public Function qvxISEQUAL(number1 As Variant, number2 As Variant) As Variant
    qvxISEQUAL = The_Class.qvxISEQUAL(number1, number2)
End Function

Public Function qvxISNOTEQUAL(number1 As Variant, number2 As Variant) As Variant
    qvxISNOTEQUAL = The_Class.qvxISNOTEQUAL(number1, number2)
End Function

Public Function qvxISGREATER(number1 As Variant, number2 As Variant) As Variant
    qvxISGREATER = The_Class.qvxISGREATER(number1, number2)
End Function

Public Function qvxISGREATEROREQUAL(number1 As Variant, number2 As Variant) As Variant
    qvxISGREATEROREQUAL = The_Class.qvxISGREATEROREQUAL(number1, number2)
End Function

Public Function qvxISLESS(number1 As Variant, number2 As Variant) As Variant
    qvxISLESS = The_Class.qvxISLESS(number1, number2)
End Function

Public Function qvxISLESSOREQUAL(number1 As Variant, number2 As Variant) As Variant
    qvxISLESSOREQUAL = The_Class.qvxISLESSOREQUAL(number1, number2)
End Function

Public Function qvxROUND(num As Variant, num_digits As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxROUND = The_Class.qvxROUND(num, num_digits, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxROUNDUP(num As Variant, num_digits As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxROUNDUP = The_Class.qvxROUNDUP(num, num_digits, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxROUNDDOWN(num As Variant, num_digits As Variant, _
        Optional format_negative As Variant, Optional format_thousands As Variant, _
        Optional format_currency As Variant, Optional exponential_notation As Variant) As Variant
    qvxROUNDDOWN = The_Class.qvxROUNDDOWN(num, num_digits, format_negative, format_thousands, _
        format_currency, exponential_notation)
End Function

Public Function qvxREDUCEFRACTION(Numerator As Variant, divisor As Variant, _
        Optional simplify_signs As Variant, Optional always_simplify_fraction As Variant, _
        Optional return_numerator As Variant, Optional return_divisor As Variant, _
        Optional return_reduced_by As Variant, Optional fraction_separator As Variant) As Variant
    qvxREDUCEFRACTION = The_Class.qvxREDUCEFRACTION(Numerator, divisor, simplify_signs, _
        always_simplify_fraction, return_numerator, return_divisor, return_reduced_by, _
        fraction_separator)
End Function

Public Function qvxGCD(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxGCD = The_Class.qvxGCD(all_of_it)
End Function

Public Function qvxGCD2(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxGCD2 = The_Class.qvxGCD2(all_of_it)
End Function

Public Function qvxLCM(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxLCM = The_Class.qvxLCM(all_of_it)
End Function

Public Function qvxLCM2(ParamArray numlist() As Variant) As Variant
    Dim all_of_it As Variant
    all_of_it = numlist
    all_of_it = One_List(all_of_it)
    qvxLCM2 = The_Class.qvxLCM2(all_of_it)
End Function

Public Function qvxPI(Optional digits As Variant) As Variant
    qvxPI = The_Class.qvxPi(digits)
End Function

Public Function qvxE(Optional digits As Variant) As Variant
    qvxE = The_Class.qvxE(digits)
End Function

Public Function qvxVERSION() As Variant
    qvxVERSION = The_Class.qvxVERSION
End Function

Public Function qvxRADIANS(degrees As Variant, Optional maxSD As Variant) As Variant
    qvxRADIANS = The_Class.qvxRADIANS(degrees, maxSD)
End Function

Public Function qvxDEGREES(radians As Variant, Optional maxSD As Variant) As Variant
    qvxDEGREES = The_Class.qvxDEGREES(radians, maxSD)
End Function

Public Function qvxSIN(num As Variant, Optional maxSD As Variant) As Variant
    qvxSIN = The_Class.qvxSIN(num, maxSD)
End Function

Public Function qvxCOS(num As Variant, Optional maxSD As Variant) As Variant
    qvxCOS = The_Class.qvxCOS(num, maxSD)
End Function

Public Function qvxTAN(num As Variant, Optional maxSD As Variant) As Variant
    qvxTAN = The_Class.qvxTAN(num, maxSD)
End Function

Public Function qvxATAN(num As Variant, Optional maxSD As Variant) As Variant
    qvxATAN = The_Class.qvxATAN(num, maxSD)
End Function

Public Function qvxASIN(num As Variant, Optional maxSD As Variant) As Variant
    qvxASIN = The_Class.qvxASIN(num, maxSD)
End Function

Public Function qvxACOS(num As Variant, Optional maxSD As Variant) As Variant
    qvxACOS = The_Class.qvxACOS(num, maxSD)
End Function

Public Function qvxPOISSON(target_num As Variant, average_num As Variant, _
        is_cumulative As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional restrict_input_lengths As Variant) As Variant
    qvxPOISSON = The_Class.qvxPOISSON(target_num, average_num, is_cumulative, _
        exponential_notation, maximum_significant_digits, restrict_input_lengths)
End Function

Public Function qvxLOG(num As Variant, Optional num_base As Variant, _
        Optional exponential_notation As Variant, Optional maximum_significant_digits As Variant) As Variant
    qvxLOG = The_Class.qvxLOG(num, num_base, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxLN(num As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant) As Variant
    qvxLN = The_Class.qvxLN(num, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxEXP(num As Variant, Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant) As Variant
    qvxEXP = The_Class.qvxEXP(num, exponential_notation, maximum_significant_digits)
End Function

Public Function qvxFORMAT(number As Variant, Optional format_negative As Variant, _
        Optional format_thousands As Variant, Optional format_currency As Variant, _
        Optional exponential_notation As Variant, _
        Optional maximum_significant_digits As Variant, _
        Optional format_decimal_place As Variant, Optional preserve_decimal_place As Variant) As Variant
    qvxFORMAT = The_Class.qvxFORMAT(number, format_negative, format_thousands, format_currency, _
        exponential_notation, maximum_significant_digits, format_decimal_place, _
        preserve_decimal_place)
End Function
