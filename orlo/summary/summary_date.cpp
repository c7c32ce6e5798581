// Dates of a summary: times in the DOS format, and the duration of the edit time.

#include <cstring>
#include <objbase.h>
#include <optional>

#include "orlo/propset/property_set.h"
#include "orlo/summary/ole_summary.h"
#include "orlo/summary/summary_field.h"

namespace {

constexpr ULONGLONG kTicksPerSecond = 10000000; // ticks of 100 ns
constexpr DWORD kSecondsPerDay = 86400;
constexpr DWORD kDaysPerMonth = 30;
constexpr DWORD kMonthsPerYear = 12;
constexpr int kFirstYear = 1980;

struct Moment {
    int year, month, day, hour, minute, second;
};

bool IsNothing(const Moment& m) {
    return m.year == 0 && m.month == 0 && m.day == 0 && m.hour == 0 && m.minute == 0 && m.second == 0;
}

ULONGLONG SpanOf(const Moment& m) {
    const auto part = [](int number) { return static_cast<DWORD>(number); };
    const DWORD days = 365 * part(m.year) + kDaysPerMonth * part(m.month) + part(m.day);
    const DWORD seconds = ((days * 24 + part(m.hour)) * 60 + part(m.minute)) * 60 + part(m.second);
    return seconds * kTicksPerSecond;
}

// Returns whether a number fits into a field of that many bits.
bool Fits(int number, int bits) {
    return number >= 0 && number < 1 << bits;
}

std::optional<ULONGLONG> FileTimeOf(const Moment& m) {
    const int year = m.year > kFirstYear ? m.year - kFirstYear : 0;
    if (!Fits(year, 7) || !Fits(m.month, 4) || !Fits(m.day, 5)) return std::nullopt;
    if (!Fits(m.hour, 5) || !Fits(m.minute, 6) || !Fits(m.second, 6)) return std::nullopt;
    const auto date = static_cast<WORD>(year << 9 | m.month << 5 | m.day);
    const auto time = static_cast<WORD>(m.hour << 11 | m.minute << 5 | m.second / 2);
    FILETIME fileTime;
    if (!::CoDosDateTimeToFileTime(date, time, &fileTime)) return std::nullopt;
    return static_cast<ULONGLONG>(fileTime.dwHighDateTime) << 32 | fileTime.dwLowDateTime;
}

struct Parts {
    int year = 0, month = 0, day = 0, seconds = 0;
};

Parts PartsOfSpan(ULONGLONG ticks) {
    const auto seconds = static_cast<DWORD>(ticks / kTicksPerSecond);
    const DWORD days = seconds / kSecondsPerDay;
    const DWORD months = days / kDaysPerMonth;
    const auto part = [](DWORD number) { return static_cast<int>(number); };
    return {part(months / kMonthsPerYear), part(months % kMonthsPerYear), part(days % kDaysPerMonth),
            part(seconds % kSecondsPerDay)};
}

Parts PartsOfFileTime(ULONGLONG ticks) {
    FILETIME fileTime = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    WORD date = 0, time = 0;
    if (!::CoFileTimeToDosDateTime(&fileTime, &date, &time)) return {};
    const int seconds = (time >> 11) * 3600 + (time >> 5 & 0x3F) * 60 + (time & 0x1F) * 2;
    return {(date >> 9) + kFirstYear, date >> 5 & 0xF, date & 0x1F, seconds};
}

} // namespace

void OleStdGetDateProperty(CPropertySet* pSumInfo, DWORD dwPropID, int* pnYear, int* pnMonth, int* pnDay,
                           int* pnSeconds) {
    Parts parts;
    CProperty* property = orlo::SummaryProperty(pSumInfo, dwPropID, VT_FILETIME);
    if (const void* value = property ? property->Get() : nullptr) {
        ULONGLONG ticks;
        std::memcpy(&ticks, value, sizeof ticks);
        parts = dwPropID == PIDSI_EDITTIME ? PartsOfSpan(ticks) : PartsOfFileTime(ticks);
    }
    *pnYear = parts.year;
    *pnMonth = parts.month;
    *pnDay = parts.day;
    *pnSeconds = parts.seconds;
}

int OleStdSetDateProperty(CPropertySet* pSumInfo, DWORD dwPropID, int nYear, int nMonth, int nDay, int nHour,
                          int nMinute, int nSecond) {
    const Moment moment = {nYear, nMonth, nDay, nHour, nMinute, nSecond};
    std::optional<ULONGLONG> ticks;
    if (!IsNothing(moment)) ticks = dwPropID == PIDSI_EDITTIME ? SpanOf(moment) : FileTimeOf(moment);
    return orlo::StoreSummaryProperty(pSumInfo, dwPropID, VT_FILETIME, ticks ? &*ticks : nullptr);
}
