#pragma once
// One frame of a graph, drawn into an enhanced metafile, and what its records say.

#include "graph/XGraph.h"

#include <functional>
#include <string>
#include <vector>

class FrameRecording
{
public:
    struct Text {
        std::wstring text;
        CPoint reference;
        CRect bounds;
    };

    explicit FrameRecording(CXGraph& graph, const std::function<void(CDCEx&)>& prepare = {})
    {
        const HDC hDC = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
        {
            CDCEx dc;
            dc.Attach(hDC);
            if (prepare)
                prepare(dc);
            graph.m_pDrawDC = &dc;
            graph.Invalidate();
            graph.UpdateWindow();
            graph.m_pDrawDC = nullptr;
            dc.Detach();
        }
        m_hFile = ::CloseEnhMetaFile(hDC);
    }
    FrameRecording(const FrameRecording&) = delete;
    FrameRecording& operator=(const FrameRecording&) = delete;
    ~FrameRecording() { ::DeleteEnhMetaFile(m_hFile); }

    [[nodiscard]] std::vector<Text> Texts() const
    {
        std::vector<Text> texts;
        ForEach([&](const ENHMETARECORD* pRecord) {
            if (pRecord->iType != EMR_EXTTEXTOUTW)
                return;
            const auto* pText = reinterpret_cast<const EMREXTTEXTOUTW*>(pRecord);
            if (pText->emrtext.nChars == 0)
                return; // a filled rectangle
            const auto* pUnits = reinterpret_cast<const wchar_t*>(
                reinterpret_cast<const BYTE*>(pRecord) + pText->emrtext.offString);
            texts.push_back({std::wstring(pUnits, pText->emrtext.nChars),
                             CPoint(pText->emrtext.ptlReference.x, pText->emrtext.ptlReference.y),
                             CRect(pText->rclBounds.left, pText->rclBounds.top, pText->rclBounds.right,
                                   pText->rclBounds.bottom)});
        });
        return texts;
    }

    // Colours of the solid rectangles, in order: each sets the background colour and writes an
    // opaque text of no characters.
    [[nodiscard]] std::vector<COLORREF> FilledColors() const
    {
        std::vector<COLORREF> colors;
        COLORREF color = 0xFFFFFF;
        ForEach([&](const ENHMETARECORD* pRecord) {
            if (pRecord->iType == EMR_SETBKCOLOR)
                color = reinterpret_cast<const EMRSETBKCOLOR*>(pRecord)->crColor;
            if (pRecord->iType == EMR_EXTTEXTOUTW &&
                reinterpret_cast<const EMREXTTEXTOUTW*>(pRecord)->emrtext.nChars == 0)
                colors.push_back(color);
        });
        return colors;
    }

    // The last region that was selected for clipping.
    [[nodiscard]] CRect ClipRegion() const
    {
        CRect region;
        ForEach([&](const ENHMETARECORD* pRecord) {
            if (pRecord->iType != EMR_EXTSELECTCLIPRGN)
                return;
            const auto* pSelect = reinterpret_cast<const EMREXTSELECTCLIPRGN*>(pRecord);
            if (pSelect->cbRgnData < sizeof(RGNDATAHEADER))
                return;
            region = reinterpret_cast<const RGNDATAHEADER*>(pSelect->RgnData)->rcBound;
        });
        return region;
    }

    // Positions of the records of a kind, in order.
    [[nodiscard]] std::vector<int> Find(DWORD nType) const
    {
        std::vector<int> positions;
        int nPosition = 0;
        ForEach([&](const ENHMETARECORD* pRecord) {
            if (pRecord->iType == nType)
                positions.push_back(nPosition);
            ++nPosition;
        });
        return positions;
    }

    void ForEach(const std::function<void(const ENHMETARECORD*)>& visit) const
    {
        ::EnumEnhMetaFile(
            nullptr, m_hFile,
            [](HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int, LPARAM lParam) -> int {
                (*reinterpret_cast<const std::function<void(const ENHMETARECORD*)>*>(lParam))(pRecord);
                return 1;
            },
            const_cast<void*>(static_cast<const void*>(&visit)), nullptr);
    }

private:
    HENHMETAFILE m_hFile;
};

using Recording = FrameRecording;
