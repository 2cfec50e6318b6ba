#pragma once

#include <memory>
#include <string>

#include "productsession.h"

namespace o7::bench {

/// The product in English. Throws std::runtime_error with the first fault when it cannot be opened.
std::unique_ptr<ProductSession> openSession(const std::wstring& folder);

} // namespace o7::bench
