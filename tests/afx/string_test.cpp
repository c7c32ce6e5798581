// CString: documented behavior at the limits.

#include <afx.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

std::string Text(const CString& string) {
    return std::string(string, static_cast<std::size_t>(string.GetLength()));
}

TEST(String, NullPointerIsAnEmptyString) {
    CString text(static_cast<LPCSTR>(nullptr));
    EXPECT_TRUE(text.IsEmpty());
    text = static_cast<LPCSTR>(nullptr);
    text += static_cast<LPCSTR>(nullptr);
    EXPECT_EQ(text.Compare(nullptr), 0);
    EXPECT_EQ(Text(CString(static_cast<LPCSTR>(nullptr), 7)), "");
}

struct Part {
    const char* name;
    int first, count;
    const char* mid;
    const char* left;  // result of Left
    const char* right; // result of Right
};

class StringPart : public ::testing::TestWithParam<Part> {};

TEST_P(StringPart, IsLimitedToTheString) {
    const CString text("abcdef");
    const Part& row = GetParam();
    EXPECT_EQ(row.mid, Text(text.Mid(row.first, row.count)));
    EXPECT_EQ(row.left, Text(text.Left(row.count)));
    EXPECT_EQ(row.right, Text(text.Right(row.count)));
}

const Part kParts[] = {
    {"Inside", 2, 3, "cde", "abc", "def"},          {"AtTheEnd", 4, 2, "ef", "ab", "ef"},
    {"PastTheEnd", 4, 9, "ef", "abcdef", "abcdef"}, {"AfterTheEnd", 7, 1, "", "a", "f"},
    {"NegativeFirst", -3, 2, "ab", "ab", "ef"},     {"NegativeCount", 1, -1, "", "", ""},
};
INSTANTIATE_TEST_SUITE_P(All, StringPart, ::testing::ValuesIn(kParts), [](auto& i) { return i.param.name; });

TEST(String, BufferKeepsTheTextUpToItsNul) {
    CString text("start");
    LPSTR buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, "start");
    std::copy_n("changed", 8, buffer);
    text.ReleaseBuffer();
    EXPECT_EQ(Text(text), "changed");

    std::copy_n("12345678", 8, text.GetBuffer(20));
    text.ReleaseBuffer(4);
    EXPECT_EQ(Text(text), "1234");

    // A buffer that is filled completely has no NUL.
    std::fill_n(text.GetBufferSetLength(300), 300, 'x');
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 300);
}

TEST(String, FormatsIntoItselfAndAtAnyLength) {
    CString text("abc");
    text.Format("%s-%s", static_cast<LPCSTR>(text), static_cast<LPCSTR>(text));
    EXPECT_EQ(Text(text), "abc-abc");
    text.Format("%2000d", 5);
    EXPECT_EQ(text.GetLength(), 2000);
    text.Format("%s", "");
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, FindsFromBothEnds) {
    const CString text("a\\b\\c");
    EXPECT_EQ(text.Find('\\'), 1);
    EXPECT_EQ(text.ReverseFind('\\'), 3);
    EXPECT_EQ(text.Find("b\\"), 2);
    EXPECT_EQ(text.Find('x'), -1);
    EXPECT_EQ(text.ReverseFind('x'), -1);
    EXPECT_EQ(text.Find("bc"), -1);
}

TEST(String, ConvertsCaseByTheCodePage) {
    CString text("MIXED \xC4\xD6\xDC \xD7 \x8A\x9F");
    text.MakeLower();
    EXPECT_EQ(Text(text), "mixed \xE4\xF6\xFC \xD7 \x9A\xFF");
    text.MakeUpper();
    EXPECT_EQ(Text(text), "MIXED \xC4\xD6\xDC \xD7 \x8A\x9F");
    // Sharp s and the division sign have no case.
    text = "\xDF\xF7";
    text.MakeUpper();
    EXPECT_EQ(Text(text), "\xDF\xF7");
}

TEST(String, ComparesWithAndWithoutCase) {
    EXPECT_TRUE(CString("abc") == "abc" && "abc" == CString("abc") && CString("abc") != "ABC");
    EXPECT_EQ(CString("abc").CompareNoCase("ABC"), 0);
    EXPECT_LT(CString("ABC").Compare("abc"), 0);
    EXPECT_GT(CString("\xE4").Compare("z"), 0); // bytes are compared as unsigned
    EXPECT_TRUE(CString("a") < CString("b"));
}

TEST(String, JoinsAndTrims) {
    CString text = "a" + CString("b") + "c" + 'd' + CString('e', 3);
    text += 'f';
    EXPECT_EQ(Text(text), "abcdeeef");
    text = " \t x y \r\n";
    text.TrimLeft();
    EXPECT_EQ(Text(text), "x y \r\n");
    text.TrimRight();
    EXPECT_EQ(Text(text), "x y");
    text = "  ";
    text.TrimRight();
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, CopiesAreIndependent) {
    CString one("text");
    CString two(one);
    two.SetAt(0, 'n');
    EXPECT_EQ(Text(one), "text");
    EXPECT_EQ(Text(two), "next");
}

} // namespace
