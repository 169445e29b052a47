"""A window filled by the graph of a sine, in Python by ctypes alone.

Tried: parsed by Python 3.11; not run, for there was no Python for Windows.

Methods are called by their slots, which docs/reference/slots.md lists. An argument is a BMP file
that the graph is written to; the program then ends.
"""
import ctypes
import math
import sys
from ctypes import POINTER, Structure, byref, c_double, c_int, c_long, c_uint, c_void_p, c_wchar_p, wintypes

SLOT_RELEASE = 2
SET_DATA, SAVE_BITMAP, CREATE, INVALIDATE, GET_HANDLE = 7, 24, 68, 69, 72  # ISGraph
SET_LABEL = 36  # ISGraphDataSerie


class DataPoint(Structure):
    _fields_ = [("x", c_double), ("y", c_double)]


def guid(text):
    value = (ctypes.c_byte * 16)()
    ctypes.oledll.ole32.CLSIDFromString(c_wchar_p(text), value)
    return value


def call(pointer, slot, *arguments):
    """Calls a method of an interface; each argument is an object of ctypes."""
    table = ctypes.cast(pointer, POINTER(POINTER(c_void_p)))[0]
    kinds = [type(argument) for argument in arguments]
    kinds = [c_void_p if kind.__name__ == "CArgObject" else kind for kind in kinds]
    method = ctypes.WINFUNCTYPE(c_long, c_void_p, *kinds)(table[slot])
    return method(pointer, *arguments)


def bstr(text):
    allocate = ctypes.windll.oleaut32.SysAllocString
    allocate.restype = c_void_p
    return c_void_p(allocate(c_wchar_p(text)))


def main():
    user = ctypes.windll.user32
    user.CreateWindowExW.restype = wintypes.HWND
    ctypes.windll.ole32.CoInitializeEx(None, 2)
    graph = c_void_p()
    made = ctypes.windll.ole32.CoCreateInstance(guid("{43ABC0D1-4E08-40C3-9681-E30EA84142B3}"), None, 1,
                                                guid("{90F21AE5-DB57-409D-885A-90CB78805E86}"), byref(graph))
    if made < 0:
        sys.exit("Vantoplex is not registered: run regsvr32 Vantoplex.dll.")
    overlapped_visible_clip = 0x00CF0000 | 0x10000000 | 0x02000000
    window = wintypes.HWND(user.CreateWindowExW(0, "STATIC", "A sine in Python", overlapped_visible_clip, 0, 0, 640, 480,
                                                None, None, None, None))
    place = wintypes.RECT()
    user.GetClientRect(window, byref(place))
    call(graph, CREATE, c_void_p(), byref(place), window, c_uint(1))

    points = (DataPoint * 361)(*[(i, math.sin(math.radians(i))) for i in range(361)])
    curve = c_void_p()
    # Curve 0 on X axis 0 and Y axis 0; the graph copies the points.
    call(graph, SET_DATA, byref(curve), byref(points), c_long(361), c_int(0), c_int(0), c_int(0), c_long(1))
    call(curve, SET_LABEL, bstr("sine"))
    call(curve, SLOT_RELEASE)
    call(graph, INVALIDATE, c_long(1))

    if len(sys.argv) > 1:
        chart = wintypes.HWND()
        call(graph, GET_HANDLE, byref(chart))
        user.UpdateWindow(chart)
        call(graph, SAVE_BITMAP, bstr(sys.argv[1]))
    else:
        message = wintypes.MSG()
        while user.IsWindow(window) and user.GetMessageW(byref(message), None, 0, 0) > 0:
            user.TranslateMessage(byref(message))
            user.DispatchMessageW(byref(message))
    call(graph, SLOT_RELEASE)


main()
