#pragma once

#include <libxml/parser.h>

#include <string>

namespace ovisto {

// Shared by the files of this folder that call libxml2.

/// Prepares the library, once per program. Call before using anything else of it.
void initialiseXml();

/// Lets `context` load only from regular local files: its document, its document type, its entities. Pipes, devices and
/// network addresses count as missing.
void allowLocalFilesOnly(xmlParserCtxt& context);

} // namespace ovisto
