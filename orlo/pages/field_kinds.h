// The kinds of rows: the control of each, its exchange with a property, and its transfer to the preview.
#pragma once

#include <afxwin.h>

#include <wtypes.h>

#include <memory>
#include <string>

#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/field_row.h"
#include "orlo/pages/radio_group.h"

struct KindTraits;

// A row of a page with its control and value.
struct Field {
    const FieldRow* row = nullptr;
    const KindTraits* kind = nullptr;
    std::string property; // that of the row, or a generated name for a row with callbacks
    int id = 0;           // of the control

    // The value, in one of these members depending on the kind. Pending writes refer to them by address.
    CString text;
    double real = 0.0;
    int integer = 0;
    unsigned int entry = 0;
    unsigned long color = 0;

    std::unique_ptr<CWnd> control; // for kinds with a control class of the library
    CRadioGroup radios;
};

using FieldExchange = void (*)(CGraphicPropertyPage& page, CDataExchange* pDX, Field& field);

struct KindTraits {
    VARTYPE vt; // of the property; VT_EMPTY if the row has no value
    const char* className;
    DWORD style;
    short height;                           // when closed, in dialog units
    short listHeight;                       // of the drop-down list
    bool hasLabel;                          // label before the control; otherwise it is part of the control
    std::unique_ptr<CWnd> (*makeControl)(); // null for a control of the system
    // Loads the field from the selection, or saves it: adds a pending write if the field was edited.
    FieldExchange exchange;
    // Writes the control's value to the preview graphics if it is valid.
    FieldExchange preview;
    std::string (*format)(double limit); // null if the kind has no limits
    double least, most;                  // default limits of a row; equal for none
};

// Returns the traits of the row's kind, which must be valid.
const KindTraits& TraitsOf(const FieldRow& row);

constexpr size_t kMaxRadioButtons = 3;
// Returns whether the row is shown as radio buttons.
bool IsRadioChoice(const FieldRow& row);
