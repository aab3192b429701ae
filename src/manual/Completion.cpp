// SPDX-License-Identifier: MIT

#include "manual/Completion.h"

#include "common/Error.h"

#include <algorithm>
#include <string_view>

namespace ovisto {

namespace {

/// `text` as one word of a shell: in single quotation marks, in which it writes those of the text as `mark`.
std::string quoted(std::string_view text, std::string_view mark)
{
    std::string word = "'";
    for (const char character : text) {
        if (character == '\'')
            word += mark;
        else
            word += character;
    }
    return word + "'";
}

/// For bash and zsh.
std::string word(std::string_view text)
{
    return quoted(text, R"('\'')");
}

std::string joined(const std::vector<std::string>& texts)
{
    std::string line;
    for (const std::string& text : texts)
        line += (line.empty() ? "" : " ") + text;
    return line;
}

/// The beginning of what --help says, as long as it makes sense without the rest.
std::string brief(const std::string& text)
{
    std::size_t end = text.size();
    for (const char* mark : {". ", "; ", ": ", " ("})
        end = std::min(end, text.find(mark));
    return text.substr(0, end);
}

/// What a script calls the kind.
std::string kindName(const OptionDescription& option)
{
    switch (option.kind) {
    case ValueKind::Text:
        return "text";
    case ValueKind::File:
        return "file";
    case ValueKind::Folder:
        return "folder";
    case ValueKind::Photograph:
        return "photograph";
    case ValueKind::StyleSheet:
        return "style";
    case ValueKind::XmlFile:
        return "xml";
    case ValueKind::NodePath:
        return "path";
    case ValueKind::Choice:
        return "choice";
    case ValueKind::Choices:
        return "choices";
    }
    return "text";
}

std::string kindAndChoices(const OptionDescription& option)
{
    return kindName(option) + (option.choices.empty() ? "" : " " + joined(option.choices));
}

/// The commands for which it makes sense to name the node.
std::string usesOf(const NodeDescription& node)
{
    return std::string(node.canBeSet ? "s" : "") + (node.canBeDeleted ? "d" : "") + (node.canBeAdded ? "a" : "");
}

std::string filledIn(const std::string& script, const std::string& tables)
{
    constexpr std::string_view kPlace = "@TABLES@\n";
    const auto place = script.find(kPlace);
    if (place == std::string::npos)
        throw Error{kInternalError, "The script has no place for its tables"};
    return std::string(script).replace(place, kPlace.size(), tables);
}

/// One line of a table for bash: [key]=value.
std::string bashRow(const std::string& key, const std::string& value)
{
    return "    [" + word(key) + "]=" + word(value) + "\n";
}

/// The nodes as a table for bash and zsh: what they are good for, path, label, a tabulator between them.
std::string nodeTable(const std::string& name, const std::vector<NodeDescription>& nodes)
{
    std::string table = name + "=(\n";
    for (const NodeDescription& node : nodes)
        table += "    " + word(usesOf(node) + "\t" + node.path + "\t" + node.label) + "\n";
    return table + ")\n";
}

/// The text in the square brackets of an argument of _arguments.
std::string zshText(const std::string& text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '[' || character == ']' || character == ':' || character == '\\')
            escaped += '\\';
        escaped += character;
    }
    return escaped;
}

/// What zsh shall do to complete a value: ":message:action". With a blank before it, the action gets no arguments but
/// its own.
std::string zshAction(const OptionDescription& option, const std::string& command)
{
    switch (option.kind) {
    case ValueKind::Text:
        return ":" + zshText(option.value) + ": ";
    case ValueKind::File:
        return ":file:_files";
    case ValueKind::Folder:
        return ":folder:_files -/";
    case ValueKind::Photograph:
        return ":JPEG file:_ovisto_cli_photographs";
    case ValueKind::StyleSheet:
        return ":style sheet: _ovisto_cli_styles " + joined(option.choices);
    case ValueKind::XmlFile:
        return R"glob(:XML file:_files -g "*.(#i)xml(-.)")glob";
    case ValueKind::NodePath:
        return ":node: _ovisto_cli_nodes " + command.substr(0, 1);
    case ValueKind::Choice:
        return ":value:(" + joined(option.choices) + ")";
    case ValueKind::Choices:
        return ":kinds:_sequence compadd - " + joined(option.choices);
    }
    return ":value: ";
}

std::string zshArgument(const OptionDescription& option, int place, const std::string& command)
{
    if (option.isArgument)
        return word((option.isRepeated ? "*" : std::to_string(place)) + zshAction(option, command));
    std::string arguments;
    const bool isHelp = option.names.back() == "--help" || option.names.back() == "--version";
    for (const std::string& name : option.names) {
        std::string argument = isHelp ? "(- *)" : option.isRepeated ? "*" : "";
        argument += name;
        argument += option.value.empty() ? "" : "="; // or a blank
        argument += "[" + zshText(brief(option.text)) + "]";
        argument += option.value.empty() ? "" : zshAction(option, command);
        arguments += arguments.empty() ? "" : " ";
        arguments += word(argument);
    }
    return arguments;
}

/// How fish completes a value.
std::string fishValue(const OptionDescription& option)
{
    switch (option.kind) {
    case ValueKind::File:
        return " -r -F";
    case ValueKind::Folder:
        return " -x -a '(__fish_complete_directories)'";
    case ValueKind::StyleSheet:
        return " -x -k -a '" + joined(option.choices) + " (__ovisto_cli_files xsl)'";
    case ValueKind::XmlFile:
        return " -x -k -a '(__ovisto_cli_files xml)'";
    case ValueKind::Photograph:
        return " -k -a '(__ovisto_cli_files jpg jpeg)'";
    case ValueKind::Choice:
        return " -x -a '" + joined(option.choices) + "'";
    case ValueKind::Choices:
        return " -x -a '(__ovisto_cli_choices " + joined(option.choices) + ")'";
    case ValueKind::NodePath:
    case ValueKind::Text:
        break;
    }
    return " -x";
}

std::string fishWord(std::string_view text)
{
    return quoted(text, R"(\')");
}

std::string fishOption(const std::string& condition, const OptionDescription& option)
{
    std::string line = "complete -c ovisto-cli -n " + fishWord(condition);
    for (const std::string& name : option.names)
        line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    if (!option.value.empty())
        line += fishValue(option);
    return line + " -d " + fishWord(brief(option.text)) + "\n";
}

std::string fishArgument(const std::string& command, const OptionDescription& argument, int place)
{
    const std::string atPlace = command + " " + std::to_string(place) + (argument.isRepeated ? " more" : "");
    const std::string start = "complete -c ovisto-cli -n " + fishWord("__ovisto_cli_at " + atPlace);
    if (argument.kind == ValueKind::NodePath)
        return start + " -k -a '(__ovisto_cli_nodes " + command.substr(0, 1) + ")'\n";
    if (argument.kind == ValueKind::Text)
        return {};
    return start + fishValue(argument) + "\n";
}

} // namespace

std::string bashCompletion(const std::string& script, const ProgramDescription& program,
                           const std::vector<NodeDescription>& nodes)
{
    std::string commands;
    std::string options = bashRow("-", joined({"-h", "--help", "--version"}));
    std::string values;
    std::string arguments;
    for (const CommandDescription& command : program.commands) {
        commands += (commands.empty() ? "" : " ") + command.name;
        std::string names;
        std::string places;
        for (const OptionDescription& option : command.options) {
            if (option.isArgument)
                places += (places.empty() ? "" : " ") + kindName(option);
            else
                names += (names.empty() ? "" : " ") + joined(option.names);
            if (!option.isArgument && !option.value.empty())
                values += bashRow(command.name + " " + option.names.back(), kindAndChoices(option));
        }
        options += bashRow(command.name, names);
        arguments += bashRow(command.name, places);
    }
    return filledIn(
        script, "_ovisto_cli_commands=" + word(commands) + "\n" +
                    "# Of each command, what it takes; of each option with a value, what that is.\n" +
                    "declare -gA _ovisto_cli_options=(\n" + options + ")\n" + "declare -gA _ovisto_cli_values=(\n" +
                    values + ")\n" + "declare -gA _ovisto_cli_arguments=(\n" + arguments + ")\n" +
                    "# The nodes that can be (s)et, (d)eleted and (a)dded.\n" + nodeTable("_ovisto_cli_nodes", nodes));
}

std::string zshCompletion(const std::string& script, const ProgramDescription& program,
                          const std::vector<NodeDescription>& nodes)
{
    std::string commands = "_ovisto_cli_commands=(\n";
    std::string cases = "_ovisto_cli_arguments() {\n    case $1 in\n";
    for (const CommandDescription& command : program.commands) {
        commands += "    " + word(command.name + ":" + zshText(command.text)) + "\n";
        cases += "    " + command.name + ")\n        _arguments -S";
        int place = 0;
        for (const OptionDescription& option : command.options)
            cases += " \\\n            " + zshArgument(option, option.isArgument ? ++place : 0, command.name);
        cases += "\n        ;;\n";
    }
    return filledIn(script,
                    commands + ")\n" +
                        nodeTable("# The nodes that can be (s)et, (d)eleted and (a)dded.\n_ovisto_cli_table", nodes) +
                        "\n" + cases + "    esac\n}\n");
}

std::string fishCompletion(const std::string& script, const ProgramDescription& program,
                           const std::vector<NodeDescription>& nodes)
{
    std::string withValues;
    std::string lines;
    for (const OptionDescription& option : program.program.options)
        lines += fishOption("__ovisto_cli_at ''", option);
    for (const CommandDescription& command : program.commands) {
        lines += "\ncomplete -c ovisto-cli -n \"__ovisto_cli_at ''\" -a " + command.name + " -d " +
                 fishWord(command.text) + "\n";
        int place = 0;
        for (const OptionDescription& option : command.options) {
            lines += option.isArgument ? fishArgument(command.name, option, ++place)
                                       : fishOption("__ovisto_cli_at " + command.name, option);
            if (!option.isArgument && !option.value.empty() &&
                withValues.find(option.names.back() + " ") == std::string::npos)
                withValues += option.names.back() + " ";
        }
    }
    std::string table = "# The nodes that can be (s)et, (d)eleted and (a)dded.\nset -g __ovisto_cli_table";
    for (const NodeDescription& node : nodes)
        table += " \\\n    " + fishWord(usesOf(node) + " " + node.path + "\t" + node.label);
    return filledIn(script, "set -g __ovisto_cli_with_value " + withValues + "\n\n" + table + "\n\n" + lines);
}

} // namespace ovisto
