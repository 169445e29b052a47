#include "framework/windowing/CmdTarget.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static constexpr AFX_MSGMAP messageMap = {nullptr, entries};
    return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindEntry(UINT nMessage, UINT nCode, UINT nID) const
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map;
         map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn; ++entry) {
            if (entry->nMessage == nMessage && entry->nCode == nCode && entry->nID <= nID &&
                nID <= entry->nLastID)
                return entry;
        }
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra)
{
    const UINT message = HIWORD(nCode) ? HIWORD(nCode) : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* const entry = FindEntry(message, LOWORD(nCode), nID);
    if (!entry)
        return FALSE;
    const AFX_MSG_ARGS none;
    return entry->pfn(this, pExtra ? *static_cast<const AFX_MSG_ARGS*>(pExtra) : none);
}
