// Fields of a summary in memory: setting, removing and wrong types, and the stored numbers of dates and thumbnails.

#include "orlo/summary/ole_summary.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

#include "orlo/propset/property_set.h"

namespace {

const GUID kFormat = {0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
constexpr DWORD kAppearance[] = {PIDSI_TITLE,    PIDSI_SUBJECT,  PIDSI_AUTHOR,    PIDSI_KEYWORDS,
                                 PIDSI_COMMENTS, PIDSI_TEMPLATE, PIDSI_REVNUMBER, PIDSI_APPNAME};

class Summary : public testing::Test {
protected:
    ~Summary() override { OleStdFreeSummaryInfo(&set_); }

    ULONGLONG Ticks(DWORD id) {
        ULONGLONG ticks = 0;
        const void* value = set_->Get(kFormat, id);
        if (value) std::memcpy(&ticks, value, sizeof ticks);
        return ticks;
    }
    bool Has(DWORD id) { return set_->GetProperty(kFormat, id) != nullptr; }
    void Put(DWORD id, const void* value, DWORD type) { set_->Set(kFormat, id, const_cast<void*>(value), type); }

    CPropertySet* set_ = OleStdInitSummaryInfo(1252);
};

using Date = std::array<int, 4>; // year, month, day, seconds
Date DateOf(CPropertySet* set, DWORD id) {
    Date date = {-1, -1, -1, -1};
    OleStdGetDateProperty(set, id, &date[0], &date[1], &date[2], &date[3]);
    return date;
}

TEST_F(Summary, BeginsWithItsCodePage) {
    const auto codePage = [](CPropertySet* set) {
        return *static_cast<const WORD*>(set->GetProperty(kFormat, 1)->Get());
    };
    EXPECT_EQ(codePage(set_), 1252);
    EXPECT_EQ(set_->GetProperty(kFormat, 1)->GetType(), DWORD{VT_I2});
    EXPECT_EQ(set_->GetSection(kFormat)->GetCount(), 1u);
    EXPECT_EQ(set_->GetFormatVersion(), 0);
    EXPECT_EQ(HIWORD(set_->GetOSVersion()), 2);
    EXPECT_EQ(LOWORD(set_->GetOSVersion()), LOWORD(::GetVersion()));
    OleStdFreeSummaryInfo(&set_);
    EXPECT_EQ(set_, nullptr);
    set_ = OleStdInitSummaryInfo(0);
    EXPECT_EQ(codePage(set_), ::GetACP());
}

TEST_F(Summary, TextsAreSetReplacedAndRemoved) {
    EXPECT_EQ(OleStdSetStringProperty(set_, PIDSI_TITLE, ""), 1);
    EXPECT_EQ(OleStdSetStringProperty(set_, PIDSI_TITLE, nullptr), 1);
    EXPECT_FALSE(Has(PIDSI_TITLE));
    EXPECT_EQ(OleStdGetStringProperty(set_, PIDSI_TITLE), nullptr);
    for (const char* text : {"Ground floor", "x", "A longer title than the first"}) {
        EXPECT_EQ(OleStdSetStringProperty(set_, PIDSI_TITLE, text), 1);
        EXPECT_STREQ(OleStdGetStringProperty(set_, PIDSI_TITLE), text);
    }
    EXPECT_EQ(OleStdSetStringProperty(set_, PIDSI_TITLE, ""), 1);
    EXPECT_FALSE(Has(PIDSI_TITLE));
}

TEST_F(Summary, UnexpectedTypeIsTreatedAsMissingAndNotReplaced) {
    const int number = 7;
    for (const DWORD id : {PIDSI_TITLE, PIDSI_CREATE_DTM, PIDSI_THUMBNAIL})
        Put(id, &number, VT_I4);
    Put(PIDSI_PAGECOUNT, "seven", VT_LPSTR);
    EXPECT_EQ(OleStdGetStringProperty(set_, PIDSI_TITLE), nullptr);
    EXPECT_EQ(OleStdSetStringProperty(set_, PIDSI_TITLE, "Title"), 0);
    EXPECT_EQ(OleStdGetIntProperty(set_, PIDSI_PAGECOUNT), 0);
    EXPECT_EQ(OleStdSetIntProperty(set_, PIDSI_PAGECOUNT, 8), 0);
    EXPECT_EQ(DateOf(set_, PIDSI_CREATE_DTM), (Date{0, 0, 0, 0}));
    EXPECT_EQ(OleStdSetDateProperty(set_, PIDSI_CREATE_DTM, 1998, 3, 2, 1, 1, 1), 0);
    DWORD format = 0, size = 0;
    HGLOBAL data = nullptr;
    EXPECT_EQ(OleStdGetThumbNailProperty(set_, &format, &data, &size), 0);
    EXPECT_EQ(OleStdGetIntProperty(set_, PIDSI_TITLE), 7) << "the existing contents are preserved";
}

TEST_F(Summary, CountsAndSecurity) {
    EXPECT_EQ(OleStdGetIntProperty(set_, PIDSI_PAGECOUNT), 0);
    EXPECT_EQ(OleStdSetDocProperty(set_, 3, 700, 0xFFFFFFFF), 1);
    EXPECT_EQ(OleStdSetIntProperty(set_, PIDSI_PAGECOUNT, -4), 1);
    DWORD pages = 0, words = 0, characters = 0;
    OleStdGetDocProperty(set_, &pages, &words, &characters);
    EXPECT_EQ(static_cast<int>(pages), -4);
    EXPECT_EQ(words, 700u);
    EXPECT_EQ(characters, 0xFFFFFFFF);
    EXPECT_EQ(OleStdGetSecurityProperty(set_), 0u);
    EXPECT_EQ(OleStdSetSecurityProperty(set_, 0x80000004), 1);
    EXPECT_EQ(OleStdGetSecurityProperty(set_), 0x80000004);
}

TEST_F(Summary, SettingCountsStopsAtTheFirstThatFails) {
    Put(PIDSI_WORDCOUNT, "many", VT_LPSTR);
    EXPECT_EQ(OleStdSetDocProperty(set_, 3, 700, 900), 0);
    EXPECT_EQ(OleStdGetIntProperty(set_, PIDSI_PAGECOUNT), 3);
    EXPECT_EQ(OleStdGetIntProperty(set_, PIDSI_CHARCOUNT), 0);
}

// No more bytes are read than the value has.
TEST_F(Summary, SecurityOfAnyTypeIsReadAndReplaced) {
    const short narrow = -2;
    Put(PIDSI_DOC_SECURITY, &narrow, VT_I2);
    EXPECT_EQ(OleStdGetSecurityProperty(set_), 0xFFFEu);
    Put(PIDSI_DOC_SECURITY, "ABCDEFG", VT_LPSTR);
    EXPECT_EQ(OleStdGetSecurityProperty(set_), 0x44434241u);
    EXPECT_EQ(OleStdSetSecurityProperty(set_, 2), 1);
    EXPECT_EQ(OleStdGetSecurityProperty(set_), 2u);
}

TEST_F(Summary, ClearingKeepsDatesCountsSecurityAndLastAuthor) {
    for (const DWORD id : kAppearance)
        OleStdSetStringProperty(set_, id, "text");
    OleStdSetStringProperty(set_, PIDSI_LASTAUTHOR, "somebody");
    for (const DWORD id : {PIDSI_EDITTIME, PIDSI_LASTPRINTED, PIDSI_CREATE_DTM, PIDSI_LASTSAVE_DTM})
        OleStdSetDateProperty(set_, id, 1998, 3, 2, 13, 5, 7);
    OleStdSetDocProperty(set_, 1, 2, 3);
    OleStdSetSecurityProperty(set_, 1);
    const HGLOBAL picture = ::GlobalAlloc(GHND, 100);
    OleStdSetThumbNailProperty(set_, 3, picture, 100);
    ::GlobalFree(picture);
    OleStdClearSummaryInfo(set_);
    for (const DWORD id : kAppearance)
        EXPECT_FALSE(Has(id)) << id;
    EXPECT_FALSE(Has(PIDSI_THUMBNAIL));
    EXPECT_EQ(set_->GetSection(kFormat)->GetCount(), 1u + 1 + 4 + 3 + 1);
    EXPECT_STREQ(OleStdGetStringProperty(set_, PIDSI_LASTAUTHOR), "somebody");
}

struct Moment {
    const char* name;
    int in[6];
    Date out;
};

const Moment kMoments[] = {
    {"OddSecond", {1998, 3, 2, 13, 5, 7}, {1998, 3, 2, 47106}},
    {"BeforeTheFirstYear", {1970, 5, 1, 0, 0, 0}, {1980, 5, 1, 0}},
    {"LastYear", {2107, 12, 31, 23, 59, 59}, {2107, 12, 31, 86398}},
    {"AfterTheLastYear", {2108, 1, 1, 0, 0, 0}, {0, 0, 0, 0}},
    {"Nothing", {0, 0, 0, 0, 0, 0}, {0, 0, 0, 0}},
    {"NoSuchMonth", {2000, 13, 1, 0, 0, 0}, {0, 0, 0, 0}},
    {"MonthPastItsBits", {2000, 17, 1, 0, 0, 0}, {0, 0, 0, 0}},
    {"NegativeDay", {2000, 1, -1, 0, 0, 0}, {0, 0, 0, 0}},
};

TEST_F(Summary, TimesAreReadBackWithinTwoSeconds) {
    for (const Moment& row : kMoments) {
        SCOPED_TRACE(row.name);
        const auto& in = row.in;
        OleStdSetDateProperty(set_, PIDSI_CREATE_DTM, 2001, 1, 1, 1, 1, 1);
        EXPECT_EQ(OleStdSetDateProperty(set_, PIDSI_CREATE_DTM, in[0], in[1], in[2], in[3], in[4], in[5]), 1);
        EXPECT_EQ(DateOf(set_, PIDSI_CREATE_DTM), row.out);
        EXPECT_EQ(Has(PIDSI_CREATE_DTM), row.out[0] != 0);
    }
}

// The published number of 100 ns units since 1601 for that time.
TEST_F(Summary, TimesAreFileTimes) {
    OleStdSetDateProperty(set_, PIDSI_CREATE_DTM, 1998, 3, 2, 13, 5, 6);
    EXPECT_EQ(Ticks(PIDSI_CREATE_DTM), 125333175060000000ull);
}

TEST_F(Summary, EditTimeIsADuration) {
    EXPECT_EQ(OleStdSetDateProperty(set_, PIDSI_EDITTIME, 0, 0, 1, 2, 3, 4), 1);
    EXPECT_EQ(Ticks(PIDSI_EDITTIME), 93784ull * 10000000);
    EXPECT_EQ(DateOf(set_, PIDSI_EDITTIME), (Date{0, 0, 1, 7384}));
    OleStdSetDateProperty(set_, PIDSI_EDITTIME, 1, 0, 0, 0, 0, 0);
    EXPECT_EQ(DateOf(set_, PIDSI_EDITTIME), (Date{1, 0, 5, 0})) << "365 days are 12 months of 30 and 5 days";
    OleStdSetDateProperty(set_, PIDSI_EDITTIME, 0, 0, 0, 0, 0, 0);
    EXPECT_FALSE(Has(PIDSI_EDITTIME));
}

TEST_F(Summary, ThumbnailKeepsItsBytes) {
    const HGLOBAL picture = ::GlobalAlloc(GHND, 100);
    std::memset(::GlobalLock(picture), 0xA5, 100);
    ::GlobalUnlock(picture);
    EXPECT_EQ(OleStdSetThumbNailProperty(set_, 3, picture, 100), 1);
    const DWORD* stored = static_cast<const DWORD*>(set_->GetProperty(kFormat, PIDSI_THUMBNAIL)->GetRawValue());
    EXPECT_EQ(stored[0], 108u);
    EXPECT_EQ(stored[1], 0xFFFFFFFF);
    EXPECT_EQ(stored[2], 3u);
    DWORD format = 0, size = 0;
    HGLOBAL data = nullptr;
    EXPECT_EQ(OleStdGetThumbNailProperty(set_, &format, &data, &size), -1);
    EXPECT_EQ(format, 3u);
    EXPECT_EQ(size, 100u);
    EXPECT_EQ(std::memcmp(::GlobalLock(data), ::GlobalLock(picture), 100), 0);
    ::GlobalUnlock(data);
    ::GlobalUnlock(picture);
    EXPECT_EQ(::GlobalFree(data), nullptr);
    EXPECT_EQ(OleStdSetThumbNailProperty(set_, 0, nullptr, 0), 1);
    EXPECT_FALSE(Has(PIDSI_THUMBNAIL));
    EXPECT_EQ(OleStdSetThumbNailProperty(set_, 3, nullptr, 100), 0);
    EXPECT_EQ(OleStdSetThumbNailProperty(set_, 3, picture, static_cast<DWORD>(::GlobalSize(picture)) + 1), 0)
        << "longer than the block";
    EXPECT_FALSE(Has(PIDSI_THUMBNAIL));
    ::GlobalFree(picture);
}

TEST_F(Summary, ThumbnailsOfOtherFormatsAreIgnored) {
    const DWORD shapes[][4] = {{0, 0, 0, 0},           // no bytes
                               {4, 0xFFFFFFFF, 0, 0},  // no format
                               {12, 0xFFFFFFFE, 3, 0}, // a format of another system
                               {8, 0xFFFFFFFF, 3, 0}}; // no picture
    for (const auto& shape : shapes) {
        Put(PIDSI_THUMBNAIL, shape, VT_CF);
        DWORD format = 0, size = 0;
        HGLOBAL data = nullptr;
        EXPECT_EQ(OleStdGetThumbNailProperty(set_, &format, &data, &size), 0);
        EXPECT_EQ(data, nullptr);
    }
}

// As some writers store it: the text fills its count without a NUL.
TEST_F(Summary, TextsWithoutTheirNulAreTerminated) {
    struct {
        DWORD count;
        char text[4];
    } stored[] = {{4, {'P', 'l', 'a', 'n'}}, {0, {}}};
    const char* expected[] = {"Plan", ""};
    for (int i = 0; i < 2; ++i) {
        IStream* stream = nullptr;
        ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
        const DWORD type = VT_LPSTR;
        stream->Write(&type, sizeof type, nullptr);
        stream->Write(&stored[i], 4 + stored[i].count, nullptr);
        stream->Seek({}, STREAM_SEEK_SET, nullptr);
        auto* property = new CProperty;
        property->SetID(PIDSI_TITLE);
        ASSERT_EQ(property->ReadFromStream(stream), 1);
        stream->Release();
        set_->Remove(kFormat, PIDSI_TITLE);
        set_->AddProperty(kFormat, property);
        EXPECT_STREQ(OleStdGetStringProperty(set_, PIDSI_TITLE), expected[i]);
    }
}

TEST_F(Summary, SurvivesItsStream) {
    OleStdSetStringProperty(set_, PIDSI_AUTHOR, "Ren\xE9");
    OleStdSetDateProperty(set_, PIDSI_LASTSAVE_DTM, 2020, 2, 29, 12, 0, 0);
    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    EXPECT_EQ(OleStdWriteSummaryInfo(stream, set_), 1);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    CPropertySet* other = OleStdInitSummaryInfo(437);
    OleStdSetStringProperty(other, PIDSI_TITLE, "goes");
    EXPECT_EQ(OleStdReadSummaryInfo(stream, other), 1);
    EXPECT_EQ(OleStdGetStringProperty(other, PIDSI_TITLE), nullptr);
    EXPECT_STREQ(OleStdGetStringProperty(other, PIDSI_AUTHOR), "Ren\xE9");
    EXPECT_EQ(DateOf(other, PIDSI_LASTSAVE_DTM), (Date{2020, 2, 29, 43200}));
    EXPECT_EQ(*static_cast<const WORD*>(other->Get(kFormat, 1)), 1252) << "the stream's own code page";
    ULARGE_INTEGER shortened;
    shortened.QuadPart = 27;
    stream->SetSize(shortened);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    EXPECT_EQ(OleStdReadSummaryInfo(stream, other), 0);
    EXPECT_EQ(OleStdGetStringProperty(other, PIDSI_AUTHOR), nullptr);
    stream->Release();
    OleStdFreeSummaryInfo(&other);
}

TEST(SummaryOfNothing, ReturnsTheFailureValueEverywhere) {
    CPropertySet withoutSection;
    for (CPropertySet* set : {static_cast<CPropertySet*>(nullptr), &withoutSection}) {
        DWORD format, size;
        HGLOBAL data;
        OleStdClearSummaryInfo(set);
        EXPECT_EQ(OleStdGetStringProperty(set, 2), nullptr);
        EXPECT_EQ(OleStdSetStringProperty(set, 2, "text"), 0);
        EXPECT_EQ(OleStdGetIntProperty(set, 14), 0);
        EXPECT_EQ(OleStdSetIntProperty(set, 14, 1), 0);
        EXPECT_EQ(OleStdGetSecurityProperty(set), 0u);
        EXPECT_EQ(OleStdSetSecurityProperty(set, 1), 0);
        EXPECT_EQ(DateOf(set, 12), (Date{0, 0, 0, 0}));
        EXPECT_EQ(OleStdSetDateProperty(set, 12, 2000, 1, 1, 0, 0, 0), 0);
        EXPECT_EQ(OleStdGetThumbNailProperty(set, &format, &data, &size), 0);
        EXPECT_EQ(OleStdSetThumbNailProperty(set, 3, nullptr, 0), 0);
    }
    CPropertySet* none = nullptr;
    OleStdFreeSummaryInfo(&none);
    OleStdFreeSummaryInfo(nullptr);
}

} // namespace
