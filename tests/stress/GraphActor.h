#pragma once
// A graph and its host. Structure that would end the process at the next frame is never made:
//
//   - a curve whose axis is missing, a fill partner or a forced snap that is missing
//   - a note or a measure of a curve that is missing
//   - a measure while no curve is the cursor's, which the cursor leaves behind
//   - fewer markers on one Y axis than on another, which share one drag
//   - trends by command with no curve selected

#include "Actor.h"

#include <deque>
#include <vector>

class GraphActor : public Actor
{
public:
    GraphActor(const Server& server, wireHWND parent, const RECT& place);

    void Act(Random& random, Log& log) override;
    [[nodiscard]] HWND Window() const override;

private:
    using Step = void (GraphActor::*)(Random&, Log&);

    void Plot(Random& random, Log& log);
    void Replace(Random& random, Log& log);
    void Structure(Random& random, Log& log);
    void Select(Random& random, Log& log);
    void Settings(Random& random, Log& log);
    void MoreSettings(Random& random, Log& log);
    void SetAxis(Random& random, Log& log);
    void AxisTexts(Random& random, Log& log);
    void AxisBands(Random& random, Log& log);
    void SetCurve(Random& random, Log& log);
    void Analyse(Random& random, Log& log);
    void AddLabel(Random& random, Log& log);
    void AddNote(Random& random, Log& log);
    void Operate(Random& random, Log& log);
    void SendCommand(Random& random, Log& log);
    void Mouse(Random& random, Log& log);
    void Drag(Random& random, Log& log);
    void Keys(Random& random, Log& log);
    void Cursor(Random& random, Log& log);
    void File(Random& random, Log& log);
    void AskGraph(Random& random, Log& log);
    void AskAxis(Random& random, Log& log);
    void AskCurve(Random& random, Log& log);
    void PrintOrSave(Random& random, Log& log);
    void Paint(Random& random, Log& log);
    void Size(Random& random, Log& log);

    [[nodiscard]] std::vector<TDataPoint> Points(Random& random) const;
    [[nodiscard]] Holder<ISGraphAxis> AnyAxis(Random& random, bool& bY) const;
    [[nodiscard]] int Count(HRESULT (STDMETHODCALLTYPE ISGraph::*pfn)(int*)) const;
    [[nodiscard]] int Curves() const;
    [[nodiscard]] bool IsUsedXAxis(int nAxis) const;
    [[nodiscard]] LPARAM Place(Random& random) const;
    static void SetShared(ISGraphObject* pObject, Random& random);
    static void SetLabel(ISGraphLabel* pLabel, Random& random);
    void Enter(WPARAM nCommand, bool bByMethod);
    static void Damage(const std::wstring& path, Random& random);
    void Forget(); // what names curves that may be gone

    const Server& m_server;
    Holder<ISGraph> m_graph;
    HWND m_hWnd = nullptr;
    // Arrays of the host. They outlive all graphs: a window paints on when its object is released.
    inline static std::deque<std::vector<TDataPoint>> s_lent;
    bool m_bHadCursor = false;
};
