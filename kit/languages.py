"""The constants in other languages, and the method tables for C."""

import interfaces

NOTE = "Made from kit/constants.toml and Vantoplex.idl by kit/make.py: do not edit."


def all_groups(library, groups):
    """The enumerations of the type library, then those of the table."""
    return library.enumerations + groups


def signed16(number):
    return number - 65536 if 32767 < number < 65536 else number


def csharp(library, groups):
    out = [f"// {NOTE}", "", "using System;", "using System.Runtime.InteropServices;", "", "namespace Vantoplex", "{"]
    for group in all_groups(library, groups):
        out += [f"    /// <summary>{group.comment}</summary>", f"    public enum {group.name}", "    {"]
        for value in group.values:
            out += [f"        /// <summary>{value.text}</summary>", f"        {value.name} = {value.number},"]
        out += ["    }", ""]
    return "\n".join(out + interfaces.csharp(library)[:-1] + ["}", ""])


def basic(library, groups):
    out = ['Attribute VB_Name = "VantoplexConstants"', f"' {NOTE}", "Option Explicit", ""]
    for group in groups:  # the type library brings its own enumerations
        out += [f"' {group.comment}", f"Public Enum {group.name}"]
        out += [f"    {v.name} = {v.number} ' {v.text}" for v in group.values]
        out += ["End Enum", ""]
    return "\n".join(out)


def pascal(library, groups):
    out = [f"{{ {NOTE} }}", "unit VantoplexConstants;", "", "interface", "", "const"]
    for group in all_groups(library, groups):
        out += [f"  {{ {group.name}: {group.comment} }}"]
        out += [f"  {v.name} = {v.number}; {{ {v.text} }}" for v in group.values]
        out += [""]
    return "\n".join(out + ["implementation", "", "end.", ""])


def python(library, groups):
    out = [f'"""{NOTE}"""', "", "from enum import IntEnum", ""]
    for group in all_groups(library, groups):
        out += ["", f"class {group.name}(IntEnum):", f'    """{group.comment}"""', ""]
        out += [f"    {v.name} = {v.number}  # {v.text}" for v in group.values]
        out += [""]
    return "\n".join(out)


def rust(library, groups):
    out = [f"//! {NOTE}", "#![allow(dead_code, non_camel_case_types, non_snake_case, non_upper_case_globals)]", ""]
    for group in all_groups(library, groups):
        out += [f"// {group.name}: {group.comment}"]
        for v in group.values:
            out += [f"/// {v.text}", f"pub const {v.name}: i32 = {v.number};"]
        out += [""]
    return "\n".join(out + interfaces.rust(library))


def guid(text):
    a, b, c, d, e = text.split("-")
    tail = ", ".join(f"0x{(d + e)[i:i + 2].lower()}" for i in range(0, 16, 2))
    return f"{{0x{a.lower()}, 0x{b.lower()}, 0x{c.lower()}, {{{tail}}}}}"


UNKNOWN = ["HRESULT (STDMETHODCALLTYPE *QueryInterface)({0} *This, REFIID riid, void **ppvObject);",
           "ULONG (STDMETHODCALLTYPE *AddRef)({0} *This);",
           "ULONG (STDMETHODCALLTYPE *Release)({0} *This);",
           "HRESULT (STDMETHODCALLTYPE *GetTypeInfoCount)({0} *This, UINT *pctinfo);",
           "HRESULT (STDMETHODCALLTYPE *GetTypeInfo)({0} *This, UINT iTInfo, LCID lcid, ITypeInfo **ppTInfo);",
           "HRESULT (STDMETHODCALLTYPE *GetIDsOfNames)({0} *This, REFIID riid, LPOLESTR *rgszNames, UINT cNames,"
           " LCID lcid, DISPID *rgDispId);",
           "HRESULT (STDMETHODCALLTYPE *Invoke)({0} *This, DISPID dispIdMember, REFIID riid, LCID lcid,"
           " WORD wFlags, DISPPARAMS *pDispParams, VARIANT *pVarResult, EXCEPINFO *pExcepInfo, UINT *puArgErr);"]


def c_type(text):
    return text.replace("wireHWND", "HWND")  # the handle itself crosses, as a plain value


def c_header(library, groups):
    out = [f"/* {NOTE}", " *",
           " * The interfaces for C, with the method tables as they are: a method that an interface",
           " * declares again takes its base's entry. Call through lpVtbl, with the object itself first.",
           " * What the methods do is in docs/reference. One source file defines",
           " * VANTOPLEX_DEFINE_GUIDS before it includes this header. */",
           "#ifndef VANTOPLEX_C_H", "#define VANTOPLEX_C_H", "",
           "#include <windows.h>", "#include <ole2.h>", "#include <oleauto.h>", ""]
    for group in all_groups(library, groups):
        out += [f"/* {group.comment} */", f"typedef enum {group.name} {{"]
        out += [f"    {v.name} = {v.number}{',' if v is not group.values[-1] else ''} /* {v.text} */"
                for v in group.values]
        out += [f"}} {group.name};", ""]
    out += ["typedef struct TDataPoint {", "    double fXVal;", "    double fYVal;", "} TDataPoint;", "",
            "typedef struct TPointChange {", "    int nCurve;", "    int nIndex;", "    double fOldY;",
            "    double fNewY;", "} TPointChange;", ""]
    out += [f"typedef struct {name} {name};" for name in library.interfaces] + [""]
    out += ["#ifdef VANTOPLEX_DEFINE_GUIDS"]
    out += [f"const IID IID_{i.name} = {guid(i.iid)};" for i in library.interfaces.values()]
    out += [f"const CLSID CLSID_{name} = {guid(clsid)};" for name, clsid, _ in library.classes]
    out += ["#else"]
    out += [f"extern const IID IID_{i.name};" for i in library.interfaces.values()]
    out += [f"extern const CLSID CLSID_{name};" for name, _, _ in library.classes]
    out += ["#endif", ""]
    for name in library.interfaces:
        out += [f"typedef struct {name}Vtbl {{"]
        out += ["    " + line.format(name) for line in UNKNOWN]
        for _, _, method in library.slots(name):
            arguments = "".join(f", {c_type(p.type)} {p.name}" for p in method.params)
            out += [f"    HRESULT (STDMETHODCALLTYPE *{method.name})({name} *This{arguments});"]
        out += [f"}} {name}Vtbl;", "", f"struct {name} {{", f"    const {name}Vtbl *lpVtbl;", "};", ""]
    return "\n".join(out + ["#endif", ""])


def files(library, groups):
    return {"Vantoplex.cs": csharp(library, groups), "Vantoplex.bas": basic(library, groups),
            "VantoplexConstants.pas": pascal(library, groups),
            "Vantoplex.pas": interfaces.pascal(library, NOTE), "vantoplex.py": interfaces.python(library, NOTE),
            "vantoplex_constants.py": python(library, groups), "vantoplex.rs": rust(library, groups),
            "vantoplex_c.h": c_header(library, groups)}
