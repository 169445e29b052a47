#pragma once
// A graph of random data and settings, changed at random between its frames. All that it does
// leaves the process alive by the product's contract.

#include "Graph.h"
#include "Random.h"
#include "Report.h"

#include <deque>

class RandomGraph
{
public:
    // bBare: nothing that fonts decide is shown.
    RandomGraph(const Server& server, const HostWindow& host, Random& random, bool bBare);
    RandomGraph(const RandomGraph&) = delete;
    RandomGraph& operator=(const RandomGraph&) = delete;
    ~RandomGraph();

    void Change(); // some settings, data or a gesture
    void Print(Report& report, HMODULE hServer);
    [[nodiscard]] std::uint64_t PictureSum() const;
    // What the axes answer, as bits.
    [[nodiscard]] std::uint64_t ValueSum() const;
    bool WritePicture(const std::wstring& path) const;

private:
    void AddCurve();
    std::vector<TDataPoint> Points();
    void SetGraph();
    void SetAxis(ISGraphAxis* pAxis, bool bX);
    void SetAxisLooks(ISGraphAxis* pAxis);
    void AddBands(ISGraphAxis* pAxis);
    void SetCurve(int nCurve);
    void AddObject();
    void Gesture();
    void Drag(WPARAM nCommand);
    void SetCursor();
    void Resize();
    [[nodiscard]] POINT Place();
    void EndOperation();

    Random& m_random;
    bool m_bBare;
    bool m_bHadCursor = false;
    std::deque<std::vector<TDataPoint>> m_lent; // arrays of curves that own none
    Graph m_graph;
};
