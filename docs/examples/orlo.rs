//! Bindings of the part of orlo_c.h that a sheet with pages of its own needs, and of the reference database. The
//! members of the records have the names of the header, which describes them.
#![allow(dead_code, non_snake_case)]

use std::os::raw::{c_char, c_int, c_void};

pub enum Window {}
pub enum Drawing {}
pub enum Graphic {}

pub const OK: i32 = 0;
pub const ALL_GRAPHICS: u32 = 0xFFFF_FFFF;
pub const FIELD_NUMBER: u32 = 4;
pub const FIELD_LAYER: u32 = 12;
pub const BY_CALLBACK: u32 = 4;

#[repr(C)]
pub struct Field {
    pub size: u32,
    pub kind: u32,
    pub label: *const c_char,
    pub property: *const c_char,
    pub group: *const c_char,
    pub unit: *const c_char,
    pub help: *const c_char,
    pub choices: *const *const c_char,
    pub choiceCount: u32,
    pub flags: u32,
    pub min: f64,
    pub max: f64,
}

#[repr(C)]
pub struct Value {
    pub size: u32,
    pub number: f64,
    pub text: *const c_char,
}

#[repr(C)]
pub struct Page {
    pub size: u32,
    pub number: u32,
    pub caption: *const c_char,
    pub fields: *const Field,
    pub fieldCount: u32,
    pub typeCount: u32,
    pub types: *const u8,
    pub accepts: Option<extern "C" fn(*mut c_void, *mut Graphic) -> i32>,
    pub get: Option<extern "C" fn(*mut c_void, *mut Graphic, u32, *mut Value) -> i32>,
    pub set: Option<extern "C" fn(*mut c_void, *mut Graphic, u32, *const Value) -> i32>,
    pub check: Option<extern "C" fn(*mut c_void, u32, *const Value, *mut c_char, usize) -> i32>,
    pub press: Option<extern "C" fn(*mut c_void, u32) -> i32>,
    pub status: Option<extern "C" fn(*mut c_void, *const c_char)>,
    pub context: *mut c_void,
}

#[repr(C)]
pub struct Sheet {
    pub size: u32,
    pub filter: u32,
    pub owner: *mut Window,
    pub drawing: *mut Drawing,
    pub selection: *mut Graphic,
    pub regenMethods: *mut c_void,
    pub fill: Option<extern "C" fn(*mut c_void, *mut c_void)>,
    pub context: *mut c_void,
    pub pages: *const Page,
    pub pageCount: u32,
    pub written: Option<extern "C" fn(*mut c_void, u32, u32)>,
    pub closed: Option<extern "C" fn(*mut c_void)>,
    pub reset: Option<extern "C" fn(*mut c_void)>,
}

/// A record of this header: its first member is its size.
pub trait Record: Sized {
    /// Returns a record with its size; all other members are 0.
    fn new() -> Self {
        unsafe {
            let mut record = std::mem::MaybeUninit::<Self>::zeroed();
            *(record.as_mut_ptr() as *mut u32) = std::mem::size_of::<Self>() as u32;
            record.assume_init()
        }
    }
}
impl Record for Field {}
impl Record for Page {}
impl Record for Sheet {}

#[link(name = "orlo")]
extern "C" {
    pub fn OrloRunSheet(sheet: *const Sheet, code: *mut i32) -> i32;
    pub fn OrloGetErrorText(buffer: *mut c_char, size: usize) -> usize;
}

#[link(name = "drawcore32")]
extern "C" {
    pub fn AppSetCurrentDrawing(drawing: *mut Drawing) -> c_int;
    pub fn DrawingDispose(drawing: *mut *mut Drawing);
    pub fn DrawingGetRoot(drawing: *mut Drawing) -> *mut Graphic;
    pub fn DrawingOpenDxf(path: *const u16, listener: *const c_void, message: *mut c_char, size: c_int)
        -> *mut Drawing;
    pub fn GraphicFirst(set: *mut Graphic, position: *mut u32, flags: c_int, filter: u32) -> *mut Graphic;
    pub fn GraphicNext(set: *mut Graphic, position: *mut u32, flags: c_int, filter: u32) -> *mut Graphic;
}
