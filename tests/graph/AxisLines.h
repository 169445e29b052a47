#pragma once
// The lines and texts of a recorded frame.

#include "FrameRecording.h"

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
inline std::vector<TLine> LinesOf(const Recording& recording)
{
    std::vector<TLine> lines;
    CPoint pen;
    recording.ForEach([&](const ENHMETARECORD& record) {
        if (record.iType != EMR_MOVETOEX && record.iType != EMR_LINETO)
            return;
        const POINTL& target = reinterpret_cast<const EMRLINETO&>(record).ptl;
        const CPoint point(target.x, target.y);
        if (record.iType == EMR_LINETO)
            lines.push_back({pen, point});
        pen = point;
    });
    return lines;
}

// The texts that begin with a mark, without it.
inline std::vector<std::wstring> TextsOf(const Recording& recording, std::wstring_view mark)
{
    std::vector<std::wstring> texts;
    for (const Recording::Text& text : recording.Texts()) {
        if (text.text.starts_with(mark))
            texts.push_back(text.text.substr(mark.size()));
    }
    return texts;
}
