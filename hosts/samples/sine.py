"""A window filled by the graph of a sine, in Python by ctypes alone.

Tried: parsed by Python 3.11; not run, for there was no Python for Windows.

The interfaces are in kit/languages/vantoplex.py, which has to lie beside or be found by PYTHONPATH. An
argument is a BMP file that the graph is written to; the program then ends.
"""
import ctypes
import math
import sys
from ctypes import byref, wintypes

from vantoplex import CLASSES, RECT, ISGraph, ISGraphDataSerie, TDataPoint, guid


def make_graph():
    graph = ISGraph()
    ctypes.windll.ole32.CoInitializeEx(None, 2)
    made = ctypes.windll.ole32.CoCreateInstance(guid(CLASSES[ISGraph]), None, 1, guid(ISGraph.IID), byref(graph.pointer))
    if made < 0:
        sys.exit("Vantoplex is not registered: run regsvr32 Vantoplex.dll.")
    return graph


def main():
    user = ctypes.windll.user32
    user.CreateWindowExW.restype = wintypes.HWND
    graph = make_graph()
    overlapped_visible_clip = 0x00CF0000 | 0x10000000 | 0x02000000
    window = wintypes.HWND(user.CreateWindowExW(0, "STATIC", "A sine in Python", overlapped_visible_clip, 0, 0, 640, 480,
                                                None, None, None, None))
    place = RECT()
    user.GetClientRect(window, byref(place))
    graph.Create(None, byref(place), window, 1)

    points = (TDataPoint * 361)(*[(i, math.sin(math.radians(i))) for i in range(361)])
    curve = ISGraphDataSerie()
    # Curve 0 on X axis 0 and Y axis 0; the graph copies the points.
    graph.SetData(byref(curve.pointer), points, len(points), 0, 0, 0, 1)
    curve.SetLabel("sine")
    graph.Invalidate(1)

    if len(sys.argv) > 1:
        chart = wintypes.HWND()
        graph.GetHandle(byref(chart))
        user.UpdateWindow(chart)
        graph.SaveBitmap(sys.argv[1])
    else:
        message = wintypes.MSG()
        while user.IsWindow(window) and user.GetMessageW(byref(message), None, 0, 0) > 0:
            user.TranslateMessage(byref(message))
            user.DispatchMessageW(byref(message))


main()
