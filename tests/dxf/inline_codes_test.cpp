// The inline codes of MTEXT.

#include "drawcore/src/dxf/inline_codes.h"

#include <gtest/gtest.h>

namespace {

TEST(InlineCodes, AreResolvedToPlainText) {
    struct Row {
        const char* stored;
        const char* plain;
    };
    const Row rows[] = {
        {"one\\Ptwo", "one\ntwo"},
        {"{\\fArial|b1|i0|c0|p34;bold} thin", "bold thin"},
        {"\\A1;{\\H0.7x;\\S+0.1^ -0.2;}", "+0.1/-0.2"},
        {"\\S1/2; \\S3#4;", "1/2 3/4"},
        {"\\S1\\/2/3;", "1/2/3"},
        {"a\\\\b \\{c\\}", "a\\b {c}"},
        {"a\\~b", "a\u00A0b"},
        {"\\U+00C4 %%d %%c", "\u00C4 \u00B0 \u00D8"},
        {"^Itab^J^ caret", "\ttab\n^caret"},
        {"\\pi-2,l2,t4;list", "list"},
        {"\\C1;red\\c255;RED", "redRED"},
        {"\\H2.5;\\W0.8;\\Q15;\\T1.2;x", "x"},
        {"}}un{{balanced", "unbalanced"},
        {"\\fArial", ""}, // no semicolon
        {"\\", "\\"},
        {"100%", "100%"},
        {"\\U+005CP", "\\P"}, // an escaped character does not start a code
    };
    for (const Row& row : rows)
        EXPECT_EQ(dxf::ReadInlineCodes(row.stored, 1).Plain(), row.plain) << row.stored;
}

TEST(InlineCodes, FormatAppliesWithinItsGroup) {
    const auto text = dxf::ReadInlineCodes("a{\\fTimes|b1|i1;\\LB{\\H0.5x;\\C3;c}}d", 2);
    ASSERT_EQ(text.runs.size(), 4u);
    EXPECT_EQ(text.runs[0].format.font, "");
    EXPECT_EQ(text.runs[1].format.font, "Times");
    EXPECT_TRUE(text.runs[1].format.bold && text.runs[1].format.italic && text.runs[1].format.underlined);
    EXPECT_EQ(text.runs[2].format.scale, 0.5);
    EXPECT_EQ(text.runs[2].format.color, 3);
    EXPECT_EQ(text.runs[3].format.scale, 1);
    EXPECT_FALSE(text.runs[3].format.underlined);
}

TEST(InlineCodes, HeightsAreRelativeToTheText) {
    const auto text = dxf::ReadInlineCodes("\\H5;a\\H0.5x;b\\H-1;c\\Hx;d", 2);
    ASSERT_EQ(text.runs.size(), 2u);
    EXPECT_EQ(text.runs[0].format.scale, 2.5);
    EXPECT_EQ(text.runs[1].format.scale, 1.25);
}

TEST(InlineCodes, DominantFormatIsThatOfMostText) {
    EXPECT_EQ(dxf::ReadInlineCodes("ab{\\fArial|b1;long part}", 1).DominantFormat().font, "Arial");
    EXPECT_EQ(dxf::ReadInlineCodes("", 1).DominantFormat().font, "");
}

TEST(InlineCodes, NestingIsLimited) {
    std::string stored = "\\fArial;";
    for (int i = 0; i < 100000; ++i)
        stored += "{";
    stored += "x";
    for (int i = 0; i < 100000; ++i)
        stored += "}";
    const auto text = dxf::ReadInlineCodes(stored + "y", 1);
    ASSERT_EQ(text.Plain(), "xy");
    EXPECT_EQ(text.runs.back().format.font, "Arial");
}

} // namespace
