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

/// The slides that a show needs now and is about to need, made one after another in a thread of their own.
class SlideCache : public QObject {
    Q_OBJECT

public:
    /// Makes a slide, as decodeSlide() does. Runs in the thread of the cache.
    using Decoder = std::function<std::optional<Slide>(const SlideRequest& request, const DecodeLimits& limits)>;

    explicit SlideCache(Decoder decoder);
    ~SlideCache() override;

    /// How much memory a slide may take that is made before it is needed.
    static constexpr std::int64_t kMostBytesAhead = std::int64_t{256} << 20;

    /// From now on these slides are wanted: the first one is needed now, the others soon. All others are forgotten, and
    /// what is being made of them abandoned.
    void want(std::vector<SlideRequest> wanted);

    /// The slide, if it is wanted and ready.
    std::optional<Slide> slide(const SlideRequest& request) const;

Q_SIGNALS:
    /// The slide that is needed now may be ready.
    void ready();

private:
    struct Entry {
        SlideRequest request;
        std::optional<Slide> slide; ///< none when it is too large to be made before it is needed
    };

    void work(const std::stop_token& stop);
    void make(std::unique_lock<std::mutex>& lock, const SlideRequest& request);
    const Entry* entryOf(const SlideRequest& request) const;
    std::optional<SlideRequest> missing() const;
    bool isWanted(const SlideRequest& request) const;
    bool isNeededNow(const SlideRequest& request) const;

    const Decoder m_decoder;
    mutable std::mutex m_mutex; ///< of all that follows
    std::condition_variable_any m_wantedChanged;
    std::vector<SlideRequest> m_wanted;
    std::vector<Entry> m_entries;
    std::optional<SlideRequest> m_inHand;  ///< being made
    std::atomic<bool> m_abandoned = false; ///< what is in hand is not wanted any more
    std::jthread m_worker;
};

} // namespace ovisto
