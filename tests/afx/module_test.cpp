// Resources and strings: search order of modules, splitting and formatting.

#include "afx_test_ids.h"

#include <afxext.h>

#include <gtest/gtest.h>

#include <string>

namespace {

const LPCSTR kIcon = MAKEINTRESOURCEA(104); // in no module of this program
const LPCSTR kGroupIcon = reinterpret_cast<LPCSTR>(RT_GROUP_ICON);

TEST(ModuleChain, IsSearchedFromTheProgramToTheFramework) {
    HINSTANCE program = ::GetModuleHandleA(nullptr);
    EXPECT_EQ(program, AfxFindResourceHandle(MAKEINTRESOURCEA(IDD_FORM), reinterpret_cast<LPCSTR>(RT_DIALOG)));
    EXPECT_EQ(program, AfxFindResourceHandle(kIcon, kGroupIcon)) << "no module has it: the program's";
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_SHEET));
    EXPECT_STREQ(text, "Sheet of strings");
    EXPECT_TRUE(text.LoadString(AFX_IDP_PARSE_REAL));
    EXPECT_STREQ(text, "Please enter a number.");
    EXPECT_FALSE(text.LoadString(1));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(ModuleChain, AddsAndRemovesExtensionModules) {
    // The shell's library has icons; no other module in this program does.
    HMODULE shell = ::LoadLibraryA("shell32.dll");
    ASSERT_NE(::FindResourceA(shell, MAKEINTRESOURCEA(1), kGroupIcon), nullptr);
    AFX_EXTENSION_MODULE module = {};
    ASSERT_TRUE(AfxInitExtensionModule(module, shell));
    new CDynLinkLibrary(module);
    EXPECT_EQ(shell, AfxFindResourceHandle(MAKEINTRESOURCEA(1), kGroupIcon));
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_SHEET));
    EXPECT_STREQ(text, "Sheet of strings") << "the program comes first";
    AfxTermExtensionModule(module);
    EXPECT_NE(shell, AfxFindResourceHandle(MAKEINTRESOURCEA(1), kGroupIcon));
    ::FreeLibrary(shell);
}

TEST(ModuleChain, LoadsStringsIntoBuffersOfAnySize) {
    char text[8];
    EXPECT_EQ(AfxLoadString(IDS_SHEET, text, sizeof text), 7);
    EXPECT_STREQ(text, "Sheet o");
    EXPECT_EQ(AfxLoadString(1, text, sizeof text), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(AfxLoadString(IDS_SHEET, text, 0), 0);
}

TEST(Messages, InsertTextsInAnyOrder) {
    CString text;
    AfxFormatString2(text, IDS_INSERTS, "one", "%1 two");
    EXPECT_STREQ(text, "%1 two before one, 100%, %3");
    AfxFormatString1(text, IDS_INSERTS, "one");
    EXPECT_STREQ(text, "%2 before one, 100%, %3");
}

struct Part {
    const char* name;
    const char* full;
    int index;
    int found;
    const char* part;
};

class SubString : public ::testing::TestWithParam<Part> {};

TEST_P(SubString, IsExtracted) {
    CString part("before");
    EXPECT_EQ(GetParam().found, AfxExtractSubString(part, GetParam().full, GetParam().index));
    EXPECT_STREQ(GetParam().part, part);
}

const Part kParts[] = {
    {"First", "a\nbc\nd", 0, 1, "a"},     {"Middle", "a\nbc\nd", 1, 1, "bc"},  {"Last", "a\nbc\nd", 2, 1, "d"},
    {"PastTheEnd", "a\nbc\nd", 3, 0, ""}, {"Empty", "a\n\nd", 1, 1, ""},       {"AfterTheLastFeed", "a\n", 1, 1, ""},
    {"OfEmptyText", "", 0, 1, ""},        {"SecondOfEmptyText", "", 1, 0, ""}, {"OfNull", nullptr, 0, 0, ""},
};
INSTANTIATE_TEST_SUITE_P(All, SubString, ::testing::ValuesIn(kParts), [](auto& i) { return i.param.name; });

} // namespace
