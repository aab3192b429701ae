#include "collection/FolderWalk.h"

#include <algorithm>
#include <utility>

namespace ovisto {

FolderWalk::FolderWalk(std::string folder, std::string_view patterns, bool subFolders)
    : m_pattern(patterns), m_subFolders(subFolders)
{
    ErrorTrap trap;
    trap.run([&] { read(folder); });
    if (trap.pending())
        throw Error{kPathNotFound, Message::FolderNotFound};
}

std::optional<FolderWalk::File> FolderWalk::next(Progress& progress, ErrorReporter& reporter)
{
    while (m_place == m_names.size()) {
        if (m_ahead.empty())
            return std::nullopt;
        const std::string folder = std::move(m_ahead.back());
        m_ahead.pop_back();
        if (!progress.enter(folder))
            return std::nullopt;
        attempt(reporter, folder, [&] { read(folder); });
    }
    const std::size_t place = m_place++;
    return File{.path = pathIn(m_folder, m_names[place]), .place = place, .count = m_names.size()};
}

void FolderWalk::read(const std::string& folder)
{
    FolderListing listing = listFolder(folder);
    if (!m_seen.insert(listing.identity).second)
        return;
    std::erase_if(listing.files, [&](const std::string& name) { return !m_pattern.matches(name); });
    m_folder = folder;
    m_names = std::move(listing.files);
    m_place = 0;
    if (!m_subFolders)
        return;
    std::ranges::reverse(listing.folders);
    for (const std::string& name : listing.folders)
        m_ahead.push_back(pathIn(folder, name));
}

} // namespace ovisto
