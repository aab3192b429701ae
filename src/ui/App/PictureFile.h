// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"

#include <QIODevice>

#include <atomic>
#include <string>

namespace ovisto {

/// A file for Qt to read a picture from. It goes through InputFile, because that also opens names that are not UTF-8,
/// and reads in pieces, because a picture may be followed by any amount of other data. Raises the errors of InputFile.
class PictureFile : public QIODevice {
public:
    /// `abandoned`, if given, must outlive the object. Once it is set, the file appears to end: there is no other way
    /// to stop the decoder.
    explicit PictureFile(const std::string& path, const std::atomic<bool>* abandoned = nullptr);

    /// Whether the decoder asked for more than there is. That of JPEG stops at the mark at the end of the picture.
    bool wasReadPastEnd() const { return m_wasReadPastEnd; }

    qint64 size() const override { return m_file.size(); }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    InputFile m_file;
    const std::atomic<bool>* m_abandoned;
    bool m_wasReadPastEnd = false;
};

} // namespace ovisto
