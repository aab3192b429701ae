// SPDX-License-Identifier: MIT

#pragma once

#include "ui/BatchResultForm/BatchResults.h"
#include "ui_BatchResultForm.h"

#include <QDialog>

namespace ovisto {

/// Shows what became of the files of a batch. Accepted when only those that failed are to stay in the list.
class BatchResultForm : public QDialog {
    Q_OBJECT

public:
    /// `results` must outlive the form.
    BatchResultForm(BatchResults& results, QWidget* owner);

private:
    Ui::BatchResultForm ui;
};

} // namespace ovisto
