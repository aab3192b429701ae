// SPDX-License-Identifier: MIT

#pragma once

#include "ui/PrivateForm/PrivateList.h"
#include "ui_PrivateForm.h"

#include <QDialog>

#include <cstddef>
#include <vector>

namespace ovisto {

/// Lists what a photograph tells of people and places, and lets findings be deleted. None is selected at first.
class PrivateForm : public QDialog {
    Q_OBJECT

public:
    /// `list` must outlive the form. Accepted when something was deleted.
    PrivateForm(PrivateList& list, QWidget* owner);

private:
    void showFindings();
    std::vector<std::size_t> selected() const;
    void selectAll();
    void deleteSelected();

    Ui::PrivateForm ui;
    PrivateList& m_list;
};

} // namespace ovisto
