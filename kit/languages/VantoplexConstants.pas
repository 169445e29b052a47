{ Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit. }
unit VantoplexConstants;

interface

const
  { EAxisType: Scale of an axis. }
  atLog = 0; { Logarithmic. }
  atLinear = 1; { Linear. }

  { EAxisPlacement: Side of a Y axis. }
  apLeft = 0; { At the left. }
  apRight = 1; { At the right. }
  apAutomatic = 2; { Left and right in turn; the next frame puts one of them in its place. }

  { EGraphType: Form of a curve. }
  gtLine = 0; { A line through the points. }
  gtScatter = 1; { A dot on each point. }

  { EAlignment: Side of the legend. }
  left = 0; { At the left. }
  right = 1; { At the right. }
  top = 2; { No legend is drawn. }
  bottom = 3; { No legend is drawn. }

  { EOperation: What the mouse does in a graph. }
  opNone = 0; { Clicks select, double clicks open the properties. }
  opZoom = 1; { The left button zooms into a band. }
  opReset = 2; { Reserved. }
  opPan = 3; { The left button drags the picture. }
  opCursor = 4; { A crosshair follows the mouse. }
  opMoveObject = 5; { Reserved. }
  opEditObject = 6; { Reserved. }
  opEditCurve = 7; { The left button drags curve points up and down. }
  opMeasure = 8; { The left button measures between curve points. }

  { XGRAPH_MSG: Messages that a graph posts to its parent window. "Graph" is the low half of the native object's address, by which two graphs differ; "window" the low half of the graph's handle. }
  XG_YAXISCLICK = 1025; { A click on a Y axis. wParam: its index from 0; lParam: graph. }
  XG_XAXISCLICK = 1026; { A click on an X axis. wParam: its index from 0; lParam: graph. }
  XG_CURVECLICK = 1027; { A click on a curve, and each move over one in opEditCurve. wParam: its index from 0; lParam: graph. }
  XG_YAXISDBLCLICK = 1028; { A double click on a Y axis. wParam: its index from 0; lParam: graph. }
  XG_XAXISDBLCLICK = 1029; { A double click on an X axis. wParam: its index from 0; lParam: graph. }
  XG_CURVEDBLCLICK = 1030; { A double click on a curve. wParam: its index from 0; lParam: graph. }
  XG_GRAPHDBLCLICK = 1031; { A double click on nothing else. wParam: 0; lParam: graph. }
  XG_RBUTTONUP = 1032; { The right button's release, the moment for a popup menu. wParam: 0; lParam: window. }
  XG_CURSORMOVED = 1033; { The cursor moved. wParam: 0; lParam: window. }
  XG_ZOOMCHANGE = 1034; { A zoom or a step back changed the visible ranges. wParam: 0; lParam: graph. }
  XG_POINTCHANGED = 1035; { A curve point was dragged. wParam: address of a TPointChange, read in place and at once; lParam: graph. }

  { XGRAPH_PERSIST: Sections of a graph file, to be added up. }
  PERSIST_PROPERTIES = 1; { The graph's settings. }
  PERSIST_DATA = 2; { Curves and axes. }
  PERSIST_OBJECTS = 4; { Measures, labels, notes and pictures. }

  { XGRAPH_XGC: What the cursor shows, to be added up. }
  XGC_HORIZ = 1; { The horizontal line. }
  XGC_VERT = 2; { The vertical line. }
  XGC_LEGEND = 4; { A box with the values. }
  XGC_ADJUSTSMOOTH = 8; { SetCursorAbsolute keeps the point in the middle of the view. }

  { VpxCommand: Commands of the graph window: the low word of wParam of a WM_COMMAND that a host sends to it. }
  VPX_COMMAND_SELECT = 40000; { Selection, the state of a new graph: clicks select, double clicks open the properties. }
  VPX_COMMAND_INSERT_LABEL = 40001; { Inserts an empty label of 100 by 100 pixels in the middle of the plot. }
  VPX_COMMAND_ZOOM = 40002; { The left button draws a band, its release zooms all axes into it. }
  VPX_COMMAND_RESET_ZOOM = 40003; { Shows the whole range of all axes. The zoom history stays. }
  VPX_COMMAND_PAN = 40004; { The left button drags the picture. Turns off the automatic scale of all axes. }
  VPX_COMMAND_PROPERTIES = 40005; { Opens the property sheet for what lies under the last mouse position; acts as a double click there. }
  VPX_COMMAND_PRINT = 40007; { Asks for a printer and prints the graph on one page. }
  VPX_COMMAND_LINEAR_TREND = 40009; { Adds the linear trend of the curve that a click selected. Ends the process if none is selected. }
  VPX_COMMAND_CUBIC_TREND = 40010; { Adds the cubic trend of the curve that a click selected. Ends the process if none is selected. }
  VPX_COMMAND_CURSOR = 40011; { A crosshair follows the mouse. Turns off the automatic scale of all axes. }
  VPX_COMMAND_PASS_ON = 40012; { Comes back to the parent window as a posted message of the same number. }
  VPX_COMMAND_ZOOM_BACK = 40013; { One step back in the zoom history of each axis. }
  VPX_COMMAND_EDIT = 40014; { Curve points can be dragged up and down. }
  VPX_COMMAND_MEASURE = 40015; { The left button measures between two curve points. }

  { VpxMessage: A message to the parent window that XGRAPH_MSG doesn't name. }
  VPX_MESSAGE_PASSED_ON = 40012; { VPX_COMMAND_PASS_ON as it came back: wParam 0, lParam the graph. }

  { VpxNone: An index that means none. }
  VPX_NO_CURVE = -1; { No curve: ForceSnap lets the cursor snap freely again; a label is tied to no curve. }

  { VpxPen: Line styles, the platform's pen styles. A style other than solid needs a line width of 1 under GDI. }
  VPX_PEN_SOLID = 0; { An unbroken line. }
  VPX_PEN_DASH = 1; { Dashes. }
  VPX_PEN_DOT = 2; { Dots; the grid's style at first. }
  VPX_PEN_DASH_DOT = 3; { A dash and a dot in turn. }
  VPX_PEN_DASH_DOT_DOT = 4; { A dash and two dots in turn. }
  VPX_PEN_NULL = 5; { No line. }

  { VpxFill: Fill styles: the platform's hatches, or solid. }
  VPX_FILL_HORIZONTAL = 0; { Horizontal lines. }
  VPX_FILL_VERTICAL = 1; { Vertical lines. }
  VPX_FILL_FORWARD_DIAGONAL = 2; { Diagonal lines, falling to the right. }
  VPX_FILL_BACKWARD_DIAGONAL = 3; { Diagonal lines, rising to the right. }
  VPX_FILL_CROSS = 4; { A grid of horizontal and vertical lines. }
  VPX_FILL_DIAGONAL_CROSS = 5; { A grid of diagonal lines. }
  VPX_FILL_SOLID = 6; { Solid. }

  { VpxFillCurve: What the area beneath a curve ends at, besides another curve's index. }
  VPX_FILL_TO_BOTTOM = 65535; { The bottom edge of the plot. GetFillCurve gives it back as -1. }

  { VpxMarkerType: What a curve's markers and its key show. }
  VPX_MARKER_CURVE_NUMBER = 0; { A square with the curve's number, counted from 1. }
  VPX_MARKER_SYMBOL = 1; { The symbol that SetMarker names. }
  VPX_MARKER_NUMBER = 2; { A square with the number of SetMarker plus 1. }

  { VpxSymbol: Marker symbols. }
  VPX_SYMBOL_SQUARE = 0; { A square. }
  VPX_SYMBOL_CIRCLE = 1; { A circle. }
  VPX_SYMBOL_CROSS = 2; { Two diagonals. }
  VPX_SYMBOL_DIAMOND = 3; { A square on its corner. }
  VPX_SYMBOL_TRIANGLE_LEFT = 4; { A triangle that points left. }
  VPX_SYMBOL_TRIANGLE_UP = 5; { A triangle that points up. }
  VPX_SYMBOL_TRIANGLE_RIGHT = 6; { A triangle that points right. }
  VPX_SYMBOL_TRIANGLE_DOWN = 7; { A triangle that points down. }

  { VpxAlign: Alignment of a label's text; further flags of the platform's DrawText may be added. }
  VPX_ALIGN_LEFT = 0; { At the left. }
  VPX_ALIGN_CENTER = 1; { Centred. }
  VPX_ALIGN_RIGHT = 2; { At the right. }

  { VpxChart: Kinds of business chart. }
  VPX_CHART_BAR = 0; { Groups of bars, a bar for each series. }
  VPX_CHART_PIE = 1; { A flat pie of percents. }
  VPX_CHART_LINE = 2; { A line for each series; needs two segments at least. }

  { VpxBackground: Background of the business chart. }
  VPX_BACKGROUND_SOLID = 10; { The background colour. }
  VPX_BACKGROUND_GRADIENT = 11; { The gradient of the two gradient colours. }

  { VpxGradient: Direction of the business chart's gradient, as the setter takes it. }
  VPX_GRADIENT_HORIZONTAL = 20; { From left to right. }
  VPX_GRADIENT_VERTICAL = 21; { From top to bottom. }

  { VpxGradientMode: Direction of the business chart's gradient, as the getter gives it: not the setter's numbers. }
  VPX_GRADIENT_MODE_HORIZONTAL = 0; { From left to right. }
  VPX_GRADIENT_MODE_VERTICAL = 1; { From top to bottom. }

  { VpxAnimate: Whether the business chart's animation runs. }
  VPX_ANIMATE_OFF = 0; { The whole chart, still. Give the animation's type all the same. }
  VPX_ANIMATE_ON = 1; { The animation runs from its start, a step each 50 milliseconds. }

  { VpxAnimation: Entry animations of the business chart; each belongs to one kind of chart. }
  VPX_ANIMATION_PIE_SWEEP = 10; { Flat pie: the slices sweep open one after the other. }
  VPX_ANIMATION_PIE_FADE = 11; { Flat pie: the slices fade in one after the other. }
  VPX_ANIMATION_BARS_GROW = 20; { Bars: all grow together. }
  VPX_ANIMATION_BAR_GROUPS_GROW = 21; { Bars: the groups grow one after the other. }
  VPX_ANIMATION_BAR_SERIES_GROW = 22; { Bars: the series grow one after the other. }
  VPX_ANIMATION_BAR_GROUPS_FADE = 25; { Bars: the groups fade in one after the other. }
  VPX_ANIMATION_BAR_SERIES_FADE = 26; { Bars: the series fade in one after the other. }
  VPX_ANIMATION_LINES_DRAW = 30; { Lines: all are drawn together. }
  VPX_ANIMATION_LINE_SERIES_DRAW = 31; { Lines: the series are drawn one after the other. }

  { VpxPieStyle: Styles of the 3D pie. }
  VPX_PIE_SOLID = 0; { Tilted, with side walls; any number but 1 and 2 means this. }
  VPX_PIE_DOUGHNUT = 1; { A ring. }
  VPX_PIE_FLAT = 2; { A flat circle, the slices set apart by lines. }

  { VpxPieOrder: Order that the 3D pie's elements are sorted into, by value. }
  VPX_PIE_ORDER_ASCENDING = 0; { The smallest first. }
  VPX_PIE_ORDER_DESCENDING = 1; { The largest first. }

  { VpxFont: Bytes of the LOGFONTW that the font setters read. }
  VPX_FONT_RECORD_SIZE = 92; { The size of a LOGFONTW. }

implementation

end.
