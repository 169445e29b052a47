#include "Platform.h"

#include "Imported.h"
#include "Witness.h"

#include "net/Imports.h"

#include <unordered_map>
#include <vector>

namespace
{
struct TThing {
    const char* name;
    std::vector<void*> place;
};

struct TState {
    bool bArmed = false;
    bool bAllAfter = false;
    Platform::EKind kind = Platform::EKind::memory;
    int nNumber = 0;
    int nRequests = 0;
    std::FILE* pTrace = nullptr;
    std::unordered_map<std::uintptr_t, TThing> held;
    std::vector<HBRUSH> filling; // what takes the room for objects
};

TState& State()
{
    static TState state;
    return state;
}

void FillUp(std::vector<HBRUSH>& filling, int nLeft)
{
    while (const HBRUSH hBrush = ::CreateSolidBrush(0))
        filling.push_back(hBrush);
    for (int i = 0; i < nLeft && !filling.empty(); ++i) {
        ::DeleteObject(filling.back());
        filling.pop_back();
    }
}

void Empty(std::vector<HBRUSH>& filling)
{
    for (const HBRUSH hBrush : filling)
        ::DeleteObject(hBrush);
    filling.clear();
}
} // namespace

const char* Platform::NameOf(EKind kind)
{
    static const char* const names[] = {"memory", "gdi",  "gdiplus", "window",
                                        "timer",  "file", "module",  "limit"};
    return names[static_cast<int>(kind)];
}

void Platform::BeginAccount(std::FILE* pTrace)
{
    State().held.clear();
    State().pTrace = pTrace;
}

void Platform::StandBefore(HMODULE hServer)
{
    Imports imports(hServer);
    for (const TRow& row : Imported())
        imports.Replace(row.name, row.pfnOurs, row.ppOriginal);
    imports.Keep(); // the DLL is unloaded with them
}

void Platform::Arm(EKind kind, int nNumber, bool bAllAfter)
{
    TState& state = State();
    state.bArmed = true;
    state.bAllAfter = bAllAfter;
    state.kind = kind;
    state.nNumber = nNumber;
    state.nRequests = kind == EKind::limit ? MostLeft : 0;
    if (kind == EKind::limit && nNumber < MostLeft)
        FillUp(state.filling, nNumber);
}

int Platform::Disarm()
{
    State().bArmed = false;
    Empty(State().filling);
    return State().nRequests;
}

bool Platform::Refuses(EKind kind, const char* pszName)
{
    TState& state = State();
    if (!state.bArmed || kind != state.kind)
        return false;
    const int nRequest = state.nRequests++;
    const bool bRefused = nRequest == state.nNumber || (state.bAllAfter && nRequest > state.nNumber);
    if (bRefused && nRequest == state.nNumber && state.pTrace) {
        std::fprintf(state.pTrace, "refused: %s", pszName);
        Witness::PrintStack(state.pTrace, Witness::Stack());
    }
    return bRefused;
}

void Platform::NoteTaken(const char* pszName, std::uintptr_t thing)
{
    if (thing != 0)
        State().held[thing] = {pszName, State().pTrace ? Witness::Stack() : std::vector<void*>()};
}

void Platform::NoteGivenBack(std::uintptr_t thing)
{
    State().held.erase(thing);
}

void Platform::Forget(const void* pThing)
{
    NoteGivenBack(reinterpret_cast<std::uintptr_t>(pThing));
}

std::map<std::string, int> Platform::Held()
{
    std::map<std::string, int> counts;
    for (const auto& [thing, taken] : State().held)
        ++counts[taken.name];
    return counts;
}

void Platform::PrintHeld(std::FILE* pFile)
{
    for (const auto& [thing, taken] : State().held) {
        std::fprintf(pFile, "held: %s", taken.name);
        Witness::PrintStack(pFile, taken.place);
    }
}
