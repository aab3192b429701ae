// SPDX-License-Identifier: MIT

#include "EveryForm.h"

#include "ui/App/HelpKey.h"
#include "ui/App/Language.h"
#include "ui/ProgressForm/ProgressForm.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTest>

#include <algorithm>

namespace ovisto::test {

namespace {

using namespace Qt::StringLiterals;

QString nameOf(const QWidget& control)
{
    return control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                          : control.objectName();
}

/// The controls that take input, but for those that Qt puts into its own.
QList<QWidget*> inputControls(const QWidget& form)
{
    QList<QWidget*> controls = form.findChildren<QWidget*>();
    controls.removeIf([](const QWidget* control) {
        return !control->isVisible() || control->focusPolicy() == Qt::NoFocus ||
               control->objectName().startsWith("qt_"_L1);
    });
    return controls;
}

/// What a screen reader cannot say of the form and its controls.
QStringList unheard(QWidget& form)
{
    constexpr QAccessible::Role kNoRoles[] = {QAccessible::NoRole, QAccessible::Client, QAccessible::Border};
    QStringList faults;
    if (QAccessible::queryAccessibleInterface(&form)->text(QAccessible::Name).isEmpty())
        faults << u"the form has no name"_s;
    for (QWidget* control : inputControls(form)) {
        const QAccessibleInterface& reader = *QAccessible::queryAccessibleInterface(control);
        if (reader.text(QAccessible::Name).isEmpty())
            faults << nameOf(*control) + u" has no name"_s;
        if (std::ranges::find(kNoRoles, reader.role()) != std::end(kNoRoles))
            faults << nameOf(*control) + u" has no role"_s;
        const bool isAnswer = qobject_cast<const QMessageBox*>(&form) != nullptr; // the text of the box describes it
        if (reader.text(QAccessible::Description).isEmpty() && !isAnswer)
            faults << nameOf(*control) + u" has no description"_s;
    }
    for (QLabel* label : form.findChildren<QLabel*>()) {
        const QString shown = label->text();
        label->setText(u"24 mm"_s);
        const bool isSign = label->objectName() == "SaveWarning"_L1;
        if (!isSign && !QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name).contains(u"24 mm"_s))
            faults << label->objectName() + u" is not read aloud"_s;
        label->setText(shown);
    }
    return faults;
}

QStringList duplicates(QList<QKeySequence> keys, const QString& where)
{
    QStringList faults;
    keys.removeAll(QKeySequence());
    std::ranges::sort(keys);
    for (qsizetype i = 1; i < keys.size(); ++i) {
        if (keys[i] == keys[i - 1])
            faults << where + u" has twice "_s + keys[i].toString();
    }
    return faults;
}

/// The keys that mean two things in the form, or in one of its menus.
QStringList ambiguousKeys(const QWidget& form)
{
    QStringList faults;
    QList<QKeySequence> keys;
    const auto addMnemonic = [&keys](const QString& text) { keys << QKeySequence::mnemonic(text); };
    for (const QWidget* control : form.findChildren<QWidget*>()) {
        if (const auto* button = qobject_cast<const QAbstractButton*>(control))
            addMnemonic(button->text());
        if (const auto* label = qobject_cast<const QLabel*>(control); label != nullptr && label->buddy() != nullptr)
            addMnemonic(label->text());
        if (const auto* box = qobject_cast<const QGroupBox*>(control))
            addMnemonic(box->title());
    }
    for (const auto* action : form.findChildren<QAction*>())
        keys << action->shortcuts();
    for (const auto* shortcut : form.findChildren<QShortcut*>()) {
        if (shortcut->context() == Qt::WindowShortcut)
            keys << shortcut->key();
    }
    for (const auto* bar : form.findChildren<QMenuBar*>()) {
        for (const QAction* menu : bar->actions())
            addMnemonic(menu->text());
    }
    faults << duplicates(keys, u"the form"_s);
    for (auto* menu : form.findChildren<QMenu*>()) {
        Q_EMIT menu->aboutToShow();
        keys.clear();
        for (const QAction* item : menu->actions())
            addMnemonic(item->text());
        faults << duplicates(keys, nameOf(*menu));
    }
    return faults;
}

/// Whether someone who reads the form meets `control` earlier than `other`: above it or, in the same line, before it.
bool isReadBefore(const QWidget& control, const QWidget& other)
{
    const auto place = [](const QWidget& of) { return QRect(of.mapTo(of.window(), QPoint()), of.size()); };
    const QRect first = place(control);
    const QRect second = place(other);
    if (first.bottom() < second.top())
        return first.left() <= second.right(); // not the top of the next column
    return first.top() <= second.bottom() && first.right() < second.left();
}

/// The controls that a key leads to, from the first one on and round to it.
QList<QWidget*> round(QWidget& form, QWidget& first, Qt::Key key)
{
    constexpr int kMost = 100;
    QList<QWidget*> reached{&first};
    first.setFocus();
    for (int pressed = 0; pressed < kMost; ++pressed) {
        QTest::keyClick(form.focusWidget(), key);
        QWidget* next = form.focusWidget();
        if (next == reached.last()) // a label goes from link to link
            continue;
        if (reached.contains(next))
            break;
        reached << next;
    }
    return reached;
}

/// Where the Tab key does not lead, or in no order.
QStringList unreached(QWidget& form)
{
    QList<QWidget*> controls = inputControls(form);
    controls.removeIf([](const QWidget* control) { return !control->isEnabled(); });
    // Of radio buttons, Tab leads to the one that is chosen, and arrow keys lead to the others.
    controls.removeIf([](const QWidget* control) {
        return control->inherits("QRadioButton") && !static_cast<const QAbstractButton*>(control)->isChecked();
    });
    if (controls.isEmpty())
        return {};
    QWidget* first = form.nextInFocusChain();
    while (!controls.contains(first))
        first = first->nextInFocusChain();
    QWidget* before = form.focusWidget();
    const QList<QWidget*> reached = round(form, *first, Qt::Key_Tab);
    QList<QWidget*> back = round(form, *first, Qt::Key_Backtab);
    if (before != nullptr)
        before->setFocus();
    QStringList faults;
    for (const QWidget* control : controls) {
        if (!reached.contains(control))
            faults << u"Tab does not lead to "_s + nameOf(*control);
    }
    std::reverse(back.begin() + 1, back.end());
    if (back != reached)
        faults << u"Shift+Tab does not go the same way back"_s;
    for (qsizetype i = 1; i < reached.size(); ++i) {
        if (isReadBefore(*reached[i], *reached[i - 1]))
            faults << u"%1 comes after %2"_s.arg(nameOf(*reached[i]), nameOf(*reached[i - 1]));
    }
    return faults;
}

/// What the Enter and Escape keys do not do in a dialog, which is closed by that.
QStringList unanswered(QWidget& form)
{
    if (qobject_cast<QDialog*>(&form) == nullptr)
        return {};
    QStringList faults;
    const auto buttons = form.findChildren<QPushButton*>();
    if (std::ranges::none_of(buttons, [](const auto* button) { return button->isVisible() && button->isDefault(); }))
        faults << u"no default button"_s;
    const auto* box = qobject_cast<const QMessageBox*>(&form);
    const bool hasToBeAnswered = box != nullptr && box->escapeButton() == nullptr && box->buttons().size() > 1;
    QTest::keyClick(&form, Qt::Key_Escape);
    const auto* progress = qobject_cast<const ProgressForm*>(&form); // which stays until the loop ends
    if (progress != nullptr ? !progress->Canceled : form.isVisible() && !hasToBeAnswered)
        faults << u"Escape does nothing"_s;
    return faults;
}

QStringList unhelped(const QWidget& form)
{
    const bool showsKeys = form.inherits("ovisto::SlideForm"); // for F1 as for any other key
    const QString page = helpPage(form);
    if (showsKeys || (!page.isEmpty() && QFile::exists(QStringLiteral(OVISTO_SOURCE_FOLDER) + u"/data/help/"_s + page)))
        return {};
    return {u"no page "_s + page};
}

class AccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void letsEveryFormBeUsedByKeysAndByEar_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* language : {"en", "de", "fr", "pl", "zh_CN"}) // each has keys of its own
            QTest::addRow("%s", language) << QString::fromLatin1(language);
    }

    void letsEveryFormBeUsedByKeysAndByEar()
    {
        QFETCH(const QString, language);
        const Language spoken({language});
        QCOMPARE(spoken.name(), language);
        qsizetype found = 0;
        QStringList forms = QDir(QStringLiteral(OVISTO_SOURCE_FOLDER) + u"/src/ui"_s).entryList({u"*Form"_s});
        forEveryForm([&](const QString& name, QWidget& form) {
            forms.removeAll(QString::fromLatin1(form.metaObject()->className()).section(u"::"_s, -1));
            QStringList faults = unheard(form);
            faults << ambiguousKeys(form) << unreached(form) << unhelped(form);
            faults << unanswered(form); // last, as it closes a dialog
            for (const QString& fault : faults)
                qWarning("%s: %s", qPrintable(name), qPrintable(fault));
            found += faults.size();
        });
        QCOMPARE(found, 0);
        QCOMPARE(forms, QStringList()); // all were there
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::AccessTest)
#include "AccessTest.moc"
