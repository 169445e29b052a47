Attribute VB_Name = "Weather"
' A year's temperature and rain in a form, in VBA (64-bit Office): two Y axes, dates along the X axis, a
' legend, and a cursor whose values a procedure returns.
' Tried: nothing here can run or parse VBA.
' Set a reference to "Vantoplex 1.0 Type Library" (Tools, References), add kit/languages/Vantoplex.bas, and
' call ShowWeather with the caption of a form; CursorValues is for a timer or a button of it. Create takes
' the value of a window's handle where the type library declares a pointer, which VBA can't pass: it is
' called by its slot. VBA has no unsigned numbers either: methods that take them are called through a
' variable As Object, whose call converts. The rest is called as usual.
' Keep the graph in a variable of the module: its window stays until the form is closed.
Option Explicit

Private Declare PtrSafe Function FindWindow Lib "user32" Alias "FindWindowW" _
    (ByVal className As LongPtr, ByVal caption As LongPtr) As LongPtr

Private Declare PtrSafe Function DispCallFunc Lib "oleaut32" (ByVal object As LongPtr, ByVal offset As LongPtr, _
    ByVal convention As Long, ByVal resultType As Integer, ByVal count As Long, types As Integer, _
    arguments As LongPtr, result As Variant) As Long

Private Const SLOT_CREATE As Long = 68
Private Const WM_COMMAND As Long = &H111

Private chart As VANTOPLEXLib.SGraph

Public Sub ShowWeather(ByVal caption As String)
    Dim place As VANTOPLEXLib.tagRECT
    Dim late As Object
    place.Right = 720
    place.bottom = 480
    Set chart = New VANTOPLEXLib.SGraph
    CallCreate chart, place, FindWindow(0, StrPtr(caption))
    Plot 0, Array(2.8, 2.8, 5#, 8.6, 13.6, 17.2, 18.9, 18.5, 14.7, 10.3, 6#, 3.4), "temperature", _
        "degrees", RGB(192, 48, 32)
    Plot 1, Array(67, 52, 55, 43, 57, 77, 78, 80, 68, 65, 67, 71), "rain", "mm a month", RGB(32, 80, 176)
    ShowDates
    Set late = chart
    late.SetCursorFlags XGC_HORIZ Or XGC_VERT Or XGC_LEGEND
    chart.Invalidate 1
    late.SendMessage WM_COMMAND, VPX_COMMAND_CURSOR, 0
End Sub

' A curve on the first X axis and a Y axis of its own colour.
Private Sub Plot(ByVal index As Long, values As Variant, ByVal title As String, ByVal measure As String, _
                 ByVal color As Long)
    Dim points(0 To 11) As VANTOPLEXLib.TDataPoint
    Dim curve As VANTOPLEXLib.SGraphDataSerie
    Dim axis As VANTOPLEXLib.SGraphAxis
    Dim late As Object
    Dim i As Long
    For i = 0 To 11
        points(i).fXVal = CDbl(DateSerial(2023, i + 1, 15)) ' a Date counts days as the axis does
        points(i).fYVal = values(i)
    Next
    chart.SetData curve, points(0), 12, index, 0, index, 1 ' as many Y axes as there are: a new one
    curve.SetLabel title
    Set late = curve
    late.SetColor color
    chart.GetYAxis axis, index
    Set late = axis
    late.SetColor color
    axis.SetLabel measure
    axis.SetPlacement IIf(index = 0, apLeft, apRight)
    axis.SetShowGrid IIf(index = 0, 1, 0)
End Sub

Private Sub ShowDates()
    Dim axis As VANTOPLEXLib.SGraphAxis
    chart.GetXAxis axis, 0
    axis.SetDateTime 1
    axis.SetDisplayFmt "%b %Y"
End Sub

Public Function CursorValues() As String
    Dim warm As VANTOPLEXLib.TDataPoint, wet As VANTOPLEXLib.TDataPoint
    chart.GetCursorAbsolute 0, warm
    chart.GetCursorAbsolute 1, wet
    CursorValues = Format$(warm.fYVal, "0.0") & " degrees, " & Format$(wet.fYVal, "0") & " mm"
End Function

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
