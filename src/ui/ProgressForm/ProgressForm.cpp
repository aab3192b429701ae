// SPDX-License-Identifier: MIT

#include "ui/ProgressForm/ProgressForm.h"

#include "ui/App/Text.h"

#include <QCoreApplication>

#include <algorithm>

namespace ovisto {

ProgressForm::ProgressForm(QWidget* owner) : QDialog(owner)
{
    ui.setupUi(this);
    // Not the owner alone: a dialog beside this one must not change what the loop works on either.
    setWindowModality(Qt::ApplicationModal);
    connect(ui.ProcessCanceler, &QPushButton::clicked, this, &ProgressForm::reject);
}

bool ProgressForm::step(const std::string& path, std::size_t done, std::size_t total)
{
    if (isTooEarly())
        return !Canceled;
    ui.ProgressBar->setRange(0, static_cast<int>(std::max<std::size_t>(total, 1)));
    ui.ProgressBar->setValue(static_cast<int>(done));
    showPath(path);
    return !Canceled;
}

bool ProgressForm::enter(const std::string& folder)
{
    if (!isTooEarly())
        showPath(folder);
    return !Canceled;
}

bool ProgressForm::isTooEarly() const
{
    return m_shown.isValid() && m_shown.elapsed() < shortestShow;
}

void ProgressForm::showPath(const std::string& path)
{
    if (!isVisible())
        show();
    ui.Label1->setText(shownPath(path));
    QCoreApplication::processEvents();
    m_shown.start();
}

void ProgressForm::endOfFiles()
{
    hide();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

/// The dialog stays until the loop has come to its end, also when a person closes it.
void ProgressForm::reject()
{
    Canceled = true;
    ui.ProcessCanceler->setEnabled(false);
}

} // namespace ovisto
