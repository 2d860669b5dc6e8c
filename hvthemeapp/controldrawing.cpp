// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "controldrawing.h"

#include "iconcolors.h"
#include "themedicon.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QSlider>
#include <QStyle>
#include <QStyleOption>
#include <QTreeView>
#include <QtMath>

namespace HV
{

namespace
{

constexpr double dialSpan = 300; // degrees that a dial leaves open at its foot
constexpr int closestMarks = 3;
constexpr int markLength = 4;
constexpr int sectionMargin = 8;

/*! Of what divides or frames without being a control. */
QColor lineColor()
{
    return IconColors::color(QStringLiteral("SliderGrooveBackgroundColor"), QIcon::Normal);
}

/*! From 0 to 1, clockwise. */
double dialFraction(const QStyleOptionSlider &option)
{
    const double range = option.maximum - double(option.minimum);
    if (range <= 0)
        return option.dialWrapping ? 0 : 0.5;
    const double done = (option.sliderPosition - double(option.minimum)) / range;
    return option.upsideDown ? done : 1 - done;
}

/*! In degrees against the clock from three o'clock, as Qt's painter counts. */
double dialAngle(const QStyleOptionSlider &option, double fraction)
{
    return option.dialWrapping ? 270 - 360 * fraction : 90 + dialSpan / 2 - dialSpan * fraction;
}

QPointF onCircle(const QPointF &centre, double radius, double angle)
{
    const double turn = qDegreesToRadians(angle);
    return centre + QPointF(radius * qCos(turn), -radius * qSin(turn));
}

void drawNotches(const QStyleOptionSlider &option, QPainter &painter, const QPointF &centre,
                 double radius)
{
    const double range = option.maximum - double(option.minimum);
    const double step = qMax(1, option.tickInterval ? option.tickInterval : option.singleStep);
    if (range <= 0 || step / range * radius * qDegreesToRadians(dialSpan) < closestMarks)
        return;
    const int last = int(range / step);
    for (int mark = 0; mark <= last; ++mark) {
        const double angle = dialAngle(option, mark * step / range);
        painter.drawLine(onCircle(centre, radius - markLength, angle),
                         onCircle(centre, radius, angle));
    }
}

void drawMenuSeparator(const QStyleOptionMenuItem &option, QPainter &painter)
{
    const QRect area = option.rect.adjusted(sectionMargin, 0, -sectionMargin, 0);
    const QPalette &palette = option.palette;
    int left = area.left();
    int right = area.right();
    painter.save();
    if (!option.text.isEmpty()) {
        const bool isMirrored = option.direction == Qt::RightToLeft;
        painter.setFont(option.font);
        painter.setPen(palette.color(QPalette::Active, QPalette::WindowText));
        const int width = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width();
        painter.drawText(area,
                         Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine
                             | Qt::AlignAbsolute | (isMirrored ? Qt::AlignRight : Qt::AlignLeft),
                         option.text);
        (isMirrored ? right : left) += (isMirrored ? -1 : 1) * (width + sectionMargin);
    }
    painter.setPen(lineColor());
    if (left < right)
        painter.drawLine(left, area.center().y(), right, area.center().y());
    painter.restore();
}

} // namespace

void drawDial(const QStyleOptionSlider &option, QPainter &painter)
{
    const QPalette &palette = option.palette;
    const bool isEnabled = (option.state & QStyle::State_Enabled) != 0;
    const bool hasNotches = (option.subControls & QStyle::SC_DialTickmarks) != 0;
    const QPointF centre = QRectF(option.rect).center();
    const double outer = qMin(option.rect.width(), option.rect.height()) / 2.0 - 1;
    const double radius = outer - (hasNotches ? markLength + 2 : 0);
    if (radius < 4)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasNotches) {
        painter.setPen(QPen(palette.color(QPalette::PlaceholderText), 1));
        drawNotches(option, painter, centre, outer);
    }

    const double track = qBound(2.0, radius / 8, 5.0);
    const double groove = radius - track / 2;
    const QRectF circle(centre.x() - groove, centre.y() - groove, 2 * groove, 2 * groove);
    const double start = dialAngle(option, 0);
    const double here = dialAngle(option, dialFraction(option));
    const auto arc = [&](const QColor &color, double from, double to) {
        painter.setPen(QPen(color, track, Qt::SolidLine, Qt::FlatCap));
        painter.drawArc(circle, qRound(from * 16), qRound((to - from) * 16));
    };
    arc(palette.color(QPalette::Light), start, dialAngle(option, 1));
    if (isEnabled)
        arc(palette.color(QPalette::Link), start, here);

    const bool hasFocus = option.state & QStyle::State_HasFocus && isEnabled;
    const double face = groove - track / 2 - 3;
    painter.setPen(
        QPen(palette.color(hasFocus ? QPalette::Link : QPalette::Light), hasFocus ? 2 : 1));
    painter.setBrush(palette.brush(QPalette::Button));
    painter.drawEllipse(centre, face, face);

    const double dot = qBound(1.5, radius / 9, 4.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.brush(QPalette::WindowText));
    painter.drawEllipse(onCircle(centre, face - dot - 3, here), dot, dot);
    painter.restore();
}

void drawTickMarks(const QStyle &style, const QSlider &slider, QPainter &painter)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.subControls = QStyle::SC_SliderHandle;
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.tickPosition = slider.tickPosition();
    const bool isUpright = option.orientation == Qt::Vertical;
    option.upsideDown = isUpright
        ? !slider.invertedAppearance()
        : slider.invertedAppearance() != (slider.layoutDirection() == Qt::RightToLeft);
    if (!isUpright) {
        option.state |= QStyle::State_Horizontal;
        option.direction = Qt::LeftToRight; // it is turned round already
    }
    const auto knobAt = [&](int value) {
        option.sliderPosition = option.sliderValue = value;
        return style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
    };
    const double range = double(option.maximum) - option.minimum;
    const QPoint way = knobAt(option.maximum).center() - knobAt(option.minimum).center();
    const auto isTooClose = [&](int step) {
        return range <= 0 || step <= 0 || way.manhattanLength() * step / range < closestMarks;
    };
    int step = slider.tickInterval();
    if (step <= 0)
        step = isTooClose(slider.singleStep()) ? slider.pageStep() : slider.singleStep();
    if (isTooClose(step))
        return;

    painter.save();
    painter.setPen(QPen(option.palette.color(QPalette::PlaceholderText), 1));
    for (qint64 value = option.minimum; value <= option.maximum; value += step) {
        const QRect knob = knobAt(int(value));
        if (isUpright) {
            const int y = knob.center().y();
            if (option.tickPosition & QSlider::TicksLeft)
                painter.drawLine(qMax(0, knob.left() - markLength - 1), y, knob.left() - 2, y);
            if (option.tickPosition & QSlider::TicksRight)
                painter.drawLine(knob.right() + 2, y,
                                 qMin(slider.width() - 1, knob.right() + markLength + 1), y);
        } else {
            const int x = knob.center().x();
            if (option.tickPosition & QSlider::TicksAbove)
                painter.drawLine(x, qMax(0, knob.top() - markLength - 1), x, knob.top() - 2);
            if (option.tickPosition & QSlider::TicksBelow)
                painter.drawLine(x, knob.bottom() + 2, x,
                                 qMin(slider.height() - 1, knob.bottom() + markLength + 1));
        }
    }
    painter.restore();
}

void drawUprightProgress(const QProgressBar &bar, QPainter &painter)
{
    QStyleOptionProgressBar option;
    option.initFrom(&bar);
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.progress = bar.value();
    option.invertedAppearance = bar.invertedAppearance();
    option.bottomToTop = bar.textDirection() == QProgressBar::BottomToTop;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    option.orientation = Qt::Vertical;
#endif
    bar.style()->drawControl(QStyle::CE_ProgressBar, &option, &painter, &bar);
    if (!bar.isTextVisible())
        return;

    painter.save();
    painter.translate(QRectF(bar.rect()).center());
    painter.rotate(option.bottomToTop ? -90 : 90);
    painter.setPen(bar.palette().color(bar.isEnabled() ? QPalette::Active : QPalette::Disabled,
                                       QPalette::WindowText));
    painter.setFont(bar.font());
    QRectF area(0, 0, bar.height(), bar.width());
    area.moveCenter(QPointF());
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, bar.text());
    painter.restore();
}

void drawMenuSeparators(const QMenu &menu, QPainter &painter)
{
    QStyleOptionMenuItem option;
    option.initFrom(&menu);
    option.font = menu.font();
    const auto actions = menu.actions();
    for (const QAction *action : actions) {
        option.rect = menu.actionGeometry(const_cast<QAction *>(action));
        option.text = action->text();
        if (action->isSeparator() && action->isVisible()
            && option.rect.height() == menuSeparatorHeight(option)) {
            painter.fillRect(option.rect, option.palette.brush(QPalette::Window));
            drawMenuSeparator(option, painter);
        }
    }
}

int menuSeparatorHeight(const QStyleOptionMenuItem &option)
{
    return option.text.isEmpty() ? 7 : option.fontMetrics.height() + 8;
}

void drawCategorySigns(const QTreeView &tree, QPainter &painter)
{
    constexpr int side = 12;
    const bool isMirrored = tree.isRightToLeft();
    const QModelIndex root = tree.rootIndex();
    for (int row = 0; row < tree.model()->rowCount(root); ++row) {
        const QModelIndex index = tree.model()->index(row, 0, root);
        const QRect place = tree.visualRect(index);
        if (place.isEmpty() || !tree.model()->hasChildren(index))
            continue;
        QRect area(0, 0, side, side);
        area.moveCenter(place.center());
        area.moveLeft(isMirrored ? place.right() - side - 2 : place.left() + 3);
        const QLatin1String name(tree.isExpanded(index) ? "down" : isMirrored ? "left" : "right");
        themedIcon(name).paint(&painter, area);
    }
}

bool isFlatFrame(const QStyleOptionFrame &option)
{
    const QPalette application = QApplication::palette();
    const bool isBevel = option.frameShape == QFrame::StyledPanel
        || option.state & (QStyle::State_Raised | QStyle::State_Sunken);
    return isBevel && option.frameShape != QFrame::NoFrame && option.lineWidth > 0
        && option.palette.color(QPalette::Dark) == application.color(QPalette::Dark)
        && option.palette.color(QPalette::Light) == application.color(QPalette::Light);
}

void drawFlatFrame(const QStyleOptionFrame &option, QPainter &painter)
{
    const QRect &area = option.rect;
    const int width = qMax(1, option.lineWidth);
    if (option.frameShape == QFrame::HLine) {
        painter.fillRect(area.left(), area.center().y() - (width - 1) / 2, area.width(), width,
                         lineColor());
    } else if (option.frameShape == QFrame::VLine) {
        painter.fillRect(area.center().x() - (width - 1) / 2, area.top(), width, area.height(),
                         lineColor());
    } else {
        painter.save();
        painter.setClipRegion(QRegion(area) - area.adjusted(width, width, -width, -width),
                              Qt::IntersectClip);
        painter.fillRect(area, lineColor());
        painter.restore();
    }
}

QPixmap disabledPixmap(const QPixmap &pixmap)
{
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int gray = qGray(line[x]);
            line[x] =
                qRgba(gray, gray, gray, qRound(qAlpha(line[x]) * IconColors::disabledOpacity));
        }
    }
    return QPixmap::fromImage(image);
}

void drawGrip(const QStyleOption &option, QPainter &painter)
{
    const QPoint centre = option.rect.center();
    painter.fillRect(option.rect, option.palette.color(QPalette::Button));
    painter.setPen(option.palette.color(QPalette::Light));
    for (const int x : {centre.x() - 1, centre.x() + 1})
        painter.drawLine(x, centre.y() - 3, x, centre.y() + 3);
}

void drawSizeGrip(const QStyleOptionSizeGrip &option, QPainter &painter)
{
    const bool isLeft = option.corner == Qt::TopLeftCorner || option.corner == Qt::BottomLeftCorner;
    const bool isTop = option.corner == Qt::TopLeftCorner || option.corner == Qt::TopRightCorner;
    const int side = qMin(16, qMin(option.rect.width(), option.rect.height()));
    painter.save();
    painter.translate(option.rect.center() + QPoint(1, 1));
    painter.scale(isLeft ? -1 : 1, isTop ? -1 : 1);
    themedIcon(QStringLiteral("size_grip"))
        .paint(&painter, QRect(-side / 2, -side / 2, side, side));
    painter.restore();
}

} // namespace HV
