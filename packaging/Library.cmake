# SPDX-License-Identifier: MIT
# What other programs need to build with the library: its public headers, and the files by which find_package(ovisto)
# finds it. All of it is the install component dev.
include(CMakePackageConfigHelpers)

# Where to begin: collection/Photograph.h for one photograph, collection/BatchAction.h for many. What a public header
# includes is public; tools/check-library.sh compiles each one as it is installed.
set(PUBLIC_HEADERS
    collection/BatchAction.h collection/ContentFilter.h collection/DocumentLoad.h collection/DocumentSaving.h
    collection/FilePattern.h collection/FolderScan.h collection/FolderWalk.h collection/Photograph.h
    collection/PrivateData.h collection/Report.h collection/XmlExport.h
    common/Error.h common/ErrorReport.h common/FirstReport.h common/KeptReports.h common/Libraries.h common/Message.h
    common/Phrase.h common/Progress.h
    common/system/File.h common/system/FileId.h common/system/Interruption.h common/system/ProgramFolder.h
    common/text/RegularExpression.h
    common/xml/ReadableFolders.h common/xml/XmlDocument.h common/xml/XmlLoad.h common/xml/XmlNode.h
    common/xml/XmlTransform.h
    document/DataType.h document/MetadataDocument.h document/NodeChange.h document/NodePath.h document/NodePaths.h
    document/NodeValue.h document/PropertyTree.h document/Reading.h document/TagDictionary.h document/ValueText.h
    document/ValueWords.h
    jpeg/FileIdentity.h
    reader/JpegXml.h reader/KeepOptions.h
    writer/DocumentSave.h writer/SaveReceipt.h writer/ValueCheck.h)
list(TRANSFORM PUBLIC_HEADERS PREPEND ${CMAKE_SOURCE_DIR}/src/)
target_sources(ovisto PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${PUBLIC_HEADERS})
target_compile_features(ovisto PUBLIC cxx_std_20)

set(CONFIG_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/ovisto)
install(TARGETS ovisto EXPORT ovisto
        ARCHIVE COMPONENT dev
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ovisto COMPONENT dev)
install(EXPORT ovisto FILE ovistoTargets.cmake NAMESPACE ovisto:: DESTINATION ${CONFIG_FOLDER} COMPONENT dev)

set(DATA_FOLDER ${CMAKE_INSTALL_DATADIR}/ovisto)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ovistoConfig.cmake.in ${CMAKE_BINARY_DIR}/ovistoConfig.cmake
                              INSTALL_DESTINATION ${CONFIG_FOLDER} PATH_VARS DATA_FOLDER)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/ovistoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/ovistoConfig.cmake ${CMAKE_BINARY_DIR}/ovistoConfigVersion.cmake
              ${CMAKE_CURRENT_LIST_DIR}/FindUnistring.cmake
        DESTINATION ${CONFIG_FOLDER} COMPONENT dev)
