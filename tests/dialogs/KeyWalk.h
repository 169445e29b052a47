#pragma once
// The way of the Tab key through a dialog, by keys from the queue of its modal loop.

#include "support/DialogHands.h"
#include "support/ModalScript.h"

#include <algorithm>
#include <utility>
#include <vector>

class KeyWalk
{
public:
    // From the first of the controls `stops` of the dialog or page, once round and back to it; with
    // `bBack` against the order. Then `end` gets the dialog of that caption.
    static void Round(ModalScript& script, const wchar_t* pszDialog, HWND hPage, std::vector<int> stops,
                      bool bBack, ModalScript::Action end)
    {
        if (bBack)
            std::reverse(stops.begin() + 1, stops.end());
        ::SetFocus(::GetDlgItem(hPage, stops.front()));
        HoldShift(bBack);
        Next({&script, pszDialog, hPage, std::move(stops), std::move(end)}, 1);
    }

private:
    struct Walk {
        ModalScript* pScript;
        const wchar_t* pszDialog;
        HWND hPage;
        std::vector<int> stops;
        ModalScript::Action end;
    };

    static void Next(const Walk& walk, std::size_t nStop)
    {
        DialogHands::PostKey(VK_TAB);
        walk.pScript->When(walk.pszDialog, [walk, nStop](HWND hDialog) {
            const int nID = walk.stops[nStop % walk.stops.size()];
            EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), nID) << "stop " << nStop;
            if (nStop < walk.stops.size() && ::GetFocus() == ::GetDlgItem(walk.hPage, nID))
                return Next(walk, nStop + 1);
            HoldShift(false);
            walk.end(hDialog);
        });
    }
    static void HoldShift(bool bDown)
    {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        keys[VK_SHIFT] = bDown ? 0x80 : 0;
        ::SetKeyboardState(keys);
    }
};
