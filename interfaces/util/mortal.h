#pragma once

#include <memory>

namespace o7 {

/// A member of an object that calls out and may be destroyed by whom it calls: a Watch on the stack
/// tells afterwards whether the object is still there. Costs nothing before somebody watches. On
/// one thread.
class Mortal
{
public:
    Mortal() = default;
    Mortal(const Mortal&) = delete;
    Mortal& operator=(const Mortal&) = delete;

    class Watch
    {
    public:
        explicit Watch(const Mortal& mortal)
        {
            if (mortal.m_life == nullptr)
                mortal.m_life = std::make_shared<bool>(true);
            m_life = mortal.m_life;
        }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;

        bool isAlive() const noexcept { return !m_life.expired(); }

    private:
        std::weak_ptr<bool> m_life;
    };

private:
    mutable std::shared_ptr<bool> m_life; ///< goes with the object; from the first watch on
};

} // namespace o7
