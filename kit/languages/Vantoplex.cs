// Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit.

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

    /// <summary>Messages that a graph posts to its parent window. "Graph" is the low half of the native object's address, which tells two graphs apart; "window" the low half of the graph's handle.</summary>
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
}
