#pragma once
// One scene of the net's script: a host's window, the graphs in it, and a report of what can be
// seen and asked after each step.

#include "Dialogs.h"
#include "Graph.h"
#include "Report.h"

#include <memory>
#include <vector>

enum class Pass {
    values, // what getters and the screen show
    saved   // what the graph writes to a file; asks the axes for no value
};

class Watch
{
public:
    Watch(const Server& server, Report& report, Pass pass)
        : m_server(server), m_report(report), m_pass(pass)
    {
    }

    // Begins a scene with an empty window. bTexts: fonts decide the layout of its frames.
    void Begin(const std::string& name, bool bTexts, int nWidth = 640, int nHeight = 480);
    Graph& Add(const RECT& place);
    [[nodiscard]] Graph& At(int nGraph) { return *m_graphs[nGraph]; }
    [[nodiscard]] const Server& TheServer() const { return m_server; }
    [[nodiscard]] Report& TheReport() { return m_report; }
    [[nodiscard]] HostWindow& Host() { return *m_host; }

    // Makes a step and reports what has come of it.
    template <class Action> void Step(const std::string& what, Action action)
    {
        m_report.Step(what);
        action();
        Look();
    }

private:
    void Look();
    void LookAtPosted();
    void LookAtGraph(const Graph& graph, const std::string& name);
    void LookAtValues(const Graph& graph, const std::string& name);
    void LookAtFile(const Graph& graph, const std::string& name);
    void LookAtScreen(const Graph& graph, const std::string& name);
    [[nodiscard]] std::string NameOf(LPARAM lParam) const;

    const Server& m_server;
    Report& m_report;
    Pass m_pass;
    Dialogs m_dialogs;
    std::unique_ptr<HostWindow> m_host;
    std::vector<std::unique_ptr<Graph>> m_graphs;
};
