// SPDX-License-Identifier: MIT

#include "ui/App/GapKeys.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>

#include <algorithm>
#include <utility>

namespace ovisto {

namespace {

constexpr int kStep = 16;     // pixels that a key moves a gap
constexpr int kLongStep = 64; // pixels

QString gapName(Qt::Orientation direction, const QString& part)
{
    return direction == Qt::Horizontal ? QCoreApplication::translate("GapKeys", "Width: %1").arg(part)
                                       : QCoreApplication::translate("GapKeys", "Height: %1").arg(part);
}

/// The gap before the part of `splitter` with this index.
Gap splitterGap(QSplitter& splitter, int index)
{
    const auto size = [&splitter, index] { return splitter.sizes().value(index - 1); };
    const auto both = [&splitter, index] { return splitter.sizes().value(index - 1) + splitter.sizes().value(index); };
    const auto place = [&splitter, index] {
        const QSplitterHandle& handle = *splitter.handle(index);
        return QRect(handle.mapTo(handle.window(), QPoint()), handle.size());
    };
    const auto move = [&splitter, index, both](int wanted) {
        QList<int> sizes = splitter.sizes();
        sizes[index] = both() - wanted;
        sizes[index - 1] = wanted;
        splitter.setSizes(sizes);
    };
    return {gapName(splitter.orientation(), splitter.widget(index - 1)->accessibleName()),
            splitter.orientation(),
            place,
            size,
            both,
            move};
}

/// The gap after a column.
Gap columnGap(QHeaderView& header, int column)
{
    constexpr int kWidth = 5; // pixels of the mark
    const auto place = [&header, column] {
        const bool isMirrored = header.isRightToLeft();
        const int end = header.sectionViewportPosition(column) + (isMirrored ? 0 : header.sectionSize(column));
        return QRect(header.mapTo(header.window(), QPoint(end - kWidth / 2, 0)), QSize(kWidth, header.height()));
    };
    return {
        gapName(Qt::Horizontal, header.model()->headerData(column, Qt::Horizontal).toString()),
        Qt::Horizontal,
        place,
        [&header, column] { return header.sectionSize(column); },
        [&header] { return header.width(); },
        [&header, column](int wanted) { header.resizeSection(column, std::max(wanted, header.minimumSectionSize())); }};
}

} // namespace

std::vector<Gap> gapsOf(QWidget& window)
{
    std::vector<Gap> gaps;
    for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
        for (int index = 1; index < splitter->count(); ++index) {
            if (splitter->handle(index)->isVisible())
                gaps.push_back(splitterGap(*splitter, index));
        }
    }
    for (QHeaderView* header : window.findChildren<QHeaderView*>()) {
        for (int column = 0; header->isVisible() && column + 1 < header->count(); ++column) {
            if (header->sectionResizeMode(column) == QHeaderView::Interactive)
                gaps.push_back(columnGap(*header, column));
        }
    }
    std::ranges::sort(gaps, {}, [](const Gap& gap) { return std::pair(gap.place().x(), gap.place().y()); });
    return gaps;
}

GapMark::GapMark(QWidget& window) : QAbstractSlider(&window), m_gap{}
{
    setObjectName(QStringLiteral("GapMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleDescription(tr("Arrow keys move the gap, F8 goes to the next one, Esc goes back"));
    setSingleStep(kStep);
    setPageStep(kLongStep);
    connect(this, &QAbstractSlider::valueChanged, this, &GapMark::move);
    hide();
}

void GapMark::standOn(const Gap& gap)
{
    m_gap = gap;
    setAccessibleName(gap.name);
    setOrientation(gap.direction);
    setInvertedControls(gap.direction == Qt::Vertical); // the key Up makes the part above smaller
    follow();
    show();
    raise();
    setFocus();
}

void GapMark::move()
{
    m_gap.move(value());
    // What is in the parts may not let them become that small.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    follow();
}

/// Goes where the gap is now.
void GapMark::follow()
{
    const QSignalBlocker moving(this);
    setRange(0, m_gap.largest());
    setValue(m_gap.size());
    setGeometry(m_gap.place());
}

/// Tab goes on from the control that had the focus before.
bool GapMark::focusNextPrevChild(bool /*next*/)
{
    Q_EMIT left();
    return true;
}

void GapMark::keyPressEvent(QKeyEvent* event)
{
    const bool isAcross = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    const bool isDown = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT left();
    else if (orientation() == Qt::Horizontal ? !isDown : !isAcross)
        QAbstractSlider::keyPressEvent(event);
}

void GapMark::focusOutEvent(QFocusEvent* event)
{
    const bool comesBack = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::MenuBarFocusReason;
    if (!comesBack)
        hide();
}

void GapMark::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), palette().highlight());
}

GapKeys::GapKeys(QWidget& window) : QObject(&window), m_window(window), m_mark(*new GapMark(window))
{
    connect(new QShortcut(Qt::Key_F8, &window), &QShortcut::activated, this, &GapKeys::next);
    connect(&m_mark, &GapMark::left, this, &GapKeys::leave);
    window.installEventFilter(this);
}

void GapKeys::next()
{
    if (!m_mark.hasFocus()) {
        m_before = m_window.focusWidget();
        m_next = 0;
    }
    const std::vector<Gap> gaps = gapsOf(m_window);
    if (m_next >= gaps.size())
        return leave();
    m_mark.standOn(gaps[m_next++]);
}

void GapKeys::leave()
{
    if (m_before)
        m_before->setFocus();
    m_mark.hide();
}

/// A window of another size has its gaps elsewhere.
bool GapKeys::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Resize && m_mark.hasFocus())
        leave();
    return false;
}

} // namespace ovisto
