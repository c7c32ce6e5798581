// The import and export macro of the host's functions. Plain C, like all of host.h that is not said to be C++; no window header.
#pragma once

#ifdef __cplusplus
#define DRAWCORE_LINKAGE extern "C"
#else
#define DRAWCORE_LINKAGE extern
#endif

#if !defined(_WIN32) || defined(DRAWCORE_STATIC)
#define DRAWCORE_API DRAWCORE_LINKAGE
#elif defined(DRAWCORE_BUILD)
#define DRAWCORE_API DRAWCORE_LINKAGE __declspec(dllexport)
#else
#define DRAWCORE_API DRAWCORE_LINKAGE __declspec(dllimport)
#endif
