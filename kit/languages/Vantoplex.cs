// Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit.

using System;
using System.Runtime.InteropServices;

namespace Vantoplex
{
    /// <summary>Scale of an axis.</summary>
    public enum EAxisType
    {
        /// <summary>Logarithmic.</summary>
        atLog = 0,
        /// <summary>Linear.</summary>
        atLinear = 1,
    }

    /// <summary>Side of a Y axis.</summary>
    public enum EAxisPlacement
    {
        /// <summary>At the left.</summary>
        apLeft = 0,
        /// <summary>At the right.</summary>
        apRight = 1,
        /// <summary>Left and right in turn; the next frame puts one of them in its place.</summary>
        apAutomatic = 2,
    }

    /// <summary>Form of a curve.</summary>
    public enum EGraphType
    {
        /// <summary>A line through the points.</summary>
        gtLine = 0,
        /// <summary>A dot on each point.</summary>
        gtScatter = 1,
    }

    /// <summary>Side of the legend.</summary>
    public enum EAlignment
    {
        /// <summary>At the left.</summary>
        left = 0,
        /// <summary>At the right.</summary>
        right = 1,
        /// <summary>No legend is drawn.</summary>
        top = 2,
        /// <summary>No legend is drawn.</summary>
        bottom = 3,
    }

    /// <summary>What the mouse does in a graph.</summary>
    public enum EOperation
    {
        /// <summary>Clicks select, double clicks open the properties.</summary>
        opNone = 0,
        /// <summary>The left button zooms into a band.</summary>
        opZoom = 1,
        /// <summary>Reserved.</summary>
        opReset = 2,
        /// <summary>The left button drags the picture.</summary>
        opPan = 3,
        /// <summary>A crosshair follows the mouse.</summary>
        opCursor = 4,
        /// <summary>Reserved.</summary>
        opMoveObject = 5,
        /// <summary>Reserved.</summary>
        opEditObject = 6,
        /// <summary>The left button drags curve points up and down.</summary>
        opEditCurve = 7,
        /// <summary>The left button measures between curve points.</summary>
        opMeasure = 8,
    }

    /// <summary>Messages that a graph posts to its parent window. "Graph" is the low half of the native object's address, by which two graphs differ; "window" the low half of the graph's handle.</summary>
    public enum XGRAPH_MSG
    {
        /// <summary>A click on a Y axis. wParam: its index from 0; lParam: graph.</summary>
        XG_YAXISCLICK = 1025,
        /// <summary>A click on an X axis. wParam: its index from 0; lParam: graph.</summary>
        XG_XAXISCLICK = 1026,
        /// <summary>A click on a curve, and each move over one in opEditCurve. wParam: its index from 0; lParam: graph.</summary>
        XG_CURVECLICK = 1027,
        /// <summary>A double click on a Y axis. wParam: its index from 0; lParam: graph.</summary>
        XG_YAXISDBLCLICK = 1028,
        /// <summary>A double click on an X axis. wParam: its index from 0; lParam: graph.</summary>
        XG_XAXISDBLCLICK = 1029,
        /// <summary>A double click on a curve. wParam: its index from 0; lParam: graph.</summary>
        XG_CURVEDBLCLICK = 1030,
        /// <summary>A double click on nothing else. wParam: 0; lParam: graph.</summary>
        XG_GRAPHDBLCLICK = 1031,
        /// <summary>The right button's release, the moment for a popup menu. wParam: 0; lParam: window.</summary>
        XG_RBUTTONUP = 1032,
        /// <summary>The cursor moved. wParam: 0; lParam: window.</summary>
        XG_CURSORMOVED = 1033,
        /// <summary>A zoom or a step back changed the visible ranges. wParam: 0; lParam: graph.</summary>
        XG_ZOOMCHANGE = 1034,
        /// <summary>A curve point was dragged. wParam: address of a TPointChange, read in place and at once; lParam: graph.</summary>
        XG_POINTCHANGED = 1035,
    }

    /// <summary>Sections of a graph file, to be added up.</summary>
    public enum XGRAPH_PERSIST
    {
        /// <summary>The graph's settings.</summary>
        PERSIST_PROPERTIES = 1,
        /// <summary>Curves and axes.</summary>
        PERSIST_DATA = 2,
        /// <summary>Measures, labels, notes and pictures.</summary>
        PERSIST_OBJECTS = 4,
    }

    /// <summary>What the cursor shows, to be added up.</summary>
    public enum XGRAPH_XGC
    {
        /// <summary>The horizontal line.</summary>
        XGC_HORIZ = 1,
        /// <summary>The vertical line.</summary>
        XGC_VERT = 2,
        /// <summary>A box with the values.</summary>
        XGC_LEGEND = 4,
        /// <summary>SetCursorAbsolute keeps the point in the middle of the view.</summary>
        XGC_ADJUSTSMOOTH = 8,
    }

    /// <summary>Commands of the graph window: the low word of wParam of a WM_COMMAND that a host sends to it.</summary>
    public enum VpxCommand
    {
        /// <summary>Selection, the state of a new graph: clicks select, double clicks open the properties.</summary>
        VPX_COMMAND_SELECT = 40000,
        /// <summary>Inserts an empty label of 100 by 100 pixels in the middle of the plot.</summary>
        VPX_COMMAND_INSERT_LABEL = 40001,
        /// <summary>The left button draws a band, its release zooms all axes into it.</summary>
        VPX_COMMAND_ZOOM = 40002,
        /// <summary>Shows the whole range of all axes. The zoom history stays.</summary>
        VPX_COMMAND_RESET_ZOOM = 40003,
        /// <summary>The left button drags the picture. Turns off the automatic scale of all axes.</summary>
        VPX_COMMAND_PAN = 40004,
        /// <summary>Opens the property sheet for what lies under the last mouse position; acts as a double click there.</summary>
        VPX_COMMAND_PROPERTIES = 40005,
        /// <summary>Asks for a printer and prints the graph on one page.</summary>
        VPX_COMMAND_PRINT = 40007,
        /// <summary>Adds the linear trend of the curve that a click selected. Ends the process if none is selected.</summary>
        VPX_COMMAND_LINEAR_TREND = 40009,
        /// <summary>Adds the cubic trend of the curve that a click selected. Ends the process if none is selected.</summary>
        VPX_COMMAND_CUBIC_TREND = 40010,
        /// <summary>A crosshair follows the mouse. Turns off the automatic scale of all axes.</summary>
        VPX_COMMAND_CURSOR = 40011,
        /// <summary>Comes back to the parent window as a posted message of the same number.</summary>
        VPX_COMMAND_PASS_ON = 40012,
        /// <summary>One step back in the zoom history of each axis.</summary>
        VPX_COMMAND_ZOOM_BACK = 40013,
        /// <summary>Curve points can be dragged up and down.</summary>
        VPX_COMMAND_EDIT = 40014,
        /// <summary>The left button measures between two curve points.</summary>
        VPX_COMMAND_MEASURE = 40015,
    }

    /// <summary>A message to the parent window that XGRAPH_MSG doesn't name.</summary>
    public enum VpxMessage
    {
        /// <summary>VPX_COMMAND_PASS_ON as it came back: wParam 0, lParam the graph.</summary>
        VPX_MESSAGE_PASSED_ON = 40012,
    }

    /// <summary>An index that means none.</summary>
    public enum VpxNone
    {
        /// <summary>No curve: ForceSnap lets the cursor snap freely again; a label is tied to no curve.</summary>
        VPX_NO_CURVE = -1,
    }

    /// <summary>Line styles, the platform's pen styles. A style other than solid needs a line width of 1 under GDI.</summary>
    public enum VpxPen
    {
        /// <summary>An unbroken line.</summary>
        VPX_PEN_SOLID = 0,
        /// <summary>Dashes.</summary>
        VPX_PEN_DASH = 1,
        /// <summary>Dots; the grid's style at first.</summary>
        VPX_PEN_DOT = 2,
        /// <summary>A dash and a dot in turn.</summary>
        VPX_PEN_DASH_DOT = 3,
        /// <summary>A dash and two dots in turn.</summary>
        VPX_PEN_DASH_DOT_DOT = 4,
        /// <summary>No line.</summary>
        VPX_PEN_NULL = 5,
    }

    /// <summary>Fill styles: the platform's hatches, or solid.</summary>
    public enum VpxFill
    {
        /// <summary>Horizontal lines.</summary>
        VPX_FILL_HORIZONTAL = 0,
        /// <summary>Vertical lines.</summary>
        VPX_FILL_VERTICAL = 1,
        /// <summary>Diagonal lines, falling to the right.</summary>
        VPX_FILL_FORWARD_DIAGONAL = 2,
        /// <summary>Diagonal lines, rising to the right.</summary>
        VPX_FILL_BACKWARD_DIAGONAL = 3,
        /// <summary>A grid of horizontal and vertical lines.</summary>
        VPX_FILL_CROSS = 4,
        /// <summary>A grid of diagonal lines.</summary>
        VPX_FILL_DIAGONAL_CROSS = 5,
        /// <summary>Solid.</summary>
        VPX_FILL_SOLID = 6,
    }

    /// <summary>What the area beneath a curve ends at, besides another curve's index.</summary>
    public enum VpxFillCurve
    {
        /// <summary>The bottom edge of the plot. GetFillCurve gives it back as -1.</summary>
        VPX_FILL_TO_BOTTOM = 65535,
    }

    /// <summary>What a curve's markers and its key show.</summary>
    public enum VpxMarkerType
    {
        /// <summary>A square with the curve's number, counted from 1.</summary>
        VPX_MARKER_CURVE_NUMBER = 0,
        /// <summary>The symbol that SetMarker names.</summary>
        VPX_MARKER_SYMBOL = 1,
        /// <summary>A square with the number of SetMarker plus 1.</summary>
        VPX_MARKER_NUMBER = 2,
    }

    /// <summary>Marker symbols.</summary>
    public enum VpxSymbol
    {
        /// <summary>A square.</summary>
        VPX_SYMBOL_SQUARE = 0,
        /// <summary>A circle.</summary>
        VPX_SYMBOL_CIRCLE = 1,
        /// <summary>Two diagonals.</summary>
        VPX_SYMBOL_CROSS = 2,
        /// <summary>A square on its corner.</summary>
        VPX_SYMBOL_DIAMOND = 3,
        /// <summary>A triangle that points left.</summary>
        VPX_SYMBOL_TRIANGLE_LEFT = 4,
        /// <summary>A triangle that points up.</summary>
        VPX_SYMBOL_TRIANGLE_UP = 5,
        /// <summary>A triangle that points right.</summary>
        VPX_SYMBOL_TRIANGLE_RIGHT = 6,
        /// <summary>A triangle that points down.</summary>
        VPX_SYMBOL_TRIANGLE_DOWN = 7,
    }

    /// <summary>Alignment of a label's text; further flags of the platform's DrawText may be added.</summary>
    public enum VpxAlign
    {
        /// <summary>At the left.</summary>
        VPX_ALIGN_LEFT = 0,
        /// <summary>Centred.</summary>
        VPX_ALIGN_CENTER = 1,
        /// <summary>At the right.</summary>
        VPX_ALIGN_RIGHT = 2,
    }

    /// <summary>Kinds of business chart.</summary>
    public enum VpxChart
    {
        /// <summary>Groups of bars, a bar for each series.</summary>
        VPX_CHART_BAR = 0,
        /// <summary>A flat pie of percents.</summary>
        VPX_CHART_PIE = 1,
        /// <summary>A line for each series; needs two segments at least.</summary>
        VPX_CHART_LINE = 2,
    }

    /// <summary>Background of the business chart.</summary>
    public enum VpxBackground
    {
        /// <summary>The background colour.</summary>
        VPX_BACKGROUND_SOLID = 10,
        /// <summary>The gradient of the two gradient colours.</summary>
        VPX_BACKGROUND_GRADIENT = 11,
    }

    /// <summary>Direction of the business chart's gradient, as the setter takes it.</summary>
    public enum VpxGradient
    {
        /// <summary>From left to right.</summary>
        VPX_GRADIENT_HORIZONTAL = 20,
        /// <summary>From top to bottom.</summary>
        VPX_GRADIENT_VERTICAL = 21,
    }

    /// <summary>Direction of the business chart's gradient, as the getter gives it: not the setter's numbers.</summary>
    public enum VpxGradientMode
    {
        /// <summary>From left to right.</summary>
        VPX_GRADIENT_MODE_HORIZONTAL = 0,
        /// <summary>From top to bottom.</summary>
        VPX_GRADIENT_MODE_VERTICAL = 1,
    }

    /// <summary>Whether the business chart's animation runs.</summary>
    public enum VpxAnimate
    {
        /// <summary>The whole chart, still. Give the animation's type all the same.</summary>
        VPX_ANIMATE_OFF = 0,
        /// <summary>The animation runs from its start, a step each 50 milliseconds.</summary>
        VPX_ANIMATE_ON = 1,
    }

    /// <summary>Entry animations of the business chart; each belongs to one kind of chart.</summary>
    public enum VpxAnimation
    {
        /// <summary>Flat pie: the slices sweep open one after the other.</summary>
        VPX_ANIMATION_PIE_SWEEP = 10,
        /// <summary>Flat pie: the slices fade in one after the other.</summary>
        VPX_ANIMATION_PIE_FADE = 11,
        /// <summary>Bars: all grow together.</summary>
        VPX_ANIMATION_BARS_GROW = 20,
        /// <summary>Bars: the groups grow one after the other.</summary>
        VPX_ANIMATION_BAR_GROUPS_GROW = 21,
        /// <summary>Bars: the series grow one after the other.</summary>
        VPX_ANIMATION_BAR_SERIES_GROW = 22,
        /// <summary>Bars: the groups fade in one after the other.</summary>
        VPX_ANIMATION_BAR_GROUPS_FADE = 25,
        /// <summary>Bars: the series fade in one after the other.</summary>
        VPX_ANIMATION_BAR_SERIES_FADE = 26,
        /// <summary>Lines: all are drawn together.</summary>
        VPX_ANIMATION_LINES_DRAW = 30,
        /// <summary>Lines: the series are drawn one after the other.</summary>
        VPX_ANIMATION_LINE_SERIES_DRAW = 31,
    }

    /// <summary>Styles of the 3D pie.</summary>
    public enum VpxPieStyle
    {
        /// <summary>Tilted, with side walls; any number but 1 and 2 means this.</summary>
        VPX_PIE_SOLID = 0,
        /// <summary>A ring.</summary>
        VPX_PIE_DOUGHNUT = 1,
        /// <summary>A flat circle, the slices set apart by lines.</summary>
        VPX_PIE_FLAT = 2,
    }

    /// <summary>Order that the 3D pie's elements are sorted into, by value.</summary>
    public enum VpxPieOrder
    {
        /// <summary>The smallest first.</summary>
        VPX_PIE_ORDER_ASCENDING = 0,
        /// <summary>The largest first.</summary>
        VPX_PIE_ORDER_DESCENDING = 1,
    }

    /// <summary>Bytes of the LOGFONTW that the font setters read.</summary>
    public enum VpxFont
    {
        /// <summary>The size of a LOGFONTW.</summary>
        VPX_FONT_RECORD_SIZE = 92,
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct TDataPoint
    {
        public double fXVal, fYVal;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct RECT
    {
        public int left, top, right, bottom;
    }

    /// <summary>The root of what a graph is made of: which native object a wrapper is for.</summary>
    [ComImport, Guid("D8C5A43F-6850-44AB-9852-46A03F795FEE"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISObject
    {
        /// <summary>Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.</summary>
        [PreserveSig] int SetObjectHandle(IntPtr hObj);
        /// <summary>Writes the address of the caller's own variable into that variable. The native object can't be read back with it.</summary>
        [PreserveSig] int GetObjectHandle(out IntPtr hObj);
    }

    /// <summary>What axes, curves, labels and bitmaps share. A wrapper is a view: it keeps nothing alive and doesn't notice when its object goes. Ask the graph for a new one after any call that adds or deletes a curve or an axis.</summary>
    [ComImport, Guid("40C4BE95-C0C1-4FD5-8F9D-E15060E25B62"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraphObject
    {
        /// <summary>Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.</summary>
        [PreserveSig] int SetObjectHandle(IntPtr hObj);
        /// <summary>Writes the address of the caller's own variable into that variable. The native object can't be read back with it.</summary>
        [PreserveSig] int GetObjectHandle(out IntPtr hObj);
        /// <summary>Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.</summary>
        [PreserveSig] int SetRect(ref RECT pRect);
        /// <summary>Where the object is: a label's box, or the strip around an axis's line in the last frame.</summary>
        [PreserveSig] int GetRect(out RECT pRect);
        /// <summary>Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.</summary>
        [PreserveSig] int SetSelected(int bValue);
        /// <summary>Whether the object is selected.</summary>
        [PreserveSig] int GetSelected(out int pbValue);
        /// <summary>Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.</summary>
        [PreserveSig] int SetVisible(int bValue);
        /// <summary>Whether the object is shown.</summary>
        [PreserveSig] int GetVisible(out int pbValue);
        /// <summary>The colour of an axis's line or of a curve. On a label it is the box's fill colour.</summary>
        [PreserveSig] int SetColor(uint color);
        /// <summary>The colour that SetColor sets.</summary>
        [PreserveSig] int GetColor(out uint pColor);
        /// <summary>Gives this wrapper itself, not the graph, and adds no reference: don't release it.</summary>
        [PreserveSig] int GetGraph([MarshalAs(UnmanagedType.IDispatch)] out object pGraph);
    }

    /// <summary>An X or Y axis of a graph, from ISGraph.GetXAxis or GetYAxis. Fields are stored as they come, without a check. A wrapper without an axis does nothing and returns S_OK, and its getters then write nothing: initialise what you pass.</summary>
    [ComImport, Guid("053D3815-35DD-4489-B913-E7A4A36E6DE4"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraphAxis
    {
        /// <summary>Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.</summary>
        [PreserveSig] int SetObjectHandle(IntPtr hObj);
        /// <summary>Writes the address of the caller's own variable into that variable. The native object can't be read back with it.</summary>
        [PreserveSig] int GetObjectHandle(out IntPtr hObj);
        /// <summary>Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.</summary>
        [PreserveSig] int SetRect(ref RECT pRect);
        /// <summary>Where the object is: a label's box, or the strip around an axis's line in the last frame.</summary>
        [PreserveSig] int GetRect(out RECT pRect);
        /// <summary>Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.</summary>
        [PreserveSig] int SetSelected(int bValue);
        /// <summary>Whether the object is selected.</summary>
        [PreserveSig] int GetSelected(out int pbValue);
        /// <summary>Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.</summary>
        [PreserveSig] int SetVisible(int bValue);
        /// <summary>Whether the object is shown.</summary>
        [PreserveSig] int GetVisible(out int pbValue);
        /// <summary>The colour of an axis's line or of a curve. On a label it is the box's fill colour.</summary>
        [PreserveSig] int SetColor(uint color);
        /// <summary>The colour that SetColor sets.</summary>
        [PreserveSig] int GetColor(out uint pColor);
        /// <summary>Gives this wrapper itself, not the graph, and adds no reference: don't release it.</summary>
        [PreserveSig] int GetGraph([MarshalAs(UnmanagedType.IDispatch)] out object pGraph);
        /// <summary>Linear or logarithmic. A logarithmic axis needs a range above 0; the bounds of later ranges are floored at 1e-16.</summary>
        [PreserveSig] int SetAxisType(EAxisType type);
        /// <summary>The scale.</summary>
        [PreserveSig] int GetAxisType(out EAxisType pType);
        /// <summary>Shows or hides the keys of the axis's curves along the axis. Shown at first.</summary>
        [PreserveSig] int SetShowMarker(int bValue);
        /// <summary>Whether the curve keys are shown.</summary>
        [PreserveSig] int GetShowMarker(out int pbValue);
        /// <summary>Values are date-times: days since 1899-12-30 with the time as fraction, as in DATE. Set a display format of dates with it, SetDisplayFmt, for this call doesn't change the format.</summary>
        [PreserveSig] int SetDateTime(int bValue);
        /// <summary>Whether values are date-times.</summary>
        [PreserveSig] int GetDateTime(out int pbValue);
        /// <summary>Shows or hides the grid lines of the axis. Shown at first.</summary>
        [PreserveSig] int SetShowGrid(int bValue);
        /// <summary>Whether the grid is shown.</summary>
        [PreserveSig] int GetShowGrid(out int pbValue);
        /// <summary>Whether each frame rounds the visible range outward to whole steps. On at first; pan, cursor and wheel turn it off.</summary>
        [PreserveSig] int SetAutoScale(int bValue);
        /// <summary>Whether each frame rounds the visible range.</summary>
        [PreserveSig] int GetAutoScale(out int pbValue);
        /// <summary>Size of the arrow at the axis's end.</summary>
        [PreserveSig] int SetArcSize(int nValue);
        /// <summary>Size of the arrow.</summary>
        [PreserveSig] int GetArcSize(out int pnValue);
        /// <summary>Side of a curve key along the axis.</summary>
        [PreserveSig] int SetMarkerSize(int nValue);
        /// <summary>Side of a curve key.</summary>
        [PreserveSig] int GetMarkerSize(out int pnValue);
        /// <summary>Length of a tick and gap between axis and label.</summary>
        [PreserveSig] int SetTickSize(int nValue);
        /// <summary>Length of a tick.</summary>
        [PreserveSig] int GetTickSize(out int pnValue);
        /// <summary>Line style of the grid.</summary>
        [PreserveSig] int SetGridStyle(uint nValue);
        /// <summary>Line style of the grid.</summary>
        [PreserveSig] int GetGridStyle(out uint pnValue);
        /// <summary>The axis's title. An empty one takes no room.</summary>
        [PreserveSig] int SetLabel([MarshalAs(UnmanagedType.BStr)] string bstrValue);
        /// <summary>The axis's title.</summary>
        [PreserveSig] int GetLabel([MarshalAs(UnmanagedType.BStr)] out string pbstrValue);
        /// <summary>How values are written: the printf format of one double ("%5.1f"), or on a date-time axis a strftime format ("%Y-%m-%d"). Items that ask for anything else are written as they are; width and precision end at 64.</summary>
        [PreserveSig] int SetDisplayFmt([MarshalAs(UnmanagedType.BStr)] string bstrValue);
        /// <summary>How values are written. A range with a bound beyond a million turns it into "%5.2e" on its own.</summary>
        [PreserveSig] int GetDisplayFmt([MarshalAs(UnmanagedType.BStr)] out string pbstrValue);
        /// <summary>Colour of the grid.</summary>
        [PreserveSig] int SetGridColor(uint color);
        /// <summary>Colour of the grid.</summary>
        [PreserveSig] int GetGridColor(out uint pColor);
        /// <summary>The side of a Y axis. Automatic axes go left and right in turn at the next frame, which replaces the value for good. X axes are always at the bottom.</summary>
        [PreserveSig] int SetPlacement(EAxisPlacement placement);
        /// <summary>The side of a Y axis.</summary>
        [PreserveSig] int GetPlacement(out EAxisPlacement pPlacement);
        /// <summary>Number of axis markers, which a user adds and removes too: with a click beside the selected axis, and with the right button on a marker.</summary>
        [PreserveSig] int GetAxisMarkerCount(out int pValue);
        /// <summary>The value at a pixel of the last frame.</summary>
        [PreserveSig] int GetValueForPos(int nPos, out double pValue);
        /// <summary>Adds or replaces an axis marker, a line across the plot at a value.</summary>
        [PreserveSig] int SetAxisMarker(int nMarker, double fValue, uint crColor, uint nStyle);
        /// <summary>The text of an axis marker.</summary>
        [PreserveSig] int SetMaskerLabel(int nPos, [MarshalAs(UnmanagedType.BStr)] string bstrValue);
        /// <summary>Adds or replaces a colour range, a band behind the curves.</summary>
        [PreserveSig] int SetColorRange(int nRange, double fMin, double fMax, uint crMinColor, uint crMaxColor, [MarshalAs(UnmanagedType.BStr)] string bstrLabel, uint nStyle);
        /// <summary>Deletes one colour range.</summary>
        [PreserveSig] int DeleteColorRange(int nRange);
        /// <summary>Deletes all colour ranges.</summary>
        [PreserveSig] int DeleteAllColorRanges();
    }

    /// <summary>A logarithmic axis of a class of its own, for hosts that make the wrapper themselves. The axes of a graph are those of ISGraphAxis, also with a logarithmic scale: set theirs with SetAxisType. Two methods are in place of the base's and have no slot of their own.</summary>
    [ComImport, Guid("8AE09D08-7719-4660-A5E3-A261EB0AA41C"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraphLogAxis
    {
        /// <summary>Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.</summary>
        [PreserveSig] int SetObjectHandle(IntPtr hObj);
        /// <summary>Writes the address of the caller's own variable into that variable. The native object can't be read back with it.</summary>
        [PreserveSig] int GetObjectHandle(out IntPtr hObj);
        /// <summary>Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.</summary>
        [PreserveSig] int SetRect(ref RECT pRect);
        /// <summary>Where the object is: a label's box, or the strip around an axis's line in the last frame.</summary>
        [PreserveSig] int GetRect(out RECT pRect);
        /// <summary>Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.</summary>
        [PreserveSig] int SetSelected(int bValue);
        /// <summary>Whether the object is selected.</summary>
        [PreserveSig] int GetSelected(out int pbValue);
        /// <summary>Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.</summary>
        [PreserveSig] int SetVisible(int bValue);
        /// <summary>Whether the object is shown.</summary>
        [PreserveSig] int GetVisible(out int pbValue);
        /// <summary>The colour of an axis's line or of a curve. On a label it is the box's fill colour.</summary>
        [PreserveSig] int SetColor(uint color);
        /// <summary>The colour that SetColor sets.</summary>
        [PreserveSig] int GetColor(out uint pColor);
        /// <summary>Gives this wrapper itself, not the graph, and adds no reference: don't release it.</summary>
        [PreserveSig] int GetGraph([MarshalAs(UnmanagedType.IDispatch)] out object pGraph);
        /// <summary>Linear or logarithmic, in a field of this class; GetAxisType doesn't read it.</summary>
        [PreserveSig] int SetAxisType(EAxisType type);
        /// <summary>The scale.</summary>
        [PreserveSig] int GetAxisType(out EAxisType pType);
        /// <summary>Shows or hides the keys of the axis's curves along the axis. Shown at first.</summary>
        [PreserveSig] int SetShowMarker(int bValue);
        /// <summary>Whether the curve keys are shown.</summary>
        [PreserveSig] int GetShowMarker(out int pbValue);
        /// <summary>Values are date-times: days since 1899-12-30 with the time as fraction, as in DATE. Set a display format of dates with it, SetDisplayFmt, for this call doesn't change the format.</summary>
        [PreserveSig] int SetDateTime(int bValue);
        /// <summary>Whether values are date-times.</summary>
        [PreserveSig] int GetDateTime(out int pbValue);
        /// <summary>Shows or hides the grid lines of the axis. Shown at first.</summary>
        [PreserveSig] int SetShowGrid(int bValue);
        /// <summary>Whether the grid is shown.</summary>
        [PreserveSig] int GetShowGrid(out int pbValue);
        /// <summary>Whether each frame rounds the visible range outward to whole steps. On at first; pan, cursor and wheel turn it off.</summary>
        [PreserveSig] int SetAutoScale(int bValue);
        /// <summary>Whether each frame rounds the visible range.</summary>
        [PreserveSig] int GetAutoScale(out int pbValue);
        /// <summary>Size of the arrow at the axis's end.</summary>
        [PreserveSig] int SetArcSize(int nValue);
        /// <summary>Size of the arrow.</summary>
        [PreserveSig] int GetArcSize(out int pnValue);
        /// <summary>Side of a curve key along the axis.</summary>
        [PreserveSig] int SetMarkerSize(int nValue);
        /// <summary>Side of a curve key.</summary>
        [PreserveSig] int GetMarkerSize(out int pnValue);
        /// <summary>Length of a tick and gap between axis and label.</summary>
        [PreserveSig] int SetTickSize(int nValue);
        /// <summary>Length of a tick.</summary>
        [PreserveSig] int GetTickSize(out int pnValue);
        /// <summary>Line style of the grid.</summary>
        [PreserveSig] int SetGridStyle(uint nValue);
        /// <summary>Line style of the grid.</summary>
        [PreserveSig] int GetGridStyle(out uint pnValue);
        /// <summary>The axis's title. An empty one takes no room.</summary>
        [PreserveSig] int SetLabel([MarshalAs(UnmanagedType.BStr)] string bstrValue);
        /// <summary>The axis's title.</summary>
        [PreserveSig] int GetLabel([MarshalAs(UnmanagedType.BStr)] out string pbstrValue);
        /// <summary>How values are written: the printf format of one double ("%5.1f"), or on a date-time axis a strftime format ("%Y-%m-%d"). Items that ask for anything else are written as they are; width and precision end at 64.</summary>
        [PreserveSig] int SetDisplayFmt([MarshalAs(UnmanagedType.BStr)] string bstrValue);
        /// <summary>How values are written. A range with a bound beyond a million turns it into "%5.2e" on its own.</summary>
        [PreserveSig] int GetDisplayFmt([MarshalAs(UnmanagedType.BStr)] out string pbstrValue);
        /// <summary>Colour of the grid.</summary>
        [PreserveSig] int SetGridColor(uint color);
        /// <summary>Colour of the grid.</summary>
        [PreserveSig] int GetGridColor(out uint pColor);
        /// <summary>The side of a Y axis. Automatic axes go left and right in turn at the next frame, which replaces the value for good. X axes are always at the bottom.</summary>
        [PreserveSig] int SetPlacement(EAxisPlacement placement);
        /// <summary>The side of a Y axis.</summary>
        [PreserveSig] int GetPlacement(out EAxisPlacement pPlacement);
        /// <summary>Number of axis markers, which a user adds and removes too: with a click beside the selected axis, and with the right button on a marker.</summary>
        [PreserveSig] int GetAxisMarkerCount(out int pValue);
        /// <summary>The value at a pixel of the last frame, by the logarithmic mapping.</summary>
        [PreserveSig] int GetValueForPos(int nPos, out double pValue);
        /// <summary>Adds or replaces an axis marker, a line across the plot at a value.</summary>
        [PreserveSig] int SetAxisMarker(int nMarker, double fValue, uint crColor, uint nStyle);
        /// <summary>The text of an axis marker.</summary>
        [PreserveSig] int SetMaskerLabel(int nPos, [MarshalAs(UnmanagedType.BStr)] string bstrValue);
        /// <summary>Adds or replaces a colour range, a band behind the curves.</summary>
        [PreserveSig] int SetColorRange(int nRange, double fMin, double fMax, uint crMinColor, uint crMaxColor, [MarshalAs(UnmanagedType.BStr)] string bstrLabel, uint nStyle);
        /// <summary>Deletes one colour range.</summary>
        [PreserveSig] int DeleteColorRange(int nRange);
        /// <summary>Deletes all colour ranges.</summary>
        [PreserveSig] int DeleteAllColorRanges();
        /// <summary>Sets the whole and the visible range.</summary>
        [PreserveSig] int SetRange(double fMin, double fMax);
    }

    /// <summary>A curve of a graph, from ISGraph.SetData or GetCurve. Values are stored as they come, without a check. A wrapper without a curve does nothing and returns S_OK, and its getters then write nothing: initialise what you pass. Arrays that come back belong to the caller, who frees them with CoTaskMemFree.</summary>
    [ComImport, Guid("EFBDCB31-0A47-406E-B96F-906E78D0DB56"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraphDataSerie
    {
        /// <summary>Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.</summary>
        [PreserveSig] int SetObjectHandle(IntPtr hObj);
        /// <summary>Writes the address of the caller's own variable into that variable. The native object can't be read back with it.</summary>
        [PreserveSig] int GetObjectHandle(out IntPtr hObj);
        /// <summary>Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.</summary>
        [PreserveSig] int SetRect(ref RECT pRect);
        /// <summary>Where the object is: a label's box, or the strip around an axis's line in the last frame.</summary>
        [PreserveSig] int GetRect(out RECT pRect);
        /// <summary>Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.</summary>
        [PreserveSig] int SetSelected(int bValue);
        /// <summary>Whether the object is selected.</summary>
        [PreserveSig] int GetSelected(out int pbValue);
        /// <summary>Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.</summary>
        [PreserveSig] int SetVisible(int bValue);
        /// <summary>Whether the object is shown.</summary>
        [PreserveSig] int GetVisible(out int pbValue);
        /// <summary>The colour of an axis's line or of a curve. On a label it is the box's fill colour.</summary>
        [PreserveSig] int SetColor(uint color);
        /// <summary>The colour that SetColor sets.</summary>
        [PreserveSig] int GetColor(out uint pColor);
        /// <summary>Makes a new SGraph object without a window. It isn't the curve's graph, and only Create may be called on it.</summary>
        [PreserveSig] int GetGraph([MarshalAs(UnmanagedType.IDispatch)] out object pRef);
        /// <summary>A straight line fitted to the points' numbers 1, 2, 3 (not to their x).</summary>
        [PreserveSig] int GetLinearTrend(out IntPtr pRef, int nPoints);
        /// <summary>The fit of y = k t^3 to the points' numbers t: one term, no general cubic.</summary>
        [PreserveSig] int GetCubicTrend(out IntPtr pRef, int nPoints);
        /// <summary>A least-squares polynomial over the points' true x.</summary>
        [PreserveSig] int GetPolynomialTrend(out IntPtr pRef, int nDegree, int nPoints);
        /// <summary>The mean of the last span values.</summary>
        [PreserveSig] int GetSimpleMovingAverage(out IntPtr pRef, int span);
        /// <summary>The exponential average with factor 2 / (span + 1).</summary>
        [PreserveSig] int GetExponentialMovingAverage(out IntPtr pRef, int span);
        /// <summary>The average with weights that fall by one from the newest value to the oldest.</summary>
        [PreserveSig] int GetLinearMovingAverage(out IntPtr pRef, int span);
        /// <summary>The average with weights that are largest in the window's middle.</summary>
        [PreserveSig] int GetTriangularMovingAverage(out IntPtr pRef, int span);
        /// <summary>Gives the cubic trend with span further points, not an average. The sine-weighted average is in the property sheet alone.</summary>
        [PreserveSig] int GetSineWeightedMovingAverage(out IntPtr pRef, int span);
        /// <summary>Width of the line, and radius of a scatter point.</summary>
        [PreserveSig] int SetLineSize(int nValue);
        /// <summary>How the area beneath the curve is filled.</summary>
        [PreserveSig] int SetFillStyle(int nValue);
        /// <summary>What the curve's markers and key show.</summary>
        [PreserveSig] int SetMarkerType(int nValue);
        /// <summary>The marker's symbol, or its number less 1.</summary>
        [PreserveSig] int SetMarker(int nValue);
        /// <summary>Side of a marker.</summary>
        [PreserveSig] int SetMarkerSize(int nValue);
        /// <summary>Shows or hides markers on the curve's points, thinned out to about a quarter of the room.</summary>
        [PreserveSig] int SetShowMarker(int bValue);
        /// <summary>Colour of the fill.</summary>
        [PreserveSig] int SetFillColor(uint color);
        /// <summary>What the fill ends at: another curve or the plot's bottom. Cut to 16 bits.</summary>
        [PreserveSig] int SetFillCurve(int nValue);
        /// <summary>Turns the fill on or off, and sets where it ends.</summary>
        [PreserveSig] int SetFillBeneath(int bValue, int nValue);
        /// <summary>Whether the fill lets the lines below it through, by the raster operation XOR. Otherwise it covers them.</summary>
        [PreserveSig] int SetFillTransparent(int bValue);
        /// <summary>The curve's name in the legend.</summary>
        [PreserveSig] int SetLabel([MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>A line or scattered points.</summary>
        [PreserveSig] int SetType(EGraphType type);
        /// <summary>Number of points.</summary>
        [PreserveSig] int GetCount(out int pnValue);
        /// <summary>The index that the curve was made with; deletions don't renumber it.</summary>
        [PreserveSig] int GetIndex(out int pnValue);
        /// <summary>Index of the curve's X axis.</summary>
        [PreserveSig] int GetXAxis(out int pnValue);
        /// <summary>Index of the curve's Y axis.</summary>
        [PreserveSig] int GetYAxis(out int pnValue);
        /// <summary>Width of the line.</summary>
        [PreserveSig] int GetLineSize(out int pnValue);
        /// <summary>How the area beneath is filled.</summary>
        [PreserveSig] int GetFillStyle(out int pnValue);
        /// <summary>What markers and key show.</summary>
        [PreserveSig] int GetMarkerType(out int pnValue);
        /// <summary>The marker's symbol, or its number less 1.</summary>
        [PreserveSig] int GetMarker(out int pnValue);
        /// <summary>Side of a marker.</summary>
        [PreserveSig] int GetMarkerSize(out int pnValue);
        /// <summary>Style of the line.</summary>
        [PreserveSig] int GetLineStyle(out uint pnValue);
        /// <summary>Whether markers are shown.</summary>
        [PreserveSig] int GetShowMarker(out int pnValue);
        /// <summary>Whether the fill is on.</summary>
        [PreserveSig] int GetFillBeneath(out int pnValue);
        /// <summary>What the fill ends at, as a signed 16-bit number: the plot's bottom is -1.</summary>
        [PreserveSig] int GetFillCurve(out int pnValue);
        /// <summary>Whether the fill lets lines through.</summary>
        [PreserveSig] int GetFillTransparent(out int pnValue);
        /// <summary>The curve's name.</summary>
        [PreserveSig] int GetLabel([MarshalAs(UnmanagedType.BStr)] out string psVale);
        /// <summary>A line or scattered points.</summary>
        [PreserveSig] int GetType(out EGraphType pType);
        /// <summary>Style of the line.</summary>
        [PreserveSig] int SetLineStyle(uint nValue);
    }

    /// <summary>A text label of a graph, from ISGraph.InsertLabel. A wrapper without a label does nothing and returns S_OK. SetColor and GetColor are in place of the base's and have no slot of their own.</summary>
    [ComImport, Guid("F668D721-B480-4E38-A1B3-C2781900DA27"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraphLabel
    {
        /// <summary>Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.</summary>
        [PreserveSig] int SetObjectHandle(IntPtr hObj);
        /// <summary>Writes the address of the caller's own variable into that variable. The native object can't be read back with it.</summary>
        [PreserveSig] int GetObjectHandle(out IntPtr hObj);
        /// <summary>Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.</summary>
        [PreserveSig] int SetRect(ref RECT pRect);
        /// <summary>Where the object is: a label's box, or the strip around an axis's line in the last frame.</summary>
        [PreserveSig] int GetRect(out RECT pRect);
        /// <summary>Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.</summary>
        [PreserveSig] int SetSelected(int bValue);
        /// <summary>Whether the object is selected.</summary>
        [PreserveSig] int GetSelected(out int pbValue);
        /// <summary>Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.</summary>
        [PreserveSig] int SetVisible(int bValue);
        /// <summary>Whether the object is shown.</summary>
        [PreserveSig] int GetVisible(out int pbValue);
        /// <summary>Fill colour of the box.</summary>
        [PreserveSig] int SetColor(uint color);
        /// <summary>Fill colour of the box.</summary>
        [PreserveSig] int GetColor(out uint pColor);
        /// <summary>Gives this wrapper itself, not the graph, and adds no reference: don't release it.</summary>
        [PreserveSig] int GetGraph([MarshalAs(UnmanagedType.IDispatch)] out object pGraph);
        /// <summary>The label's font.</summary>
        [PreserveSig] int SetFont(IntPtr pLogFontw);
        /// <summary>The label's text; line feeds break it.</summary>
        [PreserveSig] int SetText([MarshalAs(UnmanagedType.BStr)] string pText);
        /// <summary>The label's text.</summary>
        [PreserveSig] int GetText([MarshalAs(UnmanagedType.BStr)] out string pText);
        /// <summary>Colour of the text.</summary>
        [PreserveSig] int SetTextColor(uint color);
        /// <summary>Colour of the text.</summary>
        [PreserveSig] int GetTextColor(out uint pColor);
        /// <summary>Draws or leaves out the box's black frame.</summary>
        [PreserveSig] int SetBorder(int bValue);
        /// <summary>Whether the frame is drawn.</summary>
        [PreserveSig] int GetBorder(out int bpValue);
        /// <summary>Leaves the box unfilled.</summary>
        [PreserveSig] int SetTransparent(int bValue);
        /// <summary>Whether the box is left unfilled.</summary>
        [PreserveSig] int GetTransparent(out int bpValue);
        /// <summary>Alignment of the text.</summary>
        [PreserveSig] int SetAlignment(uint value);
        /// <summary>Alignment of the text.</summary>
        [PreserveSig] int GetAlignment(out uint pValue);
        /// <summary>Sets the alignment, as SetAlignment does, and ties the label to no curve: only the label's property dialog does.</summary>
        [PreserveSig] int SetCurve(int value);
        /// <summary>The curve that the label is tied to by a line.</summary>
        [PreserveSig] int GetCurve(out int pValue);
    }

    /// <summary>A picture in a graph. Pictures come from graph files alone: no method makes one or sets its bitmap.</summary>
    [ComImport, Guid("D95EF098-A408-4854-9D85-ECA84CC0F840"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraphBitmap
    {
        /// <summary>Points the wrapper at a native object, or at none. The graph does this for the wrappers that it returns; a host has no use for it.</summary>
        [PreserveSig] int SetObjectHandle(IntPtr hObj);
        /// <summary>Writes the address of the caller's own variable into that variable. The native object can't be read back with it.</summary>
        [PreserveSig] int GetObjectHandle(out IntPtr hObj);
        /// <summary>Moves the object. Labels and bitmaps keep it; axes and curves compute theirs anew in each frame.</summary>
        [PreserveSig] int SetRect(ref RECT pRect);
        /// <summary>Where the object is: a label's box, or the strip around an axis's line in the last frame.</summary>
        [PreserveSig] int GetRect(out RECT pRect);
        /// <summary>Marks the object as selected: an axis gets a frame, a curve its inverse colour. A click changes it again.</summary>
        [PreserveSig] int SetSelected(int bValue);
        /// <summary>Whether the object is selected.</summary>
        [PreserveSig] int GetSelected(out int pbValue);
        /// <summary>Shows or hides the object. A hidden axis takes no room and goes on scaling its curves; a hidden curve leaves the legend.</summary>
        [PreserveSig] int SetVisible(int bValue);
        /// <summary>Whether the object is shown.</summary>
        [PreserveSig] int GetVisible(out int pbValue);
        /// <summary>The colour of an axis's line or of a curve. On a label it is the box's fill colour.</summary>
        [PreserveSig] int SetColor(uint color);
        /// <summary>The colour that SetColor sets.</summary>
        [PreserveSig] int GetColor(out uint pColor);
        /// <summary>Gives this wrapper itself, not the graph, and adds no reference: don't release it.</summary>
        [PreserveSig] int GetGraph([MarshalAs(UnmanagedType.IDispatch)] out object pGraph);
        /// <summary>Draws or leaves out the picture's black frame.</summary>
        [PreserveSig] int SetBorder(int bValue);
        /// <summary>Does nothing.</summary>
        [PreserveSig] int SetBitmap(IntPtr hBitmap);
        /// <summary>Whether the frame is drawn.</summary>
        [PreserveSig] int GetBorder(out int pbValue);
        /// <summary>Does nothing.</summary>
        [PreserveSig] int GetBitmap(out IntPtr hBitmap);
    }

    /// <summary>A note on a data point. It has no methods: ISGraph.InsertDataNotation makes notes, and the graph draws them.</summary>
    [ComImport, Guid("E96291DD-864F-4818-B52D-548B1E57A699"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraphDataNotation
    {
    }

    /// <summary>The interactive XY graph window. Create comes first. Axes and curves are counted from 0. Setters store and don't repaint: call Invalidate when you are done. Colours are COLORREF, 0x00BBGGRR; flags are 0 or not.</summary>
    [ComImport, Guid("90F21AE5-DB57-409D-885A-90CB78805E86"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface ISGraph
    {
        /// <summary>Adds or replaces a curve, makes its axes if they are the next ones, and widens the axes' ranges to hold it; an earlier zoom is gone. The way to an axis's first range.</summary>
        [PreserveSig] int SetData(out ISGraphDataSerie pSerie, [In] TDataPoint[] pValues, int nCount, int nCurve, int nXAxis, int nYAxis, int bAutoDelete);
        /// <summary>A new view of an X axis.</summary>
        [PreserveSig] int GetXAxis(out ISGraphAxis pGraphAxis, int nAxis);
        /// <summary>A new view of a Y axis.</summary>
        [PreserveSig] int GetYAxis(out ISGraphAxis pGraphAxis, int nAxis);
        /// <summary>A new view of a curve.</summary>
        [PreserveSig] int GetCurve(out ISGraphDataSerie pGraphAxis, int nCurve);
        /// <summary>Deletes an X axis; later ones move down by one, and the curves' own indices stay as they are: set their data again.</summary>
        [PreserveSig] int DeleteXAxis(int nAxis);
        /// <summary>Deletes the last X axis, not the Y axis.</summary>
        [PreserveSig] int DeleteYAxis(int nAxis);
        /// <summary>Deletes a curve; later ones move down by one.</summary>
        [PreserveSig] int DeleteCurve(int nCurve);
        /// <summary>Pins a note with the point's values to a data point.</summary>
        [PreserveSig] int InsertDataNotation(int nCurve, int nIndex);
        /// <summary>Adds nothing: the curve can't be reached through its view. Use ISGraphDataSerie.GetLinearTrend and SetData.</summary>
        [PreserveSig] int AddLinearTrend(ISGraphDataSerie pSerie);
        /// <summary>Adds nothing: the curve can't be reached through its view. Use ISGraphDataSerie.GetCubicTrend and SetData.</summary>
        [PreserveSig] int AddCubicTrend(ISGraphDataSerie pSerie);
        /// <summary>Number of X axes.</summary>
        [PreserveSig] int GetXAxisCount(out int pnValue);
        /// <summary>Number of Y axes.</summary>
        [PreserveSig] int GetYAxisCount(out int pnValue);
        /// <summary>Number of curves.</summary>
        [PreserveSig] int GetCurveCount(out int pnValue);
        /// <summary>Selects one X axis and no other.</summary>
        [PreserveSig] int SelectXAxis(int nAxis);
        /// <summary>Selects one Y axis and no other.</summary>
        [PreserveSig] int SelectYAxis(int nAxis);
        /// <summary>Selects one curve and no other. The next mouse move over the window may clear it; the trend commands don't look at it.</summary>
        [PreserveSig] int SelectCurve(int nCurve);
        /// <summary>Room between the window's edge and the graph.</summary>
        [PreserveSig] int SetGraphMargins(int nLeft, int nTop, int nRight, int nBottom);
        /// <summary>Writes the window as it is on the screen to a BMP file. The header's offset to the pixels is that of palette pictures; on a 32-bit screen set byte 10 of the file to 54. Nothing reports whether the file was written.</summary>
        [PreserveSig] int SaveBitmap([MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>Curve points can be dragged up and down: opEditCurve.</summary>
        [PreserveSig] int Edit();
        /// <summary>The left button zooms into a band: opZoom.</summary>
        [PreserveSig] int Zoom();
        /// <summary>Shows the whole range of all axes. The zoom history stays, and no XG_ZOOMCHANGE is posted.</summary>
        [PreserveSig] int ResetZoom();
        /// <summary>The left button drags the picture: opPan. Turns off the automatic scale of all axes.</summary>
        [PreserveSig] int Pan();
        /// <summary>Back to selection: opNone.</summary>
        [PreserveSig] int NoOp();
        /// <summary>Does nothing. Send VPX_COMMAND_CURSOR with SendMessage.</summary>
        [PreserveSig] int Cursor();
        /// <summary>The left button measures between curve points: opMeasure.</summary>
        [PreserveSig] int Measure();
        /// <summary>Deletes all curves, axes, labels, notes and pictures. Measures stay: call DeleteMeasures too, since the next frame looks for their curves.</summary>
        [PreserveSig] int ResetAll();
        /// <summary>Number of zoom steps of the first X axis.</summary>
        [PreserveSig] int GetZoomDepth(out int pnValue);
        /// <summary>Does nothing.</summary>
        [PreserveSig] int SetBackgroundBitmap(ISGraphBitmap pBitmap, uint nFlags);
        /// <summary>Puts a text label on the graph.</summary>
        [PreserveSig] int InsertLabel([MarshalAs(UnmanagedType.BStr)] string bstrText, ref RECT pRect, out ISGraphLabel pGraphLabel);
        /// <summary>Does nothing.</summary>
        [PreserveSig] int InsertBitmap(ref RECT pRect, ISGraphBitmap pBitmapin, out ISGraphBitmap pBitmapout);
        /// <summary>Colour of the whole window.</summary>
        [PreserveSig] int SetBackColor(uint color);
        /// <summary>Does nothing. The colour behind the axes is set in the property sheet or comes from a file.</summary>
        [PreserveSig] int SetGraphColor(uint color);
        /// <summary>Colour of the plot.</summary>
        [PreserveSig] int SetInnerColor(uint color);
        /// <summary>Whether a frame is painted in memory first, without flicker.</summary>
        [PreserveSig] int SetDoubleBuffer(int bValue);
        /// <summary>Shows or hides the legend.</summary>
        [PreserveSig] int SetShowLegend(int bValue);
        /// <summary>Whether clicks select, edit and notify. Zoom, pan, cursor and measures work either way.</summary>
        [PreserveSig] int SetInteraction(int bValue);
        /// <summary>Whether the cursor snaps to curves.</summary>
        [PreserveSig] int SetSnapCursor(int bValue);
        /// <summary>The legend's side.</summary>
        [PreserveSig] int SetLegendAlignment(EAlignment align);
        /// <summary>How near the cursor must be to a curve to snap to it.</summary>
        [PreserveSig] int SetSnapRange(int nValue);
        /// <summary>A line at the top of printed pages.</summary>
        [PreserveSig] int SetPrintHeader([MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>A line at the bottom of printed pages.</summary>
        [PreserveSig] int SetPrintFooter([MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>Moves the cursor.</summary>
        [PreserveSig] int SetCursor(int x, int y);
        /// <summary>What the cursor shows.</summary>
        [PreserveSig] int SetCursorFlags(uint nFlags);
        /// <summary>Widens the ranges of two axes to hold a curve; a range never shrinks, and a zoom is gone.</summary>
        [PreserveSig] int Autoscale(int nXAxis, int nYAxis, int nCurve);
        /// <summary>Deletes all measures.</summary>
        [PreserveSig] int DeleteMeasures();
        /// <summary>Binds the cursor to one curve.</summary>
        [PreserveSig] int ForceSnap(int nCurve);
        /// <summary>Colour of the whole window.</summary>
        [PreserveSig] int GetBackColor(out uint pColor);
        /// <summary>Colour behind the axes.</summary>
        [PreserveSig] int GetGraphColor(out uint pColor);
        /// <summary>Colour of the plot.</summary>
        [PreserveSig] int GetInnerColor(out uint pColor);
        /// <summary>Whether a frame is painted in memory first.</summary>
        [PreserveSig] int GetDoubleBuffer(out int pbValue);
        /// <summary>Whether the legend is shown.</summary>
        [PreserveSig] int GetShowLegend(out int pbValue);
        /// <summary>Whether clicks select, edit and notify.</summary>
        [PreserveSig] int GetInteraction(out int pbValue);
        /// <summary>Whether the cursor snaps to curves.</summary>
        [PreserveSig] int GetSnapCursor(out int pbValue);
        /// <summary>The legend's side.</summary>
        [PreserveSig] int GetLegendAlignment(out EAlignment pAalign);
        /// <summary>How near the cursor must be to snap.</summary>
        [PreserveSig] int GetSnapRange(out int pnValue);
        /// <summary>The cursor's or the mouse's last position.</summary>
        [PreserveSig] int GetCursor(out int px, out int py);
        /// <summary>What the mouse does now.</summary>
        [PreserveSig] int GetOperation(out EOperation peop);
        /// <summary>The cursor's place in the units of a curve's axes: x at the cursor, y of the curve's point there.</summary>
        [PreserveSig] int GetCursorAbsolute(int nCurve, out TDataPoint pPoint);
        /// <summary>Puts the cursor on the curve's point at or after an x.</summary>
        [PreserveSig] int SetCursorAbsolute(int nCurve, [In] TDataPoint[] pPoint, int bForceVisible);
        /// <summary>Writes a graph file. Settings read back whole; curves, axes and objects are written for other programs, since the format counts them in eight bytes and reads four.</summary>
        [PreserveSig] int Save([MarshalAs(UnmanagedType.BStr)] string bstrFile, uint nFlags);
        /// <summary>Reads a graph file. Curves, axes and objects of before are gone unless the file can't be opened.</summary>
        [PreserveSig] int Load([MarshalAs(UnmanagedType.BStr)] string bstrFile);
        /// <summary>Makes the graph's window, visible, as a child of the host's.</summary>
        [PreserveSig] int Create([MarshalAs(UnmanagedType.BStr)] string bstrCaption, ref RECT rect, IntPtr hWnd, uint nID);
        /// <summary>Has the window painted again.</summary>
        [PreserveSig] int Invalidate(int bErase);
        /// <summary>Posts a message to the graph's window.</summary>
        [PreserveSig] int PostMessage(uint message, UIntPtr wParam, IntPtr lParam);
        /// <summary>Sends a message to the graph's window; its result is dropped.</summary>
        [PreserveSig] int SendMessage(uint message, UIntPtr wParam, IntPtr lParam);
        /// <summary>The graph's window.</summary>
        [PreserveSig] int GetHandle(out IntPtr phWnd);
        /// <summary>Does nothing; it brings XGRAPH_MSG into the type library.</summary>
        [PreserveSig] int GetXGraphMsgInfo(XGRAPH_MSG nMsg, [MarshalAs(UnmanagedType.BStr)] string bstrCaption);
        /// <summary>Does nothing; it brings XGRAPH_PERSIST into the type library.</summary>
        [PreserveSig] int GetXGraphPersistInfo(XGRAPH_PERSIST nMsg, [MarshalAs(UnmanagedType.BStr)] string bstrCaption);
        /// <summary>Does nothing; it brings XGRAPH_XGC into the type library.</summary>
        [PreserveSig] int GetXGraphXgcInfo(XGRAPH_XGC nMsg, [MarshalAs(UnmanagedType.BStr)] string bstrCaption);
    }

    /// <summary>The business chart window: bars, lines or a flat pie. Create comes first, then CreateGraph, then segments, series and values in this order; segments and series are counted from 1. A wrong index is reported to the person at the screen by a message box, and the result is S_OK all the same. Colours are COLORREF, 0x00BBGGRR. Data methods don't repaint: call Invalidate when you are done.</summary>
    [ComImport, Guid("ECE4272A-8D64-4BB9-A23E-A12A14C194D9"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IChart2d
    {
        /// <summary>Shows or hides the legend. With a solid background the old legend stays until Invalidate with erase.</summary>
        [PreserveSig] int ShowGraphLegend(int legend);
        /// <summary>Colour of the legend's text; 0 for the flat pie.</summary>
        [PreserveSig] int GetGraphLegendTextColor(out uint color);
        /// <summary>Colour of the legend's text. With a solid background it shows after Invalidate with erase.</summary>
        [PreserveSig] int SetGraphLegendTextColor(uint color);
        /// <summary>Colour of the legend's box; 0 for the flat pie.</summary>
        [PreserveSig] int GetGraphLegendBackgroundColor(out uint pColor);
        /// <summary>Colour of the legend's box. With a solid background it shows after Invalidate with erase.</summary>
        [PreserveSig] int SetGraphLegendBackgroundColor(uint color);
        /// <summary>Colour of the labels along the axes of bars and lines.</summary>
        [PreserveSig] int SetGraphLabelsColor(uint color);
        /// <summary>Colour of the labels along the axes; 0 for the flat pie.</summary>
        [PreserveSig] int GetGraphLabelsColor(out uint pColor);
        /// <summary>Colour of the subtitle.</summary>
        [PreserveSig] int GetGraphSubtitleColor(out uint pColor);
        /// <summary>Colour of the subtitle.</summary>
        [PreserveSig] int SetGraphSubtitleColor(uint color);
        /// <summary>Colour of the title.</summary>
        [PreserveSig] int GetGraphTitleColor(out uint pColor);
        /// <summary>Colour of the title.</summary>
        [PreserveSig] int SetGraphTitleColor(uint color);
        /// <summary>Whether the subtitle throws a shadow.</summary>
        [PreserveSig] int GetGraphSubtitleShadow(out int bShadow);
        /// <summary>Draws a grey shadow behind the subtitle.</summary>
        [PreserveSig] int SetGraphSubtitleShadow(int bShadow);
        /// <summary>Whether the title throws a shadow.</summary>
        [PreserveSig] int GetGraphTitleShadow(out int pbShadow);
        /// <summary>Draws a grey shadow behind the title.</summary>
        [PreserveSig] int SetGraphTitleShadow(int bShadow);
        /// <summary>Direction of the gradient, in other numbers than the setter's.</summary>
        [PreserveSig] int GetGradientFillType(out int nType);
        /// <summary>Direction of the gradient.</summary>
        [PreserveSig] int SetGradientFillType(int nType);
        /// <summary>The colours that the gradient runs between.</summary>
        [PreserveSig] int SetGraphGradientColors(uint col1, uint col2);
        /// <summary>Whether the background is solid or a gradient.</summary>
        [PreserveSig] int GetGraphFillType(out int nType);
        /// <summary>Whether the background is solid or a gradient.</summary>
        [PreserveSig] int SetGraphFillType(int nType);
        /// <summary>Deletes a line.</summary>
        [PreserveSig] int Delete2DLineGraphSeries(int index);
        /// <summary>Adds a line with the value 0 in each segment. Without segments it brings a message box.</summary>
        [PreserveSig] int Add2DLineGraphSeries([MarshalAs(UnmanagedType.BStr)] string bstrText, uint color);
        /// <summary>One value of a line.</summary>
        [PreserveSig] int Set2DLineGraphValue(int segment, int series, int value);
        /// <summary>Deletes a segment. Numbers given to the others stay, so values after it can be out of reach: rebuild the chart instead.</summary>
        [PreserveSig] int Delete2DLineGraphSegment(int index);
        /// <summary>Adds a segment, a place along the horizontal axis. Add all segments before the first series: a later one has one value for all series together.</summary>
        [PreserveSig] int Add2DLineGraphSegment([MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>Deletes a series of bars.</summary>
        [PreserveSig] int Detele2DBarGraphSeries(int index);
        /// <summary>Adds a series of bars with the value 0 in each segment. Without segments it brings a message box.</summary>
        [PreserveSig] int Add2DBarGraphSeries([MarshalAs(UnmanagedType.BStr)] string bstrText, uint color);
        /// <summary>The value of one bar.</summary>
        [PreserveSig] int Set2DBarGraphValue(int segment, int series, int value);
        /// <summary>Deletes a group of bars. Numbers given to the others stay, so values after it can be out of reach: rebuild the chart instead.</summary>
        [PreserveSig] int Delete2DBarGraphSegment(int index);
        /// <summary>Adds a segment, a group of bars. Add all segments before the first series: a later one has one value for all series together.</summary>
        [PreserveSig] int Add2DBarGraphSegment([MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>Moves the chart's window.</summary>
        [PreserveSig] int SetGraphPosition(int x, int y);
        /// <summary>Sizes the chart's window and all in it.</summary>
        [PreserveSig] int SetGraphSize(int width, int height);
        /// <summary>Changes a slice and starts a running animation again.</summary>
        [PreserveSig] int Update2DPieGraphSegment(int index, int percent, uint color, [MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>The subtitle.</summary>
        [PreserveSig] int SetGraphSubtitle([MarshalAs(UnmanagedType.BStr)] string bstrsubtitle);
        /// <summary>The title.</summary>
        [PreserveSig] int SetGraphTitle([MarshalAs(UnmanagedType.BStr)] string bstrtitle);
        /// <summary>The background colour.</summary>
        [PreserveSig] int GetGraphBackgroundColor(out uint pColor);
        /// <summary>The background colour.</summary>
        [PreserveSig] int SetGraphBackgroundColor(uint color);
        /// <summary>Whether the animation runs.</summary>
        [PreserveSig] int GetGraphAnimation(out int pbAnimation);
        /// <summary>Starts or stops the chart's animation, after its data.</summary>
        [PreserveSig] int SetGraphAnimation(int animation, int type);
        /// <summary>Deletes a slice; later ones move down by one.</summary>
        [PreserveSig] int Delete2DPieGraphSegment(int index);
        /// <summary>Adds a slice. What would bring the sum above 100 is cut; nothing is added where no room is left.</summary>
        [PreserveSig] int Add2DPieGraphSegment(double percent, uint color, [MarshalAs(UnmanagedType.BStr)] string bstrText);
        /// <summary>Deletes all slices.</summary>
        [PreserveSig] int Clear2DPieGraph();
        /// <summary>Chooses the kind of chart. Call it once, after Create; the data methods of the other kinds then do nothing.</summary>
        [PreserveSig] int CreateGraph(int type);
        /// <summary>Has the window painted again.</summary>
        [PreserveSig] int Invalidate(int bErase);
        /// <summary>The chart's window.</summary>
        [PreserveSig] int GetHandle(out IntPtr phWnd);
        /// <summary>Makes the chart's window, visible, as a child of the host's.</summary>
        [PreserveSig] int Create(ref RECT rect, IntPtr hWnd, uint nID);
    }

    /// <summary>The tilted pie window. Create comes first. An element is named by the text that InsertItem got, or by an item: an opaque pointer from GetPieChartItem or GetSelectedElement, typed VARIANT* and no VARIANT, good until the element is removed. Colours are COLORREF, 0x00BBGGRR. A refused call returns S_OK too: ask GetPieChartItem.</summary>
    [ComImport, Guid("89A56F93-B412-440B-BE54-0E9E93412BEB"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
    public interface IPieChart3d
    {
        /// <summary>Makes the pie's window, visible, as a child of the host's.</summary>
        [PreserveSig] int Create([MarshalAs(UnmanagedType.BStr)] string bstrCaption, ref RECT rect, IntPtr hWnd, uint nID);
        /// <summary>Posts a message to the pie's window.</summary>
        [PreserveSig] int PostMessage(uint message, UIntPtr wParam, IntPtr lParam);
        /// <summary>Sends a message to the pie's window; its result is dropped.</summary>
        [PreserveSig] int SendMessage(uint message, UIntPtr wParam, IntPtr lParam);
        /// <summary>Adds an element.</summary>
        [PreserveSig] int InsertItem([MarshalAs(UnmanagedType.BStr)] string bstrElement, [MarshalAs(UnmanagedType.BStr)] string bstrLabel, double dValue, uint crColor);
        /// <summary>Removes an element.</summary>
        [PreserveSig] int RemoveItem([MarshalAs(UnmanagedType.BStr)] string bstrElement);
        /// <summary>Removes the element at a place of the present order.</summary>
        [PreserveSig] int RemoveItemByIndex(int iElementID);
        /// <summary>Removes all elements. Call Invalidate: the old picture stays until then.</summary>
        [PreserveSig] int RemoveAllItem();
        /// <summary>Changes an element's text in the list.</summary>
        [PreserveSig] int UpdateItemLabel(IntPtr pItem, [MarshalAs(UnmanagedType.BStr)] string bstrLabel);
        /// <summary>Changes an element's value.</summary>
        [PreserveSig] int UpdateItemValue(IntPtr pItem, double dVal);
        /// <summary>Changes an element's colour.</summary>
        [PreserveSig] int UpdateItemColor(IntPtr pItem, uint crItem);
        /// <summary>Face and style of labels and percents; the size follows the window. Any weight but 0 is bold.</summary>
        [PreserveSig] int SetLabelFont(IntPtr lf);
        /// <summary>Face of labels and percents.</summary>
        [PreserveSig] int SetLabelFontName([MarshalAs(UnmanagedType.BStr)] string bstrName);
        /// <summary>Face and style of the title; the size follows the window. Any weight but 0 is bold, and a style once on stays on.</summary>
        [PreserveSig] int SetTitleFont(IntPtr lf);
        /// <summary>Face of the title.</summary>
        [PreserveSig] int SetTitleFontName([MarshalAs(UnmanagedType.BStr)] string bstrName);
        /// <summary>Stores the colour of the percent column's box, which this version doesn't draw.</summary>
        [PreserveSig] int SetLabelBoxColor(uint crItem);
        /// <summary>Colour of the frame; its gradient is made from it.</summary>
        [PreserveSig] int SetBackgrndColor(uint crItem);
        /// <summary>Colour of title, labels and percents.</summary>
        [PreserveSig] int SetLabelColor(uint crLbColor);
        /// <summary>Colour behind the frame's round corners.</summary>
        [PreserveSig] int SetParentWindowColor(uint crParent);
        /// <summary>How light an element's light end is.</summary>
        [PreserveSig] int SetPieElementGradientLight(IntPtr pItem, float flGradientVal);
        /// <summary>How dark an element's dark end is.</summary>
        [PreserveSig] int SetPieElementGradientDark(IntPtr pItem, float flGradientVal);
        /// <summary>How light the frame's light end is.</summary>
        [PreserveSig] int SetBackGroundGradientLight(float flGradientVal);
        /// <summary>How dark the frame's dark end is.</summary>
        [PreserveSig] int SetBackGroundGradientDark(float flGradientVal);
        /// <summary>How dark the dark end of all elements is.</summary>
        [PreserveSig] int SetPieElementGradientDarkAll(float flGradientVal);
        /// <summary>How light the light end of all elements is. GetElementGrLight goes on giving the old amount.</summary>
        [PreserveSig] int SetPieElementGradientLightAll(float flGradientVal);
        /// <summary>The title.</summary>
        [PreserveSig] int SetPieChartTitle([MarshalAs(UnmanagedType.BStr)] string bstrTittle);
        /// <summary>The pie's style.</summary>
        [PreserveSig] int SetPieChartStyle(int nChartStyle);
        /// <summary>Where the first element starts: clockwise from the right.</summary>
        [PreserveSig] int SetStartAngle(float flAngle);
        /// <summary>The tilt. 0 looks from above; useful up to 85.</summary>
        [PreserveSig] int SetInclineAngle(float flAngle);
        /// <summary>Height of the side walls. Set it after the window has its size.</summary>
        [PreserveSig] int SetDepth(float fDepth);
        /// <summary>Sorts the elements by value.</summary>
        [PreserveSig] int sortPiechartElements(int bClockWise);
        /// <summary>Puts the elements back in the order of insertion.</summary>
        [PreserveSig] int SortToOrginalOrder();
        /// <summary>The element that the last click selected.</summary>
        [PreserveSig] int GetSelectedElement(out IntPtr pItem);
        /// <summary>The item of a name.</summary>
        [PreserveSig] int GetPieChartItem([MarshalAs(UnmanagedType.BStr)] string bstrElement, out IntPtr pItem);
        /// <summary>The number of an element in the order of insertion.</summary>
        [PreserveSig] int GetElementID([MarshalAs(UnmanagedType.BStr)] string bstrElement, out int nID);
        /// <summary>How light the frame's light end is.</summary>
        [PreserveSig] int GetBackGroungGrLight(out float flGradientVal);
        /// <summary>How dark the frame's dark end is.</summary>
        [PreserveSig] int GetBackgroundGrDark(out float flGradientVal);
        /// <summary>How light an element's light end is.</summary>
        [PreserveSig] int GetElementGrLight(IntPtr pItem, out float flGrLight);
        /// <summary>How dark an element's dark end is.</summary>
        [PreserveSig] int GetElementGrDark(IntPtr pItem, out float flGrDark);
        /// <summary>The name that InsertItem got.</summary>
        [PreserveSig] int GetElementName(IntPtr pItem, [MarshalAs(UnmanagedType.BStr)] out string pbstrName);
        /// <summary>The pie's window.</summary>
        [PreserveSig] int GetHandle(out IntPtr phWnd);
        /// <summary>Has the window painted again.</summary>
        [PreserveSig] int Invalidate(int bErase);
    }

    [ComImport, Guid("13BB52F1-4CD8-439F-B89A-0D066AFF5EBF"), ClassInterface(ClassInterfaceType.None)]
    public class PieChart3d { } // implements IPieChart3d: cast to it

    [ComImport, Guid("9359379E-5EB1-4038-AEE5-BDFDC74BB95C"), ClassInterface(ClassInterfaceType.None)]
    public class Chart2d { } // implements IChart2d: cast to it

    [ComImport, Guid("15017D9D-F5E2-4C4F-8D73-5DDE3E10BFD3"), ClassInterface(ClassInterfaceType.None)]
    public class SGraphObject { } // implements ISGraphObject: cast to it

    [ComImport, Guid("46EC9278-D7AF-478E-9FE1-F397074E8C5C"), ClassInterface(ClassInterfaceType.None)]
    public class SGraphAxis { } // implements ISGraphAxis: cast to it

    [ComImport, Guid("E67EB8E1-C843-4650-81B5-BC88C4CDF9D9"), ClassInterface(ClassInterfaceType.None)]
    public class SGraphLogAxis { } // implements ISGraphLogAxis: cast to it

    [ComImport, Guid("39E00815-C3C0-4715-B9AF-05460BB375DD"), ClassInterface(ClassInterfaceType.None)]
    public class SGraphLabel { } // implements ISGraphLabel: cast to it

    [ComImport, Guid("8675FBC5-D1E5-47D5-9FEE-4B17086EB991"), ClassInterface(ClassInterfaceType.None)]
    public class SGraphDataSerie { } // implements ISGraphDataSerie: cast to it

    [ComImport, Guid("A27FB455-91D2-4CD0-823B-A5F206A1AF55"), ClassInterface(ClassInterfaceType.None)]
    public class SGraphDataNotation { } // implements ISGraphDataNotation: cast to it

    [ComImport, Guid("13470DB1-05EF-4021-AB22-197AF71B9B50"), ClassInterface(ClassInterfaceType.None)]
    public class SGraphBitmap { } // implements ISGraphBitmap: cast to it

    [ComImport, Guid("43ABC0D1-4E08-40C3-9681-E30EA84142B3"), ClassInterface(ClassInterfaceType.None)]
    public class SGraph { } // implements ISGraph: cast to it

    [ComImport, Guid("431325F1-4059-42A1-B50D-972326C1234B"), ClassInterface(ClassInterfaceType.None)]
    public class SObject { } // implements ISObject: cast to it
}
