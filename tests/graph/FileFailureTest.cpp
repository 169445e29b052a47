// Graph files that can't be written or read to their end, and graphs that are no longer shown.

#include "FileBytes.h"
#include "NativeGraph.h"

#include "objects/XGraphDataSerie.h"
#include "support/FailingMemory.h"
#include "support/ImportPatch.h"
#include "windowing/TempFile.h"

using namespace FileBytes;

namespace
{
using FileFailure = GraphTest;

BOOL WINAPI RefuseWrite(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED)
{
    ::SetLastError(ERROR_DISK_FULL);
    return FALSE;
}
} // namespace

TEST_F(FileFailure, SavingToAFullDiskIsRefusedAndTheGraphStays)
{
    AddLine();
    const CTempFile file;
    {
        const ImportPatch full("WriteFile", &RefuseWrite);
        EXPECT_FALSE(graph.Save(file.Path(), 7));
    }
    EXPECT_EQ(file.Read(), "");
    EXPECT_EQ(graph.m_Curves.size(), 1u);
    EXPECT_TRUE(graph.m_Curves[0].m_bVisible);
    EXPECT_TRUE(graph.Save(file.Path(), 7));
}

TEST_F(FileFailure, MemoryThatRunsOutWhileSavingIsTheHostsToKnow)
{
    AddLine();
    const CTempFile file;
    const auto save = [&] { EXPECT_TRUE(graph.Save(file.Path(), 7)); };
    const auto stays = [&] { EXPECT_EQ(graph.m_Curves.size(), 1u); };
    EXPECT_GT(FailingMemory::Exhaust(save, stays), 0);
}

TEST_F(FileFailure, AfterAFailedLoadCurvesAreSeenThatHaveTheirAxesAndTheirPartner)
{
    TCurve whole;
    whole.points = {{1, 2}, {3, 4}};
    TCurve toTheBottom = whole;
    toTheBottom.bFillBeneath = true;
    toTheBottom.nFillCurve = CXGraphDataSerie::FillToBottom;
    TCurve toTheFirst = toTheBottom;
    toTheFirst.nFillCurve = 0;
    TCurve toNone = toTheBottom;
    toNone.nFillCurve = 6;
    TCurve withoutX = whole;
    withoutX.nXAxis = 1;
    TCurve withoutY = whole;
    withoutY.nYAxis = 1;
    CBytes bytes;
    bytes.Raw(Flags(2 + 4)).Add(6);
    for (const TCurve& curve : {whole, toTheBottom, toTheFirst, toNone, withoutX, withoutY})
        bytes.Raw(Bytes(curve));
    bytes.Add(1).Raw(Bytes(TAxis(), EForm::Readable)).Add(1).Raw(Bytes(TAxis(), EForm::Readable));
    const CTempFile file(bytes.m_bytes); // ends in front of the objects

    EXPECT_FALSE(graph.Load(file.Path()));

    ASSERT_EQ(graph.m_Curves.size(), 6u);
    const bool seen[] = {true, true, true, false, false, false};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(graph.m_Curves[i].m_bVisible, seen[i]) << i;
    Paint();
}

TEST_F(FileFailure, AGraphWhoseWindowIsGoneStillLoads)
{
    const CTempFile file(Flags(1) + Bytes(TSettings{.crBack = 0x123456}));
    graph.DestroyWindow();
    EXPECT_TRUE(graph.Load(file.Path()));
    EXPECT_EQ(graph.m_crBackColor, 0x123456u);
}
