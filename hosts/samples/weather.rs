//! A year's temperature and rain, in Rust without further crates: two Y axes, dates along the X axis,
//! a legend, a cursor whose values the window's title shows, a chart that follows its window's size.
//! Tried: built by rustc 1.63 with its library for Windows, run under Wine 8.
//!     rustc --target x86_64-pc-windows-gnu hosts/samples/weather.rs -o weather-rust.exe
//! An argument is a BMP file that the graph is written to; the program then ends.

#[path = "../../kit/languages/vantoplex.rs"]
mod vantoplex;

use std::ffi::c_void;
use std::mem::zeroed;
use std::ptr::{null, null_mut};
use vantoplex::*;

type Handle = *mut c_void;

#[repr(C)]
struct Message(Handle, u32, usize, isize, u32, [i32; 2], u32);

#[repr(C)]
struct WindowClass {
    style: u32,
    procedure: extern "system" fn(Handle, u32, usize, isize) -> isize,
    extra: [i32; 2],
    instance: Handle,
    icon: Handle,
    cursor: Handle,
    background: Handle,
    menu: *const u16,
    name: *const u16,
}

#[link(name = "ole32")]
#[link(name = "oleaut32")]
#[link(name = "user32")]
extern "system" {
    fn CoInitializeEx(reserved: *const c_void, model: u32) -> i32;
    fn CoCreateInstance(class: &GUID, outer: *const c_void, context: u32, interface: &GUID, object: &mut *mut ISGraph) -> i32;
    fn SysAllocString(text: *const u16) -> *mut u16;
    fn SysFreeString(text: *mut u16);
    fn RegisterClassW(class: &WindowClass) -> u16;
    fn CreateWindowExW(extended: u32, class: *const u16, title: *const u16, style: u32, x: i32, y: i32, width: i32,
        height: i32, parent: Handle, menu: Handle, instance: Handle, parameter: *const c_void) -> Handle;
    fn DestroyWindow(window: Handle) -> i32;
    fn DefWindowProcW(window: Handle, message: u32, w: usize, l: isize) -> isize;
    fn GetClientRect(window: Handle, place: &mut RECT) -> i32;
    fn MoveWindow(window: Handle, x: i32, y: i32, width: i32, height: i32, repaint: i32) -> i32;
    fn UpdateWindow(window: Handle) -> i32;
    fn SetWindowTextW(window: Handle, text: *const u16) -> i32;
    fn SendMessageW(window: Handle, message: u32, w: usize, l: isize) -> isize;
    fn PostQuitMessage(code: i32);
    fn GetMessageW(message: *mut Message, window: Handle, first: u32, last: u32) -> i32;
    fn TranslateMessage(message: *const Message) -> i32;
    fn DispatchMessageW(message: *const Message) -> isize;
}

const WM_DESTROY: u32 = 2;
const WM_SIZE: u32 = 5;
const WM_COMMAND: u32 = 0x111;
const CURSOR_MOVED: u32 = XG_CURSORMOVED as u32;
const TEMPERATURE: [f64; 12] = [2.8, 2.8, 5.0, 8.6, 13.6, 17.2, 18.9, 18.5, 14.7, 10.3, 6.0, 3.4];
const RAIN: [f64; 12] = [67., 52., 55., 43., 57., 77., 78., 80., 68., 65., 67., 71.];
const RED: u32 = 0x2030C0; // blue, green, red
const BLUE: u32 = 0xB05020;

static mut GRAPH: *mut ISGraph = null_mut(); // what the window's procedure works on
static mut CHART: Handle = null_mut();

fn wide(text: &str) -> Vec<u16> {
    text.encode_utf16().chain(Some(0)).collect()
}

/// A string of the interfaces, freed with its owner.
struct Text(*mut u16);

impl Text {
    fn new(text: &str) -> Text {
        Text(unsafe { SysAllocString(wide(text).as_ptr()) })
    }
}

impl Drop for Text {
    fn drop(&mut self) {
        unsafe { SysFreeString(self.0) }
    }
}

/// Days since 1899-12-30, as in a DATE: the middle of a month of 2023.
fn day_of(month: usize) -> f64 {
    44941.0 + 30.4375 * month as f64
}

/// A curve on the first X axis and a Y axis of its own colour.
unsafe fn plot(graph: &ISGraph, index: i32, values: &[f64], name: &str, unit: &str, color: u32) {
    let points: Vec<TDataPoint> =
        values.iter().enumerate().map(|(month, value)| TDataPoint { fXVal: day_of(month), fYVal: *value }).collect();
    let mut curve: *mut ISGraphDataSerie = null_mut();
    // The number of Y axes there are makes the next one. The graph copies the points.
    graph.SetData(&mut curve, points.as_ptr(), points.len() as i32, index, 0, index, 1);
    (*curve).SetLabel(Text::new(name).0);
    (*curve).SetColor(color);
    (*curve).Release();
    let mut axis: *mut ISGraphAxis = null_mut();
    graph.GetYAxis(&mut axis, index);
    (*axis).SetColor(color);
    (*axis).SetLabel(Text::new(unit).0);
    (*axis).SetPlacement(if index == 0 { apLeft } else { apRight });
    (*axis).SetShowGrid((index == 0) as i32);
    (*axis).Release();
}

unsafe fn show_dates(graph: &ISGraph) {
    let mut axis: *mut ISGraphAxis = null_mut();
    graph.GetXAxis(&mut axis, 0);
    (*axis).SetDateTime(1);
    (*axis).SetDisplayFmt(Text::new("%b %Y").0);
    (*axis).Release();
}

unsafe fn show_cursor_values(window: Handle) {
    let mut points = [TDataPoint::default(); 2];
    for (curve, point) in points.iter_mut().enumerate() {
        (*GRAPH).GetCursorAbsolute(curve as i32, point);
    }
    SetWindowTextW(window, wide(&format!("{:.1} degrees, {:.0} mm", points[0].fYVal, points[1].fYVal)).as_ptr());
}

extern "system" fn on_message(window: Handle, message: u32, w: usize, l: isize) -> isize {
    unsafe {
        match message {
            WM_SIZE => {
                MoveWindow(CHART, 0, 0, (l & 0xFFFF) as i32, (l >> 16 & 0xFFFF) as i32, 1);
                0
            }
            CURSOR_MOVED => {
                show_cursor_values(window);
                0
            }
            WM_DESTROY => {
                PostQuitMessage(0);
                0
            }
            _ => DefWindowProcW(window, message, w, l),
        }
    }
}

unsafe fn make_window() -> Handle {
    let name = wide("Weather");
    let mut class: WindowClass = WindowClass { procedure: on_message, name: name.as_ptr(), style: 0, extra: [0; 2],
        instance: null_mut(), icon: null_mut(), cursor: null_mut(), background: null_mut(), menu: null() };
    class.style = 3; // repainted when it is resized
    RegisterClassW(&class);
    const OVERLAPPED_VISIBLE_CLIP: u32 = 0x00CF_0000 | 0x1000_0000 | 0x0200_0000;
    CreateWindowExW(0, name.as_ptr(), wide("Weather in Rust").as_ptr(), OVERLAPPED_VISIBLE_CLIP, 0, 0, 720, 480,
        null_mut(), null_mut(), null_mut(), null())
}

/// The cursor on July, as the mouse would put it there, and the picture into a file.
unsafe fn save(graph: &ISGraph, window: Handle, file: &str) {
    let july = TDataPoint { fXVal: day_of(6), fYVal: 0.0 };
    graph.SetCursorAbsolute(0, &july, 0);
    UpdateWindow(CHART);
    show_cursor_values(window);
    graph.SaveBitmap(Text::new(file).0);
}

fn main() {
    unsafe {
        CoInitializeEx(null(), 2);
        if CoCreateInstance(&CLSID_SGraph, null(), 1, &ISGraph::IID, &mut GRAPH) < 0 {
            eprintln!("Vantoplex is not registered: run regsvr32 Vantoplex.dll.");
            std::process::exit(1);
        }
        let graph = &*GRAPH;
        let window = make_window();
        let mut place = RECT::default();
        GetClientRect(window, &mut place);
        graph.Create(null_mut(), &place, window, 1);
        graph.GetHandle(&mut CHART);
        plot(graph, 0, &TEMPERATURE, "temperature", "degrees", RED);
        plot(graph, 1, &RAIN, "rain", "mm a month", BLUE);
        show_dates(graph);
        graph.SetCursorFlags((XGC_HORIZ | XGC_VERT | XGC_LEGEND) as u32);
        UpdateWindow(CHART);
        SendMessageW(CHART, WM_COMMAND, VPX_COMMAND_CURSOR as usize, 0);
        if let Some(file) = std::env::args().nth(1) {
            save(graph, window, &file);
            DestroyWindow(window);
        }
        let mut message: Message = zeroed();
        while GetMessageW(&mut message, null_mut(), 0, 0) > 0 {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        graph.Release();
    }
}
