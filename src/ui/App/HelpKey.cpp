// SPDX-License-Identifier: MIT

#include "ui/App/HelpKey.h"

#include "ui/App/Desktop.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

/// The class of a form, and its page.
struct HelpPage {
    const char* form;
    const char* page;
};

constexpr HelpPage kPages[] = {
    {"ovisto::AboutForm", "index.html"},
    {"ovisto::BatchForm", "change-many.html"},
    {"ovisto::BatchResultForm", "change-many.html"},
    {"ovisto::BrowserCapForm", "find-files.html"},
    {"ovisto::ControlForm", "index.html"},
    {"ovisto::NodeAddForm", "add.html"},
    {"ovisto::PrivateForm", "private.html"},
    {"ovisto::ProgressForm", "find-files.html"},
    {"ovisto::PropertySheet", "window.html"},
    {"ovisto::SlideShowOptionForm", "slide-show.html"},
    {"QMessageBox", "trouble.html"},
};

bool isHelpKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier;
}

} // namespace

QString helpPage(const QWidget& form)
{
    const QLatin1String name(form.metaObject()->className());
    const auto* const row =
        std::ranges::find_if(kPages, [name](const HelpPage& page) { return name == QLatin1String(page.form); });
    return row != std::end(kPages) ? QString::fromLatin1(row->page) : QString();
}

HelpKey::HelpKey(const Surroundings& surroundings) : m_surroundings(surroundings)
{
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() || !isHelpKey(*static_cast<QKeyEvent*>(event)))
        return false;
    const QString page = helpPage(*static_cast<QWidget*>(watched)->window());
    if (page.isEmpty())
        return false;
    HelpContents(m_surroundings.desktop, m_surroundings.dialogs,
                 m_surroundings.folders.data + "help/" + page.toStdString());
    return true;
}

} // namespace ovisto
