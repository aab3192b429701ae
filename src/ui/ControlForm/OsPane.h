// SPDX-License-Identifier: MIT

#pragma once

#include "ui/ControlForm/ShownFile.h"
#include "ui/ControlForm/WindowParts.h"

#include <QObject>
#include <QString>

#include <array>
#include <string>

namespace ovisto {

/// The properties that the operating system also shows (OSFrame): a box for each, and "Ditto".
class OsPane : public QObject {
    Q_OBJECT

public:
    OsPane(const WindowParts& parts, ShownFile& file);

    /// Fills the boxes with the properties of the file shown.
    void showTexts();
    void clear();
    /// Keeps what the boxes show for "Ditto".
    void keepTexts();

    /// Puts the caret into the box of the property at a node path. Returns false if it is none of these properties.
    bool focusBoxOf(const std::string& nodePath);

    /// Inserts a keyword into the Keywords box at the caret.
    void insertKeyword(const QString& keyword);

private:
    /// The box of a property, and where its previous text is kept for "Ditto".
    struct OsBox {
        OsProperty property;
        QWidget* box;
        QString* dittoText;
    };

    void leave(const OsBox& osBox);
    void ditto();

    Ui::ControlForm& ui;
    EditedBoxes& m_boxes;
    bool& ControlsUpdating;
    ShownFile& m_file;
    QString DittoTitle;
    QString DittoSubject;
    QString DittoComments;
    QString DittoKeywords;
    std::array<OsBox, 4> m_osBoxes; ///< in the order of "Ditto"
};

} // namespace ovisto
