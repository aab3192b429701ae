#pragma once

#include "ui/App/ScanSettings.h"
#include "ui/ControlForm/Editor.h"
#include "ui/ControlForm/WindowParts.h"

#include <string>
#include <vector>

namespace ovisto {

class ScanReports;

/// Finds the files for the list, and shows the first one.
class FileSearch {
public:
    FileSearch(const WindowParts& parts, Editor& editor) : m_parts(parts), m_editor(editor) {}

    /// What is looked for, as it was chosen last.
    ScanSettings settings;

    /// Lets a folder be chosen, and lists the files in it. Returns false when the person cancels.
    bool findFiles();
    /// Lists the files named, and those in the folders named, whatever they contain.
    void findFilesAmong(const std::vector<std::string>& names);

private:
    void scanFolder();
    void clearList();
    void listFiles(std::vector<std::string> found, const ScanReports& reports);

    const WindowParts& m_parts;
    Editor& m_editor;
};

} // namespace ovisto
