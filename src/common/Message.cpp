#include "common/Message.h"

#include <cstddef>
#include <iterator>

// By this name Qt's lupdate finds the texts that are to be translated; the library itself does without Qt.
#define QT_TRANSLATE_NOOP(context, text) text

namespace ovisto {

namespace {

struct MessageText {
    Message message;
    const char* text;
};

constexpr MessageText kTexts[] = {
    {Message::AsItIs, "%1"},
    {Message::InContext, QT_TRANSLATE_NOOP("Message", "%1: %2")},
    {Message::ErrorReport, QT_TRANSLATE_NOOP("Message", "%1\r\n%2 : %3")},

    {Message::InvalidCall, QT_TRANSLATE_NOOP("Message", "Invalid procedure call or argument")},
    {Message::Overflow, QT_TRANSLATE_NOOP("Message", "Overflow")},
    {Message::OutOfMemory, QT_TRANSLATE_NOOP("Message", "Out of memory")},
    {Message::TypeMismatch, QT_TRANSLATE_NOOP("Message", "Type mismatch")},
    {Message::FileNotFound, QT_TRANSLATE_NOOP("Message", "File not found")},
    {Message::DeviceError, QT_TRANSLATE_NOOP("Message", "Device I/O error")},
    {Message::DiskFull, QT_TRANSLATE_NOOP("Message", "Disk full")},
    {Message::PermissionDenied, QT_TRANSLATE_NOOP("Message", "Permission denied")},
    {Message::PathAccessError, QT_TRANSLATE_NOOP("Message", "Path/File access error")},
    {Message::PathNotFound, QT_TRANSLATE_NOOP("Message", "Path not found")},
    {Message::ObjectNotSet, QT_TRANSLATE_NOOP("Message", "Object not set")},
    {Message::UnexpectedError, QT_TRANSLATE_NOOP("Message", "Unexpected error")},

    {Message::NotARegularExpression,
     QT_TRANSLATE_NOOP("Message", "Not a regular expression: %1: %2 (at character %3)")},
    {Message::ExpressionRunsTooLong, QT_TRANSLATE_NOOP("Message", "The regular expression runs too long: %1")},

    {Message::XmlFileError, QT_TRANSLATE_NOOP("Message", "File %1\r\nLine %2 pos %3 \r\n%4\r\n%5")},
    {Message::XmlTextError, QT_TRANSLATE_NOOP("Message", "%1 line:%2 pos:%3 src:%4")},

    {Message::OpenFailed, QT_TRANSLATE_NOOP("Message", "%1  file=%2")},

    {Message::RootIsNotJpeg, QT_TRANSLATE_NOOP("Message", "The root element is %1, not JPEG")},
    {Message::TemporaryNameTaken,
     QT_TRANSLATE_NOOP("Message", "Another file of the list has the name of its temporary file")},
    {Message::FolderNotFound, QT_TRANSLATE_NOOP("Message", "Folder not found")},
    {Message::NoFilesFound, QT_TRANSLATE_NOOP("Message", "No files found with search criteria specified.  Click 'Find "
                                                         "Files' button to try again.")},
    {Message::FilesFound, QT_TRANSLATE_NOOP("Message", "List of files found (%1)")},
    {Message::CheckingContents, QT_TRANSLATE_NOOP("Message", "Checking file contents")},
    {Message::OpenFile, QT_TRANSLATE_NOOP("Message", "Open File %1")},
    {Message::ReadFile, QT_TRANSLATE_NOOP("Message", "Read File %1")},
    {Message::CreateFile, QT_TRANSLATE_NOOP("Message", "Create file %1")},
    {Message::WriteFile, QT_TRANSLATE_NOOP("Message", "Write file %1")},
    {Message::SaveXmlFile, QT_TRANSLATE_NOOP("Message", "Save XML File %1")},
    {Message::DocumentCorrupt, QT_TRANSLATE_NOOP("Message", "Internal XML document corrupt")},
    {Message::TransformXml, QT_TRANSLATE_NOOP("Message", "Transform XML")},
};

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < std::size(kTexts); ++i) {
        if (static_cast<std::size_t>(kTexts[i].message) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder(), "a message is found by its number");

} // namespace

const char* sourceText(Message message)
{
    return kTexts[static_cast<std::size_t>(message)].text;
}

} // namespace ovisto
