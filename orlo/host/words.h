// The vocabulary of the contract between library and host: names of tables and properties, types and flags of graphics,
// special values (markers), numbers of variables and strings, kinds of controls. Plain C; no window header.
#pragma once

#include <stdint.h>

#include "orlo/host/property_list.h"

// Tables of a drawing: names for DrawingGetTable.
ORLO_CONSTANT char kTableLayers[] = "_Layers_";
ORLO_CONSTANT char kTableLineStyles[] = "_LineStyles_";
ORLO_CONSTANT char kTableBrushStyles[] = "_BrushStyles_";
ORLO_CONSTANT char kTableColors[] = "_Colors_"; // the data of an entry is a COLORREF*
ORLO_CONSTANT char kTableBlocks[] = "_Blocks_"; // the data of an entry is a GraphicStruct*, its contents
ORLO_CONSTANT char kTableUnits[] = "_Units_";   // variables only

// Name of a block that exists while a Block Insertion page is open. A host should not show it in its list of blocks.
ORLO_CONSTANT char kPreviewBlock[] = "$PREVIEW_BLOCK";

// Bits of kPropTextStyle. The two lowest bits, read as a number, are the index in the list of font styles.
enum {
    kTextItalic = 0x0001,
    kTextBold = 0x0002,
    kTextStrikethrough = 0x0004,
    kTextHidden = 0x0008,
    kTextAllCaps = 0x0040,
    kTextUnderline = 0x0100,
    kTextBox = 0x1000
};

// Values of kPropTextFormat.
enum { kTextLeft = 0, kTextCenter = 1, kTextRight = 2 };

// Ways to fit extents into the rectangle of a viewport (ViewportSetExtents).
enum { kFitWhole = 3 }; // width and height

// Types of graphics (GraphicStruct::bType).
enum {
    kGraphicPenBrush = 2,    // a curve; gets the Pen and Brush pages
    kGraphicText = 6,        // a text
    kGraphicVertices = 0x0B, // a vertex list, or a group if GraphicGetIsGroup returns non-zero
    kGraphicInsert = 0x11    // an insertion of a block
};

// Flags of graphics (GraphicStruct::dwFlags).
enum {
    kFlagNoPenBrush = 0x40, // a vertex graphic that does not get the Pen and Brush pages
    kFlagNoParent = 0x100,  // pParent is not valid
    kFlagPreview = 0x10000  // set or cleared by the library at each iteration: the graphic is one of a preview
};

// Flags of vertices (VertexStruct::wFlags).
enum {
    kVertexDrawn = 1 // the segment that ends at this vertex is drawn; set in a new vertex
};

// Filters of GraphicFirst and GraphicNext, which are also the flags of a sheet. Their bits are defined by the host,
// except for kNoStylePart.
enum {
    kNoStylePart = 4 // if set, the General page has no style part
};
ORLO_CONSTANT uint32_t kAllGraphics = 0xFFFFFFFFu;                  // all graphics, without the style part
ORLO_CONSTANT uint32_t kWithStylePart = 0xFFFFFFFFu - kNoStylePart; // all graphics, with the style part

// Markers: colors that are not a COLORREF (0x00bbggrr). An indeterminate value (color, line style, brush style, scale
// system) means that the selected graphics have different values; it is never stored in a graphic.
ORLO_CONSTANT uint32_t kColorIndeterminate = 0xFFFFFFFFu;
ORLO_CONSTANT uint32_t kColorNone = 0xFFFFFFFEu;
ORLO_CONSTANT uint32_t kColorByLayer = 0xFFFFFFFDu;
ORLO_CONSTANT uint32_t kColorByBlock = 0xFFFFFFFCu;
ORLO_CONSTANT uint32_t kColorOfPen = 0xFFFFFFFBu; // brushes only: the color of the pen

// Markers: pen widths that are not lengths; lengths are never negative. PropSet may accept them. PropGet returns the
// resolved width instead.
ORLO_CONSTANT double kPenWidthByLayer = -85070591730234615865843651857942052864.0;  // -2^126
ORLO_CONSTANT double kPenWidthByBlock = -170141183460469231731687303715884105728.0; // -2^127

// Markers: line styles that are not an entry of kTableLineStyles.
enum {
    kLineStyleNone = 0, // no line
    kLineStyleByBlock = 65533,
    kLineStyleByLayer = 65534,
    kLineStyleIndeterminate = 65535
};

// Markers: brush styles that are not an entry of kTableBrushStyles.
enum {
    kBrushStyleNone = 0, // no fill
    kBrushStyleIndeterminate = 65535
};

// Values of kPropScaleSystem: the unit of a pen width.
enum {
    kScaleWorld = 0,           // drawing units; the width grows with the drawing
    kScalePaper = 2,           // inches on paper; the same width at every zoom
    kScaleIndeterminate = 0xFF // widths are then displayed as on paper
};

// Spaces of lengths (DrawingGetCoordSpace).
enum {
    kSpaceWorld = 0, // drawing units
    kSpacePaper = 1, // millimeters
    kSpaceDevice = 2 // a device; lengths cannot be converted
};

// Variables of a units table. They are strings.
enum {
    kUnitDrawing = 0x5033,    // name of the unit of lengths in the drawing, and of a number without a unit
    kUnitMillimeter = 0x5034, // always "mm"
    kUnitTextSize = 0x5035,   // name of the unit of text sizes on paper
    kUnitPenWidth = 0x5036,   // name of the unit of pen widths on paper
    kUnitFontName = 0x50BC    // face name of the current font
};

// Variables of the application's table.
enum {
    kVarPreviewBackground = 0x5104 // integer: a COLORREF
};

// User-visible strings supplied by the host (DrawCoreLoadString).
enum {
    kStringByBlock = 0x7052,    // for kLineStyleByBlock and kColorByBlock
    kStringByLayer = 0x7053,    // for kLineStyleByLayer and kColorByLayer
    kStringLastColor = 0x7054,  // for kColorOfPen
    kStringNoBrush = 0x7058,    // for kBrushStyleNone
    kStringPaperScale = 0x7059, // for kScalePaper
    kStringWorldScale = 0x705A, // for kScaleWorld
    kStringSampleText = 0x705C  // the preview of the Text page; at most 63 characters
};

// Identifiers of the strings that name the host's predefined styles, which users cannot delete, in the order in which
// the library compares them.
ORLO_CONSTANT unsigned int kStringsReservedStyles[] = {0x704A, 0x704B, 0x704C, 0x704D, 0x704E, 0x7050, 0x704F, 0x7051};

// Kinds of the library's controls (OrloFill::kind, and the low word of wParam in a notification). A kind is not the
// identifier of a control in its dialog: all combo boxes of line styles have the same kind.
typedef enum ControlKind {
    kControlFontFaces = 0x7D00,
    kControlFontSizes = 0x7D01,
    kControlLineStyleCombo = 0x7D04,
    kControlColors = 0x7D05,
    kControlBrushStyleCombo = 0x7D07,
    kControlLayers = 0x7D08,
    kControlStyleNames = 0x7D0F,
    kControlLineStyleList = 0x7D15,
    kControlBrushStyleList = 0x7D18
} ControlKind;

// Codes with which the General page closes a sheet for a style. The library has changed nothing in the drawing, except
// that a style may have been added; the host carries out the action. If identifiers reach 1000, a code has two
// interpretations, and the host must check which of them is a style.
typedef enum StyleEndCode {
    kStyleAdded = 1000,     // a style was added to the table: a copy of the sheet's graphics
    kStyleChosen = 1000,    // + identifier: the user selected a style and moved to another control
    kStyleToDelete = 2000,  // + identifier: the user pressed Delete; the style still exists
    kStyleChosenByOk = 3000 // + identifier: the user selected a style and pressed OK
} StyleEndCode;

// Conversion of pen widths, which are in inches on paper.
ORLO_CONSTANT double kMillimetersPerInch = 25.4;
ORLO_CONSTANT double kInchesPerMillimeter = 0.03937007874015748;
