// Tokens of raw data: accepted and rejected texts.
#include "orlo/propset/tokens.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> Tokens(std::string text) {
    std::vector<std::string> tokens;
    char* cursor = text.data();
    while (cursor != nullptr)
        tokens.emplace_back(GetToken(cursor));
    return tokens;
}

struct Row {
    const char* name;
    const char* text;
    std::vector<std::string> tokens;
};

const Row kRows[] = {
    {"CommaAndBlank", "12, 34", {"12", "34"}},
    {"BlankAlone", "12 34", {"12", "34"}},
    {"AllWhiteSpace", " \t12\r\n34\v\f", {"12", "34"}},
    {"CommaWithoutBlank", "a,b", {"a", "b"}},
    {"QuotedWithBlank", "\"a b\", c", {"a b", "c"}},
    {"QuotedWithComma", "\"a,b\"c", {"a,b", "c"}},
    {"DoubledQuotesStay", "\"say \"\"hi\"\" now\" x", {"say \"\"hi\"\" now", "x"}},
    {"QuoteWithoutEnd", "\"a b", {"a b"}},
    {"DoubledQuoteIsNoEnd", "\"a\"\"", {"a\"\""}},
    {"EmptyQuoted", "\"\", \"\"", {"", ""}},
    {"LaterQuoteIsOrdinary", "a\"b c\"", {"a\"b", "c\""}},
    {"CommaFirstBelongs", ",a,b", {",a", "b"}},
    {"OnlyOneCommaIsSkipped", "a,,b", {"a", ",b"}},
    {"CommaAtEnd", "a, ", {"a"}},
    {"HighBytesAreText", "\xe9t\xe9 \xa0", {"\xe9t\xe9", "\xa0"}},
};

TEST(Tokens, AreCountedAndExtractedAlike) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(CountTokens(row.text), static_cast<int>(row.tokens.size()));
        EXPECT_EQ(Tokens(row.text), row.tokens);
    }
}

TEST(Tokens, WhiteSpaceHasNoTokenAndExtractsAnEmptyOne) {
    EXPECT_EQ(CountTokens(" \t "), 0);
    EXPECT_EQ(Tokens(" \t "), std::vector<std::string>{""});
}

} // namespace
