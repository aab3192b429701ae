#include "collection/FileState.h"

#include "common/system/File.h"
#include "writer/FileSegments.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

namespace ovisto {

FileState fileState(const std::string& path)
{
    constexpr std::int64_t kStretch = std::int64_t{64} * 1024;
    const InputFile file(path);
    const std::int64_t end = segmentsOf(file).back().end().value - 1;
    FileState state{.size = file.size()};
    std::vector<std::uint8_t> bytes;
    for (std::int64_t done = 0; done < end; done += kStretch) {
        bytes.resize(static_cast<std::size_t>(std::min(kStretch, end - done)));
        bytes.resize(file.readAt(done, bytes));
        const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        state.digest = state.digest * 31 + std::hash<std::string_view>()(text); // so that their order counts
    }
    return state;
}

} // namespace ovisto
