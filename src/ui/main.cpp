// SPDX-License-Identifier: MIT

#include "common/Libraries.h"
#include "common/system/Process.h"
#include "common/system/ProgramFolder.h"
#include "ui/App/Language.h"
#include "ui/App/MessageReporter.h"
#include "ui/App/ProgramIcon.h"
#include "ui/App/Settings.h"
#include "ui/App/SystemDialogs.h"
#include "ui/ControlForm/ControlForm.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>

#include <optional>
#include <string>
#include <vector>

namespace {

/// The tag dictionary, without which there is no program. Nothing when it cannot be loaded, which was reported.
std::optional<ovisto::TagDictionary> loadDictionary(const std::string& folder, const ovisto::Language& language,
                                                    ovisto::ErrorReporter& reporter)
{
    std::optional<ovisto::TagDictionary> Merovel;
    ovisto::attempt(reporter, "Merovel.xml", [&] { Merovel.emplace(folder + "Merovel.xml"); });
    const std::string texts = language.dictionaryTexts(folder);
    if (Merovel && !texts.empty())
        ovisto::attempt(reporter, texts, [&] { Merovel->setTexts(texts); });
    return Merovel;
}

/// The files and folders on the command line, as the system gave them: a name may hold bytes that are no UTF-8.
std::vector<std::string> pathsFrom(int argc, char** argv)
{
    std::vector<std::string> paths;
    bool onlyPaths = false;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--" && !onlyPaths)
            onlyPaths = true;
        else if (onlyPaths || !argument.starts_with('-'))
            paths.push_back(argument);
    }
    return paths;
}

} // namespace

int main(int argc, char** argv)
{
    ovisto::occupyStandardStreams();
    ovisto::outliveFileSizeLimit();
    QApplication application(argc, argv); // takes its own options out of argv
    QApplication::setApplicationName(QStringLiteral("Ovisto"));
    QApplication::setApplicationVersion(QString::fromLatin1(ovisto::programVersion()));
    QApplication::setDesktopFileName(QStringLiteral("org.castelmar.ovisto"));

    const ovisto::Language language(QLocale::system().uiLanguages());
    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate("main", "Shows and edits the metadata of JPEG files."));
    parser.addPositionalArgument(QStringLiteral("FILE|FOLDER"),
                                 QApplication::translate("main", "Photographs to list, and folders of them"),
                                 QStringLiteral("[FILE|FOLDER...]"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);

    ovisto::SystemDialogs dialogs;
    ovisto::MessageReporter reporter(dialogs);
    const ovisto::ProgramFolders folders = ovisto::ProgramFolder();
    QApplication::setWindowIcon(ovisto::programIcon(folders.data));
    auto Merovel = loadDictionary(folders.data, language, reporter);
    if (!Merovel)
        return 1;
    ovisto::SystemDesktop desktop;
    ovisto::Settings settings;
    ovisto::ControlForm form(std::move(*Merovel), {dialogs, desktop, settings, folders});
    if (!form.start(pathsFrom(argc, argv)))
        return 0;
    return QApplication::exec();
}
