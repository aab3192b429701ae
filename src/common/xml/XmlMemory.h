#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace ovisto {

/// Has libxml2 take its memory by way of the limits below. Only initialiseXml() calls it.
void countXmlMemory();

/// A limit to the memory that libxml2 and libxslt take on this thread while it lives; other threads are not counted.
/// There is one at a time on a thread.
class XmlMemoryLimit {
public:
    /// `stop` is called when more than `bytes` are in use, and then again and again. It has to make what runs come to
    /// an end. Until it does, long texts are refused beyond twice as much, and everything beyond three times.
    XmlMemoryLimit(std::size_t bytes, std::function<void()> stop);
    XmlMemoryLimit(const XmlMemoryLimit&) = delete;
    XmlMemoryLimit& operator=(const XmlMemoryLimit&) = delete;
    ~XmlMemoryLimit();

    bool wasExceeded() const { return m_wasExceeded; }

    /// Whether one is exceeded on this thread.
    static bool isExceeded();

    /// What the allocation functions ask and tell.
    bool allows(std::size_t size) const;
    void add(std::size_t size);
    void subtract(std::size_t size) { m_used -= static_cast<std::int64_t>(size); }

private:
    std::int64_t m_limit;
    std::function<void()> m_stop;
    std::int64_t m_used = 0; // less than nothing when more was freed that was there before
    bool m_wasExceeded = false;
};

} // namespace ovisto
