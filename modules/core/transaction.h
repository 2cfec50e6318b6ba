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
    Transaction(std::weak_ptr<DataModel*> model, std::uint64_t id);
    ~Transaction() override;

    bool Close(bool commit) override;
    bool IsOpen() const override;

private:
    std::weak_ptr<DataModel*> m_model;
    std::uint64_t m_id;
};

} // namespace o7
