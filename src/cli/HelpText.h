// SPDX-License-Identifier: MIT

#pragma once

#include <CLI/CLI.hpp>

#include <span>
#include <string>
#include <string_view>

namespace ovisto {

/// What options that all commands have are listed under.
inline constexpr const char* kCommonOptions = "Options for every command";

/// The help as people write it: lines of at most 80 columns, an option that switches something off shows no value, and
/// FILE stands for at least one.
class HelpText : public CLI::Formatter {
public:
    HelpText();

    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
    std::string make_description(const CLI::App* app) const override;
    std::string make_option(const CLI::Option* option, bool isPositional) const override;
    std::string make_option_name(const CLI::Option* option, bool isPositional) const override;
    std::string make_option_usage(const CLI::Option* option) const override;
    std::string make_subcommand(const CLI::App* command) const override;
    std::string make_footer(const CLI::App* app) const override;
};

/// A part of the explanation of the whole program. Its text has paragraphs with an empty line between them; lines that
/// begin with two blanks stay as they are.
struct HelpTopic {
    const char* heading;
    const char* text;
    bool isShort; ///< short enough for --help; the others are in the manual page only
};

std::span<const HelpTopic> helpTopics();

} // namespace ovisto
