// Counts objects in the system's own tables, since the documented counters return 0 under Wine.

#include "support/object_counts.h"

#include <windows.h>

namespace {

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    ::EnumChildWindows(window, CountChild, count);
    return TRUE;
}

#ifdef _WIN64
const char* ProcessBlock() {
    using Function = const char*(WINAPI*)();
    const auto function = ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "RtlGetCurrentPeb");
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function))();
}
#endif

} // namespace

int GdiObjectCount() {
#ifdef _WIN64
    struct Entry {
        unsigned long long object;
        unsigned short ownerLow, ownerHigh, unique;
        unsigned char type, flags;
        unsigned long long user;
    };
    constexpr int kEntries = 0x4000;
    const char* const peb = ProcessBlock();
    const Entry* const entries = *reinterpret_cast<Entry* const*>(peb + 0xF8);
    int count = 0;
    for (int i = 0; i < kEntries; ++i)
        count += entries[i].type != 0;
    return count;
#else
    return static_cast<int>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
#endif
}

int UserObjectCount() {
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
    for (UINT_PTR handle = 0x10; handle <= 0xFFFF; ++handle)
        count += ::IsMenu(reinterpret_cast<HMENU>(handle)) != 0;
    return count;
}
