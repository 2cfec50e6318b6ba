#pragma once

/// First base of UIMolecule. It makes the molecule's own table of virtual operations the primary
/// one, with the destructor in its first slot and the observer's table behind it.
class UIMoleculeRoot
{
public:
    UIMoleculeRoot() = default;
    UIMoleculeRoot(const UIMoleculeRoot&) = delete;
    UIMoleculeRoot& operator=(const UIMoleculeRoot&) = delete;
    virtual ~UIMoleculeRoot() = default;
};
