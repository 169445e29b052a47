//! A window filled by the graph of a sine, in Rust without further crates.
//! Tried: built by rustc 1.63 with its library for Windows, run under Wine 8.
//!     rustc --target x86_64-pc-windows-gnu hosts/samples/sine.rs -o sine-rust.exe
//! Methods are called by their slots, which kit/languages/vantoplex.rs names.
//! An argument is a BMP file that the graph is written to; the program then ends.

#[allow(dead_code)]
#[path = "../../kit/languages/vantoplex.rs"]
mod vantoplex;

use std::ffi::c_void;
use std::mem::transmute;
use std::ptr::{null, null_mut};

type Object = *mut *const *const c_void; // an interface: a pointer to its method table
type Handle = *mut c_void;

#[repr(C)]
struct Guid(u32, u16, u16, [u8; 8]);

#[repr(C)]
#[derive(Clone, Copy)]
struct DataPoint {
    x: f64,
    y: f64,
}

#[repr(C)]
#[derive(Default)]
struct Rect {
    left: i32,
    top: i32,
    right: i32,
    bottom: i32,
}

#[repr(C)]
struct Message {
    window: Handle,
    message: u32,
    w: usize,
    l: isize,
    time: u32,
    place: [i32; 2],
    private: u32,
}

const SGRAPH: Guid = Guid(0x43ABC0D1, 0x4E08, 0x40C3, [0x96, 0x81, 0xE3, 0x0E, 0xA8, 0x41, 0x42, 0xB3]);
const ISGRAPH: Guid = Guid(0x90F21AE5, 0xDB57, 0x409D, [0x88, 0x5A, 0x90, 0xCB, 0x78, 0x80, 0x5E, 0x86]);

#[link(name = "ole32")]
#[link(name = "oleaut32")]
#[link(name = "user32")]
extern "system" {
    fn CoInitializeEx(reserved: *const c_void, model: u32) -> i32;
    fn CoCreateInstance(class: &Guid, outer: *const c_void, context: u32, interface: &Guid, object: &mut Object) -> i32;
    fn SysAllocString(text: *const u16) -> *mut u16;
    fn SysFreeString(text: *mut u16);
    fn CreateWindowExW(extended: u32, class: *const u16, title: *const u16, style: u32, x: i32, y: i32, width: i32,
        height: i32, parent: Handle, menu: Handle, instance: Handle, parameter: *const c_void) -> Handle;
    fn GetClientRect(window: Handle, place: &mut Rect) -> i32;
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

unsafe fn method(object: Object, slot: usize) -> *const c_void {
    *(*object).add(slot)
}

unsafe fn release(object: Object) {
    let call: extern "system" fn(Object) -> u32 = transmute(method(object, 2));
    call(object);
}

unsafe fn plot(graph: Object) {
    let points: Vec<DataPoint> =
        (0..=360).map(|degree| DataPoint { x: degree as f64, y: (degree as f64).to_radians().sin() }).collect();
    let mut curve: Object = null_mut();
    // Curve 0 on X axis 0 and Y axis 0; the graph copies the points.
    let set_data: extern "system" fn(Object, &mut Object, *const DataPoint, i32, i32, i32, i32, i32) -> i32 =
        transmute(method(graph, vantoplex::ISGraph::SetData));
    set_data(graph, &mut curve, points.as_ptr(), points.len() as i32, 0, 0, 0, 1);
    let name = Text::new("sine");
    let set_label: extern "system" fn(Object, *mut u16) -> i32 = transmute(method(curve, vantoplex::ISGraphDataSerie::SetLabel));
    set_label(curve, name.0);
    release(curve);
    let invalidate: extern "system" fn(Object, i32) -> i32 = transmute(method(graph, vantoplex::ISGraph::Invalidate));
    invalidate(graph, 1);
}

unsafe fn save(graph: Object, file: &str) {
    let mut window: Handle = null_mut();
    let get_handle: extern "system" fn(Object, &mut Handle) -> i32 = transmute(method(graph, vantoplex::ISGraph::GetHandle));
    get_handle(graph, &mut window);
    UpdateWindow(window);
    let file = Text::new(file);
    let save_bitmap: extern "system" fn(Object, *mut u16) -> i32 = transmute(method(graph, vantoplex::ISGraph::SaveBitmap));
    save_bitmap(graph, file.0);
}

fn main() {
    unsafe {
        CoInitializeEx(null(), 2);
        let mut graph: Object = null_mut();
        if CoCreateInstance(&SGRAPH, null(), 1, &ISGRAPH, &mut graph) < 0 {
            eprintln!("Vantoplex is not registered: run regsvr32 Vantoplex.dll.");
            std::process::exit(1);
        }
        const OVERLAPPED_VISIBLE_CLIP: u32 = 0x00CF_0000 | 0x1000_0000 | 0x0200_0000;
        let window = CreateWindowExW(0, wide("STATIC").as_ptr(), wide("A sine in Rust").as_ptr(), OVERLAPPED_VISIBLE_CLIP,
            0, 0, 640, 480, null_mut(), null_mut(), null_mut(), null());
        let mut place = Rect::default();
        GetClientRect(window, &mut place);
        let create: extern "system" fn(Object, *mut u16, &Rect, Handle, u32) -> i32 =
            transmute(method(graph, vantoplex::ISGraph::Create));
        create(graph, null_mut(), &place, window, 1);
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
        release(graph);
    }
}
