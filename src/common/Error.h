// SPDX-License-Identifier: MIT

#pragma once

#include "common/Phrase.h"

#include <optional>
#include <string>
#include <utility>

namespace ovisto {

/// What went wrong: a number that stays the same in every language, and a phrase for the person in front. A function
/// that raises an error throws one of these; running out of memory may throw what the standard library throws. Errors
/// are not derived from std::exception.
struct Error {
    int number = 0;
    Phrase description;
    std::string node{}; ///< the path of the node that cannot be written (see NodeXPath()), where one is at fault
};

// Failures of the system and of conversions.
inline constexpr int kInvalidCall = 5;       ///< what was asked for makes no sense or is refused; nothing was done
inline constexpr int kOverflow = 6;          ///< a number does not fit
inline constexpr int kOutOfMemory = 7;       ///< or a limit was reached that keeps a hostile file from taking it all
inline constexpr int kTypeMismatch = 13;     ///< a text is not a number
inline constexpr int kFileNotFound = 53;     ///< there is no such file or folder
inline constexpr int kInternalError = 51;    ///< a library failed
inline constexpr int kDeviceError = 57;      ///< a disk failed while reading or writing
inline constexpr int kDiskFull = 61;         ///< also: a quota or the largest file size is reached
inline constexpr int kPermissionDenied = 70; ///< also: another save is writing the same file
inline constexpr int kPathAccessError = 75;  ///< not a regular file, or anything else that the system says
inline constexpr int kPathNotFound = 76;     ///< a part of the path that must be a folder is not one
inline constexpr int kObjectNotSet = 91;     ///< something that is needed is missing

// The program's own failures.
inline constexpr int kOpenFailed = -2147221504;     ///< a file cannot be opened, or an XML file cannot be parsed
inline constexpr int kStructureError = -2147221503; ///< a file is not a sound JPEG file

/// The error with one of the system numbers above and its usual description.
Error systemError(int number);

/// Whether the system refused something: a file, the disk or memory. Otherwise, what was to be worked on is wrong.
bool isOfSystem(const Error& error);

/// The exception that is being handled as an error: running out of memory or of another system resource, or what a
/// library raised.
Error handledException();

/// Runs steps that may fail, so that later steps still run, and keeps the latest error until it is looked at. Every
/// exception counts as an error, so that none leaves a step.
class ErrorTrap {
public:
    template <class Step> void run(Step&& step)
    {
        try {
            std::forward<Step>(step)();
        } catch (const Error& error) {
            m_pending = error;
        } catch (...) {
            m_pending = handledException();
        }
    }

    bool pending() const { return m_pending.has_value(); }

    /// The pending error, which stays pending. There must be one.
    const Error& error() const { return *m_pending; }

    /// Returns the pending error, which is then no longer pending. There must be one.
    Error take() { return *std::exchange(m_pending, std::nullopt); }

    void clear() { m_pending.reset(); }

    /// Raises the pending error, if any.
    void raise()
    {
        if (pending())
            throw take();
    }

private:
    std::optional<Error> m_pending;
};

} // namespace ovisto
