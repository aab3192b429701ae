// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace ovisto::fuzz {

// What must hold for any input. Each function returns what does not, or an empty text. They are called by libFuzzer
// (FuzzMain.cpp) and, for the inputs that once found something, by the tests.

/// Reads `input` as a JPEG file: what the reader makes of it, with any parts left out, is UTF-8 from the first to the
/// last tag of a document.
std::string read(std::span<const std::uint8_t> input);

/// Reads `input` as a JPEG file, edits its document as the last bytes say, and saves it by rebuilding. A refused save
/// leaves the file alone; another one leaves a file that reads as the document that was saved, as far as no loss is
/// named, has the same image data, and can be saved again.
std::string rebuild(std::span<const std::uint8_t> input);

/// The same for a save that keeps what was not edited: the file reads as the document that was saved, and each segment
/// that was not edited and everything from the scan on is as it was.
std::string keep(std::span<const std::uint8_t> input);

/// Reads `input` as a text file that a person may hand to the program. Its first byte says which: a tag dictionary, a
/// style sheet, an edited document, a keyword list, a file list, or the words and patterns of a search.
std::string readText(std::span<const std::uint8_t> input);

} // namespace ovisto::fuzz
