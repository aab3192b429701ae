// SPDX-License-Identifier: MIT

#include "EveryForm.h"

#include <QAccessible>
#include <QLabel>
#include <QTest>

namespace ovisto::test {

namespace {

using namespace Qt::StringLiterals;

class AccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsAloudWhatALabelSays()
    {
        int labels = 0;
        forEveryForm([&](const QString& name, QWidget& form) {
            for (QLabel* label : form.findChildren<QLabel*>()) {
                if (label->objectName() == "SaveWarning"_L1) // a sign
                    continue;
                ++labels;
                label->setText(u"24 mm"_s);
                const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(label);
                QVERIFY2(reader->text(QAccessible::Name).contains(u"24 mm"_s),
                         qPrintable(name + u' ' + label->objectName()));
            }
        });
        QVERIFY(labels > 10);
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::AccessTest)
#include "AccessTest.moc"
