//! Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit.
#![allow(non_snake_case, non_upper_case_globals)]

// EAxisType: Scale of an axis.
/// Logarithmic.
pub const atLog: i32 = 0;
/// Linear.
pub const atLinear: i32 = 1;

// EAxisPlacement: Side of a Y axis.
/// At the left.
pub const apLeft: i32 = 0;
/// At the right.
pub const apRight: i32 = 1;
/// Left and right in turn; the next frame puts one of them in its place.
pub const apAutomatic: i32 = 2;

// EGraphType: Form of a curve.
/// A line through the points.
pub const gtLine: i32 = 0;
/// A dot on each point.
pub const gtScatter: i32 = 1;

// EAlignment: Side of the legend.
/// At the left.
pub const left: i32 = 0;
/// At the right.
pub const right: i32 = 1;
/// No legend is drawn.
pub const top: i32 = 2;
/// No legend is drawn.
pub const bottom: i32 = 3;

// EOperation: What the mouse does in a graph.
/// Clicks select, double clicks open the properties.
pub const opNone: i32 = 0;
/// The left button zooms into a band.
pub const opZoom: i32 = 1;
/// Reserved.
pub const opReset: i32 = 2;
/// The left button drags the picture.
pub const opPan: i32 = 3;
/// A crosshair follows the mouse.
pub const opCursor: i32 = 4;
/// Reserved.
pub const opMoveObject: i32 = 5;
/// Reserved.
pub const opEditObject: i32 = 6;
/// The left button drags curve points up and down.
pub const opEditCurve: i32 = 7;
/// The left button measures between curve points.
pub const opMeasure: i32 = 8;

// XGRAPH_MSG: Messages that a graph posts to its parent window. "Graph" is the low half of the native object's address, which tells two graphs apart; "window" the low half of the graph's handle.
/// A click on a Y axis. wParam: its index from 0; lParam: graph.
pub const XG_YAXISCLICK: i32 = 1025;
/// A click on an X axis. wParam: its index from 0; lParam: graph.
pub const XG_XAXISCLICK: i32 = 1026;
/// A click on a curve, and each move over one in opEditCurve. wParam: its index from 0; lParam: graph.
pub const XG_CURVECLICK: i32 = 1027;
/// A double click on a Y axis. wParam: its index from 0; lParam: graph.
pub const XG_YAXISDBLCLICK: i32 = 1028;
/// A double click on an X axis. wParam: its index from 0; lParam: graph.
pub const XG_XAXISDBLCLICK: i32 = 1029;
/// A double click on a curve. wParam: its index from 0; lParam: graph.
pub const XG_CURVEDBLCLICK: i32 = 1030;
/// A double click on nothing else. wParam: 0; lParam: graph.
pub const XG_GRAPHDBLCLICK: i32 = 1031;
/// The right button's release, the moment for a popup menu. wParam: 0; lParam: window.
pub const XG_RBUTTONUP: i32 = 1032;
/// The cursor moved. wParam: 0; lParam: window.
pub const XG_CURSORMOVED: i32 = 1033;
/// A zoom or a step back changed the visible ranges. wParam: 0; lParam: graph.
pub const XG_ZOOMCHANGE: i32 = 1034;
/// A curve point was dragged. wParam: address of a TPointChange, read in place and at once; lParam: graph.
pub const XG_POINTCHANGED: i32 = 1035;

// XGRAPH_PERSIST: Sections of a graph file, to be added up.
/// The graph's settings.
pub const PERSIST_PROPERTIES: i32 = 1;
/// Curves and axes.
pub const PERSIST_DATA: i32 = 2;
/// Measures, labels, notes and pictures.
pub const PERSIST_OBJECTS: i32 = 4;

// XGRAPH_XGC: What the cursor shows, to be added up.
/// The horizontal line.
pub const XGC_HORIZ: i32 = 1;
/// The vertical line.
pub const XGC_VERT: i32 = 2;
/// A box with the values.
pub const XGC_LEGEND: i32 = 4;
/// SetCursorAbsolute keeps the point in the middle of the view.
pub const XGC_ADJUSTSMOOTH: i32 = 8;

// VpxCommand: Commands of the graph window: the low word of wParam of a WM_COMMAND that a host sends to it.
/// Selection, the state of a new graph: clicks select, double clicks open the properties.
pub const VPX_COMMAND_SELECT: i32 = 40000;
/// Inserts an empty label of 100 by 100 pixels in the middle of the plot.
pub const VPX_COMMAND_INSERT_LABEL: i32 = 40001;
/// The left button draws a band, its release zooms all axes into it.
pub const VPX_COMMAND_ZOOM: i32 = 40002;
/// Shows the whole range of all axes. The zoom history stays.
pub const VPX_COMMAND_RESET_ZOOM: i32 = 40003;
/// The left button drags the picture. Turns off the automatic scale of all axes.
pub const VPX_COMMAND_PAN: i32 = 40004;
/// Opens the property sheet for what lies under the last mouse position; acts as a double click there.
pub const VPX_COMMAND_PROPERTIES: i32 = 40005;
/// Asks for a printer and prints the graph on one page.
pub const VPX_COMMAND_PRINT: i32 = 40007;
/// Adds the linear trend of the curve that a click selected. Ends the process if none is selected.
pub const VPX_COMMAND_LINEAR_TREND: i32 = 40009;
/// Adds the cubic trend of the curve that a click selected. Ends the process if none is selected.
pub const VPX_COMMAND_CUBIC_TREND: i32 = 40010;
/// A crosshair follows the mouse. Turns off the automatic scale of all axes.
pub const VPX_COMMAND_CURSOR: i32 = 40011;
/// Comes back to the parent window as a posted message of the same number.
pub const VPX_COMMAND_PASS_ON: i32 = 40012;
/// One step back in the zoom history of each axis.
pub const VPX_COMMAND_ZOOM_BACK: i32 = 40013;
/// Curve points can be dragged up and down.
pub const VPX_COMMAND_EDIT: i32 = 40014;
/// The left button measures between two curve points.
pub const VPX_COMMAND_MEASURE: i32 = 40015;

// VpxMessage: A message to the parent window that XGRAPH_MSG doesn't name.
/// VPX_COMMAND_PASS_ON as it came back: wParam 0, lParam the graph.
pub const VPX_MESSAGE_PASSED_ON: i32 = 40012;

// VpxNone: An index that means none.
/// No curve: ForceSnap lets the cursor snap freely again; a label is tied to no curve.
pub const VPX_NO_CURVE: i32 = -1;

// VpxPen: Line styles, the platform's pen styles. A style other than solid needs a line width of 1 under GDI.
/// An unbroken line.
pub const VPX_PEN_SOLID: i32 = 0;
/// Dashes.
pub const VPX_PEN_DASH: i32 = 1;
/// Dots; the grid's style at first.
pub const VPX_PEN_DOT: i32 = 2;
/// A dash and a dot in turn.
pub const VPX_PEN_DASH_DOT: i32 = 3;
/// A dash and two dots in turn.
pub const VPX_PEN_DASH_DOT_DOT: i32 = 4;
/// No line.
pub const VPX_PEN_NULL: i32 = 5;

// VpxFill: Fill styles: the platform's hatches, or solid.
/// Horizontal lines.
pub const VPX_FILL_HORIZONTAL: i32 = 0;
/// Vertical lines.
pub const VPX_FILL_VERTICAL: i32 = 1;
/// Diagonal lines, falling to the right.
pub const VPX_FILL_FORWARD_DIAGONAL: i32 = 2;
/// Diagonal lines, rising to the right.
pub const VPX_FILL_BACKWARD_DIAGONAL: i32 = 3;
/// A grid of horizontal and vertical lines.
pub const VPX_FILL_CROSS: i32 = 4;
/// A grid of diagonal lines.
pub const VPX_FILL_DIAGONAL_CROSS: i32 = 5;
/// Solid.
pub const VPX_FILL_SOLID: i32 = 6;

// VpxFillCurve: What the area beneath a curve ends at, besides another curve's index.
/// The bottom edge of the plot. GetFillCurve gives it back as -1.
pub const VPX_FILL_TO_BOTTOM: i32 = 65535;

// VpxMarkerType: What a curve's markers and its key show.
/// A square with the curve's number, counted from 1.
pub const VPX_MARKER_CURVE_NUMBER: i32 = 0;
/// The symbol that SetMarker names.
pub const VPX_MARKER_SYMBOL: i32 = 1;
/// A square with the number of SetMarker plus 1.
pub const VPX_MARKER_NUMBER: i32 = 2;

// VpxSymbol: Marker symbols.
/// A square.
pub const VPX_SYMBOL_SQUARE: i32 = 0;
/// A circle.
pub const VPX_SYMBOL_CIRCLE: i32 = 1;
/// Two diagonals.
pub const VPX_SYMBOL_CROSS: i32 = 2;
/// A square on its corner.
pub const VPX_SYMBOL_DIAMOND: i32 = 3;
/// A triangle that points left.
pub const VPX_SYMBOL_TRIANGLE_LEFT: i32 = 4;
/// A triangle that points up.
pub const VPX_SYMBOL_TRIANGLE_UP: i32 = 5;
/// A triangle that points right.
pub const VPX_SYMBOL_TRIANGLE_RIGHT: i32 = 6;
/// A triangle that points down.
pub const VPX_SYMBOL_TRIANGLE_DOWN: i32 = 7;

// VpxAlign: Alignment of a label's text; further flags of the platform's DrawText may be added.
/// At the left.
pub const VPX_ALIGN_LEFT: i32 = 0;
/// Centred.
pub const VPX_ALIGN_CENTER: i32 = 1;
/// At the right.
pub const VPX_ALIGN_RIGHT: i32 = 2;

// VpxChart: Kinds of business chart.
/// Groups of bars, a bar for each series.
pub const VPX_CHART_BAR: i32 = 0;
/// A flat pie of percents.
pub const VPX_CHART_PIE: i32 = 1;
/// A line for each series; needs two segments at least.
pub const VPX_CHART_LINE: i32 = 2;

// VpxBackground: Background of the business chart.
/// The background colour.
pub const VPX_BACKGROUND_SOLID: i32 = 10;
/// The gradient of the two gradient colours.
pub const VPX_BACKGROUND_GRADIENT: i32 = 11;

// VpxGradient: Direction of the business chart's gradient, as the setter takes it.
/// From left to right.
pub const VPX_GRADIENT_HORIZONTAL: i32 = 20;
/// From top to bottom.
pub const VPX_GRADIENT_VERTICAL: i32 = 21;

// VpxGradientMode: Direction of the business chart's gradient, as the getter gives it: not the setter's numbers.
/// From left to right.
pub const VPX_GRADIENT_MODE_HORIZONTAL: i32 = 0;
/// From top to bottom.
pub const VPX_GRADIENT_MODE_VERTICAL: i32 = 1;

// VpxAnimate: Whether the business chart's animation runs.
/// The whole chart, still. Give the animation's type all the same.
pub const VPX_ANIMATE_OFF: i32 = 0;
/// The animation runs from its start, a step each 50 milliseconds.
pub const VPX_ANIMATE_ON: i32 = 1;

// VpxAnimation: Entry animations of the business chart; each belongs to one kind of chart.
/// Flat pie: the slices sweep open one after the other.
pub const VPX_ANIMATION_PIE_SWEEP: i32 = 10;
/// Flat pie: the slices fade in one after the other.
pub const VPX_ANIMATION_PIE_FADE: i32 = 11;
/// Bars: all grow together.
pub const VPX_ANIMATION_BARS_GROW: i32 = 20;
/// Bars: the groups grow one after the other.
pub const VPX_ANIMATION_BAR_GROUPS_GROW: i32 = 21;
/// Bars: the series grow one after the other.
pub const VPX_ANIMATION_BAR_SERIES_GROW: i32 = 22;
/// Bars: the groups fade in one after the other.
pub const VPX_ANIMATION_BAR_GROUPS_FADE: i32 = 25;
/// Bars: the series fade in one after the other.
pub const VPX_ANIMATION_BAR_SERIES_FADE: i32 = 26;
/// Lines: all are drawn together.
pub const VPX_ANIMATION_LINES_DRAW: i32 = 30;
/// Lines: the series are drawn one after the other.
pub const VPX_ANIMATION_LINE_SERIES_DRAW: i32 = 31;

// VpxPieStyle: Styles of the 3D pie.
/// Tilted, with side walls; any number but 1 and 2 means this.
pub const VPX_PIE_SOLID: i32 = 0;
/// A ring.
pub const VPX_PIE_DOUGHNUT: i32 = 1;
/// A flat circle, the slices set apart by lines.
pub const VPX_PIE_FLAT: i32 = 2;

// VpxPieOrder: Order that the 3D pie's elements are sorted into, by value.
/// The smallest first.
pub const VPX_PIE_ORDER_ASCENDING: i32 = 0;
/// The largest first.
pub const VPX_PIE_ORDER_DESCENDING: i32 = 1;

// VpxFont: Bytes of the LOGFONTW that the font setters read.
/// The size of a LOGFONTW.
pub const VPX_FONT_RECORD_SIZE: i32 = 92;

// Slots of the real method tables: the methods of IUnknown are 0 to 2, of IDispatch 3 to 6.
pub mod ISObject {
    pub const SetObjectHandle: usize = 7;
    pub const GetObjectHandle: usize = 8;
}
pub mod ISGraphObject {
    pub const SetObjectHandle: usize = 7;
    pub const GetObjectHandle: usize = 8;
    pub const SetRect: usize = 9;
    pub const GetRect: usize = 10;
    pub const SetSelected: usize = 11;
    pub const GetSelected: usize = 12;
    pub const SetVisible: usize = 13;
    pub const GetVisible: usize = 14;
    pub const SetColor: usize = 15;
    pub const GetColor: usize = 16;
    pub const GetGraph: usize = 17;
}
pub mod ISGraphAxis {
    pub const SetObjectHandle: usize = 7;
    pub const GetObjectHandle: usize = 8;
    pub const SetRect: usize = 9;
    pub const GetRect: usize = 10;
    pub const SetSelected: usize = 11;
    pub const GetSelected: usize = 12;
    pub const SetVisible: usize = 13;
    pub const GetVisible: usize = 14;
    pub const SetColor: usize = 15;
    pub const GetColor: usize = 16;
    pub const GetGraph: usize = 17;
    pub const SetAxisType: usize = 18;
    pub const GetAxisType: usize = 19;
    pub const SetShowMarker: usize = 20;
    pub const GetShowMarker: usize = 21;
    pub const SetDateTime: usize = 22;
    pub const GetDateTime: usize = 23;
    pub const SetShowGrid: usize = 24;
    pub const GetShowGrid: usize = 25;
    pub const SetAutoScale: usize = 26;
    pub const GetAutoScale: usize = 27;
    pub const SetArcSize: usize = 28;
    pub const GetArcSize: usize = 29;
    pub const SetMarkerSize: usize = 30;
    pub const GetMarkerSize: usize = 31;
    pub const SetTickSize: usize = 32;
    pub const GetTickSize: usize = 33;
    pub const SetGridStyle: usize = 34;
    pub const GetGridStyle: usize = 35;
    pub const SetLabel: usize = 36;
    pub const GetLabel: usize = 37;
    pub const SetDisplayFmt: usize = 38;
    pub const GetDisplayFmt: usize = 39;
    pub const SetGridColor: usize = 40;
    pub const GetGridColor: usize = 41;
    pub const SetPlacement: usize = 42;
    pub const GetPlacement: usize = 43;
    pub const GetAxisMarkerCount: usize = 44;
    pub const GetValueForPos: usize = 45;
    pub const SetAxisMarker: usize = 46;
    pub const SetMaskerLabel: usize = 47;
    pub const SetColorRange: usize = 48;
    pub const DeleteColorRange: usize = 49;
    pub const DeleteAllColorRanges: usize = 50;
}
pub mod ISGraphLogAxis {
    pub const SetObjectHandle: usize = 7;
    pub const GetObjectHandle: usize = 8;
    pub const SetRect: usize = 9;
    pub const GetRect: usize = 10;
    pub const SetSelected: usize = 11;
    pub const GetSelected: usize = 12;
    pub const SetVisible: usize = 13;
    pub const GetVisible: usize = 14;
    pub const SetColor: usize = 15;
    pub const GetColor: usize = 16;
    pub const GetGraph: usize = 17;
    pub const SetAxisType: usize = 18;
    pub const GetAxisType: usize = 19;
    pub const SetShowMarker: usize = 20;
    pub const GetShowMarker: usize = 21;
    pub const SetDateTime: usize = 22;
    pub const GetDateTime: usize = 23;
    pub const SetShowGrid: usize = 24;
    pub const GetShowGrid: usize = 25;
    pub const SetAutoScale: usize = 26;
    pub const GetAutoScale: usize = 27;
    pub const SetArcSize: usize = 28;
    pub const GetArcSize: usize = 29;
    pub const SetMarkerSize: usize = 30;
    pub const GetMarkerSize: usize = 31;
    pub const SetTickSize: usize = 32;
    pub const GetTickSize: usize = 33;
    pub const SetGridStyle: usize = 34;
    pub const GetGridStyle: usize = 35;
    pub const SetLabel: usize = 36;
    pub const GetLabel: usize = 37;
    pub const SetDisplayFmt: usize = 38;
    pub const GetDisplayFmt: usize = 39;
    pub const SetGridColor: usize = 40;
    pub const GetGridColor: usize = 41;
    pub const SetPlacement: usize = 42;
    pub const GetPlacement: usize = 43;
    pub const GetAxisMarkerCount: usize = 44;
    pub const GetValueForPos: usize = 45;
    pub const SetAxisMarker: usize = 46;
    pub const SetMaskerLabel: usize = 47;
    pub const SetColorRange: usize = 48;
    pub const DeleteColorRange: usize = 49;
    pub const DeleteAllColorRanges: usize = 50;
    pub const SetRange: usize = 51;
}
pub mod ISGraphDataSerie {
    pub const SetObjectHandle: usize = 7;
    pub const GetObjectHandle: usize = 8;
    pub const SetRect: usize = 9;
    pub const GetRect: usize = 10;
    pub const SetSelected: usize = 11;
    pub const GetSelected: usize = 12;
    pub const SetVisible: usize = 13;
    pub const GetVisible: usize = 14;
    pub const SetColor: usize = 15;
    pub const GetColor: usize = 16;
    pub const GetGraph: usize = 17;
    pub const GetLinearTrend: usize = 18;
    pub const GetCubicTrend: usize = 19;
    pub const GetPolynomialTrend: usize = 20;
    pub const GetSimpleMovingAverage: usize = 21;
    pub const GetExponentialMovingAverage: usize = 22;
    pub const GetLinearMovingAverage: usize = 23;
    pub const GetTriangularMovingAverage: usize = 24;
    pub const GetSineWeightedMovingAverage: usize = 25;
    pub const SetLineSize: usize = 26;
    pub const SetFillStyle: usize = 27;
    pub const SetMarkerType: usize = 28;
    pub const SetMarker: usize = 29;
    pub const SetMarkerSize: usize = 30;
    pub const SetShowMarker: usize = 31;
    pub const SetFillColor: usize = 32;
    pub const SetFillCurve: usize = 33;
    pub const SetFillBeneath: usize = 34;
    pub const SetFillTransparent: usize = 35;
    pub const SetLabel: usize = 36;
    pub const SetType: usize = 37;
    pub const GetCount: usize = 38;
    pub const GetIndex: usize = 39;
    pub const GetXAxis: usize = 40;
    pub const GetYAxis: usize = 41;
    pub const GetLineSize: usize = 42;
    pub const GetFillStyle: usize = 43;
    pub const GetMarkerType: usize = 44;
    pub const GetMarker: usize = 45;
    pub const GetMarkerSize: usize = 46;
    pub const GetLineStyle: usize = 47;
    pub const GetShowMarker: usize = 48;
    pub const GetFillBeneath: usize = 49;
    pub const GetFillCurve: usize = 50;
    pub const GetFillTransparent: usize = 51;
    pub const GetLabel: usize = 52;
    pub const GetType: usize = 53;
    pub const SetLineStyle: usize = 54;
}
pub mod ISGraphLabel {
    pub const SetObjectHandle: usize = 7;
    pub const GetObjectHandle: usize = 8;
    pub const SetRect: usize = 9;
    pub const GetRect: usize = 10;
    pub const SetSelected: usize = 11;
    pub const GetSelected: usize = 12;
    pub const SetVisible: usize = 13;
    pub const GetVisible: usize = 14;
    pub const SetColor: usize = 15;
    pub const GetColor: usize = 16;
    pub const GetGraph: usize = 17;
    pub const SetFont: usize = 18;
    pub const SetText: usize = 19;
    pub const GetText: usize = 20;
    pub const SetTextColor: usize = 21;
    pub const GetTextColor: usize = 22;
    pub const SetBorder: usize = 23;
    pub const GetBorder: usize = 24;
    pub const SetTransparent: usize = 25;
    pub const GetTransparent: usize = 26;
    pub const SetAlignment: usize = 27;
    pub const GetAlignment: usize = 28;
    pub const SetCurve: usize = 29;
    pub const GetCurve: usize = 30;
}
pub mod ISGraphBitmap {
    pub const SetObjectHandle: usize = 7;
    pub const GetObjectHandle: usize = 8;
    pub const SetRect: usize = 9;
    pub const GetRect: usize = 10;
    pub const SetSelected: usize = 11;
    pub const GetSelected: usize = 12;
    pub const SetVisible: usize = 13;
    pub const GetVisible: usize = 14;
    pub const SetColor: usize = 15;
    pub const GetColor: usize = 16;
    pub const GetGraph: usize = 17;
    pub const SetBorder: usize = 18;
    pub const SetBitmap: usize = 19;
    pub const GetBorder: usize = 20;
    pub const GetBitmap: usize = 21;
}
pub mod ISGraph {
    pub const SetData: usize = 7;
    pub const GetXAxis: usize = 8;
    pub const GetYAxis: usize = 9;
    pub const GetCurve: usize = 10;
    pub const DeleteXAxis: usize = 11;
    pub const DeleteYAxis: usize = 12;
    pub const DeleteCurve: usize = 13;
    pub const InsertDataNotation: usize = 14;
    pub const AddLinearTrend: usize = 15;
    pub const AddCubicTrend: usize = 16;
    pub const GetXAxisCount: usize = 17;
    pub const GetYAxisCount: usize = 18;
    pub const GetCurveCount: usize = 19;
    pub const SelectXAxis: usize = 20;
    pub const SelectYAxis: usize = 21;
    pub const SelectCurve: usize = 22;
    pub const SetGraphMargins: usize = 23;
    pub const SaveBitmap: usize = 24;
    pub const Edit: usize = 25;
    pub const Zoom: usize = 26;
    pub const ResetZoom: usize = 27;
    pub const Pan: usize = 28;
    pub const NoOp: usize = 29;
    pub const Cursor: usize = 30;
    pub const Measure: usize = 31;
    pub const ResetAll: usize = 32;
    pub const GetZoomDepth: usize = 33;
    pub const SetBackgroundBitmap: usize = 34;
    pub const InsertLabel: usize = 35;
    pub const InsertBitmap: usize = 36;
    pub const SetBackColor: usize = 37;
    pub const SetGraphColor: usize = 38;
    pub const SetInnerColor: usize = 39;
    pub const SetDoubleBuffer: usize = 40;
    pub const SetShowLegend: usize = 41;
    pub const SetInteraction: usize = 42;
    pub const SetSnapCursor: usize = 43;
    pub const SetLegendAlignment: usize = 44;
    pub const SetSnapRange: usize = 45;
    pub const SetPrintHeader: usize = 46;
    pub const SetPrintFooter: usize = 47;
    pub const SetCursor: usize = 48;
    pub const SetCursorFlags: usize = 49;
    pub const Autoscale: usize = 50;
    pub const DeleteMeasures: usize = 51;
    pub const ForceSnap: usize = 52;
    pub const GetBackColor: usize = 53;
    pub const GetGraphColor: usize = 54;
    pub const GetInnerColor: usize = 55;
    pub const GetDoubleBuffer: usize = 56;
    pub const GetShowLegend: usize = 57;
    pub const GetInteraction: usize = 58;
    pub const GetSnapCursor: usize = 59;
    pub const GetLegendAlignment: usize = 60;
    pub const GetSnapRange: usize = 61;
    pub const GetCursor: usize = 62;
    pub const GetOperation: usize = 63;
    pub const GetCursorAbsolute: usize = 64;
    pub const SetCursorAbsolute: usize = 65;
    pub const Save: usize = 66;
    pub const Load: usize = 67;
    pub const Create: usize = 68;
    pub const Invalidate: usize = 69;
    pub const PostMessage: usize = 70;
    pub const SendMessage: usize = 71;
    pub const GetHandle: usize = 72;
    pub const GetXGraphMsgInfo: usize = 73;
    pub const GetXGraphPersistInfo: usize = 74;
    pub const GetXGraphXgcInfo: usize = 75;
}
pub mod IChart2d {
    pub const ShowGraphLegend: usize = 7;
    pub const GetGraphLegendTextColor: usize = 8;
    pub const SetGraphLegendTextColor: usize = 9;
    pub const GetGraphLegendBackgroundColor: usize = 10;
    pub const SetGraphLegendBackgroundColor: usize = 11;
    pub const SetGraphLabelsColor: usize = 12;
    pub const GetGraphLabelsColor: usize = 13;
    pub const GetGraphSubtitleColor: usize = 14;
    pub const SetGraphSubtitleColor: usize = 15;
    pub const GetGraphTitleColor: usize = 16;
    pub const SetGraphTitleColor: usize = 17;
    pub const GetGraphSubtitleShadow: usize = 18;
    pub const SetGraphSubtitleShadow: usize = 19;
    pub const GetGraphTitleShadow: usize = 20;
    pub const SetGraphTitleShadow: usize = 21;
    pub const GetGradientFillType: usize = 22;
    pub const SetGradientFillType: usize = 23;
    pub const SetGraphGradientColors: usize = 24;
    pub const GetGraphFillType: usize = 25;
    pub const SetGraphFillType: usize = 26;
    pub const Delete2DLineGraphSeries: usize = 27;
    pub const Add2DLineGraphSeries: usize = 28;
    pub const Set2DLineGraphValue: usize = 29;
    pub const Delete2DLineGraphSegment: usize = 30;
    pub const Add2DLineGraphSegment: usize = 31;
    pub const Detele2DBarGraphSeries: usize = 32;
    pub const Add2DBarGraphSeries: usize = 33;
    pub const Set2DBarGraphValue: usize = 34;
    pub const Delete2DBarGraphSegment: usize = 35;
    pub const Add2DBarGraphSegment: usize = 36;
    pub const SetGraphPosition: usize = 37;
    pub const SetGraphSize: usize = 38;
    pub const Update2DPieGraphSegment: usize = 39;
    pub const SetGraphSubtitle: usize = 40;
    pub const SetGraphTitle: usize = 41;
    pub const GetGraphBackgroundColor: usize = 42;
    pub const SetGraphBackgroundColor: usize = 43;
    pub const GetGraphAnimation: usize = 44;
    pub const SetGraphAnimation: usize = 45;
    pub const Delete2DPieGraphSegment: usize = 46;
    pub const Add2DPieGraphSegment: usize = 47;
    pub const Clear2DPieGraph: usize = 48;
    pub const CreateGraph: usize = 49;
    pub const Invalidate: usize = 50;
    pub const GetHandle: usize = 51;
    pub const Create: usize = 52;
}
pub mod IPieChart3d {
    pub const Create: usize = 7;
    pub const PostMessage: usize = 8;
    pub const SendMessage: usize = 9;
    pub const InsertItem: usize = 10;
    pub const RemoveItem: usize = 11;
    pub const RemoveItemByIndex: usize = 12;
    pub const RemoveAllItem: usize = 13;
    pub const UpdateItemLabel: usize = 14;
    pub const UpdateItemValue: usize = 15;
    pub const UpdateItemColor: usize = 16;
    pub const SetLabelFont: usize = 17;
    pub const SetLabelFontName: usize = 18;
    pub const SetTitleFont: usize = 19;
    pub const SetTitleFontName: usize = 20;
    pub const SetLabelBoxColor: usize = 21;
    pub const SetBackgrndColor: usize = 22;
    pub const SetLabelColor: usize = 23;
    pub const SetParentWindowColor: usize = 24;
    pub const SetPieElementGradientLight: usize = 25;
    pub const SetPieElementGradientDark: usize = 26;
    pub const SetBackGroundGradientLight: usize = 27;
    pub const SetBackGroundGradientDark: usize = 28;
    pub const SetPieElementGradientDarkAll: usize = 29;
    pub const SetPieElementGradientLightAll: usize = 30;
    pub const SetPieChartTitle: usize = 31;
    pub const SetPieChartStyle: usize = 32;
    pub const SetStartAngle: usize = 33;
    pub const SetInclineAngle: usize = 34;
    pub const SetDepth: usize = 35;
    pub const sortPiechartElements: usize = 36;
    pub const SortToOrginalOrder: usize = 37;
    pub const GetSelectedElement: usize = 38;
    pub const GetPieChartItem: usize = 39;
    pub const GetElementID: usize = 40;
    pub const GetBackGroungGrLight: usize = 41;
    pub const GetBackgroundGrDark: usize = 42;
    pub const GetElementGrLight: usize = 43;
    pub const GetElementGrDark: usize = 44;
    pub const GetElementName: usize = 45;
    pub const GetHandle: usize = 46;
    pub const Invalidate: usize = 47;
}
