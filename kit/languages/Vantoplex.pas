{ Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit.
  The interfaces, for Delphi and Free Pascal; what methods do is in docs/reference. }
unit Vantoplex;

{$ifdef FPC}{$mode delphi}{$endif}

interface

uses
  Windows, ActiveX;

type
  TDataPoint = record
    fXVal, fYVal: Double;
  end;
  PDataPoint = ^TDataPoint;

  ISObject = interface(IDispatch)
    ['{D8C5A43F-6850-44AB-9852-46A03F795FEE}']
    function SetObjectHandle(hObj: Pointer): HResult; stdcall;
    function GetObjectHandle(out hObj: Pointer): HResult; stdcall;
  end;

  ISGraphObject = interface(IDispatch)
    ['{40C4BE95-C0C1-4FD5-8F9D-E15060E25B62}']
    function SetObjectHandle(hObj: Pointer): HResult; stdcall;
    function GetObjectHandle(out hObj: Pointer): HResult; stdcall;
    function SetRect(pRect: PRect): HResult; stdcall;
    function GetRect(out pRect: TRect): HResult; stdcall;
    function SetSelected(bValue: LongInt): HResult; stdcall;
    function GetSelected(out pbValue: LongInt): HResult; stdcall;
    function SetVisible(bValue: LongInt): HResult; stdcall;
    function GetVisible(out pbValue: LongInt): HResult; stdcall;
    function SetColor(color: LongWord): HResult; stdcall;
    function GetColor(out pColor: LongWord): HResult; stdcall;
    function GetGraph(out pGraph: IDispatch): HResult; stdcall;
  end;

  ISGraphAxis = interface(IDispatch)
    ['{053D3815-35DD-4489-B913-E7A4A36E6DE4}']
    function SetObjectHandle(hObj: Pointer): HResult; stdcall;
    function GetObjectHandle(out hObj: Pointer): HResult; stdcall;
    function SetRect(pRect: PRect): HResult; stdcall;
    function GetRect(out pRect: TRect): HResult; stdcall;
    function SetSelected(bValue: LongInt): HResult; stdcall;
    function GetSelected(out pbValue: LongInt): HResult; stdcall;
    function SetVisible(bValue: LongInt): HResult; stdcall;
    function GetVisible(out pbValue: LongInt): HResult; stdcall;
    function SetColor(color: LongWord): HResult; stdcall;
    function GetColor(out pColor: LongWord): HResult; stdcall;
    function GetGraph(out pGraph: IDispatch): HResult; stdcall;
    function SetAxisType(type_: LongInt): HResult; stdcall;
    function GetAxisType(out pType: LongInt): HResult; stdcall;
    function SetShowMarker(bValue: LongInt): HResult; stdcall;
    function GetShowMarker(out pbValue: LongInt): HResult; stdcall;
    function SetDateTime(bValue: LongInt): HResult; stdcall;
    function GetDateTime(out pbValue: LongInt): HResult; stdcall;
    function SetShowGrid(bValue: LongInt): HResult; stdcall;
    function GetShowGrid(out pbValue: LongInt): HResult; stdcall;
    function SetAutoScale(bValue: LongInt): HResult; stdcall;
    function GetAutoScale(out pbValue: LongInt): HResult; stdcall;
    function SetArcSize(nValue: LongInt): HResult; stdcall;
    function GetArcSize(out pnValue: LongInt): HResult; stdcall;
    function SetMarkerSize(nValue: LongInt): HResult; stdcall;
    function GetMarkerSize(out pnValue: LongInt): HResult; stdcall;
    function SetTickSize(nValue: LongInt): HResult; stdcall;
    function GetTickSize(out pnValue: LongInt): HResult; stdcall;
    function SetGridStyle(nValue: LongWord): HResult; stdcall;
    function GetGridStyle(out pnValue: LongWord): HResult; stdcall;
    function SetLabel(const bstrValue: WideString): HResult; stdcall;
    function GetLabel(out pbstrValue: WideString): HResult; stdcall;
    function SetDisplayFmt(const bstrValue: WideString): HResult; stdcall;
    function GetDisplayFmt(out pbstrValue: WideString): HResult; stdcall;
    function SetGridColor(color: LongWord): HResult; stdcall;
    function GetGridColor(out pColor: LongWord): HResult; stdcall;
    function SetPlacement(placement: LongInt): HResult; stdcall;
    function GetPlacement(out pPlacement: LongInt): HResult; stdcall;
    function GetAxisMarkerCount(out pValue: LongInt): HResult; stdcall;
    function GetValueForPos(nPos: LongInt; out pValue: Double): HResult; stdcall;
    function SetAxisMarker(nMarker: LongInt; fValue: Double; crColor: LongWord; nStyle: LongWord): HResult; stdcall;
    function SetMaskerLabel(nPos: LongInt; const bstrValue: WideString): HResult; stdcall;
    function SetColorRange(nRange: LongInt; fMin: Double; fMax: Double; crMinColor: LongWord; crMaxColor: LongWord; const bstrLabel: WideString; nStyle: LongWord): HResult; stdcall;
    function DeleteColorRange(nRange: LongInt): HResult; stdcall;
    function DeleteAllColorRanges: HResult; stdcall;
  end;

  ISGraphLogAxis = interface(IDispatch)
    ['{8AE09D08-7719-4660-A5E3-A261EB0AA41C}']
    function SetObjectHandle(hObj: Pointer): HResult; stdcall;
    function GetObjectHandle(out hObj: Pointer): HResult; stdcall;
    function SetRect(pRect: PRect): HResult; stdcall;
    function GetRect(out pRect: TRect): HResult; stdcall;
    function SetSelected(bValue: LongInt): HResult; stdcall;
    function GetSelected(out pbValue: LongInt): HResult; stdcall;
    function SetVisible(bValue: LongInt): HResult; stdcall;
    function GetVisible(out pbValue: LongInt): HResult; stdcall;
    function SetColor(color: LongWord): HResult; stdcall;
    function GetColor(out pColor: LongWord): HResult; stdcall;
    function GetGraph(out pGraph: IDispatch): HResult; stdcall;
    function SetAxisType(type_: LongInt): HResult; stdcall;
    function GetAxisType(out pType: LongInt): HResult; stdcall;
    function SetShowMarker(bValue: LongInt): HResult; stdcall;
    function GetShowMarker(out pbValue: LongInt): HResult; stdcall;
    function SetDateTime(bValue: LongInt): HResult; stdcall;
    function GetDateTime(out pbValue: LongInt): HResult; stdcall;
    function SetShowGrid(bValue: LongInt): HResult; stdcall;
    function GetShowGrid(out pbValue: LongInt): HResult; stdcall;
    function SetAutoScale(bValue: LongInt): HResult; stdcall;
    function GetAutoScale(out pbValue: LongInt): HResult; stdcall;
    function SetArcSize(nValue: LongInt): HResult; stdcall;
    function GetArcSize(out pnValue: LongInt): HResult; stdcall;
    function SetMarkerSize(nValue: LongInt): HResult; stdcall;
    function GetMarkerSize(out pnValue: LongInt): HResult; stdcall;
    function SetTickSize(nValue: LongInt): HResult; stdcall;
    function GetTickSize(out pnValue: LongInt): HResult; stdcall;
    function SetGridStyle(nValue: LongWord): HResult; stdcall;
    function GetGridStyle(out pnValue: LongWord): HResult; stdcall;
    function SetLabel(const bstrValue: WideString): HResult; stdcall;
    function GetLabel(out pbstrValue: WideString): HResult; stdcall;
    function SetDisplayFmt(const bstrValue: WideString): HResult; stdcall;
    function GetDisplayFmt(out pbstrValue: WideString): HResult; stdcall;
    function SetGridColor(color: LongWord): HResult; stdcall;
    function GetGridColor(out pColor: LongWord): HResult; stdcall;
    function SetPlacement(placement: LongInt): HResult; stdcall;
    function GetPlacement(out pPlacement: LongInt): HResult; stdcall;
    function GetAxisMarkerCount(out pValue: LongInt): HResult; stdcall;
    function GetValueForPos(nPos: LongInt; out pValue: Double): HResult; stdcall;
    function SetAxisMarker(nMarker: LongInt; fValue: Double; crColor: LongWord; nStyle: LongWord): HResult; stdcall;
    function SetMaskerLabel(nPos: LongInt; const bstrValue: WideString): HResult; stdcall;
    function SetColorRange(nRange: LongInt; fMin: Double; fMax: Double; crMinColor: LongWord; crMaxColor: LongWord; const bstrLabel: WideString; nStyle: LongWord): HResult; stdcall;
    function DeleteColorRange(nRange: LongInt): HResult; stdcall;
    function DeleteAllColorRanges: HResult; stdcall;
    function SetRange(fMin: Double; fMax: Double): HResult; stdcall;
  end;

  ISGraphDataSerie = interface(IDispatch)
    ['{EFBDCB31-0A47-406E-B96F-906E78D0DB56}']
    function SetObjectHandle(hObj: Pointer): HResult; stdcall;
    function GetObjectHandle(out hObj: Pointer): HResult; stdcall;
    function SetRect(pRect: PRect): HResult; stdcall;
    function GetRect(out pRect: TRect): HResult; stdcall;
    function SetSelected(bValue: LongInt): HResult; stdcall;
    function GetSelected(out pbValue: LongInt): HResult; stdcall;
    function SetVisible(bValue: LongInt): HResult; stdcall;
    function GetVisible(out pbValue: LongInt): HResult; stdcall;
    function SetColor(color: LongWord): HResult; stdcall;
    function GetColor(out pColor: LongWord): HResult; stdcall;
    function GetGraph(out pRef: IDispatch): HResult; stdcall;
    function GetLinearTrend(out pRef: PDataPoint; nPoints: LongInt): HResult; stdcall;
    function GetCubicTrend(out pRef: PDataPoint; nPoints: LongInt): HResult; stdcall;
    function GetPolynomialTrend(out pRef: PDataPoint; nDegree: LongInt; nPoints: LongInt): HResult; stdcall;
    function GetSimpleMovingAverage(out pRef: PDataPoint; span: LongInt): HResult; stdcall;
    function GetExponentialMovingAverage(out pRef: PDataPoint; span: LongInt): HResult; stdcall;
    function GetLinearMovingAverage(out pRef: PDataPoint; span: LongInt): HResult; stdcall;
    function GetTriangularMovingAverage(out pRef: PDataPoint; span: LongInt): HResult; stdcall;
    function GetSineWeightedMovingAverage(out pRef: PDataPoint; span: LongInt): HResult; stdcall;
    function SetLineSize(nValue: LongInt): HResult; stdcall;
    function SetFillStyle(nValue: LongInt): HResult; stdcall;
    function SetMarkerType(nValue: LongInt): HResult; stdcall;
    function SetMarker(nValue: LongInt): HResult; stdcall;
    function SetMarkerSize(nValue: LongInt): HResult; stdcall;
    function SetShowMarker(bValue: LongInt): HResult; stdcall;
    function SetFillColor(color: LongWord): HResult; stdcall;
    function SetFillCurve(nValue: LongInt): HResult; stdcall;
    function SetFillBeneath(bValue: LongInt; nValue: LongInt): HResult; stdcall;
    function SetFillTransparent(bValue: LongInt): HResult; stdcall;
    function SetLabel(const bstrText: WideString): HResult; stdcall;
    function SetType(type_: LongInt): HResult; stdcall;
    function GetCount(out pnValue: LongInt): HResult; stdcall;
    function GetIndex(out pnValue: LongInt): HResult; stdcall;
    function GetXAxis(out pnValue: LongInt): HResult; stdcall;
    function GetYAxis(out pnValue: LongInt): HResult; stdcall;
    function GetLineSize(out pnValue: LongInt): HResult; stdcall;
    function GetFillStyle(out pnValue: LongInt): HResult; stdcall;
    function GetMarkerType(out pnValue: LongInt): HResult; stdcall;
    function GetMarker(out pnValue: LongInt): HResult; stdcall;
    function GetMarkerSize(out pnValue: LongInt): HResult; stdcall;
    function GetLineStyle(out pnValue: LongWord): HResult; stdcall;
    function GetShowMarker(out pnValue: LongInt): HResult; stdcall;
    function GetFillBeneath(out pnValue: LongInt): HResult; stdcall;
    function GetFillCurve(out pnValue: LongInt): HResult; stdcall;
    function GetFillTransparent(out pnValue: LongInt): HResult; stdcall;
    function GetLabel(out psVale: WideString): HResult; stdcall;
    function GetType(out pType: LongInt): HResult; stdcall;
    function SetLineStyle(nValue: LongWord): HResult; stdcall;
  end;

  ISGraphLabel = interface(IDispatch)
    ['{F668D721-B480-4E38-A1B3-C2781900DA27}']
    function SetObjectHandle(hObj: Pointer): HResult; stdcall;
    function GetObjectHandle(out hObj: Pointer): HResult; stdcall;
    function SetRect(pRect: PRect): HResult; stdcall;
    function GetRect(out pRect: TRect): HResult; stdcall;
    function SetSelected(bValue: LongInt): HResult; stdcall;
    function GetSelected(out pbValue: LongInt): HResult; stdcall;
    function SetVisible(bValue: LongInt): HResult; stdcall;
    function GetVisible(out pbValue: LongInt): HResult; stdcall;
    function SetColor(color: LongWord): HResult; stdcall;
    function GetColor(out pColor: LongWord): HResult; stdcall;
    function GetGraph(out pGraph: IDispatch): HResult; stdcall;
    function SetFont(pLogFontw: Pointer): HResult; stdcall;
    function SetText(const pText: WideString): HResult; stdcall;
    function GetText(out pText: WideString): HResult; stdcall;
    function SetTextColor(color: LongWord): HResult; stdcall;
    function GetTextColor(out pColor: LongWord): HResult; stdcall;
    function SetBorder(bValue: LongInt): HResult; stdcall;
    function GetBorder(out bpValue: LongInt): HResult; stdcall;
    function SetTransparent(bValue: LongInt): HResult; stdcall;
    function GetTransparent(out bpValue: LongInt): HResult; stdcall;
    function SetAlignment(value: LongWord): HResult; stdcall;
    function GetAlignment(out pValue: LongWord): HResult; stdcall;
    function SetCurve(value: LongInt): HResult; stdcall;
    function GetCurve(out pValue: LongInt): HResult; stdcall;
  end;

  ISGraphBitmap = interface(IDispatch)
    ['{D95EF098-A408-4854-9D85-ECA84CC0F840}']
    function SetObjectHandle(hObj: Pointer): HResult; stdcall;
    function GetObjectHandle(out hObj: Pointer): HResult; stdcall;
    function SetRect(pRect: PRect): HResult; stdcall;
    function GetRect(out pRect: TRect): HResult; stdcall;
    function SetSelected(bValue: LongInt): HResult; stdcall;
    function GetSelected(out pbValue: LongInt): HResult; stdcall;
    function SetVisible(bValue: LongInt): HResult; stdcall;
    function GetVisible(out pbValue: LongInt): HResult; stdcall;
    function SetColor(color: LongWord): HResult; stdcall;
    function GetColor(out pColor: LongWord): HResult; stdcall;
    function GetGraph(out pGraph: IDispatch): HResult; stdcall;
    function SetBorder(bValue: LongInt): HResult; stdcall;
    function SetBitmap(hBitmap: Pointer): HResult; stdcall;
    function GetBorder(out pbValue: LongInt): HResult; stdcall;
    function GetBitmap(out hBitmap: Pointer): HResult; stdcall;
  end;

  ISGraphDataNotation = interface(IDispatch)
    ['{E96291DD-864F-4818-B52D-548B1E57A699}']
  end;

  ISGraph = interface(IDispatch)
    ['{90F21AE5-DB57-409D-885A-90CB78805E86}']
    function SetData(out pSerie: ISGraphDataSerie; pValues: PDataPoint; nCount: LongInt; nCurve: LongInt; nXAxis: LongInt; nYAxis: LongInt; bAutoDelete: LongInt): HResult; stdcall;
    function GetXAxis(out pGraphAxis: ISGraphAxis; nAxis: LongInt): HResult; stdcall;
    function GetYAxis(out pGraphAxis: ISGraphAxis; nAxis: LongInt): HResult; stdcall;
    function GetCurve(out pGraphAxis: ISGraphDataSerie; nCurve: LongInt): HResult; stdcall;
    function DeleteXAxis(nAxis: LongInt): HResult; stdcall;
    function DeleteYAxis(nAxis: LongInt): HResult; stdcall;
    function DeleteCurve(nCurve: LongInt): HResult; stdcall;
    function InsertDataNotation(nCurve: LongInt; nIndex: LongInt): HResult; stdcall;
    function AddLinearTrend(const pSerie: ISGraphDataSerie): HResult; stdcall;
    function AddCubicTrend(const pSerie: ISGraphDataSerie): HResult; stdcall;
    function GetXAxisCount(out pnValue: LongInt): HResult; stdcall;
    function GetYAxisCount(out pnValue: LongInt): HResult; stdcall;
    function GetCurveCount(out pnValue: LongInt): HResult; stdcall;
    function SelectXAxis(nAxis: LongInt): HResult; stdcall;
    function SelectYAxis(nAxis: LongInt): HResult; stdcall;
    function SelectCurve(nCurve: LongInt): HResult; stdcall;
    function SetGraphMargins(nLeft: LongInt; nTop: LongInt; nRight: LongInt; nBottom: LongInt): HResult; stdcall;
    function SaveBitmap(const bstrText: WideString): HResult; stdcall;
    function Edit: HResult; stdcall;
    function Zoom: HResult; stdcall;
    function ResetZoom: HResult; stdcall;
    function Pan: HResult; stdcall;
    function NoOp: HResult; stdcall;
    function Cursor: HResult; stdcall;
    function Measure: HResult; stdcall;
    function ResetAll: HResult; stdcall;
    function GetZoomDepth(out pnValue: LongInt): HResult; stdcall;
    function SetBackgroundBitmap(const pBitmap: ISGraphBitmap; nFlags: LongWord): HResult; stdcall;
    function InsertLabel(const bstrText: WideString; pRect: PRect; out pGraphLabel: ISGraphLabel): HResult; stdcall;
    function InsertBitmap(pRect: PRect; const pBitmapin: ISGraphBitmap; out pBitmapout: ISGraphBitmap): HResult; stdcall;
    function SetBackColor(color: LongWord): HResult; stdcall;
    function SetGraphColor(color: LongWord): HResult; stdcall;
    function SetInnerColor(color: LongWord): HResult; stdcall;
    function SetDoubleBuffer(bValue: LongInt): HResult; stdcall;
    function SetShowLegend(bValue: LongInt): HResult; stdcall;
    function SetInteraction(bValue: LongInt): HResult; stdcall;
    function SetSnapCursor(bValue: LongInt): HResult; stdcall;
    function SetLegendAlignment(align: LongInt): HResult; stdcall;
    function SetSnapRange(nValue: LongInt): HResult; stdcall;
    function SetPrintHeader(const bstrText: WideString): HResult; stdcall;
    function SetPrintFooter(const bstrText: WideString): HResult; stdcall;
    function SetCursor(x: LongInt; y: LongInt): HResult; stdcall;
    function SetCursorFlags(nFlags: LongWord): HResult; stdcall;
    function Autoscale(nXAxis: LongInt; nYAxis: LongInt; nCurve: LongInt): HResult; stdcall;
    function DeleteMeasures: HResult; stdcall;
    function ForceSnap(nCurve: LongInt): HResult; stdcall;
    function GetBackColor(out pColor: LongWord): HResult; stdcall;
    function GetGraphColor(out pColor: LongWord): HResult; stdcall;
    function GetInnerColor(out pColor: LongWord): HResult; stdcall;
    function GetDoubleBuffer(out pbValue: LongInt): HResult; stdcall;
    function GetShowLegend(out pbValue: LongInt): HResult; stdcall;
    function GetInteraction(out pbValue: LongInt): HResult; stdcall;
    function GetSnapCursor(out pbValue: LongInt): HResult; stdcall;
    function GetLegendAlignment(out pAalign: LongInt): HResult; stdcall;
    function GetSnapRange(out pnValue: LongInt): HResult; stdcall;
    function GetCursor(out px: LongInt; out py: LongInt): HResult; stdcall;
    function GetOperation(out peop: LongInt): HResult; stdcall;
    function GetCursorAbsolute(nCurve: LongInt; out pPoint: TDataPoint): HResult; stdcall;
    function SetCursorAbsolute(nCurve: LongInt; pPoint: PDataPoint; bForceVisible: LongInt): HResult; stdcall;
    function Save(const bstrFile: WideString; nFlags: LongWord): HResult; stdcall;
    function Load(const bstrFile: WideString): HResult; stdcall;
    function Create(const bstrCaption: WideString; rect_: PRect; hWnd: HWND; nID: LongWord): HResult; stdcall;
    function Invalidate(bErase: LongInt): HResult; stdcall;
    function PostMessage(message_: LongWord; wParam: NativeUInt; lParam: NativeInt): HResult; stdcall;
    function SendMessage(message_: LongWord; wParam: NativeUInt; lParam: NativeInt): HResult; stdcall;
    function GetHandle(out phWnd: HWND): HResult; stdcall;
    function GetXGraphMsgInfo(nMsg: LongInt; const bstrCaption: WideString): HResult; stdcall;
    function GetXGraphPersistInfo(nMsg: LongInt; const bstrCaption: WideString): HResult; stdcall;
    function GetXGraphXgcInfo(nMsg: LongInt; const bstrCaption: WideString): HResult; stdcall;
  end;

  IChart2d = interface(IDispatch)
    ['{ECE4272A-8D64-4BB9-A23E-A12A14C194D9}']
    function ShowGraphLegend(legend: LongInt): HResult; stdcall;
    function GetGraphLegendTextColor(out color: LongWord): HResult; stdcall;
    function SetGraphLegendTextColor(color: LongWord): HResult; stdcall;
    function GetGraphLegendBackgroundColor(out pColor: LongWord): HResult; stdcall;
    function SetGraphLegendBackgroundColor(color: LongWord): HResult; stdcall;
    function SetGraphLabelsColor(color: LongWord): HResult; stdcall;
    function GetGraphLabelsColor(out pColor: LongWord): HResult; stdcall;
    function GetGraphSubtitleColor(out pColor: LongWord): HResult; stdcall;
    function SetGraphSubtitleColor(color: LongWord): HResult; stdcall;
    function GetGraphTitleColor(out pColor: LongWord): HResult; stdcall;
    function SetGraphTitleColor(color: LongWord): HResult; stdcall;
    function GetGraphSubtitleShadow(out bShadow: LongInt): HResult; stdcall;
    function SetGraphSubtitleShadow(bShadow: LongInt): HResult; stdcall;
    function GetGraphTitleShadow(out pbShadow: LongInt): HResult; stdcall;
    function SetGraphTitleShadow(bShadow: LongInt): HResult; stdcall;
    function GetGradientFillType(out nType: LongInt): HResult; stdcall;
    function SetGradientFillType(nType: LongInt): HResult; stdcall;
    function SetGraphGradientColors(col1: LongWord; col2: LongWord): HResult; stdcall;
    function GetGraphFillType(out nType: LongInt): HResult; stdcall;
    function SetGraphFillType(nType: LongInt): HResult; stdcall;
    function Delete2DLineGraphSeries(index_: LongInt): HResult; stdcall;
    function Add2DLineGraphSeries(const bstrText: WideString; color: LongWord): HResult; stdcall;
    function Set2DLineGraphValue(segment: LongInt; series: LongInt; value: LongInt): HResult; stdcall;
    function Delete2DLineGraphSegment(index_: LongInt): HResult; stdcall;
    function Add2DLineGraphSegment(const bstrText: WideString): HResult; stdcall;
    function Detele2DBarGraphSeries(index_: LongInt): HResult; stdcall;
    function Add2DBarGraphSeries(const bstrText: WideString; color: LongWord): HResult; stdcall;
    function Set2DBarGraphValue(segment: LongInt; series: LongInt; value: LongInt): HResult; stdcall;
    function Delete2DBarGraphSegment(index_: LongInt): HResult; stdcall;
    function Add2DBarGraphSegment(const bstrText: WideString): HResult; stdcall;
    function SetGraphPosition(x: LongInt; y: LongInt): HResult; stdcall;
    function SetGraphSize(width: LongInt; height: LongInt): HResult; stdcall;
    function Update2DPieGraphSegment(index_: LongInt; percent: LongInt; color: LongWord; const bstrText: WideString): HResult; stdcall;
    function SetGraphSubtitle(const bstrsubtitle: WideString): HResult; stdcall;
    function SetGraphTitle(const bstrtitle: WideString): HResult; stdcall;
    function GetGraphBackgroundColor(out pColor: LongWord): HResult; stdcall;
    function SetGraphBackgroundColor(color: LongWord): HResult; stdcall;
    function GetGraphAnimation(out pbAnimation: LongInt): HResult; stdcall;
    function SetGraphAnimation(animation: LongInt; type_: LongInt): HResult; stdcall;
    function Delete2DPieGraphSegment(index_: LongInt): HResult; stdcall;
    function Add2DPieGraphSegment(percent: Double; color: LongWord; const bstrText: WideString): HResult; stdcall;
    function Clear2DPieGraph: HResult; stdcall;
    function CreateGraph(type_: LongInt): HResult; stdcall;
    function Invalidate(bErase: LongInt): HResult; stdcall;
    function GetHandle(out phWnd: HWND): HResult; stdcall;
    function Create(rect_: PRect; hWnd: HWND; nID: LongWord): HResult; stdcall;
  end;

  IPieChart3d = interface(IDispatch)
    ['{89A56F93-B412-440B-BE54-0E9E93412BEB}']
    function Create(const bstrCaption: WideString; rect_: PRect; hWnd: HWND; nID: LongWord): HResult; stdcall;
    function PostMessage(message_: LongWord; wParam: NativeUInt; lParam: NativeInt): HResult; stdcall;
    function SendMessage(message_: LongWord; wParam: NativeUInt; lParam: NativeInt): HResult; stdcall;
    function InsertItem(const bstrElement: WideString; const bstrLabel: WideString; dValue: Double; crColor: LongWord): HResult; stdcall;
    function RemoveItem(const bstrElement: WideString): HResult; stdcall;
    function RemoveItemByIndex(iElementID: LongInt): HResult; stdcall;
    function RemoveAllItem: HResult; stdcall;
    function UpdateItemLabel(pItem: Pointer; const bstrLabel: WideString): HResult; stdcall;
    function UpdateItemValue(pItem: Pointer; dVal: Double): HResult; stdcall;
    function UpdateItemColor(pItem: Pointer; crItem: LongWord): HResult; stdcall;
    function SetLabelFont(lf: Pointer): HResult; stdcall;
    function SetLabelFontName(const bstrName: WideString): HResult; stdcall;
    function SetTitleFont(lf: Pointer): HResult; stdcall;
    function SetTitleFontName(const bstrName: WideString): HResult; stdcall;
    function SetLabelBoxColor(crItem: LongWord): HResult; stdcall;
    function SetBackgrndColor(crItem: LongWord): HResult; stdcall;
    function SetLabelColor(crLbColor: LongWord): HResult; stdcall;
    function SetParentWindowColor(crParent: LongWord): HResult; stdcall;
    function SetPieElementGradientLight(pItem: Pointer; flGradientVal: Single): HResult; stdcall;
    function SetPieElementGradientDark(pItem: Pointer; flGradientVal: Single): HResult; stdcall;
    function SetBackGroundGradientLight(flGradientVal: Single): HResult; stdcall;
    function SetBackGroundGradientDark(flGradientVal: Single): HResult; stdcall;
    function SetPieElementGradientDarkAll(flGradientVal: Single): HResult; stdcall;
    function SetPieElementGradientLightAll(flGradientVal: Single): HResult; stdcall;
    function SetPieChartTitle(const bstrTittle: WideString): HResult; stdcall;
    function SetPieChartStyle(nChartStyle: LongInt): HResult; stdcall;
    function SetStartAngle(flAngle: Single): HResult; stdcall;
    function SetInclineAngle(flAngle: Single): HResult; stdcall;
    function SetDepth(fDepth: Single): HResult; stdcall;
    function sortPiechartElements(bClockWise: LongInt): HResult; stdcall;
    function SortToOrginalOrder: HResult; stdcall;
    function GetSelectedElement(out pItem: Pointer): HResult; stdcall;
    function GetPieChartItem(const bstrElement: WideString; out pItem: Pointer): HResult; stdcall;
    function GetElementID(const bstrElement: WideString; out nID: LongInt): HResult; stdcall;
    function GetBackGroungGrLight(out flGradientVal: Single): HResult; stdcall;
    function GetBackgroundGrDark(out flGradientVal: Single): HResult; stdcall;
    function GetElementGrLight(pItem: Pointer; out flGrLight: Single): HResult; stdcall;
    function GetElementGrDark(pItem: Pointer; out flGrDark: Single): HResult; stdcall;
    function GetElementName(pItem: Pointer; out pbstrName: WideString): HResult; stdcall;
    function GetHandle(out phWnd: HWND): HResult; stdcall;
    function Invalidate(bErase: LongInt): HResult; stdcall;
  end;

const
  CLASS_PieChart3d: TGUID = '{13BB52F1-4CD8-439F-B89A-0D066AFF5EBF}';
  CLASS_Chart2d: TGUID = '{9359379E-5EB1-4038-AEE5-BDFDC74BB95C}';
  CLASS_SGraphObject: TGUID = '{15017D9D-F5E2-4C4F-8D73-5DDE3E10BFD3}';
  CLASS_SGraphAxis: TGUID = '{46EC9278-D7AF-478E-9FE1-F397074E8C5C}';
  CLASS_SGraphLogAxis: TGUID = '{E67EB8E1-C843-4650-81B5-BC88C4CDF9D9}';
  CLASS_SGraphLabel: TGUID = '{39E00815-C3C0-4715-B9AF-05460BB375DD}';
  CLASS_SGraphDataSerie: TGUID = '{8675FBC5-D1E5-47D5-9FEE-4B17086EB991}';
  CLASS_SGraphDataNotation: TGUID = '{A27FB455-91D2-4CD0-823B-A5F206A1AF55}';
  CLASS_SGraphBitmap: TGUID = '{13470DB1-05EF-4021-AB22-197AF71B9B50}';
  CLASS_SGraph: TGUID = '{43ABC0D1-4E08-40C3-9681-E30EA84142B3}';
  CLASS_SObject: TGUID = '{431325F1-4059-42A1-B50D-972326C1234B}';

implementation

end.
