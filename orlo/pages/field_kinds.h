// The kinds of rows: the control of each, its exchange with a property, and its way to the preview.
#pragma once

#include <afxwin.h>

#include <wtypes.h>

#include <memory>
#include <string>

#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/field_row.h"
#include "orlo/pages/radio_group.h"

struct KindTraits;

// A row of a page with its control and the value that it edits.
struct Field {
    const FieldRow* row = nullptr;
    const KindTraits* kind = nullptr;
    std::string property; // the row's, or a name of its own for a row with callbacks
    int id = 0;           // of the control

    // The value; which of them counts depends on the kind. Pending writes of a page know them by their addresses.
    CString text;
    double real = 0.0;
    int whole = 0;
    unsigned int entry = 0;
    unsigned long color = 0;

    std::unique_ptr<CWnd> control; // where the kind has an object of the library
    CRadioGroup radios;
};

using FieldExchange = void (*)(CGraphicPropertyPage& page, CDataExchange* pDX, Field& field);

struct KindTraits {
    VARTYPE vt; // of the property; VT_EMPTY: the row has no value
    const char* className;
    DWORD style;
    short height;                           // closed, in dialog units
    short listHeight;                       // of the list that drops down
    bool hasLabel;                          // before the control; else the label is in it
    std::unique_ptr<CWnd> (*makeControl)(); // null: the system's control is all
    // Loads the field from the selection, or saves it: leaves a write pending if the field was edited.
    FieldExchange exchange;
    // Writes the value of the control to the preview graphics; nothing if it is not valid.
    FieldExchange preview;
    std::string (*format)(double limit); // null: the kind has no limits
    double least, most;                  // limits of a row without its own; equal: none
};

// Returns the traits of the row's kind, which must be a known one.
const KindTraits& TraitsOf(const FieldRow& row);

constexpr size_t kMostRadioButtons = 3;
// Returns whether the row is shown as radio buttons.
bool IsRadioChoice(const FieldRow& row);
