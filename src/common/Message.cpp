// SPDX-License-Identifier: MIT

#include "common/Message.h"

#include "common/TranslationMarks.h"

#include <cstddef>
#include <iterator>

namespace ovisto {

namespace {

struct MessageText {
    Message message;
    const char* text;
    int counted = 0;             ///< which detail is a number of things, from 1; 0 for none
    const char* ofOne = nullptr; ///< in English, with one of them
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
    {Message::IsAFolder, QT_TRANSLATE_NOOP("Message", "It is a folder, not a file")},
    {Message::IsNotAFolder, QT_TRANSLATE_NOOP("Message", "It is not a folder")},
    {Message::IsNotAFile, QT_TRANSLATE_NOOP("Message", "It is not a regular file")},
    {Message::NoSuchFolder, QT_TRANSLATE_NOOP("Message", "There is no folder %1")},
    {Message::Interrupted, QT_TRANSLATE_NOOP("Message", "Interrupted")},

    {Message::NotARegularExpression,
     QT_TRANSLATE_NOOP("Message", "Not a regular expression: %1: %2 (at character %3)")},
    {Message::ExpressionRunsTooLong, QT_TRANSLATE_NOOP("Message", "The regular expression runs too long: %1")},
    {Message::ExpressionReason, "%2"},
    {Message::WordsNotUnderstood,
     QT_TRANSLATE_NOOP("Message", "The words \"%1\" cannot be searched for: %2. Characters such as ( * ? have a "
                                  "meaning; put \\ before one that stands for itself.")},

    {Message::XmlFileError, QT_TRANSLATE_NOOP("Message", "File %1\r\nLine %2 pos %3 \r\n%4\r\n%5")},
    {Message::XmlTextError, QT_TRANSLATE_NOOP("Message", "%1 line:%2 pos:%3 src:%4")},
    {Message::NotAPath, QT_TRANSLATE_NOOP("Message", "Not a valid path: %1")},
    {Message::DocumentTypeNotLoaded, QT_TRANSLATE_NOOP("Message", "The document type \"%1\" cannot be loaded")},
    {Message::ContentDoesNotMatch, QT_TRANSLATE_NOOP("Message", "The content does not match the document type")},
    {Message::EntityNotDeclared, QT_TRANSLATE_NOOP("Message", "The entity \"%1\" is not declared")},
    {Message::EntityOutside,
     QT_TRANSLATE_NOOP("Message", "The entity \"%1\" is outside the document, and is not read")},
    {Message::EntityNotRead, QT_TRANSLATE_NOOP("Message", "The entity cannot be read from %1")},
    {Message::EntitiesTooLarge,
     QT_TRANSLATE_NOOP("Message", "The entities of the document take far more memory than its text")},
    {Message::IncludesOther, QT_TRANSLATE_NOOP("Message", "The document includes another one, which is not read")},
    {Message::ElementsTooDeep, QT_TRANSLATE_NOOP("Message", "The elements of the document nest too deep")},
    {Message::FileNotForStyleSheets,
     QT_TRANSLATE_NOOP("Message", "The style sheet may not read %1, which is not in its folder")},
    {Message::StyleSheetNotApplied, QT_TRANSLATE_NOOP("Message", "The style sheet cannot be applied")},
    {Message::StyleSheetTooLarge,
     QT_TRANSLATE_NOOP("Message", "The style sheet takes far more memory than the documents need")},

    {Message::OpenFailed, QT_TRANSLATE_NOOP("Message", "%1  file=%2")},
    {Message::FileNotOpened, QT_TRANSLATE_NOOP("Message", "%2: %1")},
    {Message::NotAJpeg, QT_TRANSLATE_NOOP("Message", "Not a JPEG file - hFFD8 expected at start of file %1")},
    {Message::UnknownMarker, QT_TRANSLATE_NOOP("Message", "Header seems corrupted - unknown Marker %1 %2")},
    {Message::NoScan, QT_TRANSLATE_NOOP("Message", "No StartOfStream marker found %1")},

    {Message::NoDataType,
     QT_TRANSLATE_NOOP("Message", "I don't know what type of data this node requires - can't set its value.")},
    {Message::NodeOfTheImage, QT_TRANSLATE_NOOP("Message", "The image cannot be shown without this node as it is.")},
    {Message::NodeRequired,
     QT_TRANSLATE_NOOP("Message", "This node is required by others and cannot be deleted by itself.")},
    {Message::NodeOfFullReading,
     QT_TRANSLATE_NOOP("Message",
                       "Only a document that reads everything has this node; rebuilding reads a basic one.")},
    {Message::NoDictionaryEntry, QT_TRANSLATE_NOOP("Message", "The tag dictionary has no entry for this node.")},
    {Message::NodeNotCreated,
     QT_TRANSLATE_NOOP("Message", "The file does not have this node, and it cannot be created without an entry in the "
                                  "tag dictionary.")},
    {Message::SeveralNodes, QT_TRANSLATE_N_NOOP("Message", "%1 nodes of the file have this path."), 1,
     "%1 node of the file has this path."},
    {Message::CharacterLost,
     QT_TRANSLATE_NOOP("Message", "\"%1\" would be written as \"?\": in a basic document, %2 holds Western European "
                                  "texts only.")},
    {Message::CreateNodeFailed, QT_TRANSLATE_NOOP("Message", "Create node failed %1")},

    {Message::FullNotRebuilt,
     QT_TRANSLATE_NOOP("Message",
                       "A document that reads everything cannot be rebuilt; make one with xml, without --full.")},
    {Message::WriteTo, QT_TRANSLATE_NOOP("Message", "Write to %1")},
    {Message::WriteFailed, QT_TRANSLATE_NOOP("Message", "%1 write failed")},
    {Message::ImageTransferFailed, QT_TRANSLATE_NOOP("Message", "%1 transfer of image from existing file failed")},
    {Message::DeleteOldFile, QT_TRANSLATE_NOOP("Message", "Delete old file %1")},
    {Message::RenameFile, QT_TRANSLATE_NOOP("Message", "Rename file %1 to %2")},
    {Message::TemporaryFileGone, QT_TRANSLATE_NOOP("Message", "Another program has moved or replaced the new version")},
    {Message::NewVersionStays, QT_TRANSLATE_NOOP("Message", "%1. The new version is in %2")},
    {Message::NotKnownOnDisk, QT_TRANSLATE_NOOP("Message", "It is saved, but not known to be on disk. %1")},
    {Message::PropertyNotSaved, QT_TRANSLATE_NOOP("Message", "\"%1\" could not be saved in %2")},
    {Message::TextHasCdataEnd, QT_TRANSLATE_NOOP("Message", "The text has \"]]>\", which could not be read back")},
    {Message::TextHasControl,
     QT_TRANSLATE_NOOP("Message", "The text has a control character that could not be read back")},
    {Message::TextHasElements,
     QT_TRANSLATE_NOOP("Message", "The text has elements, which must stand in a CDATA section to be kept")},
    {Message::UnreadableCharacter,
     QT_TRANSLATE_NOOP("Message", "A character between the changed ones could not be read, so it cannot be written.")},
    {Message::TagNotHexadecimal,
     QT_TRANSLATE_NOOP("Message", "The id of an IFD element is not four hexadecimal digits: %1")},
    {Message::MoreThanOneImage, QT_TRANSLATE_NOOP("Message", "The document has more than one IMG element")},
    {Message::FileWasChanged, QT_TRANSLATE_NOOP("Message", "The file was changed after it was read")},
    {Message::OtherPicture,
     QT_TRANSLATE_NOOP("Message", "The file has another picture now, which needs tables that the "
                                  "document does not have")},
    {Message::OtherPictureTables,
     QT_TRANSLATE_NOOP("Message",
                       "The document has other frames or tables than the file, which would change the picture")},
    {Message::NotReadBack, QT_TRANSLATE_NOOP("Message", "The new version could not be read back: %1")},
    {Message::SegmentWriteFailed, QT_TRANSLATE_NOOP("Message", "Temp file write failed")},
    {Message::SegmentWriteInteger, QT_TRANSLATE_NOOP("Message", "Temp file write integer %1")},
    {Message::SegmentWriteLong, QT_TRANSLATE_NOOP("Message", "Temp file write long %1")},
    {Message::SegmentWriteString, QT_TRANSLATE_NOOP("Message", "Temp file write string")},
    {Message::SegmentLengthWrong,
     QT_TRANSLATE_N_NOOP("Message", "The segment would have %1 bytes, but its length says %2"), 1,
     "The segment would have %1 byte, but its length says %2"},
    {Message::ValueLengthWrong, QT_TRANSLATE_N_NOOP("Message", "The value would have %1 bytes instead of %2"), 1,
     "The value would have %1 byte instead of %2"},
    {Message::ExifLengthFailed, QT_TRANSLATE_NOOP("Message", "Exif section - calculate data length")},
    {Message::ExifOffsetsFailed, QT_TRANSLATE_NOOP("Message", "Exif Offset Calculation failed")},
    {Message::MakerNoteNotTiedUp,
     QT_TRANSLATE_NOOP("Message", "Can't tie up the MakerNote to its entry in the header (!?"
                                  "?)")},
    {Message::ExifWriteFailed, QT_TRANSLATE_NOOP("Message", "Exif write failed")},
    {Message::ValueFailed, QT_TRANSLATE_NOOP("Message", "Data format %1 error:%2")},

    {Message::ScanHeaderNotLast,
     QT_TRANSLATE_NOOP("Message", "The image cannot be shown without its scan header as the last segment")},
    {Message::SegmentsLeadNowhere, QT_TRANSLATE_NOOP("Message", "The segments of the file do not lead to its image")},
    {Message::SegmentTooLong, QT_TRANSLATE_NOOP("Message", "The segment would be longer than 65,535 bytes")},
    {Message::ExifTooLong,
     QT_TRANSLATE_N_NOOP("Message", "The Exif segment would be %1 bytes longer than the 65,535 "
                                    "that it has room for; rebuilding (\"Keep Untouched Data?\" off, "
                                    "--rebuild) may make it shorter"),
     1,
     "The Exif segment would be %1 byte longer than the 65,535 that it has room for; rebuilding (\"Keep Untouched "
     "Data?\" off, --rebuild) may make it shorter"},
    {Message::ExifRepeats, QT_TRANSLATE_NOOP("Message", "The Exif directories name the same bytes again and again")},
    {Message::DirectoryNotRead,
     QT_TRANSLATE_NOOP("Message", "The directory could not be read, so that nothing in it can be changed")},
    {Message::DirectoryNotShown, QT_TRANSLATE_NOOP("Message", "The file has one that could not be read")},
    {Message::EntryIsPlace, QT_TRANSLATE_NOOP("Message", "The text of this entry is the place of what it leads to")},
    {Message::ThumbnailInStrips, QT_TRANSLATE_NOOP("Message", "A thumbnail in strips cannot be changed")},
    {Message::TooFewBytes,
     QT_TRANSLATE_NOOP("Message", "Four bytes or fewer would stand where their place is looked for")},
    {Message::NotHexadecimal, QT_TRANSLATE_NOOP("Message", "The value is not a run of pairs of hexadecimal digits")},
    {Message::ValueNotShown,
     QT_TRANSLATE_NOOP("Message", "The value stands outside its entry, and the document shows only where")},
    {Message::FourBytesNeeded, QT_TRANSLATE_NOOP("Message", "The value has to be four bytes")},
    {Message::TypeNotChangeable, QT_TRANSLATE_NOOP("Message", "Values of this data type cannot be changed")},
    {Message::OldValueNotInSegment, QT_TRANSLATE_NOOP("Message", "The old value is not all in the Exif segment")},

    {Message::WouldRead, QT_TRANSLATE_NOOP("Message", "%1 would read %2 instead of %3")},
    {Message::WouldHaveType,
     QT_TRANSLATE_NOOP("Message", "%1 would have type %2 and count %3 instead of type %4 and count %5")},
    {Message::WouldStandAt, QT_TRANSLATE_NOOP("Message", "%1 would stand at %2 instead of %3")},
    {Message::WouldBeLost, QT_TRANSLATE_NOOP("Message", "%1 would be lost")},
    {Message::WouldBeNew, QT_TRANSLATE_NOOP("Message", "%1 would be new")},
    {Message::WouldDiffer, QT_TRANSLATE_NOOP("Message", "%1 would not be the same")},
    {Message::WouldHaveOtherLink, QT_TRANSLATE_NOOP("Message", "%1 would have another link to the next directory")},
    {Message::WouldHaveOtherEntries, QT_TRANSLATE_NOOP("Message", "%1 would not have the entries that it should")},
    {Message::WouldHaveSegments, QT_TRANSLATE_N_NOOP("Message", "The file would have %1 segments instead of %2"), 1,
     "The file would have %1 segment instead of %2"},
    {Message::ReadsOther, QT_TRANSLATE_NOOP("Message", "%1 reads %2 instead of %3")},
    {Message::HasOtherType,
     QT_TRANSLATE_NOOP("Message", "%1 has type %2 and count %3 instead of type %4 and count %5")},
    {Message::StandsElsewhere, QT_TRANSLATE_NOOP("Message", "%1 stands at %2 instead of %3")},
    {Message::IsLost, QT_TRANSLATE_NOOP("Message", "%1 is lost")},
    {Message::IsNew, QT_TRANSLATE_NOOP("Message", "%1 is new")},
    {Message::Differs, QT_TRANSLATE_NOOP("Message", "%1 is not the same")},
    {Message::HasOtherLink, QT_TRANSLATE_NOOP("Message", "%1 has another link to the next directory")},
    {Message::HasOtherEntries, QT_TRANSLATE_NOOP("Message", "%1 does not have the entries that it should")},
    {Message::HasOtherSegments, QT_TRANSLATE_N_NOOP("Message", "The file has %1 segments instead of %2"), 1,
     "The file has %1 segment instead of %2"},
    {Message::ExifHeader, QT_TRANSLATE_NOOP("Message", "The header of the Exif segment")},
    {Message::ExifSegment, QT_TRANSLATE_NOOP("Message", "The Exif segment")},
    {Message::ImageAt, QT_TRANSLATE_NOOP("Message", "The image at %1")},
    {Message::SegmentNamed, QT_TRANSLATE_NOOP("Message", "The segment %1")},
    {Message::Picture, QT_TRANSLATE_NOOP("Message", "The picture, or what follows it,")},
    {Message::SharedBytes, QT_TRANSLATE_NOOP("Message", "%1 shared bytes with another value, which still has them")},
    {Message::TrailerPositions,
     QT_TRANSLATE_NOOP("Message", "The data after the picture names positions in the file, which are others now")},
    {Message::ValuesChanged, QT_TRANSLATE_N_NOOP("Message", "%1 values changed, %2 unchanged, picture identical."), 1,
     "%1 value changed, %2 unchanged, picture identical."},
    {Message::OriginalKept, QT_TRANSLATE_NOOP("Message", "%1. The original is kept as %2")},
    {Message::OriginalWasThere, QT_TRANSLATE_NOOP("Message", "%1. %2 was there already and stays as the original")},
    {Message::AndMore, QT_TRANSLATE_N_NOOP("Message", "%1, and %2 more"), 2, "%1, and %2 more"},

    {Message::PrivatePosition, QT_TRANSLATE_NOOP("Message", "Position")},
    {Message::PrivateSerial, QT_TRANSLATE_NOOP("Message", "Serial numbers")},
    {Message::PrivateNames, QT_TRANSLATE_NOOP("Message", "Names of people")},
    {Message::PrivateCopyright, QT_TRANSLATE_NOOP("Message", "Copyright notice")},
    {Message::PrivateTexts, QT_TRANSLATE_NOOP("Message", "Titles, comments and keywords")},
    {Message::PrivateIds, QT_TRANSLATE_NOOP("Message", "Unique identifiers")},
    {Message::PrivateMakerNote, QT_TRANSLATE_NOOP("Message", "Maker's notes")},
    {Message::PrivateThumbnail, QT_TRANSLATE_NOOP("Message", "Thumbnail that is not known to show the picture")},
    {Message::PrivateXmp, QT_TRANSLATE_NOOP("Message", "XMP")},
    {Message::PrivateIptc, QT_TRANSLATE_NOOP("Message", "IPTC and Photoshop data")},
    {Message::PrivateComments, QT_TRANSLATE_NOOP("Message", "Comment segments")},
    {Message::PrivateOther, QT_TRANSLATE_NOOP("Message", "Other application segments")},
    {Message::PrivateUnknown, QT_TRANSLATE_NOOP("Message", "Exif data that the program does not know")},
    {Message::PrivateTrailer, QT_TRANSLATE_NOOP("Message", "What follows the picture")},
    {Message::UnknownTag, QT_TRANSLATE_NOOP("Message", "Unknown tag %1 in %2")},
    {Message::XmpSegment, QT_TRANSLATE_NOOP("Message", "XMP")},
    {Message::ExtendedXmp, QT_TRANSLATE_NOOP("Message", "Extended XMP")},
    {Message::PhotoshopBlock, QT_TRANSLATE_NOOP("Message", "Photoshop and IPTC block")},
    {Message::CommentSegment, QT_TRANSLATE_NOOP("Message", "Comment: %1")},
    {Message::AppSegment, QT_TRANSLATE_NOOP("Message", "Application segment %1 %2")},
    {Message::JfifPreview, QT_TRANSLATE_NOOP("Message", "Preview in the JFIF header")},
    {Message::JfxxPreview, QT_TRANSLATE_NOOP("Message", "Preview in a JFIF extension")},
    {Message::PictureIndex, QT_TRANSLATE_NOOP("Message", "Index of further pictures")},
    {Message::SecondExif, QT_TRANSLATE_NOOP("Message", "Second Exif segment")},
    {Message::ExifNotRead, QT_TRANSLATE_NOOP("Message", "Exif data that cannot be read in full")},
    {Message::ExifLeftovers, QT_TRANSLATE_NOOP("Message", "Bytes in the Exif data that nothing leads to")},
    {Message::UnshownDirectory, QT_TRANSLATE_NOOP("Message", "Directory %1, which is not shown")},
    {Message::ThumbnailOtherProportions,
     QT_TRANSLATE_NOOP("Message", "Thumbnail with other proportions than the picture")},
    {Message::ThumbnailOtherContent,
     QT_TRANSLATE_NOOP("Message", "Thumbnail that shows something else than the picture")},
    {Message::ThumbnailNotJudged, QT_TRANSLATE_NOOP("Message", "Thumbnail that cannot be compared with the picture")},
    {Message::TrailingPicture, QT_TRANSLATE_NOOP("Message", "Another picture")},
    {Message::TrailingFilm, QT_TRANSLATE_NOOP("Message", "A film")},
    {Message::TrailingData, QT_TRANSLATE_NOOP("Message", "Data of an unknown kind")},
    {Message::PictureWithoutEnd,
     QT_TRANSLATE_NOOP("Message", "The picture has no end, so nothing can be said about what follows it")},
    {Message::AfterPicture, QT_TRANSLATE_NOOP("Message", "after the picture")},
    {Message::InPicture, QT_TRANSLATE_NOOP("Message", "inside the image data")},
    {Message::InPictureStays, QT_TRANSLATE_NOOP("Message", "It stays, because the image data is never changed")},
    {Message::NothingToCut, QT_TRANSLATE_NOOP("Message", "It stays, because it cannot be told from the picture")},
    {Message::GoesWithOthers, QT_TRANSLATE_NOOP("Message", "It goes only with the whole Exif data")},
    {Message::PrivateFinding, QT_TRANSLATE_N_NOOP("Message", "%1, %2 bytes, %3"), 2, "%1, %2 byte, %3"},
    {Message::PrivateFindingClosed, QT_TRANSLATE_N_NOOP("Message", "%1, %2 bytes, %3; the program cannot look into it"),
     2, "%1, %2 byte, %3; the program cannot look into it"},
    {Message::PrivateFindingStays, QT_TRANSLATE_NOOP("Message", "%1. %2.")},
    {Message::TellsNothing, QT_TRANSLATE_NOOP("Message", "Nothing was found that identifies a person or a place")},

    {Message::ValueWithNumber, QT_TRANSLATE_NOOP("Message", "%1 (%2)")},
    {Message::ValueSeconds, QT_TRANSLATE_NOOP("Message", "%1 s")},
    {Message::ValueFNumber, QT_TRANSLATE_NOOP("Message", "f/%1")},
    {Message::ValueStops, QT_TRANSLATE_NOOP("Message", "%1 EV")},
    {Message::ValueMillimetres, QT_TRANSLATE_NOOP("Message", "%1 mm")},
    {Message::ValueMetres, QT_TRANSLATE_NOOP("Message", "%1 m")},
    {Message::ValueInfinite, QT_TRANSLATE_NOOP("Message", "infinity")},
    {Message::ValueDegrees, QT_TRANSLATE_NOOP("Message", "%1°")},
    {Message::ValueAngle, QT_TRANSLATE_NOOP("Message", "%1° %2' %3\"")},
    {Message::ValueCelsius, QT_TRANSLATE_NOOP("Message", "%1 °C")},
    {Message::ValuePerCent, QT_TRANSLATE_NOOP("Message", "%1 %")},
    {Message::ValueHectopascals, QT_TRANSLATE_NOOP("Message", "%1 hPa")},
    {Message::ValueBytes, QT_TRANSLATE_N_NOOP("Message", "%1 bytes"), 1, "%1 byte"},

    {Message::RootIsNotJpeg, QT_TRANSLATE_NOOP("Message", "The root element is %1, not JPEG")},
    {Message::FolderNotFound, QT_TRANSLATE_NOOP("Message", "Folder not found")},
    {Message::NoFilesFound, QT_TRANSLATE_NOOP("Message", "No files found with search criteria specified.  Click 'Find "
                                                         "Files' button to try again.")},
    {Message::FilesFound, QT_TRANSLATE_NOOP("Message", "List of files found (%1)")},
    {Message::CheckingContents, QT_TRANSLATE_NOOP("Message", "Checking file contents")},
    {Message::FilesNotChecked, QT_TRANSLATE_N_NOOP("Message", "%1 files could not be checked. The first: %2"), 1,
     "%1 file could not be checked. The first: %2"},
    {Message::SearchGivenUp,
     QT_TRANSLATE_N_NOOP("Message", "The search ended early, because %1 files could not be checked. The first: %2"), 1,
     "The search ended early, because %1 file could not be checked. The first: %2"},
    {Message::OpenFile, QT_TRANSLATE_NOOP("Message", "Open File %1")},
    {Message::ReadFile, QT_TRANSLATE_NOOP("Message", "Read File %1")},
    {Message::CreateFile, QT_TRANSLATE_NOOP("Message", "Create file %1")},
    {Message::WriteFile, QT_TRANSLATE_NOOP("Message", "Write file %1")},
    {Message::SaveXmlFile, QT_TRANSLATE_NOOP("Message", "Save XML File %1")},
    {Message::DocumentCorrupt, QT_TRANSLATE_NOOP("Message", "Internal XML document corrupt")},
    {Message::TransformXml, QT_TRANSLATE_NOOP("Message", "Transform XML")},

    {Message::LoadXml, QT_TRANSLATE_NOOP("Message", "loadXML")},
    {Message::DocumentNotShown, QT_TRANSLATE_NOOP("Message", "Internal JpegXml document error")},
    {Message::InvalidPicture, QT_TRANSLATE_NOOP("Message", "Invalid picture")},
    {Message::InvalidThumbnail, QT_TRANSLATE_NOOP("Message", "Invalid thumbnail")},
    {Message::OpenReport, QT_TRANSLATE_NOOP("Message", "Open %1")},
    {Message::NoProgramOpens, QT_TRANSLATE_NOOP("Message", "No program was found that opens it")},
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

const char* sourceText(Message message, std::optional<std::int64_t> count)
{
    const MessageText& row = kTexts[static_cast<std::size_t>(message)];
    return count == 1 && row.ofOne != nullptr ? row.ofOne : row.text;
}

int countedDetail(Message message)
{
    return kTexts[static_cast<std::size_t>(message)].counted;
}

} // namespace ovisto
