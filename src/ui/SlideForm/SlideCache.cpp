// SPDX-License-Identifier: MIT

#include "ui/SlideForm/SlideCache.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ovisto {

SlideCache::SlideCache(Decoder decoder)
    : m_decoder(std::move(decoder)), m_worker([this](const std::stop_token& stop) { work(stop); })
{
}

SlideCache::~SlideCache()
{
    {
        const std::lock_guard lock(m_mutex);
        m_worker.request_stop();
        m_abandoned = true;
    }
    m_worker.join();
}

void SlideCache::want(std::vector<SlideRequest> wanted)
{
    const std::lock_guard lock(m_mutex);
    m_wanted = std::move(wanted);
    std::erase_if(m_entries, [this](const Entry& entry) {
        if (isNeededNow(entry.request))
            return !entry.slide;
        return !isWanted(entry.request) || (entry.slide && entry.slide->picture.sizeInBytes() > kMostBytesAhead);
    });
    // What is needed now does not wait for what may be needed later.
    const auto first = missing();
    const bool isUrgent = first && isNeededNow(*first) && m_inHand != first;
    if (m_inHand && (isUrgent || !isWanted(*m_inHand)))
        m_abandoned = true;
    m_wantedChanged.notify_one();
}

std::optional<Slide> SlideCache::slide(const SlideRequest& request) const
{
    const std::lock_guard lock(m_mutex);
    const Entry* entry = entryOf(request);
    return entry != nullptr ? entry->slide : std::nullopt;
}

void SlideCache::work(const std::stop_token& stop)
{
    std::unique_lock lock(m_mutex);
    while (m_wantedChanged.wait(lock, stop, [this] { return missing().has_value(); }) && !stop.stop_requested())
        make(lock, *missing());
}

/// Makes a slide, others being wanted or fetched meanwhile.
void SlideCache::make(std::unique_lock<std::mutex>& lock, const SlideRequest& request)
{
    m_inHand = request;
    m_abandoned = false;
    const auto mostBytes = isNeededNow(request) ? std::numeric_limits<std::int64_t>::max() : kMostBytesAhead;
    lock.unlock();
    std::optional<Slide> slide;
    ErrorTrap trap; // no exception leaves the thread
    trap.run([&] { slide = m_decoder(request, {mostBytes, m_abandoned}); });
    if (trap.pending())
        slide = failedSlide(request, trap.take());
    lock.lock();
    m_inHand.reset();
    // One that turned out too large, but is needed by now, is made again.
    if (m_abandoned || !isWanted(request) || (!slide && isNeededNow(request)))
        return;
    m_entries.push_back({request, std::move(slide)});
    if (!isNeededNow(request))
        return;
    lock.unlock();
    Q_EMIT ready();
    lock.lock();
}

const SlideCache::Entry* SlideCache::entryOf(const SlideRequest& request) const
{
    const auto entry = std::ranges::find(m_entries, request, &Entry::request);
    return entry != m_entries.end() ? &*entry : nullptr;
}

/// The first wanted slide that is not there.
std::optional<SlideRequest> SlideCache::missing() const
{
    const auto request = std::ranges::find(m_wanted, nullptr, [this](const auto& wanted) { return entryOf(wanted); });
    return request != m_wanted.end() ? std::optional(*request) : std::nullopt;
}

bool SlideCache::isWanted(const SlideRequest& request) const
{
    return std::ranges::find(m_wanted, request) != m_wanted.end();
}

bool SlideCache::isNeededNow(const SlideRequest& request) const
{
    return !m_wanted.empty() && m_wanted.front() == request;
}

} // namespace ovisto
