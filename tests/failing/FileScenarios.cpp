#include "GraphHand.h"

#include "fuzz/Seeds.h"
#include "net/Report.h"

namespace
{
constexpr unsigned int Everything = PERSIST_PROPERTIES | PERSIST_DATA | PERSIST_OBJECTS;

std::vector<unsigned char> Bytes(const std::wstring& path)
{
    std::vector<unsigned char> bytes;
    if (std::FILE* pFile = ::_wfopen(path.c_str(), L"rb")) {
        bytes.resize(1 << 22);
        bytes.resize(std::fread(bytes.data(), 1, bytes.size(), pFile));
        std::fclose(pFile);
    }
    return bytes;
}

class WithFile : public Scenario
{
public:
    using Scenario::Scenario;
    ~WithFile() override { ::DeleteFileW(m_path.c_str()); }
    void Prepare() override
    {
        m_graph.Create(TheStage());
        m_graph.Plot(TheStage());
    }
    std::uint64_t Result() override
    {
        const auto bytes = Bytes(m_path);
        return Checksum(bytes.data(), bytes.size()) ^ PictureOf(m_graph.Window());
    }

protected:
    GraphHand m_graph;
    std::wstring m_path = TheStage().File(L".file");
};

class Save : public WithFile
{
public:
    using WithFile::WithFile;
    void Act() override
    {
        Try([&] { m_graph.Get()->Save(Text(m_path), Everything); });
    }
};

class SavePicture : public WithFile
{
public:
    using WithFile::WithFile;
    void Act() override
    {
        Try([&] { m_graph.Get()->SaveBitmap(Text(m_path)); });
    }
};

class Load : public WithFile
{
public:
    using WithFile::WithFile;
    void Prepare() override
    {
        m_graph.Create(TheStage());
        // A saved file doesn't read back to its end; this one does.
        constexpr std::size_t whole = 1;
        const std::string bytes = SeedFiles().at(whole);
        if (std::FILE* pFile = ::_wfopen(m_path.c_str(), L"wb")) {
            std::fwrite(bytes.data(), 1, bytes.size(), pFile);
            std::fclose(pFile);
        }
    }
    void Act() override
    {
        Try([&] { m_graph.Get()->ResetAll(); });
        Try([&] { m_graph.Get()->DeleteMeasures(); });
        Try([&] { m_graph.Get()->Load(Text(m_path)); });
        Frame(m_graph.Window());
    }
};
} // namespace

void Scenarios::AddGraphFiles(std::vector<TScenario>& scenarios)
{
    scenarios.insert(scenarios.end(), {{"graph-save", &MakeScenario<Save>},
                                       {"graph-picture", &MakeScenario<SavePicture>},
                                       {"graph-load", &MakeScenario<Load>}});
}
