// Changes to single records: the groups that differ afterward, and their positions.

#include <gtest/gtest.h>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/save/drawing_patch.h"
#include "orlo/host/words.h"
#include "tests/dxf/drawing_text.h"

namespace {

using dxf::Appearance;

std::string Drawing2004(const std::string& entity) {
    return Section("HEADER", "9|$ACADVER|1|AC1018|9|$HANDSEED|5|2F") +
           Section("TABLES", "0|TABLE|2|APPID|5|9|70|1|0|APPID|5|12|330|9|100|AcDbSymbolTableRecord|100|"
                             "AcDbRegAppTableRecord|2|ORLO|70|0|0|ENDTAB") +
           Section("ENTITIES", entity) + Tags("0|EOF");
}

struct Row {
    const char* name;
    std::string before, after;
    void (*change)(Appearance&);
};

void PrintTo(const Row& row, std::ostream* to) {
    *to << row.name;
}

const std::string kHead = "5|1A|102|{ACAD_REACTORS|62|3|102|}|100|AcDbEntity|8|0|";

const Row kRows[] = {
    {"ANewGroupIsInItsUsualPosition", "0|LINE|" + kHead + "370|25|100|AcDbLine|10|0|20|0",
     "0|LINE|" + kHead + "62|1|370|25|100|AcDbLine|10|0|20|0",
     [](Appearance& appearance) { appearance.color = 0x0000FF; }},
    {"TheNameOfAColorIsRemovedWithIt", "0|LINE|" + kHead + "62|3|420|1234|430|BOOK$GREEN|100|AcDbLine|10|0|20|0",
     "0|LINE|" + kHead + "62|1|100|AcDbLine|10|0|20|0", [](Appearance& appearance) { appearance.color = 0x0000FF; }},
    {"APlainGroupIsRemovedForByLayer", "0|LINE|" + kHead + "62|    3|100|AcDbLine|10|0|20|0|1001|OTHER|1000|x",
     "0|LINE|" + kHead + "100|AcDbLine|10|0|20|0|1001|OTHER|1000|x",
     [](Appearance& appearance) { appearance.color = kColorByLayer; }},
    {"ExtendedDataOfOthersIsPreserved",
     "0|POINT|" + kHead + "100|AcDbPoint|10|0|20|0|1001|ORLO|1000|Info|1002|{|1000|a|1002|}|1001|OTHER|1000|x",
     "0|POINT|" + kHead + "100|AcDbPoint|10|0|20|0|1001|ORLO|1000|Info|1002|{|1000|b^J^ |1002|}|1001|OTHER|1000|x",
     [](Appearance& appearance) {
         dxf::SetExtended(appearance, {kPropInfo, "b\n^", {}});
     }},
    {"EmptyExtendedDataIsRemoved",
     "0|POINT|" + kHead + "100|AcDbPoint|10|0|20|0|1001|ORLO|1000|Info|1002|{|1000|a|1002|}|1001|OTHER|1000|x",
     "0|POINT|" + kHead + "100|AcDbPoint|10|0|20|0|1001|OTHER|1000|x",
     [](Appearance& appearance) { appearance.extended.clear(); }},
    {"WidthsOfVerticesAreReplacedByOne",
     "0|LWPOLYLINE|" + kHead + "100|AcDbPolyline|90|2|70|0|10|0|20|0|40|1|41|1|10|1|20|0|40|1|41|1",
     "0|LWPOLYLINE|" + kHead + "100|AcDbPolyline|90|2|70|128|43|2.5|10|0|20|0|10|1|20|0",
     [](Appearance& appearance) {
         appearance.width = 2.5;
         appearance.dashesFitted = false;
     }},
    {"WidthsOfVertexRecordsAreRemoved",
     "0|POLYLINE|" + kHead + "70|0|40|1|41|1|0|VERTEX|10|0|20|0|40|1|41|1|0|VERTEX|10|1|20|0|0|SEQEND",
     "0|POLYLINE|" + kHead + "370|35|70|0|0|VERTEX|10|0|20|0|0|VERTEX|10|1|20|0|0|SEQEND",
     [](Appearance& appearance) {
         appearance.width = 35 / dxf::kWeightsPerInch;
         appearance.worldWidth = false;
     }},
    {"SeedsOfAHatchArePreserved",
     "0|HATCH|" + kHead +
         "100|AcDbHatch|2|SOLID|70|1|91|1|92|2|72|0|73|1|93|3|10|0|20|0|10|1|20|0|10|0|20|1|75|0|76|1|98|1|"
         "10|0|20|0|52|7",
     "0|HATCH|" + kHead +
         "100|AcDbHatch|2|Lines|70|0|91|1|92|2|72|0|73|1|93|3|10|0|20|0|10|1|20|0|10|0|20|1|75|0|76|1|52|0.0|"
         "41|2.0|77|0|78|1|"
         "53|0.0|43|0.0|44|0.0|45|0.0|46|2.0|79|0|98|1|10|0|20|0|52|7",
     [](Appearance& appearance) {
         appearance.brush.style = "Lines";
         appearance.brush.lines = {{0, {}, {0, 1, 0}, {}}};
         appearance.brush.scale = 2;
     }},
    {"CodesWithinAnMTextAreRemoved", "0|MTEXT|" + kHead + "100|AcDbMText|10|0|20|0|40|2|71|1|3|{\\C3;a\\H3;|1|b\\P}",
     "0|MTEXT|" + kHead + "62|1|100|AcDbMText|10|0|20|0|40|5.0|71|3|1|\\L{ab\\P}",
     [](Appearance& appearance) {
         appearance.color = 0x0000FF;
         appearance.text.height = 5;
         appearance.text.style = kTextUnderline;
         appearance.text.format = 2;
         appearance.varied = 0;
     }},
    {"AnAlignmentKeepsIndents",
     "0|MTEXT|" + kHead + "100|AcDbMText|10|0|20|0|40|2|71|4|1|\\pxi-3,qc,l2;ab\\P\\pq*,i1;cdef\\P\\pxqr;g",
     "0|MTEXT|" + kHead + "100|AcDbMText|10|0|20|0|40|2|71|6|1|\\pxi-3,l2;ab\\P\\pi1;cdef\\Pg",
     [](Appearance& appearance) {
         appearance.text.format = 2;
         appearance.varied = 0;
     }},
    {"AWidthByLayerHasNoGroup", "0|LINE|" + kHead + "370|25|100|AcDbLine|10|0|20|0",
     "0|LINE|" + kHead + "100|AcDbLine|10|0|20|0", [](Appearance& appearance) { appearance.width = kPenWidthByLayer; }},
    {"AWidthByBlockHasAGroup", "0|LINE|" + kHead + "100|AcDbLine|10|0|20|0",
     "0|LINE|" + kHead + "370|-2|100|AcDbLine|10|0|20|0",
     [](Appearance& appearance) { appearance.width = kPenWidthByBlock; }},
    {"AVariedTextGetsItsDominantColor", "0|MTEXT|" + kHead + "100|AcDbMText|10|0|20|0|40|2|71|1|1|{\\C1;most}{\\C3;x}",
     "0|MTEXT|" + kHead + "62|1|100|AcDbMText|10|0|20|0|40|2|71|1|1|{most}{x}",
     [](Appearance& appearance) { appearance.varied = 0; }},
    {"APartlyUnderlinedTextIsUnderlined", "0|TEXT|" + kHead + "100|AcDbText|10|0|20|0|40|2|1|a%%ub%%u",
     "0|TEXT|" + kHead + "100|AcDbText|10|0|20|0|40|2|1|%%uab", [](Appearance& appearance) { appearance.varied = 0; }},
    {"ADifferenceInTheLastDigitIsSaved", "0|LINE|" + kHead + "48|1.0000000001|100|AcDbLine|10|0|20|0",
     "0|LINE|" + kHead + "48|1.0000000002|100|AcDbLine|10|0|20|0",
     [](Appearance& appearance) { appearance.lineScale = 1.0000000002; }},
    {"ACenteredTextGetsAnAlignmentPoint",
     "0|TEXT|" + kHead + "100|AcDbText|10|3|20|4|30|0|40|2|1|%%uA%%u|72|0|100|AcDbText",
     "0|TEXT|" + kHead + "100|AcDbText|10|3|20|4|30|0|40|2|1|A|72|1|11|3.0|21|4.0|31|0.0|100|AcDbText",
     [](Appearance& appearance) {
         appearance.text.style = 0;
         appearance.text.format = 1;
     }},
};

class Patch : public testing::TestWithParam<Row> {};

TEST_P(Patch, ChangesOnlyTheseGroups) {
    const Row& row = GetParam();
    const std::string text = Drawing2004(row.before);
    const dxf::Document document = dxf::Read(text, {});
    ASSERT_EQ(document.entities.size(), 1u);
    dxf::DrawingPatch patch(text, document.Tables());
    Appearance appearance = patch.AppearanceAt(document.entities[0].offset);
    row.change(appearance);
    patch.Change(document.entities[0].offset, appearance);
    const std::string changed = patch.Finish();
    EXPECT_EQ(changed, Drawing2004(row.after));
    const dxf::Document read = dxf::Read(changed, {});
    EXPECT_TRUE(dxf::AppearanceOf(read, read.entities.at(0)) == appearance);
}

INSTANTIATE_TEST_SUITE_P(Records, Patch, testing::ValuesIn(kRows), [](const auto& row) { return row.param.name; });

// Groups that another program has changed since take precedence; otherwise the stored value is exact.
TEST(Patches, ChangedGroupsOverrideExtendedValues) {
    const std::string own = "1001|ORLO|1000|PenWidth|1002|{|1040|0.0101|1040|0.0|1040|25.0|1002|}";
    for (const int weight : {25, 50}) {
        const dxf::Document read =
            dxf::Read(Drawing2004("0|LINE|8|0|370|" + std::to_string(weight) + "|10|0|20|0|" + own), {});
        EXPECT_EQ(dxf::AppearanceOf(read, read.entities.at(0)).width,
                  weight == 25 ? 0.0101 : weight / dxf::kWeightsPerInch);
    }
}

// Insertion at the first byte of a file.
TEST(Patches, AddedTablePrecedesExistingContents) {
    const std::string text = Section("ENTITIES", "0|LINE|8|0|10|0|20|0|11|1|21|0") + Tags("0|EOF");
    const dxf::Document document = dxf::Read(text, {});
    dxf::DrawingPatch patch(text, document.Tables());
    Appearance appearance = patch.AppearanceAt(document.entities.at(0).offset);
    dxf::SetExtended(appearance, {kPropInfo, "registered", {}});
    patch.Change(document.entities[0].offset, appearance);
    const dxf::Document read = dxf::Read(patch.Finish(), {});
    EXPECT_TRUE(dxf::AppearanceOf(read, read.entities.at(0)) == appearance);
}

TEST(Patches, RejectValuesThatCannotBeWritten) {
    std::string text = Drawing2004("0|TEXT|8|0|10|0|20|0|40|1|1|\xE4%%u");
    text.replace(text.find("AC1018"), 6, "AC1021"); // with UTF-8 texts
    const dxf::Document document = dxf::Read(text, {});
    dxf::DrawingPatch patch(text, document.Tables());
    Appearance appearance = patch.AppearanceAt(document.entities.at(0).offset);
    appearance.text.style = 0;
    EXPECT_THROW(patch.Change(document.entities[0].offset, appearance), dxf::SaveError);
}

} // namespace
