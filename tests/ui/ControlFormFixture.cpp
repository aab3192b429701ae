// SPDX-License-Identifier: MIT

#include "ControlFormFixture.h"

#include "../support/RecordingReporter.h"
#include "collection/DocumentLoad.h"
#include "common/system/FileNames.h"
#include "writer/JpegDocument.h"

#include <QFile>
#include <QLineEdit>

#include <filesystem>
#include <utility>

namespace ovisto::test {

using namespace Qt::StringLiterals;

namespace {

const QString kSource = QStringLiteral(OVISTO_SOURCE_FOLDER);

} // namespace

namespace {

template <class Answer> Answer next(std::deque<Answer>& answers, const QString& question)
{
    if (answers.empty())
        qFatal("unexpected question: %s", qPrintable(question));
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

} // namespace

bool TestDialogs::ask(const QString& question)
{
    messages << question;
    return next(answers, question);
}

int TestDialogs::choose(const QString& question, const QStringList& /*answers*/)
{
    messages << question;
    return next(choices, question);
}

bool TestDesktop::open(const std::string& path)
{
    done << u"open "_s + QString::fromStdString(path);
    return canOpen;
}

void TestDesktop::showProperties(const std::string& path, QWidget& /*owner*/)
{
    done << u"properties "_s + QString::fromStdString(path);
}

Window::Window(std::initializer_list<const char*> samples) : m_settings(m_writable.filePath(u"settings.ini"_s))
{
    std::vector<std::string> paths;
    for (const char* sample : samples)
        paths.push_back(copy(sample));
    if (!paths.empty())
        open(paths);
}

std::string Window::copy(const char* sample, const char* name)
{
    std::string target = path(name != nullptr ? name : sample);
    QFile::copy(kSource + u"/samples/"_s + QLatin1String(sample), QString::fromStdString(target));
    return target;
}

std::unique_ptr<ControlForm> Window::newForm()
{
    const std::string data = (kSource + u"/data/"_s).toStdString();
    const std::string writable = (m_writable.path() + u'/').toStdString();
    TagDictionary Merovel(dictionary);
    if (!dictionaryTexts.empty())
        Merovel.setTexts(dictionaryTexts);
    return std::make_unique<ControlForm>(std::move(Merovel),
                                         Surroundings{dialogs, desktop, m_settings, {data, writable}});
}

void Window::open(const std::vector<std::string>& paths)
{
    m_form = newForm();
    m_form->start(paths);
    m_form->activateWindow();
    if (!QTest::qWaitForWindowActive(m_form.get()))
        qFatal("the window does not come to the front");
}

void Window::click(const char* button)
{
    QTest::mouseClick(&control<QAbstractButton>(button), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void Window::trigger(const char* menuItem)
{
    control<QAction>(menuItem).trigger();
}

void Window::type(const char* box, const QString& text)
{
    auto& widget = control<QWidget>(box);
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(&widget, Qt::Key_Delete);
    for (const QChar character : text)
        QTest::keyClick(&widget, character == u'\n' ? '\r' : character.toLatin1());
}

void Window::edit(const char* nodePath, const QString& text)
{
    select(nodePath);
    type("NodeText", text);
}

void Window::visit(const char* box)
{
    control<QWidget>(box).setFocus();
    control<QWidget>("FileFinder").setFocus();
}

QString Window::text(const char* name)
{
    auto& widget = control<QWidget>(name);
    if (auto* label = qobject_cast<QLabel*>(&widget))
        return label->text();
    return boxText(widget);
}

QString Window::texts(const char* controls)
{
    QStringList texts;
    for (const QByteArray& name : QByteArray(controls).split(' '))
        texts << text(name);
    return texts.join(u'|');
}

QTreeWidgetItem* Window::item(const char* nodePath)
{
    for (QTreeWidgetItemIterator at(&control<QTreeWidget>("NodeTree")); *at != nullptr; ++at) {
        if ((*at)->data(0, Qt::UserRole + 1).toString() == QLatin1String(nodePath))
            return *at;
    }
    return nullptr;
}

void Window::select(const char* nodePath)
{
    auto& tree = control<QTreeWidget>("NodeTree");
    QTreeWidgetItem* found = item(nodePath);
    if (found == nullptr)
        qFatal("no item %s", nodePath);
    tree.scrollToItem(found);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(found).center());
}

void Window::selectFile(int row)
{
    auto& list = control<QListView>("FilesFoundList");
    const QModelIndex index = list.model()->index(row, 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
    QCoreApplication::processEvents();
}

int Window::selectedFile()
{
    const auto selected = control<QListView>("FilesFoundList").selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

bool Window::isChanged()
{
    return control<QLabel>("SaveWarning").isVisible();
}

QString Window::listed()
{
    QStringList names;
    const auto* list = control<QListView>("FilesFoundList").model();
    for (int row = 0; row < list->rowCount(); ++row)
        names << list->index(row, 0).data().toString().section(u'/', -1);
    return names.join(u' ');
}

std::optional<std::string> inFile(const std::string& path, const std::string& nodePath)
{
    XmlDocument document = loadDocument(path);
    const XmlNode node = document.selectSingleNode(nodePath);
    return node ? std::optional(node.text()) : std::nullopt;
}

void setInFile(const std::string& path, const std::string& nodePath, const std::string& text)
{
    XmlDocument document = loadDocument(path);
    document.selectSingleNode(nodePath).setText(text);
    RecordingReporter reporter;
    JpegDocument(reporter, documentReader(Reading::Basic)).WriteJpeg(document, path);
}

OutputFile blockSaving(const std::string& path)
{
    return OutputFile(temporaryName(path));
}

} // namespace ovisto::test
