// A year's temperature and rain in a form, in C#: two Y axes, dates along the X axis, a legend, a cursor
// whose values the form's title shows, and a chart that follows the size of its form.
// Tried: compiled by mcs (Mono 6.8) together with kit/languages/Vantoplex.cs, which has the interfaces
// and the names of all numbers; not run, for there was no .NET for Windows.
//     csc /platform:x64 /r:System.Windows.Forms.dll Weather.cs Vantoplex.cs
// An argument is a BMP file that the graph is written to; the program then ends.
using System;
using System.Runtime.InteropServices;
using System.Windows.Forms;
using Vantoplex;

internal sealed class WeatherForm : Form
{
    private const uint Red = 0x2030C0; // blue, green, red
    private const uint Blue = 0xB05020;
    private const int Command = 0x111; // WM_COMMAND

    private static readonly double[] Temperature = { 2.8, 2.8, 5.0, 8.6, 13.6, 17.2, 18.9, 18.5, 14.7, 10.3, 6.0, 3.4 };
    private static readonly double[] Rain = { 67, 52, 55, 43, 57, 77, 78, 80, 68, 65, 67, 71 };

    private readonly ISGraph graph = (ISGraph)new SGraph();
    private IntPtr chart;

    [DllImport("user32.dll")]
    private static extern bool MoveWindow(IntPtr window, int x, int y, int width, int height, bool repaint);
    [DllImport("user32.dll")]
    private static extern bool UpdateWindow(IntPtr window);
    [DllImport("user32.dll")]
    private static extern IntPtr SendMessageW(IntPtr window, int message, IntPtr w, IntPtr l);

    public WeatherForm()
    {
        Text = "Weather in C#";
        ClientSize = new System.Drawing.Size(720, 480);
    }

    protected override void OnHandleCreated(EventArgs e)
    {
        base.OnHandleCreated(e);
        var place = new RECT { right = ClientSize.Width, bottom = ClientSize.Height };
        graph.Create(null, ref place, Handle, 1);
        graph.GetHandle(out chart);
        Plot(0, Temperature, "temperature", "degrees", Red);
        Plot(1, Rain, "rain", "mm a month", Blue);
        ShowDates();
        graph.SetCursorFlags((uint)(XGRAPH_XGC.XGC_HORIZ | XGRAPH_XGC.XGC_VERT | XGRAPH_XGC.XGC_LEGEND));
        UpdateWindow(chart);
        SendMessageW(chart, Command, (IntPtr)(int)VpxCommand.VPX_COMMAND_CURSOR, IntPtr.Zero);
    }

    // Days since 1899-12-30, as DateTime.ToOADate has them: the middle of a month of 2023.
    private static double DayOf(int month)
    {
        return new DateTime(2023, month + 1, 15).ToOADate();
    }

    // A curve on the first X axis and a Y axis of its own colour.
    private void Plot(int index, double[] values, string name, string unit, uint color)
    {
        var points = new TDataPoint[values.Length];
        for (int month = 0; month < values.Length; ++month)
            points[month] = new TDataPoint { fXVal = DayOf(month), fYVal = values[month] };
        ISGraphDataSerie curve;
        // The number of Y axes there are makes the next one. The graph copies the points.
        graph.SetData(out curve, points, points.Length, index, 0, index, 1);
        curve.SetLabel(name);
        curve.SetColor(color);
        ISGraphAxis axis;
        graph.GetYAxis(out axis, index);
        axis.SetColor(color);
        axis.SetLabel(unit);
        axis.SetPlacement(index == 0 ? EAxisPlacement.apLeft : EAxisPlacement.apRight);
        axis.SetShowGrid(index == 0 ? 1 : 0);
    }

    private void ShowDates()
    {
        ISGraphAxis axis;
        graph.GetXAxis(out axis, 0);
        axis.SetDateTime(1);
        axis.SetDisplayFmt("%b %Y");
    }

    private void ShowCursorValues()
    {
        TDataPoint warm, wet;
        graph.GetCursorAbsolute(0, out warm);
        graph.GetCursorAbsolute(1, out wet);
        Text = string.Format("{0:0.0} degrees, {1:0} mm", warm.fYVal, wet.fYVal);
    }

    protected override void OnResize(EventArgs e)
    {
        base.OnResize(e);
        if (chart != IntPtr.Zero)
            MoveWindow(chart, 0, 0, ClientSize.Width, ClientSize.Height, true);
    }

    protected override void WndProc(ref Message message)
    {
        if (message.Msg == (int)XGRAPH_MSG.XG_CURSORMOVED)
            ShowCursorValues();
        else
            base.WndProc(ref message);
    }

    // The cursor on July, as the mouse would put it there, and the picture into a file.
    public void Save(string file)
    {
        Show();
        UpdateWindow(chart);
        graph.SetCursorAbsolute(0, new[] { new TDataPoint { fXVal = DayOf(6) } }, 0);
        UpdateWindow(chart);
        ShowCursorValues();
        graph.SaveBitmap(file);
    }
}

internal static class Program
{
    [STAThread]
    private static int Main(string[] arguments)
    {
        WeatherForm form;
        try {
            form = new WeatherForm();
        } catch (COMException) {
            Console.Error.WriteLine("Vantoplex is not registered: run regsvr32 Vantoplex.dll.");
            return 1;
        }
        if (arguments.Length > 0)
            form.Save(arguments[0]);
        else
            Application.Run(form);
        return 0;
    }
}
