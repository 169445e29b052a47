#pragma once
// A second module of its own, from a copy of the file: what other tests hold doesn't keep it loaded,
// and its end is the end of its charts alone.

#include <windows.h>

#include <memory>
#include <string>

#include "support/LoadedServer.h"

class PrivateServer
{
public:
    PrivateServer()
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        // Several test programs run at once.
        m_path = folder + (L"Vantoplex" + std::to_wstring(::GetCurrentProcessId())) + L".dll";
        EXPECT_TRUE(::CopyFileW(Server::PathBesideProgram().c_str(), m_path.c_str(), FALSE));
        Load();
    }
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;
    ~PrivateServer()
    {
        Unload();
        ::DeleteFileW(m_path.c_str());
    }
    void Load() { m_server = std::make_unique<Server>(m_path); }
    void Unload() { m_server.reset(); }
    Server& operator*() const { return *m_server; }
    Server* operator->() const { return m_server.get(); }

private:
    std::wstring m_path;
    std::unique_ptr<Server> m_server;
};
