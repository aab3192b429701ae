// SPDX-License-Identifier: MIT

#include "collection/ThumbnailJudgement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ovisto {

namespace {

constexpr std::size_t kFields = 36; ///< in a row and in a column
using Fields = std::array<double, kFields * kFields>;

// Chosen on camera files and on pictures that were cropped, painted over and lightened: see docs/architecture.md.
constexpr double kLeastCorrelation = 0.95;
constexpr double kMostFarthest = 40;

/// A part of a picture, in pixels.
struct Area {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

Area wholeOf(const GreyPicture& picture)
{
    return {0, 0, static_cast<double>(picture.width), static_cast<double>(picture.height)};
}

/// The mean grey of an area; pixels at its edges count as far as they are in it.
double meanGrey(const GreyPicture& picture, const Area& area)
{
    double sum = 0;
    double weights = 0;
    const auto last = [](double end, std::size_t size) {
        return std::min(size, static_cast<std::size_t>(std::ceil(end)));
    };
    for (auto y = static_cast<std::size_t>(area.top); y < last(area.top + area.height, picture.height); ++y) {
        const auto row = static_cast<double>(y);
        const double rowWeight = std::min(row + 1, area.top + area.height) - std::max(row, area.top);
        for (auto x = static_cast<std::size_t>(area.left); x < last(area.left + area.width, picture.width); ++x) {
            const auto column = static_cast<double>(x);
            const double weight =
                rowWeight * (std::min(column + 1, area.left + area.width) - std::max(column, area.left));
            sum += weight * picture.pixels[y * picture.width + x];
            weights += weight;
        }
    }
    return weights > 0 ? sum / weights : 0;
}

Fields fieldsOf(const GreyPicture& picture, const Area& area)
{
    Fields fields{};
    const double width = area.width / kFields;
    const double height = area.height / kFields;
    for (std::size_t y = 0; y < kFields; ++y) {
        for (std::size_t x = 0; x < kFields; ++x)
            fields[y * kFields + x] = meanGrey(picture, {area.left + static_cast<double>(x) * width,
                                                         area.top + static_cast<double>(y) * height, width, height});
    }
    return fields;
}

/// Mirrored along its main diagonal, left to right, top to bottom, in this order.
Fields turned(const Fields& fields, bool transposed, bool mirrored, bool flipped)
{
    Fields result{};
    for (std::size_t y = 0; y < kFields; ++y) {
        for (std::size_t x = 0; x < kFields; ++x) {
            std::size_t row = flipped ? kFields - 1 - y : y;
            std::size_t column = mirrored ? kFields - 1 - x : x;
            if (transposed)
                std::swap(row, column);
            result[y * kFields + x] = fields[row * kFields + column];
        }
    }
    return result;
}

double meanOf(const Fields& fields)
{
    double sum = 0;
    for (const double field : fields)
        sum += field;
    return sum / static_cast<double>(fields.size());
}

double covariance(const Fields& left, const Fields& right)
{
    const double leftMean = meanOf(left);
    const double rightMean = meanOf(right);
    double sum = 0;
    for (std::size_t i = 0; i < left.size(); ++i)
        sum += (left[i] - leftMean) * (right[i] - rightMean);
    return sum / static_cast<double>(left.size());
}

/// How far the field at a place of `one` is from the range of those around the place in `other`.
double distance(const Fields& one, const Fields& other, std::size_t x, std::size_t y)
{
    double least = 255;
    double most = 0;
    for (std::size_t row = y - std::min<std::size_t>(y, 1); row <= std::min(y + 1, kFields - 1); ++row) {
        for (std::size_t column = x - std::min<std::size_t>(x, 1); column <= std::min(x + 1, kFields - 1); ++column) {
            least = std::min(least, other[row * kFields + column]);
            most = std::max(most, other[row * kFields + column]);
        }
    }
    const double field = one[y * kFields + x];
    return std::max({0.0, least - field, field - most});
}

/// How far any field of `one` is from the fields of `other` around its place.
double farthest(const Fields& one, const Fields& other)
{
    double most = 0;
    for (std::size_t y = 0; y < kFields; ++y) {
        for (std::size_t x = 0; x < kFields; ++x)
            most = std::max(most, distance(one, other, x, y));
    }
    return most;
}

/// The fields of `thumbnail` as bright and as rich in contrast as those of `picture`: cameras and programs change both.
PictureDifference difference(const Fields& picture, const Fields& thumbnail)
{
    constexpr double kFlat = 4; // of one colour, so that nothing correlates
    const double spread = covariance(thumbnail, thumbnail);
    const double pictureSpread = covariance(picture, picture);
    const double common = covariance(picture, thumbnail);
    const bool isFlat = spread < kFlat || pictureSpread < kFlat;
    const double factor = isFlat ? 1 : std::clamp(common / spread, 0.5, 2.0);
    const double offset = isFlat ? 0 : meanOf(picture) - factor * meanOf(thumbnail);
    Fields adjusted = thumbnail;
    for (double& field : adjusted)
        field = std::clamp(field * factor + offset, 0.0, 255.0);
    return {isFlat ? 1 : common / std::sqrt(spread * pictureSpread),
            std::max(farthest(picture, adjusted), farthest(adjusted, picture))};
}

/// Whether an area has one colour, as far as compression lets it.
bool isPlain(const GreyPicture& picture, const Area& area)
{
    constexpr double kMostDeviation = 10;
    double sum = 0;
    double squares = 0;
    double count = 0;
    for (auto y = static_cast<std::size_t>(area.top); y < static_cast<std::size_t>(area.top + area.height); ++y) {
        for (auto x = static_cast<std::size_t>(area.left); x < static_cast<std::size_t>(area.left + area.width); ++x) {
            const double grey = picture.pixels[y * picture.width + x];
            sum += grey;
            squares += grey * grey;
            ++count;
        }
    }
    return count == 0 || squares / count - (sum / count) * (sum / count) <= kMostDeviation * kMostDeviation;
}

/// The area of `thumbnail` that has the proportions `ratio` (width to height), all but plain bars at two sides; none
/// where there is more.
std::optional<Area> areaWithin(const GreyPicture& thumbnail, double ratio)
{
    constexpr double kMostRounding = 0.03; // of thumbnails, whose sides are whole numbers of pixels
    constexpr double kEdge = 2;            // pixels where the picture runs into a bar
    const Area whole = wholeOf(thumbnail);
    const double own = whole.width / whole.height;
    if (std::abs(own / ratio - 1) <= kMostRounding)
        return whole;
    if (own < ratio) {
        const double bar = (whole.height - whole.width / ratio) / 2;
        const Area upper{0, 0, whole.width, std::max(0.0, bar - kEdge)};
        const Area lower{0, whole.height - upper.height, whole.width, upper.height};
        if (isPlain(thumbnail, upper) && isPlain(thumbnail, lower))
            return Area{0, bar, whole.width, whole.height - 2 * bar};
        return std::nullopt;
    }
    const double bar = (whole.width - whole.height * ratio) / 2;
    const Area left{0, 0, std::max(0.0, bar - kEdge), whole.height};
    const Area right{whole.width - left.width, 0, left.width, whole.height};
    if (isPlain(thumbnail, left) && isPlain(thumbnail, right))
        return Area{bar, 0, whole.width - 2 * bar, whole.height};
    return std::nullopt;
}

} // namespace

std::optional<PictureDifference> pictureDifference(const GreyPicture& picture, const GreyPicture& thumbnail)
{
    const Area whole = wholeOf(picture);
    const Fields fields = fieldsOf(picture, whole);
    std::optional<PictureDifference> least;
    for (const bool transposed : {false, true}) {
        const double ratio = transposed ? whole.height / whole.width : whole.width / whole.height;
        const auto area = areaWithin(thumbnail, ratio);
        if (!area)
            continue;
        const Fields small = fieldsOf(thumbnail, *area);
        for (const bool mirrored : {false, true}) {
            for (const bool flipped : {false, true}) {
                const PictureDifference found = difference(turned(fields, transposed, mirrored, flipped), small);
                if (!least || found.correlation > least->correlation)
                    least = found;
            }
        }
    }
    return least;
}

ThumbnailShows judgeThumbnail(const std::optional<GreyPicture>& picture, const std::optional<GreyPicture>& thumbnail)
{
    if (!picture || !thumbnail)
        return ThumbnailShows::NotJudged;
    const auto found = pictureDifference(*picture, *thumbnail);
    if (!found)
        return ThumbnailShows::OtherProportions;
    const bool isSame = found->correlation >= kLeastCorrelation && found->farthest <= kMostFarthest;
    return isSame ? ThumbnailShows::Picture : ThumbnailShows::OtherContent;
}

} // namespace ovisto
