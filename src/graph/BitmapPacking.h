#pragma once
// A bitmap of the platform as a packed device-independent bitmap in one block of memory.

#include "framework/windowing/GdiObjects.h"

#include <cstddef>

namespace BitmapPacking
{

// Owner of the block; empty where packing failed.
class Block
{
public:
    Block() noexcept = default;
    explicit Block(std::size_t nSize) noexcept;
    Block(Block&& other) noexcept;
    Block& operator=(Block&&) = delete;
    ~Block();

    explicit operator bool() const noexcept { return m_hGlobal != nullptr; }
    // False, with the block as it was, where there is no memory.
    bool Grow(std::size_t nSize) noexcept;
    [[nodiscard]] std::size_t GetSize() const noexcept; // with the allocator's rounding
    [[nodiscard]] std::byte* GetData() const noexcept { return static_cast<std::byte*>(m_hGlobal); }
    [[nodiscard]] BITMAPINFOHEADER& GetHeader() const noexcept
    {
        return *static_cast<BITMAPINFOHEADER*>(m_hGlobal);
    }

private:
    HGLOBAL m_hGlobal = nullptr;
};

// The bitmap must be selected nowhere. An empty palette means the stock one.
[[nodiscard]] Block Pack(const CBitmap& bitmap, const CPalette& palette);

} // namespace BitmapPacking
