#include "transaction.h"

#include "datamodel.h"
#include "trace.h"

#include <exception>
#include <utility>

namespace o7 {

Transaction::Transaction(std::weak_ptr<DataModel*> model, std::uint64_t id)
    : m_model(std::move(model)), m_id(id)
{
}

Transaction::~Transaction()
{
    try {
        Close(false);
    } catch (const std::exception& error) {
        // The settings are back; only an observer failed to take notice of it.
        trace(CXString(L"While a transaction was rolled back: ") + CXString(error.what()));
    }
}

bool Transaction::Close(bool commit)
{
    const auto model = m_model.lock();
    return model && (*model)->CloseTransaction(m_id, commit);
}

bool Transaction::IsOpen() const
{
    const auto model = m_model.lock();
    return model && (*model)->IsOpen(m_id);
}

} // namespace o7
