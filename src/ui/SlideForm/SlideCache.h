// SPDX-License-Identifier: MIT

#pragma once

#include "ui/SlideForm/Slide.h"

#include <QObject>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

namespace ovisto {

/// The slides that a show needs now or soon, made one after another in a separate thread.
class SlideCache : public QObject {
    Q_OBJECT

public:
    /// Makes a slide, as decodeSlide() does. Runs in the thread of the cache.
    using Decoder = std::function<std::optional<Slide>(const SlideRequest& request, const DecodeLimits& limits)>;

    explicit SlideCache(Decoder decoder);
    ~SlideCache() override;

    /// The most memory that a slide made in advance may take.
    static constexpr std::int64_t kMostBytesAhead = std::int64_t{256} << 20;

    /// Sets the wanted slides: the first is needed now, the others soon. All other slides are dropped, and one that is
    /// being made is abandoned.
    void want(std::vector<SlideRequest> wanted);

    /// The slide, if it is wanted and ready.
    std::optional<Slide> slide(const SlideRequest& request) const;

Q_SIGNALS:
    /// The slide that is needed now may be ready.
    void ready();

private:
    struct Entry {
        SlideRequest request;
        std::optional<Slide> slide; ///< none if it is too large to be made in advance
    };

    void work(const std::stop_token& stop);
    void make(std::unique_lock<std::mutex>& lock, const SlideRequest& request);
    const Entry* entryOf(const SlideRequest& request) const;
    std::optional<SlideRequest> missing() const;
    bool isWanted(const SlideRequest& request) const;
    bool isNeededNow(const SlideRequest& request) const;

    const Decoder m_decoder;
    mutable std::mutex m_mutex; ///< guards everything below
    std::condition_variable_any m_wantedChanged;
    std::vector<SlideRequest> m_wanted;
    std::vector<Entry> m_entries;
    std::optional<SlideRequest> m_inHand;  ///< being made
    std::atomic<bool> m_abandoned = false; ///< the slide being made is no longer wanted
    std::jthread m_worker;
};

} // namespace ovisto
