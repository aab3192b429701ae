#include "ui/ControlForm/FileListing.h"

#include "common/Error.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

namespace ovisto {

namespace fs = std::filesystem;

namespace {

bool isJpegName(const fs::path& name)
{
    std::string extension = name.extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return extension == ".jpg" || extension == ".jpeg";
}

bool isHidden(const fs::path& name)
{
    return name.filename().string().starts_with('.');
}

void appendFolder(std::vector<std::string>& found, const fs::path& folder, SubFolders subFolders)
{
    std::vector<fs::path> files;
    std::vector<fs::path> folders;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
        std::error_code unknown;
        if (isHidden(entry->path()))
            continue;
        // A link to a folder is left alone: it may lead back to a folder above.
        if (entry->is_directory(unknown) && !entry->is_symlink(unknown))
            folders.push_back(entry->path());
        else if (entry->is_regular_file(unknown) && isJpegName(entry->path()))
            files.push_back(entry->path());
    }
    std::ranges::sort(files);
    std::ranges::sort(folders);
    std::ranges::transform(files, std::back_inserter(found), [](const fs::path& file) { return file.string(); });
    if (subFolders == SubFolders::No)
        return;
    for (const fs::path& below : folders)
        appendFolder(found, below, subFolders);
}

fs::path fullPath(const std::string& path)
{
    std::error_code failure;
    const fs::path full = fs::absolute(path, failure);
    return failure ? fs::path(path) : full.lexically_normal();
}

} // namespace

std::vector<std::string> listFolder(const std::string& folder, SubFolders subFolders)
{
    std::error_code unknown;
    if (!fs::is_directory(folder, unknown))
        throw systemError(kPathNotFound);
    std::vector<std::string> found;
    appendFolder(found, fullPath(folder), subFolders);
    return found;
}

std::vector<std::string> listPaths(const std::vector<std::string>& paths, SubFolders subFolders)
{
    std::vector<std::string> found;
    for (const std::string& path : paths) {
        std::error_code unknown;
        if (fs::is_directory(path, unknown))
            appendFolder(found, fullPath(path), subFolders);
        else
            found.push_back(fullPath(path).string());
    }
    return found;
}

} // namespace ovisto
