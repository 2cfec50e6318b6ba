#pragma once

/// An open transaction, owned by whoever opened it. Destroying one that was not closed rolls it
/// back. Transactions nest; closing an outer one closes those inside it the same way.
class TransactionRef
{
public:
    TransactionRef() = default;
    TransactionRef(const TransactionRef&) = delete;
    TransactionRef& operator=(const TransactionRef&) = delete;
    virtual ~TransactionRef() = default;

    /// True keeps the changes and delivers the notifications gathered on this level; false restores
    /// every value and notifies what was restored. Answers false when it was closed before, or the
    /// data model is gone.
    virtual bool Close(bool commit) = 0;

    virtual bool IsOpen() const = 0;
};
