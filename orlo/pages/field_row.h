// The table that defines a page: its rows, the property that each row edits, and its appearance. See field_page.h.
//
//   FieldTable table;
//   table.caption = "Room";
//   table.rows = {{FieldKind::Text, "&Number:", "RoomNumber"}, {FieldKind::Length, "&Height:", "RoomHeight"}};
//   table.rows[1].max = 100.0;
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "orlo/host/records.h"

// The kind of a row. The second column is the value type of the property, the third the member of FieldValue.
enum class FieldKind : uint32_t {
    Text = 1,   // VT_BSTR  text    one line
    Lines,      // VT_BSTR  text    several lines, separated by "\r\n"
    Integer,    // VT_I4    number
    Number,     // VT_R8    number  up to 10 significant digits are shown
    Length,     // VT_R8    number  in drawing units; shown and parsed in the drawing's format of lengths
    Angle,      // VT_R8    number  in radians; shown and parsed in the drawing's format of angles
    Scale,      // VT_R8    number  a factor
    Check,      // VT_BOOL  number  0 or 1
    Choice,     // VT_I4    number  index in FieldRow::choices; radio buttons up to three choices, else a list
    Date,       // VT_R8    number  days since 1899-12-30, as in VT_DATE; shown and parsed in the user's locale
    Color,      // VT_UI4   number  a COLORREF or a marker such as kColorByLayer
    Layer,      // VT_UI4   number  entry of kTableLayers
    LineStyle,  // VT_UI4   number  entry of kTableLineStyles or a marker such as kLineStyleByLayer
    BrushStyle, // VT_UI4   number  entry of kTableBrushStyles or kBrushStyleNone
    FontFace,   // VT_BSTR  text    name of a face
    FontHeight, // VT_R8    number  in drawing units
    Button,     // no value: a push button; with the label "..." it is placed at the end of the previous row
    Note        // no value: the label is shown as text across the column
};
constexpr FieldKind kLastFieldKind = FieldKind::Note;

// A value of a row. The row's kind determines which member is used.
struct FieldValue {
    double number = 0.0;
    std::string text; // in the code page of the system
};

// One row. All texts are in the code page of the system.
struct FieldRow {
    FieldRow() = default;
    FieldRow(FieldKind itsKind, std::string itsLabel, std::string itsProperty = "", std::string itsGroup = "")
        : kind(itsKind), label(std::move(itsLabel)), property(std::move(itsProperty)), group(std::move(itsGroup)) {}

    FieldKind kind = FieldKind::Text;
    // An ampersand precedes the mnemonic. It is removed if an earlier row or a button of the sheet (Apply, Reset,
    // Close, Help) has the same mnemonic.
    std::string label;
    // Name of the property. Must be empty for a button or a note; can be empty if `get` is set.
    std::string property;
    std::string group;                // consecutive rows with the same group share a box with this title; empty for no
                                      // box
    std::string unit;                 // shown after the field
    std::string help;                 // tooltip, and passed to FieldTable::onStatus
    std::vector<std::string> choices; // of a Choice; mnemonics are for radio buttons
    // Limits of a number, inclusive, in the units of FieldKind; equal limits mean none. Of Text and Lines, max is the
    // largest number of bytes.
    double min = 0.0, max = 0.0;
    bool readOnly = false;
    bool inPreview = false; // the page shows a copy of the first graphic as its preview, with this property as edited

    // Read and write the value instead of the property table. Set both or neither; `set` can be empty for a read-only
    // row. They return false if the graphic has no such property or rejects the value. They must not keep the pointer
    // to the graphic, which can be the copy in the preview. A number that the kind cannot represent, such as 2.5 for an
    // Integer, is treated as if the graphic had no such property.
    std::function<bool(GraphicStruct* graphic, FieldValue& value)> get;
    std::function<bool(GraphicStruct* graphic, const FieldValue& value)> set;
    // Called with an edited value within the limits. Returns the message to show if it is not valid, else an empty
    // string.
    std::function<std::string(const FieldValue& value)> check;
    // Called when a Button is pressed. Returns true if it has changed graphics; fields that are not edited are then
    // reloaded.
    std::function<bool()> press;
};

struct FieldTable {
    std::string caption; // title of the tab
    std::vector<FieldRow> rows;
    // Returns whether the page applies to a graphic; others are neither shown nor changed. Empty for all graphics.
    std::function<bool(GraphicStruct* graphic)> accepts;
    // Called with the help text of the field that gets the focus; empty if it has none. Can be empty.
    std::function<void(const std::string& help)> onStatus;
};
