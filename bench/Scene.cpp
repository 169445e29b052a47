#include "Scene.h"

#include <cmath>
#include <cstdint>
#include <numbers>

std::vector<TDataPoint> NoisyWaves(int nCount)
{
    std::vector<TDataPoint> points(nCount);
    std::uint32_t state = 12345;
    for (int i = 0; i < nCount; ++i) {
        state = state * 1664525u + 1013904223u;
        const double noise = (state >> 8) / 8388608.0 - 1.0;
        points[i] = {static_cast<double>(i),
                     std::sin(2 * std::numbers::pi * i / (nCount / 8.0)) + 0.1 * noise};
    }
    return points;
}

Scene::Scene()
    : m_hHost(::CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 800, 600, nullptr,
                                nullptr, nullptr, nullptr)),
      m_graph(std::make_unique<CXGraph>())
{
    m_graph->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 800, 600),
                    CWnd::FromHandle(m_hHost), 1);
}

Scene::~Scene()
{
    m_graph.reset();
    ::DestroyWindow(m_hHost);
}

void Scene::Repaint()
{
    m_graph->Invalidate();
    m_graph->UpdateWindow();
    ::GdiFlush();
}
