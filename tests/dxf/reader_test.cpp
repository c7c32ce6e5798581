// Reading of single records and structures, and the messages of rejected files.

#include "drawcore/src/dxf/reader.h"

#include <gtest/gtest.h>

#include "tests/dxf/drawing_text.h"

namespace {

using namespace dxf;

Document ReadEntities(const std::string& fields) {
    return Read(Drawing(fields), {});
}

template <class T>
const T& ShapeOf(const Document& document, size_t at = 0) {
    return std::get<T>(document.entities.at(at).shape);
}

TEST(Structure, DamagedFilesAreRejectedWithTheLine) {
    struct Row {
        std::string bytes;
        const char* message;
    };
    const Row rows[] = {
        {"", "the file is empty"},
        {std::string("AutoCAD Binary DXF\r\n\x1A\0", 22), "line 1: binary DXF files are not supported"},
        {"0\nSECTION\n2\nENTITIES\nABC\nLINE\n", "line 5: group code 'ABC' is not a number"},
        {"0\nSECTION\n2\nENTITIES\n 4711\nx\n", "line 5: invalid group code 4711"},
        {"0\nSECTION\n2\nENTITIES\n0\n", "line 5: the file is truncated: it ends within section ENTITIES"},
        {"hello\n", "line 1: group code 'hello' is not a number"},
        {"0\nLINE\n", "line 1: expected a section or the end of the file, found group code 0 with 'LINE'"},
        {"0\nSECTION\n8\nENTITIES\n", "line 3: the section has no name"},
        {Section("ENTITIES", ""), "line 6: the file is truncated: it ends without EOF"},
        {Tags("0|SECTION|2|ENTITIES|0|EOF"), "line 5: the file ends before the section of line 1 has ended"},
        {Tags("0|SECTION|2|OBJECTS|0|SECTION|2|ENTITIES"),
         "line 5: a section begins before the section of line 1 has ended"},
        {Drawing("0|LINE|10|1,5"), "line 14: '1,5' is not a number (group code 10)"},
        {Drawing("0|LINE|10|"), "line 14: '' is not a number (group code 10)"},
        {Drawing("0|LINE|62|red\xE4"), "line 14: 'red?' is not a number (group code 62)"},
        {Drawing("", "0|BLOCK|2|A|0|BLOCK|2|B|0|ENDBLK"), "line 9: block 'A' of line 5 has no end"},
        {Drawing("", "0|BLOCK|2|A|0|LINE"), "line 11: block 'A' of line 5 has no end"},
    };
    for (const Row& row : rows) {
        try {
            Read(row.bytes, {});
            ADD_FAILURE() << "opened, not: " << row.message;
        } catch (const ReadError& error) {
            EXPECT_STREQ(error.what(), row.message);
        }
    }
}

TEST(Structure, UnreadableFilesAreRejected) {
    for (const char* path : {ORLO_SOURCE_DIR "/tests/nothing.dxf", ORLO_SOURCE_DIR "/tests"})
        EXPECT_THROW(Read(dxf::ReadBytes(path), {}), ReadError) << path;
    EXPECT_EQ(Read(dxf::ReadBytes(ORLO_SOURCE_DIR "/tests/data/dxf/made-escapes-R12.dxf"), {}).entities.size(), 11u);
}

TEST(Structure, OpensWithAllLineEndsCommentsAndAByteOrderMark) {
    const std::string lf = "999\nmade by hand\n" + Drawing("0|LINE|8|a|10|1");
    std::string crlf, cr;
    for (char c : lf)
        crlf += c == '\n' ? "\r\n" : std::string(1, c), cr += c == '\n' ? '\r' : c;
    for (const std::string& bytes :
         {lf, crlf, cr, "\xEF\xBB\xBF" + lf, lf.substr(0, lf.size() - 1), lf + "\x1A rest"}) {
        const Document document = Read(bytes, {});
        EXPECT_EQ(document.entities.size(), 1u);
        EXPECT_EQ(document.At(document.entities[0].layer).name, "a");
    }
}

TEST(Structure, ProgressRisesToTheEnd) {
    std::string many;
    for (int i = 0; i < 50000; ++i)
        many += "0\nPOINT\n10\n1\n20\n2\n";
    many.pop_back();
    std::vector<int> seen;
    Read(Drawing(many), [&](int permille) { seen.push_back(permille); });
    ASSERT_GT(seen.size(), 5u);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_EQ(seen.back(), 1000);
}

TEST(Numbers, AreReadAsWritersWriteThem) {
    struct Row {
        const char* text;
        double value;
        bool valid;
    };
    const Row rows[] = {
        {"1.5", 1.5, true},      {"  -.5 ", -.5, true}, {"+2", 2, true},     {"1e3", 1000, true},
        {"1E-400", 0, true},     {"nan", 0, false},     {"-inf", 0, false},  {"1.#INF", 0, false},
        {"-1.#IND00", 0, false}, {"1e308", 0, false},   {"1e999", 0, false}, {"-1e15", -1e15, true},
    };
    for (const Row& row : rows) {
        const Document document = ReadEntities(std::string("0|LINE|10|") + row.text);
        ASSERT_EQ(document.entities.size(), row.valid ? 1u : 0u) << row.text;
        EXPECT_EQ(document.warnings.size(), row.valid ? 0u : 1u) << row.text;
        if (row.valid) {
            EXPECT_EQ(ShapeOf<Line>(document).start.x, row.value) << row.text;
        }
        EXPECT_EQ(document.entityCounts.at("LINE"), 1u);
    }
}

TEST(Names, AreComparedIgnoringCaseAndCreatedOnReference) {
    const std::string tables =
        Section("TABLES", "0|TABLE|2|LAYER|70|1|0|LAYER|2|Walls|70|4|62|-3|6|Dashed|420|255|370|50|290|0|"
                          "0|LAYER|2|walls|62|9|0|ENDTAB");
    const Document document =
        Read(tables + Drawing("0|LINE|8|WALLS|6|ByLayer|0|LINE|8|new|6|BYBLOCK|0|LINE|6|DOT"), {});
    ASSERT_EQ(document.entities.size(), 3u);
    const Layer& walls = document.At(document.entities[0].layer);
    EXPECT_EQ(walls.name, "Walls");
    EXPECT_EQ(walls.color, -3);
    EXPECT_EQ(walls.flags, 4);
    EXPECT_EQ(walls.trueColor, 255);
    EXPECT_EQ(walls.lineWeight, 50);
    EXPECT_FALSE(walls.plotted);
    EXPECT_EQ(document.entities[0].lineType, LineTypeIndex::byLayer);
    EXPECT_FALSE(document.At(document.entities[1].layer).declared);
    EXPECT_EQ(document.entities[1].lineType, LineTypeIndex::byBlock);
    EXPECT_EQ(document.At(document.entities[2].layer).name, "0");
    EXPECT_EQ(document.lineTypes.at(size_t(document.entities[2].lineType)).name, "DOT");
    EXPECT_EQ(std::count_if(document.layers.begin(), document.layers.end(), [](auto& l) { return l.declared; }), 2);
}

TEST(TextStyles, HaveTheirTrueTypeFace) {
    const Document document =
        Read(Section("TABLES", "0|STYLE|2|Notes|3|arial.ttf|40|2.5|41|0.8|50|15|71|2|1001|ACAD|1000|Arial|"
                               "1071|50331682|0|STYLE|2||3|ltypeshp.shx|70|1") +
                 Drawing("0|TEXT|7|NOTES|1|x"),
             {});
    const TextStyle& style = document.At(ShapeOf<Boxed<Text>>(document)->style);
    EXPECT_EQ(style.fontFace, "Arial");
    EXPECT_TRUE(style.bold && style.italic && style.backward);
    EXPECT_EQ(style.fixedHeight, 2.5);
    EXPECT_EQ(style.oblique, 15);
    EXPECT_EQ(std::count_if(document.textStyles.begin(), document.textStyles.end(), [](auto& s) { return s.declared; }),
              1);
}

TEST(Entities, HaveCommonAttributes) {
    const Document document =
        ReadEntities("0|CIRCLE|62|5|370|25|420|16711680|48|0.5|67|1|60|1|210|0|220|0|230|-1|10|1|20|2|30|3|40|4|"
                     "102|{ACAD_REACTORS|330|1F|40|99|102|}|1001|X|1040|7");
    const Entity& entity = document.entities.at(0);
    EXPECT_EQ(entity.color, 5);
    EXPECT_EQ(entity.lineWeight, 25);
    EXPECT_EQ(entity.trueColor, 0xFF0000);
    EXPECT_EQ(entity.lineTypeScale, 0.5);
    EXPECT_TRUE(entity.inPaperSpace && entity.invisible);
    EXPECT_EQ(entity.normal.z, -1);
    EXPECT_EQ(ShapeOf<Circle>(document).center.y, 2);
    EXPECT_EQ(ShapeOf<Circle>(document).radius, 4);
}

TEST(Entities, OfOtherTypesAreCountedAndNamed) {
    const Document document = ReadEntities("0|RAY|10|nonsense|0|RAY|0|POINT|0|BODY");
    EXPECT_EQ(document.entities.size(), 1u);
    EXPECT_EQ(document.entityCounts.at("RAY"), 2u);
    ASSERT_EQ(document.warnings.size(), 2u);
    EXPECT_EQ(document.warnings[1].text, "2 of type RAY not shown: unsupported type");
    EXPECT_EQ(document.warnings[1].line, 11u);
}

TEST(Polylines, OfBothKindsAreRead) {
    const Document document =
        ReadEntities("0|POLYLINE|70|129|40|0.5|41|0.25|30|7|0|VERTEX|10|1|20|2|42|1|0|VERTEX|10|3|40|0|41|0|0|SEQEND|"
                     "0|LWPOLYLINE|90|2147483647|70|1|43|0.3|38|9|10|1|20|2|10|3|20|4|40|1|41|2|42|-1");
    const auto& old = ShapeOf<Polyline>(document, 0);
    ASSERT_EQ(old.vertices.size(), 2u);
    EXPECT_TRUE(old.closed && old.dashesThrough);
    EXPECT_EQ(old.vertices[0].startWidth, 0.5);
    EXPECT_EQ(old.vertices[0].endWidth, 0.25);
    EXPECT_EQ(old.vertices[0].bulge, 1);
    EXPECT_EQ(old.vertices[1].startWidth, 0);
    EXPECT_EQ(old.vertices[1].at.z, 7);
    const auto& light = ShapeOf<Polyline>(document, 1);
    ASSERT_EQ(light.vertices.size(), 2u);
    EXPECT_EQ(light.vertices[0].startWidth, 0.3);
    EXPECT_EQ(light.vertices[1].endWidth, 2);
    EXPECT_EQ(light.vertices[1].at.z, 9);
    EXPECT_EQ(document.entityCounts.at("VERTEX"), 2u);
    EXPECT_EQ(document.entityCounts.at("SEQEND"), 1u);
}

TEST(Polylines, FitCurvesOmitTheirControlPoints) {
    const Document document =
        ReadEntities("0|POLYLINE|70|4|0|VERTEX|70|16|10|9|0|VERTEX|70|8|10|1|0|VERTEX|70|8|10|2|0|SEQEND");
    EXPECT_EQ(ShapeOf<Polyline>(document).vertices.size(), 2u);
}

TEST(Polylines, MeshesAndFacesAreLimited) {
    const Document document =
        ReadEntities("0|POLYLINE|70|16|71|1000000|72|1000000|0|VERTEX|10|1|0|SEQEND|"
                     "0|POLYLINE|70|64|0|VERTEX|70|192|10|1|0|VERTEX|70|192|10|2|0|VERTEX|70|128|71|1|72|-2|"
                     "0|VERTEX|70|128|71|1|72|3|0|VERTEX|70|128|71|-2147483648|0|SEQEND");
    ASSERT_EQ(document.entities.size(), 1u);
    EXPECT_EQ(ShapeOf<Polyline>(document).faces.size(), 1u);
    ASSERT_EQ(document.warnings.size(), 1u);
    EXPECT_EQ(document.warnings[0].line, 11u);
}

TEST(Inserts, HaveTheirAttributesAndArray) {
    const Document document =
        Read(Drawing("0|INSERT|66|1|2|b|41|2|42|-2|50|90|70|3|71|0|44|10|45|-5|0|ATTRIB|1|4711|2|NO|70|1|74|2|"
                     "72|1|0|SEQEND|0|INSERT|2|B|70|99999|71|-7",
                     "0|BLOCK|2|B|10|1|0|ATTDEF|2|NO|0|ATTDEF|70|2|1|fixed|0|ENDBLK"),
             {});
    const Insert& insert = *ShapeOf<Boxed<Insert>>(document, 0);
    const Block& block = document.At(insert.block);
    EXPECT_EQ(block.name, "B");
    EXPECT_EQ(block.base.x, 1);
    EXPECT_EQ(std::get<Boxed<Text>>(block.entities.at(0).shape)->role, Text::Role::definition);
    EXPECT_EQ(std::get<Boxed<Text>>(block.entities.at(1).shape)->role, Text::Role::text);
    EXPECT_EQ(insert.scaleY, -2);
    EXPECT_EQ(insert.columns, 3u);
    EXPECT_EQ(insert.rows, 1u);
    ASSERT_EQ(insert.attributes.size(), 1u);
    const Text& attribute = *std::get<Boxed<Text>>(insert.attributes[0].shape);
    EXPECT_EQ(attribute.tag, "NO");
    EXPECT_TRUE(attribute.hidden);
    EXPECT_EQ(attribute.vertical, Text::Vertical::middle);
    EXPECT_EQ(attribute.horizontal, Text::Horizontal::center);
    EXPECT_EQ(document.entityCounts.at("ATTRIB"), 1u);
    EXPECT_EQ(ShapeOf<Boxed<Insert>>(document, 1)->columns, 32767u);
}

TEST(Texts, CharactersMaySpanTwoPieces) {
    const Document document =
        Read(Section("HEADER", "9|$ACADVER|1|AC1021") +
                 Drawing("0|MTEXT|3|Stra\xC3|3|\x9F|1|e|50|15|11|0|21|2|31|0|71|5|101|Embedded Object|1|other"),
             {});
    const MText& text = *ShapeOf<Boxed<MText>>(document);
    EXPECT_EQ(text.text, "Stra\u00DFe");
    EXPECT_EQ(text.direction.y, 2);
    EXPECT_EQ(text.attachment, 5);
}

TEST(Hatches, HaveLoopsAndPatternLines) {
    const Document document =
        ReadEntities("0|HATCH|10|0|20|0|30|5|2|ANSI31|70|0|91|2|92|7|72|1|73|1|93|2|10|1|20|2|42|1|10|3|20|4|42|1|97|0|"
                     "92|1|93|3|72|1|10|1|20|2|11|3|21|4|72|2|10|5|20|6|40|7|50|0|51|90|73|0|"
                     "72|4|94|1|73|0|74|0|95|4|96|2|40|0|40|0|40|1|40|1|10|8|20|9|10|10|20|11|97|0|330|1F|"
                     "75|1|76|1|52|30|41|2|77|1|78|1|53|45|43|1|44|2|45|-3|46|4|79|2|49|0.5|49|-0.25|98|1|10|99|20|99");
    const Hatch& hatch = *ShapeOf<Boxed<Hatch>>(document);
    EXPECT_EQ(hatch.pattern, "ANSI31");
    EXPECT_EQ(hatch.elevation, 5);
    ASSERT_EQ(hatch.loops.size(), 2u);
    ASSERT_EQ(hatch.loops[0].outline.vertices.size(), 2u);
    EXPECT_EQ(hatch.loops[0].outline.vertices[1].bulge, 1);
    ASSERT_EQ(hatch.loops[1].edges.size(), 3u);
    EXPECT_EQ(hatch.loops[1].edges[0].end.y, 4);
    EXPECT_EQ(hatch.loops[1].edges[1].radius, 7);
    EXPECT_FALSE(hatch.loops[1].edges[1].counterClockwise);
    EXPECT_EQ(hatch.loops[1].edges[2].spline.controlPoints.size(), 2u);
    EXPECT_EQ(hatch.style, 1);
    EXPECT_TRUE(hatch.crossed);
    EXPECT_EQ(hatch.angle, 30);
    ASSERT_EQ(hatch.lines.size(), 1u);
    EXPECT_EQ(hatch.lines[0].offset.x, -3);
    EXPECT_EQ(hatch.lines[0].dashes, (std::vector<double>{0.5, -0.25}));
}

TEST(Splines, InconsistentDataIsOmitted) {
    const Document document =
        ReadEntities("0|SPLINE|71|3|40|0|40|1|10|1|20|1|0|SPLINE|71|2000000000|10|1|11|1|21|1|11|2|21|2");
    ASSERT_EQ(document.entities.size(), 1u); // the second one by fit points
    EXPECT_EQ(ShapeOf<Boxed<Spline>>(document)->fitPoints.size(), 2u);
    EXPECT_EQ(document.warnings.size(), 1u);
}

TEST(References, DanglingAndCircularOnesAreRemoved) {
    const Document document = Read(Drawing("0|INSERT|2|missing|0|INSERT|2|A|0|INSERT|2|SELF",
                                           "0|BLOCK|2|A|0|INSERT|2|B|0|ENDBLK|0|BLOCK|2|B|0|INSERT|2|A|0|LINE|0|ENDBLK|"
                                           "0|BLOCK|2|SELF|0|INSERT|2|SELF|0|ENDBLK"),
                                   {});
    EXPECT_EQ(ShapeOf<Boxed<Insert>>(document, 0)->block, BlockIndex::none);
    EXPECT_NE(ShapeOf<Boxed<Insert>>(document, 1)->block, BlockIndex::none);
    std::string all;
    for (const Warning& warning : document.warnings)
        all += warning.text + "\n";
    EXPECT_EQ(all, "block 'B' is not shown: the block contains itself\n"
                   "block 'SELF' is not shown: the block contains itself\n"
                   "block 'missing' is not shown: the block does not exist\n");
}

TEST(References, ExternalReferencesAreReported) {
    const Document document = Read(Drawing("", "0|BLOCK|2|site|70|4|1|site.dwg|0|ENDBLK"), {});
    ASSERT_EQ(document.warnings.size(), 1u);
    EXPECT_EQ(document.warnings[0].text, "block 'site' is an external reference, which is not supported");
}

TEST(References, LongChainsAndTooManyPartsAreRemoved) {
    std::string chain = "0|BLOCK|2|0|0|LINE|0|ENDBLK";
    for (int i = 1; i < 20000; ++i)
        chain += "|0|BLOCK|2|" + std::to_string(i) + "|0|INSERT|2|" + std::to_string(i - 1) + "|0|ENDBLK";
    EXPECT_FALSE(Read(Drawing("0|INSERT|2|19999", chain), {}).warnings.empty());

    const Document array =
        Read(Drawing("0|INSERT|2|A|70|30000|71|30000|0|INSERT|2|A|70|100|71|100", "0|BLOCK|2|A|0|LINE|0|ENDBLK"), {});
    EXPECT_EQ(ShapeOf<Boxed<Insert>>(array, 0)->block, BlockIndex::none);
    EXPECT_NE(ShapeOf<Boxed<Insert>>(array, 1)->block, BlockIndex::none);
    EXPECT_EQ(array.warnings.at(0).text, "insertions not shown because the drawing would have too many parts: 1");
}

TEST(Findings, AreLimited) {
    std::string many;
    for (int i = 0; i < 1000; ++i)
        many += "0|LINE|10|nan|";
    const Document document = ReadEntities(many + "0|POINT");
    ASSERT_EQ(document.warnings.size(), Document::kMaxWarnings + 1);
    EXPECT_EQ(document.warnings.back().text, "and 800 more");
}

} // namespace
