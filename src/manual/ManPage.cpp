// SPDX-License-Identifier: MIT

#include "manual/ManPage.h"

#include "cli/HelpText.h"
#include "common/text/Splitting.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace ovisto {

namespace {

/// `text` with the characters that man(7) gives a meaning to as they are: quotation marks and hyphens can be copied to
/// a shell.
std::string plain(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        switch (character) {
        case '\\':
            escaped += "\\e";
            break;
        case '-':
            escaped += "\\-";
            break;
        case '\'':
            escaped += "\\(aq";
            break;
        case '"':
            escaped += "\\(dq";
            break;
        case '`':
            escaped += "\\(ga";
            break;
        case '^':
            escaped += "\\(ha";
            break;
        case '~':
            escaped += "\\(ti";
            break;
        default:
            escaped += character;
        }
    }
    return escaped.starts_with('.') ? "\\&" + escaped : escaped;
}

std::string bold(std::string_view text)
{
    return "\\fB" + plain(text) + "\\fR";
}

std::string italic(std::string_view text)
{
    return "\\fI" + plain(text) + "\\fR";
}

/// A page, written from the top down.
class Page {
public:
    Page(const std::string& name, const ManualFacts& facts)
    {
        line(".\\\" SPDX-License-Identifier: MIT");
        line(".\\\" Made from the options of the program; do not edit.");
        std::string title = name;
        std::ranges::transform(title, title.begin(),
                               [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
        line(".TH " + plain(title) + " 1 " + facts.date + R"( "Ovisto )" + facts.version + R"(" "User Commands")");
        line(".ad l");
    }

    void line(const std::string& text) { m_text += text + "\n"; }

    /// Text that man fills, in lines as short as those that people write.
    void filled(std::string_view text)
    {
        constexpr std::size_t kColumns = 80;
        std::size_t column = 0;
        for (const std::string_view word : split(text, ' ')) {
            if (column > 0 && column + 1 + word.size() > kColumns) {
                m_text += word.starts_with('.') ? "\n\\&" : "\n";
                column = 0;
            } else if (column > 0) {
                m_text += ' ';
                ++column;
            }
            m_text += word;
            column += word.size();
        }
        m_text += '\n';
    }

    void section(std::string name)
    {
        std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
        line(".SH \"" + name + "\"");
        m_isStart = true;
    }

    void subsection(const std::string& name)
    {
        line(".SS \"" + name + "\"");
        m_isStart = true;
    }

    /// One paragraph, already escaped.
    void paragraph(const std::string& text)
    {
        if (!m_isStart)
            line(".PP");
        m_isStart = false;
        filled(text);
    }

    void row(const std::string& name, const std::string& text)
    {
        line(".TP");
        line(name);
        filled(text);
        m_isStart = false;
    }

    /// The paragraphs of a text for the help, and its lines that stay as they are.
    void paragraphs(std::string_view text)
    {
        bool isLiteral = false;
        bool isWaiting = false; // an empty line ends a paragraph, but not what stays as it is
        for (const std::string_view each : split(text, '\n')) {
            const bool isLiteralLine = each.starts_with("  ");
            if (isLiteral && !isLiteralLine && !each.empty()) {
                line(".EE");
                line(".RE");
                isLiteral = false;
            }
            if (each.empty()) {
                isWaiting = true;
                continue;
            }
            if (isLiteralLine && !isLiteral) {
                if (!m_isStart)
                    line(".PP");
                line(".RS 4");
                line(".EX");
                isLiteral = true;
            } else if (isLiteralLine && isWaiting) {
                line("");
            }
            if (isLiteralLine)
                line(plain(each.substr(2)));
            else
                paragraph(plain(each));
            isWaiting = false;
            m_isStart = false;
        }
        if (isLiteral) {
            line(".EE");
            line(".RE");
        }
    }

    enum class Shown { Arguments, OwnOptions, CommonOptions };

    void options(const std::vector<OptionDescription>& options, Shown shown)
    {
        for (const OptionDescription& option : options) {
            if ((shown == Shown::Arguments) != option.isArgument || (shown == Shown::CommonOptions) != option.isCommon)
                continue;
            std::string names;
            for (const std::string& name : option.names)
                names += (names.empty() ? "" : ", ") + (option.isArgument ? italic(name) : bold(name));
            if (!option.isArgument && !option.value.empty())
                names += " " + italic(option.value);
            row(names, plain(sentence(option.text)));
        }
    }

    /// With the full stop that the help leaves out.
    static std::string sentence(const std::string& text) { return text.ends_with('.') ? text : text + "."; }

    const std::string& text() const { return m_text; }

private:
    std::string m_text;
    bool m_isStart = true; ///< of a section
};

/// The nodes that people ask for most.
constexpr std::string_view kCommonNodes[] = {
    "/JPEG/Exif[@id='FFE1']/IFD[@id='010E']",
    "/JPEG/Exif[@id='FFE1']/IFD[@id='013B']",
    "/JPEG/Exif[@id='FFE1']/IFD[@id='8298']",
    "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']",
    "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9C']",
    "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9D']",
    "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9E']",
    "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9F']",
    "/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='9003']",
    "/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='9286']",
    "/JPEG/Exif[@id='FFE1']/IFDG",
    "/JPEG/Exif[@id='FFE1']/IFD1",
};

void commonNodes(Page& page, const std::vector<NodeDescription>& nodes)
{
    for (const std::string_view path : kCommonNodes) {
        const auto node = std::ranges::find(nodes, path, &NodeDescription::path);
        if (node != nodes.end())
            page.row(bold(path), plain(node->label) + ".");
    }
}

void synopsis(Page& page, const ProgramDescription& program)
{
    page.section("Synopsis");
    for (const CommandDescription& command : program.commands) {
        page.line(bold(program.program.name + " " + command.name) + " [" + italic("OPTIONS") + "]" +
                  plain(command.usage()));
        page.line(".br");
    }
    page.line(bold(program.program.name) + " " + bold("--help") + "|" + bold("--version"));
}

} // namespace

std::string commandManual(const ProgramDescription& program, const std::vector<NodeDescription>& nodes,
                          const ManualFacts& facts)
{
    Page page(program.program.name, facts);
    page.section("Name");
    page.line("ovisto\\-cli \\- show, export and change the metadata of JPEG files");
    synopsis(page, program);
    page.section("Description");
    page.paragraph(plain(program.program.text));
    page.paragraph(plain(
        "A save changes what was edited where it stands and copies everything else byte for byte; the picture is never "
        "compressed again. It either replaces the old file with a complete new one or leaves it as it was."));
    page.paragraph(plain("Output keeps the order of the input, whatever --jobs is. A terminal gets a progress bar on "
                         "standard error."));
    page.section("Options");
    page.options(program.program.options, Page::Shown::OwnOptions);
    page.section("Commands");
    page.line("Each command has these options and those of the next section.");
    for (const CommandDescription& command : program.commands) {
        page.subsection(plain(program.program.name + " " + command.name) + " [OPTIONS]" + plain(command.usage()));
        page.paragraph(plain(Page::sentence(command.text)));
        page.options(command.options, Page::Shown::Arguments);
        page.options(command.options, Page::Shown::OwnOptions);
        page.paragraphs(command.details);
    }
    page.section(kCommonOptions);
    page.options(program.commands.front().options, Page::Shown::CommonOptions);
    page.paragraphs("\nAfter an interruption or a failure, --files-from with the list that --failed-to wrote does the "
                    "rest; both may be the same file. The list is written whole at the end of a run, even of an "
                    "interrupted one, or it stays as it was: when a run was killed or could not begin, all its files "
                    "are still to be done. For find, a folder must have been searched to its end.");
    for (const HelpTopic& topic : helpTopics()) {
        page.section(topic.heading);
        page.paragraphs(topic.text);
        if (std::string_view(topic.heading) == "Node paths")
            commonNodes(page, nodes);
    }
    page.section("Files");
    page.row(italic(facts.dataFolder + "/Merovel.xml"),
             "The tag dictionary: every node that the program knows, with an explanation and what its values mean.");
    page.row(italic(facts.dataFolder + "/reports/"), "The style sheets that come with the program.");
    page.row(italic("FILE") + "\\fI.XML\\fR", "What " + bold("export") + " writes.");
    page.row(italic("FILE") + "\\fI.original\\fR",
             "The file as it was before the first save with " + bold("--rebuild") + ".");
    page.row(italic("~FILE"), "A new version that is not complete. One that an interrupted save left behind is deleted "
                              "by the next save of the file.");
    page.section("See also");
    page.line(".BR ovisto (1),\n.BR parallel (1),\n.BR xsltproc (1)");
    return page.text();
}

std::string windowManual(const ProgramDescription& program, const ManualFacts& facts)
{
    const CommandDescription& window = program.program;
    Page page(window.name, facts);
    page.section("Name");
    page.line("ovisto \\- show and edit the metadata of JPEG files in a window");
    page.section("Synopsis");
    page.line(bold(window.name) + " [" + italic("OPTIONS") + "]" + plain(window.usage()));
    page.section("Description");
    page.paragraph(plain(window.text));
    page.paragraph(plain(
        "The window lists photographs, shows what is written inside them as a tree of properties, says what each value "
        "means, and edits, adds and deletes values, in one photograph or in many at once. It makes reports, shows "
        "slides, "
        "and takes away what tells of people and places."));
    page.paragraph(plain(
        "A save changes what was edited where it stands and copies everything else byte for byte; the picture is never "
        "compressed again. It either replaces the old file with a complete new one or leaves it as it was."));
    page.paragraph("F1 opens the handbook.");
    page.section("Options");
    page.options(window.options, Page::Shown::Arguments);
    page.options(window.options, Page::Shown::OwnOptions);
    page.section("Exit status");
    page.row(bold("0"), "The window was closed.");
    page.row(bold("1"), "Wrong usage, or the tag dictionary could not be read.");
    page.section("Files");
    page.row(italic(facts.dataFolder + "/"),
             "The tag dictionary, the style sheets, the list of keywords, the handbook.");
    page.row(italic("~/.config/Castelmar.conf"), "Your options. XDG_CONFIG_HOME moves it.");
    page.row(italic("~/.local/share/ovisto/"), "Reports, the keywords that you edited, and the thumbnail shown last. "
                                               "XDG_DATA_HOME moves it.");
    page.section("See also");
    page.line(".BR ovisto\\-cli (1)");
    return page.text();
}

} // namespace ovisto
