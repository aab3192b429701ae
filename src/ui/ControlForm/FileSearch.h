// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/LocaleWords.h"
#include "ui/App/ScanSettings.h"
#include "ui/ControlForm/Editor.h"
#include "ui/ControlForm/NamedFiles.h"
#include "ui/ControlForm/WindowParts.h"

#include <string>
#include <vector>

namespace ovisto {

class ScanReports;

/// Finds the files for the list, and shows the first one.
class FileSearch {
public:
    FileSearch(const WindowParts& parts, Editor& editor) : m_parts(parts), m_editor(editor) {}

    /// What to look for, as last chosen.
    ScanSettings settings;

    /// What the user is asked for first.
    enum class Start { Folder, Words };

    /// Lets the user choose a folder, and lists the files in it. Returns false if the user cancels.
    bool findFiles(Start start = Start::Folder);
    /// Lists the files in a folder searched before, whatever they contain. It is the newest one from now on.
    void openRecent(const QString& folder);
    /// Lists the named files, and those in the named folders, whatever they contain.
    void findFilesAmong(const std::vector<std::string>& names);

private:
    ValueTexts values() const;
    void scanFolder();
    void clearList();
    void listFiles(NamedFiles files, const ScanReports& reports);

    const WindowParts& m_parts;
    Editor& m_editor;
    LocaleWords m_words;
};

} // namespace ovisto
