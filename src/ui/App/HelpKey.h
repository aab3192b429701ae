// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Surroundings.h"

#include <QObject>
#include <QString>

class QWidget;

namespace ovisto {

/// The handbook's page about a form, as the name of its file. Empty for a form that F1 means something else in.
QString helpPage(const QWidget& form);

/// Opens the handbook at the page of the form in front when F1 is pressed, in every form of the program.
class HelpKey : public QObject {
    Q_OBJECT

public:
    /// `surroundings` must outlive the object.
    explicit HelpKey(const Surroundings& surroundings);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const Surroundings& m_surroundings;
};

} // namespace ovisto
