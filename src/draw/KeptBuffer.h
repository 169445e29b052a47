#pragma once
// The double buffer of a window, kept from frame to frame: making one costs a fifth of a frame. Its
// owner frees it when the window hides, and when it has been idle.

#include "framework/windowing/DeviceContexts.h"

class CKeptBuffer
{
public:
    CKeptBuffer() = default;
    CKeptBuffer(const CKeptBuffer&) = delete;
    CKeptBuffer& operator=(const CKeptBuffer&) = delete;
    ~CKeptBuffer() { Free(); }

    // Starts a frame. False, with nothing to draw on, inside of another frame and where the platform
    // makes no buffer of that size.
    [[nodiscard]] bool Start(CDC* pTarget, CSize size);
    // Of the frame that was started: everything on it is as the last frame left it.
    [[nodiscard]] HDC Canvas() const noexcept { return m_dc; }
    [[nodiscard]] const CBitmap& Bitmap() const noexcept { return m_bitmap; }
    // Copies the frame to the target's top left corner.
    void Finish(CDC* pTarget);

    // Whether there is a buffer that has seen no frame for a while.
    [[nodiscard]] bool IsIdle() const noexcept;
    // Not during a frame.
    void Free() noexcept;

private:
    void Make(CDC* pTarget, CSize size);

    CDC m_dc;
    CBitmap m_bitmap;
    CSize m_size;
    ULONGLONG m_nLastFrame = 0; // milliseconds
    int m_nState = 0;           // of the canvas, saved for the time of a frame
    bool m_bBusy = false;
};
