// The export macro of orlo.dll's public interface. No window header.
//
// A class that carries ORLO_API has its destructor and its virtual members in a source file: inline members
// of an exported class are not exported by this compiler.
#pragma once

#if !defined(_WIN32)
#define ORLO_API
#elif defined(ORLO_BUILD)
#define ORLO_API __declspec(dllexport)
#else
#define ORLO_API __declspec(dllimport)
#endif
