// SPDX-License-Identifier: MIT

#include "common/system/ProgramFolder.h"

#include "common/system/File.h"
#include "common/system/FileNames.h"
#include "common/system/Process.h"

namespace ovisto {

ProgramFolders ProgramFolder()
{
    const std::string own = folderOf(executablePath());
    const bool holdsData = fileExists(own + "Merovel.xml");
    if (holdsData && isFolderWritable(own))
        return {own, own};
    // A relocated installation (an unpacked archive, say) has its data folder beside the folder of the program.
    const std::string besideOwn = own + "../share/ovisto/";
    const std::string user = userDataRoot() + "/ovisto/";
    if (holdsData)
        return {own, user};
    if (fileExists(besideOwn + "Merovel.xml"))
        return {besideOwn, user};
    return {std::string(OVISTO_DATA_FOLDER) + "/", user};
}

} // namespace ovisto
