//! A window filled by the graph of a sine, in Rust without further crates.
//! Tried: built by rustc 1.63 with its library for Windows, run under Wine 8.
//!     rustc --target x86_64-pc-windows-gnu hosts/samples/sine.rs -o sine-rust.exe
//! An argument is a BMP file that the graph is written to; the program then ends.

#[path = "../../kit/languages/vantoplex.rs"]
mod vantoplex;

use std::ffi::c_void;
use std::ptr::{null, null_mut};
use vantoplex::*;

type Handle = *mut c_void;

#[repr(C)]
struct Message(Handle, u32, usize, isize, u32, [i32; 2], u32);

#[link(name = "ole32")]
#[link(name = "oleaut32")]
#[link(name = "user32")]
extern "system" {
    fn CoInitializeEx(reserved: *const c_void, model: u32) -> i32;
    fn CoCreateInstance(class: &GUID, outer: *const c_void, context: u32, interface: &GUID, object: &mut *mut ISGraph) -> i32;
    fn SysAllocString(text: *const u16) -> *mut u16;
    fn SysFreeString(text: *mut u16);
    fn CreateWindowExW(extended: u32, class: *const u16, title: *const u16, style: u32, x: i32, y: i32, width: i32,
        height: i32, parent: Handle, menu: Handle, instance: Handle, parameter: *const c_void) -> Handle;
    fn GetClientRect(window: Handle, place: &mut RECT) -> i32;
    fn UpdateWindow(window: Handle) -> i32;
    fn IsWindow(window: Handle) -> i32;
    fn GetMessageW(message: *mut Message, window: Handle, first: u32, last: u32) -> i32;
    fn TranslateMessage(message: *const Message) -> i32;
    fn DispatchMessageW(message: *const Message) -> isize;
}

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

unsafe fn plot(graph: &ISGraph) {
    let points: Vec<TDataPoint> =
        (0..=360).map(|degree| TDataPoint { fXVal: degree as f64, fYVal: (degree as f64).to_radians().sin() }).collect();
    let mut curve: *mut ISGraphDataSerie = null_mut();
    // Curve 0 on X axis 0 and Y axis 0; the graph copies the points.
    graph.SetData(&mut curve, points.as_ptr(), points.len() as i32, 0, 0, 0, 1);
    (*curve).SetLabel(Text::new("sine").0);
    (*curve).Release();
    graph.Invalidate(1);
}

unsafe fn save(graph: &ISGraph, file: &str) {
    let mut window: Handle = null_mut();
    graph.GetHandle(&mut window);
    UpdateWindow(window);
    graph.SaveBitmap(Text::new(file).0);
}

fn main() {
    unsafe {
        CoInitializeEx(null(), 2);
        let mut made: *mut ISGraph = null_mut();
        if CoCreateInstance(&CLSID_SGraph, null(), 1, &ISGraph::IID, &mut made) < 0 {
            eprintln!("Vantoplex is not registered: run regsvr32 Vantoplex.dll.");
            std::process::exit(1);
        }
        let graph = &*made;
        const OVERLAPPED_VISIBLE_CLIP: u32 = 0x00CF_0000 | 0x1000_0000 | 0x0200_0000;
        let window = CreateWindowExW(0, wide("STATIC").as_ptr(), wide("A sine in Rust").as_ptr(), OVERLAPPED_VISIBLE_CLIP,
            0, 0, 640, 480, null_mut(), null_mut(), null_mut(), null());
        let mut place = RECT::default();
        GetClientRect(window, &mut place);
        graph.Create(null_mut(), &place, window, 1);
        plot(graph);
        if let Some(file) = std::env::args().nth(1) {
            save(graph, &file);
        } else {
            let mut message: Message = std::mem::zeroed();
            while IsWindow(window) != 0 && GetMessageW(&mut message, null_mut(), 0, 0) > 0 {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
        }
        graph.Release();
    }
}
