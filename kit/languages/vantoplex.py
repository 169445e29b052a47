"""Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit.

The interfaces for Python, by ctypes alone; what methods do is in docs/reference.
"""

from ctypes import POINTER, byref, c_double, c_float, c_int, c_size_t, c_ssize_t, c_uint, c_ulong, c_void_p, c_wchar_p, cast
import ctypes


class Text:
    """A parameter that is a BSTR: pass a str, or None."""


class Interface:
    """An object of the server. A method of its interface is called by its name, with numbers and
    texts as they are, byref(...) where the reference names a pointer and an array of points as an
    array of TDataPoint. The result is the HRESULT. An object that is made empty receives another
    one's address: graph.GetXAxis(byref(axis.pointer), 0)."""

    METHODS = {}

    def __init__(self):
        self.pointer = c_void_p()

    def __getattr__(self, name):
        if name not in self.METHODS:
            raise AttributeError(name)
        slot, types = self.METHODS[name]
        return lambda *arguments: self._call(slot, types, arguments)

    def __del__(self):
        if self.pointer:
            self._call(2, (), ())

    def _call(self, slot, types, arguments):
        if len(arguments) != len(types):
            raise TypeError(f"{len(types)} arguments are wanted, {len(arguments)} given")
        texts = [_bstr(argument) if kind is Text else None for kind, argument in zip(types, arguments)]
        values = [text if kind is Text else argument for kind, text, argument in zip(types, texts, arguments)]
        table = cast(self.pointer, POINTER(POINTER(c_void_p)))[0]
        method = ctypes.WINFUNCTYPE(c_int, c_void_p, *[c_void_p if kind is Text else kind for kind in types])(table[slot])
        try:
            return method(self.pointer, *values)
        finally:
            for text in filter(None, texts):
                ctypes.windll.oleaut32.SysFreeString(text)


def _bstr(text):
    allocate = ctypes.windll.oleaut32.SysAllocString
    allocate.restype = c_void_p
    return None if text is None else c_void_p(allocate(c_wchar_p(text)))


def guid(text):
    value = (ctypes.c_byte * 16)()
    ctypes.oledll.ole32.CLSIDFromString(c_wchar_p("{" + text + "}"), value)
    return value


class TDataPoint(ctypes.Structure):
    _fields_ = [("fXVal", c_double), ("fYVal", c_double)]


class RECT(ctypes.Structure):
    _fields_ = [("left", c_int), ("top", c_int), ("right", c_int), ("bottom", c_int)]


class ISObject(Interface):
    """The root of what a graph is made of: which native object a wrapper is for."""

    IID = "D8C5A43F-6850-44AB-9852-46A03F795FEE"
    METHODS = {
        "SetObjectHandle": (7, (c_void_p,)),
        "GetObjectHandle": (8, (c_void_p,)),
    }


class ISGraphObject(Interface):
    """What axes, curves, labels and bitmaps share. A wrapper is a view: it keeps nothing alive and doesn't notice when its object goes. Ask the graph for a new one after any call that adds or deletes a curve or an axis."""

    IID = "40C4BE95-C0C1-4FD5-8F9D-E15060E25B62"
    METHODS = {
        "SetObjectHandle": (7, (c_void_p,)),
        "GetObjectHandle": (8, (c_void_p,)),
        "SetRect": (9, (c_void_p,)),
        "GetRect": (10, (c_void_p,)),
        "SetSelected": (11, (c_int,)),
        "GetSelected": (12, (c_void_p,)),
        "SetVisible": (13, (c_int,)),
        "GetVisible": (14, (c_void_p,)),
        "SetColor": (15, (c_uint,)),
        "GetColor": (16, (c_void_p,)),
        "GetGraph": (17, (c_void_p,)),
    }


class ISGraphAxis(Interface):
    """An X or Y axis of a graph, from ISGraph.GetXAxis or GetYAxis. Fields are stored as they come, without a check. A wrapper without an axis does nothing and returns S_OK, and its getters then write nothing: initialise what you pass."""

    IID = "053D3815-35DD-4489-B913-E7A4A36E6DE4"
    METHODS = {
        "SetObjectHandle": (7, (c_void_p,)),
        "GetObjectHandle": (8, (c_void_p,)),
        "SetRect": (9, (c_void_p,)),
        "GetRect": (10, (c_void_p,)),
        "SetSelected": (11, (c_int,)),
        "GetSelected": (12, (c_void_p,)),
        "SetVisible": (13, (c_int,)),
        "GetVisible": (14, (c_void_p,)),
        "SetColor": (15, (c_uint,)),
        "GetColor": (16, (c_void_p,)),
        "GetGraph": (17, (c_void_p,)),
        "SetAxisType": (18, (c_int,)),
        "GetAxisType": (19, (c_void_p,)),
        "SetShowMarker": (20, (c_int,)),
        "GetShowMarker": (21, (c_void_p,)),
        "SetDateTime": (22, (c_int,)),
        "GetDateTime": (23, (c_void_p,)),
        "SetShowGrid": (24, (c_int,)),
        "GetShowGrid": (25, (c_void_p,)),
        "SetAutoScale": (26, (c_int,)),
        "GetAutoScale": (27, (c_void_p,)),
        "SetArcSize": (28, (c_int,)),
        "GetArcSize": (29, (c_void_p,)),
        "SetMarkerSize": (30, (c_int,)),
        "GetMarkerSize": (31, (c_void_p,)),
        "SetTickSize": (32, (c_int,)),
        "GetTickSize": (33, (c_void_p,)),
        "SetGridStyle": (34, (c_uint,)),
        "GetGridStyle": (35, (c_void_p,)),
        "SetLabel": (36, (Text,)),
        "GetLabel": (37, (c_void_p,)),
        "SetDisplayFmt": (38, (Text,)),
        "GetDisplayFmt": (39, (c_void_p,)),
        "SetGridColor": (40, (c_uint,)),
        "GetGridColor": (41, (c_void_p,)),
        "SetPlacement": (42, (c_int,)),
        "GetPlacement": (43, (c_void_p,)),
        "GetAxisMarkerCount": (44, (c_void_p,)),
        "GetValueForPos": (45, (c_int, c_void_p,)),
        "SetAxisMarker": (46, (c_int, c_double, c_uint, c_uint,)),
        "SetMaskerLabel": (47, (c_int, Text,)),
        "SetColorRange": (48, (c_int, c_double, c_double, c_uint, c_uint, Text, c_uint,)),
        "DeleteColorRange": (49, (c_int,)),
        "DeleteAllColorRanges": (50, ()),
    }


class ISGraphLogAxis(Interface):
    """A logarithmic axis of a class of its own, for hosts that make the wrapper themselves. The axes of a graph are those of ISGraphAxis, also with a logarithmic scale: set theirs with SetAxisType. Two methods are in place of the base's and have no slot of their own."""

    IID = "8AE09D08-7719-4660-A5E3-A261EB0AA41C"
    METHODS = {
        "SetObjectHandle": (7, (c_void_p,)),
        "GetObjectHandle": (8, (c_void_p,)),
        "SetRect": (9, (c_void_p,)),
        "GetRect": (10, (c_void_p,)),
        "SetSelected": (11, (c_int,)),
        "GetSelected": (12, (c_void_p,)),
        "SetVisible": (13, (c_int,)),
        "GetVisible": (14, (c_void_p,)),
        "SetColor": (15, (c_uint,)),
        "GetColor": (16, (c_void_p,)),
        "GetGraph": (17, (c_void_p,)),
        "SetAxisType": (18, (c_int,)),
        "GetAxisType": (19, (c_void_p,)),
        "SetShowMarker": (20, (c_int,)),
        "GetShowMarker": (21, (c_void_p,)),
        "SetDateTime": (22, (c_int,)),
        "GetDateTime": (23, (c_void_p,)),
        "SetShowGrid": (24, (c_int,)),
        "GetShowGrid": (25, (c_void_p,)),
        "SetAutoScale": (26, (c_int,)),
        "GetAutoScale": (27, (c_void_p,)),
        "SetArcSize": (28, (c_int,)),
        "GetArcSize": (29, (c_void_p,)),
        "SetMarkerSize": (30, (c_int,)),
        "GetMarkerSize": (31, (c_void_p,)),
        "SetTickSize": (32, (c_int,)),
        "GetTickSize": (33, (c_void_p,)),
        "SetGridStyle": (34, (c_uint,)),
        "GetGridStyle": (35, (c_void_p,)),
        "SetLabel": (36, (Text,)),
        "GetLabel": (37, (c_void_p,)),
        "SetDisplayFmt": (38, (Text,)),
        "GetDisplayFmt": (39, (c_void_p,)),
        "SetGridColor": (40, (c_uint,)),
        "GetGridColor": (41, (c_void_p,)),
        "SetPlacement": (42, (c_int,)),
        "GetPlacement": (43, (c_void_p,)),
        "GetAxisMarkerCount": (44, (c_void_p,)),
        "GetValueForPos": (45, (c_int, c_void_p,)),
        "SetAxisMarker": (46, (c_int, c_double, c_uint, c_uint,)),
        "SetMaskerLabel": (47, (c_int, Text,)),
        "SetColorRange": (48, (c_int, c_double, c_double, c_uint, c_uint, Text, c_uint,)),
        "DeleteColorRange": (49, (c_int,)),
        "DeleteAllColorRanges": (50, ()),
        "SetRange": (51, (c_double, c_double,)),
    }


class ISGraphDataSerie(Interface):
    """A curve of a graph, from ISGraph.SetData or GetCurve. Values are stored as they come, without a check. A wrapper without a curve does nothing and returns S_OK, and its getters then write nothing: initialise what you pass. Arrays that come back belong to the caller, who frees them with CoTaskMemFree."""

    IID = "EFBDCB31-0A47-406E-B96F-906E78D0DB56"
    METHODS = {
        "SetObjectHandle": (7, (c_void_p,)),
        "GetObjectHandle": (8, (c_void_p,)),
        "SetRect": (9, (c_void_p,)),
        "GetRect": (10, (c_void_p,)),
        "SetSelected": (11, (c_int,)),
        "GetSelected": (12, (c_void_p,)),
        "SetVisible": (13, (c_int,)),
        "GetVisible": (14, (c_void_p,)),
        "SetColor": (15, (c_uint,)),
        "GetColor": (16, (c_void_p,)),
        "GetGraph": (17, (c_void_p,)),
        "GetLinearTrend": (18, (c_void_p, c_int,)),
        "GetCubicTrend": (19, (c_void_p, c_int,)),
        "GetPolynomialTrend": (20, (c_void_p, c_int, c_int,)),
        "GetSimpleMovingAverage": (21, (c_void_p, c_int,)),
        "GetExponentialMovingAverage": (22, (c_void_p, c_int,)),
        "GetLinearMovingAverage": (23, (c_void_p, c_int,)),
        "GetTriangularMovingAverage": (24, (c_void_p, c_int,)),
        "GetSineWeightedMovingAverage": (25, (c_void_p, c_int,)),
        "SetLineSize": (26, (c_int,)),
        "SetFillStyle": (27, (c_int,)),
        "SetMarkerType": (28, (c_int,)),
        "SetMarker": (29, (c_int,)),
        "SetMarkerSize": (30, (c_int,)),
        "SetShowMarker": (31, (c_int,)),
        "SetFillColor": (32, (c_uint,)),
        "SetFillCurve": (33, (c_int,)),
        "SetFillBeneath": (34, (c_int, c_int,)),
        "SetFillTransparent": (35, (c_int,)),
        "SetLabel": (36, (Text,)),
        "SetType": (37, (c_int,)),
        "GetCount": (38, (c_void_p,)),
        "GetIndex": (39, (c_void_p,)),
        "GetXAxis": (40, (c_void_p,)),
        "GetYAxis": (41, (c_void_p,)),
        "GetLineSize": (42, (c_void_p,)),
        "GetFillStyle": (43, (c_void_p,)),
        "GetMarkerType": (44, (c_void_p,)),
        "GetMarker": (45, (c_void_p,)),
        "GetMarkerSize": (46, (c_void_p,)),
        "GetLineStyle": (47, (c_void_p,)),
        "GetShowMarker": (48, (c_void_p,)),
        "GetFillBeneath": (49, (c_void_p,)),
        "GetFillCurve": (50, (c_void_p,)),
        "GetFillTransparent": (51, (c_void_p,)),
        "GetLabel": (52, (c_void_p,)),
        "GetType": (53, (c_void_p,)),
        "SetLineStyle": (54, (c_uint,)),
    }


class ISGraphLabel(Interface):
    """A text label of a graph, from ISGraph.InsertLabel. A wrapper without a label does nothing and returns S_OK. SetColor and GetColor are in place of the base's and have no slot of their own."""

    IID = "F668D721-B480-4E38-A1B3-C2781900DA27"
    METHODS = {
        "SetObjectHandle": (7, (c_void_p,)),
        "GetObjectHandle": (8, (c_void_p,)),
        "SetRect": (9, (c_void_p,)),
        "GetRect": (10, (c_void_p,)),
        "SetSelected": (11, (c_int,)),
        "GetSelected": (12, (c_void_p,)),
        "SetVisible": (13, (c_int,)),
        "GetVisible": (14, (c_void_p,)),
        "SetColor": (15, (c_uint,)),
        "GetColor": (16, (c_void_p,)),
        "GetGraph": (17, (c_void_p,)),
        "SetFont": (18, (c_void_p,)),
        "SetText": (19, (Text,)),
        "GetText": (20, (c_void_p,)),
        "SetTextColor": (21, (c_uint,)),
        "GetTextColor": (22, (c_void_p,)),
        "SetBorder": (23, (c_int,)),
        "GetBorder": (24, (c_void_p,)),
        "SetTransparent": (25, (c_int,)),
        "GetTransparent": (26, (c_void_p,)),
        "SetAlignment": (27, (c_uint,)),
        "GetAlignment": (28, (c_void_p,)),
        "SetCurve": (29, (c_int,)),
        "GetCurve": (30, (c_void_p,)),
    }


class ISGraphBitmap(Interface):
    """A picture in a graph. Pictures come from graph files alone: no method makes one or sets its bitmap."""

    IID = "D95EF098-A408-4854-9D85-ECA84CC0F840"
    METHODS = {
        "SetObjectHandle": (7, (c_void_p,)),
        "GetObjectHandle": (8, (c_void_p,)),
        "SetRect": (9, (c_void_p,)),
        "GetRect": (10, (c_void_p,)),
        "SetSelected": (11, (c_int,)),
        "GetSelected": (12, (c_void_p,)),
        "SetVisible": (13, (c_int,)),
        "GetVisible": (14, (c_void_p,)),
        "SetColor": (15, (c_uint,)),
        "GetColor": (16, (c_void_p,)),
        "GetGraph": (17, (c_void_p,)),
        "SetBorder": (18, (c_int,)),
        "SetBitmap": (19, (c_void_p,)),
        "GetBorder": (20, (c_void_p,)),
        "GetBitmap": (21, (c_void_p,)),
    }


class ISGraphDataNotation(Interface):
    """A note on a data point. It has no methods: ISGraph.InsertDataNotation makes notes, and the graph draws them."""

    IID = "E96291DD-864F-4818-B52D-548B1E57A699"
    METHODS = {
    }


class ISGraph(Interface):
    """The interactive XY graph window. Create comes first. Axes and curves are counted from 0. Setters store and don't repaint: call Invalidate when you are done. Colours are COLORREF, 0x00BBGGRR; flags are 0 or not."""

    IID = "90F21AE5-DB57-409D-885A-90CB78805E86"
    METHODS = {
        "SetData": (7, (c_void_p, c_void_p, c_int, c_int, c_int, c_int, c_int,)),
        "GetXAxis": (8, (c_void_p, c_int,)),
        "GetYAxis": (9, (c_void_p, c_int,)),
        "GetCurve": (10, (c_void_p, c_int,)),
        "DeleteXAxis": (11, (c_int,)),
        "DeleteYAxis": (12, (c_int,)),
        "DeleteCurve": (13, (c_int,)),
        "InsertDataNotation": (14, (c_int, c_int,)),
        "AddLinearTrend": (15, (c_void_p,)),
        "AddCubicTrend": (16, (c_void_p,)),
        "GetXAxisCount": (17, (c_void_p,)),
        "GetYAxisCount": (18, (c_void_p,)),
        "GetCurveCount": (19, (c_void_p,)),
        "SelectXAxis": (20, (c_int,)),
        "SelectYAxis": (21, (c_int,)),
        "SelectCurve": (22, (c_int,)),
        "SetGraphMargins": (23, (c_int, c_int, c_int, c_int,)),
        "SaveBitmap": (24, (Text,)),
        "Edit": (25, ()),
        "Zoom": (26, ()),
        "ResetZoom": (27, ()),
        "Pan": (28, ()),
        "NoOp": (29, ()),
        "Cursor": (30, ()),
        "Measure": (31, ()),
        "ResetAll": (32, ()),
        "GetZoomDepth": (33, (c_void_p,)),
        "SetBackgroundBitmap": (34, (c_void_p, c_uint,)),
        "InsertLabel": (35, (Text, c_void_p, c_void_p,)),
        "InsertBitmap": (36, (c_void_p, c_void_p, c_void_p,)),
        "SetBackColor": (37, (c_uint,)),
        "SetGraphColor": (38, (c_uint,)),
        "SetInnerColor": (39, (c_uint,)),
        "SetDoubleBuffer": (40, (c_int,)),
        "SetShowLegend": (41, (c_int,)),
        "SetInteraction": (42, (c_int,)),
        "SetSnapCursor": (43, (c_int,)),
        "SetLegendAlignment": (44, (c_int,)),
        "SetSnapRange": (45, (c_int,)),
        "SetPrintHeader": (46, (Text,)),
        "SetPrintFooter": (47, (Text,)),
        "SetCursor": (48, (c_int, c_int,)),
        "SetCursorFlags": (49, (c_uint,)),
        "Autoscale": (50, (c_int, c_int, c_int,)),
        "DeleteMeasures": (51, ()),
        "ForceSnap": (52, (c_int,)),
        "GetBackColor": (53, (c_void_p,)),
        "GetGraphColor": (54, (c_void_p,)),
        "GetInnerColor": (55, (c_void_p,)),
        "GetDoubleBuffer": (56, (c_void_p,)),
        "GetShowLegend": (57, (c_void_p,)),
        "GetInteraction": (58, (c_void_p,)),
        "GetSnapCursor": (59, (c_void_p,)),
        "GetLegendAlignment": (60, (c_void_p,)),
        "GetSnapRange": (61, (c_void_p,)),
        "GetCursor": (62, (c_void_p, c_void_p,)),
        "GetOperation": (63, (c_void_p,)),
        "GetCursorAbsolute": (64, (c_int, c_void_p,)),
        "SetCursorAbsolute": (65, (c_int, c_void_p, c_int,)),
        "Save": (66, (Text, c_uint,)),
        "Load": (67, (Text,)),
        "Create": (68, (Text, c_void_p, c_void_p, c_uint,)),
        "Invalidate": (69, (c_int,)),
        "PostMessage": (70, (c_uint, c_size_t, c_ssize_t,)),
        "SendMessage": (71, (c_uint, c_size_t, c_ssize_t,)),
        "GetHandle": (72, (c_void_p,)),
        "GetXGraphMsgInfo": (73, (c_int, Text,)),
        "GetXGraphPersistInfo": (74, (c_int, Text,)),
        "GetXGraphXgcInfo": (75, (c_int, Text,)),
    }


class IChart2d(Interface):
    """The business chart window: bars, lines or a flat pie. Create comes first, then CreateGraph, then segments, series and values in this order; segments and series are counted from 1. A wrong index is reported to the person at the screen by a message box, and the result is S_OK all the same. Colours are COLORREF, 0x00BBGGRR. Data methods don't repaint: call Invalidate when you are done."""

    IID = "ECE4272A-8D64-4BB9-A23E-A12A14C194D9"
    METHODS = {
        "ShowGraphLegend": (7, (c_int,)),
        "GetGraphLegendTextColor": (8, (c_void_p,)),
        "SetGraphLegendTextColor": (9, (c_uint,)),
        "GetGraphLegendBackgroundColor": (10, (c_void_p,)),
        "SetGraphLegendBackgroundColor": (11, (c_uint,)),
        "SetGraphLabelsColor": (12, (c_uint,)),
        "GetGraphLabelsColor": (13, (c_void_p,)),
        "GetGraphSubtitleColor": (14, (c_void_p,)),
        "SetGraphSubtitleColor": (15, (c_uint,)),
        "GetGraphTitleColor": (16, (c_void_p,)),
        "SetGraphTitleColor": (17, (c_uint,)),
        "GetGraphSubtitleShadow": (18, (c_void_p,)),
        "SetGraphSubtitleShadow": (19, (c_int,)),
        "GetGraphTitleShadow": (20, (c_void_p,)),
        "SetGraphTitleShadow": (21, (c_int,)),
        "GetGradientFillType": (22, (c_void_p,)),
        "SetGradientFillType": (23, (c_int,)),
        "SetGraphGradientColors": (24, (c_uint, c_uint,)),
        "GetGraphFillType": (25, (c_void_p,)),
        "SetGraphFillType": (26, (c_int,)),
        "Delete2DLineGraphSeries": (27, (c_int,)),
        "Add2DLineGraphSeries": (28, (Text, c_uint,)),
        "Set2DLineGraphValue": (29, (c_int, c_int, c_int,)),
        "Delete2DLineGraphSegment": (30, (c_int,)),
        "Add2DLineGraphSegment": (31, (Text,)),
        "Detele2DBarGraphSeries": (32, (c_int,)),
        "Add2DBarGraphSeries": (33, (Text, c_uint,)),
        "Set2DBarGraphValue": (34, (c_int, c_int, c_int,)),
        "Delete2DBarGraphSegment": (35, (c_int,)),
        "Add2DBarGraphSegment": (36, (Text,)),
        "SetGraphPosition": (37, (c_int, c_int,)),
        "SetGraphSize": (38, (c_int, c_int,)),
        "Update2DPieGraphSegment": (39, (c_int, c_int, c_uint, Text,)),
        "SetGraphSubtitle": (40, (Text,)),
        "SetGraphTitle": (41, (Text,)),
        "GetGraphBackgroundColor": (42, (c_void_p,)),
        "SetGraphBackgroundColor": (43, (c_uint,)),
        "GetGraphAnimation": (44, (c_void_p,)),
        "SetGraphAnimation": (45, (c_int, c_int,)),
        "Delete2DPieGraphSegment": (46, (c_int,)),
        "Add2DPieGraphSegment": (47, (c_double, c_uint, Text,)),
        "Clear2DPieGraph": (48, ()),
        "CreateGraph": (49, (c_int,)),
        "Invalidate": (50, (c_int,)),
        "GetHandle": (51, (c_void_p,)),
        "Create": (52, (c_void_p, c_void_p, c_uint,)),
    }


class IPieChart3d(Interface):
    """The tilted pie window. Create comes first. An element is named by the text that InsertItem got, or by an item: an opaque pointer from GetPieChartItem or GetSelectedElement, typed VARIANT* and no VARIANT, good until the element is removed. Colours are COLORREF, 0x00BBGGRR. A refused call returns S_OK too: ask GetPieChartItem."""

    IID = "89A56F93-B412-440B-BE54-0E9E93412BEB"
    METHODS = {
        "Create": (7, (Text, c_void_p, c_void_p, c_uint,)),
        "PostMessage": (8, (c_uint, c_size_t, c_ssize_t,)),
        "SendMessage": (9, (c_uint, c_size_t, c_ssize_t,)),
        "InsertItem": (10, (Text, Text, c_double, c_uint,)),
        "RemoveItem": (11, (Text,)),
        "RemoveItemByIndex": (12, (c_int,)),
        "RemoveAllItem": (13, ()),
        "UpdateItemLabel": (14, (c_void_p, Text,)),
        "UpdateItemValue": (15, (c_void_p, c_double,)),
        "UpdateItemColor": (16, (c_void_p, c_uint,)),
        "SetLabelFont": (17, (c_void_p,)),
        "SetLabelFontName": (18, (Text,)),
        "SetTitleFont": (19, (c_void_p,)),
        "SetTitleFontName": (20, (Text,)),
        "SetLabelBoxColor": (21, (c_uint,)),
        "SetBackgrndColor": (22, (c_uint,)),
        "SetLabelColor": (23, (c_uint,)),
        "SetParentWindowColor": (24, (c_uint,)),
        "SetPieElementGradientLight": (25, (c_void_p, c_float,)),
        "SetPieElementGradientDark": (26, (c_void_p, c_float,)),
        "SetBackGroundGradientLight": (27, (c_float,)),
        "SetBackGroundGradientDark": (28, (c_float,)),
        "SetPieElementGradientDarkAll": (29, (c_float,)),
        "SetPieElementGradientLightAll": (30, (c_float,)),
        "SetPieChartTitle": (31, (Text,)),
        "SetPieChartStyle": (32, (c_int,)),
        "SetStartAngle": (33, (c_float,)),
        "SetInclineAngle": (34, (c_float,)),
        "SetDepth": (35, (c_float,)),
        "sortPiechartElements": (36, (c_int,)),
        "SortToOrginalOrder": (37, ()),
        "GetSelectedElement": (38, (c_void_p,)),
        "GetPieChartItem": (39, (Text, c_void_p,)),
        "GetElementID": (40, (Text, c_void_p,)),
        "GetBackGroungGrLight": (41, (c_void_p,)),
        "GetBackgroundGrDark": (42, (c_void_p,)),
        "GetElementGrLight": (43, (c_void_p, c_void_p,)),
        "GetElementGrDark": (44, (c_void_p, c_void_p,)),
        "GetElementName": (45, (c_void_p, c_void_p,)),
        "GetHandle": (46, (c_void_p,)),
        "Invalidate": (47, (c_int,)),
    }


CLASSES = {
    IPieChart3d: "13BB52F1-4CD8-439F-B89A-0D066AFF5EBF",
    IChart2d: "9359379E-5EB1-4038-AEE5-BDFDC74BB95C",
    ISGraphObject: "15017D9D-F5E2-4C4F-8D73-5DDE3E10BFD3",
    ISGraphAxis: "46EC9278-D7AF-478E-9FE1-F397074E8C5C",
    ISGraphLogAxis: "E67EB8E1-C843-4650-81B5-BC88C4CDF9D9",
    ISGraphLabel: "39E00815-C3C0-4715-B9AF-05460BB375DD",
    ISGraphDataSerie: "8675FBC5-D1E5-47D5-9FEE-4B17086EB991",
    ISGraphDataNotation: "A27FB455-91D2-4CD0-823B-A5F206A1AF55",
    ISGraphBitmap: "13470DB1-05EF-4021-AB22-197AF71B9B50",
    ISGraph: "43ABC0D1-4E08-40C3-9681-E30EA84142B3",
    ISObject: "431325F1-4059-42A1-B50D-972326C1234B",
}
