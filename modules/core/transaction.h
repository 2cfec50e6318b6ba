#pragma once

#include "transactionref.h"

#include <cstdint>
#include <memory>

namespace o7 {

class DataModel;

/// The owner's end of one transaction level of the model.
class Transaction final : public TransactionRef
{
public:
    /// Of no level yet.
    explicit Transaction(std::weak_ptr<DataModel*> model);
    ~Transaction() override;

    void Begin(std::uint64_t id) { m_id = id; }
    bool Close(bool commit) override;
    bool IsOpen() const override;

private:
    std::weak_ptr<DataModel*> m_model;
    std::uint64_t m_id = 0;
};

} // namespace o7
