#pragma once
// One run: the DLL, freshly loaded, a window of the host, and a printer made of memory.

#include "Platform.h"

#include "net/Dialogs.h"
#include "net/Host.h"
#include "net/Printer.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class Stage
{
public:
    Stage(const std::wstring& dll, HWND hHost, std::FILE* pTrace);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    [[nodiscard]] const Server& TheServer() const { return *m_server; }
    [[nodiscard]] const Printer& ThePrinter() const { return *m_printer; }
    [[nodiscard]] wireHWND Parent() const { return reinterpret_cast<wireHWND>(m_hFrame); }
    [[nodiscard]] std::wstring File(const wchar_t* pszEnding) const;

    // What a host does that isn't ended by an exception of the DLL.
    template <class Action> static void Try(Action action)
    {
        try {
            action();
        } catch (...) { // memory that ran out passes through a method
        }
    }
    // The windows go, then the DLL. False if the DLL says that something still needs it.
    bool End();

private:
    std::unique_ptr<Server> m_server;
    std::unique_ptr<Printer> m_printer;
    HWND m_hFrame;
};

// A thing that a host does with a chart, again and again the same.
class Scenario
{
public:
    explicit Scenario(Stage& stage) : m_stage(stage) {}
    Scenario(const Scenario&) = delete;
    Scenario& operator=(const Scenario&) = delete;
    virtual ~Scenario() = default;

    // With a platform that refuses nothing.
    virtual void Prepare() {}
    // May be refused something at any point. Done again without, it leaves what it always leaves.
    virtual void Act() = 0;
    // True if what is refused is asked for at the end instead, when all goes.
    [[nodiscard]] virtual bool IsEnding() const { return false; }
    // A checksum of what Act has left.
    [[nodiscard]] virtual std::uint64_t Result() { return 0; }

protected:
    [[nodiscard]] Stage& TheStage() const { return m_stage; }
    template <class Action> static void Try(Action action) { Stage::Try(action); }

private:
    Stage& m_stage;
};

struct TScenario {
    const char* name;
    std::unique_ptr<Scenario> (*make)(Stage&);
};

// The end of what another scenario prepares.
template <class Type> class Ending : public Type
{
public:
    using Type::Type;
    void Act() override {}
    [[nodiscard]] bool IsEnding() const override { return true; }
};

template <class Type> std::unique_ptr<Scenario> MakeScenario(Stage& stage)
{
    return std::make_unique<Type>(stage);
}

namespace Scenarios
{
[[nodiscard]] std::vector<TScenario> All();
void AddGraphs(std::vector<TScenario>& scenarios);
void AddGraphFiles(std::vector<TScenario>& scenarios);
void AddCharts(std::vector<TScenario>& scenarios);
void AddPies(std::vector<TScenario>& scenarios);
void AddModule(std::vector<TScenario>& scenarios);
} // namespace Scenarios

// Of the window's picture after a repaint.
[[nodiscard]] std::uint64_t PictureOf(HWND hWnd);
void Frame(HWND hWnd);
