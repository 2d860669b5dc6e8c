// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/legibletext.h>

#include <colormath/contrast.h>
#include <colormath/oklch.h>

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <optional>
#include <vector>

namespace
{

// Of WCAG 2.1: levels AA and AAA, and what is asked of things that are no text.
const double normalRatio = 4.5;
const double highRatio = 7;
const double disabledRatio = 3;

// The picture that a painter paints into; nothing if it is none, as for a printer. A copy of a picture
// that is painted into is a deep one, and one for each text would be too many.
struct PictureBelow {
    explicit PictureBelow(const QPainter &painter)
    {
        const QPaintDevice *device = painter.paintEngine()->paintDevice();
        if (device->devType() == QInternal::Image)
            image = static_cast<const QImage *>(device);
        if (device->devType() == QInternal::Pixmap)
            ofPixmap = static_cast<const QPixmap *>(device)->toImage();
    }

    QImage ofPixmap; // shares its pixels with the pixmap
    const QImage *image = &ofPixmap;
};

struct Share {
    QRgb color;
    int count;
};

/*
 * The colour that a text is to stand out from: the one that most of the ground has. What else there
 * is may be a frame, an icon or the text before. A ground without such a colour is taken for one if
 * its colours are as good as alike, such as a gradient; a picture has none.
 */
std::optional<QColor> commonColor(const std::vector<QRgb> &pixels)
{
    std::vector<Share> shares;
    for (const QRgb pixel : pixels) {
        const auto it = std::find_if(shares.begin(), shares.end(), [=](const Share &share) {
            return qAbs(qRed(share.color) - qRed(pixel)) <= 4
                && qAbs(qGreen(share.color) - qGreen(pixel)) <= 4
                && qAbs(qBlue(share.color) - qBlue(pixel)) <= 4;
        });
        if (it == shares.end())
            shares.push_back({pixel, 1});
        else
            ++it->count;
    }
    if (shares.empty())
        return std::nullopt;
    const auto most =
        std::max_element(shares.begin(), shares.end(), [](const Share &left, const Share &right) {
            return left.count < right.count;
        });
    const QColor color(most->color);
    if (most->count * 2 > int(pixels.size()))
        return color;
    const bool isAlike = std::all_of(shares.begin(), shares.end(), [&](const Share &share) {
        return ColorMath::contrastRatio(QColor(share.color), color) < 1.3;
    });
    return isAlike ? std::optional<QColor>(color) : std::nullopt;
}

std::optional<QColor> groundBelow(const QPainter &painter, const QRectF &rect)
{
    const PictureBelow below(painter);
    const QImage &picture = *below.image;
    QRectF seen = rect;
    if (painter.hasClipping())
        seen &= painter.clipBoundingRect();
    const QRect area = painter.deviceTransform().mapRect(seen).toAlignedRect() & picture.rect();
    if (area.isEmpty())
        return std::nullopt;
    const int columns = qMin(area.width(), 24);
    const int rows = qMin(area.height(), 7);
    std::vector<QRgb> pixels;
    const size_t count = size_t(columns) * size_t(rows);
    pixels.reserve(count);
    for (int row = 0; row < rows; ++row) {
        const int y = area.top() + (2 * row + 1) * area.height() / (2 * rows);
        for (int column = 0; column < columns; ++column) {
            const QRgb pixel =
                picture.pixel(area.left() + (2 * column + 1) * area.width() / (2 * columns), y);
            if (qAlpha(pixel) == 255)
                pixels.push_back(pixel);
        }
    }
    // What is translucent gets its ground later, where it cannot be seen from here.
    if (pixels.size() * 2 < count)
        return std::nullopt;
    return commonColor(pixels);
}

bool isDisabledColor(const QWidget &widget, const QColor &color)
{
    if (!widget.isEnabled())
        return true;
    for (const QPalette &palette : {widget.palette(), QApplication::palette()}) {
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            if (palette.color(QPalette::Disabled, role) == color
                && palette.color(QPalette::Active, role) != color)
                return true;
        }
    }
    return false;
}

// Disabled text of these classes is etched: a light copy of it lies below, a pixel aside.
bool isEtched(const QWidget &widget, const QColor &color)
{
    const bool mayBe = !widget.isEnabled() || widget.inherits("QMenu")
        || widget.inherits("QMenuBar") || widget.inherits("QTabBar");
    return mayBe && color == widget.palette().color(QPalette::Light);
}

/*
 * The contrast that a text is lifted to. A colour says something and keeps its strength with the least;
 * a grey that was chosen for paper says how important the text is, so black comes out as white.
 */
double targetRatio(const QColor &color, const QColor &ground, double least)
{
    if (ColorMath::toOklch(color).chroma > 0.03)
        return least;
    const bool isDark = ColorMath::relativeLuminance(ground) < 0.18;
    const double onPaper = ColorMath::contrastRatio(color, isDark ? Qt::white : Qt::black);
    const double asText = ColorMath::contrastRatio(
        QApplication::palette().color(isDark ? QPalette::Text : QPalette::WindowText), ground);
    return qMax(least, qMin(onPaper, asText));
}

} // namespace

LegibleText::LegibleText()
    : m_ratio(normalRatio)
    , m_forwarding(this)
{
}

void LegibleText::begin()
{
    m_forwarding.install();
}

void LegibleText::end()
{
    m_forwarding.uninstall();
    if (m_forwarding.widget())
        m_forwarding.setWhenPainted([this] { deleteLater(); });
    else
        delete this;
}

void LegibleText::setIsHighContrast(bool isHigh)
{
    m_ratio = isHigh ? highRatio : normalRatio;
    m_lifted.clear();
}

QColor LegibleText::textColor(const QPainter &painter, const QRectF &rect, const QColor &color)
{
    const int faint = 40; // meant to be a trace at most, or fading
    if (color.alpha() < faint || painter.opacity() < 1
        || painter.compositionMode() != QPainter::CompositionMode_SourceOver)
        return color;
    if (isEtched(*m_forwarding.widget(), color))
        return color;
    const std::optional<QColor> ground = groundBelow(painter, rect);
    if (!ground)
        return color;
    const bool isDisabled = isDisabledColor(*m_forwarding.widget(), color);
    const double ratio = isDisabled ? disabledRatio : m_ratio;
    if (ColorMath::contrastRatio(color, *ground) >= ratio)
        return color;

    if (m_lifted.size() > 1000)
        m_lifted.clear();
    const quint64 key = quint64(color.rgba()) << 32 | (ground->rgb() & 0xffffff) << 1
        | quint64(isDisabled); // the ground's alpha leaves room
    const auto it = m_lifted.constFind(key);
    if (it != m_lifted.cend())
        return *it;
    const double target = isDisabled ? ratio : targetRatio(color, *ground, ratio);
    return *m_lifted.insert(key, ColorMath::liftedToContrast(color, *ground, target));
}
