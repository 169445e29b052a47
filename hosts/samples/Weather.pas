{ A year's temperature and rain, in Object Pascal (Free Pascal 3.2 or Delphi): two Y axes, dates along
  the X axis, a legend, a cursor whose values the window's title shows, and a chart that follows the
  size of its window.
  Tried: built by Free Pascal 3.2.2 for Win64, run under Wine 8. Delphi was not tried.
  An argument is a BMP file that the graph is written to; the program then ends. }
program Weather;

{$ifdef FPC}{$mode delphi}{$endif}
{$apptype gui}

uses
  Windows, ActiveX, Vantoplex, VantoplexConstants;

type
  TYear = array[0..11] of Double;

const
  Temperature: TYear = (2.8, 2.8, 5.0, 8.6, 13.6, 17.2, 18.9, 18.5, 14.7, 10.3, 6.0, 3.4);
  Rain: TYear = (67, 52, 55, 43, 57, 77, 78, 80, 68, 65, 67, 71);
  Red = $2030C0; { blue, green, red }
  Blue = $B05020;

var
  Graph: ISGraph;
  Window, Chart: HWND;
  Place: TRect;
  Message: TMsg;

{ Days since 1899-12-30, as in a TDateTime: the middle of a month of 2023. }
function DayOf(Month: Integer): Double;
begin
  Result := 44941 + 30.4375 * Month;
end;

{ A curve on the first X axis and a Y axis of its own colour. }
procedure Plot(Index: Integer; const Values: TYear; const Name, Measure: WideString; Color: LongWord);
const
  Placements: array[0..1] of LongInt = (apLeft, apRight);
var
  Points: array[0..11] of TDataPoint;
  Curve: ISGraphDataSerie;
  Axis: ISGraphAxis;
  I: Integer;
begin
  for I := 0 to 11 do
  begin
    Points[I].fXVal := DayOf(I);
    Points[I].fYVal := Values[I];
  end;
  { The number of Y axes there are makes the next one. The graph copies the points. }
  Graph.SetData(Curve, @Points[0], 12, Index, 0, Index, 1);
  Curve.SetLabel(Name);
  Curve.SetColor(Color);
  Graph.GetYAxis(Axis, Index);
  Axis.SetColor(Color);
  Axis.SetLabel(Measure);
  Axis.SetPlacement(Placements[Index]);
  Axis.SetShowGrid(Ord(Index = 0));
end;

procedure ShowDates;
var
  Axis: ISGraphAxis;
begin
  Graph.GetXAxis(Axis, 0);
  Axis.SetDateTime(1);
  Axis.SetDisplayFmt('%b %Y');
end;

procedure ShowCursorValues(Window: HWND);
var
  Warm, Wet: TDataPoint;
  Degrees, Millimetres: string;
begin
  Graph.GetCursorAbsolute(0, Warm);
  Graph.GetCursorAbsolute(1, Wet);
  Str(Warm.fYVal:0:1, Degrees);
  Str(Wet.fYVal:0:0, Millimetres);
  SetWindowText(Window, PChar(Degrees + ' degrees, ' + Millimetres + ' mm'));
end;

function OnMessage(Window: HWND; Number: UINT; W: WPARAM; L: LPARAM): LRESULT; stdcall;
begin
  Result := 0;
  case Number of
    WM_SIZE: MoveWindow(Chart, 0, 0, L and $FFFF, (L shr 16) and $FFFF, True);
    XG_CURSORMOVED: ShowCursorValues(Window);
    WM_DESTROY: PostQuitMessage(0);
  else
    Result := DefWindowProc(Window, Number, W, L);
  end;
end;

function MakeWindow: HWND;
var
  Kind: TWndClass;
begin
  FillChar(Kind, SizeOf(Kind), 0);
  Kind.lpfnWndProc := @OnMessage;
  Kind.hInstance := HInstance;
  Kind.hCursor := LoadCursor(0, IDC_ARROW);
  Kind.lpszClassName := 'Weather';
  RegisterClass(Kind);
  Result := CreateWindowEx(0, 'Weather', 'Weather in Object Pascal',
    WS_OVERLAPPEDWINDOW or WS_VISIBLE or WS_CLIPCHILDREN, 0, 0, 720, 480, 0, 0, HInstance, nil);
end;

{ The cursor on July, as the mouse would put it there, and the picture into a file. }
procedure Save(const FileName: WideString);
var
  July: TDataPoint;
begin
  July.fXVal := DayOf(6);
  July.fYVal := 0;
  Graph.SetCursorAbsolute(0, @July, 0);
  UpdateWindow(Chart);
  ShowCursorValues(Window);
  Graph.SaveBitmap(FileName);
end;

begin
  CoInitialize(nil);
  if CoCreateInstance(CLASS_SGraph, nil, CLSCTX_INPROC_SERVER, ISGraph, Graph) <> S_OK then
  begin
    MessageBox(0, 'Vantoplex is not registered: run regsvr32 Vantoplex.dll.', 'Weather', MB_OK);
    Halt(1);
  end;
  Window := MakeWindow;
  GetClientRect(Window, Place);
  Graph.Create('', @Place, Window, 1);
  Graph.GetHandle(Chart);
  Plot(0, Temperature, 'temperature', 'degrees', Red);
  Plot(1, Rain, 'rain', 'mm a month', Blue);
  ShowDates;
  Graph.SetCursorFlags(XGC_HORIZ or XGC_VERT or XGC_LEGEND);
  UpdateWindow(Chart);
  SendMessage(Chart, WM_COMMAND, VPX_COMMAND_CURSOR, 0);
  if ParamCount > 0 then
  begin
    Save(WideString(ParamStr(1)));
    DestroyWindow(Window);
  end;
  while GetMessage(Message, 0, 0, 0) do
  begin
    TranslateMessage(Message);
    DispatchMessage(Message);
  end;
  Graph := nil;
end.
