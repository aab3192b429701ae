// SPDX-License-Identifier: MIT

#include "ui_AboutForm.h"
#include "ui_BatchForm.h"
#include "ui_BrowserCapForm.h"
#include "ui_ControlForm.h"
#include "ui_NodeAddForm.h"
#include "ui_PrivateForm.h"
#include "ui_ProgressForm.h"
#include "ui_SlideForm.h"
#include "ui_SlideShowOptionForm.h"

#include <QAccessible>
#include <QTest>

namespace ovisto::test {

namespace {

using namespace Qt::StringLiterals;

/// Calls `check` with every control of a form of the program.
template <class Check> void forEachControl(Check&& check)
{
    const auto controls = [&]<class Form, class Widget>(Form form, Widget window) {
        form.setupUi(&window);
        for (QWidget* control : window.template findChildren<QWidget*>())
            check(*control);
    };
    controls(Ui::ControlForm(), QMainWindow());
    controls(Ui::AboutForm(), QDialog());
    controls(Ui::BatchForm(), QDialog());
    controls(Ui::BrowserCapForm(), QDialog());
    controls(Ui::NodeAddForm(), QDialog());
    controls(Ui::PrivateForm(), QDialog());
    controls(Ui::ProgressForm(), QDialog());
    controls(Ui::SlideForm(), QWidget());
    controls(Ui::SlideShowOptionForm(), QDialog());
}

class AccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsAloudWhatALabelSays()
    {
        int labels = 0;
        forEachControl([&](QWidget& control) {
            auto* label = qobject_cast<QLabel*>(&control);
            if (label == nullptr || label->objectName() == "SaveWarning"_L1) // a sign
                return;
            ++labels;
            label->setText(u"24 mm"_s);
            const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(label);
            QVERIFY2(reader->text(QAccessible::Name).contains(u"24 mm"_s), qPrintable(label->objectName()));
        });
        QVERIFY(labels > 10);
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::AccessTest)
#include "AccessTest.moc"
