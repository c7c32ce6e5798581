// Splits text into tokens; counting and extracting use the same search.

#include "orlo/propset/tokens.h"

#include <cctype>

namespace {

const char* SkipSpace(const char* text) {
    while (std::isspace(static_cast<unsigned char>(*text)))
        ++text;
    return text;
}

// The start and end of a token's text, and where to search for the next token.
struct Token {
    const char* begin;
    const char* end;
    const char* rest;
};

Token FindToken(const char* text) {
    const char* begin = SkipSpace(text);
    const char* end;
    const char* rest;
    if (*begin == '"') {
        end = ++begin;
        while (*end && (*end != '"' || end[1] == '"'))
            end += *end == '"' ? 2 : 1;
        rest = *end ? end + 1 : end;
    } else {
        end = begin;
        while (*end && (end == begin || *end != ',') && !std::isspace(static_cast<unsigned char>(*end)))
            ++end;
        rest = end;
    }
    rest = SkipSpace(rest);
    if (*rest == ',') rest = SkipSpace(rest + 1);
    return {begin, end, rest};
}

} // namespace

int CountTokens(const char* text) {
    int count = 0;
    for (text = SkipSpace(text); *text; text = FindToken(text).rest)
        ++count;
    return count;
}

char* GetToken(char*& cursor) {
    const Token token = FindToken(cursor);
    char* text = cursor;
    const auto at = [text](const char* place) { return text + (place - text); };
    cursor = *token.rest ? at(token.rest) : nullptr;
    *at(token.end) = '\0';
    return at(token.begin);
}
