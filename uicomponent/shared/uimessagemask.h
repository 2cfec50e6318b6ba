#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The set of window messages that the handlers inside a container may want, so that a message
/// which none of them wants is turned away with one bit test instead of a walk.
///
/// System messages (below WM_USER, 0x400) are exact. Private and registered messages share one bit
/// per low byte of their number: a test may say yes for a message that nobody added, but never no
/// for one that somebody did, which is all that a filter before the real handlers needs.
class UIMessageMask
{
public:
    constexpr void add(std::uint32_t message)
    {
        const std::size_t bit = bitOf(message);
        m_words[bit / kWordBits] |= std::uint64_t{1} << (bit % kWordBits);
    }

    /// Wants every message; for a container with a handler that does not tell what it wants.
    constexpr void addAll() { m_words.fill(~std::uint64_t{0}); }

    constexpr void clear() { m_words.fill(0); }

    constexpr bool wants(std::uint32_t message) const
    {
        const std::size_t bit = bitOf(message);
        return (m_words[bit / kWordBits] >> (bit % kWordBits) & 1U) != 0;
    }

    /// Union: afterwards this mask wants what either of the two wanted.
    constexpr UIMessageMask& operator|=(const UIMessageMask& other)
    {
        for (std::size_t i = 0; i < m_words.size(); ++i) {
            m_words[i] |= other.m_words[i];
        }
        return *this;
    }

private:
    static constexpr std::size_t kWordBits = 64;
    static constexpr std::size_t kSystemMessages = 0x400;
    static constexpr std::size_t kSharedBits = 0x100;

    static constexpr std::size_t bitOf(std::uint32_t message)
    {
        return message < kSystemMessages ? message : kSystemMessages + message % kSharedBits;
    }

    std::array<std::uint64_t, (kSystemMessages + kSharedBits) / kWordBits> m_words{};
};
