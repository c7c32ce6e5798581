//! A host in Rust with a page of its own: opens the drawing named on the command line and shows the properties of all
//! its graphics, with a price that only the host knows.
//!
//!   rustc --target x86_64-pc-windows-gnu -L lib rust_page.rs

mod orlo;

use orlo::*;
use std::collections::HashMap;
use std::os::raw::{c_char, c_void};
use std::os::windows::ffi::OsStrExt;

/// The host's own data: a price for each graphic that has one.
type Prices = HashMap<*mut Graphic, f64>;

extern "C" fn get_price(context: *mut c_void, graphic: *mut Graphic, _field: u32, value: *mut Value) -> i32 {
    let prices = unsafe { &*(context as *const Prices) };
    match prices.get(&graphic) {
        Some(price) => {
            unsafe { (*value).number = *price };
            1
        }
        None => 0,
    }
}

extern "C" fn set_price(context: *mut c_void, graphic: *mut Graphic, _field: u32, value: *const Value) -> i32 {
    let prices = unsafe { &mut *(context as *mut Prices) };
    match prices.get_mut(&graphic) {
        Some(price) => {
            *price = unsafe { (*value).number };
            1
        }
        None => 0,
    }
}

fn text(literal: &'static [u8]) -> *const c_char {
    assert_eq!(literal.last(), Some(&0));
    literal.as_ptr() as *const c_char
}

fn collect(set: *mut Graphic) -> Prices {
    let mut prices = Prices::new();
    let mut position = 0;
    unsafe {
        let mut graphic = GraphicFirst(set, &mut position, 1, ALL_GRAPHICS);
        while !graphic.is_null() {
            prices.insert(graphic, 10.0);
            graphic = GraphicNext(set, &mut position, 1, ALL_GRAPHICS);
        }
    }
    prices
}

/// Returns the code of the sheet, or the library's message.
fn show_properties(drawing: *mut Drawing, prices: &mut Prices) -> Result<i32, String> {
    let fields = [
        Field {
            kind: FIELD_NUMBER,
            flags: BY_CALLBACK,
            label: text(b"&Price:\0"),
            unit: text(b"EUR\0"),
            help: text(b"Price of one piece\0"),
            max: 1e6,
            ..Record::new()
        },
        Field { kind: FIELD_LAYER, label: text(b"&Layer:\0"), property: text(b"Layer\0"), ..Record::new() },
    ];
    let page = Page {
        number: 1,
        caption: text(b"Price\0"),
        fields: fields.as_ptr(),
        fieldCount: fields.len() as u32,
        get: Some(get_price),
        set: Some(set_price),
        context: prices as *mut Prices as *mut c_void,
        ..Record::new()
    };
    let sheet = Sheet {
        filter: ALL_GRAPHICS,
        drawing,
        selection: unsafe { DrawingGetRoot(drawing) },
        pages: &page,
        pageCount: 1,
        ..Record::new()
    };
    let mut code = 0;
    if unsafe { OrloRunSheet(&sheet, &mut code) } == OK {
        return Ok(code);
    }
    let mut reason = vec![0u8; 256];
    unsafe { OrloGetErrorText(reason.as_mut_ptr() as *mut c_char, reason.len()) };
    reason.truncate(reason.iter().position(|&byte| byte == 0).unwrap_or(0));
    Err(String::from_utf8_lossy(&reason).into_owned())
}

fn main() {
    let path = std::env::args_os().nth(1).unwrap_or_default();
    let wide: Vec<u16> = path.encode_wide().chain(Some(0)).collect();
    let mut drawing = unsafe { DrawingOpenDxf(wide.as_ptr(), std::ptr::null(), std::ptr::null_mut(), 0) };
    if drawing.is_null() {
        std::process::exit(2);
    }
    unsafe { AppSetCurrentDrawing(drawing) };
    let mut prices = collect(unsafe { DrawingGetRoot(drawing) });
    let result = show_properties(drawing, &mut prices);
    unsafe { DrawingDispose(&mut drawing) };
    match result {
        Ok(1) => prices.values().take(1).for_each(|price| println!("first price: {:.2}", price)),
        Ok(_) => std::process::exit(1),
        Err(reason) => eprintln!("cannot open the sheet: {}", reason),
    }
}
