#include "graph/GraphRegister.h"

#include "graph/XGraph.h"

#include <mutex>
#include <set>

namespace GraphRegister
{

namespace
{

// Graphs may live on several threads of the host.
struct Account {
    std::mutex guard;
    std::set<CXGraph*> graphs;
};

Account& TheAccount()
{
    static Account account;
    return account;
}

CXGraph* TakeOne()
{
    Account& account = TheAccount();
    const std::lock_guard lock(account.guard);
    return account.graphs.empty() ? nullptr : *account.graphs.begin();
}

} // namespace

void Add(CXGraph* pGraph)
{
    Account& account = TheAccount();
    const std::lock_guard lock(account.guard);
    account.graphs.insert(pGraph);
}

void Remove(CXGraph* pGraph) noexcept
{
    Account& account = TheAccount();
    const std::lock_guard lock(account.guard);
    account.graphs.erase(pGraph);
}

void FreeAll()
{
    // A graph takes itself off the account when it dies.
    while (CXGraph* pGraph = TakeOne())
        delete pGraph;
}

} // namespace GraphRegister
