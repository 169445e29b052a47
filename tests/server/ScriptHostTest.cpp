// The system's script host as a client: it knows nothing but ProgIDs and the type library.

#include "support/LoadedServer.h"

#include <gtest/gtest.h>

namespace
{

// What a program writes to its output; fails the test if it ends with another code than 0.
std::string OutputOf(std::wstring command)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE reader = nullptr;
    HANDLE writer = nullptr;
    EXPECT_TRUE(CreatePipe(&reader, &writer, &inherited, 0));
    SetHandleInformation(reader, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = writer;
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                               nullptr, nullptr, &start, &process));
    CloseHandle(writer);
    // Little is written, so it waits in the pipe. An error would be shown in a box, for ever; and
    // services that the program started may hold the pipe's other end, so it never ends.
    EXPECT_EQ(WaitForSingleObject(process.hProcess, 60000), WAIT_OBJECT_0);
    TerminateProcess(process.hProcess, 2);
    std::string output(4096, '\0');
    DWORD size = 0;
    PeekNamedPipe(reader, output.data(), static_cast<DWORD>(output.size()), &size, nullptr, nullptr);
    output.resize(size);
    CloseHandle(reader);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    EXPECT_EQ(code, 0U) << output;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    std::erase(output, '\r');
    return output;
}

class ScriptHost : public testing::Test
{
protected:
    ScriptHost() { EXPECT_EQ(server.Register(), S_OK); }
    ~ScriptHost() override { EXPECT_EQ(server.Unregister(), S_OK); }

    // Runs a script of the language of the extension.
    static std::string Run(const wchar_t* extension, const std::string& script)
    {
        wchar_t folder[MAX_PATH] = L"";
        GetTempPathW(MAX_PATH, folder);
        const std::wstring path = std::wstring(folder) + L"vantoplex-client." + extension;
        const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        DWORD written = 0;
        WriteFile(file, script.data(), static_cast<DWORD>(script.size()), &written, nullptr);
        CloseHandle(file);
        const std::string output = OutputOf(L"cscript.exe //nologo \"" + path + L"\"");
        DeleteFileW(path.c_str());
        return output;
    }

    Server server;
};

} // namespace

TEST_F(ScriptHost, JScriptMakesEveryClass)
{
    const std::string output = Run(L"js", R"(
        var names = ["PieChart3d", "Chart2d", "SGraphObject", "SGraphAxis", "SGraphLogAxis", "SGraphLabel",
                     "SGraphDataSerie", "SGraphDataNotation", "SGraphBitmap", "SGraph", "SObject"];
        for (var i = 0; i < names.length; i++)
        {
            var object = new ActiveXObject("Vantoplex." + names[i]);
            WScript.Echo(names[i] + " " + typeof object);
        }
    )");

    std::string expected;
    for (const ServerClass& row : serverClasses)
        expected += Narrow(row.name) + " object\n";
    EXPECT_EQ(output, expected);
}

TEST_F(ScriptHost, JScriptCallsWhatNeedsNoWindow)
{
    const std::string output = Run(L"js", R"(
        function call(name, what)
        {
            try { what(); WScript.Echo(name + " done"); }
            catch (e) { WScript.Echo(name + " " + (e.number >>> 0).toString(16)); }
        }
        var axis = new ActiveXObject("Vantoplex.SGraphAxis");
        call("axis", function () { axis.SetMarkerSize(5); axis.SetLabel("y"); axis.SetAxisMarker(0, 1.5, 255, 0);
                                   axis.DeleteAllColorRanges(); });
        var log = new ActiveXObject("Vantoplex.SGraphLogAxis");
        call("log", function () { log.SetRange(1, 1000); });
        call("log type", function () { log.SetAxisType(1); });
        var curve = new ActiveXObject("Vantoplex.SGraphDataSerie");
        call("curve", function () { curve.SetLineSize(2); curve.SetFillBeneath(1, 3); });
        call("curve style", function () { curve.SetLineStyle(0); });
        var label = new ActiveXObject("Vantoplex.SGraphLabel");
        call("label", function () { label.SetText("note"); label.SetAlignment(1); });
        call("label curve", function () { label.SetCurve(1); });
        var bitmap = new ActiveXObject("Vantoplex.SGraphBitmap");
        call("bitmap", function () { bitmap.SetBorder(1); });
        var graph = new ActiveXObject("Vantoplex.SGraph");
        call("graph", function () { graph.Cursor(); graph.SetGraphColor(255); graph.PostMessage(273, 40011, 0);
                                    graph.GetXGraphMsgInfo(1025, "x"); });
        var pie = new ActiveXObject("Vantoplex.PieChart3d");
        call("pie", function () { pie.SendMessage(0, 0, 0); });
        call("unknown", function () { pie.NoSuchMethod(); });
    )");

    EXPECT_EQ(output,
              "axis done\nlog done\nlog type 80004001\ncurve done\ncurve style 80004001\n"
              "label done\nlabel curve 80004001\nbitmap done\ngraph done\npie done\nunknown 800a01b6\n");
}

// The language hands variables over as variants, which a typed out parameter does not take:
// the call is refused before it reaches the object, and the variable stays.
TEST_F(ScriptHost, VBScriptSetsValuesAndCannotTakeTypedResults)
{
    const std::string output = Run(L"vbs", R"(
        Set axis = CreateObject("Vantoplex.SGraphAxis")
        axis.SetLabel "y"
        axis.SetMarkerSize 5
        axis.SetColorRange 0, 1.5, 2.5, 255, 0, "range", 0
        On Error Resume Next
        n = 77
        axis.GetMarkerSize n
        WScript.Echo n & " " & Err.Number
        Err.Clear
        Set graph = CreateObject("Vantoplex.SGraph")
        graph.Cursor
        graph.GetXGraphXgcInfo 1, "x"
        WScript.Echo "done " & Err.Number
    )");

    EXPECT_EQ(output, "77 13\ndone 0\n");
}
