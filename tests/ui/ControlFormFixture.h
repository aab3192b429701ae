// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"
#include "common/xml/XmlDocument.h"
#include "ui/App/Desktop.h"
#include "ui/App/Dialogs.h"
#include "ui/App/Settings.h"
#include "ui/ControlForm/ControlForm.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>

namespace ovisto::test {

/// A person who reads every message, and answers every question as told before.
class TestDialogs : public Dialogs {
public:
    QStringList messages; ///< messages and questions, as they came
    std::deque<bool> answers;
    std::deque<int> choices; ///< to questions with several answers
    std::optional<QString> file;

    void show(const QString& message) override { messages << message; }
    void showFailure(const QString& message, const QString& /*advice*/) override { messages << message; }
    void inform(const QString& message) override { messages << message; }
    bool ask(const QString& question) override;
    int choose(const QString& question, const QStringList& answers) override;
    std::optional<QString> chooseFile(const QString& /*title*/, const QString& /*folder*/,
                                      const QString& /*filter*/) override
    {
        return file;
    }

    /// What was said since the last time.
    QStringList taken() { return std::exchange(messages, {}); }
};

class TestDesktop : public Desktop {
public:
    QStringList done;
    bool canOpen = true;

    bool open(const std::string& path) override;
    void showProperties(const std::string& path, QWidget& owner) override;
};

/// The control of this name in `form`.
template <class Control> Control& controlOf(const QWidget& form, const char* name)
{
    auto* found = form.findChild<Control*>(QLatin1String(name));
    if (found == nullptr)
        qFatal("no %s", name);
    return *found;
}

/// The main window on copies of sample photographs, and a person before it.
class Window {
public:
    /// Opens the window with copies of these samples, where any are named.
    Window(std::initializer_list<const char*> samples = {});

    /// Puts a copy of a sample into the folder, under another name if wanted.
    std::string copy(const char* sample, const char* name = nullptr);
    std::string path(const char* name) const { return m_folder.filePath(QLatin1String(name)).toStdString(); }

    /// Opens the window, as a new run of the program would, with the files and folders `paths`.
    void open(const std::vector<std::string>& paths);
    /// The path of the tag dictionary of the forms made from now on.
    std::string dictionary = std::string(OVISTO_SOURCE_FOLDER) + "/data/Merovel.xml";
    /// The path of its texts in another language, if any.
    std::string dictionaryTexts;
    void close() { m_form.reset(); }
    ControlForm& form() { return *m_form; }
    std::unique_ptr<ControlForm> newForm();

    template <class Control> Control& control(const char* name) { return controlOf<Control>(*m_form, name); }
    void click(const char* button);
    void trigger(const char* menuItem);
    void type(const char* box, const QString& text);
    /// Selects the node and types its value, which is not left yet.
    void edit(const char* nodePath, const QString& text);
    /// Puts the focus into `box` and takes it away again.
    void visit(const char* box);
    QString text(const char* name);
    /// The texts of controls, the names separated by a blank, joined by "|".
    QString texts(const char* controls);
    bool isVisible(const char* name) { return control<QWidget>(name).isVisible(); }
    bool isEnabled(const char* name) { return control<QWidget>(name).isEnabled(); }
    QString title() { return m_form->windowTitle(); }

    /// The tree item with this node path; null when there is none.
    QTreeWidgetItem* item(const char* nodePath);
    void select(const char* nodePath);
    /// Clicks a row of the list of files.
    void selectFile(int row);
    int selectedFile();
    bool isChanged();
    /// The names of the files listed.
    QString listed();

    /// The folder of the photographs, and the one that the program writes to.
    QString folder() const { return m_folder.path(); }
    QString writable() const { return m_writable.path(); }
    Settings& settings() { return m_settings; }

    TestDialogs dialogs;
    TestDesktop desktop;

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_writable;
    Settings m_settings;
    std::unique_ptr<ControlForm> m_form;
};

/// Does `work` with the form that takes the input, once that is a `Form` which `isReady`.
template <class Form>
void whenOpen(
    std::function<void(Form&)> work, std::function<bool(Form&)> isReady = [](Form&) { return true; })
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, work, isReady] {
        auto* form = qobject_cast<Form*>(QApplication::activeModalWidget());
        if (form == nullptr || !isReady(*form))
            return;
        timer->stop();
        timer->deleteLater();
        work(*form);
    });
    timer->start(0);
}

/// The text of a node in a file; nothing when there is no such node.
std::optional<std::string> inFile(const std::string& path, const std::string& nodePath);

/// Sets the text of a node in a file.
void setInFile(const std::string& path, const std::string& nodePath, const std::string& text);

/// Lets every attempt to write the file at `path` fail, as long as the result lives.
[[nodiscard]] OutputFile blockSaving(const std::string& path);

/// The nodes that the tests look at.
inline constexpr const char* kDescription = "/JPEG/Exif[@id='FFE1']/IFD[@id='010E']";
inline constexpr const char* kExifIfd = "/JPEG/Exif[@id='FFE1']/IFDE";
inline constexpr const char* kThumbnailIfd = "/JPEG/Exif[@id='FFE1']/IFD1";
inline constexpr const char* kThumbnail = "/JPEG/Exif[@id='FFE1']/IFD1/THUM";
inline constexpr const char* kMakerNote = "/JPEG/Exif[@id='FFE1']/IFDE/MAKE";
inline constexpr const char* kTitle = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";
inline constexpr const char* kComments = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9C']";
inline constexpr const char* kKeywords = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9E']";
inline constexpr const char* kSubject = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9F']";
inline constexpr const char* kComment = "/JPEG/APP1[@id='FFFE']";

} // namespace ovisto::test
