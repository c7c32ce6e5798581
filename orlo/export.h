// The export macro of orlo.dll's public interface. No window header. ORLO_STATIC is set by CMake for programs that link
// orlo_propset, the static library of property sets and summaries, instead of the DLL.
//
// A class that carries ORLO_API has its destructor and its virtual members in a source file: inline members
// of an exported class are not exported by this compiler.
#pragma once

#if !defined(_WIN32) || defined(ORLO_STATIC)
#define ORLO_API
#elif defined(ORLO_BUILD)
#define ORLO_API __declspec(dllexport)
#else
#define ORLO_API __declspec(dllimport)
#endif
