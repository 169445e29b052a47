#pragma once
// One frame of a graph, drawn into an enhanced metafile, and what its records say.

#include "graph/XGraph.h"
#include "support/Recording.h"

#include <functional>
#include <vector>

class FrameRecording : public Recording
{
public:
    explicit FrameRecording(CXGraph& graph, const std::function<void(CDCEx&)>& prepare = {})
        : Recording([&](HDC hDC) {
              CDCEx dc;
              dc.Attach(hDC);
              if (prepare)
                  prepare(dc);
              graph.m_pDrawDC = &dc;
              graph.Invalidate();
              graph.UpdateWindow();
              graph.m_pDrawDC = nullptr;
              dc.Detach();
          })
    {
    }

    // Colours of the solid rectangles, in order: each sets the background colour first.
    [[nodiscard]] std::vector<COLORREF> FilledColors() const
    {
        std::vector<COLORREF> colors;
        COLORREF color = 0xFFFFFF;
        ForEach([&](const ENHMETARECORD& record) {
            if (record.iType == EMR_SETBKCOLOR)
                color = reinterpret_cast<const EMRSETBKCOLOR&>(record).crColor;
            if (IsFill(record))
                colors.push_back(color);
        });
        return colors;
    }

    // The last region that was selected for clipping.
    [[nodiscard]] CRect ClipRegion() const
    {
        CRect region;
        ForEach([&](const ENHMETARECORD& record) {
            if (record.iType != EMR_EXTSELECTCLIPRGN)
                return;
            const auto& select = reinterpret_cast<const EMREXTSELECTCLIPRGN&>(record);
            if (select.cbRgnData >= sizeof(RGNDATAHEADER))
                region = reinterpret_cast<const RGNDATAHEADER*>(select.RgnData)->rcBound;
        });
        return region;
    }
};

// What a drawing on a canvas leaves in a metafile.
inline Recording Recorded(const std::function<void(CDCEx&)>& draw)
{
    return Recording([&](HDC hDC) {
        CDCEx dc;
        dc.Attach(hDC);
        draw(dc);
        dc.Detach();
    });
}
