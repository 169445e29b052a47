// Save and Load as a host calls them, and printing where nothing can be printed.

#include "FrontDoorGraph.h"

#include "graph/FileBytes.h"
#include "support/MessageBoxes.h"

namespace
{
class GraphFiles : public FrontDoorGraph
{
protected:
    GraphFiles()
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + L"graph \x00E4\x6570 file.bin";
    }
    ~GraphFiles() override { ::DeleteFileW(m_path.c_str()); }

    [[nodiscard]] std::string Read() const
    {
        const HANDLE file =
            ::CreateFileW(m_path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        std::string bytes(::GetFileSize(file, nullptr), '\0');
        DWORD nRead = 0;
        ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &nRead, nullptr);
        ::CloseHandle(file);
        return bytes;
    }
    void Write(const std::string& bytes) const
    {
        const HANDLE file =
            ::CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD nWritten = 0;
        ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &nWritten, nullptr);
        ::CloseHandle(file);
    }

    std::wstring m_path;
};
} // namespace

TEST_F(GraphFiles, SettingsGoToTheFileAndComeBack)
{
    AddLine(0);
    graph->SetBackColor(0x010203);
    graph->SetSnapRange(77);
    graph->SetLegendAlignment(top);
    const Text path(m_path.c_str());
    ASSERT_EQ(graph->Save(path, PERSIST_PROPERTIES), S_OK);
    EXPECT_EQ(Read(),
              FileBytes::Flags(1) + FileBytes::Bytes(FileBytes::TSettings{
                                        .crBack = 0x010203, .nLegendAlignment = 2, .nSnapRange = 77}));

    graph->SetBackColor(0);
    graph->SetSnapRange(1);
    ASSERT_EQ(graph->Load(path), S_OK);
    ULONG color = 0;
    int nRange = 0;
    graph->GetBackColor(&color);
    graph->GetSnapRange(&nRange);
    EXPECT_EQ(color, 0x010203u);
    EXPECT_EQ(nRange, 77);
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(GraphFiles, CurvesOfAReadableFileAreThereForTheHost)
{
    FileBytes::TCurve curve;
    curve.points = {{0, 0}, {10, 10}};
    curve.label = L"read";
    FileBytes::TAxis yAxis;
    yAxis.nKind = 1;
    using FileBytes::EForm;
    FileBytes::CBytes bytes;
    bytes.Raw(FileBytes::Flags(2)).Add(1).Raw(FileBytes::Bytes(curve));
    bytes.Add(1).Raw(FileBytes::Bytes(FileBytes::TAxis(), EForm::Readable));
    bytes.Add(1).Raw(FileBytes::Bytes(yAxis, EForm::Readable));
    Write(bytes.m_bytes);
    ASSERT_EQ(graph->Load(Text(m_path.c_str())), S_OK);

    Holder<ISGraphDataSerie> loaded;
    Text label;
    ASSERT_EQ(CurveCount(), 1);
    graph->GetCurve(loaded.Out(), 0);
    loaded->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L"read");
    Shoot();
}

TEST_F(GraphFiles, TrendCommandsAddCurvesToTheOneThatTheFileSelected)
{
    Write(FileBytes::Flags(1) + FileBytes::Bytes(FileBytes::TSettings{.nSelectedCurve = 0}));
    ASSERT_EQ(graph->Load(Text(m_path.c_str())), S_OK);
    AddLine(0)->SetLabel(Text(L"Load"));
    for (const UINT nCommand : {40009u, 40010u, 40009u, 40008u, 40006u})
        graph->SendMessage(WM_COMMAND, nCommand, 0);

    const wchar_t* const labels[] = {L"Load", L"Load linear trend", L"Load cubic trend",
                                     L"Load linear trend"};
    ASSERT_EQ(CurveCount(), 4);
    for (int n = 0; n < 4; ++n) {
        Holder<ISGraphDataSerie> curve;
        Text label;
        long nCount = 0;
        int nIndex = -1;
        graph->GetCurve(curve.Out(), n);
        curve->GetLabel(label.Out());
        curve->GetCount(&nCount);
        curve->GetIndex(&nIndex);
        EXPECT_EQ(label.Str(), labels[n]);
        EXPECT_EQ(nCount, 11);
        EXPECT_EQ(nIndex, n);
    }
}

TEST_F(GraphFiles, EachFailureIsFalse)
{
    AddLine(0);
    const Text path(m_path.c_str());
    EXPECT_EQ(graph->Save(nullptr, 7), S_FALSE);
    EXPECT_EQ(graph->Load(nullptr), S_FALSE);
    EXPECT_EQ(graph->Save(path, 0), S_FALSE);
    EXPECT_EQ(::GetFileAttributesW(m_path.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(graph->Load(path), S_FALSE);
    EXPECT_EQ(CurveCount(), 1);
    Write("\x01");
    EXPECT_EQ(graph->Load(path), S_FALSE);
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(GraphFiles, AFileInUseCantBeSavedTo)
{
    Write("kept");
    const HANDLE file =
        ::CreateFileW(m_path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(graph->Save(Text(m_path.c_str()), 7), S_FALSE);
    ::CloseHandle(file);
    EXPECT_EQ(Read(), "kept");
}

TEST_F(GraphFiles, APrintDialogThatGivesNoPrinterEndsTheCommand)
{
    AddLine(0);
    const Picture before = Shoot();
    const MessageBoxes boxes; // the platform may say that there is no printer
    graph->SendMessage(WM_COMMAND, VPX_COMMAND_PRINT, 0);
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
}
