// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "tinteddrawing.h"

#include "iconcolors.h"
#include "tintedsvg.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>

#include <utility>

namespace HV
{

namespace
{

const int largestSide = 1024;

void warnOnce(const QString &text)
{
    static QMutex mutex;
    static QSet<QString> told;
    {
        const QMutexLocker locker(&mutex);
        if (told.contains(text))
            return;
        told.insert(text);
    }
    qWarning("%ls", qUtf16Printable(text));
}

// A renderer with the tinted text; not valid if there is none, and then the user was told.
void load(QSvgRenderer &renderer, const QString &path, QIcon::Mode mode)
{
    TintedSvg svg;
    QFile file(path);
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // a pipe would be waited for
        svg.error = QStringLiteral("it is no file");
    else if (file.open(QIODevice::ReadOnly))
        svg = tintedSvg(file.read((1 << 20) + 1), mode); // one byte more than is allowed tells
    else
        svg.error = file.errorString();
    for (const QString &remark : qAsConst(svg.remarks))
        warnOnce(QLatin1Char('"') + path + QLatin1String("\": ") + remark);
    if (svg.error.isNull() && !renderer.load(svg.text))
        svg.error = QStringLiteral("it holds nothing that can be drawn");
    if (!svg.error.isNull())
        warnOnce(QLatin1Char('"') + path + QLatin1String("\" is not drawn as an icon: ")
                 + svg.error);
}

QSize declaredSize(const QSvgRenderer &renderer)
{
    const QSize size = renderer.defaultSize();
    if (!renderer.isValid() || size.isEmpty())
        return {20, 20};
    const QSize largest(largestSide, largestSide);
    return size.boundedTo(largest) == size ? size : size.scaled(largest, Qt::KeepAspectRatio);
}

void drawPlaceholder(QPainter &painter, const QRectF &area)
{
    const double inset = area.width() * 0.15;
    QPen pen(IconColors::ink(QIcon::Normal), qMax(1.0, area.width() / 20));
    pen.setDashPattern({2, 2});
    painter.setPen(pen);
    painter.drawRect(area.adjusted(inset, inset, -inset, -inset));
}

QImage draw(const QString &path, const QSize &size, QIcon::Mode mode, Qt::AspectRatioMode fit)
{
    QSvgRenderer renderer;
    load(renderer, path, mode);
    QRectF area(QPointF(), QSizeF(declaredSize(renderer)).scaled(size, fit));
    area.moveCenter(QRectF(QPointF(), size).center());

    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (renderer.isValid())
        renderer.render(&painter, area);
    else
        drawPlaceholder(painter, area);
    if (mode == QIcon::Disabled) { // as a whole: shapes that overlap would show through one another
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(image.rect(),
                         QColor(QRgba64::fromRgba64(
                             0, 0, 0, ushort(qRound(IconColors::disabledOpacity * 0xffff)))));
    }
    return image;
}

} // namespace

QString builtInDrawings()
{
    return QStringLiteral(":/hvthemeapp/icons/");
}

bool isDrawing(const QString &path)
{
    return path.endsWith(QLatin1String(".hvicon"), Qt::CaseInsensitive)
        || path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

// A style sheet asks for the size of each picture at each restyling, and an icon at each painting.
QSize drawingSize(const QString &path)
{
    static QMutex mutex;
    static QHash<QString, QSize> sizes;
    static int generation = 0;
    {
        const QMutexLocker locker(&mutex);
        // A file may have changed since the last look.
        const int current = IconColors::generation();
        if (std::exchange(generation, current) != current)
            sizes.clear();
        const auto it = sizes.constFind(path);
        if (it != sizes.cend())
            return *it;
    }
    QSvgRenderer renderer;
    load(renderer, path, QIcon::Normal);
    const QSize size = declaredSize(renderer);
    const QMutexLocker locker(&mutex);
    sizes.insert(path, size);
    return size;
}

QImage drawnImage(const QString &path, const QSize &size, QIcon::Mode mode)
{
    return draw(path, size, mode, Qt::KeepAspectRatio);
}

QImage stretchedImage(const QString &path, const QSize &size)
{
    return draw(path, size, QIcon::Normal, Qt::IgnoreAspectRatio);
}

QImage placeholderImage(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPlaceholder(painter, image.rect());
    return image;
}

} // namespace HV
