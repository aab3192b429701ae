// SPDX-License-Identifier: MIT

#include "ui/App/Placement.h"

#include "ui/App/WindowFrame.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QSplitter>
#include <QStringList>
#include <QTreeView>
#include <QWidget>

#include <algorithm>

namespace ovisto {

namespace {

constexpr int kTwips = 15;    // a logical pixel
constexpr int kMaximized = 4; // where a setting says so
constexpr int kMostPixels = 1 << 20;

/// The whole numbers joined by "," in `text`; none at all when one of them is none.
QList<int> numbers(const QString& text)
{
    QList<int> result;
    for (const QString& part : text.split(QLatin1Char(','))) {
        bool isNumber = false;
        result.append(part.trimmed().toInt(&isNumber));
        if (!isNumber)
            return {};
    }
    return result;
}

QString joined(const QList<int>& numbers)
{
    QStringList parts;
    for (const int number : numbers)
        parts.append(QString::number(number));
    return parts.join(QLatin1Char(','));
}

int area(const QRect& rectangle)
{
    return rectangle.isEmpty() ? 0 : rectangle.width() * rectangle.height();
}

/// `count` sizes in pixels, as stored under `key`.
QList<int> sizesLoad(const Settings& settings, const QString& key, qsizetype count, const QString& whenMissing)
{
    const QList<int> sizes = numbers(settings.GetSetting(key, whenMissing));
    constexpr int kMostShown = 100'000; // pixels, more than any screen has
    const auto isSize = [](int size) { return size > 0 && size < kMostShown; };
    const bool sensible = sizes.size() == count && std::ranges::all_of(sizes, isSize);
    return sensible ? sizes : numbers(whenMissing);
}

} // namespace

bool fillsScreen(const QWidget& window)
{
    return window.isMaximized() || window.isFullScreen() || window.isMinimized();
}

std::optional<QRect> placement(const QString& text)
{
    const QList<int> twips = numbers(text);
    if (twips.size() < 4)
        return std::nullopt;
    const QRect place(twips[0] / kTwips, twips[1] / kTwips, twips[2] / kTwips, twips[3] / kTwips);
    if (place.isEmpty() || std::max(place.width(), place.height()) > kMostPixels)
        return std::nullopt;
    return place;
}

QRect movedOnto(const QList<QRect>& screens, const QRect& place)
{
    const auto shown = [&](const QRect& screen) { return area(screen.intersected(place)); };
    const auto screen = std::ranges::max_element(screens, {}, shown);
    if (screen == screens.end())
        return place;
    QRect moved(place.topLeft(), place.size().boundedTo(screen->size()));
    moved.moveRight(std::min(moved.right(), screen->right()));
    moved.moveBottom(std::min(moved.bottom(), screen->bottom()));
    moved.moveLeft(std::max(moved.left(), screen->left()));
    moved.moveTop(std::max(moved.top(), screen->top()));
    return moved;
}

void PlacementLoad(QWidget& window, const Settings& settings, const QString& key, const QString& whenMissing)
{
    const QString text = settings.GetSetting(key, whenMissing);
    auto place = placement(text);
    if (!place)
        place = placement(whenMissing);
    if (!place)
        return;
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    const QRect moved = movedOnto(screens, *place);
    window.resize(moved.size());
    window.move(moved.topLeft());
    if (numbers(text).value(kMaximized) == 1)
        window.setWindowState(Qt::WindowMaximized);
    new WindowFrame(window);
}

void PlacementSave(const QWidget& window, Settings& settings, const QString& key)
{
    QRect place(window.pos(), window.size());
    if (fillsScreen(window) && window.normalGeometry().isValid()) {
        // The normal place is given without the frame, and asked for with it.
        const auto* frame = window.findChild<WindowFrame*>();
        const QMargins margins = frame != nullptr ? frame->margins() : QMargins();
        place = window.normalGeometry().translated(-margins.left(), -margins.top());
    }
    QList<int> twips = {place.x() * kTwips, place.y() * kTwips, place.width() * kTwips, place.height() * kTwips};
    if (window.isMaximized())
        twips.append(1);
    settings.SaveSetting(key, joined(twips));
}

void splitterLoad(QSplitter& splitter, const Settings& settings, const QString& whenMissing)
{
    splitter.setSizes(sizesLoad(settings, splitter.objectName(), splitter.count(), whenMissing));
}

void splitterSave(const QSplitter& splitter, Settings& settings)
{
    settings.SaveSetting(splitter.objectName(), joined(splitter.sizes()));
}

void columnsLoad(QTreeView& tree, const Settings& settings, const QString& whenMissing)
{
    const QList<int> sizes = sizesLoad(settings, tree.objectName(), tree.header()->count() - 1, whenMissing);
    for (int column = 0; column < sizes.size(); ++column)
        tree.setColumnWidth(column, sizes[column]);
}

void columnsSave(const QTreeView& tree, Settings& settings)
{
    QList<int> sizes;
    for (int column = 0; column < tree.header()->count() - 1; ++column)
        sizes.append(tree.columnWidth(column));
    settings.SaveSetting(tree.objectName(), joined(sizes));
}

} // namespace ovisto
