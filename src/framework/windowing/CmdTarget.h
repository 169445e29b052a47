#pragma once
// Message maps and the objects that have one.
//
// A map is a table of entries: what to react to, and a function made by the compiler from the
// handler's own type, so that a handler with the wrong parameters does not compile. A target
// looks through its own table first, then through those of its base classes.

#include "framework/windowing/Object.h"

class CCmdTarget;

// A message or command on its way to a handler.
struct AFX_MSG_ARGS {
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    NMHDR* pNotify = nullptr;   // of a notification
    LRESULT* pResult = nullptr; // never null for messages and notifications
};

// Calls the handler; false if it declines what it was given.
using AFX_PMSG = bool (*)(CCmdTarget* pTarget, const AFX_MSG_ARGS& args);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage; // WM_..., or WM_REFLECT_BASE + WM_...
    UINT nCode;    // control or notification code; 0 for commands and for plain messages
    UINT nID;      // of the control or command; 0 for plain messages
    UINT nLastID;
    AFX_PMSG pfn; // null ends the table
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); // null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

inline constexpr UINT WM_REFLECT_BASE = 0xBC00;
inline constexpr int CN_COMMAND = 0; // code of a command that comes from no control

#define afx_msg

class CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    // Finds the handler of a command or of a control's notification and calls it. For
    // WM_NOTIFY, nCode is MAKELONG(code, WM_NOTIFY) and pExtra points to the AFX_MSG_ARGS.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra);

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    // The first entry for it, from this target's own map to that of its root; null if none.
    [[nodiscard]] const AFX_MSGMAP_ENTRY* FindEntry(UINT nMessage, UINT nCode, UINT nID) const;
};

#define DECLARE_MESSAGE_MAP()                                                                           \
protected:                                                                                              \
    static const AFX_MSGMAP* GetThisMessageMap();                                                       \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                          \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                   \
    {                                                                                                   \
        return GetThisMessageMap();                                                                     \
    }                                                                                                   \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                     \
    {                                                                                                   \
        using ThisClass [[maybe_unused]] = theClass;                                                    \
        using TheBaseClass = baseClass;                                                                 \
        static constexpr AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                                               \
    {                                                                                                   \
        0, 0, 0, 0, nullptr                                                                             \
    }                                                                                                   \
    }                                                                                                   \
    ;                                                                                                   \
    static constexpr AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, entries};               \
    return &messageMap;                                                                                 \
    }
