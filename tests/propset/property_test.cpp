// A single value: setting it from memory and from text, and writing and reading it.

#include "orlo/propset/property.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/propset/bytes.h"
#include "tests/propset/memory_stream.h"

namespace {

Bytes Block(CProperty& property, size_t size) {
    const auto* block = static_cast<const uint8_t*>(property.GetRawValue());
    return block != nullptr ? Bytes(block, block + size) : Bytes();
}

// A value in each form that Set accepts, and its stored bytes after the type code.
struct Row {
    const char* name;
    DWORD type;
    Bytes input;
    Bytes stored;
    size_t getAt; // offset that Get returns, in the stored block
    DWORD getSize;
};

std::string NameOf(const ::testing::TestParamInfo<Row>& row) {
    return row.param.name;
}

const Row kRows[] = {
    {"I2", VT_I2, "0102"_hex, "0102"_hex, 0, 2},
    {"UI2", VT_UI2, "feff"_hex, "feff"_hex, 0, 2},
    {"I4", VT_I4, "01020304"_hex, "01020304"_hex, 0, 4},
    {"UI4", VT_UI4, "ffffffff"_hex, "ffffffff"_hex, 0, 4},
    {"Bool", VT_BOOL, "ffff0000"_hex, "ffff0000"_hex, 0, 4},
    {"R4", VT_R4, "0000c03f"_hex, "0000c03f"_hex, 0, 4},
    {"R8", VT_R8, "000000000000f83f"_hex, "000000000000f83f"_hex, 0, 8},
    {"Money", VT_CY, "1027000000000000"_hex, "1027000000000000"_hex, 0, 8},
    {"Date", VT_DATE, "00000000a0d5e140"_hex, "00000000a0d5e140"_hex, 0, 8},
    {"I8", VT_I8, "0102030405060708"_hex, "0102030405060708"_hex, 0, 8},
    {"FileTime", VT_FILETIME, "0102030405060708"_hex, "0102030405060708"_hex, 0, 8},
    {"ClassId", VT_CLSID, "000102030405060708090a0b0c0d0e0f"_hex, "000102030405060708090a0b0c0d0e0f"_hex, 0, 16},
    {"Text", VT_LPSTR, "616200"_hex, "03000000616200"_hex, 4, 3},
    {"EmptyText", VT_LPSTR, "00"_hex, "0100000000"_hex, 4, 1},
    {"BasicText", VT_BSTR, "616263646500"_hex, "06000000616263646500"_hex, 4, 6},
    {"Stream", VT_STREAM, "7300"_hex, "020000007300"_hex, 4, 2},
    {"Storage", VT_STORAGE, "7300"_hex, "020000007300"_hex, 4, 2},
    {"StreamedObject", VT_STREAMED_OBJECT, "7300"_hex, "020000007300"_hex, 4, 2},
    {"StoredObject", VT_STORED_OBJECT, "7300"_hex, "020000007300"_hex, 4, 2},
    {"WideText", VT_LPWSTR, "6100e9000000"_hex, "030000006100e9000000"_hex, 4, 6},
    {"Blob", VT_BLOB, "03000000010203"_hex, "03000000010203"_hex, 0, 3},
    {"BlobObject", VT_BLOB_OBJECT, "0100000009"_hex, "0100000009"_hex, 0, 1},
    {"EmptyBlob", VT_BLOB, "00000000"_hex, "00000000"_hex, 0, 0},
    {"Clipboard", VT_CF, "09000000ffffffff0300000007"_hex, "09000000ffffffff0300000007"_hex, 4, 9},
    {"Code73", 73, "0100000007"_hex, "0100000007"_hex, 4, 1},
    {"Code74", 74, "0100000007"_hex, "0100000007"_hex, 4, 1},
    {"Code75", 75, "0100000007"_hex, "0100000007"_hex, 0, 1},
    {"VectorOfI2", VT_VECTOR | VT_I2, "03000000010002000300"_hex, "03000000010002000300"_hex, 0, 0},
    {"VectorOfR8", VT_VECTOR | VT_R8, "01000000000000000000f83f"_hex, "01000000000000000000f83f"_hex, 0, 0},
    {"VectorOfTexts", VT_VECTOR | VT_LPSTR, "02000000 020000006100 03000000626300"_hex,
     "02000000 020000006100 03000000626300"_hex, 0, 0},
    {"VectorOfWideTexts", VT_VECTOR | VT_LPWSTR, "02000000 0200000061000000 010000000000"_hex,
     "02000000 0200000061000000 010000000000"_hex, 0, 0},
    {"VectorOfBlobs", VT_VECTOR | VT_BLOB, "02000000 0100000009 00000000"_hex, "02000000 0100000009 00000000"_hex, 0,
     0},
    {"VectorOfNothing", VT_VECTOR | VT_LPSTR, "00000000"_hex, "00000000"_hex, 0, 0},
    {"VectorOfEmpties", VT_VECTOR | VT_EMPTY, "ffffffff"_hex, "ffffffff"_hex, 0, 0},
};

class StoredValue : public ::testing::TestWithParam<Row> {};
INSTANTIATE_TEST_SUITE_P(Types, StoredValue, ::testing::ValuesIn(kRows), NameOf);

TEST_P(StoredValue, KeepsItsStoredFormAndPointsIntoIt) {
    const Row& row = GetParam();
    Bytes input = row.input;
    CProperty property(5, input.data(), row.type);
    EXPECT_EQ(Block(property, row.stored.size()), row.stored);
    DWORD size = 77;
    const void* value = property.Get(&size);
    if (row.type & VT_VECTOR) {
        EXPECT_EQ(value, nullptr);
        EXPECT_EQ(size, 77u);
    } else {
        EXPECT_EQ(value, static_cast<uint8_t*>(property.GetRawValue()) + row.getAt);
        EXPECT_EQ(size, row.getSize);
    }
}

TEST_P(StoredValue, IsWrittenPaddedAndReadBack) {
    const Row& row = GetParam();
    Bytes input = row.input;
    CProperty written(5, input.data(), row.type);
    MemoryStream stream("aa"_hex); // an odd position: padding is relative to the value
    stream.Rewind(1);
    ASSERT_EQ(written.WriteToStream(&stream), 1);
    Bytes expected = "aa"_hex + LittleEndian(row.type) + row.stored;
    expected.resize(1 + (expected.size() - 1 + 3) / 4 * 4);
    EXPECT_EQ(stream.Content(), expected);

    stream.Rewind(1);
    CProperty read;
    ASSERT_EQ(read.ReadFromStream(&stream), 1);
    EXPECT_EQ(read.GetType(), row.type);
    EXPECT_EQ(Block(read, row.stored.size()), row.stored);
    EXPECT_EQ(stream.Position(), 1 + 4 + row.stored.size()) << "before the padding";
}

TEST_P(StoredValue, IsNeverReadBeyondItsEnd) {
    const Row& row = GetParam();
    const Bytes whole = LittleEndian(row.type) + row.stored;
    for (size_t size = 0; size < whole.size(); ++size) {
        MemoryStream stream(UpTo(size, whole));
        CProperty property;
        EXPECT_EQ(property.ReadFromStream(&stream), 0) << size << " bytes of " << whole.size();
        MemoryStream again;
        property.WriteToStream(&again); // the remaining bytes are read within their block
        DWORD ignored;
        property.Get(&ignored);
    }
}

struct TextRow {
    const char* name;
    const char* text;
    DWORD type;
    Bytes stored; // empty: rejected
};

const TextRow kTextRows[] = {
    {"VectorOfNumbers", "12, 34", VT_VECTOR | VT_I4, "02000000 0c000000 22000000"_hex},
    {"VectorOfTexts", "\"a b\", c", VT_VECTOR | VT_LPSTR, "02000000 0400000061206200 020000006300"_hex},
    {"FirstTokenOnly", "hello world", VT_LPSTR, "0600000068656c6c6f00"_hex},
    {"DoubledQuotesStay", "\"a\"\"\"", VT_LPSTR, "0400000061222200"_hex},
    {"BlankText", "  ", VT_LPSTR, "0100000000"_hex},
    {"BlankVector", "  ", VT_VECTOR | VT_I2, "00000000"_hex},
    {"ShortWraps", "65537", VT_I2, "0100"_hex},
    {"ShortNegative", "-2", VT_UI2, "feff"_hex},
    {"NumberUpToItsEnd", "12abc", VT_I4, "0c000000"_hex},
    {"NoNumberIsZero", "abc", VT_I4, "00000000"_hex},
    {"TooLargeIsHeld", "99999999999", VT_I4, "ffffff7f"_hex},
    {"Truth", "-1", VT_BOOL, "ffffffff"_hex},
    {"Float", "1.5", VT_R4, "0000c03f"_hex},
    {"Double", "-1.5e0", VT_R8, "000000000000f8bf"_hex},
    {"DoubleAfterPlus", "+1.5", VT_R8, "000000000000f83f"_hex},
    {"NoDouble", "x", VT_R8, "0000000000000000"_hex},
    {"EmptyDouble", "\"\", 1.5", VT_VECTOR | VT_R8, "020000000000000000000000000000000000f83f"_hex},
    {"BlankFloat", " \" \"", VT_R4, "00000000"_hex},
    {"InfinityIsNoNumber", "inf", VT_R8, "0000000000000000"_hex},
    {"BlobAsText", "ab", VT_BLOB, "03000000616200"_hex},
    {"Code75AsText", "ab", 75, "03000000616200"_hex},
    {"WideText", "a\xe9", VT_LPWSTR, "03000000 6100e9000000"_hex},
    {"VectorOfWideTexts", "a \"\"", VT_VECTOR | VT_LPWSTR, "02000000 0200000061000000 010000000000"_hex},
    {"LongNumber", "-2", VT_I8, "feffffffffffffff"_hex},
    {"LongNumberRejected", "2x", VT_I8, {}},
    {"LongNumberTooLarge", "9223372036854775808", VT_I8, {}},
    {"Money", "-12.5", VT_CY, "b817feffffffffff"_hex},
    {"MoneyRejected", "1.23456", VT_CY, {}},
    {"MoneyBarePoint", "1.", VT_CY, {}},
    {"Date", "1900-01-01", VT_DATE, "0000000000000040"_hex},
    {"DateBeforeItsZero", "\"1899-12-29 06:00\"", VT_DATE, "000000000000f4bf"_hex}, // -1.25
    {"FileTimeOfUnixZero", "1970-01-01T00:00:00Z", VT_FILETIME, "00803ed5deb19d01"_hex},
    {"FileTimeOfItsZero", "1601-01-01", VT_FILETIME, "0000000000000000"_hex},
    {"FileTimeAsTicks", "10000000", VT_FILETIME, "8096980000000000"_hex},
    {"LeapDay", "2000-02-29", VT_FILETIME, "0080cceb4782bf01"_hex},
    {"NoLeapDay", "1900-02-29", VT_FILETIME, {}},
    {"NoSuchHour", "2000-01-01T24:00", VT_FILETIME, {}},
    {"DateWithTail", "2000-01-01x", VT_DATE, {}},
    {"ClassId", "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}", VT_CLSID, "e0859ff2f94f6810ab9108002b27b3d9"_hex},
    {"ClassIdBare", "f29f85e0-4ff9-1068-ab91-08002b27b3d9", VT_CLSID, "e0859ff2f94f6810ab9108002b27b3d9"_hex},
    {"ClassIdRejected", "{F29F85E0-4FF9-1068-AB91-08002B27B3D}", VT_CLSID, {}},
    {"OneBadElement", "1 x 3", VT_VECTOR | VT_I8, {}},
    {"NoForm", "1", VT_DISPATCH, {}},
};

TEST(TextValue, IsParsedByItsType) {
    for (const TextRow& row : kTextRows) {
        SCOPED_TRACE(row.name);
        CProperty property;
        EXPECT_EQ(property.Set(9, CString(row.text), row.type), row.stored.empty() ? 0 : 1);
        EXPECT_EQ(property.GetType(), row.type);
        EXPECT_EQ(property.GetID(), 9u);
        EXPECT_EQ(Block(property, row.stored.size()), row.stored);
    }
}

TEST(Property, WithoutAValue) {
    CProperty property;
    DWORD size = 77;
    EXPECT_EQ(property.Get(&size), nullptr);
    EXPECT_EQ(size, 0u);
    EXPECT_EQ(property.GetID(), 0u);
    EXPECT_EQ(property.GetType(), static_cast<DWORD>(VT_EMPTY));

    char text[] = "abc";
    ASSERT_EQ(property.Set(2, text, VT_LPSTR), 1);
    EXPECT_EQ(property.Set(CString("")), 1); // an empty text removes the value
    EXPECT_EQ(property.GetRawValue(), nullptr);
    EXPECT_EQ(property.GetType(), static_cast<DWORD>(VT_LPSTR));
    ASSERT_EQ(property.Set(text), 1);
    EXPECT_EQ(property.Set(static_cast<void*>(nullptr)), 1);
    EXPECT_EQ(property.GetRawValue(), nullptr);
}

TEST(Property, WithoutAValueIsWrittenAsAnEmptyOneOfItsType) {
    const struct {
        DWORD type;
        Bytes written;
    } rows[] = {{VT_LPSTR, LittleEndian(VT_LPSTR) + "0100000000000000"_hex},
                {VT_LPWSTR, LittleEndian(VT_LPWSTR) + "0100000000000000"_hex},
                {VT_BLOB, LittleEndian(VT_BLOB) + "00000000"_hex},
                {VT_CF, LittleEndian(VT_CF) + "00000000"_hex},
                {VT_VECTOR | VT_I2, LittleEndian(VT_VECTOR | VT_I2) + "00000000"_hex},
                {VT_I4, LittleEndian(VT_EMPTY)}, // fixed-size types have no empty value
                {VT_FILETIME, LittleEndian(VT_EMPTY)},
                {VT_EMPTY, LittleEndian(VT_EMPTY)}};
    for (const auto& row : rows) {
        CProperty property(2, nullptr, row.type);
        MemoryStream stream;
        EXPECT_EQ(property.WriteToStream(&stream), 1);
        EXPECT_EQ(stream.Content(), row.written) << row.type;
    }
}

TEST(Property, RejectsTypesWithoutAStoredForm) {
    int number = 1;
    for (DWORD type = 0; type < 100; ++type) {
        const bool hasForm = type <= 8 || type == 11 || (type >= 18 && type <= 20) || type == 30 || type == 31 ||
                             (type >= 64 && type <= 75);
        if (hasForm && type != 1) continue;
        char text[] = "text";
        CProperty property(1, text, VT_LPSTR);
        EXPECT_EQ(property.Set(2, &number, type), 0) << type;
        EXPECT_EQ(property.GetType(), type);
        EXPECT_EQ(property.GetRawValue(), nullptr) << "the old value was removed";
        DWORD size = 77;
        EXPECT_EQ(property.Get(&size), nullptr);
        EXPECT_EQ(size, 77u);
        MemoryStream stream;
        EXPECT_EQ(property.WriteToStream(&stream), 0);
        EXPECT_TRUE(stream.Content().empty());
        MemoryStream foreign(LittleEndian(type) + "0000000000000000"_hex);
        EXPECT_EQ(property.ReadFromStream(&foreign), 0);
    }
}

TEST(Property, AcceptsItsOwnValueAsSource) {
    char text[] = "some text that is on the heap";
    CProperty property(1, text, VT_LPSTR);
    EXPECT_EQ(property.Set(property.Get()), 1);
    EXPECT_STREQ(static_cast<char*>(property.Get()), text);
}

TEST(Property, IsNotReadBeyondItsBlockAfterATypeChange) {
    short number = -1;
    CProperty property(1, &number, VT_I2);
    for (const DWORD type : {DWORD{VT_R8}, DWORD{VT_LPSTR}, DWORD{VT_LPWSTR}, DWORD{VT_BLOB}}) {
        property.SetType(type);
        DWORD size = 77;
        EXPECT_EQ(property.Get(&size), nullptr);
        EXPECT_EQ(size, 0u);
        MemoryStream stream;
        EXPECT_EQ(property.WriteToStream(&stream), 0);
    }
    property.SetType(VT_VECTOR | VT_UI2);
    MemoryStream stream;
    EXPECT_EQ(property.WriteToStream(&stream), 0);
}

TEST(Property, KeepsTheBytesOfATruncatedValue) {
    MemoryStream stream(LittleEndian(VT_LPSTR) + "08000000"_hex + "616263"_hex);
    CProperty property;
    EXPECT_EQ(property.ReadFromStream(&stream), 0);
    DWORD size = 0;
    EXPECT_STREQ(static_cast<char*>(property.Get(&size)), "abc");
    EXPECT_EQ(size, 8u);
}

TEST(Property, AllocatesNothingForAnImplausibleLength) {
    for (const Bytes& hostile :
         {LittleEndian(VT_LPSTR) + "ffffffff61"_hex, LittleEndian(VT_LPWSTR) + "ffffffff61"_hex,
          LittleEndian(VT_BLOB) + "00000070"_hex, LittleEndian(VT_VECTOR | VT_R8) + "ffffffff"_hex,
          LittleEndian(VT_VECTOR | VT_LPSTR) + "ffffffff"_hex}) {
        MemoryStream stream(hostile);
        CProperty property;
        EXPECT_EQ(property.ReadFromStream(&stream), 0);
        EXPECT_EQ(property.GetRawValue(), nullptr);
    }
}

} // namespace
