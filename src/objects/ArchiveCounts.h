#pragma once
// The counts in graph files: written in 8 bytes and read in 4, which is part of the format.

#include "framework/windowing/Archive.h"

namespace ArchiveCounts
{

// The number of elements that follow; zero for what is zero or less. One that the rest of the
// file can't hold, at nSmallest bytes each, throws CArchiveException (endOfFile) before anything
// is made for it.
[[nodiscard]] inline int ReadCount(CArchive& ar, UINT nSmallest)
{
    int nCount = 0;
    ar >> nCount;
    if (nCount <= 0)
        return 0;
    ar.EnsureRemaining(static_cast<ULONGLONG>(nCount), nSmallest);
    return nCount;
}

} // namespace ArchiveCounts
