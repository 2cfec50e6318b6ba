#pragma once

#include <windows.h>

#include <string>

#include "devmodelayout.h"

namespace o7::inapp {

/// Whether the memory of a process holds a DEVMODE of our plug-in for this printer whose public
/// fields say what the predicate wants: what a program knows of a document, whatever it does with
/// it.
/// @throws std::runtime_error when the process cannot be looked into.
bool holdsDevMode(DWORD process, const std::wstring& printer,
                  bool (*wanted)(const PublicFields& fields));

} // namespace o7::inapp
