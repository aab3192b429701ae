// SPDX-License-Identifier: MIT

#include "jpeg/FileIdentity.h"

#include "jpeg/Segments.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace ovisto {

namespace {

enum class Stretch { BeforeImage, Whole };

std::int64_t endOf(Stretch stretch, const InputFile& file)
{
    const auto image = stretch == Stretch::BeforeImage ? imagePlace(file) : std::nullopt;
    return image ? image->offset - 1 : file.size();
}

std::size_t digestOf(const InputFile& file, Stretch stretch)
{
    constexpr std::int64_t kAtATime = std::int64_t{64} * 1024;
    const std::int64_t end = endOf(stretch, file);
    std::vector<std::uint8_t> bytes;
    std::size_t digest = 0;
    for (std::int64_t done = 0; done < end; done += kAtATime) {
        bytes.resize(static_cast<std::size_t>(std::min(kAtATime, end - done)));
        bytes.resize(file.readAt(done, bytes));
        const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        digest = digest * 31 + std::hash<std::string_view>()(text); // so that their order counts
    }
    return digest;
}

Stretch stretchOf(const FileStatus& status)
{
    return status.isRecent ? Stretch::Whole : Stretch::BeforeImage;
}

} // namespace

FileIdentity identityOf(const InputFile& file)
{
    return {file.status(), digestOf(file, stretchOf(file.status()))};
}

bool isSameFile(const FileIdentity& asRead, const InputFile& now)
{
    const FileStatus& before = asRead.status;
    const FileStatus& after = now.status();
    if (before.device != after.device || before.size != after.size || before.modified != after.modified)
        return false;
    const bool isUntouched = !before.isRecent && before == after;
    return isUntouched || asRead.digest == digestOf(now, stretchOf(before));
}

Error fileWasChanged()
{
    return {kInvalidCall, Message::FileWasChanged};
}

bool isFileWasChanged(const Error& error)
{
    return error.description == Phrase(Message::FileWasChanged);
}

} // namespace ovisto
