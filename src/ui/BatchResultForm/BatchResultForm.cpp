// SPDX-License-Identifier: MIT

#include "ui/BatchResultForm/BatchResultForm.h"

#include "ui/App/GapKeys.h"

#include <QHeaderView>

namespace ovisto {

BatchResultForm::BatchResultForm(BatchResults& results, QWidget* owner) : QDialog(owner)
{
    ui.setupUi(this);
    new GapKeys(*this);
    ui.Summary->setText(results.summary());
    ui.ResultList->setModel(&results);
    ui.ResultList->setCurrentIndex(results.index(0, 0));
    ui.ResultList->header()->resizeSection(0, width() * 2 / 5);
    connect(ui.FailedKeeper, &QPushButton::clicked, this, &BatchResultForm::accept);
    connect(ui.FormCloser, &QPushButton::clicked, this, &BatchResultForm::reject);
}

} // namespace ovisto
