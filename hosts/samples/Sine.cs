// A window filled by the graph of a sine, in C#.
// Tried: compiled by mcs (Mono 6.8) together with kit/languages/Vantoplex.cs, which has the interfaces
// and the names of all numbers; not run, for there was no .NET for Windows.
//     csc /platform:x64 Sine.cs Vantoplex.cs
// An argument is a BMP file that the graph is written to; the program then ends.
using System;
using System.Runtime.InteropServices;
using Vantoplex;

[StructLayout(LayoutKind.Sequential)]
public struct Message
{
    public IntPtr Window;
    public uint Number;
    public IntPtr W, L;
    public uint Time;
    public int X, Y;
}

internal static class Program
{
    [DllImport("user32.dll", CharSet = CharSet.Unicode, EntryPoint = "CreateWindowExW")]
    private static extern IntPtr CreateWindowEx(uint extended, string type, string title, uint style, int x, int y,
        int width, int height, IntPtr parent, IntPtr menu, IntPtr instance, IntPtr parameter);
    [DllImport("user32.dll")]
    private static extern bool GetClientRect(IntPtr window, out RECT place);
    [DllImport("user32.dll")]
    private static extern bool UpdateWindow(IntPtr window);
    [DllImport("user32.dll")]
    private static extern bool IsWindow(IntPtr window);
    [DllImport("user32.dll")]
    private static extern int GetMessageW(out Message message, IntPtr window, uint first, uint last);
    [DllImport("user32.dll")]
    private static extern bool TranslateMessage(ref Message message);
    [DllImport("user32.dll")]
    private static extern IntPtr DispatchMessageW(ref Message message);

    [STAThread]
    private static int Main(string[] arguments)
    {
        ISGraph graph;
        try {
            graph = (ISGraph)new SGraph();
        } catch (COMException) {
            Console.Error.WriteLine("Vantoplex is not registered: run regsvr32 Vantoplex.dll.");
            return 1;
        }
        const uint overlappedVisibleClip = 0x00CF0000 | 0x10000000 | 0x02000000;
        IntPtr window = CreateWindowEx(0, "STATIC", "A sine in C#", overlappedVisibleClip, 0, 0, 640, 480, IntPtr.Zero,
            IntPtr.Zero, IntPtr.Zero, IntPtr.Zero);
        RECT place;
        GetClientRect(window, out place);
        graph.Create(null, ref place, window, 1);

        var points = new TDataPoint[361];
        for (int i = 0; i <= 360; ++i)
            points[i] = new TDataPoint { fXVal = i, fYVal = Math.Sin(i * Math.PI / 180) };
        ISGraphDataSerie curve;
        graph.SetData(out curve, points, points.Length, 0, 0, 0, 1); // curve 0 on axes 0; copied
        curve.SetLabel("sine");
        graph.Invalidate(1);

        if (arguments.Length > 0) {
            IntPtr chart;
            graph.GetHandle(out chart);
            UpdateWindow(chart);
            graph.SaveBitmap(arguments[0]);
            return 0;
        }
        Message message;
        while (IsWindow(window) && GetMessageW(out message, IntPtr.Zero, 0, 0) > 0) {
            TranslateMessage(ref message);
            DispatchMessageW(ref message);
        }
        return 0;
    }
}
