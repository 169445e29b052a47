// Texts across the boundary, on an axis of a graph in a window that is not shown.

#include "support/HostWindow.h"
#include "support/LoadedServer.h"

#include <oleauto.h>
#include <gtest/gtest.h>

namespace
{

class Strings : public testing::Test
{
protected:
    Strings() : graph(server.Make<SGraph, ISGraph>())
    {
        RECT rect{0, 0, 400, 300};
        EXPECT_EQ(graph->Create(nullptr, &rect, ToWire(host.m_hWnd), 1), S_OK);
        TDataPoint points[] = {{0, 1}, {1, 2}};
        EXPECT_EQ(graph->SetData(nullptr, points, 2, 0, 0, 0, 1), S_OK);
        EXPECT_EQ(graph->GetXAxis(axis.Out(), 0), S_OK);
    }

    void SetLabel(const std::wstring& text)
    {
        const BSTR copy = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
        EXPECT_EQ(axis->SetLabel(copy), S_OK);
        SysFreeString(copy);
    }

    // Memory of this process that is its own and in use.
    static size_t Committed()
    {
        size_t sum = 0;
        MEMORY_BASIC_INFORMATION region;
        for (const BYTE* at = nullptr; VirtualQuery(at, &region, sizeof region) != 0;
             at = static_cast<const BYTE*>(region.BaseAddress) + region.RegionSize) {
            sum += region.State == MEM_COMMIT && region.Type == MEM_PRIVATE ? region.RegionSize : 0;
        }
        return sum;
    }

    Server server;
    const HostWindow host{400, 300, {}, WS_POPUP};
    Holder<ISGraph> graph;
    Holder<ISGraphAxis> axis;
};

} // namespace

TEST_F(Strings, EmptyVariableGetsANewString)
{
    SetLabel(L"temperature");
    BSTR text = nullptr;

    EXPECT_EQ(axis->GetLabel(&text), S_OK);

    EXPECT_STREQ(text, L"temperature");
    EXPECT_EQ(SysStringLen(text), 11U);
    SysFreeString(text);
}

TEST_F(Strings, LiveStringIsReplacedInItsVariable)
{
    SetLabel(L"new");
    BSTR text = SysAllocString(L"a much longer text that was there before");

    EXPECT_EQ(axis->GetLabel(&text), S_OK);

    EXPECT_STREQ(text, L"new");
    EXPECT_EQ(SysStringLen(text), 3U);
    SysFreeString(text);
}

TEST_F(Strings, LiveStringIsNotLeaked)
{
    constexpr size_t length = 100'000;
    SetLabel(std::wstring(length, L'x'));
    BSTR text = nullptr;
    ASSERT_EQ(axis->GetLabel(&text), S_OK);
    const size_t before = Committed();

    for (int round = 0; round < 500; ++round)
        ASSERT_EQ(axis->GetLabel(&text), S_OK);

    EXPECT_LT(Committed(),
              before + 20 * length * sizeof(wchar_t)); // a leak would be 500 times that length
    SysFreeString(text);
}

TEST_F(Strings, MissingVariableGetsNothing)
{
    SetLabel(L"kept");

    EXPECT_EQ(axis->GetLabel(nullptr), S_OK);
}

TEST_F(Strings, MissingTextIsRefusedAndTheOldOneStays)
{
    SetLabel(L"kept");
    BSTR text = nullptr;

    EXPECT_EQ(axis->SetLabel(nullptr), S_FALSE);

    EXPECT_EQ(axis->GetLabel(&text), S_OK);
    EXPECT_STREQ(text, L"kept");
    SysFreeString(text);
}

TEST_F(Strings, EmptyTextComesBackAsAnEmptyString)
{
    SetLabel(L"");
    BSTR text = nullptr;

    EXPECT_EQ(axis->GetLabel(&text), S_OK);

    ASSERT_NE(text, nullptr);
    EXPECT_EQ(SysStringLen(text), 0U);
    SysFreeString(text);
}
