// Loads graph files that were changed at random, on a heap with guard pages, and paints some
// of the graphs that come of it.
//
//   vantoplex-fuzz [--files N] [--seed S] [--first N] [--paint-every N]
//
// A file that faults, ends in the bounds check while it is read, takes more memory to load than it
// could fill, or 64 MB beyond its size to load and paint, or more than a second of the
// processor without the guards ends the program with code 1. Its number is printed: `--first N --files
// 1` shows it again.

#include "Mutator.h"
#include "Seeds.h"

#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "graph/XGraph.h"
#include "objects/XGraphDataNotation.h"
#include "support/GuardedHeap.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{
constexpr ULONGLONG MostTime = 1ULL * 10'000'000; // of the processor, in 100 ns
constexpr std::size_t MostBeyond = 64 << 20;      // the file's size, to load and paint it
// The bytes of memory that a byte of file can fill. The smallest object, whose file form is the
// base's 27 bytes and a tag, is some hundred bytes in memory.
constexpr std::size_t MostPerByte = 24;
constexpr std::size_t MostApart = 64 * 1024; // buffers, names, a graph's own fields
constexpr std::size_t MostLeft = 8 << 20;    // between two files, the last graph included

// A file that lies in memory.
class CMemoryFile : public CFile
{
public:
    explicit CMemoryFile(std::string bytes = {}) : m_bytes(std::move(bytes)) {}
    UINT Read(void* lpBuf, UINT nCount) override
    {
        nCount = static_cast<UINT>(std::min<std::size_t>(nCount, m_bytes.size() - m_nAt));
        if (nCount != 0)
            std::memcpy(lpBuf, m_bytes.data() + m_nAt, nCount);
        m_nAt += nCount;
        return nCount;
    }
    void Write(const void* lpBuf, UINT nCount) override
    {
        m_bytes.append(static_cast<const char*>(lpBuf), nCount);
    }
    ULONGLONG Seek(LONGLONG lOff, UINT) override { return m_nAt += static_cast<std::size_t>(lOff); }
    [[nodiscard]] ULONGLONG GetPosition() const override { return m_nAt; }
    [[nodiscard]] ULONGLONG GetLength() const override { return m_bytes.size(); }
    void Flush() override {}
    void Close() override {}

private:
    std::string m_bytes;
    std::size_t m_nAt = 0;
};

struct TOptions {
    ULONGLONG nFiles = 20000;
    ULONGLONG nSeed = 1;
    ULONGLONG nFirst = 0;
    ULONGLONG nPaintEvery = 200;
};

// Of the processor: a busy machine is no fault of a file.
ULONGLONG TimeUsed()
{
    FILETIME created, ended, kernel, user;
    ::GetThreadTimes(::GetCurrentThread(), &created, &ended, &kernel, &user);
    return (ULONGLONG{user.dwHighDateTime} << 32) + user.dwLowDateTime;
}

ULONGLONG currentFile = 0;
const char* currentStage = "";

[[noreturn]] void Fail(const char* what)
{
    std::printf("file %llu, %s: %s\n", currentFile, currentStage, what);
    std::fflush(stdout);
    ::TerminateProcess(::GetCurrentProcess(), 1);
    std::abort();
}

LONG CALLBACK OnFault(EXCEPTION_POINTERS* pointers)
{
    switch (pointers->ExceptionRecord->ExceptionCode) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_INT_OVERFLOW:
    case EXCEPTION_STACK_OVERFLOW: {
        char text[80];
        std::snprintf(text, sizeof text, "fault %lx at %p", pointers->ExceptionRecord->ExceptionCode,
                      pointers->ExceptionRecord->ExceptionAddress);
        Fail(text);
    }
    default:
        return EXCEPTION_CONTINUE_SEARCH;
    }
}

bool LoadInto(CXGraph& graph, const std::string& bytes)
{
    CMemoryFile file(bytes);
    graph.ResetAll();
    graph.m_Measures.clear();
    GuardedHeap::BeginWatch();
    const std::size_t before = GuardedHeap::Use().nLive;
    bool loaded = true;
    try {
        CArchive ar(&file, CArchive::load, 4096);
        graph.Serialize(ar, 0);
    } catch (CException* exception) {
        exception->Delete();
        loaded = false;
    }
    if (GuardedHeap::Use().nPeak - before > MostApart + MostPerByte * bytes.size())
        Fail("takes more memory than it could fill");
    return loaded;
}

void SaveAgain(CXGraph& graph)
{
    CMemoryFile file;
    try {
        CArchive ar(&file, CArchive::store, 4096);
        graph.Serialize(ar, 7);
    } catch (CException* exception) {
        exception->Delete();
        Fail("can't be saved again");
    }
}

// Indexes that lead nowhere end the process by design; all else has to be painted.
void PutIndexesInRange(CXGraph& graph)
{
    const int curves = static_cast<int>(graph.m_Curves.size());
    const auto put = [](int& nIndex, std::size_t nCount) {
        nIndex = std::clamp(nIndex, 0, static_cast<int>(nCount) - 1);
    };
    const auto putCurve = [&](CXGraphDataSerie& curve) {
        put(curve.m_nXAxis, graph.m_XAxes.size());
        put(curve.m_nYAxis, graph.m_YAxes.size());
        put(curve.m_nMarker, 8);
        if (curve.m_nFillCurve != CXGraphDataSerie::FillToBottom && curve.m_nFillCurve >= curves)
            curve.m_nFillCurve = 0;
    };
    for (CXGraphDataSerie& curve : graph.m_Curves)
        putCurve(curve);
    graph.m_Measures.clear();
    for (POSITION place = graph.m_Objects.GetHeadPosition(); place != nullptr;) {
        CObject* const object = graph.m_Objects.GetNext(place);
        if (auto* curve = DYNAMIC_DOWNCAST(CXGraphDataSerie, object))
            putCurve(*curve);
        else if (auto* label = DYNAMIC_DOWNCAST(CXGraphLabel, object))
            label->m_nCurve = -1;
        else if (auto* note = DYNAMIC_DOWNCAST(CXGraphDataNotation, object))
            put(note->m_nCurve, graph.m_Curves.size());
    }
}

// Glyphs of many thousand pixels take the platform seconds to draw.
LOGFONTW OfUsualSize(LOGFONTW font)
{
    constexpr LONG nLargest = 400;
    font.lfHeight = std::clamp(font.lfHeight, -nLargest, nLargest);
    font.lfWidth = std::clamp(font.lfWidth, -nLargest, nLargest);
    return font;
}

void PutFontInRange(CFont& font)
{
    LOGFONTW look{};
    if (!font.GetLogFont(&look))
        return;
    look = OfUsualSize(look);
    font.DeleteObject();
    font.CreateFontIndirect(&look);
}

void PutFontsInRange(CXGraph& graph)
{
    for (auto* axes : {&graph.m_XAxes, &graph.m_YAxes}) {
        for (CXGraphAxis& axis : *axes) {
            PutFontInRange(axis.m_LabelFont);
            PutFontInRange(axis.m_TitleFont);
            for (TAxisMarker& marker : axis.m_AxisMarkers)
                marker.lfFont = OfUsualSize(marker.lfFont);
        }
    }
    for (POSITION place = graph.m_Objects.GetHeadPosition(); place != nullptr;) {
        CObject* const object = graph.m_Objects.GetNext(place);
        if (auto* label = DYNAMIC_DOWNCAST(CXGraphLabel, object))
            PutFontInRange(label->m_Font);
        else if (auto* note = DYNAMIC_DOWNCAST(CXGraphDataNotation, object))
            PutFontInRange(note->m_Font);
    }
}

bool Paint(CXGraph& graph)
{
    if (graph.m_XAxes.empty() || graph.m_YAxes.empty() || graph.m_Curves.empty())
        return false;
    PutIndexesInRange(graph);
    PutFontsInRange(graph);
    static const HBITMAP picture = ::CreateBitmap(640, 480, 1, 32, nullptr);
    const HDC memory = ::CreateCompatibleDC(nullptr);
    ::SelectObject(memory, picture);
    CDCEx canvas;
    canvas.Attach(memory); // the canvas deletes it
    graph.PaintPage(canvas);
    return true;
}

struct TResult {
    bool bLoaded = false;
    bool bPainted = false;
    ULONGLONG nTime = 0;
};

TResult TakeFile(CXGraph& graph, const std::string& settings, const std::string& bytes, bool bPaint)
{
    TResult result;
    const ULONGLONG start = TimeUsed();
    currentStage = "loading";
    LoadInto(graph, settings); // no file works upon what another one left
    const std::size_t before = GuardedHeap::Use().nLive;
    result.bLoaded = LoadInto(graph, bytes);
    currentStage = "saving";
    SaveAgain(graph);
    currentStage = "painting";
    result.bPainted = bPaint && Paint(graph);
    if (GuardedHeap::Use().nPeak > before + bytes.size() + MostBeyond)
        Fail("takes too much memory");
    if (GuardedHeap::Use().nLive > MostLeft)
        Fail("leaves memory behind");
    result.nTime = TimeUsed() - start;
    return result;
}

int Run(const TOptions& options)
{
    CMutator mutator(SeedFiles(), options.nSeed);
    const std::string settings = DefaultSettings();
    CXGraph& graph = *new CXGraph;
    ULONGLONG loaded = 0;
    ULONGLONG painted = 0;
    ULONGLONG longest = 0;
    for (ULONGLONG n = 0; n < options.nFiles; ++n) {
        currentFile = options.nFirst + n;
        const std::string bytes = mutator.File(currentFile);
        const bool bPaint = options.nPaintEvery != 0 && n % options.nPaintEvery == 0;
        TResult result = TakeFile(graph, settings, bytes, bPaint);
        if (result.nTime > MostTime) {
            GuardedHeap::SetGuards(false); // they take most of the time
            result = TakeFile(graph, settings, bytes, bPaint);
            GuardedHeap::SetGuards(true);
            if (result.nTime > MostTime)
                Fail("takes too long");
        }
        loaded += result.bLoaded ? 1 : 0;
        painted += result.bPainted ? 1 : 0;
        longest = std::max(longest, result.nTime);
        if ((n + 1) % 10000 == 0) {
            std::printf("%llu files, %llu painted, the longest took %llu ms\n", n + 1, painted,
                        longest / 10'000);
            std::fflush(stdout);
        }
    }
    currentStage = "at the end";
    delete &graph;
    std::printf("%llu files: %llu loaded, %llu refused, %llu painted\n", options.nFiles, loaded,
                options.nFiles - loaded, painted);
    return 0;
}
} // namespace

int main(int argc, char** argv)
{
    TOptions options;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string name = argv[i];
        const ULONGLONG value = std::strtoull(argv[i + 1], nullptr, 0);
        if (name == "--files")
            options.nFiles = value;
        else if (name == "--seed")
            options.nSeed = value;
        else if (name == "--first")
            options.nFirst = value;
        else if (name == "--paint-every")
            options.nPaintEvery = value;
        else
            return 2;
    }
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    ::AddVectoredExceptionHandler(1, &OnFault);
    _set_invalid_parameter_handler([](const wchar_t*, const wchar_t*, const wchar_t*, unsigned,
                                      uintptr_t) { Fail("an index outside its list"); });
    try {
        return Run(options);
    } catch (const std::bad_alloc&) {
        Fail("out of memory");
    }
}
