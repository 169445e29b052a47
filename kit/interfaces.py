"""The interfaces in other languages, each with the whole of its real method table."""

RECORDS = ("TDataPoint", "RECT")


def is_enumeration(library, type_name):
    return any(e.name == type_name for e in library.enumerations)


def split(parameter):
    """(the type without its stars, how many there are)."""
    stars = parameter.type.count("*")
    return parameter.type.rstrip("* "), stars


CSHARP = {"BSTR": "[MarshalAs(UnmanagedType.BStr)] string", "LONG_PTR": "IntPtr", "UINT_PTR": "UIntPtr", "double": "double",
          "float": "float", "int": "int", "long": "int", "unsigned int": "uint", "unsigned long": "uint",
          "wireHWND": "IntPtr", "RECT": "RECT", "TDataPoint": "TDataPoint"}


def csharp_parameter(library, parameter):
    kind, stars = split(parameter)
    name = parameter.name
    if kind in library.interfaces:
        return f"{'out ' if stars == 2 else ''}{kind} {name}"
    if kind == "IDispatch":
        return f"[MarshalAs(UnmanagedType.IDispatch)] out object {name}"
    plain = kind if is_enumeration(library, kind) else CSHARP.get(kind, "IntPtr")
    if parameter.direction == "in":
        if kind == "RECT":
            return f"ref RECT {name}"
        if kind == "TDataPoint":
            return f"[In] TDataPoint[] {name}"
        return f"IntPtr {name}" if stars else f"{plain} {name}"
    if stars == 2:
        return f"out IntPtr {name}"
    marshal, _, plain = plain.rpartition("] ")
    return f"{marshal + '] ' if marshal else ''}out {plain} {name}"


def csharp(library):
    out = ["    [StructLayout(LayoutKind.Sequential)]", "    public struct TDataPoint", "    {",
           "        public double fXVal, fYVal;", "    }", "",
           "    [StructLayout(LayoutKind.Sequential)]", "    public struct RECT", "    {",
           "        public int left, top, right, bottom;", "    }", ""]
    for interface in library.interfaces.values():
        out += [f"    /// <summary>{interface.comment.text}</summary>",
                f'    [ComImport, Guid("{interface.iid}"), InterfaceType(ComInterfaceType.InterfaceIsDual)]',
                f"    public interface {interface.name}", "    {"]
        for _, _, method in library.slots(interface.name):
            parameters = ", ".join(csharp_parameter(library, p) for p in method.params)
            out += [f"        /// <summary>{method.comment.text}</summary>",
                    f"        [PreserveSig] int {method.name}({parameters});"]
        out += ["    }", ""]
    for name, clsid, interface in library.classes:
        out += [f'    [ComImport, Guid("{clsid}"), ClassInterface(ClassInterfaceType.None)]',
                f"    public class {name} {{ }} // implements {interface}: cast to it", ""]
    return out


PASCAL = {"BSTR": "WideString", "LONG_PTR": "NativeInt", "UINT_PTR": "NativeUInt", "double": "Double", "float": "Single",
          "int": "LongInt", "long": "LongInt", "unsigned int": "LongWord", "unsigned long": "LongWord", "wireHWND": "HWND",
          "RECT": "TRect", "TDataPoint": "TDataPoint"}
PASCAL_WORDS = ("type", "string", "label", "unit", "file", "end", "to", "index", "name", "message", "rect", "text")


def pascal_parameter(library, parameter):
    kind, stars = split(parameter)
    name = f"{parameter.name}_" if parameter.name.lower() in PASCAL_WORDS else parameter.name
    if kind in library.interfaces or kind == "IDispatch":
        return f"{'out' if stars == 2 else 'const'} {name}: {kind}"
    plain = "LongInt" if is_enumeration(library, kind) else PASCAL.get(kind, "Pointer")
    if parameter.direction == "in":
        if kind in RECORDS:
            return f"{name}: {'PRect' if kind == 'RECT' else 'PDataPoint'}"
        if kind == "BSTR":
            return f"const {name}: WideString"
        return f"{name}: {'Pointer' if stars else plain}"
    if stars == 2:
        return f"out {name}: {'PDataPoint' if kind == 'TDataPoint' else 'Pointer'}"
    return f"out {name}: {plain}"


def pascal(library, note):
    out = [f"{{ {note}", "  The interfaces, for Delphi and Free Pascal; what methods do is in docs/reference. }",
           "unit Vantoplex;", "", "{$ifdef FPC}{$mode delphi}{$endif}", "", "interface", "", "uses", "  Windows, ActiveX;",
           "", "type", "  TDataPoint = record", "    fXVal, fYVal: Double;", "  end;", "  PDataPoint = ^TDataPoint;", ""]
    for interface in library.interfaces.values():
        out += [f"  {interface.name} = interface(IDispatch)", f"    ['{{{interface.iid}}}']"]
        for _, _, method in library.slots(interface.name):
            parameters = "; ".join(pascal_parameter(library, p) for p in method.params)
            out += [f"    function {method.name}{f'({parameters})' if parameters else ''}: HResult; stdcall;"]
        out += ["  end;", ""]
    out += ["const"] + [f"  CLASS_{name}: TGUID = '{{{clsid}}}';" for name, clsid, _ in library.classes]
    return "\n".join(out + ["", "implementation", "", "end.", ""])


RUST = {"BSTR": "*mut u16", "LONG_PTR": "isize", "UINT_PTR": "usize", "double": "f64", "float": "f32", "int": "i32",
        "long": "i32", "unsigned int": "u32", "unsigned long": "u32", "wireHWND": "*mut c_void", "RECT": "RECT",
        "TDataPoint": "TDataPoint"}
RUST_WORDS = ("type", "ref", "move", "in")


def rust_parameter(library, parameter):
    kind, stars = split(parameter)
    name = f"{parameter.name}_" if parameter.name in RUST_WORDS else parameter.name
    plain = kind if kind in library.interfaces else "i32" if is_enumeration(library, kind) else RUST.get(kind, "c_void")
    if stars == 0:
        return name, plain
    mutable = "const" if parameter.direction == "in" and kind in RECORDS else "mut"
    return name, f"*{mutable} " + "*mut " * (stars - 1) + plain


def rust_guid(text):
    a, b, c, d, e = text.split("-")
    tail = ", ".join(f"0x{(d + e)[i:i + 2]}" for i in range(0, 16, 2))
    return f"GUID(0x{a}, 0x{b}, 0x{c}, [{tail}])"


def rust_interface(library, interface):
    out = [f"/// {interface.comment.text}", "#[repr(C)]", f"pub struct {interface.name} {{",
           "    table: *const *const c_void,", "}", "", f"impl {interface.name} {{",
           f"    pub const IID: GUID = {rust_guid(interface.iid)};",
           "    /// Gives up the caller's hold on the object.", "    pub unsafe fn Release(&self) -> u32 {",
           "        transmute::<_, extern \"system\" fn(*const Self) -> u32>(*self.table.add(2))(self)",
           "    }"]
    for slot, _, method in library.slots(interface.name):
        parameters = [rust_parameter(library, p) for p in method.params]
        declared = "".join(f", {name}: {kind}" for name, kind in parameters)
        types = "".join(f", {kind}" for _, kind in parameters)
        values = "".join(f", {name}" for name, _ in parameters)
        out += [f"    /// {method.comment.text}", f"    pub unsafe fn {method.name}(&self{declared}) -> i32 {{",
                f"        transmute::<_, extern \"system\" fn(*const Self{types}) -> i32>"
                f"(*self.table.add({slot}))(self{values})", "    }"]
    return out + ["}", ""]


def rust(library):
    out = ["use std::ffi::c_void;", "use std::mem::transmute;", "",
           "#[repr(C)]", "#[derive(Clone, Copy)]", "pub struct GUID(pub u32, pub u16, pub u16, pub [u8; 8]);", "",
           "#[repr(C)]", "#[derive(Clone, Copy, Default)]", "pub struct TDataPoint {", "    pub fXVal: f64,",
           "    pub fYVal: f64,", "}", "", "#[repr(C)]", "#[derive(Clone, Copy, Default)]", "pub struct RECT {",
           "    pub left: i32,", "    pub top: i32,", "    pub right: i32,", "    pub bottom: i32,", "}", ""]
    for interface in library.interfaces.values():
        out += rust_interface(library, interface)
    return out + [f"pub const CLSID_{name}: GUID = {rust_guid(clsid)};" for name, clsid, _ in library.classes] + [""]


PYTHON = {"BSTR": "Text", "LONG_PTR": "c_ssize_t", "UINT_PTR": "c_size_t", "double": "c_double", "float": "c_float",
          "int": "c_int", "long": "c_int", "unsigned int": "c_uint", "unsigned long": "c_uint", "wireHWND": "c_void_p"}


def python_type(library, parameter):
    kind, stars = split(parameter)
    if stars:
        return "c_void_p"
    return "c_int" if is_enumeration(library, kind) else PYTHON[kind]


PYTHON_HEAD = '''
from ctypes import POINTER, byref, c_double, c_float, c_int, c_size_t, c_ssize_t, c_uint, c_ulong, c_void_p, c_wchar_p, cast
import ctypes


class Text:
    """A parameter that is a BSTR: pass a str, or None."""


class Interface:
    """An object of the server. A method of its interface is called by its name, with numbers and
    texts as they are, byref(...) where the reference names a pointer and an array of points as an
    array of TDataPoint. The result is the HRESULT. An object that is made empty receives another
    one's address: graph.GetXAxis(byref(axis.pointer), 0)."""

    METHODS = {}

    def __init__(self):
        self.pointer = c_void_p()

    def __getattr__(self, name):
        if name not in self.METHODS:
            raise AttributeError(name)
        slot, types = self.METHODS[name]
        return lambda *arguments: self._call(slot, types, arguments)

    def __del__(self):
        if self.pointer:
            self._call(2, (), ())

    def _call(self, slot, types, arguments):
        if len(arguments) != len(types):
            raise TypeError(f"{len(types)} arguments are wanted, {len(arguments)} given")
        texts = [_bstr(argument) if kind is Text else None for kind, argument in zip(types, arguments)]
        values = [text if kind is Text else argument for kind, text, argument in zip(types, texts, arguments)]
        table = cast(self.pointer, POINTER(POINTER(c_void_p)))[0]
        method = ctypes.WINFUNCTYPE(c_int, c_void_p, *[c_void_p if kind is Text else kind for kind in types])(table[slot])
        try:
            return method(self.pointer, *values)
        finally:
            for text in filter(None, texts):
                ctypes.windll.oleaut32.SysFreeString(text)


def _bstr(text):
    allocate = ctypes.windll.oleaut32.SysAllocString
    allocate.restype = c_void_p
    return None if text is None else c_void_p(allocate(c_wchar_p(text)))


def guid(text):
    value = (ctypes.c_byte * 16)()
    ctypes.oledll.ole32.CLSIDFromString(c_wchar_p("{" + text + "}"), value)
    return value


class TDataPoint(ctypes.Structure):
    _fields_ = [("fXVal", c_double), ("fYVal", c_double)]


class RECT(ctypes.Structure):
    _fields_ = [("left", c_int), ("top", c_int), ("right", c_int), ("bottom", c_int)]

'''


def python(library, note):
    out = [f'"""{note}', "", "The interfaces for Python, by ctypes alone; what methods do is in docs/reference.", '"""',
           PYTHON_HEAD.rstrip(), "", ""]
    for interface in library.interfaces.values():
        out += [f"class {interface.name}(Interface):", f'    """{interface.comment.text}"""', "",
                f'    IID = "{interface.iid}"', "    METHODS = {"]
        for slot, _, method in library.slots(interface.name):
            types = "".join(f"{python_type(library, p)}, " for p in method.params)
            out += [f'        "{method.name}": ({slot}, ({types.strip()})),']
        out += ["    }", "", ""]
    return "\n".join(out + ["CLASSES = {"]
                     + [f'    {interface}: "{clsid}",' for _, clsid, interface in library.classes] + ["}", ""])
