// SPDX-License-Identifier: MIT

#include "writer/ByteClaims.h"

#include <algorithm>

namespace ovisto {

ByteClaims::ByteClaims(std::int64_t size)
    : m_counts(static_cast<std::size_t>(size)), m_differences(static_cast<std::size_t>(size) + 1),
      m_released(static_cast<std::size_t>(size))
{
}

void ByteClaims::claim(const TiffRange& range, int count)
{
    const std::int64_t first = std::clamp<std::int64_t>(range.first, 0, size());
    const std::int64_t end = std::clamp<std::int64_t>(range.end(), first, size());
    m_differences[static_cast<std::size_t>(first)] += count;
    m_differences[static_cast<std::size_t>(end)] -= count;
}

void ByteClaims::settle()
{
    int difference = 0;
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        difference += m_differences[i];
        const bool wasClaimed = m_counts[i] > 0;
        m_counts[i] += difference;
        if (wasClaimed && m_counts[i] == 0)
            m_released[i] = true;
    }
    std::ranges::fill(m_differences, 0);
}

bool ByteClaims::isReleased(const TiffRange& range) const
{
    if (range.first < 0 || range.end() > size())
        return false;
    const auto first = m_released.begin() + range.first;
    return std::find(first, first + range.size, false) == first + range.size;
}

bool ByteClaims::isUnshared(const TiffRange& range) const
{
    const std::int64_t end = std::min(range.end(), size());
    for (std::int64_t i = range.first; i < end; ++i) {
        if (at(i) > 1)
            return false;
    }
    return true;
}

void ByteClaims::releaseUnclaimed(const TiffRange& range)
{
    for (std::int64_t i = range.first; i < range.end(); ++i) {
        if (at(i) == 0)
            m_released[static_cast<std::size_t>(i)] = true;
    }
}

void ByteClaims::extend(std::int64_t bytes)
{
    const auto newSize = static_cast<std::size_t>(size() + bytes);
    m_counts.resize(newSize);
    m_differences.resize(newSize + 1);
    m_released.resize(newSize, true);
}

std::int64_t ByteClaims::cut()
{
    std::int64_t bytes = 0;
    while (!m_released.empty() && m_released.back()) {
        m_released.pop_back();
        m_counts.pop_back();
        ++bytes;
    }
    m_differences.resize(m_counts.size() + 1);
    return bytes;
}

void ByteClaims::take(const TiffRange& range)
{
    for (std::int64_t i = range.first; i < range.end(); ++i) {
        m_counts[static_cast<std::size_t>(i)] = 1;
        m_released[static_cast<std::size_t>(i)] = false;
    }
}

std::optional<TiffRange> ByteClaims::room(std::int64_t size) const
{
    std::optional<TiffRange> best;
    for (const TiffRange& stretch : released()) {
        const std::int64_t first = stretch.first + stretch.first % 2;
        const bool fits = stretch.end() - first >= size;
        if (fits && (!best || stretch.size < best->size))
            best = stretch;
    }
    if (!best)
        return std::nullopt;
    return TiffRange{best->first + best->first % 2, size};
}

std::vector<TiffRange> ByteClaims::released() const
{
    std::vector<TiffRange> stretches;
    auto end = m_released.begin();
    for (;;) {
        const auto first = std::find(end, m_released.end(), true);
        if (first == m_released.end())
            return stretches;
        end = std::find(first, m_released.end(), false);
        stretches.push_back({first - m_released.begin(), end - first});
    }
}

} // namespace ovisto
