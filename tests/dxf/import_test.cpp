// Drawings opened into the database: tables, properties and extents.

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

#include <windows.h>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/include/drawcore/graphic.h"
#include "drawcore/include/drawcore/layer.h"
#include "drawcore/include/drawcore/object_counts.h"
#include "drawcore/include/drawcore/owned_drawing.h"
#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/geometry/extents.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "orlo/host/host.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#include "tests/dxf/drawing_text.h"
#include "tests/dxf/extents_rows.h"
#include "tests/dxf/test_files.h"

namespace {

struct RecordedCalls {
    int cancelAt = 1001; // never
    std::vector<int> progress;
    std::string warnings;
    char message[256] = "not written";
};

OwnedDrawing Open(const std::wstring& path, RecordedCalls& recorded) {
    const auto progress = [](void* context, int permille) {
        RecordedCalls& record = *static_cast<RecordedCalls*>(context);
        record.progress.push_back(permille);
        return permille < record.cancelAt ? 1 : 0;
    };
    const auto warning = [](void* context, int line, const char* text) {
        static_cast<RecordedCalls*>(context)->warnings += std::to_string(line) + " " + text + "\n";
    };
    const DxfListener listener = {&recorded, progress, warning};
    return OwnedDrawing(DrawingOpenDxf(path.c_str(), &listener, recorded.message, sizeof recorded.message));
}

// A file that exists during the test.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& bytes) {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        path = folder + std::wstring(L"Gr\u00FC\u00DFe \u4E57.dxf");
        FILE* file = ::_wfopen(path.c_str(), L"wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
    ~TemporaryFile() { ::DeleteFileW(path.c_str()); }

    std::wstring path;
};

OwnedDrawing OpenText(const std::string& bytes, RecordedCalls& recorded) {
    return Open(TemporaryFile(bytes).path, recorded);
}

OwnedDrawing OpenText(const std::string& bytes) {
    RecordedCalls recorded;
    OwnedDrawing drawing = OpenText(bytes, recorded);
    EXPECT_TRUE(drawing) << recorded.message;
    return drawing;
}

std::vector<GraphicStruct*> Members(GraphicStruct* set) {
    std::vector<GraphicStruct*> members;
    for (GraphicStruct* member : orlo::host::Members(set))
        members.push_back(member);
    return members;
}

std::vector<GraphicStruct*> Members(const OwnedDrawing& drawing) {
    return Members(DrawingGetRoot(drawing.get()));
}

// Returns NaN if the graphic has no such property.
double Number(GraphicStruct* graphic, const char* name) {
    if (const auto value = orlo::host::ReadProperty<double>(graphic, name)) return *value;
    const auto whole = orlo::host::ReadProperty<uint32_t>(graphic, name);
    return whole ? *whole : std::nan("");
}

std::string NameOf(DrawingStruct* drawing, const char* table, double id) {
    char name[256] = "";
    TableEntryGetName(DrawingGetTable(drawing, table), static_cast<uint16_t>(id), name, sizeof name);
    return name;
}

const drawcore::Extents& BoxOf(const OwnedDrawing& drawing) {
    return *drawcore::Extents::From(GraphicGetExtentsSel(DrawingGetRoot(drawing.get()), 0));
}

const char kTables[] = "0|LTYPE|2|ByLayer|0|LTYPE|2|Dashed|3|- - -|40|0.75|49|0.5|49|-0.25|0|LTYPE|2|Zero|49|0|"
                       "0|LAYER|2|WALLS|62|-1|70|5|6|DASHED|370|25|0|LAYER|2|\xD0\x9E\xD1\x81\xD0\xB8|420|255";

std::string Drawing2007(const std::string& entities, const std::string& blocks = "") {
    return Section("HEADER", "9|$ACADVER|1|AC1021|9|$INSUNITS|70|1") + Section("TABLES", kTables) +
           Drawing(entities, blocks);
}

TEST(Import, OpensWhatTheReaderReadsOrFails) {
    WIN32_FIND_DATAA found;
    const HANDLE search = ::FindFirstFileA((kDrawings + "*.dxf").c_str(), &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    do {
        DrawCoreObjectCounts before{}, after{};
        DrawCoreGetObjectCounts(&before);
        const std::string file = kDrawings + found.cFileName;
        RecordedCalls recorded;
        OwnedDrawing drawing = Open(std::wstring(file.begin(), file.end()), recorded);
        try {
            const drawcore::Extents box = dxf::ExtentsOf(dxf::Read(dxf::ReadBytes(file), {}));
            ASSERT_TRUE(drawing) << file << recorded.message;
            EXPECT_TRUE(std::is_sorted(recorded.progress.begin(), recorded.progress.end())) << file;
            EXPECT_EQ(recorded.progress.back(), 1000) << file;
            if (!box.IsEmpty()) {
                const drawcore::Extents& own = BoxOf(drawing);
                constexpr double slack = 1e-9;
                EXPECT_LE(own.low.x, box.low.x + slack) << file;
                EXPECT_LE(own.low.y, box.low.y + slack) << file;
                EXPECT_GE(own.high.x, box.high.x - slack) << file;
                EXPECT_GE(own.high.y, box.high.y - slack) << file;
            }
        } catch (const dxf::ReadError& error) {
            EXPECT_FALSE(drawing) << file;
            EXPECT_STREQ(recorded.message, error.what()) << file;
        }
        drawing.reset();
        DrawCoreGetObjectCounts(&after);
        EXPECT_EQ(before.graphics, after.graphics) << file;
    } while (::FindNextFileA(search, &found));
    ::FindClose(search);
}

TEST(Import, AMissingFileIsReported) {
    RecordedCalls recorded;
    EXPECT_FALSE(Open(L"Z:\\no\\such.dxf", recorded));
    EXPECT_STREQ(recorded.message, "the file cannot be opened: no such folder");
    EXPECT_FALSE(DrawingOpenDxf(nullptr, nullptr, nullptr, 0));
}

TEST(Import, CanBeCanceledWithEachReport) {
    const std::wstring path = std::filesystem::path(kDrawings + "kabeja-draft4-roof-details.dxf").wstring();
    RecordedCalls whole;
    ASSERT_TRUE(Open(path, whole));
    DrawCoreObjectCounts before{}, after{};
    DrawCoreGetObjectCounts(&before);
    for (const int permille : whole.progress) {
        RecordedCalls recorded;
        recorded.cancelAt = permille;
        EXPECT_FALSE(Open(path, recorded)) << permille;
        EXPECT_STREQ(recorded.message, "canceled");
        EXPECT_EQ(recorded.progress.back(), permille) << "and nothing is reported afterward";
    }
    DrawCoreGetObjectCounts(&after);
    EXPECT_EQ(before.graphics, after.graphics);
}

TEST(Import, TablesAreThoseOfTheFile) {
    const OwnedDrawing drawing =
        OpenText(Drawing2007("0|LINE|8|mentioned", "0|BLOCK|2|Door|0|ENDBLK|0|BLOCK|2|*Model_Space|0|ENDBLK"));
    DrawingStruct* const d = drawing.get();
    TableStruct* const layers = DrawingGetTable(d, kTableLayers);
    const uint16_t walls = TableEntryGetIDFirst(layers, nullptr, "walls");
    EXPECT_EQ(LayerGetColor(d, walls), RGB(255, 0, 0));
    EXPECT_EQ(LayerGetFlags(d, walls), kLayerOff | kLayerFrozen | kLayerLocked);
    EXPECT_EQ(NameOf(d, kTableLineStyles, LayerGetLineStyle(d, walls)), "Dashed");
    const uint16_t axes = TableEntryGetIDFirst(layers, nullptr, "\\U+041E\\U+0441\\U+0438"); // not in the code page
    EXPECT_EQ(LayerGetColor(d, axes), RGB(0, 0, 255));
    EXPECT_NE(TableEntryGetIDFirst(layers, nullptr, "mentioned"), 0);
    TableStruct* const styles = DrawingGetTable(d, kTableLineStyles);
    EXPECT_EQ(LineStyleGetDLItems(styles, TableEntryGetIDFirst(styles, nullptr, "DASHED")), 2);
    EXPECT_EQ(LineStyleGetDLItems(styles, TableEntryGetIDFirst(styles, nullptr, "Zero")),
              0); // no length: solid
    EXPECT_EQ(TableEntryGetIDFirst(styles, nullptr, "ByLayer"), 0);
    TableStruct* const blocks = DrawingGetTable(d, kTableBlocks);
    EXPECT_NE(TableEntryGetIDFirst(blocks, nullptr, "Door"), 0);
    EXPECT_EQ(TableEntryGetIDFirst(blocks, nullptr, "*Model_Space"), 0);
    char unit[16] = "";
    TableGetStringVar(DrawingGetTable(d, kTableUnits), kUnitPenWidth, unit, sizeof unit);
    EXPECT_STREQ(unit, "in");
}

TEST(Import, LengthsAndAnglesAreWrittenAsInTheFile) {
    const auto texts = [](const std::string& header) {
        const auto drawing = OpenText(Section("HEADER", header) + Drawing("0|LINE"));
        char length[64] = "", angle[64] = "";
        DrawingStdNumericToText(drawing.get(), 18.5, length, sizeof length, 0);
        DrawingStdAngleToText(drawing.get(), 0.7853981633974483, angle, sizeof angle, 0);
        return std::string(length) + " " + angle;
    };
    EXPECT_EQ(texts("9|$LUNITS|70|4|9|$LUPREC|70|4|9|$AUNITS|70|1|9|$AUPREC|70|4"), "1'-6 1/2\" 45d");
    EXPECT_EQ(texts("9|$LUNITS|70|1|9|$LUPREC|70|2|9|$AUNITS|70|3|9|$AUPREC|70|4"), "1.85e+01 0.7854");
    EXPECT_EQ(texts("9|$LUNITS|70|5|9|$LUPREC|70|99|9|$AUNITS|70|4"), "18 1/2 N 45d E");
    EXPECT_EQ(texts("9|$LUNITS|70|77|9|$LUPREC|70|-1|9|$AUNITS|70|-3"), "18.5 45") << "no such forms";
}

TEST(Import, GraphicsHaveTheAppearanceOfTheFile) {
    struct Row {
        const char* entity;
        const char* property;
        double value;
    };
    const Row rows[] = {
        {"0|LINE", kPropPenColor, 0xFFFFFFFD}, // by layer
        {"0|LINE", kPropPenStyle, 0xFFFE},
        {"0|LINE|62|0|6|BYBLOCK", kPropPenColor, 0xFFFFFFFC},
        {"0|LINE|62|0|6|BYBLOCK", kPropPenStyle, 0xFFFD},
        {"0|LINE|62|3", kPropPenColor, 0x00FF00},
        {"0|LINE|62|3|420|16711935", kPropPenColor, 0xFF00FF},
        {"0|LINE|420|255", kPropPenColor, 0xFF0000},
        {"0|LINE|48|2.5", kPropPenScale, 2.5},
        {"0|LINE|370|127", kPropPenWidth, 0.05}, // inches
        {"0|LINE|370|127", kPropScaleSystem, 2}, // on paper
        {"0|LINE|8|WALLS", kPropPenWidth, 25 / 2540.0},
        {"0|LINE", kPropPenWidth, 0},
        {"0|LWPOLYLINE|43|1.5|10|0|20|0|10|1|20|0", kPropPenWidth, 1.5},
        {"0|LWPOLYLINE|43|1.5|10|0|20|0|10|1|20|0", kPropScaleSystem, 0}, // in the drawing
        {"0|LWPOLYLINE|10|0|20|0|40|1|41|2|10|1|20|0", kPropPenWidth, 0}, // its segments have their own widths
        {"0|LWPOLYLINE|210|1|220|1|230|1|43|1.5|10|0|20|0|42|1|10|1|20|0", kPropPenWidth, 1.5}, // tilted
        {"0|LWPOLYLINE|70|128|10|0|20|0|10|1|20|0", kPropPenAlignment, 0},
        {"0|SOLID|10|0|20|0|11|1|21|0|12|0|22|1", kPropBrushStyle, 1},
        {"0|SOLID|10|0|20|0|11|1|21|0|12|0|22|1", kPropBrushColor, 0xFFFFFFFB}, // as the pen
        {"0|HATCH|70|1|91|1|92|2|10|0|20|0|10|1|20|0|10|0|20|1", kPropBrushStyle, 1},
        {"0|HATCH|70|1|91|1|92|2|10|0|20|0|10|1|20|0|10|0|20|1", kPropPenStyle, 0},
        {"0|CIRCLE|40|1|8|WALLS", kPropLayer, 2},
        {"0|TEXT|40|3|1|x", kPropTextSize, 3},
        {"0|TEXT|40|3|1|x|72|2", kPropTextFormat, 2},
        {"0|TEXT|40|3|1|%%ux", kPropTextStyle, 0x100},
        {"0|MTEXT|40|3|1|\\L\\H2x;x|71|5", kPropTextStyle, 0x100},
        {"0|MTEXT|40|3|1|\\L\\H2x;x|71|5", kPropTextSize, 6},
        {"0|MTEXT|40|3|1|\\C2;x", kPropPenColor, 0x00FFFF},
        {"0|MTEXT|40|3|1|x|71|6", kPropTextFormat, 2},
        {"0|MTEXT|40|3|1|\\pxi1,qc,t2;x|71|1", kPropTextFormat, 1},
        {"0|MTEXT|40|3|1|\\pql;x|71|6", kPropTextFormat, 0},
    };
    for (const Row& row : rows) {
        const OwnedDrawing drawing = OpenText(Drawing2007(std::string(row.entity)));
        const auto members = Members(drawing);
        ASSERT_EQ(members.size(), 1u) << row.entity;
        EXPECT_DOUBLE_EQ(Number(members[0], row.property), row.value) << row.entity << " " << row.property;
    }
}

TEST(Import, ExtentsMatchTheFile) {
    for (const ExtentsRow& row : kExtentsRows) {
        const OwnedDrawing drawing = OpenText(Drawing(row.entities, kExtentsBlocks));
        const drawcore::Extents& box = BoxOf(drawing);
        if (std::string(row.entities).find("ATTRIB") != std::string::npos)
            continue;                  // a text without letters has no extents
        constexpr double kNear = 2e-3; // arcs that a bulge cannot represent consist of short lines
        EXPECT_LE(box.low.x, row.x1 + kNear) << row.name;
        EXPECT_LE(box.low.y, row.y1 + kNear) << row.name;
        EXPECT_GE(box.high.x, row.x2 - kNear) << row.name;
        EXPECT_GE(box.high.y, row.y2 - kNear) << row.name;
        if (std::string(row.entities).find("INSERT") != std::string::npos) continue; // its extents may be larger
        EXPECT_GE(box.low.x, row.x1 - kNear) << row.name;
        EXPECT_GE(box.low.y, row.y1 - kNear) << row.name;
        EXPECT_LE(box.high.x, row.x2 + kNear) << row.name;
        EXPECT_LE(box.high.y, row.y2 + kNear) << row.name;
    }
}

TEST(Import, ParagraphsAreAlignedInTheBoxOfTheirText) {
    struct Row {
        const char* codes;
        double fromLeft, fromRight; // shares of the space beside the longest row
    };
    for (const Row& row : {Row{"", 0, 1}, {"\\pxqc;", 0.5, 0.5}, {"\\pqr;", 1, 0}, {"\\pqj;", 0, 1}}) {
        const OwnedDrawing drawing =
            OpenText(Drawing("0|MTEXT|10|100|20|0|40|3|41|60|71|1|1|" + std::string(row.codes) + "an alignment"));
        const drawcore::Extents& box = BoxOf(drawing);
        const double room = 60 - (box.high.x - box.low.x);
        EXPECT_NEAR(box.low.x - 100, row.fromLeft * room, 1e-6) << row.codes;
        EXPECT_NEAR(160 - box.high.x, row.fromRight * room, 1e-6) << row.codes;
    }
}

// In a plane tilted by 60 degrees: a half circle of radius 5 whose width grows from 0 to 2, and a straight segment
// back.
TEST(Import, TiltedPolylinesKeepTheWidthsOfTheirSegments) {
    const OwnedDrawing drawing = OpenText(
        Drawing("0|LWPOLYLINE|70|1|210|0|220|-0.8660254|230|0.5|10|0|20|0|40|0|41|2|42|1|10|10|20|0|40|3|41|3"));
    const auto members = Members(drawing);
    ASSERT_EQ(members.size(), 1u);
    const auto& graphic = static_cast<const drawcore::VertexGraphic&>(*drawcore::Graphic::From(members[0]));
    ASSERT_GT(graphic.vertices.size(), 20u);
    EXPECT_TRUE(graphic.closed);
    EXPECT_EQ(graphic.vertices.back().Next().startWidth, 3);
    EXPECT_EQ(graphic.vertices.back().Next().endWidth, 3);
    const size_t pieces = graphic.vertices.size() - 1;
    for (size_t i = 0; i < pieces; ++i) {
        EXPECT_NEAR(graphic.vertices[i].Next().startWidth, 2.0 * i / pieces, 1e-9) << i;
        EXPECT_NEAR(graphic.vertices[i].Next().endWidth, 2.0 * (i + 1) / pieces, 1e-9) << i;
    }
    EXPECT_NEAR(BoxOf(drawing).low.y, -2.5, 0.02) << "the half circle in a tilted plane";
}

TEST(Import, SplinesHaveTheListedExtents) {
    const std::string fit = Drawing("0|SPLINE|70|8|71|3|74|4|11|0|21|0|11|10|21|10|11|12|21|-8|11|30|21|0");
    const drawcore::Extents listed = dxf::ExtentsOf(dxf::Read(fit, {}));
    const OwnedDrawing drawing = OpenText(fit);
    EXPECT_EQ(listed.low.y, BoxOf(drawing).low.y);
    EXPECT_EQ(listed.high.y, BoxOf(drawing).high.y);
    EXPECT_NEAR(listed.low.y, -8.934, 5e-4) << "a cubic of continuous curvature";
    EXPECT_NEAR(listed.high.y, 10.675, 5e-4);
}

TEST(Import, HatchesOfOnePatternShareItsStyle) {
    const std::string hatch = "0|HATCH|2|Brick|91|1|92|2|10|0|20|0|10|9|20|0|10|0|20|9|75|0|";
    const OwnedDrawing drawing = OpenText(
        Drawing(hatch + "52|0|41|1|78|1|53|45|43|0|44|0|45|0|46|1|79|0|" +      // spacing cos 45 degrees
                hatch + "52|90|41|10|78|1|53|135|43|7|44|7|45|-10|46|0|79|0|" + // the same, scaled, rotated and moved
                hatch + "52|0|41|1|78|1|53|45|43|0|44|0|45|0|46|2|79|0"));      // a different one with the same name
    const auto members = Members(drawing);
    ASSERT_EQ(members.size(), 3u);
    EXPECT_EQ(NameOf(drawing.get(), kTableBrushStyles, Number(members[0], kPropBrushStyle)), "Brick");
    EXPECT_EQ(Number(members[1], kPropBrushStyle), Number(members[0], kPropBrushStyle));
    EXPECT_EQ(Number(members[1], kPropBrushScale), 10);
    EXPECT_NEAR(Number(members[1], kPropBrushAngle), drawcore::kPi / 2, 1e-12);
    EXPECT_EQ(NameOf(drawing.get(), kTableBrushStyles, Number(members[2], kPropBrushStyle)), "Brick 2");
}

TEST(Import, AttributesBelongToTheirInsertion) {
    const std::string blocks = "0|BLOCK|2|Door|0|LINE|11|5|0|ATTDEF|40|1|2|NO|1|default|0|ENDBLK";
    const std::string attribute = "0|ATTRIB|40|1|2|NO|1|17|0|SEQEND|";
    const OwnedDrawing drawing = OpenText(Drawing(
        "0|INSERT|2|DOOR|66|1|" + attribute + "0|INSERT|2|gone|66|1|" + attribute + "0|ATTDEF|40|1|2|TAG", blocks));
    const auto members = Members(drawing);
    ASSERT_EQ(members.size(), 3u); // the attribute of the insertion without a block is a member itself
    EXPECT_EQ(GraphicGetKind(members[0]), uint32_t{kKindInsert});
    ASSERT_EQ(Members(members[0]).size(), 1u);
    EXPECT_EQ(GraphicGetKind(members[1]), uint32_t{kKindText});
    EXPECT_EQ(GraphicGetKind(members[2]), uint32_t{kKindText}); // the tag of the attribute
}

TEST(Import, ReportsOmittedEntities) {
    RecordedCalls recorded;
    const OwnedDrawing drawing = OpenText(Drawing("0|RAY|0|LINE|67|1|0|LINE|10|nan|0|TEXT|1||0|LINE|60|1"), recorded);
    EXPECT_EQ(Members(drawing).size(), 0u);
    EXPECT_EQ(recorded.warnings, "17 LINE omitted: invalid coordinate in line 20\n"
                                 "11 1 of type RAY not shown: unsupported type\n"
                                 "0 1 entity of paper space is not shown\n");
    EXPECT_STREQ(recorded.message, "");
}

} // namespace
