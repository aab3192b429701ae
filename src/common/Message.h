#pragma once

#include <cstdint>

namespace ovisto {

/// What the library has to say to a person: failures and their reasons, and the work that they happened in. The command
/// line says it in English, the window in the person's language.
enum class Message : std::uint8_t {
    // Texts made of others
    AsItIs, // the text of a Phrase that is the same in every language
    InContext,
    ErrorReport,
    // Reasons of the system and of conversions
    InvalidCall,
    Overflow,
    OutOfMemory,
    TypeMismatch,
    FileNotFound,
    DeviceError,
    DiskFull,
    PermissionDenied,
    PathAccessError,
    PathNotFound,
    ObjectNotSet,
    UnexpectedError,
    Interrupted,
    // Regular expressions
    NotARegularExpression,
    ExpressionRunsTooLong,
    // XML
    XmlFileError,
    XmlTextError,
    NotAPath,
    DocumentTypeNotLoaded,
    ContentDoesNotMatch,
    EntityNotDeclared,
    EntityOutside,
    EntityNotRead,
    EntitiesTooLarge,
    IncludesOther,
    ElementsTooDeep,
    FileNotForStyleSheets,
    StyleSheetNotApplied,
    StyleSheetTooLarge,
    // Reading
    OpenFailed,
    NotAJpeg,
    UnknownMarker,
    NoScan,
    // Changing documents
    NoDataType,
    NodeOfTheImage,
    NodeRequired,
    CreateNodeFailed,
    // Writing
    WriteTo,
    WriteFailed,
    ImageTransferFailed,
    DeleteOldFile,
    RenameFile,
    TextHasCdataEnd,
    TextHasControl,
    TextHasElements,
    MoreThanOneImage,
    FileWasChanged,
    SegmentWriteFailed,
    SegmentWriteInteger,
    SegmentWriteLong,
    SegmentWriteString,
    SegmentLengthWrong,
    ValueLengthWrong,
    ExifLengthFailed,
    ExifOffsetsFailed,
    MakerNoteNotTiedUp,
    ExifWriteFailed,
    ValueFailed,
    // Writing that keeps what was not changed
    ScanHeaderNotLast,
    SegmentsLeadNowhere,
    SegmentTooLong,
    ExifTooLong,
    ExifRepeats,
    DirectoryNotRead,
    DirectoryNotShown,
    EntryIsPlace,
    ThumbnailInStrips,
    TooFewBytes,
    NotHexadecimal,
    ValueNotShown,
    FourBytesNeeded,
    TypeNotChangeable,
    OldValueNotInSegment,
    // What a comparison of two versions says
    WouldRead,
    WouldHaveType,
    WouldStandAt,
    WouldBeLost,
    WouldBeNew,
    WouldDiffer,
    WouldHaveOtherLink,
    WouldHaveOtherEntries,
    WouldHaveSegments,
    ExifHeader,
    ExifSegment,
    ImageAt,
    SegmentNamed,
    Picture,
    SharedBytes,
    TrailerPositions,
    OneValueChanged,
    ValuesChanged,
    OriginalKept,
    OriginalWasThere,
    AndMore,
    // Collections
    RootIsNotJpeg,
    TemporaryNameTaken,
    FolderNotFound,
    NoFilesFound,
    FilesFound,
    CheckingContents,
    OpenFile,
    ReadFile,
    CreateFile,
    WriteFile,
    SaveXmlFile,
    DocumentCorrupt,
    TransformXml,
};

/// The English text of a message, UTF-8, with %1, %2 and so on where its details belong. Translations are looked up by
/// it, in the context "Message".
const char* sourceText(Message message);

} // namespace ovisto
