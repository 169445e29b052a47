{ A window filled by the graph of a sine, in Object Pascal (Free Pascal 3.2 or Delphi).
  Tried: built by Free Pascal 3.2.2 for Win64, run under Wine 8. Delphi was not tried.
  An argument is a BMP file that the graph is written to; the program then ends. }
program Sine;

{$ifdef FPC}{$mode delphi}{$endif}
{$apptype gui}

uses
  Windows, ActiveX, Vantoplex;

var
  Graph: ISGraph;
  Curve: ISGraphDataSerie;
  Window, Chart: HWND;
  Place: TRect;
  Message: TMsg;
  Points: array[0..360] of TDataPoint;
  I: Integer;

begin
  CoInitialize(nil);
  if CoCreateInstance(CLASS_SGraph, nil, CLSCTX_INPROC_SERVER, ISGraph, Graph) <> S_OK then
  begin
    MessageBox(0, 'Vantoplex is not registered: run regsvr32 Vantoplex.dll.', 'Sine', MB_OK);
    Halt(1);
  end;
  Window := CreateWindowEx(0, 'STATIC', 'A sine in Object Pascal',
    WS_OVERLAPPEDWINDOW or WS_VISIBLE or WS_CLIPCHILDREN, 0, 0, 640, 480, 0, 0, HInstance, nil);
  GetClientRect(Window, Place);
  Graph.Create('', @Place, Window, 1);
  for I := 0 to 360 do
  begin
    Points[I].fXVal := I;
    Points[I].fYVal := Sin(I * Pi / 180);
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
