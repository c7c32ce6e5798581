// Passes a function to the adapter and calls it through the adapter's DLL. Returns 0 if that works, and if the library,
// which imports its functions from the adapter, is there. The system's headers, which drawcore_host.h needs, are not.
#include <orlo_c.h>

__declspec(dllimport) void __stdcall ExitProcess(unsigned int code);
__declspec(dllimport) int DrawCoreSetHost(const void* host, size_t size);
__declspec(dllimport) void* AppGetCurrentApp(void); // the first function of the table

static void* Application(void) {
    static int application;
    return &application;
}

void Start(void) {
    void* (*const table[])(void) = {Application};
    int32_t code;
    if (OrloGetVersion() != ORLO_VERSION || OrloRunSheet(0, &code) != kOrloBadArgument) ExitProcess(1);
    if (!DrawCoreSetHost(table, sizeof table) || AppGetCurrentApp() != Application()) ExitProcess(2);
    ExitProcess(0);
}
