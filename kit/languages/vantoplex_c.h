/* Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit.
 *
 * The interfaces for C, with the method tables as they are: a method that an interface
 * declares again takes its base's entry. Call through lpVtbl, with the object itself first.
 * What the methods do is in docs/reference. One source file defines
 * VANTOPLEX_DEFINE_GUIDS before it includes this header. */
#ifndef VANTOPLEX_C_H
#define VANTOPLEX_C_H

#include <windows.h>
#include <ole2.h>
#include <oleauto.h>

/* Scale of an axis. */
typedef enum EAxisType {
    atLog = 0, /* Logarithmic. */
    atLinear = 1 /* Linear. */
} EAxisType;

/* Side of a Y axis. */
typedef enum EAxisPlacement {
    apLeft = 0, /* At the left. */
    apRight = 1, /* At the right. */
    apAutomatic = 2 /* Left and right in turn; the next frame puts one of them in its place. */
} EAxisPlacement;

/* Form of a curve. */
typedef enum EGraphType {
    gtLine = 0, /* A line through the points. */
    gtScatter = 1 /* A dot on each point. */
} EGraphType;

/* Side of the legend. */
typedef enum EAlignment {
    left = 0, /* At the left. */
    right = 1, /* At the right. */
    top = 2, /* No legend is drawn. */
    bottom = 3 /* No legend is drawn. */
} EAlignment;

/* What the mouse does in a graph. */
typedef enum EOperation {
    opNone = 0, /* Clicks select, double clicks open the properties. */
    opZoom = 1, /* The left button zooms into a band. */
    opReset = 2, /* Reserved. */
    opPan = 3, /* The left button drags the picture. */
    opCursor = 4, /* A crosshair follows the mouse. */
    opMoveObject = 5, /* Reserved. */
    opEditObject = 6, /* Reserved. */
    opEditCurve = 7, /* The left button drags curve points up and down. */
    opMeasure = 8 /* The left button measures between curve points. */
} EOperation;

/* Messages that a graph posts to its parent window. "Graph" is the low half of the native object's address, by which two graphs differ; "window" the low half of the graph's handle. */
typedef enum XGRAPH_MSG {
    XG_YAXISCLICK = 1025, /* A click on a Y axis. wParam: its index from 0; lParam: graph. */
    XG_XAXISCLICK = 1026, /* A click on an X axis. wParam: its index from 0; lParam: graph. */
    XG_CURVECLICK = 1027, /* A click on a curve, and each move over one in opEditCurve. wParam: its index from 0; lParam: graph. */
    XG_YAXISDBLCLICK = 1028, /* A double click on a Y axis. wParam: its index from 0; lParam: graph. */
    XG_XAXISDBLCLICK = 1029, /* A double click on an X axis. wParam: its index from 0; lParam: graph. */
    XG_CURVEDBLCLICK = 1030, /* A double click on a curve. wParam: its index from 0; lParam: graph. */
    XG_GRAPHDBLCLICK = 1031, /* A double click on nothing else. wParam: 0; lParam: graph. */
    XG_RBUTTONUP = 1032, /* The right button's release, the moment for a popup menu. wParam: 0; lParam: window. */
    XG_CURSORMOVED = 1033, /* The cursor moved. wParam: 0; lParam: window. */
    XG_ZOOMCHANGE = 1034, /* A zoom or a step back changed the visible ranges. wParam: 0; lParam: graph. */
    XG_POINTCHANGED = 1035 /* A curve point was dragged. wParam: address of a TPointChange, read in place and at once; lParam: graph. */
} XGRAPH_MSG;

/* Sections of a graph file, to be added up. */
typedef enum XGRAPH_PERSIST {
    PERSIST_PROPERTIES = 1, /* The graph's settings. */
    PERSIST_DATA = 2, /* Curves and axes. */
    PERSIST_OBJECTS = 4 /* Measures, labels, notes and pictures. */
} XGRAPH_PERSIST;

/* What the cursor shows, to be added up. */
typedef enum XGRAPH_XGC {
    XGC_HORIZ = 1, /* The horizontal line. */
    XGC_VERT = 2, /* The vertical line. */
    XGC_LEGEND = 4, /* A box with the values. */
    XGC_ADJUSTSMOOTH = 8 /* SetCursorAbsolute keeps the point in the middle of the view. */
} XGRAPH_XGC;

/* Commands of the graph window: the low word of wParam of a WM_COMMAND that a host sends to it. */
typedef enum VpxCommand {
    VPX_COMMAND_SELECT = 40000, /* Selection, the state of a new graph: clicks select, double clicks open the properties. */
    VPX_COMMAND_INSERT_LABEL = 40001, /* Inserts an empty label of 100 by 100 pixels in the middle of the plot. */
    VPX_COMMAND_ZOOM = 40002, /* The left button draws a band, its release zooms all axes into it. */
    VPX_COMMAND_RESET_ZOOM = 40003, /* Shows the whole range of all axes. The zoom history stays. */
    VPX_COMMAND_PAN = 40004, /* The left button drags the picture. Turns off the automatic scale of all axes. */
    VPX_COMMAND_PROPERTIES = 40005, /* Opens the property sheet for what lies under the last mouse position; acts as a double click there. */
    VPX_COMMAND_PRINT = 40007, /* Asks for a printer and prints the graph on one page. */
    VPX_COMMAND_LINEAR_TREND = 40009, /* Adds the linear trend of the curve that a click selected. Ends the process if none is selected. */
    VPX_COMMAND_CUBIC_TREND = 40010, /* Adds the cubic trend of the curve that a click selected. Ends the process if none is selected. */
    VPX_COMMAND_CURSOR = 40011, /* A crosshair follows the mouse. Turns off the automatic scale of all axes. */
    VPX_COMMAND_PASS_ON = 40012, /* Comes back to the parent window as a posted message of the same number. */
    VPX_COMMAND_ZOOM_BACK = 40013, /* One step back in the zoom history of each axis. */
    VPX_COMMAND_EDIT = 40014, /* Curve points can be dragged up and down. */
    VPX_COMMAND_MEASURE = 40015 /* The left button measures between two curve points. */
} VpxCommand;

/* A message to the parent window that XGRAPH_MSG doesn't name. */
typedef enum VpxMessage {
    VPX_MESSAGE_PASSED_ON = 40012 /* VPX_COMMAND_PASS_ON as it came back: wParam 0, lParam the graph. */
} VpxMessage;

/* An index that means none. */
typedef enum VpxNone {
    VPX_NO_CURVE = -1 /* No curve: ForceSnap lets the cursor snap freely again; a label is tied to no curve. */
} VpxNone;

/* Line styles, the platform's pen styles. A style other than solid needs a line width of 1 under GDI. */
typedef enum VpxPen {
    VPX_PEN_SOLID = 0, /* An unbroken line. */
    VPX_PEN_DASH = 1, /* Dashes. */
    VPX_PEN_DOT = 2, /* Dots; the grid's style at first. */
    VPX_PEN_DASH_DOT = 3, /* A dash and a dot in turn. */
    VPX_PEN_DASH_DOT_DOT = 4, /* A dash and two dots in turn. */
    VPX_PEN_NULL = 5 /* No line. */
} VpxPen;

/* Fill styles: the platform's hatches, or solid. */
typedef enum VpxFill {
    VPX_FILL_HORIZONTAL = 0, /* Horizontal lines. */
    VPX_FILL_VERTICAL = 1, /* Vertical lines. */
    VPX_FILL_FORWARD_DIAGONAL = 2, /* Diagonal lines, falling to the right. */
    VPX_FILL_BACKWARD_DIAGONAL = 3, /* Diagonal lines, rising to the right. */
    VPX_FILL_CROSS = 4, /* A grid of horizontal and vertical lines. */
    VPX_FILL_DIAGONAL_CROSS = 5, /* A grid of diagonal lines. */
    VPX_FILL_SOLID = 6 /* Solid. */
} VpxFill;

/* What the area beneath a curve ends at, besides another curve's index. */
typedef enum VpxFillCurve {
    VPX_FILL_TO_BOTTOM = 65535 /* The bottom edge of the plot. GetFillCurve gives it back as -1. */
} VpxFillCurve;

/* What a curve's markers and its key show. */
typedef enum VpxMarkerType {
    VPX_MARKER_CURVE_NUMBER = 0, /* A square with the curve's number, counted from 1. */
    VPX_MARKER_SYMBOL = 1, /* The symbol that SetMarker names. */
    VPX_MARKER_NUMBER = 2 /* A square with the number of SetMarker plus 1. */
} VpxMarkerType;

/* Marker symbols. */
typedef enum VpxSymbol {
    VPX_SYMBOL_SQUARE = 0, /* A square. */
    VPX_SYMBOL_CIRCLE = 1, /* A circle. */
    VPX_SYMBOL_CROSS = 2, /* Two diagonals. */
    VPX_SYMBOL_DIAMOND = 3, /* A square on its corner. */
    VPX_SYMBOL_TRIANGLE_LEFT = 4, /* A triangle that points left. */
    VPX_SYMBOL_TRIANGLE_UP = 5, /* A triangle that points up. */
    VPX_SYMBOL_TRIANGLE_RIGHT = 6, /* A triangle that points right. */
    VPX_SYMBOL_TRIANGLE_DOWN = 7 /* A triangle that points down. */
} VpxSymbol;

/* Alignment of a label's text; further flags of the platform's DrawText may be added. */
typedef enum VpxAlign {
    VPX_ALIGN_LEFT = 0, /* At the left. */
    VPX_ALIGN_CENTER = 1, /* Centred. */
    VPX_ALIGN_RIGHT = 2 /* At the right. */
} VpxAlign;

/* Kinds of business chart. */
typedef enum VpxChart {
    VPX_CHART_BAR = 0, /* Groups of bars, a bar for each series. */
    VPX_CHART_PIE = 1, /* A flat pie of percents. */
    VPX_CHART_LINE = 2 /* A line for each series; needs two segments at least. */
} VpxChart;

/* Background of the business chart. */
typedef enum VpxBackground {
    VPX_BACKGROUND_SOLID = 10, /* The background colour. */
    VPX_BACKGROUND_GRADIENT = 11 /* The gradient of the two gradient colours. */
} VpxBackground;

/* Direction of the business chart's gradient, as the setter takes it. */
typedef enum VpxGradient {
    VPX_GRADIENT_HORIZONTAL = 20, /* From left to right. */
    VPX_GRADIENT_VERTICAL = 21 /* From top to bottom. */
} VpxGradient;

/* Direction of the business chart's gradient, as the getter gives it: not the setter's numbers. */
typedef enum VpxGradientMode {
    VPX_GRADIENT_MODE_HORIZONTAL = 0, /* From left to right. */
    VPX_GRADIENT_MODE_VERTICAL = 1 /* From top to bottom. */
} VpxGradientMode;

/* Whether the business chart's animation runs. */
typedef enum VpxAnimate {
    VPX_ANIMATE_OFF = 0, /* The whole chart, still. Give the animation's type all the same. */
    VPX_ANIMATE_ON = 1 /* The animation runs from its start, a step each 50 milliseconds. */
} VpxAnimate;

/* Entry animations of the business chart; each belongs to one kind of chart. */
typedef enum VpxAnimation {
    VPX_ANIMATION_PIE_SWEEP = 10, /* Flat pie: the slices sweep open one after the other. */
    VPX_ANIMATION_PIE_FADE = 11, /* Flat pie: the slices fade in one after the other. */
    VPX_ANIMATION_BARS_GROW = 20, /* Bars: all grow together. */
    VPX_ANIMATION_BAR_GROUPS_GROW = 21, /* Bars: the groups grow one after the other. */
    VPX_ANIMATION_BAR_SERIES_GROW = 22, /* Bars: the series grow one after the other. */
    VPX_ANIMATION_BAR_GROUPS_FADE = 25, /* Bars: the groups fade in one after the other. */
    VPX_ANIMATION_BAR_SERIES_FADE = 26, /* Bars: the series fade in one after the other. */
    VPX_ANIMATION_LINES_DRAW = 30, /* Lines: all are drawn together. */
    VPX_ANIMATION_LINE_SERIES_DRAW = 31 /* Lines: the series are drawn one after the other. */
} VpxAnimation;

/* Styles of the 3D pie. */
typedef enum VpxPieStyle {
    VPX_PIE_SOLID = 0, /* Tilted, with side walls; any number but 1 and 2 means this. */
    VPX_PIE_DOUGHNUT = 1, /* A ring. */
    VPX_PIE_FLAT = 2 /* A flat circle, the slices set apart by lines. */
} VpxPieStyle;

/* Order that the 3D pie's elements are sorted into, by value. */
typedef enum VpxPieOrder {
    VPX_PIE_ORDER_ASCENDING = 0, /* The smallest first. */
    VPX_PIE_ORDER_DESCENDING = 1 /* The largest first. */
} VpxPieOrder;

/* Bytes of the LOGFONTW that the font setters read. */
typedef enum VpxFont {
    VPX_FONT_RECORD_SIZE = 92 /* The size of a LOGFONTW. */
} VpxFont;

typedef struct TDataPoint {
    double fXVal;
    double fYVal;
} TDataPoint;

typedef struct TPointChange {
    int nCurve;
    int nIndex;
    double fOldY;
    double fNewY;
} TPointChange;

typedef struct ISObject ISObject;
typedef struct ISGraphObject ISGraphObject;
typedef struct ISGraphAxis ISGraphAxis;
typedef struct ISGraphLogAxis ISGraphLogAxis;
typedef struct ISGraphDataSerie ISGraphDataSerie;
typedef struct ISGraphLabel ISGraphLabel;
typedef struct ISGraphBitmap ISGraphBitmap;
typedef struct ISGraphDataNotation ISGraphDataNotation;
typedef struct ISGraph ISGraph;
typedef struct IChart2d IChart2d;
typedef struct IPieChart3d IPieChart3d;

#ifdef VANTOPLEX_DEFINE_GUIDS
const IID IID_ISObject = {0xd8c5a43f, 0x6850, 0x44ab, {0x98, 0x52, 0x46, 0xa0, 0x3f, 0x79, 0x5f, 0xee}};
const IID IID_ISGraphObject = {0x40c4be95, 0xc0c1, 0x4fd5, {0x8f, 0x9d, 0xe1, 0x50, 0x60, 0xe2, 0x5b, 0x62}};
const IID IID_ISGraphAxis = {0x053d3815, 0x35dd, 0x4489, {0xb9, 0x13, 0xe7, 0xa4, 0xa3, 0x6e, 0x6d, 0xe4}};
const IID IID_ISGraphLogAxis = {0x8ae09d08, 0x7719, 0x4660, {0xa5, 0xe3, 0xa2, 0x61, 0xeb, 0x0a, 0xa4, 0x1c}};
const IID IID_ISGraphDataSerie = {0xefbdcb31, 0x0a47, 0x406e, {0xb9, 0x6f, 0x90, 0x6e, 0x78, 0xd0, 0xdb, 0x56}};
const IID IID_ISGraphLabel = {0xf668d721, 0xb480, 0x4e38, {0xa1, 0xb3, 0xc2, 0x78, 0x19, 0x00, 0xda, 0x27}};
const IID IID_ISGraphBitmap = {0xd95ef098, 0xa408, 0x4854, {0x9d, 0x85, 0xec, 0xa8, 0x4c, 0xc0, 0xf8, 0x40}};
const IID IID_ISGraphDataNotation = {0xe96291dd, 0x864f, 0x4818, {0xb5, 0x2d, 0x54, 0x8b, 0x1e, 0x57, 0xa6, 0x99}};
const IID IID_ISGraph = {0x90f21ae5, 0xdb57, 0x409d, {0x88, 0x5a, 0x90, 0xcb, 0x78, 0x80, 0x5e, 0x86}};
const IID IID_IChart2d = {0xece4272a, 0x8d64, 0x4bb9, {0xa2, 0x3e, 0xa1, 0x2a, 0x14, 0xc1, 0x94, 0xd9}};
const IID IID_IPieChart3d = {0x89a56f93, 0xb412, 0x440b, {0xbe, 0x54, 0x0e, 0x9e, 0x93, 0x41, 0x2b, 0xeb}};
const CLSID CLSID_PieChart3d = {0x13bb52f1, 0x4cd8, 0x439f, {0xb8, 0x9a, 0x0d, 0x06, 0x6a, 0xff, 0x5e, 0xbf}};
const CLSID CLSID_Chart2d = {0x9359379e, 0x5eb1, 0x4038, {0xae, 0xe5, 0xbd, 0xfd, 0xc7, 0x4b, 0xb9, 0x5c}};
const CLSID CLSID_SGraphObject = {0x15017d9d, 0xf5e2, 0x4c4f, {0x8d, 0x73, 0x5d, 0xde, 0x3e, 0x10, 0xbf, 0xd3}};
const CLSID CLSID_SGraphAxis = {0x46ec9278, 0xd7af, 0x478e, {0x9f, 0xe1, 0xf3, 0x97, 0x07, 0x4e, 0x8c, 0x5c}};
const CLSID CLSID_SGraphLogAxis = {0xe67eb8e1, 0xc843, 0x4650, {0x81, 0xb5, 0xbc, 0x88, 0xc4, 0xcd, 0xf9, 0xd9}};
const CLSID CLSID_SGraphLabel = {0x39e00815, 0xc3c0, 0x4715, {0xb9, 0xaf, 0x05, 0x46, 0x0b, 0xb3, 0x75, 0xdd}};
const CLSID CLSID_SGraphDataSerie = {0x8675fbc5, 0xd1e5, 0x47d5, {0x9f, 0xee, 0x4b, 0x17, 0x08, 0x6e, 0xb9, 0x91}};
const CLSID CLSID_SGraphDataNotation = {0xa27fb455, 0x91d2, 0x4cd0, {0x82, 0x3b, 0xa5, 0xf2, 0x06, 0xa1, 0xaf, 0x55}};
const CLSID CLSID_SGraphBitmap = {0x13470db1, 0x05ef, 0x4021, {0xab, 0x22, 0x19, 0x7a, 0xf7, 0x1b, 0x9b, 0x50}};
const CLSID CLSID_SGraph = {0x43abc0d1, 0x4e08, 0x40c3, {0x96, 0x81, 0xe3, 0x0e, 0xa8, 0x41, 0x42, 0xb3}};
const CLSID CLSID_SObject = {0x431325f1, 0x4059, 0x42a1, {0xb5, 0x0d, 0x97, 0x23, 0x26, 0xc1, 0x23, 0x4b}};
#else
extern const IID IID_ISObject;
extern const IID IID_ISGraphObject;
extern const IID IID_ISGraphAxis;
extern const IID IID_ISGraphLogAxis;
extern const IID IID_ISGraphDataSerie;
extern const IID IID_ISGraphLabel;
extern const IID IID_ISGraphBitmap;
extern const IID IID_ISGraphDataNotation;
extern const IID IID_ISGraph;
extern const IID IID_IChart2d;
extern const IID IID_IPieChart3d;
extern const CLSID CLSID_PieChart3d;
extern const CLSID CLSID_Chart2d;
extern const CLSID CLSID_SGraphObject;
extern const CLSID CLSID_SGraphAxis;
extern const CLSID CLSID_SGraphLogAxis;
extern const CLSID CLSID_SGraphLabel;
extern const CLSID CLSID_SGraphDataSerie;
extern const CLSID CLSID_SGraphDataNotation;
extern const CLSID CLSID_SGraphBitmap;
extern const CLSID CLSID_SGraph;
extern const CLSID CLSID_SObject;
#endif

typedef struct ISObjectVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISObject *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISObject *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISObject *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISObject *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISObject *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISObject *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISObject *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetObjectHandle)(ISObject *This, unsigned int* hObj);
    HRESULT (STDMETHODCALLTYPE *GetObjectHandle)(ISObject *This, unsigned int** hObj);
} ISObjectVtbl;

struct ISObject {
    const ISObjectVtbl *lpVtbl;
};

typedef struct ISGraphObjectVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraphObject *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraphObject *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraphObject *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraphObject *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraphObject *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraphObject *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraphObject *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetObjectHandle)(ISGraphObject *This, unsigned int* hObj);
    HRESULT (STDMETHODCALLTYPE *GetObjectHandle)(ISGraphObject *This, unsigned int** hObj);
    HRESULT (STDMETHODCALLTYPE *SetRect)(ISGraphObject *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *GetRect)(ISGraphObject *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *SetSelected)(ISGraphObject *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetSelected)(ISGraphObject *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetVisible)(ISGraphObject *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetVisible)(ISGraphObject *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetColor)(ISGraphObject *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetColor)(ISGraphObject *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraph)(ISGraphObject *This, IDispatch** pGraph);
} ISGraphObjectVtbl;

struct ISGraphObject {
    const ISGraphObjectVtbl *lpVtbl;
};

typedef struct ISGraphAxisVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraphAxis *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraphAxis *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraphAxis *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraphAxis *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraphAxis *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraphAxis *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraphAxis *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetObjectHandle)(ISGraphAxis *This, unsigned int* hObj);
    HRESULT (STDMETHODCALLTYPE *GetObjectHandle)(ISGraphAxis *This, unsigned int** hObj);
    HRESULT (STDMETHODCALLTYPE *SetRect)(ISGraphAxis *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *GetRect)(ISGraphAxis *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *SetSelected)(ISGraphAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetSelected)(ISGraphAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetVisible)(ISGraphAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetVisible)(ISGraphAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetColor)(ISGraphAxis *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetColor)(ISGraphAxis *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraph)(ISGraphAxis *This, IDispatch** pGraph);
    HRESULT (STDMETHODCALLTYPE *SetAxisType)(ISGraphAxis *This, EAxisType type);
    HRESULT (STDMETHODCALLTYPE *GetAxisType)(ISGraphAxis *This, EAxisType* pType);
    HRESULT (STDMETHODCALLTYPE *SetShowMarker)(ISGraphAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetShowMarker)(ISGraphAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetDateTime)(ISGraphAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetDateTime)(ISGraphAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetShowGrid)(ISGraphAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetShowGrid)(ISGraphAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetAutoScale)(ISGraphAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetAutoScale)(ISGraphAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetArcSize)(ISGraphAxis *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *GetArcSize)(ISGraphAxis *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetMarkerSize)(ISGraphAxis *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *GetMarkerSize)(ISGraphAxis *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetTickSize)(ISGraphAxis *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *GetTickSize)(ISGraphAxis *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetGridStyle)(ISGraphAxis *This, unsigned int nValue);
    HRESULT (STDMETHODCALLTYPE *GetGridStyle)(ISGraphAxis *This, unsigned int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetLabel)(ISGraphAxis *This, BSTR bstrValue);
    HRESULT (STDMETHODCALLTYPE *GetLabel)(ISGraphAxis *This, BSTR* pbstrValue);
    HRESULT (STDMETHODCALLTYPE *SetDisplayFmt)(ISGraphAxis *This, BSTR bstrValue);
    HRESULT (STDMETHODCALLTYPE *GetDisplayFmt)(ISGraphAxis *This, BSTR* pbstrValue);
    HRESULT (STDMETHODCALLTYPE *SetGridColor)(ISGraphAxis *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetGridColor)(ISGraphAxis *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *SetPlacement)(ISGraphAxis *This, EAxisPlacement placement);
    HRESULT (STDMETHODCALLTYPE *GetPlacement)(ISGraphAxis *This, EAxisPlacement* pPlacement);
    HRESULT (STDMETHODCALLTYPE *GetAxisMarkerCount)(ISGraphAxis *This, long* pValue);
    HRESULT (STDMETHODCALLTYPE *GetValueForPos)(ISGraphAxis *This, int nPos, double* pValue);
    HRESULT (STDMETHODCALLTYPE *SetAxisMarker)(ISGraphAxis *This, int nMarker, double fValue, unsigned long crColor, unsigned int nStyle);
    HRESULT (STDMETHODCALLTYPE *SetMaskerLabel)(ISGraphAxis *This, int nPos, BSTR bstrValue);
    HRESULT (STDMETHODCALLTYPE *SetColorRange)(ISGraphAxis *This, int nRange, double fMin, double fMax, unsigned long crMinColor, unsigned long crMaxColor, BSTR bstrLabel, unsigned int nStyle);
    HRESULT (STDMETHODCALLTYPE *DeleteColorRange)(ISGraphAxis *This, int nRange);
    HRESULT (STDMETHODCALLTYPE *DeleteAllColorRanges)(ISGraphAxis *This);
} ISGraphAxisVtbl;

struct ISGraphAxis {
    const ISGraphAxisVtbl *lpVtbl;
};

typedef struct ISGraphLogAxisVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraphLogAxis *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraphLogAxis *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraphLogAxis *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraphLogAxis *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraphLogAxis *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraphLogAxis *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraphLogAxis *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetObjectHandle)(ISGraphLogAxis *This, unsigned int* hObj);
    HRESULT (STDMETHODCALLTYPE *GetObjectHandle)(ISGraphLogAxis *This, unsigned int** hObj);
    HRESULT (STDMETHODCALLTYPE *SetRect)(ISGraphLogAxis *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *GetRect)(ISGraphLogAxis *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *SetSelected)(ISGraphLogAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetSelected)(ISGraphLogAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetVisible)(ISGraphLogAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetVisible)(ISGraphLogAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetColor)(ISGraphLogAxis *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetColor)(ISGraphLogAxis *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraph)(ISGraphLogAxis *This, IDispatch** pGraph);
    HRESULT (STDMETHODCALLTYPE *SetAxisType)(ISGraphLogAxis *This, EAxisType type);
    HRESULT (STDMETHODCALLTYPE *GetAxisType)(ISGraphLogAxis *This, EAxisType* pType);
    HRESULT (STDMETHODCALLTYPE *SetShowMarker)(ISGraphLogAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetShowMarker)(ISGraphLogAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetDateTime)(ISGraphLogAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetDateTime)(ISGraphLogAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetShowGrid)(ISGraphLogAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetShowGrid)(ISGraphLogAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetAutoScale)(ISGraphLogAxis *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetAutoScale)(ISGraphLogAxis *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetArcSize)(ISGraphLogAxis *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *GetArcSize)(ISGraphLogAxis *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetMarkerSize)(ISGraphLogAxis *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *GetMarkerSize)(ISGraphLogAxis *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetTickSize)(ISGraphLogAxis *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *GetTickSize)(ISGraphLogAxis *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetGridStyle)(ISGraphLogAxis *This, unsigned int nValue);
    HRESULT (STDMETHODCALLTYPE *GetGridStyle)(ISGraphLogAxis *This, unsigned int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetLabel)(ISGraphLogAxis *This, BSTR bstrValue);
    HRESULT (STDMETHODCALLTYPE *GetLabel)(ISGraphLogAxis *This, BSTR* pbstrValue);
    HRESULT (STDMETHODCALLTYPE *SetDisplayFmt)(ISGraphLogAxis *This, BSTR bstrValue);
    HRESULT (STDMETHODCALLTYPE *GetDisplayFmt)(ISGraphLogAxis *This, BSTR* pbstrValue);
    HRESULT (STDMETHODCALLTYPE *SetGridColor)(ISGraphLogAxis *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetGridColor)(ISGraphLogAxis *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *SetPlacement)(ISGraphLogAxis *This, EAxisPlacement placement);
    HRESULT (STDMETHODCALLTYPE *GetPlacement)(ISGraphLogAxis *This, EAxisPlacement* pPlacement);
    HRESULT (STDMETHODCALLTYPE *GetAxisMarkerCount)(ISGraphLogAxis *This, long* pValue);
    HRESULT (STDMETHODCALLTYPE *GetValueForPos)(ISGraphLogAxis *This, int nPos, double* pValue);
    HRESULT (STDMETHODCALLTYPE *SetAxisMarker)(ISGraphLogAxis *This, int nMarker, double fValue, unsigned long crColor, unsigned int nStyle);
    HRESULT (STDMETHODCALLTYPE *SetMaskerLabel)(ISGraphLogAxis *This, int nPos, BSTR bstrValue);
    HRESULT (STDMETHODCALLTYPE *SetColorRange)(ISGraphLogAxis *This, int nRange, double fMin, double fMax, unsigned long crMinColor, unsigned long crMaxColor, BSTR bstrLabel, unsigned int nStyle);
    HRESULT (STDMETHODCALLTYPE *DeleteColorRange)(ISGraphLogAxis *This, int nRange);
    HRESULT (STDMETHODCALLTYPE *DeleteAllColorRanges)(ISGraphLogAxis *This);
    HRESULT (STDMETHODCALLTYPE *SetRange)(ISGraphLogAxis *This, double fMin, double fMax);
} ISGraphLogAxisVtbl;

struct ISGraphLogAxis {
    const ISGraphLogAxisVtbl *lpVtbl;
};

typedef struct ISGraphDataSerieVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraphDataSerie *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraphDataSerie *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraphDataSerie *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraphDataSerie *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraphDataSerie *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraphDataSerie *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraphDataSerie *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetObjectHandle)(ISGraphDataSerie *This, unsigned int* hObj);
    HRESULT (STDMETHODCALLTYPE *GetObjectHandle)(ISGraphDataSerie *This, unsigned int** hObj);
    HRESULT (STDMETHODCALLTYPE *SetRect)(ISGraphDataSerie *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *GetRect)(ISGraphDataSerie *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *SetSelected)(ISGraphDataSerie *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetSelected)(ISGraphDataSerie *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetVisible)(ISGraphDataSerie *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetVisible)(ISGraphDataSerie *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetColor)(ISGraphDataSerie *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetColor)(ISGraphDataSerie *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraph)(ISGraphDataSerie *This, IDispatch** pRef);
    HRESULT (STDMETHODCALLTYPE *GetLinearTrend)(ISGraphDataSerie *This, TDataPoint** pRef, long nPoints);
    HRESULT (STDMETHODCALLTYPE *GetCubicTrend)(ISGraphDataSerie *This, TDataPoint** pRef, long nPoints);
    HRESULT (STDMETHODCALLTYPE *GetPolynomialTrend)(ISGraphDataSerie *This, TDataPoint** pRef, int nDegree, int nPoints);
    HRESULT (STDMETHODCALLTYPE *GetSimpleMovingAverage)(ISGraphDataSerie *This, TDataPoint** pRef, int span);
    HRESULT (STDMETHODCALLTYPE *GetExponentialMovingAverage)(ISGraphDataSerie *This, TDataPoint** pRef, int span);
    HRESULT (STDMETHODCALLTYPE *GetLinearMovingAverage)(ISGraphDataSerie *This, TDataPoint** pRef, int span);
    HRESULT (STDMETHODCALLTYPE *GetTriangularMovingAverage)(ISGraphDataSerie *This, TDataPoint** pRef, int span);
    HRESULT (STDMETHODCALLTYPE *GetSineWeightedMovingAverage)(ISGraphDataSerie *This, TDataPoint** pRef, int span);
    HRESULT (STDMETHODCALLTYPE *SetLineSize)(ISGraphDataSerie *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetFillStyle)(ISGraphDataSerie *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetMarkerType)(ISGraphDataSerie *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetMarker)(ISGraphDataSerie *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetMarkerSize)(ISGraphDataSerie *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetShowMarker)(ISGraphDataSerie *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *SetFillColor)(ISGraphDataSerie *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *SetFillCurve)(ISGraphDataSerie *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetFillBeneath)(ISGraphDataSerie *This, long bValue, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetFillTransparent)(ISGraphDataSerie *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *SetLabel)(ISGraphDataSerie *This, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *SetType)(ISGraphDataSerie *This, EGraphType type);
    HRESULT (STDMETHODCALLTYPE *GetCount)(ISGraphDataSerie *This, long* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetIndex)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetXAxis)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetYAxis)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetLineSize)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetFillStyle)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetMarkerType)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetMarker)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetMarkerSize)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetLineStyle)(ISGraphDataSerie *This, unsigned int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetShowMarker)(ISGraphDataSerie *This, long* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetFillBeneath)(ISGraphDataSerie *This, long* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetFillCurve)(ISGraphDataSerie *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetFillTransparent)(ISGraphDataSerie *This, long* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetLabel)(ISGraphDataSerie *This, BSTR* psVale);
    HRESULT (STDMETHODCALLTYPE *GetType)(ISGraphDataSerie *This, EGraphType* pType);
    HRESULT (STDMETHODCALLTYPE *SetLineStyle)(ISGraphDataSerie *This, unsigned int nValue);
} ISGraphDataSerieVtbl;

struct ISGraphDataSerie {
    const ISGraphDataSerieVtbl *lpVtbl;
};

typedef struct ISGraphLabelVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraphLabel *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraphLabel *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraphLabel *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraphLabel *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraphLabel *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraphLabel *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraphLabel *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetObjectHandle)(ISGraphLabel *This, unsigned int* hObj);
    HRESULT (STDMETHODCALLTYPE *GetObjectHandle)(ISGraphLabel *This, unsigned int** hObj);
    HRESULT (STDMETHODCALLTYPE *SetRect)(ISGraphLabel *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *GetRect)(ISGraphLabel *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *SetSelected)(ISGraphLabel *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetSelected)(ISGraphLabel *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetVisible)(ISGraphLabel *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetVisible)(ISGraphLabel *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetColor)(ISGraphLabel *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetColor)(ISGraphLabel *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraph)(ISGraphLabel *This, IDispatch** pGraph);
    HRESULT (STDMETHODCALLTYPE *SetFont)(ISGraphLabel *This, unsigned int* pLogFontw);
    HRESULT (STDMETHODCALLTYPE *SetText)(ISGraphLabel *This, BSTR pText);
    HRESULT (STDMETHODCALLTYPE *GetText)(ISGraphLabel *This, BSTR* pText);
    HRESULT (STDMETHODCALLTYPE *SetTextColor)(ISGraphLabel *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetTextColor)(ISGraphLabel *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *SetBorder)(ISGraphLabel *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetBorder)(ISGraphLabel *This, long* bpValue);
    HRESULT (STDMETHODCALLTYPE *SetTransparent)(ISGraphLabel *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetTransparent)(ISGraphLabel *This, long* bpValue);
    HRESULT (STDMETHODCALLTYPE *SetAlignment)(ISGraphLabel *This, unsigned int value);
    HRESULT (STDMETHODCALLTYPE *GetAlignment)(ISGraphLabel *This, unsigned int* pValue);
    HRESULT (STDMETHODCALLTYPE *SetCurve)(ISGraphLabel *This, int value);
    HRESULT (STDMETHODCALLTYPE *GetCurve)(ISGraphLabel *This, int* pValue);
} ISGraphLabelVtbl;

struct ISGraphLabel {
    const ISGraphLabelVtbl *lpVtbl;
};

typedef struct ISGraphBitmapVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraphBitmap *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraphBitmap *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraphBitmap *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraphBitmap *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraphBitmap *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraphBitmap *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraphBitmap *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetObjectHandle)(ISGraphBitmap *This, unsigned int* hObj);
    HRESULT (STDMETHODCALLTYPE *GetObjectHandle)(ISGraphBitmap *This, unsigned int** hObj);
    HRESULT (STDMETHODCALLTYPE *SetRect)(ISGraphBitmap *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *GetRect)(ISGraphBitmap *This, RECT* pRect);
    HRESULT (STDMETHODCALLTYPE *SetSelected)(ISGraphBitmap *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetSelected)(ISGraphBitmap *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetVisible)(ISGraphBitmap *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *GetVisible)(ISGraphBitmap *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *SetColor)(ISGraphBitmap *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetColor)(ISGraphBitmap *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraph)(ISGraphBitmap *This, IDispatch** pGraph);
    HRESULT (STDMETHODCALLTYPE *SetBorder)(ISGraphBitmap *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *SetBitmap)(ISGraphBitmap *This, unsigned int* hBitmap);
    HRESULT (STDMETHODCALLTYPE *GetBorder)(ISGraphBitmap *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *GetBitmap)(ISGraphBitmap *This, unsigned int** hBitmap);
} ISGraphBitmapVtbl;

struct ISGraphBitmap {
    const ISGraphBitmapVtbl *lpVtbl;
};

typedef struct ISGraphDataNotationVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraphDataNotation *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraphDataNotation *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraphDataNotation *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraphDataNotation *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraphDataNotation *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraphDataNotation *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraphDataNotation *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
} ISGraphDataNotationVtbl;

struct ISGraphDataNotation {
    const ISGraphDataNotationVtbl *lpVtbl;
};

typedef struct ISGraphVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(ISGraph *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(ISGraph *This);
    ULONG (STDMETHODCALLTYPE *Release)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(ISGraph *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(ISGraph *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(ISGraph *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(ISGraph *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *SetData)(ISGraph *This, ISGraphDataSerie** pSerie, TDataPoint* pValues, long nCount, int nCurve, int nXAxis, int nYAxis, long bAutoDelete);
    HRESULT (STDMETHODCALLTYPE *GetXAxis)(ISGraph *This, ISGraphAxis** pGraphAxis, int nAxis);
    HRESULT (STDMETHODCALLTYPE *GetYAxis)(ISGraph *This, ISGraphAxis** pGraphAxis, int nAxis);
    HRESULT (STDMETHODCALLTYPE *GetCurve)(ISGraph *This, ISGraphDataSerie** pGraphAxis, int nCurve);
    HRESULT (STDMETHODCALLTYPE *DeleteXAxis)(ISGraph *This, int nAxis);
    HRESULT (STDMETHODCALLTYPE *DeleteYAxis)(ISGraph *This, int nAxis);
    HRESULT (STDMETHODCALLTYPE *DeleteCurve)(ISGraph *This, int nCurve);
    HRESULT (STDMETHODCALLTYPE *InsertDataNotation)(ISGraph *This, int nCurve, int nIndex);
    HRESULT (STDMETHODCALLTYPE *AddLinearTrend)(ISGraph *This, ISGraphDataSerie* pSerie);
    HRESULT (STDMETHODCALLTYPE *AddCubicTrend)(ISGraph *This, ISGraphDataSerie* pSerie);
    HRESULT (STDMETHODCALLTYPE *GetXAxisCount)(ISGraph *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetYAxisCount)(ISGraph *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetCurveCount)(ISGraph *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SelectXAxis)(ISGraph *This, int nAxis);
    HRESULT (STDMETHODCALLTYPE *SelectYAxis)(ISGraph *This, int nAxis);
    HRESULT (STDMETHODCALLTYPE *SelectCurve)(ISGraph *This, int nCurve);
    HRESULT (STDMETHODCALLTYPE *SetGraphMargins)(ISGraph *This, int nLeft, int nTop, int nRight, int nBottom);
    HRESULT (STDMETHODCALLTYPE *SaveBitmap)(ISGraph *This, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *Edit)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *Zoom)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *ResetZoom)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *Pan)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *NoOp)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *Cursor)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *Measure)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *ResetAll)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *GetZoomDepth)(ISGraph *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *SetBackgroundBitmap)(ISGraph *This, ISGraphBitmap* pBitmap, unsigned int nFlags);
    HRESULT (STDMETHODCALLTYPE *InsertLabel)(ISGraph *This, BSTR bstrText, RECT* pRect, ISGraphLabel** pGraphLabel);
    HRESULT (STDMETHODCALLTYPE *InsertBitmap)(ISGraph *This, RECT* pRect, ISGraphBitmap* pBitmapin, ISGraphBitmap** pBitmapout);
    HRESULT (STDMETHODCALLTYPE *SetBackColor)(ISGraph *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *SetGraphColor)(ISGraph *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *SetInnerColor)(ISGraph *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *SetDoubleBuffer)(ISGraph *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *SetShowLegend)(ISGraph *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *SetInteraction)(ISGraph *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *SetSnapCursor)(ISGraph *This, long bValue);
    HRESULT (STDMETHODCALLTYPE *SetLegendAlignment)(ISGraph *This, EAlignment align);
    HRESULT (STDMETHODCALLTYPE *SetSnapRange)(ISGraph *This, int nValue);
    HRESULT (STDMETHODCALLTYPE *SetPrintHeader)(ISGraph *This, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *SetPrintFooter)(ISGraph *This, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *SetCursor)(ISGraph *This, long x, long y);
    HRESULT (STDMETHODCALLTYPE *SetCursorFlags)(ISGraph *This, unsigned int nFlags);
    HRESULT (STDMETHODCALLTYPE *Autoscale)(ISGraph *This, int nXAxis, int nYAxis, int nCurve);
    HRESULT (STDMETHODCALLTYPE *DeleteMeasures)(ISGraph *This);
    HRESULT (STDMETHODCALLTYPE *ForceSnap)(ISGraph *This, int nCurve);
    HRESULT (STDMETHODCALLTYPE *GetBackColor)(ISGraph *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraphColor)(ISGraph *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetInnerColor)(ISGraph *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetDoubleBuffer)(ISGraph *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *GetShowLegend)(ISGraph *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *GetInteraction)(ISGraph *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *GetSnapCursor)(ISGraph *This, long* pbValue);
    HRESULT (STDMETHODCALLTYPE *GetLegendAlignment)(ISGraph *This, EAlignment* pAalign);
    HRESULT (STDMETHODCALLTYPE *GetSnapRange)(ISGraph *This, int* pnValue);
    HRESULT (STDMETHODCALLTYPE *GetCursor)(ISGraph *This, long* px, long* py);
    HRESULT (STDMETHODCALLTYPE *GetOperation)(ISGraph *This, EOperation* peop);
    HRESULT (STDMETHODCALLTYPE *GetCursorAbsolute)(ISGraph *This, int nCurve, TDataPoint* pPoint);
    HRESULT (STDMETHODCALLTYPE *SetCursorAbsolute)(ISGraph *This, int nCurve, TDataPoint* pPoint, long bForceVisible);
    HRESULT (STDMETHODCALLTYPE *Save)(ISGraph *This, BSTR bstrFile, unsigned int nFlags);
    HRESULT (STDMETHODCALLTYPE *Load)(ISGraph *This, BSTR bstrFile);
    HRESULT (STDMETHODCALLTYPE *Create)(ISGraph *This, BSTR bstrCaption, RECT* rect, HWND hWnd, unsigned int nID);
    HRESULT (STDMETHODCALLTYPE *Invalidate)(ISGraph *This, long bErase);
    HRESULT (STDMETHODCALLTYPE *PostMessage)(ISGraph *This, unsigned int message, UINT_PTR wParam, LONG_PTR lParam);
    HRESULT (STDMETHODCALLTYPE *SendMessage)(ISGraph *This, unsigned int message, UINT_PTR wParam, LONG_PTR lParam);
    HRESULT (STDMETHODCALLTYPE *GetHandle)(ISGraph *This, HWND* phWnd);
    HRESULT (STDMETHODCALLTYPE *GetXGraphMsgInfo)(ISGraph *This, XGRAPH_MSG nMsg, BSTR bstrCaption);
    HRESULT (STDMETHODCALLTYPE *GetXGraphPersistInfo)(ISGraph *This, XGRAPH_PERSIST nMsg, BSTR bstrCaption);
    HRESULT (STDMETHODCALLTYPE *GetXGraphXgcInfo)(ISGraph *This, XGRAPH_XGC nMsg, BSTR bstrCaption);
} ISGraphVtbl;

struct ISGraph {
    const ISGraphVtbl *lpVtbl;
};

typedef struct IChart2dVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(IChart2d *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(IChart2d *This);
    ULONG (STDMETHODCALLTYPE *Release)(IChart2d *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(IChart2d *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(IChart2d *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(IChart2d *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(IChart2d *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *ShowGraphLegend)(IChart2d *This, long legend);
    HRESULT (STDMETHODCALLTYPE *GetGraphLegendTextColor)(IChart2d *This, unsigned long* color);
    HRESULT (STDMETHODCALLTYPE *SetGraphLegendTextColor)(IChart2d *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetGraphLegendBackgroundColor)(IChart2d *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *SetGraphLegendBackgroundColor)(IChart2d *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *SetGraphLabelsColor)(IChart2d *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetGraphLabelsColor)(IChart2d *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *GetGraphSubtitleColor)(IChart2d *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *SetGraphSubtitleColor)(IChart2d *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetGraphTitleColor)(IChart2d *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *SetGraphTitleColor)(IChart2d *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetGraphSubtitleShadow)(IChart2d *This, long* bShadow);
    HRESULT (STDMETHODCALLTYPE *SetGraphSubtitleShadow)(IChart2d *This, long bShadow);
    HRESULT (STDMETHODCALLTYPE *GetGraphTitleShadow)(IChart2d *This, long* pbShadow);
    HRESULT (STDMETHODCALLTYPE *SetGraphTitleShadow)(IChart2d *This, long bShadow);
    HRESULT (STDMETHODCALLTYPE *GetGradientFillType)(IChart2d *This, int* nType);
    HRESULT (STDMETHODCALLTYPE *SetGradientFillType)(IChart2d *This, int nType);
    HRESULT (STDMETHODCALLTYPE *SetGraphGradientColors)(IChart2d *This, unsigned long col1, unsigned long col2);
    HRESULT (STDMETHODCALLTYPE *GetGraphFillType)(IChart2d *This, int* nType);
    HRESULT (STDMETHODCALLTYPE *SetGraphFillType)(IChart2d *This, int nType);
    HRESULT (STDMETHODCALLTYPE *Delete2DLineGraphSeries)(IChart2d *This, int index);
    HRESULT (STDMETHODCALLTYPE *Add2DLineGraphSeries)(IChart2d *This, BSTR bstrText, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *Set2DLineGraphValue)(IChart2d *This, int segment, int series, int value);
    HRESULT (STDMETHODCALLTYPE *Delete2DLineGraphSegment)(IChart2d *This, int index);
    HRESULT (STDMETHODCALLTYPE *Add2DLineGraphSegment)(IChart2d *This, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *Detele2DBarGraphSeries)(IChart2d *This, int index);
    HRESULT (STDMETHODCALLTYPE *Add2DBarGraphSeries)(IChart2d *This, BSTR bstrText, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *Set2DBarGraphValue)(IChart2d *This, int segment, int series, int value);
    HRESULT (STDMETHODCALLTYPE *Delete2DBarGraphSegment)(IChart2d *This, int index);
    HRESULT (STDMETHODCALLTYPE *Add2DBarGraphSegment)(IChart2d *This, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *SetGraphPosition)(IChart2d *This, int x, int y);
    HRESULT (STDMETHODCALLTYPE *SetGraphSize)(IChart2d *This, int width, int height);
    HRESULT (STDMETHODCALLTYPE *Update2DPieGraphSegment)(IChart2d *This, int index, int percent, unsigned long color, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *SetGraphSubtitle)(IChart2d *This, BSTR bstrsubtitle);
    HRESULT (STDMETHODCALLTYPE *SetGraphTitle)(IChart2d *This, BSTR bstrtitle);
    HRESULT (STDMETHODCALLTYPE *GetGraphBackgroundColor)(IChart2d *This, unsigned long* pColor);
    HRESULT (STDMETHODCALLTYPE *SetGraphBackgroundColor)(IChart2d *This, unsigned long color);
    HRESULT (STDMETHODCALLTYPE *GetGraphAnimation)(IChart2d *This, long* pbAnimation);
    HRESULT (STDMETHODCALLTYPE *SetGraphAnimation)(IChart2d *This, long animation, int type);
    HRESULT (STDMETHODCALLTYPE *Delete2DPieGraphSegment)(IChart2d *This, int index);
    HRESULT (STDMETHODCALLTYPE *Add2DPieGraphSegment)(IChart2d *This, double percent, unsigned long color, BSTR bstrText);
    HRESULT (STDMETHODCALLTYPE *Clear2DPieGraph)(IChart2d *This);
    HRESULT (STDMETHODCALLTYPE *CreateGraph)(IChart2d *This, int type);
    HRESULT (STDMETHODCALLTYPE *Invalidate)(IChart2d *This, long bErase);
    HRESULT (STDMETHODCALLTYPE *GetHandle)(IChart2d *This, HWND* phWnd);
    HRESULT (STDMETHODCALLTYPE *Create)(IChart2d *This, RECT* rect, HWND hWnd, unsigned int nID);
} IChart2dVtbl;

struct IChart2d {
    const IChart2dVtbl *lpVtbl;
};

typedef struct IPieChart3dVtbl {
    HRESULT (STDMETHODCALLTYPE *QueryInterface)(IPieChart3d *This, REFIID riid, void **ppvObject);
    ULONG (STDMETHODCALLTYPE *AddRef)(IPieChart3d *This);
    ULONG (STDMETHODCALLTYPE *Release)(IPieChart3d *This);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)(IPieChart3d *This, UINT *pctinfo);
    HRESULT (STDMETHODCALLTYPE *GetTypeInfo)(IPieChart3d *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);
    HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)(IPieChart3d *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames, LCID lcid, DISPID *rgDispId);
    HRESULT (STDMETHODCALLTYPE *Invoke)(IPieChart3d *This, DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);
    HRESULT (STDMETHODCALLTYPE *Create)(IPieChart3d *This, BSTR bstrCaption, RECT* rect, HWND hWnd, unsigned int nID);
    HRESULT (STDMETHODCALLTYPE *PostMessage)(IPieChart3d *This, unsigned int message, UINT_PTR wParam, LONG_PTR lParam);
    HRESULT (STDMETHODCALLTYPE *SendMessage)(IPieChart3d *This, unsigned int message, UINT_PTR wParam, LONG_PTR lParam);
    HRESULT (STDMETHODCALLTYPE *InsertItem)(IPieChart3d *This, BSTR bstrElement, BSTR bstrLabel, double dValue, unsigned long crColor);
    HRESULT (STDMETHODCALLTYPE *RemoveItem)(IPieChart3d *This, BSTR bstrElement);
    HRESULT (STDMETHODCALLTYPE *RemoveItemByIndex)(IPieChart3d *This, int iElementID);
    HRESULT (STDMETHODCALLTYPE *RemoveAllItem)(IPieChart3d *This);
    HRESULT (STDMETHODCALLTYPE *UpdateItemLabel)(IPieChart3d *This, VARIANT* pItem, BSTR bstrLabel);
    HRESULT (STDMETHODCALLTYPE *UpdateItemValue)(IPieChart3d *This, VARIANT* pItem, double dVal);
    HRESULT (STDMETHODCALLTYPE *UpdateItemColor)(IPieChart3d *This, VARIANT* pItem, unsigned long crItem);
    HRESULT (STDMETHODCALLTYPE *SetLabelFont)(IPieChart3d *This, VARIANT* lf);
    HRESULT (STDMETHODCALLTYPE *SetLabelFontName)(IPieChart3d *This, BSTR bstrName);
    HRESULT (STDMETHODCALLTYPE *SetTitleFont)(IPieChart3d *This, VARIANT* lf);
    HRESULT (STDMETHODCALLTYPE *SetTitleFontName)(IPieChart3d *This, BSTR bstrName);
    HRESULT (STDMETHODCALLTYPE *SetLabelBoxColor)(IPieChart3d *This, unsigned long crItem);
    HRESULT (STDMETHODCALLTYPE *SetBackgrndColor)(IPieChart3d *This, unsigned long crItem);
    HRESULT (STDMETHODCALLTYPE *SetLabelColor)(IPieChart3d *This, unsigned long crLbColor);
    HRESULT (STDMETHODCALLTYPE *SetParentWindowColor)(IPieChart3d *This, unsigned long crParent);
    HRESULT (STDMETHODCALLTYPE *SetPieElementGradientLight)(IPieChart3d *This, VARIANT* pItem, float flGradientVal);
    HRESULT (STDMETHODCALLTYPE *SetPieElementGradientDark)(IPieChart3d *This, VARIANT* pItem, float flGradientVal);
    HRESULT (STDMETHODCALLTYPE *SetBackGroundGradientLight)(IPieChart3d *This, float flGradientVal);
    HRESULT (STDMETHODCALLTYPE *SetBackGroundGradientDark)(IPieChart3d *This, float flGradientVal);
    HRESULT (STDMETHODCALLTYPE *SetPieElementGradientDarkAll)(IPieChart3d *This, float flGradientVal);
    HRESULT (STDMETHODCALLTYPE *SetPieElementGradientLightAll)(IPieChart3d *This, float flGradientVal);
    HRESULT (STDMETHODCALLTYPE *SetPieChartTitle)(IPieChart3d *This, BSTR bstrTittle);
    HRESULT (STDMETHODCALLTYPE *SetPieChartStyle)(IPieChart3d *This, int nChartStyle);
    HRESULT (STDMETHODCALLTYPE *SetStartAngle)(IPieChart3d *This, float flAngle);
    HRESULT (STDMETHODCALLTYPE *SetInclineAngle)(IPieChart3d *This, float flAngle);
    HRESULT (STDMETHODCALLTYPE *SetDepth)(IPieChart3d *This, float fDepth);
    HRESULT (STDMETHODCALLTYPE *sortPiechartElements)(IPieChart3d *This, long bClockWise);
    HRESULT (STDMETHODCALLTYPE *SortToOrginalOrder)(IPieChart3d *This);
    HRESULT (STDMETHODCALLTYPE *GetSelectedElement)(IPieChart3d *This, VARIANT** pItem);
    HRESULT (STDMETHODCALLTYPE *GetPieChartItem)(IPieChart3d *This, BSTR bstrElement, VARIANT** pItem);
    HRESULT (STDMETHODCALLTYPE *GetElementID)(IPieChart3d *This, BSTR bstrElement, int* nID);
    HRESULT (STDMETHODCALLTYPE *GetBackGroungGrLight)(IPieChart3d *This, float* flGradientVal);
    HRESULT (STDMETHODCALLTYPE *GetBackgroundGrDark)(IPieChart3d *This, float* flGradientVal);
    HRESULT (STDMETHODCALLTYPE *GetElementGrLight)(IPieChart3d *This, VARIANT* pItem, float* flGrLight);
    HRESULT (STDMETHODCALLTYPE *GetElementGrDark)(IPieChart3d *This, VARIANT* pItem, float* flGrDark);
    HRESULT (STDMETHODCALLTYPE *GetElementName)(IPieChart3d *This, VARIANT* pItem, BSTR* pbstrName);
    HRESULT (STDMETHODCALLTYPE *GetHandle)(IPieChart3d *This, HWND* phWnd);
    HRESULT (STDMETHODCALLTYPE *Invalidate)(IPieChart3d *This, long bErase);
} IPieChart3dVtbl;

struct IPieChart3d {
    const IPieChart3dVtbl *lpVtbl;
};

#endif
