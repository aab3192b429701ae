// SPDX-License-Identifier: MIT

#include "common/xml/XmlMemory.h"

#include "common/system/Heap.h"

#include <libxml/xmlmemory.h>

#include <cstdlib>
#include <cstring>
#include <utility>

namespace ovisto {

namespace {

thread_local XmlMemoryLimit* threadLimit = nullptr;

// Memory is the system's, without anything of ours in front of it: what was taken before these functions were entered
// may be given back to them.

void* allocate(std::size_t size)
{
    if (threadLimit == nullptr)
        return std::malloc(size);
    if (!threadLimit->allows(size))
        return nullptr;
    void* memory = std::malloc(size);
    threadLimit->add(allocatedSize(memory));
    return memory;
}

void release(void* memory)
{
    if (threadLimit != nullptr)
        threadLimit->subtract(allocatedSize(memory));
    std::free(memory);
}

void* reallocate(void* memory, std::size_t size)
{
    if (threadLimit == nullptr)
        return std::realloc(memory, size);
    const std::size_t oldSize = allocatedSize(memory);
    if (size > oldSize && !threadLimit->allows(size - oldSize))
        return nullptr;
    void* grown = std::realloc(memory, size);
    if (grown != nullptr) {
        threadLimit->subtract(oldSize);
        threadLimit->add(allocatedSize(grown));
    }
    return grown;
}

char* duplicate(const char* text)
{
    const std::size_t size = std::strlen(text) + 1;
    void* copy = allocate(size);
    return copy != nullptr ? static_cast<char*>(std::memcpy(copy, text, size)) : nullptr;
}

} // namespace

void countXmlMemory()
{
    xmlMemSetup(release, allocate, reallocate, duplicate);
}

XmlMemoryLimit::XmlMemoryLimit(std::size_t bytes, std::function<void()> stop)
    : m_limit(static_cast<std::int64_t>(bytes)), m_stop(std::move(stop))
{
    threadLimit = this;
}

XmlMemoryLimit::~XmlMemoryLimit()
{
    threadLimit = nullptr;
}

bool XmlMemoryLimit::isExceeded()
{
    return threadLimit != nullptr && threadLimit->wasExceeded();
}

bool XmlMemoryLimit::allows(std::size_t size)
{
    // The library lives well without a long text, not so well without a small piece. Those are refused only to a single
    // step that takes them without an end.
    constexpr std::size_t kMuch = std::size_t{64} * 1024;
    const bool isAllowed = m_used + static_cast<std::int64_t>(size) <= (size < kMuch ? 3 : 2) * m_limit;
    if (!isAllowed)
        exceed();
    return isAllowed;
}

void XmlMemoryLimit::add(std::size_t size)
{
    m_used += static_cast<std::int64_t>(size);
    if (m_used > m_limit)
        exceed();
}

void XmlMemoryLimit::exceed()
{
    m_wasExceeded = true;
    m_stop();
}

} // namespace ovisto
