#pragma once
// What a run does, written before it is done, so that the last line names what ended the process.

#include "net/Imports.h"

#include <cstdio>
#include <string>

class Log
{
public:
    explicit Log(std::FILE* pFile) : m_pFile(pFile) {}

    [[gnu::format(printf, 2, 3)]] void Say(const char* pszFormat, ...);

private:
    std::FILE* m_pFile;
};

// Writes down how the process ends, if it does while this lives: the exception and where in the DLL
// it came from.
class LastWords
{
public:
    LastWords(std::FILE* pFile, HMODULE hServer);

private:
    Imports m_imports;
};
