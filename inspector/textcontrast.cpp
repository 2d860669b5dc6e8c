// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspection.h>

#include <colormath/contrast.h>
#include <colormath/distance.h>

#include <QApplication>
#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>

namespace
{

// WCAG's 18 points, or 14 in bold.
constexpr double largePoints = 18;
constexpr double largeBoldPoints = 14;
constexpr int largestPicture = 4000;
constexpr int countedSide = 200; // of more only samples are counted

bool isLargeText(const QFont &font)
{
    const QFontInfo info(font);
    return info.pointSizeF() >= (font.bold() ? largeBoldPoints : largePoints);
}

bool isIconOnly(const QToolButton *button)
{
    if (button->icon().isNull() && button->arrowType() == Qt::NoArrow)
        return false; // Qt then shows the text all the same
    int shown = button->toolButtonStyle();
    if (shown == Qt::ToolButtonFollowStyle)
        shown = button->style()->styleHint(QStyle::SH_ToolButtonStyle, nullptr, button);
    return shown == Qt::ToolButtonIconOnly;
}

bool hasText(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QToolButton *>(widget);
        button && isIconOnly(button))
        return false;
    // These would put all of a long text together.
    if (const auto *edit = qobject_cast<const QPlainTextEdit *>(widget))
        return !edit->document()->isEmpty() || !edit->placeholderText().isEmpty();
    if (const auto *edit = qobject_cast<const QTextEdit *>(widget))
        return !edit->document()->isEmpty() || !edit->placeholderText().isEmpty();
    for (const char *property : {"text", "currentText", "title", "placeholderText"}) {
        if (!widget->property(property).toString().isEmpty())
            return true;
    }
    return false;
}

QColor textColor(const Inspection &inspection)
{
    const QWidget *widget = inspection.styledWidget;
    const InspectedValue *value = inspection.value(QStringLiteral("color"));
    const QColor told = value ? QColor(value->value) : QColor();
    return told.isValid() ? told : widget->palette().color(widget->foregroundRole());
}

QColor commonest(const QImage &whole)
{
    if (whole.isNull())
        return {};
    const QImage picture =
        whole.scaled(qMin(whole.width(), countedSide),
                     qMin(whole.height(), countedSide)); // takes pixels as they are
    QHash<QRgb, int> counts;
    QRgb best = 0;
    int most = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y)); // NOLINT
        for (int x = 0; x < picture.width(); ++x) {
            const int count = ++counts[line[x]];
            if (count <= most)
                continue;
            most = count;
            best = line[x];
        }
    }
    return QColor(best);
}

} // namespace

std::optional<TextContrast> textContrast(const Inspection &inspection, const QRect &rect,
                                         const InspectedSheet &sheet)
{
    QWidget *widget = inspection.styledWidget;
    if (!widget || (inspection.subControl.isEmpty() && !hasText(widget)))
        return {};
    const QRect part = (rect.isEmpty() ? widget->rect() : rect) & widget->rect();
    if (part.isEmpty() || part.width() > largestPicture || part.height() > largestPicture)
        return {};
    QWidget *window = widget->window();
    const QRect inWindow(widget->mapTo(window, part.topLeft()), part.size());
    const QImage picture = window->grab(inWindow).toImage().convertToFormat(QImage::Format_RGB32);
    TextContrast contrast;
    contrast.text = textColor(inspection);
    contrast.ground = commonest(picture);
    if (!contrast.ground.isValid())
        return {};
    contrast.isLarge = isLargeText(inspection.font);
    contrast.ratio = ColorMath::contrastRatio(contrast.text, contrast.ground);
    if (contrast.passes())
        return contrast;
    double nearest = 0;
    const auto entries = sheet.palette();
    for (const auto &entry : entries) {
        const double away =
            ColorMath::distance(ColorMath::toLab(contrast.text), ColorMath::toLab(entry.second));
        const bool isBetter = contrast.passingEntry.isEmpty() || away < nearest;
        if (isBetter
            && ColorMath::contrastRatio(entry.second, contrast.ground) >= contrast.wanted()) {
            contrast.passingEntry = entry.first;
            contrast.passingColor = entry.second;
            nearest = away;
        }
    }
    return contrast;
}
