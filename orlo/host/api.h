// DRAWCORE_API, the import and export macro of the host's functions, ORLO_CONSTANT, and ORLO_CPP17, which is defined
// for C++17 and later. Plain C; no window header.
//
// A database defines DRAWCORE_BUILD in its own sources, so that the functions are exported, or DRAWCORE_STATIC if it is
// linked statically.
#pragma once

#ifdef __cplusplus
#define DRAWCORE_LINKAGE extern "C"
#define ORLO_CONSTANT constexpr
#else
#define DRAWCORE_LINKAGE extern
#define ORLO_CONSTANT static const
#endif

// Microsoft's compiler states its standard in _MSVC_LANG.
#if defined(__cplusplus) && (__cplusplus >= 201703L || (defined(_MSVC_LANG) && _MSVC_LANG >= 201703L))
#define ORLO_CPP17
#endif

#if !defined(_WIN32) || defined(DRAWCORE_STATIC)
#define DRAWCORE_API DRAWCORE_LINKAGE
#elif defined(DRAWCORE_BUILD)
#define DRAWCORE_API DRAWCORE_LINKAGE __declspec(dllexport)
#else
#define DRAWCORE_API DRAWCORE_LINKAGE __declspec(dllimport)
#endif
