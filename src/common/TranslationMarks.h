// SPDX-License-Identifier: MIT

#pragma once

// By these names, which are Qt's, its lupdate finds the texts that are to be translated. The library itself does
// without Qt, so this is only for sources that do not include it.
#define QT_TRANSLATE_NOOP(context, text) text
#define QT_TRANSLATE_N_NOOP(context, text) text
