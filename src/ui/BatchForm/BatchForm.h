// SPDX-License-Identifier: MIT

#pragma once

#include "document/NodeChange.h"
#include "document/TagDictionary.h"
#include "ui/App/Dialogs.h"
#include "ui/App/FoundFiles.h"
#include "ui_BatchForm.h"

#include <QDialog>

#include <functional>
#include <vector>

namespace ovisto {

/// Lets a change to one node be chosen that is made to all files listed.
class BatchForm : public QDialog {
    Q_OBJECT

public:
    /// How the files will be read, which a menu may change as long as the form is open.
    using ReadingNow = std::function<Reading()>;

    /// With `technical`, technical nodes are offered too. `files` are those to be changed. They, `dialogs` and the
    /// dictionary must outlive the form.
    BatchForm(const TagDictionary& Merovel, bool technical, ReadingNow reading, const FoundFiles& files,
              Dialogs& dialogs, QWidget* owner);

Q_SIGNALS:
    /// The person wants this change made.
    void started(const ovisto::NodeChange& change);

private:
    void showFileCount();
    void offerStart();
    NodeChange change() const;
    void start();

    Ui::BatchForm ui;
    ReadingNow m_reading;
    const FoundFiles& m_files;
    Dialogs& m_dialogs;
    std::vector<DictionaryEntry> m_entries; ///< the entries in NodeList, by row
};

} // namespace ovisto
