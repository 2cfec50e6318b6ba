// Export macro of the core module (o7coreQK). Only free functions and out-of-line members carry it:
// the classes of this folder are header-only, so no data symbol crosses a module boundary.
#pragma once

#if defined(_WIN32)
#if defined(O7CORE_BUILDING)
#define O7CORE_API __declspec(dllexport)
#else
#define O7CORE_API __declspec(dllimport)
#endif
#else
#define O7CORE_API
#endif
