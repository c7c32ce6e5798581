// Decoded values: decoding and encoding, names of types and class IDs, code pages.

#include "orlo/propset/inspect/value.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "orlo/propset/code_page.h"
#include "tests/propset/bytes.h"

namespace {

using nlohmann::json;

json Hex(const orlo::Bytes& bytes) {
    std::string digits;
    for (const uint8_t byte : bytes)
        for (const int digit : {byte >> 4, byte & 15})
            digits += "0123456789abcdef"[digit];
    return digits;
}

// 64-bit numbers are written as text to avoid rounding; bytes are in hexadecimal.
struct ScalarToJson {
    bool isLong;

    json operator()(std::monostate) const { return nullptr; }
    json operator()(bool truth) const { return truth; }
    json operator()(double number) const { return number; }
    json operator()(int64_t number) const { return isLong ? json(std::to_string(number)) : json(number); }
    json operator()(uint64_t number) const { return isLong ? json(std::to_string(number)) : json(number); }
    json operator()(const std::string& text) const { return text; }
    json operator()(const orlo::Bytes& bytes) const { return Hex(bytes); }
    json operator()(const GUID& guid) const { return orlo::GuidText(guid); }
    json operator()(const orlo::ClipboardData& clip) const {
        return json::array({clip.tag, clip.format, Hex(clip.data)});
    }
};

json ToJson(const orlo::Value& value) {
    const uint32_t base = value.type & ~uint32_t{VT_VECTOR};
    const bool isLong = base == VT_I8 || base == VT_UI8 || base == VT_CY || base == VT_FILETIME;
    if (value.type == base) return std::visit(ScalarToJson{isLong}, value.data);
    json list = json::array();
    for (const orlo::Value& element : value.elements)
        list.push_back(base == VT_VARIANT ? json::array({element.type, ToJson(element)}) : ToJson(element));
    return list;
}

struct Row {
    const char* name;
    uint32_t type;
    uint16_t codePage;
    Bytes bytes;
    json meaning; // null if it cannot be decoded
};

class ValueForm : public ::testing::TestWithParam<Row> {};

TEST_P(ValueForm, IsDecodedAndEncodedAlike) {
    const Row& row = GetParam();
    orlo::Value value;
    ASSERT_TRUE(orlo::DecodeValue(row.type, row.bytes.data(), row.bytes.size(), row.codePage, value));
    EXPECT_EQ(value.type, row.type);
    EXPECT_EQ(ToJson(value), row.meaning);
    EXPECT_EQ(orlo::EncodeValue(value, row.codePage), row.bytes);
}

TEST_P(ValueForm, IsRejectedIfAByteIsMissing) {
    const Row& row = GetParam();
    for (size_t size = 0; size < row.bytes.size(); ++size) {
        const Bytes cut = UpTo(size, row.bytes); // accesses beyond its end are detected
        orlo::Value value;
        EXPECT_FALSE(orlo::DecodeValue(row.type, cut.data(), cut.size(), row.codePage, value)) << size;
    }
}

const json kVariants = {json::array({30, "a"}), json::array({3, 7})};

const Row kRows[] = {
    {"Empty", VT_EMPTY, 1252, {}, nullptr},
    {"Null", VT_NULL, 1252, {}, nullptr},
    {"I1", VT_I1, 1252, "fe"_hex, -2},
    {"UI1", VT_UI1, 1252, "fe"_hex, 254},
    {"I2", VT_I2, 1252, "feff"_hex, -2},
    {"UI2", VT_UI2, 1252, "feff"_hex, 65534},
    {"I4", VT_I4, 1252, "00000080"_hex, INT32_MIN},
    {"UI4", VT_UI4, 1252, "00000080"_hex, 2147483648u},
    {"Int", VT_INT, 1252, "ffffffff"_hex, -1},
    {"UInt", VT_UINT, 1252, "ffffffff"_hex, 4294967295u},
    {"Error", VT_ERROR, 1252, "05400080"_hex, -2147467259},
    {"I8", VT_I8, 1252, "0000000000000080"_hex, "-9223372036854775808"},
    {"UI8", VT_UI8, 1252, "ffffffffffffffff"_hex, "18446744073709551615"},
    {"Money", VT_CY, 1252, "b817feffffffffff"_hex, "-125000"},
    {"FileTime", VT_FILETIME, 1252, "00803ed5deb19d01"_hex, "116444736000000000"},
    {"R4", VT_R4, 1252, "0000c03f"_hex, 1.5},
    {"R8", VT_R8, 1252, "000000000000f8bf"_hex, -1.5},
    {"Date", VT_DATE, 1252, "0000000000000040"_hex, 2.0},
    {"True", VT_BOOL, 1252, "ffff0000"_hex, true},
    {"False", VT_BOOL, 1252, "00000000"_hex, false},
    {"Text", VT_LPSTR, 1252, "05000000 636166e900"_hex, "café"},
    {"TextOfTwoByteCharacters", VT_LPSTR, 932, "05000000 93fa967b00"_hex, "日本"},
    {"TextInUtf8", VT_LPSTR, 65001, "03000000 c3a900"_hex, "é"},
    {"TextInUtf16", VT_LPSTR, 1200, "08000000 6100e9003a040000"_hex, "aéк"},
    {"WideTextWhateverTheCodePage", VT_LPWSTR, 1252, "04000000 6100e9003a040000"_hex, "aéк"},
    {"BeyondTheBasicPlane", VT_LPWSTR, 1252, "03000000 3dd800de0000"_hex, "😀"},
    {"EmptyText", VT_LPSTR, 1252, "01000000 00"_hex, ""},
    {"Blob", VT_BLOB, 1252, "03000000 616263"_hex, "616263"},
    {"Decimal", VT_DECIMAL, 1252, "000102030405060708090a0b0c0d0e0f"_hex, "000102030405060708090a0b0c0d0e0f"},
    {"Clipboard", VT_CF, 1252, "0a000000 ffffffff 03000000 6162"_hex, json::array({-1, 3, "6162"})},
    {"ClassId", VT_CLSID, 1252, "e0859ff2f94f6810ab9108002b27b3d9"_hex, "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}"},
    {"VectorOfI2", VT_VECTOR | VT_I2, 1252, "02000000 01000200"_hex, {1, 2}},
    {"VectorOfTexts", VT_VECTOR | VT_LPSTR, 1252, "02000000 020000006100 03000000626300"_hex, {"a", "bc"}},
    {"VectorOfVariants", VT_VECTOR | VT_VARIANT, 1252, "02000000 1e000000 020000006100 03000000 07000000"_hex,
     kVariants},
    {"VectorOfNothing", VT_VECTOR | VT_R8, 1252, "00000000"_hex, json::array()},
};
INSTANTIATE_TEST_SUITE_P(Types, ValueForm, ::testing::ValuesIn(kRows), [](const auto& row) { return row.param.name; });

TEST(Value, ReadsFormsThatItDoesNotWrite) {
    const struct {
        uint32_t type;
        Bytes bytes;
        json meaning;
    } rows[] = {
        {VT_BOOL, "01000000"_hex, true},
        {VT_BOOL, "0000ffff"_hex, true},
        {VT_LPSTR, "08000000 6162000000000000"_hex, "ab"},
        {VT_LPSTR, "02000000 6162"_hex, "ab"},
        {VT_LPSTR, "00000000"_hex, ""},
        {VT_LPWSTR, "00000000"_hex, ""},
        {VT_CF, "04000000 00000000"_hex, json::array({0, 0, ""})},
        // Elements padded to four bytes each, as by a few writers.
        {VT_VECTOR | VT_LPSTR, "03000000 0200000061000000 0300000062630000 020000006400"_hex, {"a", "bc", "d"}},
        {VT_VECTOR | VT_VARIANT, "02000000 1e000000 0200000061000000 03000000 07000000"_hex, kVariants},
    };
    for (const auto& row : rows) {
        orlo::Value value;
        ASSERT_TRUE(orlo::DecodeValue(row.type, row.bytes.data(), row.bytes.size(), 1252, value)) << row.meaning;
        EXPECT_EQ(ToJson(value), row.meaning);
    }
}

TEST(Value, RejectsInvalidValues) {
    const struct {
        uint32_t type;
        uint16_t codePage;
        Bytes bytes;
    } rows[] = {
        {VT_DISPATCH, 1252, "00000000"_hex},
        {VT_VARIANT, 1252, "0300000007000000"_hex},
        {VT_ARRAY | VT_I4, 1252, "0000000000000000"_hex},
        {VT_VECTOR | VT_EMPTY, 1252, "ffffffff"_hex}, // four billion empty elements
        {VT_VECTOR | VT_VARIANT, 1252, "01000000 0c100000 00000000"_hex},
        {VT_VECTOR | VT_UI1, 1252, "ffffffff 00"_hex},
        {VT_LPSTR, 1252, "02000000 8100"_hex},
        {VT_LPSTR, 65001, "02000000 ff00"_hex},
        {VT_LPSTR, 1220, "02000000 6100"_hex},
        {VT_LPWSTR, 1252, "02000000 00d80000"_hex}, // half a surrogate pair
        {VT_CF, 1252, "03000000 ffffff"_hex},
        {VT_CF, 1252, "06000000 ffffffff 0300"_hex},
    };
    for (const auto& row : rows) {
        orlo::Value value;
        value.type = 77;
        EXPECT_FALSE(orlo::DecodeValue(row.type, row.bytes.data(), row.bytes.size(), row.codePage, value)) << row.type;
        EXPECT_EQ(value.type, 77u) << "not changed";
    }
}

TEST(Value, IsNotWrittenOutOfRange) {
    const auto value = [](uint32_t type, auto data) {
        orlo::Value made;
        made.type = type;
        made.data = data;
        return made;
    };
    EXPECT_FALSE(orlo::EncodeValue(value(VT_I2, int64_t{40000}), 1252));
    EXPECT_FALSE(orlo::EncodeValue(value(VT_UI2, uint64_t{70000}), 1252));
    EXPECT_TRUE(orlo::EncodeValue(value(VT_I2, int64_t{-32768}), 1252));
    EXPECT_FALSE(orlo::EncodeValue(value(VT_LPSTR, std::string("日本")), 1252));
    EXPECT_FALSE(orlo::EncodeValue(value(VT_LPSTR, std::string("a")), 1220));
    EXPECT_FALSE(orlo::EncodeValue(value(VT_LPSTR, int64_t{1}), 1252)) << "another kind of data";
    EXPECT_FALSE(orlo::EncodeValue(value(VT_DISPATCH, int64_t{1}), 1252));
    orlo::Value list = value(VT_VECTOR | VT_I2, std::monostate());
    list.elements.push_back(value(VT_I4, int64_t{1}));
    EXPECT_FALSE(orlo::EncodeValue(list, 1252));
}

TEST(Value, TypesHaveNames) {
    EXPECT_EQ(orlo::TypeName(VT_LPSTR), "VT_LPSTR");
    EXPECT_EQ(orlo::TypeName(VT_VECTOR | VT_VARIANT), "VT_VECTOR | VT_VARIANT");
    EXPECT_EQ(orlo::TypeName(VT_ARRAY | VT_I4), "type 0x2003");
    EXPECT_EQ(orlo::TypeName(0x25), "type 0x0025");
}

} // namespace
