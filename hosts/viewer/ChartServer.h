#pragma once
// The way to the chart server: COM, and where its classes come from.

#include "viewer/ComTools.h"

#include <vantoplex.h>

namespace Viewer
{

enum class ServerSource {
    BesideProgram, // Vantoplex.dll in the program's folder, by a manifest, without registration
    Registered     // the one that regsvr32 has registered
};

// COM on this thread for as long as it lives. The objects that it made must go before it does.
class ChartServer
{
public:
    explicit ChartServer(ServerSource source);
    ChartServer(const ChartServer&) = delete;
    ChartServer& operator=(const ChartServer&) = delete;
    ~ChartServer();

    // Throw Error(NoServer).
    [[nodiscard]] ComPointer<ISGraph> MakeGraph() const { return Make<ISGraph>(__uuidof(SGraph)); }
    [[nodiscard]] ComPointer<IChart2d> MakeChart() const { return Make<IChart2d>(__uuidof(Chart2d)); }
    [[nodiscard]] ComPointer<IPieChart3d> MakePie() const
    {
        return Make<IPieChart3d>(__uuidof(PieChart3d));
    }

private:
    template <class Interface> [[nodiscard]] ComPointer<Interface> Make(REFCLSID wanted) const
    {
        ComPointer<Interface> object;
        MakeObject(wanted, __uuidof(Interface), reinterpret_cast<void**>(object.Receive()));
        return object;
    }
    void MakeObject(REFCLSID wanted, REFIID interfaceId, void** receiver) const;
    void ActivateManifest();

    ServerSource m_source;
    HANDLE m_context = INVALID_HANDLE_VALUE;
    ULONG_PTR m_cookie = 0;
};

} // namespace Viewer
