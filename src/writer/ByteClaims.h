// SPDX-License-Identifier: MIT

#pragma once

#include "writer/TiffBlock.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace ovisto {

/// Whose the bytes of a block are. Each thing in the block that something leads to (a directory, a value, an image)
/// claims its bytes, once for each way that leads to it. A byte with more than one claim must not be written over, as
/// it also means something else; a byte without any is never touched, as something unknown may lead to it. Bytes whose
/// last claim was given back are released: they are room for something new.
class ByteClaims {
public:
    explicit ByteClaims(std::int64_t size);

    std::int64_t size() const { return static_cast<std::int64_t>(m_counts.size()); }

    /// Notes `count` claims of a range, or gives as many back where it is negative. What lies outside the block is left
    /// out. It counts after settle().
    void claim(const TiffRange& range, int count);

    /// Makes what was noted count. Takes time in proportion to the size of the block, however much was noted.
    void settle();

    /// Claims of the byte at `offset`.
    int at(std::int64_t offset) const { return m_counts[static_cast<std::size_t>(offset)]; }
    bool isReleased(std::int64_t offset) const { return m_released[static_cast<std::size_t>(offset)]; }

    /// Whether all bytes of the range are.
    bool isReleased(const TiffRange& range) const;

    /// Whether no byte of the range has more than one claim.
    bool isUnshared(const TiffRange& range) const;

    /// Releases the bytes that nothing claims.
    void releaseUnclaimed(const TiffRange& range);

    /// Adds `bytes` released ones at the end.
    void extend(std::int64_t bytes);
    /// Takes the released bytes at the end away. Returns how many they were.
    std::int64_t cut();

    /// Claims a range that was released, or was claimed by who takes it.
    void take(const TiffRange& range);

    /// The smallest stretch of released bytes that `size` bytes fit into from an even offset on.
    std::optional<TiffRange> room(std::int64_t size) const;

    /// All stretches of released bytes.
    std::vector<TiffRange> released() const;

private:
    std::vector<int> m_counts;
    std::vector<int> m_differences; ///< noted: to be added up from the start
    std::vector<bool> m_released;
};

} // namespace ovisto
