// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

// Counts durations in buckets that are at most 1/64 of their value wide, so millions of requests take a few
// kilobytes and no allocation while they are measured.
class LatencyHistogram
{
public:
    void add(std::uint64_t nanoseconds)
    {
        ++m_buckets[indexOf(nanoseconds)];
        ++m_count;
        m_maximum = std::max(m_maximum, nanoseconds);
    }

    std::uint64_t count() const { return m_count; }
    std::uint64_t maximum() const { return m_maximum; }

    // The duration that the given share of all requests did not exceed, such as 0.99; 0 without any request.
    std::uint64_t quantile(double share) const
    {
        const auto rank = static_cast<std::uint64_t>(share * static_cast<double>(m_count));
        std::uint64_t seen = 0;
        for (std::size_t index = 0; index < m_buckets.size(); ++index) {
            seen += m_buckets[index];
            if (seen > rank) {
                return valueOf(index);
            }
        }
        return m_maximum;
    }

private:
    // Values below 128 have a bucket each; above, 64 buckets share each power of two.
    static std::size_t indexOf(std::uint64_t value)
    {
        const unsigned highestBit = 63U - static_cast<unsigned>(__builtin_clzll(value | 1U));
        const unsigned shift = highestBit > 6 ? highestBit - 6 : 0;
        return std::size_t{64} * shift + static_cast<std::size_t>(value >> shift);
    }

    static std::uint64_t valueOf(std::size_t index)
    {
        return index < 128 ? index : (64U + index % 64U) << (index / 64U - 1U);
    }

    std::vector<std::uint64_t> m_buckets = std::vector<std::uint64_t>(std::size_t{60} * 64);
    std::uint64_t m_count = 0;
    std::uint64_t m_maximum = 0;
};
