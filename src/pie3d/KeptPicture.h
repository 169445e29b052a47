#pragma once
// A finished picture that the next paint may start from.

#include "pie3d/GdiPlus.h"

#include <utility>

// Look is what the picture shows. Goes before GDI+ does.
template <class Look> class CKeptPicture
{
public:
    // A copy to draw on; empty if the kept picture shows something else, there is none, or no
    // memory is left.
    [[nodiscard]] GdiPlus::CBitmap CopyFor(const Look& look) const
    {
        return m_picture && m_look == look ? GdiPlus::CopyOf(m_picture) : GdiPlus::CBitmap();
    }

    // Keeps a copy of the picture, or none where there is no memory for it.
    void Keep(Look look, const GdiPlus::CBitmap& picture) noexcept
    {
        m_picture = GdiPlus::CopyOf(picture);
        m_look = std::move(look);
    }

    void Reset() noexcept { m_picture.Reset(); }

private:
    GdiPlus::CBitmap m_picture;
    Look m_look;
};
