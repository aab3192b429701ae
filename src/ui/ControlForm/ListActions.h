// SPDX-License-Identifier: MIT

#pragma once

#include "ui/ControlForm/Editor.h"
#include "ui/ControlForm/WindowParts.h"

#include <QObject>
#include <QPointer>

namespace ovisto {

class BatchForm;
class BatchResults;

/// What can be done with all files of the list: a batch, a report, a slide show.
class ListActions : public QObject {
    Q_OBJECT

public:
    ListActions(const WindowParts& parts, Editor& editor) : m_parts(parts), m_editor(editor) {}

    void showBatch();
    void generateReport();
    void showSlideShowOptions();

private:
    void runBatch(const NodeChange& change);
    void showResults(BatchResults& results);

    const WindowParts& m_parts;
    Editor& m_editor;
    QPointer<BatchForm> m_batch; ///< while it is open
};

} // namespace ovisto
