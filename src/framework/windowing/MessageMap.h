#pragma once
// The entries of message maps. Each macro names a handler of the class whose map it is
// in; the signature beside it says what the handler looks like, takes its arguments from the
// message and returns its result. Window.h has the classes, CmdTarget.h the tables.

#include <type_traits>

#include "framework/windowing/CmdTarget.h"
#include "framework/windowing/Geometry.h"

class CDC;
class CScrollBar;
class CWnd;

namespace AfxSig
{

// Parameters that come as handles.
CWnd* WindowOf(WPARAM wParam);
CScrollBar* ScrollBarOf(LPARAM lParam); // null unless a permanent object of ours
CDC* DCOf(WPARAM wParam);

inline CPoint PointOf(LPARAM lParam) noexcept
{
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

// Commands and notifications

struct Command {
    template <class T> using Method = void (T::*)();
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS&)
    {
        (target->*Handler)();
        return true;
    }
};
struct CommandEx {
    template <class T> using Method = BOOL (T::*)();
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS&)
    {
        return (target->*Handler)() != FALSE;
    }
};
struct Notify {
    template <class T> using Method = void (T::*)(NMHDR*, LRESULT*);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(args.pNotify, args.pResult);
        return true;
    }
};

// Messages

struct Message {
    template <class T> using Method = LRESULT (T::*)(WPARAM, LPARAM);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        *args.pResult = (target->*Handler)(args.wParam, args.lParam);
        return true;
    }
};
struct Plain {
    template <class T> using Method = void (T::*)();
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS&)
    {
        (target->*Handler)();
        return true;
    }
};
struct PlainResult {
    template <class T> using Method = BOOL (T::*)();
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        *args.pResult = (target->*Handler)();
        return true;
    }
};
struct Create {
    template <class T> using Method = int (T::*)(CREATESTRUCTW*);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        *args.pResult = (target->*Handler)(reinterpret_cast<CREATESTRUCTW*>(args.lParam));
        return true;
    }
};
struct Size {
    template <class T> using Method = void (T::*)(UINT, int, int);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(static_cast<UINT>(args.wParam), LOWORD(args.lParam), HIWORD(args.lParam));
        return true;
    }
};
struct Erase {
    template <class T> using Method = BOOL (T::*)(CDC*);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        *args.pResult = (target->*Handler)(DCOf(args.wParam));
        return true;
    }
};
struct Cursor {
    template <class T> using Method = BOOL (T::*)(CWnd*, UINT, UINT);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        *args.pResult =
            (target->*Handler)(WindowOf(args.wParam), LOWORD(args.lParam), HIWORD(args.lParam));
        return true;
    }
};
struct Mouse {
    template <class T> using Method = void (T::*)(UINT, CPoint);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(static_cast<UINT>(args.wParam), PointOf(args.lParam));
        return true;
    }
};
struct Wheel {
    template <class T> using Method = BOOL (T::*)(UINT, short, CPoint);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        *args.pResult = (target->*Handler)(LOWORD(args.wParam), static_cast<short>(HIWORD(args.wParam)),
                                           PointOf(args.lParam));
        return true;
    }
};
struct Key {
    template <class T> using Method = void (T::*)(UINT, UINT, UINT);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(static_cast<UINT>(args.wParam), LOWORD(args.lParam), HIWORD(args.lParam));
        return true;
    }
};
struct Timer {
    template <class T> using Method = void (T::*)(UINT_PTR);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(args.wParam);
        return true;
    }
};
struct Scroll {
    template <class T> using Method = void (T::*)(UINT, UINT, CScrollBar*);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(LOWORD(args.wParam), HIWORD(args.wParam), ScrollBarOf(args.lParam));
        return true;
    }
};
struct Window {
    template <class T> using Method = void (T::*)(CWnd*);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(WindowOf(args.wParam));
        return true;
    }
};
struct Activate {
    template <class T> using Method = void (T::*)(BOOL, DWORD);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(static_cast<BOOL>(args.wParam), static_cast<DWORD>(args.lParam));
        return true;
    }
};
struct DrawItem {
    template <class T> using Method = void (T::*)(int, DRAWITEMSTRUCT*);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(static_cast<int>(args.wParam),
                           reinterpret_cast<DRAWITEMSTRUCT*>(args.lParam));
        return true;
    }
};
struct MeasureItem {
    template <class T> using Method = void (T::*)(int, MEASUREITEMSTRUCT*);
    template <class T, auto Handler> static bool Call(T* target, const AFX_MSG_ARGS& args)
    {
        (target->*Handler)(static_cast<int>(args.wParam),
                           reinterpret_cast<MEASUREITEMSTRUCT*>(args.lParam));
        return true;
    }
};

// The function of an entry: the handler's type is checked, and the target brought to it.
template <class T, class Signature, auto Handler>
bool Thunk(CCmdTarget* target, const AFX_MSG_ARGS& args)
{
    static_assert(std::is_convertible_v<decltype(Handler), typename Signature::template Method<T>>,
                  "the handler's parameters or result are not those of its message");
    return Signature::template Call<T, Handler>(static_cast<T*>(target), args);
}

} // namespace AfxSig

#define AFX_MSG_FN(signature, memberFxn)                                                                \
    &AfxSig::Thunk<ThisClass, AfxSig::signature, &ThisClass::memberFxn>
#define AFX_MSG_ENTRY(message, signature, memberFxn)                                                    \
    {message, 0, 0, 0, AFX_MSG_FN(signature, memberFxn)},

#define ON_COMMAND(id, memberFxn) {WM_COMMAND, CN_COMMAND, id, id, AFX_MSG_FN(Command, memberFxn)},
#define ON_CONTROL(code, id, memberFxn) {WM_COMMAND, code, id, id, AFX_MSG_FN(Command, memberFxn)},
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
// A control's own notification, seen by the control before its parent. The handler returns FALSE
// to let the parent have it too.
#define ON_CONTROL_REFLECT_EX(code, memberFxn)                                                          \
    {WM_REFLECT_BASE + WM_COMMAND, code, 0, 0, AFX_MSG_FN(CommandEx, memberFxn)},
// Codes of notifications are compared by their low halves, which differ.
#define ON_NOTIFY(code, id, memberFxn)                                                                  \
    {WM_NOTIFY, static_cast<WORD>(code), id, id, AFX_MSG_FN(Notify, memberFxn)},
#define ON_MESSAGE(message, memberFxn) AFX_MSG_ENTRY(message, Message, memberFxn)

#define ON_WM_CREATE() AFX_MSG_ENTRY(WM_CREATE, Create, OnCreate)
#define ON_WM_NCDESTROY() AFX_MSG_ENTRY(WM_NCDESTROY, Plain, OnNcDestroy)
#define ON_WM_SIZE() AFX_MSG_ENTRY(WM_SIZE, Size, OnSize)
#define ON_WM_PAINT() AFX_MSG_ENTRY(WM_PAINT, Plain, OnPaint)
#define ON_WM_ERASEBKGND() AFX_MSG_ENTRY(WM_ERASEBKGND, Erase, OnEraseBkgnd)
#define ON_WM_SETCURSOR() AFX_MSG_ENTRY(WM_SETCURSOR, Cursor, OnSetCursor)
#define ON_WM_MOUSEMOVE() AFX_MSG_ENTRY(WM_MOUSEMOVE, Mouse, OnMouseMove)
#define ON_WM_LBUTTONDOWN() AFX_MSG_ENTRY(WM_LBUTTONDOWN, Mouse, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MSG_ENTRY(WM_LBUTTONUP, Mouse, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MSG_ENTRY(WM_LBUTTONDBLCLK, Mouse, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_MSG_ENTRY(WM_RBUTTONDOWN, Mouse, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MSG_ENTRY(WM_RBUTTONUP, Mouse, OnRButtonUp)
#define ON_WM_MOUSEWHEEL() AFX_MSG_ENTRY(WM_MOUSEWHEEL, Wheel, OnMouseWheel)
#define ON_WM_KEYDOWN() AFX_MSG_ENTRY(WM_KEYDOWN, Key, OnKeyDown)
#define ON_WM_KEYUP() AFX_MSG_ENTRY(WM_KEYUP, Key, OnKeyUp)
#define ON_WM_TIMER() AFX_MSG_ENTRY(WM_TIMER, Timer, OnTimer)
#define ON_WM_VSCROLL() AFX_MSG_ENTRY(WM_VSCROLL, Scroll, OnVScroll)
#define ON_WM_KILLFOCUS() AFX_MSG_ENTRY(WM_KILLFOCUS, Window, OnKillFocus)
#define ON_WM_ACTIVATEAPP() AFX_MSG_ENTRY(WM_ACTIVATEAPP, Activate, OnActivateApp)
#define ON_WM_QUERYNEWPALETTE() AFX_MSG_ENTRY(WM_QUERYNEWPALETTE, PlainResult, OnQueryNewPalette)
#define ON_WM_PALETTECHANGED() AFX_MSG_ENTRY(WM_PALETTECHANGED, Window, OnPaletteChanged)
#define ON_WM_DRAWITEM() AFX_MSG_ENTRY(WM_DRAWITEM, DrawItem, OnDrawItem)
#define ON_WM_MEASUREITEM() AFX_MSG_ENTRY(WM_MEASUREITEM, MeasureItem, OnMeasureItem)
