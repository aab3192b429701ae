#include "common/system/TemporaryFile.h"

#include "common/system/File.h"
#include "common/system/posix/SystemError.h"

#include <cstdlib>

#include <unistd.h>

namespace ovisto {

TemporaryFile::TemporaryFile()
{
    const char* folder = std::getenv("TMPDIR");
    m_path = std::string(folder != nullptr && *folder != '\0' ? folder : "/tmp") + "/ovisto.XXXXXX";
    const FileHandle reserved(checked(mkstemp(m_path.data())));
}

TemporaryFile::~TemporaryFile()
{
    unlink(m_path.c_str());
}

} // namespace ovisto
