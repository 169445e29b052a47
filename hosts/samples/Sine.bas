Attribute VB_Name = "Sine"
' A graph of a sine in a form, in VBA (64-bit Office).
' Tried: nothing here can run or parse VBA.
' Set a reference to "Vantoplex 1.0 Type Library" (Tools, References) first, and call ShowSine with
' the caption of a form. Create takes the value of a window's handle where the type library declares a
' pointer, which VBA can't pass: it is called by its slot. The rest is called as usual.
' Keep the graph in a variable of the module: its window stays until the form is closed.
Option Explicit

Private Declare PtrSafe Function FindWindow Lib "user32" Alias "FindWindowW" _
    (ByVal className As LongPtr, ByVal caption As LongPtr) As LongPtr

Private Declare PtrSafe Function DispCallFunc Lib "oleaut32" (ByVal object As LongPtr, ByVal offset As LongPtr, _
    ByVal convention As Long, ByVal resultType As Integer, ByVal count As Long, types As Integer, _
    arguments As LongPtr, result As Variant) As Long

Private Const SLOT_CREATE As Long = 68

Private chart As VANTOPLEXLib.SGraph

Public Sub ShowSine(ByVal caption As String)
    Dim place As VANTOPLEXLib.tagRECT
    Dim points(0 To 360) As VANTOPLEXLib.TDataPoint
    Dim curve As VANTOPLEXLib.SGraphDataSerie
    Dim i As Long

    place.Right = 640
    place.bottom = 480
    For i = 0 To 360
        points(i).fXVal = i
        points(i).fYVal = Sin(i * 3.14159265358979 / 180)
    Next

    Set chart = New VANTOPLEXLib.SGraph
    CallCreate chart, place, FindWindow(0, StrPtr(caption))
    chart.SetData curve, points(0), 361, 0, 0, 0, 1 ' curve 0 on axes 0; copied
    curve.SetLabel "sine"
    chart.Invalidate 1
End Sub

Private Sub CallCreate(ByVal graph As Object, ByRef place As VANTOPLEXLib.tagRECT, ByVal window As LongPtr)
    Dim values(0 To 3) As Variant
    Dim types(0 To 3) As Integer
    Dim addresses(0 To 3) As LongPtr
    Dim result As Variant
    Dim i As Long

    values(0) = ""
    values(1) = VarPtr(place)
    values(2) = window
    values(3) = CLng(1)
    For i = 0 To 3
        types(i) = VarType(values(i))
        addresses(i) = VarPtr(values(i))
    Next
    DispCallFunc ObjPtr(graph), SLOT_CREATE * 8, 4, vbLong, 4, types(0), addresses(0), result
End Sub
