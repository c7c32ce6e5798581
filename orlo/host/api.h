// The import and export macro of the host's functions. No window header.
#pragma once

#ifdef __cplusplus
#define DRAWCORE_LINKAGE extern "C"
#else
#define DRAWCORE_LINKAGE extern
#endif

#if !defined(_WIN32)
#define DRAWCORE_API DRAWCORE_LINKAGE
#elif defined(DRAWCORE_BUILD)
#define DRAWCORE_API DRAWCORE_LINKAGE __declspec(dllexport)
#else
#define DRAWCORE_API DRAWCORE_LINKAGE __declspec(dllimport)
#endif
