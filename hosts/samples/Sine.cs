// A window filled by the graph of a sine, in C#.
// Tried: compiled by mcs (Mono 6.8) together with kit/languages/Vantoplex.cs, which has the names of all
// numbers; not run, for there was no .NET for Windows.
//     csc /platform:x64 Sine.cs
// The interfaces are declared here as far as they are called, each with all slots before the last
// one used: a placeholder takes the place of a method that isn't called.
// An argument is a BMP file that the graph is written to; the program then ends.
using System;
using System.Runtime.InteropServices;

[StructLayout(LayoutKind.Sequential)]
public struct DataPoint
{
    public double X, Y;
}

[StructLayout(LayoutKind.Sequential)]
public struct Place
{
    public int Left, Top, Right, Bottom;
}

[ComImport, Guid("EFBDCB31-0A47-406E-B96F-906E78D0DB56"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
public interface ISGraphDataSerie
{
    void Slot7(); void Slot8(); void Slot9(); void Slot10(); void Slot11();
    void Slot12(); void Slot13(); void Slot14(); void Slot15(); void Slot16();
    void Slot17(); void Slot18(); void Slot19(); void Slot20(); void Slot21();
    void Slot22(); void Slot23(); void Slot24(); void Slot25(); void Slot26();
    void Slot27(); void Slot28(); void Slot29(); void Slot30(); void Slot31();
    void Slot32(); void Slot33(); void Slot34(); void Slot35();
    [PreserveSig] int SetLabel([MarshalAs(UnmanagedType.BStr)] string text);
}

[ComImport, Guid("90F21AE5-DB57-409D-885A-90CB78805E86"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
public interface ISGraph
{
    [PreserveSig] int SetData(out ISGraphDataSerie curve, [In] DataPoint[] points, int count, int index, int xAxis, int yAxis, int copy);
    void Slot8(); void Slot9(); void Slot10(); void Slot11(); void Slot12();
    void Slot13(); void Slot14(); void Slot15(); void Slot16(); void Slot17();
    void Slot18(); void Slot19(); void Slot20(); void Slot21(); void Slot22();
    void Slot23();
    [PreserveSig] int SaveBitmap([MarshalAs(UnmanagedType.BStr)] string file);
    void Slot25(); void Slot26(); void Slot27(); void Slot28(); void Slot29();
    void Slot30(); void Slot31(); void Slot32(); void Slot33(); void Slot34();
    void Slot35(); void Slot36(); void Slot37(); void Slot38(); void Slot39();
    void Slot40(); void Slot41(); void Slot42(); void Slot43(); void Slot44();
    void Slot45(); void Slot46(); void Slot47(); void Slot48(); void Slot49();
    void Slot50(); void Slot51(); void Slot52(); void Slot53(); void Slot54();
    void Slot55(); void Slot56(); void Slot57(); void Slot58(); void Slot59();
    void Slot60(); void Slot61(); void Slot62(); void Slot63(); void Slot64();
    void Slot65(); void Slot66(); void Slot67();
    [PreserveSig] int Create([MarshalAs(UnmanagedType.BStr)] string caption, ref Place place, IntPtr parent, uint id);
    [PreserveSig] int Invalidate(int erase);
    void Slot70(); void Slot71();
    [PreserveSig] int GetHandle(out IntPtr window);
}

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
    private static extern bool GetClientRect(IntPtr window, out Place place);
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
        Type type = Type.GetTypeFromProgID("Vantoplex.SGraph");
        if (type == null) {
            Console.Error.WriteLine("Vantoplex is not registered: run regsvr32 Vantoplex.dll.");
            return 1;
        }
        var graph = (ISGraph)Activator.CreateInstance(type);
        const uint overlappedVisibleClip = 0x00CF0000 | 0x10000000 | 0x02000000;
        IntPtr window = CreateWindowEx(0, "STATIC", "A sine in C#", overlappedVisibleClip, 0, 0, 640, 480, IntPtr.Zero,
            IntPtr.Zero, IntPtr.Zero, IntPtr.Zero);
        Place place;
        GetClientRect(window, out place);
        graph.Create(null, ref place, window, 1);

        var points = new DataPoint[361];
        for (int i = 0; i <= 360; ++i)
            points[i] = new DataPoint { X = i, Y = Math.Sin(i * Math.PI / 180) };
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
