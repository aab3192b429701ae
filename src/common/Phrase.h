// SPDX-License-Identifier: MIT

#pragma once

#include "common/Message.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// Something said to a person, still without words: a message and its details, which may be phrases themselves. Or a
/// text (UTF-8; a path, as it is) that is the same in every language: a path, a number, the reason that another library
/// gives.
class Phrase {
public:
    Phrase() = default;
    Phrase(std::string text) : m_text(std::move(text)) {}
    Phrase(const char* text) : m_text(text) {}
    /// A number of things, which the form of the words around it may depend on.
    Phrase(std::integral auto count) : Phrase(std::to_string(count), static_cast<std::int64_t>(count)) {}
    /// The same, written in another way.
    Phrase(std::string text, std::int64_t count) : m_text(std::move(text)), m_count(count) {}
    template <class... Details>
    Phrase(Message message, Details&&... details) : m_message(message), m_details{std::forward<Details>(details)...}
    {
    }

    Message message() const { return m_message; }
    const std::vector<Phrase>& details() const { return m_details; }
    bool isEmpty() const { return m_message == Message::AsItIs && m_text.empty(); }

    /// The details of this phrase in another message.
    Phrase as(Message message) const;

    /// The phrase, its words cut after `most` characters (and "..." put there).
    Phrase shortened(std::size_t most) const;

    /// Gives the text of a message in the language wanted; of one that counts something, in the form for so many.
    using TextOf = std::function<std::string(Message message, std::optional<std::int64_t> count)>;
    std::string words(const TextOf& textOf) const;

    bool operator==(const Phrase&) const = default;

private:
    std::optional<std::int64_t> counted() const;

    Message m_message = Message::AsItIs;
    std::string m_text; ///< of a phrase that is the same in every language
    std::optional<std::int64_t> m_count;
    std::vector<Phrase> m_details;
    std::size_t m_most = std::string::npos;
};

/// The words of `phrase` in English, UTF-8.
std::string inEnglish(const Phrase& phrase);

} // namespace ovisto
