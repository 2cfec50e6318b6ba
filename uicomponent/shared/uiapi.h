#pragma once

/// O7UI_API marks the exported classes of the user-interface module. O7UI_BUILDING is defined
/// while the module's own sources are compiled; everyone else imports.
#if defined(_WIN32) && defined(O7UI_BUILDING)
#define O7UI_API __declspec(dllexport)
#elif defined(_WIN32)
#define O7UI_API __declspec(dllimport)
#else
#define O7UI_API
#endif
