// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace ovisto {

/// Makes libxml2 allocate through the limits below. Called only by initialiseXml().
void countXmlMemory();

/// Limits the memory that libxml2 and libxslt use on this thread during its lifetime. A thread can have one at a time.
class XmlMemoryLimit {
public:
    /// When more than `bytes` are in use, `stop` is called, possibly many times; it must bring the running work to an
    /// end. Until that takes effect, long texts are refused beyond twice the limit, and everything beyond three times.
    XmlMemoryLimit(std::size_t bytes, std::function<void()> stop);
    XmlMemoryLimit(const XmlMemoryLimit&) = delete;
    XmlMemoryLimit& operator=(const XmlMemoryLimit&) = delete;
    ~XmlMemoryLimit();

    bool wasExceeded() const { return m_wasExceeded; }

    /// Whether this thread has exceeded its limit.
    static bool isExceeded();

    /// For the allocation functions.
    bool allows(std::size_t size);
    void add(std::size_t size);
    void subtract(std::size_t size) { m_used -= static_cast<std::int64_t>(size); }

private:
    void exceed();

    std::int64_t m_limit;
    std::function<void()> m_stop;
    std::int64_t m_used = 0; // negative if memory was freed that had been allocated before
    bool m_wasExceeded = false;
};

} // namespace ovisto
