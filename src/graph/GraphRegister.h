#pragma once
// Account of every graph. A graph outlives its automation object and its window, and nobody
// else owns it: what is left when the module ends is freed from here.

class CXGraph;

namespace GraphRegister
{

void Add(CXGraph* pGraph);
void Remove(CXGraph* pGraph) noexcept;
void FreeAll();

} // namespace GraphRegister
