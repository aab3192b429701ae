// SPDX-License-Identifier: MIT

#include "EveryForm.h"

#include "common/system/File.h"
#include "common/xml/XmlDocument.h"
#include "common/xml/XmlLoad.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QStatusBar>
#include <QStyleOptionButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTranslator>

#include <algorithm>
#include <optional>
#include <string>

namespace ovisto::test {

namespace {

using namespace Qt::StringLiterals;

/// `text` as a language with long words would have it, in brackets.
QString longer(const QString& text)
{
    const QString letters = QGuiApplication::isRightToLeft() ? u"אב ג"_s : u"äö ü"_s;
    const QString more = letters.repeated(text.size() / 10 + 1);
    return u'⟦' + more.left((text.size() * 2 + 4) / 5) + text + u'⟧';
}

class LongerTexts : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* source, const char* /*remark*/,
                      int /*number*/) const override
    {
        return *source == '\0' ? QString() : longer(QString::fromUtf8(source));
    }
};

/// The tag dictionary with longer texts, in `folder`. Returns its path.
std::string longerDictionary(const QTemporaryDir& folder)
{
    const std::string source = std::string(OVISTO_SOURCE_FOLDER) + "/data/Merovel.xml";
    XmlDocument dictionary;
    XMLLoad(dictionary, source);
    for (XmlNode node : dictionary.selectNodes("//*")) {
        for (const char* name : {"label", "help", "text"}) {
            const QString text = QString::fromStdString(node.attribute(name));
            if (!text.isEmpty())
                node.setAttribute(name, longer(text).toStdString());
        }
    }
    const std::string path = folder.filePath(u"Merovel.xml"_s).toStdString();
    writeTextFile(path, dictionary.xml());
    return path;
}

QString nameOf(const QWidget& control)
{
    return control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                          : control.objectName();
}

/// Controls with texts that are values, paths or names of files; `column` of a tree only, unless it is -1.
struct ValueControl {
    const char* name;
    int column = -1;
};

constexpr ValueControl kValueControls[] = {
    {"FilesFoundList"},
    {"KeywordList"},
    {"NodeTree", 1},
    {"PropertyValue"},
};

bool showsValues(const QWidget& control, int column = -1)
{
    return std::ranges::any_of(kValueControls, [&](const ValueControl& values) {
        return control.objectName() == QLatin1String(values.name) && (values.column < 0 || values.column == column);
    });
}

/// What of a text is not in brackets, but for paths, names of files and the name of the program.
QString fixedPart(QString text)
{
    static const QRegularExpression inner(u"⟦[^⟦⟧]*⟧"_s);
    static const QRegularExpression path(
        u"^.* -- \\d+X\\d+ -- .*$|(^|\\s|\")/[^\"⟦⟧\\n]*|\\S+\\.(jpg|jpeg|xml)\\b|\\bOvisto\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression letters(u"\\p{L}.*\\p{L}"_s, QRegularExpression::DotMatchesEverythingOption);
    if (Qt::mightBeRichText(text)) {
        QTextDocument document;
        document.setHtml(text);
        text = document.toPlainText();
    }
    text.remove(u'&').remove(u'\u2066').remove(u'\u2069');
    while (text.contains(inner))
        text.remove(inner);
    return letters.match(text.remove(path)).captured();
}

/// Whether a path or a size would be turned round in a line that runs from right to left.
bool isOutOfOrder(QString text)
{
    static const QRegularExpression kept(u"\u2066[^\u2069]*\u2069"_s);
    static const QRegularExpression loose(u"(^|[^\\w/<])/\\w|\\dX\\d"_s);
    return loose.match(text.remove(kept)).hasMatch();
}

class Texts {
public:
    explicit Texts(QStringList& faults) : m_faults(faults) {}

    void check(const QWidget& control, const QString& text, const char* what)
    {
        ++seen;
        // A label of Qt goes by its first letter, what is painted here by the window.
        const bool goesByWindow = control.inherits("QAbstractItemView") || control.inherits("ovisto::PathLabel") ||
                                  control.inherits("ovisto::CaptionLine");
        if (QGuiApplication::isRightToLeft() && (text.isRightToLeft() || goesByWindow) && isOutOfOrder(text))
            m_faults << u"%1 %2 is out of order: %3"_s.arg(nameOf(control), QLatin1String(what), text);
        const QString part = fixedPart(text);
        if (!part.isEmpty())
            m_faults << u"%1 %2 is not translated: %3"_s.arg(nameOf(control), QLatin1String(what), part);
    }

    int seen = 0;

private:
    QStringList& m_faults;
};

void checkItems(const QAbstractItemView& view, Texts& texts, const QModelIndex& parent = {})
{
    const QAbstractItemModel& model = *view.model();
    if (qobject_cast<const QFileSystemModel*>(&model) != nullptr)
        return;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            if (!showsValues(view, column))
                texts.check(view, index.data().toString(), "item");
            if (column == 0)
                checkItems(view, texts, index);
        }
    }
}

void checkHeader(const QHeaderView& header, Texts& texts, QStringList& faults)
{
    if (header.orientation() != Qt::Horizontal || qobject_cast<const QFileSystemModel*>(header.model()) != nullptr)
        return;
    for (int section = 0; section < header.count(); ++section) {
        const QString title = header.model()->headerData(section, Qt::Horizontal).toString();
        texts.check(header, title, "header");
        if (header.sectionSizeHint(section) > header.sectionSize(section))
            faults << u"%1 cuts the header %2"_s.arg(nameOf(*header.parentWidget()), title);
    }
}

/// The texts of a control that can be seen, or heard.
void checkTexts(const QWidget& control, Texts& texts, QStringList& faults)
{
    texts.check(control, control.toolTip(), "tool tip");
    texts.check(control, control.statusTip(), "status tip");
    texts.check(control, control.accessibleName(), "name");
    texts.check(control, control.accessibleDescription(), "description");
    for (const QAction* action : control.actions()) {
        texts.check(control, action->text(), "action");
        texts.check(control, action->statusTip(), "status tip");
    }
    if (const auto* header = qobject_cast<const QHeaderView*>(&control)) {
        if (header->isVisible())
            checkHeader(*header, texts, faults);
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&control)) {
        if (view->model() != nullptr)
            checkItems(*view, texts);
    }
    if (showsValues(control))
        return;
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        texts.check(control, label->text(), "text");
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        texts.check(control, button->text(), "text");
    if (const auto* box = qobject_cast<const QGroupBox*>(&control))
        texts.check(control, box->title(), "title");
    if (const auto* line = qobject_cast<const QLineEdit*>(&control))
        texts.check(control, line->placeholderText(), "placeholder");
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&control)) {
        texts.check(control, edit->placeholderText(), "placeholder");
        if (edit->isReadOnly())
            texts.check(control, edit->toPlainText(), "text");
    }
    if (const auto* menu = qobject_cast<const QMenu*>(&control))
        texts.check(control, menu->title(), "title");
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
        for (int item = 0; item < combo->count(); ++item)
            texts.check(control, combo->itemText(item), "item");
    }
}

/// The room that the text of a control needs; nothing for one that has none, or may lose its end.
std::optional<QSize> neededSize(const QWidget& control)
{
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        const bool isElided = label->inherits("ovisto::PathLabel") || label->inherits("ovisto::CaptionLine");
        if (isElided || label->text().isEmpty())
            return std::nullopt;
        if (!label->wordWrap())
            return label->sizeHint();
        return QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width()));
    }
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    if (button != nullptr && !button->text().isEmpty()) {
        // Short texts get wide push buttons, as long as there is room.
        if (qobject_cast<const QPushButton*>(button) == nullptr)
            return button->sizeHint();
        constexpr int kFrame = 6;
        const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        return QSize(text.width() + kFrame, button->sizeHint().height());
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&control))
        return QSize(box->fontMetrics().size(Qt::TextShowMnemonic, box->title()).width(), 0);
    if (const auto* line = qobject_cast<const QLineEdit*>(&control)) {
        constexpr int kMargin = 4;
        return QSize(line->fontMetrics().horizontalAdvance(line->placeholderText()) + kMargin, 0);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return combo->sizeAdjustPolicy() == QComboBox::AdjustToMinimumContentsLengthWithIcon ? QSize()
                                                                                             : combo->sizeHint();
    return std::nullopt;
}

bool holdsControls(const QWidget& parent)
{
    return !parent.inherits("QAbstractScrollArea") && !parent.inherits("QComboBox") && !parent.inherits("QLineEdit") &&
           !parent.inherits("QMenu") && !parent.inherits("QMenuBar") && !parent.inherits("QScrollBar") &&
           parent.objectName() != "qt_scrollarea_viewport"_L1;
}

/// Where controls have no room: their texts are cut, or they lie over each other.
void checkRoom(const QWidget& form, QStringList& faults)
{
    QList<const QWidget*> all{&form};
    for (const QWidget* control : form.findChildren<const QWidget*>())
        all << control;
    for (const QWidget* control : all) {
        if (!control->isVisible() || (control->isWindow() && control != &form))
            continue;
        if (const auto needed = neededSize(*control);
            needed && (needed->width() > control->width() || needed->height() > control->height())) {
            faults << u"%1 is cut: it has %2x%3 and needs %4x%5"_s.arg(nameOf(*control))
                          .arg(control->width())
                          .arg(control->height())
                          .arg(needed->width())
                          .arg(needed->height());
        }
        if (control->objectName() == "qt_menubar_ext_button"_L1)
            faults << u"The menu bar is cut"_s;
        if (!holdsControls(*control))
            continue;
        QList<const QWidget*> inside;
        for (const QWidget* child : control->findChildren<const QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (child->isVisible() && !child->isWindow() && !child->inherits("QSizeGrip"))
                inside << child;
        }
        for (const QWidget* child : inside) {
            // From right to left, Qt puts the panes of a splitter one pixel too far.
            const bool isPane = control->inherits("QSplitter");
            const QRect place = child->geometry().adjusted(0, 0, isPane ? -1 : 0, 0);
            if (!control->rect().contains(place))
                faults << u"%1 is outside of %2"_s.arg(nameOf(*child), nameOf(*control));
            for (const QWidget* other : inside) {
                if (child != other && place.left() <= other->geometry().left() && place.intersects(other->geometry()))
                    faults << u"%1 and %2 lie over each other"_s.arg(nameOf(*child), nameOf(*other));
            }
        }
    }
}

class PseudoLanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void translatesEveryTextAndHasRoomForIt_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("from left to right") << Qt::LeftToRight;
        QTest::newRow("from right to left") << Qt::RightToLeft;
    }

    void translatesEveryTextAndHasRoomForIt()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QGuiApplication::setLayoutDirection(direction);
        QGuiApplication::setApplicationDisplayName(u"Ovisto"_s);
        LongerTexts translator;
        QCoreApplication::installTranslator(&translator);
        const QTemporaryDir folder;
        QStringList faults;
        Texts texts(faults);
        forEveryForm(
            [&](const QString& name, QWidget& form) {
                const qsizetype before = faults.size();
                for (int i = 0; i < 5; ++i)
                    QTest::qWait(0); // splitters pass on what their panes need
                texts.check(form, form.windowTitle(), "window title");
                checkTexts(form, texts, faults);
                for (const QWidget* control : form.findChildren<const QWidget*>())
                    checkTexts(*control, texts, faults);
                checkRoom(form, faults);
                for (qsizetype i = before; i < faults.size(); ++i)
                    faults[i].prepend(name + u": "_s);
            },
            longerDictionary(folder));
        faults.removeDuplicates();
        for (const QString& fault : faults)
            qWarning("%s", qPrintable(fault));
        QVERIFY(faults.isEmpty());
        QVERIFY(texts.seen > 1000);
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::PseudoLanguageTest)
#include "PseudoLanguageTest.moc"
