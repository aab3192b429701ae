#pragma once

#include <libxml/parser.h>

#include <string>

namespace ovisto {

// What the files of this folder that call libxml2 share.

/// Prepares the library, once for the program. To be called before anything else of it is.
void initialiseXml();

/// Has all that `context` comes to load (itself, its document type, its entities) come from regular local files. A pipe
/// or a device is not waited for: it counts as missing, as do network addresses.
void allowLocalFilesOnly(xmlParserCtxt& context);

} // namespace ovisto
