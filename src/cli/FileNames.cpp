#include "cli/FileNames.h"

#include "common/Error.h"
#include "common/system/File.h"

#include <iostream>
#include <sstream>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace ovisto {

namespace {

void readNames(std::vector<std::string>& files, std::istream& input, char separator)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    bool isFirst = true;
    for (std::string name; std::getline(input, name, separator);) {
        if (std::exchange(isFirst, false) && name.starts_with(kByteOrderMark))
            name.erase(0, kByteOrderMark.size());
        if (separator == '\n' && name.ends_with('\r'))
            name.pop_back();
        if (!name.empty())
            files.push_back(name);
    }
}

} // namespace

std::vector<std::string> fileNames(const CommandLine& line)
{
    std::vector<std::string> files = line.files;
    const char separator = line.zeroSeparated ? '\0' : '\n';
    if (line.filesFrom == "-") {
        readNames(files, std::cin, separator);
    } else if (!line.filesFrom.empty()) {
        ErrorTrap trap;
        std::istringstream input;
        trap.run([&] { input.str(readTextFile(line.filesFrom, FileKind::RegularOrPipe)); });
        if (trap.pending())
            throw Error{trap.error().number, line.filesFrom + ": " + trap.error().description};
        readNames(files, input, separator);
    }
    return files;
}

std::vector<std::string> withoutRepeats(std::vector<std::string> files)
{
    std::unordered_set<std::string> seen;
    std::erase_if(files, [&](const std::string& file) { return !seen.insert(realPath(file)).second; });
    return files;
}

} // namespace ovisto
