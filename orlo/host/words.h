// The vocabulary of the contract between library and host: names of tables and properties, types and flags of graphics,
// markers that stand for a value, numbers of variables and strings. Plain C; no window header.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
#define ORLO_CONSTANT constexpr
#else
#define ORLO_CONSTANT static const
#endif

// Tables of a drawing, by the names that DrawingGetTable takes.
ORLO_CONSTANT char kTableLayers[] = "_Layers_";
ORLO_CONSTANT char kTableLineStyles[] = "_LineStyles_";
ORLO_CONSTANT char kTableBrushStyles[] = "_BrushStyles_";
ORLO_CONSTANT char kTableColors[] = "_Colors_";
ORLO_CONSTANT char kTableBlocks[] = "_Blocks_";
ORLO_CONSTANT char kTableUnits[] = "_Units_";

// A block that lives as long as a Block Insertion page; a host that lists its blocks leaves it out.
ORLO_CONSTANT char kPreviewBlock[] = "$PREVIEW_BLOCK";

// Properties of graphics, by the names that PropLookup takes.
ORLO_CONSTANT char kPropLayer[] = "Layer";
ORLO_CONSTANT char kPropInfo[] = "Info"; // attribute text
ORLO_CONSTANT char kPropStyleTree[] =
    "StyleTree"; // the style that the graphic is drawn in, an entry of the block table
ORLO_CONSTANT char kPropPenColor[] = "PenColor";
ORLO_CONSTANT char kPropPenWidth[] = "PenWidth"; // by kPropScaleSystem
ORLO_CONSTANT char kPropPenScale[] = "PenScale"; // of the dash pattern
ORLO_CONSTANT char kPropPenStyle[] = "PenStyle";
ORLO_CONSTANT char kPropPenAlignment[] = "PenAlignment"; // 1: dashes are fitted to each segment
ORLO_CONSTANT char kPropScaleSystem[] = "ScaleSystem";
ORLO_CONSTANT char kPropBrushColor[] = "BrushColor";
ORLO_CONSTANT char kPropBrushAngle[] = "BrushAngle"; // radians
ORLO_CONSTANT char kPropBrushScale[] = "BrushScale";
ORLO_CONSTANT char kPropBrushStyle[] = "BrushStyle";
ORLO_CONSTANT char kPropBrushDrawMode[] = "BrushDrawMode"; // 0 alternate, 1 winding
ORLO_CONSTANT char kPropHatchCross[] = "HatchCross";
ORLO_CONSTANT char kPropTextFont[] = "TextFont";
ORLO_CONSTANT char kPropTextSize[] = "TextSize";     // height of a capital letter, drawing units
ORLO_CONSTANT char kPropTextStyle[] = "TextStyle";   // bits
ORLO_CONSTANT char kPropTextFormat[] = "TextFormat"; // kTextLeft ...

// Bits of kPropTextStyle. The two lowest, as a number, are the place in the list of font styles.
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

// Types of graphics (GraphicStruct::bType).
enum {
    kGraphicPenBrush = 2, // always takes pen and brush
    kGraphicText = 6,
    kGraphicVertices = 0x0B, // a vertex list, or a group: GraphicGetIsGroup says which
    kGraphicInsert = 0x11
};

// Flags of graphics (GraphicStruct::dwFlags).
enum {
    kFlagNoPenBrush = 0x40, // a vertex graphic that gets no Pen and Brush pages
    kFlagNoParent = 0x100,  // pParent does not apply
    kFlagPreview = 0x10000  // seen last by a walk over preview graphics
};

// Flags of vertices (VertexStruct::wFlags).
enum {
    kVertexDrawn = 1 // the segment to this vertex is drawn; a new vertex has it
};

// Filters of GraphicFirst and GraphicNext, and flags of a sheet.
ORLO_CONSTANT uint32_t kAllGraphics = 0xFFFFFFFFu;
ORLO_CONSTANT uint32_t kWithStylePart = 0xFFFFFFFBu; // all, and the General page has its style part

// Markers among the colours, which are 0x00bbggrr otherwise.
ORLO_CONSTANT uint32_t kColorIndeterminate = 0xFFFFFFFFu;
ORLO_CONSTANT uint32_t kColorNone = 0xFFFFFFFEu;
ORLO_CONSTANT uint32_t kColorByLayer = 0xFFFFFFFDu;
ORLO_CONSTANT uint32_t kColorByBlock = 0xFFFFFFFCu;
ORLO_CONSTANT uint32_t kColorOfPen = 0xFFFFFFFBu; // of a brush

// Markers among the line styles, which are entries of kTableLineStyles otherwise.
enum {
    kLineStyleNone = 0,
    kLineStyleByBlock = 65533,
    kLineStyleByLayer = 65534,
    kLineStyleIndeterminate = 65535
};

// A marker among the brush styles, which are entries of kTableBrushStyles otherwise.
enum { kBrushStyleNone = 0, kBrushStyleIndeterminate = 65535 };

// What the width of a pen means.
enum {
    kScaleWorld = 0,           // drawing units: it grows with the drawing
    kScalePaper = 2,           // inches of paper, the same at every zoom
    kScaleIndeterminate = 0xFF // texts of widths are as on paper
};

// Spaces that the lengths of a drawing are in (DrawingGetCoordSpace).
enum {
    kSpaceWorld = 0, // drawing units
    kSpacePaper = 1, // millimetres
    kSpaceDevice = 2 // has no lengths
};

// Variables of a units table.
enum {
    kUnitDrawing = 0x5033,    // name of the unit of lengths in the drawing, and of a number without a unit
    kUnitMillimetre = 0x5034, // always "mm"
    kUnitTextSize = 0x5035,   // name of the unit of text sizes on paper
    kUnitPenWidth = 0x5036,   // of pen widths on paper
    kUnitFontName = 0x50BC    // the face of the current font
};

// Variables of the application's table.
enum {
    kVarPreviewBackground = 0x5104 // a COLORREF
};

// Texts that the library asks the host for (DrawCoreLoadString).
enum {
    kStringByBlock = 0x7052,    // kLineStyleByBlock, kColorByBlock
    kStringByLayer = 0x7053,    // kLineStyleByLayer, kColorByLayer
    kStringLastColor = 0x7054,  // kColorOfPen
    kStringNoBrush = 0x7058,    // kBrushStyleNone
    kStringPaperScale = 0x7059, // kScalePaper
    kStringWorldScale = 0x705A, // kScaleWorld
    kStringSampleText = 0x705C  // preview of the Text page; at most 63 characters
};

// Names of styles that the host keeps for itself, in the order in which the library compares.
ORLO_CONSTANT unsigned int kStringsReservedStyles[] = {0x704A, 0x704B, 0x704C, 0x704D,
                                                       0x704E, 0x7050, 0x704F, 0x7051};

// An inch, the unit of pen widths on paper.
ORLO_CONSTANT double kMillimetresPerInch = 25.4;
ORLO_CONSTANT double kInchesPerMillimetre = 0.03937007874015748;
