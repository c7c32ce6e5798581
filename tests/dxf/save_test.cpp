// Saving drawings of the database: what is read back, and what a call that fails leaves behind.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <memory>

#include <windows.h>

#include "drawcore/include/drawcore/drawing.h"
#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/include/drawcore/graphic.h"
#include "drawcore/include/drawcore/property_schema.h"
#include "drawcore/include/drawcore/undo.h"
#include "drawcore/include/drawcore/view.h"
#include "orlo/host/host.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"
#include "tests/dxf/test_files.h"

namespace {

namespace fs = std::filesystem;
using orlo::host::Members;
using orlo::host::ReadProperty;
using orlo::host::Vertices;
using orlo::host::WriteProperty;

struct DisposeDrawing {
    void operator()(DrawingStruct* drawing) const { DrawingDispose(&drawing); }
};
using OwnedDrawing = std::unique_ptr<DrawingStruct, DisposeDrawing>;

OwnedDrawing Open(const fs::path& path) {
    return OwnedDrawing(DrawingOpenDxf(path.c_str(), nullptr, nullptr, 0));
}

class Save : public testing::Test {
protected:
    ~Save() override { fs::remove(path); }

    int Write(const OwnedDrawing& drawing, uint32_t flags = 0, const DxfListener* listener = nullptr) {
        char text[256] = "not written";
        const int result = DrawingSaveDxf(drawing.get(), path.c_str(), flags, listener, text, sizeof text);
        message = text;
        return result;
    }
    bool IsWritten(const fs::path& original) const { return ReadBytes(path) == ReadBytes(original); }

    bool LeavesOthersBehind() const {
        return std::any_of(fs::directory_iterator(path.parent_path()), fs::directory_iterator(),
                           [](const auto& entry) { return entry.path().extension() == ".tmp"; });
    }

    const fs::path path = fs::temp_directory_path() / L"ges\u00E4ichert \u4E57.dxf";
    std::string message;
};

void ForDrawings(const std::function<void(const fs::path&, const OwnedDrawing&)>& work) {
    for (const auto& entry : fs::directory_iterator(fs::path(kDrawings))) {
        const OwnedDrawing drawing = Open(entry.path());
        SCOPED_TRACE(entry.path().filename().string());
        if (drawing) work(entry.path(), drawing);
    }
}

void ForGraphics(GraphicStruct* set, const std::function<void(GraphicStruct*)>& work) {
    for (GraphicStruct* g : Members(set)) {
        work(g);
        ForGraphics(g, work);
    }
}

// A value that no graphic has by itself. Entries of tables are those that every drawing has under the same number.
std::string NewText(const PropertyInfo& property) {
    return property.name == std::string(kPropTextFont) ? "Verdana" : "a^b\r\n\xE4\\";
}
double NewReal(const PropertyInfo& property) {
    return property.name == std::string(kPropPenWidth) ? 0.0123 : 1.375;
}
uint32_t NewWhole(const PropertyInfo& property) {
    const std::string name = property.name;
    if (property.meaning == kMeansColor) return 0x563412;
    if (name == kPropTextStyle) return 0x1143;
    if (name == kPropBrushStyle) return 2; // Horizontal
    if (name == kPropBrushDrawMode || name == kPropHatchCross || name == kPropLayer) return 1;
    return name == kPropTextFormat ? 2 : 0;
}

void Set(GraphicStruct* graphic, const PropertyInfo& property) {
    if (property.form == kFormText) WriteProperty(graphic, property.name, NewText(property));
    if (property.form == kFormReal) WriteProperty(graphic, property.name, NewReal(property));
    if (property.form == kFormWhole) WriteProperty(graphic, property.name, NewWhole(property));
}

void ExpectSet(GraphicStruct* graphic, const PropertyInfo& property) {
    const char* const name = property.name;
    switch (property.form) {
    case kFormText:
        EXPECT_EQ(ReadProperty<std::string>(graphic, name).value_or(NewText(property)), NewText(property));
        break;
    case kFormReal:
        EXPECT_NEAR(ReadProperty<double>(graphic, name).value_or(NewReal(property)), NewReal(property), 1e-9);
        break;
    case kFormWhole:
        EXPECT_EQ(ReadProperty<uint32_t>(graphic, name).value_or(NewWhole(property)), NewWhole(property));
    }
}

TEST_F(Save, WithoutAChangeIsTheSameFile) {
    ForDrawings([&](const fs::path& original, const OwnedDrawing& drawing) {
        EXPECT_EQ(Write(drawing), kSaveDone) << message;
        EXPECT_TRUE(IsWritten(original));
        DrawingBeginUndo(drawing.get());
        for (const PropertyInfo& property : AllProperties())
            ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) { Set(g, property); });
        DrawingEndUndo(drawing.get());
        DrawingUndo(drawing.get());
        EXPECT_EQ(Write(drawing), kSaveDone) << message;
        EXPECT_TRUE(IsWritten(original)) << "after undo";
    });
}

TEST_F(Save, HoldsAllPropertiesTogether) {
    ForDrawings([&](const fs::path&, const OwnedDrawing& drawing) {
        for (const PropertyInfo& property : AllProperties())
            ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) { Set(g, property); });
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing read = Open(path);
        ASSERT_TRUE(read);
        for (const PropertyInfo& property : AllProperties())
            ForGraphics(DrawingGetRoot(read.get()), [&](GraphicStruct* g) { ExpectSet(g, property); });
        ASSERT_EQ(Write(drawing), kSaveDone) << message; // of the file that it has become
        EXPECT_EQ(Write(read), kSaveDone) << message;
    });
}

TEST_F(Save, HoldsEachPropertyOfSomeGraphicsAndOfBlocks) {
    for (const PropertyInfo& property : AllProperties()) {
        SCOPED_TRACE(property.name);
        const OwnedDrawing drawing = Open(kDrawings + "acadsharp-sample-AC1032.dxf");
        TableStruct* blocks = DrawingGetTable(drawing.get(), kTableBlocks);
        int index = 0;
        ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) {
            if (++index % 3 == 0) Set(g, property);
        });
        for (const uint16_t id : orlo::host::Entries(blocks))
            ForGraphics(BlockGetGraphic(blocks, id), [&](GraphicStruct* g) { Set(g, property); });
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing read = Open(path);
        ASSERT_TRUE(read);
        index = 0;
        ForGraphics(DrawingGetRoot(read.get()), [&](GraphicStruct* g) {
            if (++index % 3 == 0) ExpectSet(g, property);
        });
        TableStruct* readBlocks = DrawingGetTable(read.get(), kTableBlocks);
        for (const uint16_t id : orlo::host::Entries(readBlocks))
            ForGraphics(BlockGetGraphic(readBlocks, id), [&](GraphicStruct* g) { ExpectSet(g, property); });
    }
}

// Turned by 30 degrees and moved; before that stretched, mirrored, tilted into space, slanted.
enum class Way { stretched, mirrored, tilted, slanted };
void PutVertices(GraphicStruct* insert, Way way) {
    const double c = std::cos(0.5235987755982988), s = 0.5;
    for (VertexStruct* v : Vertices(insert)) {
        double x = v->x * 2, y = v->y * 2, z = v->z * 2;
        if (way == Way::mirrored) x = -x;
        if (way == Way::slanted) x = y + x * 3;
        if (way == Way::tilted) {
            y = (v->y * c - v->z * s) * 2;
            z = (v->y * s + v->z * c) * 2;
        }
        VertexSet(v, x * c - y * s + 10, x * s + y * c - 3, z);
    }
}

TEST_F(Save, HoldsThePlacesOfInsertionsWithTheirAttributes) {
    struct Row {
        const char* file;
        Way way;
    };
    constexpr const char *kMade = "made-inserts-R2000.dxf", *kNested = "ezdxf-insert-nested-mirrored.dxf",
                         *kArray = "dxf-array-rotated.dxf";
    for (const Row& row :
         {Row{kMade, Way::stretched}, Row{kMade, Way::mirrored}, Row{kMade, Way::tilted},
          Row{kNested, Way::stretched}, Row{kNested, Way::mirrored}, Row{kNested, Way::tilted},
          Row{kNested, Way::slanted}, Row{kArray, Way::mirrored}, Row{kArray, Way::tilted}}) {
        SCOPED_TRACE(row.file + std::string(" ") + std::to_string(static_cast<int>(row.way)));
        const OwnedDrawing drawing = Open(kDrawings + row.file);
        ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) {
            if (g->bType == kGraphicInsert) PutVertices(g, row.way);
        });
        EXPECT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing read = Open(path);
        double was[4] = {}, is[4] = {};
        ExtentsGetBox(GraphicGetExtentsSel(DrawingGetRoot(drawing.get()), 0), was);
        ExtentsGetBox(GraphicGetExtentsSel(DrawingGetRoot(read.get()), 0), is);
        for (int i = 0; i < 4; ++i)
            EXPECT_NEAR(is[i], was[i], 1e-6) << i;
    }
}

TEST_F(Save, AsksBeforeItOverwritesWhatAnotherProgramHasWritten) {
    fs::copy_file(kDrawings + "made-gbk-R2004.dxf", path, fs::copy_options::overwrite_existing);
    const OwnedDrawing drawing = Open(path);
    const std::string other = ReadBytes(path) + "from another program";
    std::ofstream(path, std::ios::binary) << other;
    EXPECT_EQ(Write(drawing), kSaveFileChanged);
    EXPECT_TRUE(ReadBytes(path) == other);
    EXPECT_EQ(Write(drawing, kSaveOverChanged), kSaveDone) << message;
    EXPECT_TRUE(IsWritten(kDrawings + "made-gbk-R2004.dxf"));
}

struct Reports {
    std::vector<int> heard;
    int cancelAt = 1001; // never
    static int Hear(void* context, int permille) {
        Reports& reports = *static_cast<Reports*>(context);
        reports.heard.push_back(permille);
        return permille < reports.cancelAt ? 1 : 0;
    }
};

TEST_F(Save, CanBeCancelledWithEachReport) {
    const fs::path original = kDrawings + "acadsharp-sample-AC1032.dxf";
    fs::copy_file(original, path, fs::copy_options::overwrite_existing);
    const OwnedDrawing drawing = Open(path);
    ForGraphics(DrawingGetRoot(drawing.get()),
                [](GraphicStruct* g) { WriteProperty(g, kPropInfo, std::string("x")); });
    Reports whole;
    const DxfListener listener = {&whole, Reports::Hear, nullptr};
    ASSERT_EQ(Write(drawing, 0, &listener), kSaveDone) << message;
    EXPECT_TRUE(std::is_sorted(whole.heard.begin(), whole.heard.end()));
    EXPECT_EQ(whole.heard.back(), 1000);
    const std::string saved = ReadBytes(path);
    ForGraphics(DrawingGetRoot(drawing.get()),
                [](GraphicStruct* g) { WriteProperty(g, kPropInfo, std::string("y")); });
    for (const int permille : whole.heard) {
        Reports reports;
        reports.cancelAt = permille;
        const DxfListener cancels = {&reports, Reports::Hear, nullptr};
        EXPECT_EQ(Write(drawing, 0, &cancels), kSaveCancelled) << permille;
        EXPECT_EQ(message, "cancelled");
        EXPECT_EQ(reports.heard.back(), permille) << "and nothing is reported afterwards";
        EXPECT_TRUE(ReadBytes(path) == saved) << permille;
        EXPECT_FALSE(LeavesOthersBehind()) << permille;
    }
    EXPECT_EQ(Write(drawing), kSaveDone) << "as if nobody had cancelled: " << message;
}

TEST_F(Save, LeavesTheFileAloneWhereItFails) {
    const fs::path original = kDrawings + "made-gbk-R2004.dxf";
    fs::copy_file(original, path, fs::copy_options::overwrite_existing);
    const OwnedDrawing drawing = Open(path);
    uint32_t place = 0;
    GraphicStruct* first = GraphicFirst(DrawingGetRoot(drawing.get()), &place, 1, kKindVertices);
    WriteProperty(first, kPropPenColor, uint32_t{0x563412});

    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(Write(drawing), kSaveFailed);
    EXPECT_EQ(message, "the file is read-only");
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);

    GraphicStruct* added = GraphicAdd(DrawingGetRoot(drawing.get()), GraphicNewEx(kGraphicVertices, 0, 0));
    EXPECT_EQ(Write(drawing), kSaveFailed);
    EXPECT_EQ(message, "graphics were added or removed, which the file can't take");
    GraphicDelete(DrawingGetRoot(drawing.get()), added);
    GraphicDispose(&added);

    VertexStruct* moved = *Vertices(first).begin();
    const double x = moved->x;
    VertexSet(moved, x + 1, moved->y, moved->z);
    EXPECT_EQ(Write(drawing), kSaveFailed);
    EXPECT_EQ(message, "the file can't hold a change of its vertices");
    VertexSet(moved, x, moved->y, moved->z);

    EXPECT_TRUE(IsWritten(original));
    EXPECT_FALSE(LeavesOthersBehind());
    EXPECT_EQ(Write(drawing), kSaveDone) << message;

    const OwnedDrawing made(DrawingNew());
    EXPECT_EQ(Write(made), kSaveFailed);
    EXPECT_EQ(message, "the drawing was not opened from a DXF file");
    EXPECT_EQ(DrawingSaveDxf(nullptr, path.c_str(), 0, nullptr, nullptr, 0), kSaveFailed);
}

} // namespace
