//! Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit.
#![allow(dead_code, non_camel_case_types, non_snake_case, non_upper_case_globals)]

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

// XGRAPH_MSG: Messages that a graph posts to its parent window. "Graph" is the low half of the native object's address, by which two graphs differ; "window" the low half of the graph's handle.
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

use std::ffi::c_void;
use std::mem::transmute;

#[repr(C)]
#[derive(Clone, Copy)]
pub struct GUID(pub u32, pub u16, pub u16, pub [u8; 8]);

#[repr(C)]
#[derive(Clone, Copy, Default)]
pub struct TDataPoint {
    pub fXVal: f64,
    pub fYVal: f64,
}

#[repr(C)]
#[derive(Clone, Copy, Default)]
pub struct RECT {
    pub left: i32,
    pub top: i32,
    pub right: i32,
    pub bottom: i32,
}

/// The root of what a graph is made of: which native object a wrapper is for.
#[repr(C)]
pub struct ISObject {
    table: *const *const c_void,
}

impl ISObject {
    pub const IID: GUID = GUID(0xD8C5A43F, 0x6850, 0x44AB, [0x98, 0x52, 0x46, 0xA0, 0x3F, 0x79, 0x5F, 0xEE]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.
    pub unsafe fn SetObjectHandle(&self, hObj: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(7))(self, hObj)
    }
    /// Writes the address of the caller's own variable into that variable. The native object can't be read back with it.
    pub unsafe fn GetObjectHandle(&self, hObj: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(8))(self, hObj)
    }
}

/// What axes, curves, labels and bitmaps share. A wrapper is a view: it keeps nothing alive and doesn't notice when its object goes. Ask the graph for a new one after any call that adds or deletes a curve or an axis.
#[repr(C)]
pub struct ISGraphObject {
    table: *const *const c_void,
}

impl ISGraphObject {
    pub const IID: GUID = GUID(0x40C4BE95, 0xC0C1, 0x4FD5, [0x8F, 0x9D, 0xE1, 0x50, 0x60, 0xE2, 0x5B, 0x62]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.
    pub unsafe fn SetObjectHandle(&self, hObj: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(7))(self, hObj)
    }
    /// Writes the address of the caller's own variable into that variable. The native object can't be read back with it.
    pub unsafe fn GetObjectHandle(&self, hObj: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(8))(self, hObj)
    }
    /// Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.
    pub unsafe fn SetRect(&self, pRect: *const RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT) -> i32>(*self.table.add(9))(self, pRect)
    }
    /// Where the object is: a label's box, or the strip around an axis's line in the last frame.
    pub unsafe fn GetRect(&self, pRect: *mut RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut RECT) -> i32>(*self.table.add(10))(self, pRect)
    }
    /// Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.
    pub unsafe fn SetSelected(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(11))(self, bValue)
    }
    /// Whether the object is selected.
    pub unsafe fn GetSelected(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(12))(self, pbValue)
    }
    /// Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.
    pub unsafe fn SetVisible(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(13))(self, bValue)
    }
    /// Whether the object is shown.
    pub unsafe fn GetVisible(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(14))(self, pbValue)
    }
    /// The colour of an axis's line or of a curve. On a label it is the box's fill colour.
    pub unsafe fn SetColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(15))(self, color)
    }
    /// The colour that SetColor sets.
    pub unsafe fn GetColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(16))(self, pColor)
    }
    /// Gives this wrapper itself, not the graph, and adds no reference: don't release it.
    pub unsafe fn GetGraph(&self, pGraph: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(17))(self, pGraph)
    }
}

/// An X or Y axis of a graph, from ISGraph.GetXAxis or GetYAxis. Fields are stored as they come, without a check. A wrapper without an axis does nothing and returns S_OK, and its getters then write nothing: initialise what you pass.
#[repr(C)]
pub struct ISGraphAxis {
    table: *const *const c_void,
}

impl ISGraphAxis {
    pub const IID: GUID = GUID(0x053D3815, 0x35DD, 0x4489, [0xB9, 0x13, 0xE7, 0xA4, 0xA3, 0x6E, 0x6D, 0xE4]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.
    pub unsafe fn SetObjectHandle(&self, hObj: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(7))(self, hObj)
    }
    /// Writes the address of the caller's own variable into that variable. The native object can't be read back with it.
    pub unsafe fn GetObjectHandle(&self, hObj: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(8))(self, hObj)
    }
    /// Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.
    pub unsafe fn SetRect(&self, pRect: *const RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT) -> i32>(*self.table.add(9))(self, pRect)
    }
    /// Where the object is: a label's box, or the strip around an axis's line in the last frame.
    pub unsafe fn GetRect(&self, pRect: *mut RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut RECT) -> i32>(*self.table.add(10))(self, pRect)
    }
    /// Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.
    pub unsafe fn SetSelected(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(11))(self, bValue)
    }
    /// Whether the object is selected.
    pub unsafe fn GetSelected(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(12))(self, pbValue)
    }
    /// Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.
    pub unsafe fn SetVisible(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(13))(self, bValue)
    }
    /// Whether the object is shown.
    pub unsafe fn GetVisible(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(14))(self, pbValue)
    }
    /// The colour of an axis's line or of a curve. On a label it is the box's fill colour.
    pub unsafe fn SetColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(15))(self, color)
    }
    /// The colour that SetColor sets.
    pub unsafe fn GetColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(16))(self, pColor)
    }
    /// Gives this wrapper itself, not the graph, and adds no reference: don't release it.
    pub unsafe fn GetGraph(&self, pGraph: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(17))(self, pGraph)
    }
    /// Linear or logarithmic. A logarithmic axis needs a range above 0; the bounds of later ranges are floored at 1e-16.
    pub unsafe fn SetAxisType(&self, type_: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(18))(self, type_)
    }
    /// The scale.
    pub unsafe fn GetAxisType(&self, pType: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(19))(self, pType)
    }
    /// Shows or hides the keys of the axis's curves along the axis. Shown at first.
    pub unsafe fn SetShowMarker(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(20))(self, bValue)
    }
    /// Whether the curve keys are shown.
    pub unsafe fn GetShowMarker(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(21))(self, pbValue)
    }
    /// Values are date-times: days since 1899-12-30 with the time as fraction, as in DATE. Set a display format of dates with it, SetDisplayFmt, for this call doesn't change the format.
    pub unsafe fn SetDateTime(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(22))(self, bValue)
    }
    /// Whether values are date-times.
    pub unsafe fn GetDateTime(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(23))(self, pbValue)
    }
    /// Shows or hides the grid lines of the axis. Shown at first.
    pub unsafe fn SetShowGrid(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(24))(self, bValue)
    }
    /// Whether the grid is shown.
    pub unsafe fn GetShowGrid(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(25))(self, pbValue)
    }
    /// Whether each frame rounds the visible range outward to whole steps. On at first; pan, cursor and wheel turn it off.
    pub unsafe fn SetAutoScale(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(26))(self, bValue)
    }
    /// Whether each frame rounds the visible range.
    pub unsafe fn GetAutoScale(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(27))(self, pbValue)
    }
    /// Size of the arrow at the axis's end.
    pub unsafe fn SetArcSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(28))(self, nValue)
    }
    /// Size of the arrow.
    pub unsafe fn GetArcSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(29))(self, pnValue)
    }
    /// Side of a curve key along the axis.
    pub unsafe fn SetMarkerSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(30))(self, nValue)
    }
    /// Side of a curve key.
    pub unsafe fn GetMarkerSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(31))(self, pnValue)
    }
    /// Length of a tick and gap between axis and label.
    pub unsafe fn SetTickSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(32))(self, nValue)
    }
    /// Length of a tick.
    pub unsafe fn GetTickSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(33))(self, pnValue)
    }
    /// Line style of the grid.
    pub unsafe fn SetGridStyle(&self, nValue: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(34))(self, nValue)
    }
    /// Line style of the grid.
    pub unsafe fn GetGridStyle(&self, pnValue: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(35))(self, pnValue)
    }
    /// The axis's title. An empty one takes no room.
    pub unsafe fn SetLabel(&self, bstrValue: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(36))(self, bstrValue)
    }
    /// The axis's title.
    pub unsafe fn GetLabel(&self, pbstrValue: *mut *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u16) -> i32>(*self.table.add(37))(self, pbstrValue)
    }
    /// How values are written: the printf format of one double ("%5.1f"), or on a date-time axis a strftime format ("%Y-%m-%d"). Items that ask for anything else are written as they are; width and precision end at 64.
    pub unsafe fn SetDisplayFmt(&self, bstrValue: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(38))(self, bstrValue)
    }
    /// How values are written. A range with a bound beyond a million turns it into "%5.2e" on its own.
    pub unsafe fn GetDisplayFmt(&self, pbstrValue: *mut *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u16) -> i32>(*self.table.add(39))(self, pbstrValue)
    }
    /// Colour of the grid.
    pub unsafe fn SetGridColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(40))(self, color)
    }
    /// Colour of the grid.
    pub unsafe fn GetGridColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(41))(self, pColor)
    }
    /// The side of a Y axis. Automatic axes go left and right in turn at the next frame, which replaces the value for good. X axes are always at the bottom.
    pub unsafe fn SetPlacement(&self, placement: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(42))(self, placement)
    }
    /// The side of a Y axis.
    pub unsafe fn GetPlacement(&self, pPlacement: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(43))(self, pPlacement)
    }
    /// Number of axis markers, which a user adds and removes too: with a click beside the selected axis, and with the right button on a marker.
    pub unsafe fn GetAxisMarkerCount(&self, pValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(44))(self, pValue)
    }
    /// The value at a pixel of the last frame.
    pub unsafe fn GetValueForPos(&self, nPos: i32, pValue: *mut f64) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut f64) -> i32>(*self.table.add(45))(self, nPos, pValue)
    }
    /// Adds or replaces an axis marker, a line across the plot at a value.
    pub unsafe fn SetAxisMarker(&self, nMarker: i32, fValue: f64, crColor: u32, nStyle: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, f64, u32, u32) -> i32>(*self.table.add(46))(self, nMarker, fValue, crColor, nStyle)
    }
    /// The text of an axis marker.
    pub unsafe fn SetMaskerLabel(&self, nPos: i32, bstrValue: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut u16) -> i32>(*self.table.add(47))(self, nPos, bstrValue)
    }
    /// Adds or replaces a colour range, a band behind the curves.
    pub unsafe fn SetColorRange(&self, nRange: i32, fMin: f64, fMax: f64, crMinColor: u32, crMaxColor: u32, bstrLabel: *mut u16, nStyle: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, f64, f64, u32, u32, *mut u16, u32) -> i32>(*self.table.add(48))(self, nRange, fMin, fMax, crMinColor, crMaxColor, bstrLabel, nStyle)
    }
    /// Deletes one colour range.
    pub unsafe fn DeleteColorRange(&self, nRange: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(49))(self, nRange)
    }
    /// Deletes all colour ranges.
    pub unsafe fn DeleteAllColorRanges(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(50))(self)
    }
}

/// A logarithmic axis of a class of its own, for hosts that make the wrapper themselves. The axes of a graph are those of ISGraphAxis, also with a logarithmic scale: set theirs with SetAxisType. Two methods are in place of the base's and have no slot of their own.
#[repr(C)]
pub struct ISGraphLogAxis {
    table: *const *const c_void,
}

impl ISGraphLogAxis {
    pub const IID: GUID = GUID(0x8AE09D08, 0x7719, 0x4660, [0xA5, 0xE3, 0xA2, 0x61, 0xEB, 0x0A, 0xA4, 0x1C]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.
    pub unsafe fn SetObjectHandle(&self, hObj: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(7))(self, hObj)
    }
    /// Writes the address of the caller's own variable into that variable. The native object can't be read back with it.
    pub unsafe fn GetObjectHandle(&self, hObj: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(8))(self, hObj)
    }
    /// Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.
    pub unsafe fn SetRect(&self, pRect: *const RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT) -> i32>(*self.table.add(9))(self, pRect)
    }
    /// Where the object is: a label's box, or the strip around an axis's line in the last frame.
    pub unsafe fn GetRect(&self, pRect: *mut RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut RECT) -> i32>(*self.table.add(10))(self, pRect)
    }
    /// Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.
    pub unsafe fn SetSelected(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(11))(self, bValue)
    }
    /// Whether the object is selected.
    pub unsafe fn GetSelected(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(12))(self, pbValue)
    }
    /// Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.
    pub unsafe fn SetVisible(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(13))(self, bValue)
    }
    /// Whether the object is shown.
    pub unsafe fn GetVisible(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(14))(self, pbValue)
    }
    /// The colour of an axis's line or of a curve. On a label it is the box's fill colour.
    pub unsafe fn SetColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(15))(self, color)
    }
    /// The colour that SetColor sets.
    pub unsafe fn GetColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(16))(self, pColor)
    }
    /// Gives this wrapper itself, not the graph, and adds no reference: don't release it.
    pub unsafe fn GetGraph(&self, pGraph: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(17))(self, pGraph)
    }
    /// Linear or logarithmic, in a field of this class; GetAxisType doesn't read it.
    pub unsafe fn SetAxisType(&self, type_: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(18))(self, type_)
    }
    /// The scale.
    pub unsafe fn GetAxisType(&self, pType: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(19))(self, pType)
    }
    /// Shows or hides the keys of the axis's curves along the axis. Shown at first.
    pub unsafe fn SetShowMarker(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(20))(self, bValue)
    }
    /// Whether the curve keys are shown.
    pub unsafe fn GetShowMarker(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(21))(self, pbValue)
    }
    /// Values are date-times: days since 1899-12-30 with the time as fraction, as in DATE. Set a display format of dates with it, SetDisplayFmt, for this call doesn't change the format.
    pub unsafe fn SetDateTime(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(22))(self, bValue)
    }
    /// Whether values are date-times.
    pub unsafe fn GetDateTime(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(23))(self, pbValue)
    }
    /// Shows or hides the grid lines of the axis. Shown at first.
    pub unsafe fn SetShowGrid(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(24))(self, bValue)
    }
    /// Whether the grid is shown.
    pub unsafe fn GetShowGrid(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(25))(self, pbValue)
    }
    /// Whether each frame rounds the visible range outward to whole steps. On at first; pan, cursor and wheel turn it off.
    pub unsafe fn SetAutoScale(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(26))(self, bValue)
    }
    /// Whether each frame rounds the visible range.
    pub unsafe fn GetAutoScale(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(27))(self, pbValue)
    }
    /// Size of the arrow at the axis's end.
    pub unsafe fn SetArcSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(28))(self, nValue)
    }
    /// Size of the arrow.
    pub unsafe fn GetArcSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(29))(self, pnValue)
    }
    /// Side of a curve key along the axis.
    pub unsafe fn SetMarkerSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(30))(self, nValue)
    }
    /// Side of a curve key.
    pub unsafe fn GetMarkerSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(31))(self, pnValue)
    }
    /// Length of a tick and gap between axis and label.
    pub unsafe fn SetTickSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(32))(self, nValue)
    }
    /// Length of a tick.
    pub unsafe fn GetTickSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(33))(self, pnValue)
    }
    /// Line style of the grid.
    pub unsafe fn SetGridStyle(&self, nValue: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(34))(self, nValue)
    }
    /// Line style of the grid.
    pub unsafe fn GetGridStyle(&self, pnValue: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(35))(self, pnValue)
    }
    /// The axis's title. An empty one takes no room.
    pub unsafe fn SetLabel(&self, bstrValue: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(36))(self, bstrValue)
    }
    /// The axis's title.
    pub unsafe fn GetLabel(&self, pbstrValue: *mut *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u16) -> i32>(*self.table.add(37))(self, pbstrValue)
    }
    /// How values are written: the printf format of one double ("%5.1f"), or on a date-time axis a strftime format ("%Y-%m-%d"). Items that ask for anything else are written as they are; width and precision end at 64.
    pub unsafe fn SetDisplayFmt(&self, bstrValue: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(38))(self, bstrValue)
    }
    /// How values are written. A range with a bound beyond a million turns it into "%5.2e" on its own.
    pub unsafe fn GetDisplayFmt(&self, pbstrValue: *mut *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u16) -> i32>(*self.table.add(39))(self, pbstrValue)
    }
    /// Colour of the grid.
    pub unsafe fn SetGridColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(40))(self, color)
    }
    /// Colour of the grid.
    pub unsafe fn GetGridColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(41))(self, pColor)
    }
    /// The side of a Y axis. Automatic axes go left and right in turn at the next frame, which replaces the value for good. X axes are always at the bottom.
    pub unsafe fn SetPlacement(&self, placement: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(42))(self, placement)
    }
    /// The side of a Y axis.
    pub unsafe fn GetPlacement(&self, pPlacement: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(43))(self, pPlacement)
    }
    /// Number of axis markers, which a user adds and removes too: with a click beside the selected axis, and with the right button on a marker.
    pub unsafe fn GetAxisMarkerCount(&self, pValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(44))(self, pValue)
    }
    /// The value at a pixel of the last frame, by the logarithmic mapping.
    pub unsafe fn GetValueForPos(&self, nPos: i32, pValue: *mut f64) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut f64) -> i32>(*self.table.add(45))(self, nPos, pValue)
    }
    /// Adds or replaces an axis marker, a line across the plot at a value.
    pub unsafe fn SetAxisMarker(&self, nMarker: i32, fValue: f64, crColor: u32, nStyle: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, f64, u32, u32) -> i32>(*self.table.add(46))(self, nMarker, fValue, crColor, nStyle)
    }
    /// The text of an axis marker.
    pub unsafe fn SetMaskerLabel(&self, nPos: i32, bstrValue: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut u16) -> i32>(*self.table.add(47))(self, nPos, bstrValue)
    }
    /// Adds or replaces a colour range, a band behind the curves.
    pub unsafe fn SetColorRange(&self, nRange: i32, fMin: f64, fMax: f64, crMinColor: u32, crMaxColor: u32, bstrLabel: *mut u16, nStyle: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, f64, f64, u32, u32, *mut u16, u32) -> i32>(*self.table.add(48))(self, nRange, fMin, fMax, crMinColor, crMaxColor, bstrLabel, nStyle)
    }
    /// Deletes one colour range.
    pub unsafe fn DeleteColorRange(&self, nRange: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(49))(self, nRange)
    }
    /// Deletes all colour ranges.
    pub unsafe fn DeleteAllColorRanges(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(50))(self)
    }
    /// Sets the whole and the visible range.
    pub unsafe fn SetRange(&self, fMin: f64, fMax: f64) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f64, f64) -> i32>(*self.table.add(51))(self, fMin, fMax)
    }
}

/// A curve of a graph, from ISGraph.SetData or GetCurve. Values are stored as they come, without a check. A wrapper without a curve does nothing and returns S_OK, and its getters then write nothing: initialise what you pass. Arrays that come back belong to the caller, who frees them with CoTaskMemFree.
#[repr(C)]
pub struct ISGraphDataSerie {
    table: *const *const c_void,
}

impl ISGraphDataSerie {
    pub const IID: GUID = GUID(0xEFBDCB31, 0x0A47, 0x406E, [0xB9, 0x6F, 0x90, 0x6E, 0x78, 0xD0, 0xDB, 0x56]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.
    pub unsafe fn SetObjectHandle(&self, hObj: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(7))(self, hObj)
    }
    /// Writes the address of the caller's own variable into that variable. The native object can't be read back with it.
    pub unsafe fn GetObjectHandle(&self, hObj: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(8))(self, hObj)
    }
    /// Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.
    pub unsafe fn SetRect(&self, pRect: *const RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT) -> i32>(*self.table.add(9))(self, pRect)
    }
    /// Where the object is: a label's box, or the strip around an axis's line in the last frame.
    pub unsafe fn GetRect(&self, pRect: *mut RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut RECT) -> i32>(*self.table.add(10))(self, pRect)
    }
    /// Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.
    pub unsafe fn SetSelected(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(11))(self, bValue)
    }
    /// Whether the object is selected.
    pub unsafe fn GetSelected(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(12))(self, pbValue)
    }
    /// Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.
    pub unsafe fn SetVisible(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(13))(self, bValue)
    }
    /// Whether the object is shown.
    pub unsafe fn GetVisible(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(14))(self, pbValue)
    }
    /// The colour of an axis's line or of a curve. On a label it is the box's fill colour.
    pub unsafe fn SetColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(15))(self, color)
    }
    /// The colour that SetColor sets.
    pub unsafe fn GetColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(16))(self, pColor)
    }
    /// Makes a new SGraph object without a window. It isn't the curve's graph, and only Create may be called on it.
    pub unsafe fn GetGraph(&self, pRef: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(17))(self, pRef)
    }
    /// A straight line fitted to the points' numbers 1, 2, 3 (not to their x).
    pub unsafe fn GetLinearTrend(&self, pRef: *mut *mut TDataPoint, nPoints: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32) -> i32>(*self.table.add(18))(self, pRef, nPoints)
    }
    /// The fit of y = k t^3 to the points' numbers t: one term, no general cubic.
    pub unsafe fn GetCubicTrend(&self, pRef: *mut *mut TDataPoint, nPoints: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32) -> i32>(*self.table.add(19))(self, pRef, nPoints)
    }
    /// A least-squares polynomial over the points' true x.
    pub unsafe fn GetPolynomialTrend(&self, pRef: *mut *mut TDataPoint, nDegree: i32, nPoints: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32, i32) -> i32>(*self.table.add(20))(self, pRef, nDegree, nPoints)
    }
    /// The mean of the last span values.
    pub unsafe fn GetSimpleMovingAverage(&self, pRef: *mut *mut TDataPoint, span: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32) -> i32>(*self.table.add(21))(self, pRef, span)
    }
    /// The exponential average with factor 2 / (span + 1).
    pub unsafe fn GetExponentialMovingAverage(&self, pRef: *mut *mut TDataPoint, span: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32) -> i32>(*self.table.add(22))(self, pRef, span)
    }
    /// The average with weights that fall by one from the newest value to the oldest.
    pub unsafe fn GetLinearMovingAverage(&self, pRef: *mut *mut TDataPoint, span: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32) -> i32>(*self.table.add(23))(self, pRef, span)
    }
    /// The average with weights that are largest in the window's middle.
    pub unsafe fn GetTriangularMovingAverage(&self, pRef: *mut *mut TDataPoint, span: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32) -> i32>(*self.table.add(24))(self, pRef, span)
    }
    /// Gives the cubic trend with span further points, not an average. The sine-weighted average is in the property sheet alone.
    pub unsafe fn GetSineWeightedMovingAverage(&self, pRef: *mut *mut TDataPoint, span: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut TDataPoint, i32) -> i32>(*self.table.add(25))(self, pRef, span)
    }
    /// Width of the line, and radius of a scatter point.
    pub unsafe fn SetLineSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(26))(self, nValue)
    }
    /// How the area beneath the curve is filled.
    pub unsafe fn SetFillStyle(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(27))(self, nValue)
    }
    /// What the curve's markers and key show.
    pub unsafe fn SetMarkerType(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(28))(self, nValue)
    }
    /// The marker's symbol, or its number less 1.
    pub unsafe fn SetMarker(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(29))(self, nValue)
    }
    /// Side of a marker.
    pub unsafe fn SetMarkerSize(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(30))(self, nValue)
    }
    /// Shows or hides markers on the curve's points, thinned out to about a quarter of the room.
    pub unsafe fn SetShowMarker(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(31))(self, bValue)
    }
    /// Colour of the fill.
    pub unsafe fn SetFillColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(32))(self, color)
    }
    /// What the fill ends at: another curve or the plot's bottom. Cut to 16 bits.
    pub unsafe fn SetFillCurve(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(33))(self, nValue)
    }
    /// Turns the fill on or off, and sets where it ends.
    pub unsafe fn SetFillBeneath(&self, bValue: i32, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32) -> i32>(*self.table.add(34))(self, bValue, nValue)
    }
    /// Whether the fill lets the lines below it through, by the raster operation XOR. Otherwise it covers them.
    pub unsafe fn SetFillTransparent(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(35))(self, bValue)
    }
    /// The curve's name in the legend.
    pub unsafe fn SetLabel(&self, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(36))(self, bstrText)
    }
    /// A line or scattered points.
    pub unsafe fn SetType(&self, type_: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(37))(self, type_)
    }
    /// Number of points.
    pub unsafe fn GetCount(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(38))(self, pnValue)
    }
    /// The index that the curve was made with; deletions don't renumber it.
    pub unsafe fn GetIndex(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(39))(self, pnValue)
    }
    /// Index of the curve's X axis.
    pub unsafe fn GetXAxis(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(40))(self, pnValue)
    }
    /// Index of the curve's Y axis.
    pub unsafe fn GetYAxis(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(41))(self, pnValue)
    }
    /// Width of the line.
    pub unsafe fn GetLineSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(42))(self, pnValue)
    }
    /// How the area beneath is filled.
    pub unsafe fn GetFillStyle(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(43))(self, pnValue)
    }
    /// What markers and key show.
    pub unsafe fn GetMarkerType(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(44))(self, pnValue)
    }
    /// The marker's symbol, or its number less 1.
    pub unsafe fn GetMarker(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(45))(self, pnValue)
    }
    /// Side of a marker.
    pub unsafe fn GetMarkerSize(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(46))(self, pnValue)
    }
    /// Style of the line.
    pub unsafe fn GetLineStyle(&self, pnValue: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(47))(self, pnValue)
    }
    /// Whether markers are shown.
    pub unsafe fn GetShowMarker(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(48))(self, pnValue)
    }
    /// Whether the fill is on.
    pub unsafe fn GetFillBeneath(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(49))(self, pnValue)
    }
    /// What the fill ends at, as a signed 16-bit number: the plot's bottom is -1.
    pub unsafe fn GetFillCurve(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(50))(self, pnValue)
    }
    /// Whether the fill lets lines through.
    pub unsafe fn GetFillTransparent(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(51))(self, pnValue)
    }
    /// The curve's name.
    pub unsafe fn GetLabel(&self, psVale: *mut *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u16) -> i32>(*self.table.add(52))(self, psVale)
    }
    /// A line or scattered points.
    pub unsafe fn GetType(&self, pType: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(53))(self, pType)
    }
    /// Style of the line.
    pub unsafe fn SetLineStyle(&self, nValue: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(54))(self, nValue)
    }
}

/// A text label of a graph, from ISGraph.InsertLabel. A wrapper without a label does nothing and returns S_OK. SetColor and GetColor are in place of the base's and have no slot of their own.
#[repr(C)]
pub struct ISGraphLabel {
    table: *const *const c_void,
}

impl ISGraphLabel {
    pub const IID: GUID = GUID(0xF668D721, 0xB480, 0x4E38, [0xA1, 0xB3, 0xC2, 0x78, 0x19, 0x00, 0xDA, 0x27]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.
    pub unsafe fn SetObjectHandle(&self, hObj: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(7))(self, hObj)
    }
    /// Writes the address of the caller's own variable into that variable. The native object can't be read back with it.
    pub unsafe fn GetObjectHandle(&self, hObj: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(8))(self, hObj)
    }
    /// Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.
    pub unsafe fn SetRect(&self, pRect: *const RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT) -> i32>(*self.table.add(9))(self, pRect)
    }
    /// Where the object is: a label's box, or the strip around an axis's line in the last frame.
    pub unsafe fn GetRect(&self, pRect: *mut RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut RECT) -> i32>(*self.table.add(10))(self, pRect)
    }
    /// Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.
    pub unsafe fn SetSelected(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(11))(self, bValue)
    }
    /// Whether the object is selected.
    pub unsafe fn GetSelected(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(12))(self, pbValue)
    }
    /// Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.
    pub unsafe fn SetVisible(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(13))(self, bValue)
    }
    /// Whether the object is shown.
    pub unsafe fn GetVisible(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(14))(self, pbValue)
    }
    /// Fill colour of the box.
    pub unsafe fn SetColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(15))(self, color)
    }
    /// Fill colour of the box.
    pub unsafe fn GetColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(16))(self, pColor)
    }
    /// Gives this wrapper itself, not the graph, and adds no reference: don't release it.
    pub unsafe fn GetGraph(&self, pGraph: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(17))(self, pGraph)
    }
    /// The label's font.
    pub unsafe fn SetFont(&self, pLogFontw: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(18))(self, pLogFontw)
    }
    /// The label's text; line feeds break it.
    pub unsafe fn SetText(&self, pText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(19))(self, pText)
    }
    /// The label's text.
    pub unsafe fn GetText(&self, pText: *mut *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u16) -> i32>(*self.table.add(20))(self, pText)
    }
    /// Colour of the text.
    pub unsafe fn SetTextColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(21))(self, color)
    }
    /// Colour of the text.
    pub unsafe fn GetTextColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(22))(self, pColor)
    }
    /// Draws or leaves out the box's black frame.
    pub unsafe fn SetBorder(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(23))(self, bValue)
    }
    /// Whether the frame is drawn.
    pub unsafe fn GetBorder(&self, bpValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(24))(self, bpValue)
    }
    /// Leaves the box unfilled.
    pub unsafe fn SetTransparent(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(25))(self, bValue)
    }
    /// Whether the box is left unfilled.
    pub unsafe fn GetTransparent(&self, bpValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(26))(self, bpValue)
    }
    /// Alignment of the text.
    pub unsafe fn SetAlignment(&self, value: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(27))(self, value)
    }
    /// Alignment of the text.
    pub unsafe fn GetAlignment(&self, pValue: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(28))(self, pValue)
    }
    /// Sets the alignment, as SetAlignment does, and ties the label to no curve: only the label's property dialog does.
    pub unsafe fn SetCurve(&self, value: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(29))(self, value)
    }
    /// The curve that the label is tied to by a line.
    pub unsafe fn GetCurve(&self, pValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(30))(self, pValue)
    }
}

/// A picture in a graph. Pictures come from graph files alone: no method makes one or sets its bitmap.
#[repr(C)]
pub struct ISGraphBitmap {
    table: *const *const c_void,
}

impl ISGraphBitmap {
    pub const IID: GUID = GUID(0xD95EF098, 0xA408, 0x4854, [0x9D, 0x85, 0xEC, 0xA8, 0x4C, 0xC0, 0xF8, 0x40]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.
    pub unsafe fn SetObjectHandle(&self, hObj: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(7))(self, hObj)
    }
    /// Writes the address of the caller's own variable into that variable. The native object can't be read back with it.
    pub unsafe fn GetObjectHandle(&self, hObj: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(8))(self, hObj)
    }
    /// Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.
    pub unsafe fn SetRect(&self, pRect: *const RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT) -> i32>(*self.table.add(9))(self, pRect)
    }
    /// Where the object is: a label's box, or the strip around an axis's line in the last frame.
    pub unsafe fn GetRect(&self, pRect: *mut RECT) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut RECT) -> i32>(*self.table.add(10))(self, pRect)
    }
    /// Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.
    pub unsafe fn SetSelected(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(11))(self, bValue)
    }
    /// Whether the object is selected.
    pub unsafe fn GetSelected(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(12))(self, pbValue)
    }
    /// Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.
    pub unsafe fn SetVisible(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(13))(self, bValue)
    }
    /// Whether the object is shown.
    pub unsafe fn GetVisible(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(14))(self, pbValue)
    }
    /// The colour of an axis's line or of a curve. On a label it is the box's fill colour.
    pub unsafe fn SetColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(15))(self, color)
    }
    /// The colour that SetColor sets.
    pub unsafe fn GetColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(16))(self, pColor)
    }
    /// Gives this wrapper itself, not the graph, and adds no reference: don't release it.
    pub unsafe fn GetGraph(&self, pGraph: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(17))(self, pGraph)
    }
    /// Draws or leaves out the picture's black frame.
    pub unsafe fn SetBorder(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(18))(self, bValue)
    }
    /// Does nothing.
    pub unsafe fn SetBitmap(&self, hBitmap: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(19))(self, hBitmap)
    }
    /// Whether the frame is drawn.
    pub unsafe fn GetBorder(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(20))(self, pbValue)
    }
    /// Does nothing.
    pub unsafe fn GetBitmap(&self, hBitmap: *mut *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut u32) -> i32>(*self.table.add(21))(self, hBitmap)
    }
}

/// A note on a data point. It has no methods: ISGraph.InsertDataNotation makes notes, and the graph draws them.
#[repr(C)]
pub struct ISGraphDataNotation {
    table: *const *const c_void,
}

impl ISGraphDataNotation {
    pub const IID: GUID = GUID(0xE96291DD, 0x864F, 0x4818, [0xB5, 0x2D, 0x54, 0x8B, 0x1E, 0x57, 0xA6, 0x99]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
}

/// The interactive XY graph window. Create comes first. Axes and curves are counted from 0. Setters store and don't repaint: call Invalidate when you are done. Colours are COLORREF, 0x00BBGGRR; flags are 0 or not.
#[repr(C)]
pub struct ISGraph {
    table: *const *const c_void,
}

impl ISGraph {
    pub const IID: GUID = GUID(0x90F21AE5, 0xDB57, 0x409D, [0x88, 0x5A, 0x90, 0xCB, 0x78, 0x80, 0x5E, 0x86]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Adds or replaces a curve, makes its axes if they are the next ones, and widens the axes' ranges to hold it; an earlier zoom is gone. The way to an axis's first range.
    pub unsafe fn SetData(&self, pSerie: *mut *mut ISGraphDataSerie, pValues: *const TDataPoint, nCount: i32, nCurve: i32, nXAxis: i32, nYAxis: i32, bAutoDelete: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut ISGraphDataSerie, *const TDataPoint, i32, i32, i32, i32, i32) -> i32>(*self.table.add(7))(self, pSerie, pValues, nCount, nCurve, nXAxis, nYAxis, bAutoDelete)
    }
    /// A new view of an X axis.
    pub unsafe fn GetXAxis(&self, pGraphAxis: *mut *mut ISGraphAxis, nAxis: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut ISGraphAxis, i32) -> i32>(*self.table.add(8))(self, pGraphAxis, nAxis)
    }
    /// A new view of a Y axis.
    pub unsafe fn GetYAxis(&self, pGraphAxis: *mut *mut ISGraphAxis, nAxis: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut ISGraphAxis, i32) -> i32>(*self.table.add(9))(self, pGraphAxis, nAxis)
    }
    /// A new view of a curve.
    pub unsafe fn GetCurve(&self, pGraphAxis: *mut *mut ISGraphDataSerie, nCurve: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut ISGraphDataSerie, i32) -> i32>(*self.table.add(10))(self, pGraphAxis, nCurve)
    }
    /// Deletes an X axis; later ones move down by one, and the curves' own indices stay as they are: set their data again.
    pub unsafe fn DeleteXAxis(&self, nAxis: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(11))(self, nAxis)
    }
    /// Deletes the last X axis, not the Y axis.
    pub unsafe fn DeleteYAxis(&self, nAxis: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(12))(self, nAxis)
    }
    /// Deletes a curve; later ones move down by one.
    pub unsafe fn DeleteCurve(&self, nCurve: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(13))(self, nCurve)
    }
    /// Pins a note with the point's values to a data point.
    pub unsafe fn InsertDataNotation(&self, nCurve: i32, nIndex: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32) -> i32>(*self.table.add(14))(self, nCurve, nIndex)
    }
    /// Adds nothing: the curve can't be reached through its view. Use ISGraphDataSerie.GetLinearTrend and SetData.
    pub unsafe fn AddLinearTrend(&self, pSerie: *mut ISGraphDataSerie) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut ISGraphDataSerie) -> i32>(*self.table.add(15))(self, pSerie)
    }
    /// Adds nothing: the curve can't be reached through its view. Use ISGraphDataSerie.GetCubicTrend and SetData.
    pub unsafe fn AddCubicTrend(&self, pSerie: *mut ISGraphDataSerie) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut ISGraphDataSerie) -> i32>(*self.table.add(16))(self, pSerie)
    }
    /// Number of X axes.
    pub unsafe fn GetXAxisCount(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(17))(self, pnValue)
    }
    /// Number of Y axes.
    pub unsafe fn GetYAxisCount(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(18))(self, pnValue)
    }
    /// Number of curves.
    pub unsafe fn GetCurveCount(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(19))(self, pnValue)
    }
    /// Selects one X axis and no other.
    pub unsafe fn SelectXAxis(&self, nAxis: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(20))(self, nAxis)
    }
    /// Selects one Y axis and no other.
    pub unsafe fn SelectYAxis(&self, nAxis: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(21))(self, nAxis)
    }
    /// Selects one curve and no other. The next mouse move over the window may clear it; the trend commands don't look at it.
    pub unsafe fn SelectCurve(&self, nCurve: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(22))(self, nCurve)
    }
    /// Room between the window's edge and the graph.
    pub unsafe fn SetGraphMargins(&self, nLeft: i32, nTop: i32, nRight: i32, nBottom: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32, i32, i32) -> i32>(*self.table.add(23))(self, nLeft, nTop, nRight, nBottom)
    }
    /// Writes the window as it is on the screen to a BMP file. The header's offset to the pixels is that of palette pictures; on a 32-bit screen set byte 10 of the file to 54. Nothing reports whether the file was written.
    pub unsafe fn SaveBitmap(&self, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(24))(self, bstrText)
    }
    /// Curve points can be dragged up and down: opEditCurve.
    pub unsafe fn Edit(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(25))(self)
    }
    /// The left button zooms into a band: opZoom.
    pub unsafe fn Zoom(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(26))(self)
    }
    /// Shows the whole range of all axes. The zoom history stays, and no XG_ZOOMCHANGE is posted.
    pub unsafe fn ResetZoom(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(27))(self)
    }
    /// The left button drags the picture: opPan. Turns off the automatic scale of all axes.
    pub unsafe fn Pan(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(28))(self)
    }
    /// Back to selection: opNone.
    pub unsafe fn NoOp(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(29))(self)
    }
    /// Does nothing. Send VPX_COMMAND_CURSOR with SendMessage.
    pub unsafe fn Cursor(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(30))(self)
    }
    /// The left button measures between curve points: opMeasure.
    pub unsafe fn Measure(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(31))(self)
    }
    /// Deletes all curves, axes, labels, notes and pictures. Measures stay: call DeleteMeasures too, since the next frame looks for their curves.
    pub unsafe fn ResetAll(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(32))(self)
    }
    /// Number of zoom steps of the first X axis.
    pub unsafe fn GetZoomDepth(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(33))(self, pnValue)
    }
    /// Does nothing.
    pub unsafe fn SetBackgroundBitmap(&self, pBitmap: *mut ISGraphBitmap, nFlags: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut ISGraphBitmap, u32) -> i32>(*self.table.add(34))(self, pBitmap, nFlags)
    }
    /// Puts a text label on the graph.
    pub unsafe fn InsertLabel(&self, bstrText: *mut u16, pRect: *const RECT, pGraphLabel: *mut *mut ISGraphLabel) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, *const RECT, *mut *mut ISGraphLabel) -> i32>(*self.table.add(35))(self, bstrText, pRect, pGraphLabel)
    }
    /// Does nothing.
    pub unsafe fn InsertBitmap(&self, pRect: *const RECT, pBitmapin: *mut ISGraphBitmap, pBitmapout: *mut *mut ISGraphBitmap) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT, *mut ISGraphBitmap, *mut *mut ISGraphBitmap) -> i32>(*self.table.add(36))(self, pRect, pBitmapin, pBitmapout)
    }
    /// Colour of the whole window.
    pub unsafe fn SetBackColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(37))(self, color)
    }
    /// Does nothing. The colour behind the axes is set in the property sheet or comes from a file.
    pub unsafe fn SetGraphColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(38))(self, color)
    }
    /// Colour of the plot.
    pub unsafe fn SetInnerColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(39))(self, color)
    }
    /// Whether a frame is painted in memory first, without flicker.
    pub unsafe fn SetDoubleBuffer(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(40))(self, bValue)
    }
    /// Shows or hides the legend.
    pub unsafe fn SetShowLegend(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(41))(self, bValue)
    }
    /// Whether clicks select, edit and notify. Zoom, pan, cursor and measures work either way.
    pub unsafe fn SetInteraction(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(42))(self, bValue)
    }
    /// Whether the cursor snaps to curves.
    pub unsafe fn SetSnapCursor(&self, bValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(43))(self, bValue)
    }
    /// The legend's side.
    pub unsafe fn SetLegendAlignment(&self, align: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(44))(self, align)
    }
    /// How near the cursor must be to a curve to snap to it.
    pub unsafe fn SetSnapRange(&self, nValue: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(45))(self, nValue)
    }
    /// A line at the top of printed pages.
    pub unsafe fn SetPrintHeader(&self, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(46))(self, bstrText)
    }
    /// A line at the bottom of printed pages.
    pub unsafe fn SetPrintFooter(&self, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(47))(self, bstrText)
    }
    /// Moves the cursor.
    pub unsafe fn SetCursor(&self, x: i32, y: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32) -> i32>(*self.table.add(48))(self, x, y)
    }
    /// What the cursor shows.
    pub unsafe fn SetCursorFlags(&self, nFlags: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(49))(self, nFlags)
    }
    /// Widens the ranges of two axes to hold a curve; a range never shrinks, and a zoom is gone.
    pub unsafe fn Autoscale(&self, nXAxis: i32, nYAxis: i32, nCurve: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32, i32) -> i32>(*self.table.add(50))(self, nXAxis, nYAxis, nCurve)
    }
    /// Deletes all measures.
    pub unsafe fn DeleteMeasures(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(51))(self)
    }
    /// Binds the cursor to one curve.
    pub unsafe fn ForceSnap(&self, nCurve: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(52))(self, nCurve)
    }
    /// Colour of the whole window.
    pub unsafe fn GetBackColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(53))(self, pColor)
    }
    /// Colour behind the axes.
    pub unsafe fn GetGraphColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(54))(self, pColor)
    }
    /// Colour of the plot.
    pub unsafe fn GetInnerColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(55))(self, pColor)
    }
    /// Whether a frame is painted in memory first.
    pub unsafe fn GetDoubleBuffer(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(56))(self, pbValue)
    }
    /// Whether the legend is shown.
    pub unsafe fn GetShowLegend(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(57))(self, pbValue)
    }
    /// Whether clicks select, edit and notify.
    pub unsafe fn GetInteraction(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(58))(self, pbValue)
    }
    /// Whether the cursor snaps to curves.
    pub unsafe fn GetSnapCursor(&self, pbValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(59))(self, pbValue)
    }
    /// The legend's side.
    pub unsafe fn GetLegendAlignment(&self, pAalign: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(60))(self, pAalign)
    }
    /// How near the cursor must be to snap.
    pub unsafe fn GetSnapRange(&self, pnValue: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(61))(self, pnValue)
    }
    /// The cursor's or the mouse's last position.
    pub unsafe fn GetCursor(&self, px: *mut i32, py: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32, *mut i32) -> i32>(*self.table.add(62))(self, px, py)
    }
    /// What the mouse does now.
    pub unsafe fn GetOperation(&self, peop: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(63))(self, peop)
    }
    /// The cursor's place in the units of a curve's axes: x at the cursor, y of the curve's point there.
    pub unsafe fn GetCursorAbsolute(&self, nCurve: i32, pPoint: *mut TDataPoint) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut TDataPoint) -> i32>(*self.table.add(64))(self, nCurve, pPoint)
    }
    /// Puts the cursor on the curve's point at or after an x.
    pub unsafe fn SetCursorAbsolute(&self, nCurve: i32, pPoint: *const TDataPoint, bForceVisible: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *const TDataPoint, i32) -> i32>(*self.table.add(65))(self, nCurve, pPoint, bForceVisible)
    }
    /// Writes a graph file. Settings read back whole; curves, axes and objects are written for other programs, since the format counts them in eight bytes and reads four.
    pub unsafe fn Save(&self, bstrFile: *mut u16, nFlags: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, u32) -> i32>(*self.table.add(66))(self, bstrFile, nFlags)
    }
    /// Reads a graph file. Curves, axes and objects of before are gone unless the file can't be opened.
    pub unsafe fn Load(&self, bstrFile: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(67))(self, bstrFile)
    }
    /// Makes the graph's window, visible, as a child of the host's.
    pub unsafe fn Create(&self, bstrCaption: *mut u16, rect: *const RECT, hWnd: *mut c_void, nID: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, *const RECT, *mut c_void, u32) -> i32>(*self.table.add(68))(self, bstrCaption, rect, hWnd, nID)
    }
    /// Has the window painted again.
    pub unsafe fn Invalidate(&self, bErase: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(69))(self, bErase)
    }
    /// Posts a message to the graph's window.
    pub unsafe fn PostMessage(&self, message: u32, wParam: usize, lParam: isize) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32, usize, isize) -> i32>(*self.table.add(70))(self, message, wParam, lParam)
    }
    /// Sends a message to the graph's window; its result is dropped.
    pub unsafe fn SendMessage(&self, message: u32, wParam: usize, lParam: isize) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32, usize, isize) -> i32>(*self.table.add(71))(self, message, wParam, lParam)
    }
    /// The graph's window.
    pub unsafe fn GetHandle(&self, phWnd: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(72))(self, phWnd)
    }
    /// Does nothing; it brings XGRAPH_MSG into the type library.
    pub unsafe fn GetXGraphMsgInfo(&self, nMsg: i32, bstrCaption: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut u16) -> i32>(*self.table.add(73))(self, nMsg, bstrCaption)
    }
    /// Does nothing; it brings XGRAPH_PERSIST into the type library.
    pub unsafe fn GetXGraphPersistInfo(&self, nMsg: i32, bstrCaption: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut u16) -> i32>(*self.table.add(74))(self, nMsg, bstrCaption)
    }
    /// Does nothing; it brings XGRAPH_XGC into the type library.
    pub unsafe fn GetXGraphXgcInfo(&self, nMsg: i32, bstrCaption: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, *mut u16) -> i32>(*self.table.add(75))(self, nMsg, bstrCaption)
    }
}

/// The business chart window: bars, lines or a flat pie. Create comes first, then CreateGraph, then segments, series and values in this order; segments and series are counted from 1. A wrong index is reported to the person at the screen by a message box, and the result is S_OK all the same. Colours are COLORREF, 0x00BBGGRR. Data methods don't repaint: call Invalidate when you are done.
#[repr(C)]
pub struct IChart2d {
    table: *const *const c_void,
}

impl IChart2d {
    pub const IID: GUID = GUID(0xECE4272A, 0x8D64, 0x4BB9, [0xA2, 0x3E, 0xA1, 0x2A, 0x14, 0xC1, 0x94, 0xD9]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Shows or hides the legend. With a solid background the old legend stays until Invalidate with erase.
    pub unsafe fn ShowGraphLegend(&self, legend: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(7))(self, legend)
    }
    /// Colour of the legend's text; 0 for the flat pie.
    pub unsafe fn GetGraphLegendTextColor(&self, color: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(8))(self, color)
    }
    /// Colour of the legend's text. With a solid background it shows after Invalidate with erase.
    pub unsafe fn SetGraphLegendTextColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(9))(self, color)
    }
    /// Colour of the legend's box; 0 for the flat pie.
    pub unsafe fn GetGraphLegendBackgroundColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(10))(self, pColor)
    }
    /// Colour of the legend's box. With a solid background it shows after Invalidate with erase.
    pub unsafe fn SetGraphLegendBackgroundColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(11))(self, color)
    }
    /// Colour of the labels along the axes of bars and lines.
    pub unsafe fn SetGraphLabelsColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(12))(self, color)
    }
    /// Colour of the labels along the axes; 0 for the flat pie.
    pub unsafe fn GetGraphLabelsColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(13))(self, pColor)
    }
    /// Colour of the subtitle.
    pub unsafe fn GetGraphSubtitleColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(14))(self, pColor)
    }
    /// Colour of the subtitle.
    pub unsafe fn SetGraphSubtitleColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(15))(self, color)
    }
    /// Colour of the title.
    pub unsafe fn GetGraphTitleColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(16))(self, pColor)
    }
    /// Colour of the title.
    pub unsafe fn SetGraphTitleColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(17))(self, color)
    }
    /// Whether the subtitle throws a shadow.
    pub unsafe fn GetGraphSubtitleShadow(&self, bShadow: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(18))(self, bShadow)
    }
    /// Draws a grey shadow behind the subtitle.
    pub unsafe fn SetGraphSubtitleShadow(&self, bShadow: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(19))(self, bShadow)
    }
    /// Whether the title throws a shadow.
    pub unsafe fn GetGraphTitleShadow(&self, pbShadow: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(20))(self, pbShadow)
    }
    /// Draws a grey shadow behind the title.
    pub unsafe fn SetGraphTitleShadow(&self, bShadow: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(21))(self, bShadow)
    }
    /// Direction of the gradient, in other numbers than the setter's.
    pub unsafe fn GetGradientFillType(&self, nType: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(22))(self, nType)
    }
    /// Direction of the gradient.
    pub unsafe fn SetGradientFillType(&self, nType: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(23))(self, nType)
    }
    /// The colours that the gradient runs between.
    pub unsafe fn SetGraphGradientColors(&self, col1: u32, col2: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32, u32) -> i32>(*self.table.add(24))(self, col1, col2)
    }
    /// Whether the background is solid or a gradient.
    pub unsafe fn GetGraphFillType(&self, nType: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(25))(self, nType)
    }
    /// Whether the background is solid or a gradient.
    pub unsafe fn SetGraphFillType(&self, nType: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(26))(self, nType)
    }
    /// Deletes a line.
    pub unsafe fn Delete2DLineGraphSeries(&self, index: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(27))(self, index)
    }
    /// Adds a line with the value 0 in each segment. Without segments it brings a message box.
    pub unsafe fn Add2DLineGraphSeries(&self, bstrText: *mut u16, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, u32) -> i32>(*self.table.add(28))(self, bstrText, color)
    }
    /// One value of a line.
    pub unsafe fn Set2DLineGraphValue(&self, segment: i32, series: i32, value: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32, i32) -> i32>(*self.table.add(29))(self, segment, series, value)
    }
    /// Deletes a segment. Numbers given to the others stay, so values after it can be out of reach: rebuild the chart instead.
    pub unsafe fn Delete2DLineGraphSegment(&self, index: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(30))(self, index)
    }
    /// Adds a segment, a place along the horizontal axis. Add all segments before the first series: a later one has one value for all series together.
    pub unsafe fn Add2DLineGraphSegment(&self, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(31))(self, bstrText)
    }
    /// Deletes a series of bars.
    pub unsafe fn Detele2DBarGraphSeries(&self, index: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(32))(self, index)
    }
    /// Adds a series of bars with the value 0 in each segment. Without segments it brings a message box.
    pub unsafe fn Add2DBarGraphSeries(&self, bstrText: *mut u16, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, u32) -> i32>(*self.table.add(33))(self, bstrText, color)
    }
    /// The value of one bar.
    pub unsafe fn Set2DBarGraphValue(&self, segment: i32, series: i32, value: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32, i32) -> i32>(*self.table.add(34))(self, segment, series, value)
    }
    /// Deletes a group of bars. Numbers given to the others stay, so values after it can be out of reach: rebuild the chart instead.
    pub unsafe fn Delete2DBarGraphSegment(&self, index: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(35))(self, index)
    }
    /// Adds a segment, a group of bars. Add all segments before the first series: a later one has one value for all series together.
    pub unsafe fn Add2DBarGraphSegment(&self, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(36))(self, bstrText)
    }
    /// Moves the chart's window.
    pub unsafe fn SetGraphPosition(&self, x: i32, y: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32) -> i32>(*self.table.add(37))(self, x, y)
    }
    /// Sizes the chart's window and all in it.
    pub unsafe fn SetGraphSize(&self, width: i32, height: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32) -> i32>(*self.table.add(38))(self, width, height)
    }
    /// Changes a slice and starts a running animation again.
    pub unsafe fn Update2DPieGraphSegment(&self, index: i32, percent: i32, color: u32, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32, u32, *mut u16) -> i32>(*self.table.add(39))(self, index, percent, color, bstrText)
    }
    /// The subtitle.
    pub unsafe fn SetGraphSubtitle(&self, bstrsubtitle: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(40))(self, bstrsubtitle)
    }
    /// The title.
    pub unsafe fn SetGraphTitle(&self, bstrtitle: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(41))(self, bstrtitle)
    }
    /// The background colour.
    pub unsafe fn GetGraphBackgroundColor(&self, pColor: *mut u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u32) -> i32>(*self.table.add(42))(self, pColor)
    }
    /// The background colour.
    pub unsafe fn SetGraphBackgroundColor(&self, color: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(43))(self, color)
    }
    /// Whether the animation runs.
    pub unsafe fn GetGraphAnimation(&self, pbAnimation: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut i32) -> i32>(*self.table.add(44))(self, pbAnimation)
    }
    /// Starts or stops the chart's animation, after its data.
    pub unsafe fn SetGraphAnimation(&self, animation: i32, type_: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32, i32) -> i32>(*self.table.add(45))(self, animation, type_)
    }
    /// Deletes a slice; later ones move down by one.
    pub unsafe fn Delete2DPieGraphSegment(&self, index: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(46))(self, index)
    }
    /// Adds a slice. What would bring the sum above 100 is cut; nothing is added where no room is left.
    pub unsafe fn Add2DPieGraphSegment(&self, percent: f64, color: u32, bstrText: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f64, u32, *mut u16) -> i32>(*self.table.add(47))(self, percent, color, bstrText)
    }
    /// Deletes all slices.
    pub unsafe fn Clear2DPieGraph(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(48))(self)
    }
    /// Chooses the kind of chart. Call it once, after Create; the data methods of the other kinds then do nothing.
    pub unsafe fn CreateGraph(&self, type_: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(49))(self, type_)
    }
    /// Has the window painted again.
    pub unsafe fn Invalidate(&self, bErase: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(50))(self, bErase)
    }
    /// The chart's window.
    pub unsafe fn GetHandle(&self, phWnd: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(51))(self, phWnd)
    }
    /// Makes the chart's window, visible, as a child of the host's.
    pub unsafe fn Create(&self, rect: *const RECT, hWnd: *mut c_void, nID: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *const RECT, *mut c_void, u32) -> i32>(*self.table.add(52))(self, rect, hWnd, nID)
    }
}

/// The tilted pie window. Create comes first. An element is named by the text that InsertItem got, or by an item: an opaque pointer from GetPieChartItem or GetSelectedElement, typed VARIANT* and no VARIANT, good until the element is removed. Colours are COLORREF, 0x00BBGGRR. A refused call returns S_OK too: ask GetPieChartItem.
#[repr(C)]
pub struct IPieChart3d {
    table: *const *const c_void,
}

impl IPieChart3d {
    pub const IID: GUID = GUID(0x89A56F93, 0xB412, 0x440B, [0xBE, 0x54, 0x0E, 0x9E, 0x93, 0x41, 0x2B, 0xEB]);
    /// Gives up the caller's hold on the object.
    pub unsafe fn Release(&self) -> u32 {
        transmute::<_, extern "system" fn(*const Self) -> u32>(*self.table.add(2))(self)
    }
    /// Makes the pie's window, visible, as a child of the host's.
    pub unsafe fn Create(&self, bstrCaption: *mut u16, rect: *const RECT, hWnd: *mut c_void, nID: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, *const RECT, *mut c_void, u32) -> i32>(*self.table.add(7))(self, bstrCaption, rect, hWnd, nID)
    }
    /// Posts a message to the pie's window.
    pub unsafe fn PostMessage(&self, message: u32, wParam: usize, lParam: isize) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32, usize, isize) -> i32>(*self.table.add(8))(self, message, wParam, lParam)
    }
    /// Sends a message to the pie's window; its result is dropped.
    pub unsafe fn SendMessage(&self, message: u32, wParam: usize, lParam: isize) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32, usize, isize) -> i32>(*self.table.add(9))(self, message, wParam, lParam)
    }
    /// Adds an element.
    pub unsafe fn InsertItem(&self, bstrElement: *mut u16, bstrLabel: *mut u16, dValue: f64, crColor: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, *mut u16, f64, u32) -> i32>(*self.table.add(10))(self, bstrElement, bstrLabel, dValue, crColor)
    }
    /// Removes an element.
    pub unsafe fn RemoveItem(&self, bstrElement: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(11))(self, bstrElement)
    }
    /// Removes the element at a place of the present order.
    pub unsafe fn RemoveItemByIndex(&self, iElementID: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(12))(self, iElementID)
    }
    /// Removes all elements. Call Invalidate: the old picture stays until then.
    pub unsafe fn RemoveAllItem(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(13))(self)
    }
    /// Changes an element's text in the list.
    pub unsafe fn UpdateItemLabel(&self, pItem: *mut c_void, bstrLabel: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, *mut u16) -> i32>(*self.table.add(14))(self, pItem, bstrLabel)
    }
    /// Changes an element's value.
    pub unsafe fn UpdateItemValue(&self, pItem: *mut c_void, dVal: f64) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, f64) -> i32>(*self.table.add(15))(self, pItem, dVal)
    }
    /// Changes an element's colour.
    pub unsafe fn UpdateItemColor(&self, pItem: *mut c_void, crItem: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, u32) -> i32>(*self.table.add(16))(self, pItem, crItem)
    }
    /// Face and style of labels and percents; the size follows the window. Any weight but 0 is bold.
    pub unsafe fn SetLabelFont(&self, lf: *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void) -> i32>(*self.table.add(17))(self, lf)
    }
    /// Face of labels and percents.
    pub unsafe fn SetLabelFontName(&self, bstrName: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(18))(self, bstrName)
    }
    /// Face and style of the title; the size follows the window. Any weight but 0 is bold, and a style once on stays on.
    pub unsafe fn SetTitleFont(&self, lf: *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void) -> i32>(*self.table.add(19))(self, lf)
    }
    /// Face of the title.
    pub unsafe fn SetTitleFontName(&self, bstrName: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(20))(self, bstrName)
    }
    /// Stores the colour of the percent column's box, which this version doesn't draw.
    pub unsafe fn SetLabelBoxColor(&self, crItem: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(21))(self, crItem)
    }
    /// Colour of the frame; its gradient is made from it.
    pub unsafe fn SetBackgrndColor(&self, crItem: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(22))(self, crItem)
    }
    /// Colour of title, labels and percents.
    pub unsafe fn SetLabelColor(&self, crLbColor: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(23))(self, crLbColor)
    }
    /// Colour behind the frame's round corners.
    pub unsafe fn SetParentWindowColor(&self, crParent: u32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, u32) -> i32>(*self.table.add(24))(self, crParent)
    }
    /// How light an element's light end is.
    pub unsafe fn SetPieElementGradientLight(&self, pItem: *mut c_void, flGradientVal: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, f32) -> i32>(*self.table.add(25))(self, pItem, flGradientVal)
    }
    /// How dark an element's dark end is.
    pub unsafe fn SetPieElementGradientDark(&self, pItem: *mut c_void, flGradientVal: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, f32) -> i32>(*self.table.add(26))(self, pItem, flGradientVal)
    }
    /// How light the frame's light end is.
    pub unsafe fn SetBackGroundGradientLight(&self, flGradientVal: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f32) -> i32>(*self.table.add(27))(self, flGradientVal)
    }
    /// How dark the frame's dark end is.
    pub unsafe fn SetBackGroundGradientDark(&self, flGradientVal: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f32) -> i32>(*self.table.add(28))(self, flGradientVal)
    }
    /// How dark the dark end of all elements is.
    pub unsafe fn SetPieElementGradientDarkAll(&self, flGradientVal: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f32) -> i32>(*self.table.add(29))(self, flGradientVal)
    }
    /// How light the light end of all elements is. GetElementGrLight goes on giving the old amount.
    pub unsafe fn SetPieElementGradientLightAll(&self, flGradientVal: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f32) -> i32>(*self.table.add(30))(self, flGradientVal)
    }
    /// The title.
    pub unsafe fn SetPieChartTitle(&self, bstrTittle: *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16) -> i32>(*self.table.add(31))(self, bstrTittle)
    }
    /// The pie's style.
    pub unsafe fn SetPieChartStyle(&self, nChartStyle: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(32))(self, nChartStyle)
    }
    /// Where the first element starts: clockwise from the right.
    pub unsafe fn SetStartAngle(&self, flAngle: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f32) -> i32>(*self.table.add(33))(self, flAngle)
    }
    /// The tilt. 0 looks from above; useful up to 85.
    pub unsafe fn SetInclineAngle(&self, flAngle: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f32) -> i32>(*self.table.add(34))(self, flAngle)
    }
    /// Height of the side walls. Set it after the window has its size.
    pub unsafe fn SetDepth(&self, fDepth: f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, f32) -> i32>(*self.table.add(35))(self, fDepth)
    }
    /// Sorts the elements by value.
    pub unsafe fn sortPiechartElements(&self, bClockWise: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(36))(self, bClockWise)
    }
    /// Puts the elements back in the order of insertion.
    pub unsafe fn SortToOrginalOrder(&self) -> i32 {
        transmute::<_, extern "system" fn(*const Self) -> i32>(*self.table.add(37))(self)
    }
    /// The element that the last click selected.
    pub unsafe fn GetSelectedElement(&self, pItem: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(38))(self, pItem)
    }
    /// The item of a name.
    pub unsafe fn GetPieChartItem(&self, bstrElement: *mut u16, pItem: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, *mut *mut c_void) -> i32>(*self.table.add(39))(self, bstrElement, pItem)
    }
    /// The number of an element in the order of insertion.
    pub unsafe fn GetElementID(&self, bstrElement: *mut u16, nID: *mut i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut u16, *mut i32) -> i32>(*self.table.add(40))(self, bstrElement, nID)
    }
    /// How light the frame's light end is.
    pub unsafe fn GetBackGroungGrLight(&self, flGradientVal: *mut f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut f32) -> i32>(*self.table.add(41))(self, flGradientVal)
    }
    /// How dark the frame's dark end is.
    pub unsafe fn GetBackgroundGrDark(&self, flGradientVal: *mut f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut f32) -> i32>(*self.table.add(42))(self, flGradientVal)
    }
    /// How light an element's light end is.
    pub unsafe fn GetElementGrLight(&self, pItem: *mut c_void, flGrLight: *mut f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, *mut f32) -> i32>(*self.table.add(43))(self, pItem, flGrLight)
    }
    /// How dark an element's dark end is.
    pub unsafe fn GetElementGrDark(&self, pItem: *mut c_void, flGrDark: *mut f32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, *mut f32) -> i32>(*self.table.add(44))(self, pItem, flGrDark)
    }
    /// The name that InsertItem got.
    pub unsafe fn GetElementName(&self, pItem: *mut c_void, pbstrName: *mut *mut u16) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut c_void, *mut *mut u16) -> i32>(*self.table.add(45))(self, pItem, pbstrName)
    }
    /// The pie's window.
    pub unsafe fn GetHandle(&self, phWnd: *mut *mut c_void) -> i32 {
        transmute::<_, extern "system" fn(*const Self, *mut *mut c_void) -> i32>(*self.table.add(46))(self, phWnd)
    }
    /// Has the window painted again.
    pub unsafe fn Invalidate(&self, bErase: i32) -> i32 {
        transmute::<_, extern "system" fn(*const Self, i32) -> i32>(*self.table.add(47))(self, bErase)
    }
}

pub const CLSID_PieChart3d: GUID = GUID(0x13BB52F1, 0x4CD8, 0x439F, [0xB8, 0x9A, 0x0D, 0x06, 0x6A, 0xFF, 0x5E, 0xBF]);
pub const CLSID_Chart2d: GUID = GUID(0x9359379E, 0x5EB1, 0x4038, [0xAE, 0xE5, 0xBD, 0xFD, 0xC7, 0x4B, 0xB9, 0x5C]);
pub const CLSID_SGraphObject: GUID = GUID(0x15017D9D, 0xF5E2, 0x4C4F, [0x8D, 0x73, 0x5D, 0xDE, 0x3E, 0x10, 0xBF, 0xD3]);
pub const CLSID_SGraphAxis: GUID = GUID(0x46EC9278, 0xD7AF, 0x478E, [0x9F, 0xE1, 0xF3, 0x97, 0x07, 0x4E, 0x8C, 0x5C]);
pub const CLSID_SGraphLogAxis: GUID = GUID(0xE67EB8E1, 0xC843, 0x4650, [0x81, 0xB5, 0xBC, 0x88, 0xC4, 0xCD, 0xF9, 0xD9]);
pub const CLSID_SGraphLabel: GUID = GUID(0x39E00815, 0xC3C0, 0x4715, [0xB9, 0xAF, 0x05, 0x46, 0x0B, 0xB3, 0x75, 0xDD]);
pub const CLSID_SGraphDataSerie: GUID = GUID(0x8675FBC5, 0xD1E5, 0x47D5, [0x9F, 0xEE, 0x4B, 0x17, 0x08, 0x6E, 0xB9, 0x91]);
pub const CLSID_SGraphDataNotation: GUID = GUID(0xA27FB455, 0x91D2, 0x4CD0, [0x82, 0x3B, 0xA5, 0xF2, 0x06, 0xA1, 0xAF, 0x55]);
pub const CLSID_SGraphBitmap: GUID = GUID(0x13470DB1, 0x05EF, 0x4021, [0xAB, 0x22, 0x19, 0x7A, 0xF7, 0x1B, 0x9B, 0x50]);
pub const CLSID_SGraph: GUID = GUID(0x43ABC0D1, 0x4E08, 0x40C3, [0x96, 0x81, 0xE3, 0x0E, 0xA8, 0x41, 0x42, 0xB3]);
pub const CLSID_SObject: GUID = GUID(0x431325F1, 0x4059, 0x42A1, [0xB5, 0x0D, 0x97, 0x23, 0x26, 0xC1, 0x23, 0x4B]);
