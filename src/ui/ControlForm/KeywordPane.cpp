// SPDX-License-Identifier: MIT

#include "ui/ControlForm/KeywordPane.h"

#include "collection/KeywordFile.h"
#include "ui/App/Text.h"

#include <QKeyEvent>

#include <vector>

namespace ovisto {

namespace {

bool isEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

KeywordPane::KeywordPane(const WindowParts& parts)
    : ui(parts.ui), m_surroundings(parts.surroundings), m_reporter(parts.reporter)
{
    connect(ui.KeywordLoader, &QPushButton::clicked, this, &KeywordPane::chooseFile);
    connect(ui.KeywordList, &QListWidget::itemClicked, this, &KeywordPane::chooseKeyword);
    ui.KeywordList->installEventFilter(this);
}

void KeywordPane::load(const std::string& path)
{
    std::vector<std::string> keywords;
    loadKeywords(path, keywords, m_reporter);
    if (keywords.empty()) // not even an empty one: there is no such file, and the list stays as it is
        return;
    ui.KeywordList->clear();
    for (const std::string& keyword : keywords)
        ui.KeywordList->addItem(toQString(keyword));
}

bool KeywordPane::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && isEnter(*static_cast<QKeyEvent*>(event))) {
        chooseKeyword();
        return true;
    }
    return leaveFilesToWindow(*event);
}

void KeywordPane::chooseFile()
{
    const auto path = m_surroundings.dialogs.chooseFile({}, pathText(m_surroundings.folders.data),
                                                        tr("*.TXT (*.TXT *.txt);;All Files (*)"));
    if (!path)
        return;
    m_surroundings.settings.SaveSetting(QStringLiteral("Keywords"), *path);
    load(toPath(*path));
}

void KeywordPane::chooseKeyword()
{
    if (const QListWidgetItem* keyword = ui.KeywordList->currentItem())
        Q_EMIT chosen(keyword->text());
}

} // namespace ovisto
