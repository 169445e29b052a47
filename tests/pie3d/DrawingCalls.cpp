#include "DrawingCalls.h"

#include "support/ImportSlot.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

namespace Flat = Gdiplus::DllExports;
using namespace Gdiplus;

extern "C" {
extern decltype(&Flat::GdipCreatePen1) __imp_GdipCreatePen1;
extern decltype(&Flat::GdipCreatePen2) __imp_GdipCreatePen2;
extern decltype(&Flat::GdipSetPenColor) __imp_GdipSetPenColor;
extern decltype(&Flat::GdipSetPenBrushFill) __imp_GdipSetPenBrushFill;
extern decltype(&Flat::GdipDrawPie) __imp_GdipDrawPie;
extern decltype(&Flat::GdipDrawPath) __imp_GdipDrawPath;
extern decltype(&Flat::GdipDrawEllipse) __imp_GdipDrawEllipse;
extern decltype(&Flat::GdipDrawLine) __imp_GdipDrawLine;
extern decltype(&Flat::GdipDrawRectangle) __imp_GdipDrawRectangle;
extern decltype(&Flat::GdipCreateFont) __imp_GdipCreateFont;
extern decltype(&Flat::GdipDrawString) __imp_GdipDrawString;
}

namespace
{

template <class... Args> std::string Text(const char* format, Args... args)
{
    char text[300];
    std::snprintf(text, sizeof text, format, args...);
    return text;
}

struct TPen {
    std::string strColor;
    REAL width;
    GpUnit unit;
};

// The calls so far, and the platform's functions behind the recording ones.
struct TRecording {
    std::vector<std::string> lines;
    std::map<const GpPen*, TPen> pens;

    [[nodiscard]] std::string Outline(const char* kind, const GpPen* pen) const
    {
        const TPen& with = pens.at(pen);
        const std::string unit = with.unit == UnitWorld ? "" : Text(" unit %d", with.unit);
        return Text("%s %s %g", kind, with.strColor.c_str(), with.width) + unit;
    }

    ImportSlot<decltype(&Flat::GdipCreatePen1)> createPen{__imp_GdipCreatePen1, &CreatePen};
    ImportSlot<decltype(&Flat::GdipCreatePen2)> createBrushPen{__imp_GdipCreatePen2, &CreateBrushPen};
    ImportSlot<decltype(&Flat::GdipSetPenColor)> setColor{__imp_GdipSetPenColor, &SetColor};
    ImportSlot<decltype(&Flat::GdipSetPenBrushFill)> setBrush{__imp_GdipSetPenBrushFill, &SetBrush};
    ImportSlot<decltype(&Flat::GdipDrawPie)> drawPie{__imp_GdipDrawPie, &DrawPie};
    ImportSlot<decltype(&Flat::GdipDrawPath)> drawPath{__imp_GdipDrawPath, &DrawPath};
    ImportSlot<decltype(&Flat::GdipDrawEllipse)> drawEllipse{__imp_GdipDrawEllipse, &DrawEllipse};
    ImportSlot<decltype(&Flat::GdipDrawLine)> drawLine{__imp_GdipDrawLine, &DrawLine};
    ImportSlot<decltype(&Flat::GdipDrawRectangle)> drawRectangle{__imp_GdipDrawRectangle, &DrawBox};
    ImportSlot<decltype(&Flat::GdipCreateFont)> createFont{__imp_GdipCreateFont, &MakeFont};
    ImportSlot<decltype(&Flat::GdipDrawString)> drawString{__imp_GdipDrawString, &DrawString};

    static GpStatus WINGDIPAPI CreatePen(ARGB color, REAL width, GpUnit unit, GpPen** pen);
    static GpStatus WINGDIPAPI CreateBrushPen(GpBrush* brush, REAL width, GpUnit unit, GpPen** pen);
    static GpStatus WINGDIPAPI SetColor(GpPen* pen, ARGB color);
    static GpStatus WINGDIPAPI SetBrush(GpPen* pen, GpBrush* brush);
    static GpStatus WINGDIPAPI DrawPie(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                       REAL height, REAL start, REAL sweep);
    static GpStatus WINGDIPAPI DrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path);
    static GpStatus WINGDIPAPI DrawEllipse(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                           REAL height);
    static GpStatus WINGDIPAPI DrawLine(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2,
                                        REAL y2);
    static GpStatus WINGDIPAPI DrawBox(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                       REAL height);
    static GpStatus WINGDIPAPI MakeFont(GDIPCONST GpFontFamily* family, REAL size, INT style, Unit unit,
                                        GpFont** font);
    static GpStatus WINGDIPAPI DrawString(GpGraphics* graphics, GDIPCONST WCHAR* text, INT length,
                                          GDIPCONST GpFont* font, GDIPCONST RectF* layout,
                                          GDIPCONST GpStringFormat* format, GDIPCONST GpBrush* brush);
};

std::unique_ptr<TRecording> s_recording;

GpStatus WINGDIPAPI TRecording::CreatePen(ARGB color, REAL width, GpUnit unit, GpPen** pen)
{
    const GpStatus status = s_recording->createPen.Original()(color, width, unit, pen);
    s_recording->pens[*pen] = {DrawingCalls::Color(color), width, unit};
    return status;
}

GpStatus WINGDIPAPI TRecording::CreateBrushPen(GpBrush* brush, REAL width, GpUnit unit, GpPen** pen)
{
    const GpStatus status = s_recording->createBrushPen.Original()(brush, width, unit, pen);
    s_recording->pens[*pen] = {"brush", width, unit};
    return status;
}

GpStatus WINGDIPAPI TRecording::SetColor(GpPen* pen, ARGB color)
{
    s_recording->pens.at(pen).strColor = DrawingCalls::Color(color);
    return s_recording->setColor.Original()(pen, color);
}

GpStatus WINGDIPAPI TRecording::SetBrush(GpPen* pen, GpBrush* brush)
{
    s_recording->pens.at(pen).strColor = "brush";
    return s_recording->setBrush.Original()(pen, brush);
}

GpStatus WINGDIPAPI TRecording::DrawPie(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                        REAL height, REAL start, REAL sweep)
{
    s_recording->lines.push_back(s_recording->Outline("pie", pen));
    return s_recording->drawPie.Original()(graphics, pen, x, y, width, height, start, sweep);
}

GpStatus WINGDIPAPI TRecording::DrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path)
{
    s_recording->lines.push_back(s_recording->Outline("path", pen));
    return s_recording->drawPath.Original()(graphics, pen, path);
}

GpStatus WINGDIPAPI TRecording::DrawEllipse(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                            REAL height)
{
    s_recording->lines.push_back(s_recording->Outline("ellipse", pen));
    return s_recording->drawEllipse.Original()(graphics, pen, x, y, width, height);
}

GpStatus WINGDIPAPI TRecording::DrawLine(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2,
                                         REAL y2)
{
    s_recording->lines.push_back(s_recording->Outline("line", pen) +
                                 Text(": %g,%g %g,%g", x1, y1, x2, y2));
    return s_recording->drawLine.Original()(graphics, pen, x1, y1, x2, y2);
}

GpStatus WINGDIPAPI TRecording::DrawBox(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                                        REAL height)
{
    s_recording->lines.push_back(s_recording->Outline("box", pen) +
                                 Text(": %g,%g %g,%g", x, y, width, height));
    return s_recording->drawRectangle.Original()(graphics, pen, x, y, width, height);
}

GpStatus WINGDIPAPI TRecording::MakeFont(GDIPCONST GpFontFamily* family, REAL size, INT style, Unit unit,
                                         GpFont** font)
{
    const std::string other = unit == UnitPoint ? "" : Text(" unit %d", unit);
    s_recording->lines.push_back(Text("font %g %d", size, style) + other);
    return s_recording->createFont.Original()(family, size, style, unit, font);
}

GpStatus WINGDIPAPI TRecording::DrawString(GpGraphics* graphics, GDIPCONST WCHAR* text, INT length,
                                           GDIPCONST GpFont* font, GDIPCONST RectF* layout,
                                           GDIPCONST GpStringFormat* format, GDIPCONST GpBrush* brush)
{
    const std::string ascii(text, text + length);
    s_recording->lines.push_back(Text("text '%s' %g,%g %g,%g", ascii.c_str(), layout->X, layout->Y,
                                      layout->Width, layout->Height));
    return s_recording->drawString.Original()(graphics, text, length, font, layout, format, brush);
}

} // namespace

DrawingCalls::DrawingCalls()
{
    s_recording = std::make_unique<TRecording>();
}

DrawingCalls::~DrawingCalls()
{
    s_recording.reset();
}

std::vector<std::string> DrawingCalls::Of(const std::string& kind) const
{
    std::vector<std::string> lines;
    std::copy_if(s_recording->lines.begin(), s_recording->lines.end(), std::back_inserter(lines),
                 [&](const std::string& line) { return line.rfind(kind, 0) == 0; });
    return lines;
}

std::size_t DrawingCalls::First(const std::string& kind) const
{
    const auto& lines = s_recording->lines;
    const auto found = std::find_if(lines.begin(), lines.end(),
                                    [&](const std::string& line) { return line.rfind(kind, 0) == 0; });
    return static_cast<std::size_t>(found - lines.begin());
}

std::size_t DrawingCalls::Last(const std::string& kind) const
{
    const auto& lines = s_recording->lines;
    const auto found = std::find_if(lines.rbegin(), lines.rend(),
                                    [&](const std::string& line) { return line.rfind(kind, 0) == 0; });
    return static_cast<std::size_t>(lines.rend() - found);
}

std::string DrawingCalls::Color(PieColors::Argb color)
{
    return Text("%08X", static_cast<unsigned>(color));
}
