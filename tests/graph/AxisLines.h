#pragma once
// The lines and texts of a recorded frame.

#include "Recording.h"

#include <algorithm>
#include <string_view>
#include <vector>

struct TLine {
    CPoint ptFrom;
    CPoint ptTo;
    friend bool operator==(const TLine& a, const TLine& b)
    {
        return a.ptFrom == b.ptFrom && a.ptTo == b.ptTo;
    }
};

inline void PrintTo(const TLine& line, std::ostream* stream)
{
    *stream << '(' << line.ptFrom.x << ", " << line.ptFrom.y << ") to (" << line.ptTo.x << ", "
            << line.ptTo.y << ')';
}

// Those drawn line by line, in order.
inline std::vector<TLine> LinesOf(const FrameRecording& recording)
{
    std::vector<TLine> lines;
    CPoint pen;
    recording.ForEach([&](const ENHMETARECORD* pRecord) {
        if (pRecord->iType != EMR_MOVETOEX && pRecord->iType != EMR_LINETO)
            return;
        const POINTL& target = reinterpret_cast<const EMRLINETO*>(pRecord)->ptl;
        const CPoint point(target.x, target.y);
        if (pRecord->iType == EMR_LINETO)
            lines.push_back({pen, point});
        pen = point;
    });
    return lines;
}

// The texts that begin with a mark, without it.
inline std::vector<std::wstring> TextsOf(const FrameRecording& recording, std::wstring_view mark)
{
    std::vector<std::wstring> texts;
    for (const FrameRecording::Text& text : recording.Texts()) {
        if (text.text.starts_with(mark))
            texts.push_back(text.text.substr(mark.size()));
    }
    return texts;
}
