// SPDX-License-Identifier: MIT

#include "collection/FolderWalk.h"

#include "common/system/File.h"
#include "common/system/FileListing.h"
#include "common/system/FileNames.h"
#include "writer/Leftover.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ovisto {

namespace {

/// The files of a folder that `name` may be a temporary name of. Only of a very long name the folder has to tell.
std::vector<std::string> possibleOriginals(const std::string& name, const std::vector<std::string>& names)
{
    constexpr std::size_t kMayBeShortened = 250;
    std::vector<std::string> originals;
    if (name.size() >= kMayBeShortened) {
        std::ranges::copy_if(names, std::back_inserter(originals), [&](const std::string& original) {
            return original.size() >= kMayBeShortened && isTemporaryName(name, original);
        });
    }
    for (std::size_t start = 1; start < name.size(); ++start) {
        originals.push_back(name.substr(start));
        if (name[start] < '0' || name[start] > '9')
            break;
    }
    std::erase_if(originals, [&](const std::string& original) { return !isTemporaryName(name, original); });
    return originals;
}

bool isLeftoverOf(const std::string& original, const std::string& path)
{
    ErrorTrap trap; // what is not known to be a leftover is none
    bool isLeftover = false;
    trap.run([&] {
        const InputFile photograph(original);
        const InputFile file(path);
        isLeftover = isIncomplete(file, photograph) || hasSameImage(file, photograph);
    });
    return isLeftover;
}

/// Whether a save left this file of `folder`, or is writing it.
bool isLeftover(const std::string& folder, const std::string& name, const std::vector<std::string>& names)
{
    return name.starts_with('~') &&
           std::ranges::any_of(possibleOriginals(name, names), [&](const std::string& original) {
               return isLeftoverOf(pathIn(folder, original), pathIn(folder, name));
           });
}

} // namespace

FolderWalk::FolderWalk(std::string folder, std::string_view patterns, bool subFolders)
    : m_pattern(patterns), m_subFolders(subFolders)
{
    ErrorTrap trap;
    trap.run([&] { read(folder); });
    if (trap.pending())
        throw Error{trap.error().number, Message::FolderNotFound};
}

std::optional<FolderWalk::File> FolderWalk::next(Progress& progress, ErrorReporter& reporter)
{
    while (m_place == m_names.size()) {
        if (m_ahead.empty())
            return std::nullopt;
        const std::string folder = std::move(m_ahead.back());
        m_ahead.pop_back();
        const bool isEntered = progress.enter(folder);
        const bool isRead = isEntered && attempt(reporter, folder, [&] { read(folder); });
        m_skipped = m_skipped || !isRead;
        if (!isEntered)
            return std::nullopt;
    }
    const std::size_t place = m_place++;
    return File{.path = pathIn(m_folder, m_names[place]), .place = place, .count = m_names.size()};
}

void FolderWalk::read(const std::string& folder)
{
    FolderListing listing = listFolder(folder);
    if (m_seen.empty())
        m_firstFileSystem = listing.identity.first;
    const bool isPassedOver = listing.showsSystem && listing.identity.first != m_firstFileSystem;
    if (isPassedOver || !m_seen.insert(listing.identity).second)
        return;
    m_folder = folder;
    m_names.clear();
    std::ranges::copy_if(listing.files, std::back_inserter(m_names), [&](const std::string& name) {
        return m_pattern.matches(name) && !isLeftover(folder, name, listing.files);
    });
    m_place = 0;
    if (!m_subFolders)
        return;
    std::ranges::reverse(listing.folders);
    for (const std::string& name : listing.folders)
        m_ahead.push_back(pathIn(folder, name));
}

} // namespace ovisto
