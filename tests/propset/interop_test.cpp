// Interoperation with the system's property storage through compound files, in both directions, for the types and sets
// that it preserves.

#include <gtest/gtest.h>

#include <ole2.h>

#include <map>
#include <string>
#include <vector>

#include "orlo/propset/property_set.h"
#include "orlo/win/com_owner.h"
#include "tests/propset/bytes.h"

using orlo::Owned;
using orlo::Receive;

namespace {

constexpr GUID kSummary = {0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
const wchar_t* const kSummaryStream = L"\005SummaryInformation";
constexpr DWORD kExclusive = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;

struct Document {
    explicit Document(const wchar_t* path, bool isNew) {
        const HRESULT result = isNew ? ::StgCreateDocfile(path, kExclusive | STGM_CREATE, 0, Receive(storage))
                                     : ::StgOpenStorage(path, nullptr, kExclusive, nullptr, 0, Receive(storage));
        EXPECT_EQ(result, S_OK);
        EXPECT_EQ(storage->QueryInterface(IID_IPropertySetStorage,
                                          reinterpret_cast<void**>(static_cast<IPropertySetStorage**>(Receive(sets)))),
                  S_OK);
    }
    Owned<IStorage> storage;
    Owned<IPropertySetStorage> sets;
};

std::wstring Path(const char* name) {
    const std::string path = std::string(ORLO_INTEROP_FOLDER "/") + name;
    return {path.begin(), path.end()};
}

PROPSPEC ById(PROPID id) {
    PROPSPEC spec;
    spec.ulKind = PRSPEC_PROPID;
    spec.propid = id;
    return spec;
}

// Values of the types that the system preserves, and their stored bytes. The system writes VT_CF eight bytes too large,
// and loses reals, Booleans, dates, money and vectors.
class Interop : public ::testing::Test {
protected:
    struct Row {
        VARTYPE type;
        Bytes stored;
    };
    const std::map<PROPID, Row> rows_ = {
        {2, {VT_LPSTR, "05000000 636166e900"_hex}},
        {3, {VT_I2, "feff"_hex}},
        {4, {VT_I4, "ffffff7f"_hex}},
        {5, {VT_UI2, "feff"_hex}},
        {6, {VT_UI4, "feffffff"_hex}},
        {7, {VT_I8, "0102030405060708"_hex}},
        {8, {VT_LPWSTR, "03000000 6100e9000000"_hex}},
        {12, {VT_FILETIME, "00803ed5deb19d01"_hex}},
        {20, {VT_CLSID, "e0859ff2f94f6810ab9108002b27b3d9"_hex}},
        {21, {VT_BLOB, "05000000 0102030405"_hex}},
    };

    // Returns the system's form, with pointers into `stored`.
    static PROPVARIANT VariantOf(const Row& row, Bytes& stored) {
        PROPVARIANT value{};
        value.vt = row.type;
        switch (row.type) {
        case VT_LPSTR:
            value.pszVal = reinterpret_cast<char*>(&stored[4]);
            break;
        case VT_LPWSTR:
            value.pwszVal = reinterpret_cast<wchar_t*>(&stored[4]);
            break;
        case VT_CLSID:
            value.puuid = reinterpret_cast<GUID*>(stored.data());
            break;
        case VT_BLOB:
            value.blob = {static_cast<ULONG>(stored.size() - 4), &stored[4]};
            break;
        default:
            std::memcpy(&value.hVal, stored.data(), stored.size());
        }
        return value;
    }

    static bool Holds(const PROPVARIANT& value, const Row& row) {
        Bytes stored = row.stored;
        const PROPVARIANT same = VariantOf(row, stored);
        switch (row.type) {
        case VT_LPSTR:
            return std::strcmp(value.pszVal, same.pszVal) == 0;
        case VT_LPWSTR:
            return std::wcscmp(value.pwszVal, same.pwszVal) == 0;
        case VT_CLSID:
            return ::IsEqualGUID(*value.puuid, *same.puuid);
        case VT_BLOB:
            return value.blob.cbSize == same.blob.cbSize &&
                   std::memcmp(value.blob.pBlobData, same.blob.pBlobData, same.blob.cbSize) == 0;
        default:
            return std::memcmp(&value.hVal, &same.hVal, stored.size()) == 0;
        }
    }
};

TEST_F(Interop, TheSystemReadsWhatWeWrite) {
    const std::wstring path = Path("ours.doc");
    {
        Document document(path.c_str(), true);
        Owned<IStream> stream;
        ASSERT_EQ(document.storage->CreateStream(kSummaryStream, kExclusive | STGM_CREATE, 0, 0, Receive(stream)),
                  S_OK);
        CPropertySet set;
        CPropertySection* section = set.AddSection(kSummary);
        short codePage = 1252;
        section->Set(1, &codePage, VT_I2);
        for (const auto& [id, row] : rows_) {
            Bytes stored = row.stored;
            const bool isText = row.type == VT_LPSTR || row.type == VT_LPWSTR;
            section->Set(id, &stored[isText ? 4 : 0], row.type);
        }
        section->SetName(3, "Storey");
        ASSERT_EQ(set.WriteToStream(stream.get()), 1);
        ASSERT_EQ(document.storage->Commit(STGC_DEFAULT), S_OK);
    }
    Document document(path.c_str(), false);
    Owned<IPropertyStorage> properties;
    ASSERT_EQ(document.sets->Open(kSummary, kExclusive, Receive(properties)), S_OK);
    for (const auto& [id, row] : rows_) {
        const PROPSPEC spec = ById(id);
        PROPVARIANT value{};
        EXPECT_EQ(properties->ReadMultiple(1, &spec, &value), S_OK) << id;
        EXPECT_TRUE(value.vt == row.type && Holds(value, row)) << id;
        ::PropVariantClear(&value);
    }
    wchar_t name[] = L"storey";
    PROPSPEC byName;
    byName.ulKind = PRSPEC_LPWSTR;
    byName.lpwstr = name;
    PROPVARIANT value{};
    EXPECT_EQ(properties->ReadMultiple(1, &byName, &value), S_OK);
    EXPECT_EQ(value.vt, VT_I2);
}

TEST_F(Interop, WeReadWhatTheSystemWrites) {
    for (const DWORD flags : {DWORD{PROPSETFLAG_ANSI}, DWORD{PROPSETFLAG_DEFAULT}}) {
        const bool isAnsi = flags == PROPSETFLAG_ANSI;
        const std::wstring path = Path(isAnsi ? "theirs_ansi.doc" : "theirs_wide.doc");
        {
            Document document(path.c_str(), true);
            Owned<IPropertyStorage> properties;
            ASSERT_EQ(document.sets->Create(kSummary, nullptr, flags, kExclusive | STGM_CREATE, Receive(properties)),
                      S_OK);
            for (const auto& [id, row] : rows_) {
                if (row.type == VT_LPSTR && !isAnsi) continue; // the system truncates it
                Bytes stored = row.stored;
                const PROPSPEC spec = ById(id);
                const PROPVARIANT value = VariantOf(row, stored);
                ASSERT_EQ(properties->WriteMultiple(1, &spec, &value, 2), S_OK) << id;
            }
            const PROPID named[] = {3, 4};
            wchar_t first[] = L"Storey", second[] = L"H\xF6he";
            LPOLESTR names[] = {first, second};
            ASSERT_EQ(properties->WritePropertyNames(2, named, names), S_OK);
            ASSERT_EQ(properties->Commit(STGC_DEFAULT), S_OK);
        }
        Document document(path.c_str(), false);
        Owned<IStream> stream;
        ASSERT_EQ(
            document.storage->OpenStream(kSummaryStream, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, Receive(stream)),
            S_OK);
        CPropertySet set;
        ASSERT_EQ(set.ReadFromStream(stream.get()), 1);
        for (const auto& [id, row] : rows_) {
            if (row.type == VT_LPSTR && !isAnsi) continue;
            CProperty* property = set.GetProperty(kSummary, id);
            ASSERT_NE(property, nullptr) << id;
            EXPECT_EQ(property->GetType(), row.type);
            ASSERT_NE(property->GetRawValue(), nullptr) << id;
            EXPECT_EQ(std::memcmp(property->GetRawValue(), row.stored.data(), row.stored.size()), 0) << id;
        }
        DWORD id = 0;
        EXPECT_EQ(set.GetSection(kSummary)->GetID("STOREY", &id), 1);
        EXPECT_EQ(id, 3u);
        EXPECT_EQ(set.GetSection(kSummary)->GetID("h\xF6he", &id), 1);
        EXPECT_EQ(id, 4u);
    }
}

} // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ::OleInitialize(nullptr);
    return RUN_ALL_TESTS();
}
