"""A year's temperature and rain in a window of tkinter, in Python by ctypes alone: two Y axes, dates along
the X axis, a legend, a cursor whose values the title shows, a chart that follows the size of its frame.

Tried: parsed by Python 3.11; not run, for there was no Python for Windows.

The interfaces are in kit/languages/vantoplex.py, which has to lie beside or be found by PYTHONPATH. An
argument is a BMP file that the graph is written to; the program then ends.

The messages of the graph go to the frame's window, which tkinter doesn't show: the title asks for the
cursor's values ten times a second instead.
"""
import ctypes
import datetime
import sys
import tkinter
from ctypes import byref, c_void_p

from vantoplex import CLASSES, RECT, ISGraph, ISGraphAxis, ISGraphDataSerie, TDataPoint, guid
from vantoplex_constants import EAxisPlacement, VpxCommand, XGRAPH_XGC

WM_COMMAND = 0x111
TEMPERATURE = [2.8, 2.8, 5.0, 8.6, 13.6, 17.2, 18.9, 18.5, 14.7, 10.3, 6.0, 3.4]
RAIN = [67, 52, 55, 43, 57, 77, 78, 80, 68, 65, 67, 71]
RED, BLUE = 0x2030C0, 0xB05020  # blue, green, red


def day_of(month):
    """Days since 1899-12-30, as in a DATE: the middle of a month of 2023."""
    return (datetime.date(2023, month + 1, 15) - datetime.date(1899, 12, 30)).days


def make_graph():
    graph = ISGraph()
    ctypes.windll.ole32.CoInitializeEx(None, 2)
    made = ctypes.windll.ole32.CoCreateInstance(guid(CLASSES[ISGraph]), None, 1, guid(ISGraph.IID), byref(graph.pointer))
    if made < 0:
        sys.exit("Vantoplex is not registered: run regsvr32 Vantoplex.dll.")
    return graph


def plot(graph, index, values, name, unit, color):
    """A curve on the first X axis and a Y axis of its own colour."""
    points = (TDataPoint * len(values))(*[(day_of(month), value) for month, value in enumerate(values)])
    curve = ISGraphDataSerie()
    # The number of Y axes there are makes the next one. The graph copies the points.
    graph.SetData(byref(curve.pointer), points, len(points), index, 0, index, 1)
    curve.SetLabel(name)
    curve.SetColor(color)
    axis = ISGraphAxis()
    graph.GetYAxis(byref(axis.pointer), index)
    axis.SetColor(color)
    axis.SetLabel(unit)
    axis.SetPlacement(EAxisPlacement.apLeft if index == 0 else EAxisPlacement.apRight)
    axis.SetShowGrid(int(index == 0))


def show_dates(graph):
    axis = ISGraphAxis()
    graph.GetXAxis(byref(axis.pointer), 0)
    axis.SetDateTime(1)
    axis.SetDisplayFmt("%b %Y")


def cursor_values(graph):
    points = [TDataPoint(), TDataPoint()]
    for curve, point in enumerate(points):
        graph.GetCursorAbsolute(curve, byref(point))
    return f"{points[0].fYVal:.1f} degrees, {points[1].fYVal:.0f} mm"


def make_chart(frame):
    """(the graph, its window), filling a frame of tkinter."""
    graph = make_graph()
    chart = c_void_p()
    place = RECT(0, 0, frame.winfo_width(), frame.winfo_height())
    graph.Create(None, byref(place), frame.winfo_id(), 1)
    graph.GetHandle(byref(chart))
    plot(graph, 0, TEMPERATURE, "temperature", "degrees", RED)
    plot(graph, 1, RAIN, "rain", "mm a month", BLUE)
    show_dates(graph)
    graph.SetCursorFlags(XGRAPH_XGC.XGC_HORIZ | XGRAPH_XGC.XGC_VERT | XGRAPH_XGC.XGC_LEGEND)
    user = ctypes.windll.user32
    user.UpdateWindow(chart)
    user.SendMessageW(chart, WM_COMMAND, VpxCommand.VPX_COMMAND_CURSOR, 0)
    frame.bind("<Configure>", lambda event: user.MoveWindow(chart, 0, 0, event.width, event.height, True))
    return graph, chart


def save(graph, chart, file):
    """The cursor on July, as the mouse would put it there, and the picture into a file."""
    july = TDataPoint(day_of(6), 0)
    graph.SetCursorAbsolute(0, byref(july), 0)
    ctypes.windll.user32.UpdateWindow(chart)
    graph.SaveBitmap(file)


def main():
    root = tkinter.Tk()
    frame = tkinter.Frame(root, width=720, height=480)
    frame.pack(fill="both", expand=True)
    root.update()
    graph, chart = make_chart(frame)

    def follow():
        root.title(cursor_values(graph))
        root.after(100, follow)

    if len(sys.argv) > 1:
        save(graph, chart, sys.argv[1])
    else:
        follow()
        root.mainloop()


main()
