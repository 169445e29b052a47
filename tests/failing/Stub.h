#pragma once
// A function of ours in the place of an imported one: it counts, refuses and notes.

#include "Platform.h"

#include <algorithm>
#include <tuple>

namespace Platform
{
// A text as a template's argument.
template <std::size_t nSize> struct Name {
    consteval Name(const char (&given)[nSize]) { std::copy_n(given, nSize, text); }
    char text[nSize];
};

enum class ETakes {
    nothing,
    asResult,
    asLastArgument, // what it points at
    insteadOfFirst, // the first argument is given back, if the result isn't null
    givesBackFirst, // this and the next are never refused
    givesBackSecond
};

struct TRow {
    const char* name;
    void* pfnOurs;
    void** ppOriginal;
};

[[nodiscard]] bool Refuses(EKind kind, const char* pszName);
void NoteTaken(const char* pszName, std::uintptr_t thing);
void NoteGivenBack(std::uintptr_t thing);

template <Name name, EKind kind, ETakes takes, auto refusal, class Function> struct Stub;

template <Name name, EKind kind, ETakes takes, auto refusal, class Result, class... Arguments>
struct Stub<name, kind, takes, refusal, Result (*)(Arguments...)> {
    inline static Result (*original)(Arguments...) = nullptr;

    static TRow Row()
    {
        return {name.text, reinterpret_cast<void*>(&Call), reinterpret_cast<void**>(&original)};
    }

    static Result Call(Arguments... arguments)
    {
        if constexpr (takes == ETakes::givesBackFirst || takes == ETakes::givesBackSecond) {
            constexpr std::size_t at = takes == ETakes::givesBackFirst ? 0 : 1;
            NoteGivenBack(Value(std::get<at>(std::tie(arguments...))));
            return original(arguments...);
        } else {
            if (Refuses(kind, name.text)) {
                ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
                return (Result)refusal;
            }
            const Result result = original(arguments...);
            Note(result, arguments...);
            return result;
        }
    }

private:
    template <class Type> static std::uintptr_t Value(Type value) { return (std::uintptr_t)value; }

    template <class Given>
    static void Note([[maybe_unused]] Given result, [[maybe_unused]] Arguments... arguments)
    {
        if constexpr (takes == ETakes::asResult) {
            NoteTaken(name.text, Value(result));
        } else if constexpr (takes == ETakes::asLastArgument) {
            auto ppThing = std::get<sizeof...(Arguments) - 1>(std::tie(arguments...));
            if (Value(result) == 0)
                NoteTaken(name.text, Value(*ppThing));
        } else if constexpr (takes == ETakes::insteadOfFirst) {
            if (Value(result) != 0) {
                NoteGivenBack(Value(std::get<0>(std::tie(arguments...))));
                NoteTaken(name.text, Value(result));
            }
        }
    }
};
} // namespace Platform
