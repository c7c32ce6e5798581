// Saving drawings of the database: the values read back, and the state after a failed call.

#include "tests/dxf/save_fixture.h"

namespace {

class Save : public SavedDrawing {};

// Returns a value that no graphic has initially. Table entries are those with the same number in every drawing.
std::string NewText(const PropertyInfo& property) {
    return property.name == std::string(kPropTextFont) ? "Verdana" : "a^b\r\n\xE4\\";
}
double NewReal(const PropertyInfo& property) {
    return property.name == std::string(kPropPenWidth) ? 0.0123 : 1.375;
}
uint32_t NewWhole(GraphicStruct* graphic, const PropertyInfo& property) {
    switch (property.meaning) {
    case PropertyMeaning::Color:
        return 0x563412;
    case PropertyMeaning::Block: // the first one, if any
        return TableEntryFirst(BlocksFromDrawing(GraphicGetDrawing(graphic)), nullptr);
    case PropertyMeaning::TextStyle:
        return 0x1143;
    case PropertyMeaning::BrushStyle:
        return 2; // Horizontal
    case PropertyMeaning::Layer:
        return 1;
    case PropertyMeaning::LineStyle:
    case PropertyMeaning::ScaleSystem:
        return 0;
    default:
        return property.name == std::string(kPropPenAlignment) ? 0 : static_cast<uint32_t>(property.high);
    }
}

// Returns whether the graphic previously had another value.
bool Set(GraphicStruct* graphic, const PropertyInfo& property) {
    const auto put = [&](const auto& value) {
        const auto was = ReadProperty<std::decay_t<decltype(value)>>(graphic, property.name);
        WriteProperty(graphic, property.name, value);
        return was && *was != value;
    };
    return property.IsText()   ? put(NewText(property))
           : property.IsReal() ? put(NewReal(property))
                               : put(NewWhole(graphic, property));
}

void ExpectSet(GraphicStruct* graphic, const PropertyInfo& property) {
    const char* const name = property.name;
    if (property.IsText())
        EXPECT_EQ(ReadProperty<std::string>(graphic, name).value_or(NewText(property)), NewText(property));
    else if (property.IsReal())
        EXPECT_EQ(ReadProperty<double>(graphic, name).value_or(NewReal(property)), NewReal(property));
    else
        EXPECT_EQ(ReadProperty<uint32_t>(graphic, name).value_or(NewWhole(graphic, property)),
                  NewWhole(graphic, property));
}

TEST_F(Save, WithoutChangesKeepsTheFile) {
    ForDrawings([&](const fs::path& original, const OwnedDrawing& drawing) {
        EXPECT_EQ(Write(drawing), kSaveDone) << message;
        EXPECT_TRUE(IsWritten(original));
        DrawingBeginUndo(drawing.get());
        for (const PropertyInfo& property : kPropertyList)
            ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) { Set(g, property); });
        DrawingEndUndo(drawing.get());
        DrawingUndo(drawing.get());
        EXPECT_EQ(Write(drawing), kSaveDone) << message;
        EXPECT_TRUE(IsWritten(original)) << "after undo";
    });
}

TEST_F(Save, StoresAllPropertiesTogether) {
    ForDrawings([&](const fs::path&, const OwnedDrawing& drawing) {
        for (const PropertyInfo& property : kPropertyList)
            ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) { Set(g, property); });
        ASSERT_EQ(Write(drawing), kSaveDone) << message;
        const OwnedDrawing read = Open(path);
        ASSERT_TRUE(read);
        for (const PropertyInfo& property : kPropertyList)
            ForGraphics(DrawingGetRoot(read.get()), [&](GraphicStruct* g) { ExpectSet(g, property); });
        ASSERT_EQ(Write(drawing), kSaveDone) << message; // the file that was saved before
        EXPECT_EQ(Write(read), kSaveDone) << message;
    });
}

TEST_F(Save, StoresEachPropertyOfGraphicsAndBlocks) {
    for (const PropertyInfo& property : kPropertyList) {
        SCOPED_TRACE(property.name);
        const OwnedDrawing drawing = Open(kDrawings + "acadsharp-sample-AC1032.dxf");
        TableStruct* blocks = DrawingGetTable(drawing.get(), kTableBlocks);
        int index = 0, changed = 0;
        ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) {
            if (++index % 3 == 0) changed += Set(g, property);
        });
        EXPECT_GT(changed, 0) << "a value that all graphics have is not reported";
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

TEST_F(Save, StoresPlacementsOfInsertionsWithTheirAttributes) {
    struct Row {
        const char* file;
        Transformation transformation;
    };
    constexpr const char *kInserts = "made-inserts-R2000.dxf", *kNested = "ezdxf-insert-nested-mirrored.dxf",
                         *kArray = "dxf-array-rotated.dxf";
    for (const Row& row : {Row{kInserts, Transformation::stretched}, Row{kInserts, Transformation::mirrored},
                           Row{kInserts, Transformation::tilted}, Row{kNested, Transformation::stretched},
                           Row{kNested, Transformation::mirrored}, Row{kNested, Transformation::tilted},
                           Row{kNested, Transformation::slanted}, Row{kArray, Transformation::mirrored},
                           Row{kArray, Transformation::tilted}}) {
        SCOPED_TRACE(row.file + std::string(" ") + std::to_string(static_cast<int>(row.transformation)));
        const OwnedDrawing drawing = Open(kDrawings + row.file);
        ForGraphics(DrawingGetRoot(drawing.get()), [&](GraphicStruct* g) {
            if (g->bType == kGraphicInsert) PutVertices(g, row.transformation);
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

TEST_F(Save, DetectsAChangedFile) {
    fs::copy_file(kDrawings + "made-gbk-R2004.dxf", path, fs::copy_options::overwrite_existing);
    const OwnedDrawing drawing = Open(path);
    const std::string other = ReadBytes(path) + "from another program";
    std::ofstream(path, std::ios::binary) << other;
    EXPECT_EQ(Write(drawing), kSaveFileChanged);
    EXPECT_TRUE(ReadBytes(path) == other);
    EXPECT_EQ(Write(drawing, kSaveOverChanged), kSaveDone) << message;
    EXPECT_TRUE(IsWritten(kDrawings + "made-gbk-R2004.dxf"));
}

TEST_F(Save, ChecksTheFileAgainBeforeReplacingIt) {
    fs::copy_file(kDrawings + "made-gbk-R2004.dxf", path, fs::copy_options::overwrite_existing);
    const OwnedDrawing drawing = Open(path);
    const auto change = [](void* context, int permille) {
        if (permille == 1000) std::ofstream(*static_cast<const fs::path*>(context)) << "of another program";
        return 1;
    };
    fs::path file = path;
    const DxfListener listener = {&file, change, nullptr};
    EXPECT_EQ(Write(drawing, 0, &listener), kSaveFileChanged);
    EXPECT_EQ(ReadBytes(path), "of another program");
    EXPECT_FALSE(LeavesTemporaryFiles());
}

// Distinguished from a changed file, because overwriting would not help.
TEST_F(Save, DistinguishesAnOpenFileFromAChangedOne) {
    const fs::path original = kDrawings + "made-gbk-R2004.dxf";
    fs::copy_file(original, path, fs::copy_options::overwrite_existing);
    const OwnedDrawing drawing = Open(path);
    const HANDLE held = ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_EQ(Write(drawing), kSaveFailed);
    EXPECT_EQ(message.find("the file cannot be opened: another program has it open"), 0u) << message;
    EXPECT_EQ(Write(drawing, kSaveOverChanged), kSaveFailed);
    EXPECT_EQ(message.find("the file cannot be replaced: "), 0u) << message;
    EXPECT_FALSE(LeavesTemporaryFiles());
    ::CloseHandle(held);
    EXPECT_TRUE(IsWritten(original));
    EXPECT_EQ(Write(drawing), kSaveDone) << message;

    const fs::path missing = path.parent_path() / "no such folder" / "x.dxf";
    char text[256] = "";
    EXPECT_EQ(DrawingSaveDxf(drawing.get(), missing.c_str(), 0, nullptr, text, sizeof text), kSaveFailed);
    EXPECT_EQ(std::string(text).find("cannot create a file in its folder: no such folder"), 0u) << text;
    fs::remove(path);
    EXPECT_EQ(Write(drawing), kSaveDone) << "a deleted file can be written again: " << message;
    EXPECT_TRUE(IsWritten(original));
}

struct Reports {
    std::vector<int> recorded;
    int cancelAt = 1001; // never
    static int OnReport(void* context, int permille) {
        Reports& reports = *static_cast<Reports*>(context);
        reports.recorded.push_back(permille);
        return permille < reports.cancelAt ? 1 : 0;
    }
};

TEST_F(Save, CanBeCanceledWithEachReport) {
    const fs::path original = kDrawings + "acadsharp-sample-AC1032.dxf";
    fs::copy_file(original, path, fs::copy_options::overwrite_existing);
    const OwnedDrawing drawing = Open(path);
    ForGraphics(DrawingGetRoot(drawing.get()), [](GraphicStruct* g) { WriteProperty(g, kPropInfo, std::string("x")); });
    Reports whole;
    const DxfListener listener = {&whole, Reports::OnReport, nullptr};
    ASSERT_EQ(Write(drawing, 0, &listener), kSaveDone) << message;
    EXPECT_TRUE(std::is_sorted(whole.recorded.begin(), whole.recorded.end()));
    EXPECT_EQ(whole.recorded.back(), 1000);
    const std::string saved = ReadBytes(path);
    ForGraphics(DrawingGetRoot(drawing.get()), [](GraphicStruct* g) { WriteProperty(g, kPropInfo, std::string("y")); });
    for (const int permille : whole.recorded) {
        Reports reports;
        reports.cancelAt = permille;
        const DxfListener cancels = {&reports, Reports::OnReport, nullptr};
        EXPECT_EQ(Write(drawing, 0, &cancels), kSaveCanceled) << permille;
        EXPECT_EQ(message, "canceled");
        EXPECT_EQ(reports.recorded.back(), permille) << "and nothing is reported afterward";
        EXPECT_TRUE(ReadBytes(path) == saved) << permille;
        EXPECT_FALSE(LeavesTemporaryFiles()) << permille;
    }
    EXPECT_EQ(Write(drawing), kSaveDone) << "as if not canceled: " << message;
}

TEST_F(Save, KeepsTheFileOnFailure) {
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
    EXPECT_EQ(message, "the file format cannot store a group of graphics");
    GraphicDelete(DrawingGetRoot(drawing.get()), added);
    GraphicDispose(&added);

    EXPECT_TRUE(IsWritten(original));
    EXPECT_FALSE(LeavesTemporaryFiles());
    EXPECT_EQ(Write(drawing), kSaveDone) << message;

    const OwnedDrawing made(DrawingNew());
    EXPECT_EQ(Write(made), kSaveFailed);
    EXPECT_EQ(message, "the drawing was not opened from a DXF file");
    EXPECT_EQ(DrawingSaveDxf(nullptr, path.c_str(), 0, nullptr, nullptr, 0), kSaveFailed);
}

} // namespace
