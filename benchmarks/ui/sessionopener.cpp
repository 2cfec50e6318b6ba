#include "sessionopener.h"

#include <stdexcept>

namespace o7::bench {

std::unique_ptr<ProductSession> openSession(const std::wstring& folder)
{
    std::vector<CXString> errors;
    auto session = ProductSession::open(folder, CXString(L"en"), errors);
    if (!session)
        throw std::runtime_error(errors.empty() ? "no product" : errors.front().ToUtf8());
    return session;
}

} // namespace o7::bench
