#pragma once
// A visible graph of 800 by 600 pixels, and the data that it shows.

#include "graph/XGraph.h"

#include <memory>
#include <vector>

// x = i, y = sin(2 pi i / (nCount / 8)) with a tenth of noise, always the same.
[[nodiscard]] std::vector<TDataPoint> NoisyWaves(int nCount);

class Scene
{
public:
    Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    ~Scene();

    // One frame from the invalidation to the last pixel's way to the screen.
    void Repaint();

    HWND m_hHost;
    std::unique_ptr<CXGraph> m_graph;
};
