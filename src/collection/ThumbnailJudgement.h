// SPDX-License-Identifier: MIT

#pragma once

#include "jpeg/GreyPicture.h"

#include <optional>

namespace ovisto {

/// What a thumbnail shows.
enum class ThumbnailShows {
    Picture,          ///< what the picture shows
    OtherProportions, ///< more or less than the picture, whose width and height have another ratio
    OtherContent,     ///< something that is not in the picture
    NotJudged,        ///< one of the two cannot be decoded
};

/// How much two pictures differ.
struct PictureDifference {
    double correlation = 0; ///< of the greys of all fields: 1 for the same
    double farthest = 0;    ///< how far the grey of a field, 0 to 255, is from all that are around its place
};

/// The difference between thumbnail and picture as they stand, in whichever turn they differ least: one that is only
/// turned or mirrored shows nothing else. None when their proportions differ in every turn. Bars of one colour that
/// give a thumbnail the shape of another format do not count.
std::optional<PictureDifference> pictureDifference(const GreyPicture& picture, const GreyPicture& thumbnail);

/// Judges a thumbnail; nothing stands for one that cannot be decoded.
ThumbnailShows judgeThumbnail(const std::optional<GreyPicture>& picture, const std::optional<GreyPicture>& thumbnail);

} // namespace ovisto
