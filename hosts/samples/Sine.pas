{ A window filled by the graph of a sine, in Object Pascal (Free Pascal 3.2 or Delphi).
  Tried: built by Free Pascal 3.2.2 for Win64, run under Wine 8. Delphi was not tried.
  An argument is a BMP file that the graph is written to; the program then ends. }
program Sine;

{$ifdef FPC}{$mode delphi}{$endif}
{$apptype gui}

uses
  Windows, ActiveX;

type
  TDataPoint = record
    X, Y: Double;
  end;
  PDataPoint = ^TDataPoint;

  { The interfaces as far as they are called, each with all slots before the last one used. }
  ISGraphDataSerie = interface(IDispatch)
    ['{EFBDCB31-0A47-406E-B96F-906E78D0DB56}']
    procedure Slot7; stdcall; procedure Slot8; stdcall; procedure Slot9; stdcall; procedure Slot10; stdcall;
    procedure Slot11; stdcall; procedure Slot12; stdcall; procedure Slot13; stdcall; procedure Slot14; stdcall;
    procedure Slot15; stdcall; procedure Slot16; stdcall; procedure Slot17; stdcall; procedure Slot18; stdcall;
    procedure Slot19; stdcall; procedure Slot20; stdcall; procedure Slot21; stdcall; procedure Slot22; stdcall;
    procedure Slot23; stdcall; procedure Slot24; stdcall; procedure Slot25; stdcall; procedure Slot26; stdcall;
    procedure Slot27; stdcall; procedure Slot28; stdcall; procedure Slot29; stdcall; procedure Slot30; stdcall;
    procedure Slot31; stdcall; procedure Slot32; stdcall; procedure Slot33; stdcall; procedure Slot34; stdcall;
    procedure Slot35; stdcall;
    function SetLabel(const Text: WideString): HResult; stdcall;
  end;

  ISGraph = interface(IDispatch)
    ['{90F21AE5-DB57-409D-885A-90CB78805E86}']
    function SetData(out Curve: ISGraphDataSerie; Values: PDataPoint; Count: LongInt; Index, XAxis, YAxis: Integer; Copy: LongInt): HResult; stdcall;
    procedure Slot8; stdcall; procedure Slot9; stdcall; procedure Slot10; stdcall; procedure Slot11; stdcall;
    procedure Slot12; stdcall; procedure Slot13; stdcall; procedure Slot14; stdcall; procedure Slot15; stdcall;
    procedure Slot16; stdcall; procedure Slot17; stdcall; procedure Slot18; stdcall; procedure Slot19; stdcall;
    procedure Slot20; stdcall; procedure Slot21; stdcall; procedure Slot22; stdcall; procedure Slot23; stdcall;
    function SaveBitmap(const FileName: WideString): HResult; stdcall;
    procedure Slot25; stdcall; procedure Slot26; stdcall; procedure Slot27; stdcall; procedure Slot28; stdcall;
    procedure Slot29; stdcall; procedure Slot30; stdcall; procedure Slot31; stdcall; procedure Slot32; stdcall;
    procedure Slot33; stdcall; procedure Slot34; stdcall; procedure Slot35; stdcall; procedure Slot36; stdcall;
    procedure Slot37; stdcall; procedure Slot38; stdcall; procedure Slot39; stdcall; procedure Slot40; stdcall;
    procedure Slot41; stdcall; procedure Slot42; stdcall; procedure Slot43; stdcall; procedure Slot44; stdcall;
    procedure Slot45; stdcall; procedure Slot46; stdcall; procedure Slot47; stdcall; procedure Slot48; stdcall;
    procedure Slot49; stdcall; procedure Slot50; stdcall; procedure Slot51; stdcall; procedure Slot52; stdcall;
    procedure Slot53; stdcall; procedure Slot54; stdcall; procedure Slot55; stdcall; procedure Slot56; stdcall;
    procedure Slot57; stdcall; procedure Slot58; stdcall; procedure Slot59; stdcall; procedure Slot60; stdcall;
    procedure Slot61; stdcall; procedure Slot62; stdcall; procedure Slot63; stdcall; procedure Slot64; stdcall;
    procedure Slot65; stdcall; procedure Slot66; stdcall; procedure Slot67; stdcall;
    function Create(const Caption: WideString; const Place: TRect; Parent: HWND; Id: LongWord): HResult; stdcall;
    function Invalidate(EraseBackground: LongInt): HResult; stdcall;
    procedure Slot70; stdcall; procedure Slot71; stdcall;
    function GetHandle(out Window: HWND): HResult; stdcall;
  end;

var
  Graph: ISGraph;
  Curve: ISGraphDataSerie;
  ClassId: TGUID;
  Window, Chart: HWND;
  Place: TRect;
  Message: TMsg;
  Points: array[0..360] of TDataPoint;
  I: Integer;

begin
  CoInitialize(nil);
  if (CLSIDFromProgID('Vantoplex.SGraph', ClassId) <> S_OK)
    or (CoCreateInstance(ClassId, nil, CLSCTX_INPROC_SERVER, ISGraph, Graph) <> S_OK) then
  begin
    MessageBox(0, 'Vantoplex is not registered: run regsvr32 Vantoplex.dll.', 'Sine', MB_OK);
    Halt(1);
  end;
  Window := CreateWindowEx(0, 'STATIC', 'A sine in Object Pascal',
    WS_OVERLAPPEDWINDOW or WS_VISIBLE or WS_CLIPCHILDREN, 0, 0, 640, 480, 0, 0, HInstance, nil);
  GetClientRect(Window, Place);
  Graph.Create('', Place, Window, 1);
  for I := 0 to 360 do
  begin
    Points[I].X := I;
    Points[I].Y := Sin(I * Pi / 180);
  end;
  { Curve 0 on X axis 0 and Y axis 0; the graph copies the points. }
  Graph.SetData(Curve, @Points[0], 361, 0, 0, 0, 1);
  Curve.SetLabel('sine');
  Graph.Invalidate(1);
  if ParamCount > 0 then
  begin
    Graph.GetHandle(Chart);
    UpdateWindow(Chart);
    Graph.SaveBitmap(WideString(ParamStr(1)));
  end
  else
    while IsWindow(Window) and GetMessage(Message, 0, 0, 0) do
    begin
      TranslateMessage(Message);
      DispatchMessage(Message);
    end;
  Curve := nil;
  Graph := nil;
end.
