#pragma once
// What was drawn, as text: records an enhanced metafile and lists its drawing records with
// their coordinates, in order. Attributes and object records are left out, but for new pens.

#include "draw/DCEx.h"
#include "support/Recording.h"

#include <string>
#include <vector>

class DrawnLines
{
public:
    DrawnLines() { dc.Attach(Recording::Begin()); }
    DrawnLines(const DrawnLines&) = delete;
    DrawnLines& operator=(const DrawnLines&) = delete;
    ~DrawnLines()
    {
        if (dc.m_hDC)
            Lines();
    }

    CDCEx dc;

    // Ends the recording.
    std::vector<std::string> Lines()
    {
        std::vector<std::string> lines;
        Recording(dc.Detach()).ForEach([&](const ENHMETARECORD& record) { List(record, lines); });
        return lines;
    }

private:
    static std::string Text(LONG x, LONG y)
    {
        return "(" + std::to_string(x) + "," + std::to_string(y) + ")";
    }
    static std::string Text(const RECTL& box)
    {
        return Text(box.left, box.top) + " " + Text(box.right, box.bottom);
    }

    template <class TPoints> static std::string Points(const TPoints* points, DWORD count)
    {
        std::string text;
        for (DWORD i = 0; i < count; ++i)
            text += " " + Text(points[i].x, points[i].y);
        return text;
    }

    static void List(const ENHMETARECORD& record, std::vector<std::string>& lines)
    {
        switch (record.iType) {
        case EMR_MOVETOEX: {
            const auto& move = reinterpret_cast<const EMRMOVETOEX&>(record);
            lines.push_back("MoveTo " + Text(move.ptl.x, move.ptl.y));
            break;
        }
        case EMR_LINETO: {
            const auto& line = reinterpret_cast<const EMRLINETO&>(record);
            lines.push_back("LineTo " + Text(line.ptl.x, line.ptl.y));
            break;
        }
        // The inclusive box of the record has the right and bottom edges moved back by one.
        case EMR_RECTANGLE:
            lines.push_back("Rectangle " + Text(reinterpret_cast<const EMRRECTANGLE&>(record).rclBox));
            break;
        case EMR_ELLIPSE:
            lines.push_back("Ellipse " + Text(reinterpret_cast<const EMRELLIPSE&>(record).rclBox));
            break;
        case EMR_POLYGON16: {
            const auto& polygon = reinterpret_cast<const EMRPOLYGON16&>(record);
            lines.push_back("Polygon" + Points(polygon.apts, polygon.cpts));
            break;
        }
        case EMR_POLYGON: {
            const auto& polygon = reinterpret_cast<const EMRPOLYGON&>(record);
            lines.push_back("Polygon" + Points(polygon.aptl, polygon.cptl));
            break;
        }
        case EMR_BITBLT: {
            const auto& blit = reinterpret_cast<const EMRBITBLT&>(record);
            lines.push_back("BitBlt " + Text(blit.xDest, blit.yDest) + " " +
                            Text(blit.cxDest, blit.cyDest));
            break;
        }
        case EMR_CREATEPEN: {
            const LOGPEN& pen = reinterpret_cast<const EMRCREATEPEN&>(record).lopn;
            lines.push_back("Pen " + std::to_string(pen.lopnStyle) + " " +
                            std::to_string(pen.lopnWidth.x));
            break;
        }
        case EMR_EXTTEXTOUTW: {
            const auto& text = reinterpret_cast<const EMREXTTEXTOUTW&>(record).emrtext;
            lines.push_back((text.nChars == 0 ? "Fill " : "Text ") + Text(text.rcl));
            break;
        }
        default:
            break;
        }
    }
};
