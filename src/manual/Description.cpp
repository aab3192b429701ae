// SPDX-License-Identifier: MIT

#include "manual/Description.h"

#include "cli/Commands.h"
#include "cli/HelpText.h"
#include "common/Error.h"
#include "common/text/Splitting.h"
#include "document/NodeChange.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

/// What the names that --help has for values and arguments stand for.
constexpr struct {
    std::string_view name;
    ValueKind kind;
} kValueKinds[] = {
    {"FILE", ValueKind::File},        {"DIR", ValueKind::Folder},       {"FOLDER", ValueKind::Folder},
    {"XSL", ValueKind::StyleSheet},   {"XML", ValueKind::XmlFile},      {"NODEPATH", ValueKind::NodePath},
    {"ENCODING", ValueKind::Choice},  {"KIND,...", ValueKind::Choices}, {"N", ValueKind::Text},
    {"P", ValueKind::Text},           {"W", ValueKind::Text},           {"VALUE", ValueKind::Text},
    {"FILE|FOLDER", ValueKind::File},
};

ValueKind kindOf(const std::string& value)
{
    const auto* row = std::ranges::find(kValueKinds, value, [](const auto& each) { return each.name; });
    if (row == std::end(kValueKinds))
        throw Error{kInternalError, "No kind of value is called " + value};
    return row->kind;
}

/// What a check of the value allows: "{utf-8,utf-16}".
std::vector<std::string> choicesOf(CLI::Option& option)
{
    const CLI::Validator* check = option.get_validator(0);
    const std::string text = check != nullptr ? check->get_description() : "";
    if (!text.starts_with('{') || !text.ends_with('}'))
        throw Error{kInternalError, "No choices in " + text};
    return CLI::detail::split(text.substr(1, text.size() - 2), ',');
}

OptionDescription describe(CLI::Option& option)
{
    OptionDescription described;
    described.isArgument = option.get_positional();
    described.text = option.get_description();
    described.isCommon = option.get_group() == kCommonOptions;
    described.isRequired = option.get_required();
    described.isRepeated = option.get_expected_max() >= CLI::detail::expected_max_vector_size;
    if (described.isArgument) {
        described.names = {option.get_name(true)};
        described.value = described.names.front();
    } else {
        for (const std::string& name : option.get_snames())
            described.names.push_back("-" + name);
        for (const std::string& name : option.get_lnames())
            described.names.push_back("--" + name);
        described.value = option.get_option_text();
    }
    if (!described.value.empty())
        described.kind = kindOf(described.value);
    if (described.isArgument && described.value == "FILE")
        described.kind = ValueKind::Photograph;
    if (described.kind == ValueKind::Choice || described.kind == ValueKind::Choices)
        described.choices = choicesOf(option);
    if (described.kind == ValueKind::StyleSheet)
        described.choices = styleSheetNames();
    return described;
}

CommandDescription describeCommand(CLI::App& command)
{
    CommandDescription described{command.get_name(), command.get_description(), command.get_footer(), {}};
    for (CLI::Option* option : command.get_options(nullptr))
        described.options.push_back(describe(*option));
    return described;
}

/// The option or argument of a line of Qt's help: names, at least two blanks, text.
OptionDescription optionOfRow(std::string_view row, bool isArgument)
{
    const auto gap = std::min(row.find("  "), row.size());
    OptionDescription option;
    for (const std::string_view name : split(row.substr(0, gap), ','))
        option.names.emplace_back(trimmed(name));
    option.text = trimmed(row.substr(gap));
    if (isArgument) {
        option.isArgument = true;
        option.isRepeated = true;
        option.value = option.names.front();
        option.kind = kindOf(option.value);
    }
    return option;
}

/// The label of the directory that an entry is in, where several directories have such entries.
std::string directoryLabel(const DictionaryEntry& entry)
{
    const ConstXmlNode parent = entry.node().parent();
    const bool isMain = parent.name() == "JPEG" || parent.name() == "Exif";
    return isMain ? std::string() : DictionaryEntry(parent).label();
}

} // namespace

std::vector<OptionDescription> CommandDescription::arguments() const
{
    std::vector<OptionDescription> result;
    std::ranges::copy_if(options, std::back_inserter(result), &OptionDescription::isArgument);
    return result;
}

std::string CommandDescription::usage() const
{
    std::string line;
    for (const OptionDescription& argument : arguments()) {
        const bool isNeeded = argument.isRequired || argument.kind == ValueKind::Photograph;
        const std::string shown = argument.value + (argument.isRepeated ? "..." : "");
        line += " " + (isNeeded ? shown : "[" + shown + "]");
    }
    return line;
}

ProgramDescription describe(CLI::App& app)
{
    ProgramDescription described{describeCommand(app), {}};
    for (CLI::App* command : app.get_subcommands(nullptr)) {
        described.commands.push_back(describeCommand(*command));
        for (OptionDescription& option : described.commands.back().options)
            option.isCommon = option.isCommon || option.names.back() == "--help";
    }
    return described;
}

ProgramDescription describeWindow(std::string_view help)
{
    ProgramDescription described;
    CommandDescription& program = described.program;
    program.name = "ovisto";
    std::string_view section;
    for (const std::string_view line : split(help, '\n')) {
        if (line.ends_with(':')) {
            section = line;
        } else if (line.starts_with("Usage: ")) {
            section = "Usage";
        } else if (section == "Usage" && !line.empty()) {
            program.text += (program.text.empty() ? "" : " ") + std::string(line);
        } else if (line.starts_with("   ") && !program.options.empty()) {
            program.options.back().text += " " + std::string(trimmed(line)); // went on in the next line
        } else if (line.starts_with("  ")) {
            program.options.push_back(optionOfRow(trimmed(line), section == "Arguments:"));
        }
    }
    if (program.text.empty() || program.options.empty())
        throw Error{kInternalError, "The help of the window is written in another way than it was"};
    return described;
}

std::vector<NodeDescription> describeNodes(const TagDictionary& dictionary)
{
    std::vector<NodeDescription> nodes;
    for (const DictionaryEntry& entry : dictionary.entries(true, Reading::Full)) {
        const auto isPossible = [&](NodeAction action) {
            return objection({.action = action, .entry = entry, .path = entry.path()}, Reading::Full).isEmpty();
        };
        const std::string directory = directoryLabel(entry);
        const NodeDescription node{
            .path = entry.path(),
            .label = entry.label() + (directory.empty() ? "" : " (" + directory + ")"),
            .canBeSet = entry.protection() == Protection::Free && isPossible(NodeAction::Set),
            .canBeDeleted = entry.protection() != Protection::Required && isPossible(NodeAction::Delete),
            .canBeAdded = isPossible(NodeAction::Add),
        };
        if (node.canBeSet || node.canBeDeleted || node.canBeAdded)
            nodes.push_back(node);
    }
    return nodes;
}

} // namespace ovisto
