#pragma once

#include "common/system/File.h"

#include <QIODevice>

#include <atomic>
#include <string>

namespace ovisto {

/// A file for Qt to read a picture from. It is read by the engine, as only that opens names that are no UTF-8, and
/// piece by piece, as a picture may stand in front of any amount of other data. Raises as InputFile does.
class PictureFile : public QIODevice {
public:
    /// `abandoned`, where given, must outlive the object. When it is set, the file seems to end: the decoder of a
    /// picture knows no other way to be stopped.
    explicit PictureFile(const std::string& path, const std::atomic<bool>* abandoned = nullptr);

    qint64 size() const override { return m_file.size(); }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    InputFile m_file;
    const std::atomic<bool>* m_abandoned;
};

} // namespace ovisto
