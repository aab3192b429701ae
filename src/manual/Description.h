// SPDX-License-Identifier: MIT

#pragma once

#include "document/TagDictionary.h"

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace ovisto {

/// What can stand at a place of a command line.
enum class ValueKind { Text, File, Folder, Photograph, StyleSheet, XmlFile, NodePath, Choice, Choices };

/// An option or an argument of a command.
struct OptionDescription {
    std::vector<std::string> names;   ///< "-h", "--help"; of an argument only its name
    std::string value;                ///< what stands for the value in the help; empty for an option without one
    std::string text;                 ///< what --help says
    ValueKind kind = ValueKind::Text; ///< of the value or argument
    std::vector<std::string> choices; ///< of a Choice, and of Choices, which have commas between them
    bool isArgument = false;
    bool isRequired = false; ///< as an argument
    bool isRepeated = false;
    bool isCommon = false; ///< all commands have it
};

/// What --help says of a command, or of a program without commands.
struct CommandDescription {
    std::string name;
    std::string text;    ///< one sentence without a full stop
    std::string details; ///< paragraphs; see HelpTopic
    std::vector<OptionDescription> options;

    std::vector<OptionDescription> arguments() const;
    /// The arguments as usage lines show them: NODEPATH VALUE FILE...
    std::string usage() const;
};

/// A program with its commands.
struct ProgramDescription {
    CommandDescription program;
    std::vector<CommandDescription> commands;
};

/// The program that `app` describes, as declareCommands() made it. Raises an error for an option whose value is of no
/// known kind, so that a new one is given its row.
ProgramDescription describe(CLI::App& app);

/// The program whose --help is `help`, as Qt writes it.
ProgramDescription describeWindow(std::string_view help);

/// A node of the tag dictionary that commands can be asked for.
struct NodeDescription {
    std::string path;
    std::string label; ///< with that of its parent where other directories have the same
    bool canBeSet = false;
    bool canBeDeleted = false;
    bool canBeAdded = false;
};

std::vector<NodeDescription> describeNodes(const TagDictionary& dictionary);

} // namespace ovisto
