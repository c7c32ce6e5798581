// The import and export macro of the host's functions. No window header.
#pragma once

#if !defined(_WIN32) || defined(DRAWCORE_STATIC)
#define DRAWCORE_API extern "C"
#elif defined(DRAWCORE_BUILD)
#define DRAWCORE_API extern "C" __declspec(dllexport)
#else
#define DRAWCORE_API extern "C" __declspec(dllimport)
#endif
