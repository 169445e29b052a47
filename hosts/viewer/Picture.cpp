#include "viewer/Picture.h"

#include "viewer/Capture.h"
#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"
#include "viewer/WideText.h"

#include <objidl.h>

#include <algorithm>

namespace Gdiplus
{ // its headers call these without their namespace
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace Viewer
{
namespace
{

constexpr CLSID PngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

[[noreturn]] void Refuse(std::u16string text)
{
    throw Error{ExitCode::NoPicture, std::move(text)};
}

class GdiplusSession
{
public:
    GdiplusSession()
    {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&m_token, &input, nullptr) != Gdiplus::Ok)
            Refuse(u"GDI+ can't be started");
    }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;
    ~GdiplusSession() { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

} // namespace

void SaveAsPng(const Capture& capture, const std::u16string& path)
{
    const GdiplusSession session;
    Gdiplus::Bitmap picture(capture.Width(), capture.Height(), capture.Stride(), PixelFormat24bppRGB,
                            const_cast<BYTE*>(capture.Bits()));
    Gdiplus::Status status = picture.GetLastStatus();
    if (status == Gdiplus::Ok)
        status = picture.Save(ToWide(path).c_str(), &PngEncoder, nullptr);
    if (status != Gdiplus::Ok) {
        Refuse(u"can't write " + Quote(path) + u" (GDI+ status " +
               ToText(static_cast<std::size_t>(status)) + u")");
    }
}

} // namespace Viewer
