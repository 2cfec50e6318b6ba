#pragma once

#include <string>

namespace o7::bench {

class Report;

/// Entry, first and later page switches and close of the product's sheet, pages that are never
/// shown, and memory: each against a bare sheet with the same windows.
void benchRawSheet(Report& report, const std::wstring& productFolder);

/// Opens one sheet, the first of its process. @param recording  empty for our sheet; otherwise the
/// file with the recorded pages of the bare one. @return microseconds to everything painted.
unsigned long firstOpening(const std::wstring& productFolder, const std::wstring& recording);

} // namespace o7::bench
