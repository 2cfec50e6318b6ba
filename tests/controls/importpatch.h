#pragma once

namespace o7::test {

/// Puts a function in the place of one that this program imports, for its life: the way to make a
/// call of the system fail. Only calls from the program itself are affected, not those of DLLs.
class ImportPatch
{
public:
    ImportPatch(const char* function, void* replacement);
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    /// False when the program does not import the function.
    bool isInPlace() const { return m_slot != nullptr; }

    /// The function that was there before, for a replacement that calls it; null when the patch is
    /// not in place.
    template <class Function> Function originalAs() const
    {
        return reinterpret_cast<Function>(m_original);
    }

private:
    void** m_slot;
    void* m_original = nullptr;
};

} // namespace o7::test
