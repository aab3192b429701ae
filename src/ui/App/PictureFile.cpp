// SPDX-License-Identifier: MIT

#include "ui/App/PictureFile.h"

namespace ovisto {

PictureFile::PictureFile(const std::string& path, const std::atomic<bool>* abandoned)
    : m_file(path), m_abandoned(abandoned)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 PictureFile::readData(char* data, qint64 most)
{
    if (m_abandoned != nullptr && *m_abandoned)
        return -1;
    qint64 count = -1;
    ErrorTrap trap; // the reader of the picture only wants to know that there is no more
    trap.run([&] {
        count = static_cast<qint64>(
            m_file.readAt(pos(), {reinterpret_cast<std::uint8_t*>(data), static_cast<std::size_t>(most)}));
    });
    m_wasReadPastEnd = m_wasReadPastEnd || count == 0;
    return count;
}

} // namespace ovisto
