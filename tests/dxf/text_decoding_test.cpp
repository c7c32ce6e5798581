// Code pages, escapes and control codes.

#include "drawcore/src/dxf/text_decoding.h"

#include <gtest/gtest.h>

namespace {

TEST(TextDecoder, DecodesByCodePageAndVersion) {
    struct Row {
        const char* version;
        const char* codePage; // null if the file does not name one
        const char* bytes;
        const char* text;
    };
    const Row rows[] = {
        {"AC1015", "ANSI_1252", "W\xE4nde", "W\u00E4nde"},
        {"AC1009", nullptr, "\x80", "\u20AC"},
        {"AC1015", "ANSI_1251", "\xD1\xF2\xE5\xED\xFB", "\u0421\u0442\u0435\u043D\u044B"},
        {"AC1018", "ANSI_936", "\xB3\xDF\xB4\xE7\x81\x5C", "\u5C3A\u5BF8\u4E57"}, // the second byte is a backslash
        {"AC1015", "ANSI_932", "\x83\x5C", "\u30BD"},
        {"AC1015", "gb2312", "\xB3\xDF", "\u5C3A"},
        {"AC1012", "dos850", "\x84", "\u00E4"},
        {"AC1012", "ISO8859-5", "\xC1", "\u0421"},
        {"AC1015", "ANSI_950", "\x81\x40", "\uEEB8"},           // a user-defined character
        {"AC1015", "ANSI_1258", "a\xCC", "a\u0300"},            // a combining mark remains a separate character
        {"AC1015", "ANSI_932", "\x83\x5C\x83", "\u30BD\u30FB"}, // the second byte is missing
        {"AC1015", "utf-8", "\xC3\xA4\xC3", "\u00E4\uFFFD"},
        {"AC1015", "ANSI_70000", "\xE4", "\u00E4"},
        {"AC1015", "Klingon", "\xE4", "\u00E4"},
        {"AC1021", "ANSI_1252", "\xC3\xA4\xF0\x9F\x98\x80", "\u00E4\U0001F600"},
        {"AC1021", "ANSI_1251", "\xD1\xF2", "\u0421\u0442"}, // declared as UTF-8, but is not
        {"AC1021", "ANSI_1252", "\xC0\xAF", "\u00C0\u00AF"}, // an overlong sequence is not valid
    };
    for (const Row& row : rows) {
        dxf::TextDecoder decoder;
        decoder.SetVersion(row.version);
        if (row.codePage) decoder.SetCodePage(row.codePage);
        EXPECT_EQ(decoder.Decode(row.bytes), row.text) << row.version << " " << (row.codePage ? row.codePage : "none");
    }
}

TEST(TextDecoder, EscapesWhatTheCodePageLacks) {
    struct Row {
        const char* codePage;
        const char* text;
        const char* bytes;
    };
    const Row rows[] = {
        {"ANSI_1252", "W\u00E4nde \u20AC", "W\xE4nde \x80"},
        {"ANSI_1252", "\u5C3A\U0001F600", "\\U+5C3A\\U+D83D\\U+DE00"},
        {"ANSI_936", "\u5C3A\u0E01", "\xB3\xDF\\U+0E01"},
        {"ANSI_1253", "A\u0391\u00C0", "A\xC1\\U+00C0"}, // no similar letter instead
    };
    for (const Row& row : rows) {
        dxf::TextDecoder decoder;
        decoder.SetVersion("AC1015");
        decoder.SetCodePage(row.codePage);
        EXPECT_EQ(decoder.Encode(row.text), row.bytes);
        EXPECT_EQ(dxf::ToDisplayText(decoder.Decode(row.bytes)), row.text);
    }
}

TEST(DisplayText, ResolvesEscapes) {
    struct Row {
        const char* stored;
        const char* shown;
    };
    const Row rows[] = {
        {"\\U+039B\\U+00c4x", "\u039B\u00C4x"},
        {"\\U+D83D\\U+DE00", "\U0001F600"}, // a surrogate pair
        {"\\U+DE00!", "\uFFFD!"},           // half of a pair
        {"\\U+03", "\\U+03"},
        {"\\U+00zz", "\\U+00zz"},
        {"C:\\Users", "C:\\Users"},
        {"\\M+1835C", "\u30BD"},
        {"\\M+9835C", "\\M+9835C"},
        {"\\", "\\"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(dxf::ToDisplayText(row.stored), row.shown);
}

TEST(ControlCodes, AreResolved) {
    struct Row {
        const char* text;
        const char* shown;
        bool underlined, overlined;
    };
    const Row rows[] = {
        {"%%c20 %%p0.1 45%%D", "\u00D820 \u00B10.1 45\u00B0", false, false},
        {"%%uTitle%%u", "Title", true, false},
        {"%%o%%UX", "X", true, true},
        {"100%%%", "100%", false, false},
        {"%%065%%228", "A\u00E4", false, false},
        {"100%% sure", "100%% sure", false, false},
        {"%%", "%%", false, false},
        {"%%9", "%%9", false, false},
    };
    for (const Row& row : rows) {
        const dxf::LineText line = dxf::ReadControlCodes(row.text);
        EXPECT_EQ(line.text, row.shown) << row.text;
        EXPECT_EQ(line.underlined, row.underlined) << row.text;
        EXPECT_EQ(line.overlined, row.overlined) << row.text;
    }
}

} // namespace
