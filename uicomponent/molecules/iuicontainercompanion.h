#pragma once

class UIMoleculeContainer;

/// Told by a container after every connect of its molecules.
class IUIContainerCompanion
{
public:
    virtual ~IUIContainerCompanion() = default;
    virtual void moleculesConnected(UIMoleculeContainer& container) = 0;
};
