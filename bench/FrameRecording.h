#pragma once
// A frame of a graph, taken apart into what is drawn and the state that it is drawn with, and
// drawn again with the fewest calls. That is the floor that a frame is measured against: the
// same picture by a host that knows beforehand what it shows.

#include <windows.h>

#include <string>
#include <vector>

class CXGraph;

class FrameRecording
{
public:
    explicit FrameRecording(CXGraph& graph);
    FrameRecording(const FrameRecording&) = delete;
    FrameRecording& operator=(const FrameRecording&) = delete;
    ~FrameRecording();

    // No state is set twice, no pixel filled twice where rectangles cover each other, nothing made.
    void Draw(HDC hDC) const;

private:
    struct TState {
        HGDIOBJ hPen = nullptr, hBrush = nullptr, hFont = nullptr;
        COLORREF textColor = 0, backColor = 0xFFFFFF;
        int nBackMode = OPAQUE, nRop = R2_COPYPEN;
        UINT nAlign = 0;
        bool bClip = false;
        RECT clip = {};
        POINT at = {};
    };
    enum class Kind { fill, line, polyline, polygon, rectangle, ellipse, text };
    struct TItem {
        Kind kind;
        TState state;
        RECT rect = {};
        std::vector<POINT> points;
        std::wstring text;
        std::vector<INT> widths;
        UINT nOptions = 0;
        POINT at = {};
    };

    static int CALLBACK OnRecord(HDC, HANDLETABLE*, const ENHMETARECORD* pRecord, int, LPARAM lParam);
    void Take(const ENHMETARECORD& record);
    void TakeObject(const ENHMETARECORD& record);
    void TakeState(const ENHMETARECORD& record);
    void TakeClip(const ENHMETARECORD& record);
    void TakeShape(const ENHMETARECORD& record);
    void TakeText(const EMREXTTEXTOUTW& record);
    void Keep(DWORD nObject, HGDIOBJ hObject);
    void Select(HGDIOBJ hObject);
    void SplitCoveredFills();

    static void SetState(HDC hDC, const TState& before, const TState& state, Kind kind);
    static void DrawItem(HDC hDC, const TItem& item);

    std::vector<HGDIOBJ> m_table; // by the recording's numbers
    std::vector<HGDIOBJ> m_owned;
    TState m_state;
    std::vector<TState> m_saved;
    std::vector<TItem> m_items;
};
