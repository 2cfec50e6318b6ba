#include "transaction.h"

#include "datamodel.h"
#include "trace.h"

#include <exception>
#include <new>
#include <utility>

namespace o7 {

Transaction::Transaction(std::weak_ptr<DataModel*> model) : m_model(std::move(model))
{
}

Transaction::~Transaction()
{
    // The settings come back whatever happens; only telling of it can fail.
    try {
        try {
            Close(false);
        } catch (const std::exception& error) {
            trace(CXString(L"While a transaction was rolled back: ") + CXString(error.what()));
        }
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch): no memory to say so
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
