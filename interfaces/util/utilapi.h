#pragma once
// Marks what o7utilQK exports: exported while the module itself is compiled, imported by everyone
// else on Windows, nothing on the host, where the module is a static library.

#if defined(_WIN32)
#if defined(O7UTIL_BUILDING)
#define O7UTIL_API __declspec(dllexport)
#else
#define O7UTIL_API __declspec(dllimport)
#endif
#else
#define O7UTIL_API
#endif
