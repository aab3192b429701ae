// SPDX-License-Identifier: MIT

#include "cli/HelpText.h"

#include "common/text/Splitting.h"

#include <utility>

namespace ovisto {

namespace {

constexpr std::size_t kColumns = 80;
constexpr std::size_t kTextColumn = 26; ///< where the texts of options begin

// Each line of a literal block begins with two blanks, so that it is left alone.
constexpr HelpTopic kTopics[] = {
    {"Exit status",
     "  0  everything was done\n"
     "  1  some file failed, or check found that something would be lost\n"
     "  2  wrong usage; nothing was done\n"
     "\n"
     "Each file that failed is named on standard error with the reason; the others are still processed.\n"
     "\n"
     "Ctrl+C (or SIGTERM, SIGHUP) ends the commands that write files after the files at hand: what was written is in "
     "place, and nothing half-written is left. A second one ends them at once. The program then ends by the signal, "
     "which a shell shows as 130 (143, 129).",
     true},
    {"Node paths",
     "NODEPATH names an element of the metadata document from the root down, as the command xml --full prints it: for "
     "each level \"/\" and the name of the element, with [@id='...'] if it has an id. It is written exactly so; other "
     "XPath expressions are not understood. In a shell, put it in double quotation marks.\n"
     "\n"
     "The tag dictionary lists every node that the program knows; completion in bash, zsh and fish offers them, and in "
     "bash and zsh also finds them by a word of the label. These are the most common ones:",
     false},
    {"Examples",
     "Look at a photograph:\n"
     "\n"
     "  ovisto-cli show lake.jpg\n"
     "\n"
     "Give all photographs of a folder a title:\n"
     "\n"
     "  ovisto-cli set \"/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']\" \"At the lake\" *.jpg\n"
     "\n"
     "Give all photographs that mention a lake a copyright notice, whatever their names are:\n"
     "\n"
     "  ovisto-cli find Pictures --words lake -0 |\n"
     "    ovisto-cli set \"/JPEG/Exif[@id='FFE1']/IFD[@id='8298']\" \"Maren Tolvik\" \\\n"
     "      --files-from - -0\n"
     "\n"
     "Prepare copies to be shared, with the copyright notice left in:\n"
     "\n"
     "  cp 2024/*.jpg share/ && ovisto-cli clean --keep copyright share/*.jpg\n"
     "\n"
     "Make a table for a spreadsheet program:\n"
     "\n"
     "  ovisto-cli find 2024 -0 |\n"
     "    ovisto-cli report --style csv --files-from - -0 > 2024.csv\n"
     "\n"
     "Do again what was not done, after a failure or an interruption:\n"
     "\n"
     "  ovisto-cli clean --files-from all --failed-to rest\n"
     "  ovisto-cli clean --files-from rest --failed-to rest",
     false},
};

/// Appends `text` in lines of at most kColumns, each with `indent` blanks before it. The first line begins where `text`
/// is appended to.
void appendFilled(std::string& lines, std::string_view text, std::size_t indent)
{
    std::size_t column = indent;
    bool isFirst = true;
    for (const std::string_view word : split(text, ' ')) {
        if (!isFirst && column + 1 + word.size() > kColumns) {
            lines.append("\n").append(indent, ' ');
            column = indent;
        } else if (!isFirst) {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += word.size();
        isFirst = false;
    }
    lines += '\n';
}

/// A name and its text beside it; below it where the name is too long.
std::string row(const std::string& name, const std::string& text)
{
    std::string lines = "  " + name;
    if (lines.size() + 2 > kTextColumn)
        lines.append("\n").append(kTextColumn, ' ');
    else
        lines.append(kTextColumn - lines.size(), ' ');
    appendFilled(lines, text, kTextColumn);
    return lines;
}

std::string filledText(const std::string& text)
{
    std::string lines;
    for (const std::string_view line : split(text, '\n')) {
        if (line.starts_with("  "))
            lines.append(line).append("\n");
        else
            appendFilled(lines, line, 0);
    }
    return text.empty() ? text : lines;
}

} // namespace

std::span<const HelpTopic> helpTopics()
{
    return kTopics;
}

HelpText::HelpText()
{
    label("Positionals", "Arguments");
    label("SUBCOMMAND", "COMMAND");
}

std::string HelpText::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const
{
    constexpr std::string_view kTwoEmptyLines = "\n\n\n"; // between groups of options
    std::string text = Formatter::make_help(app, std::move(name), mode);
    for (auto place = text.find(kTwoEmptyLines); place != std::string::npos; place = text.find(kTwoEmptyLines))
        text.erase(place, 1);
    while (text.ends_with("\n\n"))
        text.pop_back();
    return text;
}

std::string HelpText::make_description(const CLI::App* app) const
{
    return app->get_description() + "\n\n";
}

std::string HelpText::make_option(const CLI::Option* option, bool isPositional) const
{
    return row(make_option_name(option, isPositional) + (isPositional ? "" : make_option_opts(option)),
               make_option_desc(option));
}

std::string HelpText::make_option_name(const CLI::Option* option, bool isPositional) const
{
    constexpr std::string_view kSwitchedOff = "{false}";
    std::string name = Formatter::make_option_name(option, isPositional);
    if (name.ends_with(kSwitchedOff))
        name.erase(name.size() - kSwitchedOff.size());
    if (const auto comma = name.find(",-"); comma != std::string::npos)
        name.insert(comma + 1, " ");
    return name;
}

std::string HelpText::make_option_usage(const CLI::Option* option) const
{
    const std::string name = make_option_name(option, true);
    return name == "FILE" ? "FILE..." : Formatter::make_option_usage(option);
}

std::string HelpText::make_subcommand(const CLI::App* command) const
{
    return row(command->get_name(), command->get_description());
}

std::string HelpText::make_footer(const CLI::App* app) const
{
    return filledText(app->get_footer());
}

} // namespace ovisto
