// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "iconengine.h"

#include "brokenimages.h"
#include "iconcolors.h"
#include "tinteddrawing.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

#include <cmath>

namespace HV
{

namespace
{

const double maximumSide = 4096;
const QSize placeholderSize(20, 20);

bool isPath(const QString &name)
{
    return name.contains(QLatin1Char('/')) || isDrawing(name);
}

// The theme's own image of that key comes first.
QString pathOf(const QString &name)
{
    if (isPath(name))
        return name;
    QString own = IconColors::imageFile(name);
    const QString builtIn = builtInDrawings() + name + QLatin1String(".hvicon");
    const bool isBuiltIn = QFile::exists(builtIn);
    if (!own.isEmpty() && QFile::exists(own) && (!isBuiltIn || isDrawing(own) || isImage(own)))
        return own;
    return isBuiltIn ? builtIn : QString();
}

// "lock" is "lock_on" where it is checked, and "switch_on" is "switch_on_hover" under the pointer.
QString pathOf(const QString &name, QIcon::Mode mode, QIcon::State state, bool *isForMode)
{
    *isForMode = false;
    if (isPath(name))
        return name;
    const QString stated =
        name + (state == QIcon::On ? QLatin1String("_on") : QLatin1String("_off"));
    const QString base = pathOf(stated).isEmpty() ? name : stated;
    if (mode == QIcon::Disabled || mode == QIcon::Active) {
        QString path = pathOf(
            base
            + (mode == QIcon::Disabled ? QLatin1String("_disabled") : QLatin1String("_hover")));
        if (!path.isEmpty()) {
            *isForMode = true;
            return path;
        }
    }
    return pathOf(base);
}

QPixmap faded(const QPixmap &pixmap)
{
    QPixmap result(pixmap.size());
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(IconColors::disabledOpacity);
    painter.drawPixmap(0, 0, pixmap);
    return result;
}

QPixmap scaled(const QPixmap &pixmap, const QSize &size)
{
    return pixmap.size() == size
        ? pixmap
        : pixmap.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

// Decoded once for each size, and again when the file changes.
QPixmap pixelsOf(const QString &path, const QSize &size)
{
    const QString key = QStringLiteral("hvimage:%1x%2:%3:")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(QFileInfo(path).lastModified().toMSecsSinceEpoch())
        % path;
    QPixmap result;
    if (QPixmapCache::find(key, &result))
        return result;
    if (!isImage(path))
        return QPixmap::fromImage(placeholderImage(size));
    QImageReader reader(path);
    const QSize own = reader.size();
    if (own.isValid() && (own.width() > size.width() || own.height() > size.height()))
        reader.setScaledSize(own.scaled(size, Qt::KeepAspectRatio));
    result = scaled(QPixmap::fromImage(reader.read()), size);
    QPixmapCache::insert(key, result);
    return result;
}

} // namespace

IconEngine::IconEngine(const QString &name)
{
    m_sources.insert({QIcon::Normal, QIcon::Off}, {name, {}});
}

void IconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const Picture source = picture(mode, state);
    const QSize fitted = fittedSize(source, rect.size());
    if (fitted.isEmpty())
        return;
    // Drawn for the pixels of the device, which a scaled view has more or fewer of.
    const QTransform &transform = painter->deviceTransform();
    const double scale = std::sqrt(std::abs(transform.determinant()));
    const double limit = maximumSide / qMax(fitted.width(), fitted.height());
    const QSize pixels = (QSizeF(fitted) * qMin(scale, limit)).toSize().expandedTo({1, 1});
    QRect target({}, fitted);
    target.moveCenter(rect.center());
    const bool isExact = pixels == fitted;
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform, !isExact);
    QPixmap pixmap = drawn(source, pixels);
    pixmap.setDevicePixelRatio(1);
    painter->drawPixmap(target, pixmap);
    painter->restore();
}

QPixmap IconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const Picture source = picture(mode, state);
    return drawn(source, fittedSize(source, size));
}

QSize IconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return fittedSize(picture(mode, state), size);
}

void IconEngine::addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state)
{
    if (!pixmap.isNull())
        m_sources.insert({mode, state}, {QString(), pixmap});
}

void IconEngine::addFile(const QString &path, const QSize &, QIcon::Mode mode, QIcon::State state)
{
    // QIcon adds the variant for dense screens too; a drawing needs none.
    if (!path.isEmpty() && !path.contains(QLatin1String("@2x.")))
        m_sources.insert({mode, state}, {path, {}});
}

QString IconEngine::key() const
{
    return QStringLiteral("hvicon");
}

QIconEngine *IconEngine::clone() const
{
    return new IconEngine(*this);
}

bool IconEngine::read(QDataStream &stream)
{
    qint32 count = 0;
    stream >> count;
    for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        qint32 mode = 0;
        qint32 state = 0;
        Source source;
        stream >> mode >> state >> source.name >> source.pixmap;
        m_sources.insert({mode, state}, source);
    }
    return stream.status() == QDataStream::Ok;
}

bool IconEngine::write(QDataStream &stream) const
{
    stream << qint32(m_sources.size());
    for (auto it = m_sources.cbegin(); it != m_sources.cend(); ++it)
        stream << qint32(it.key().first) << qint32(it.key().second) << it->name << it->pixmap;
    return stream.status() == QDataStream::Ok;
}

void IconEngine::virtual_hook(int id, void *data)
{
    if (id == IsNullHook)
        *static_cast<bool *>(data) = [this] {
            const Picture normal = picture(QIcon::Normal, QIcon::Off);
            return normal.path.isEmpty() && normal.pixmap.isNull();
        }();
    else
        QIconEngine::virtual_hook(id, data);
}

// What was given for this mode and state, else for the state, else for the mode, else at all.
IconEngine::Picture IconEngine::picture(QIcon::Mode mode, QIcon::State state) const
{
    const QIcon::State other = state == QIcon::On ? QIcon::Off : QIcon::On;
    for (const auto &[wantedMode, wantedState] :
         {qMakePair(mode, state), qMakePair(QIcon::Normal, state), qMakePair(mode, other),
          qMakePair(QIcon::Normal, other)}) {
        const auto it = m_sources.constFind({wantedMode, wantedState});
        if (it == m_sources.cend())
            continue;
        bool isForMode = false;
        Picture result;
        result.pixmap = it->pixmap;
        if (result.pixmap.isNull())
            result.path = pathOf(it->name, mode, state, &isForMode);
        isForMode = isForMode || (wantedMode == mode && mode != QIcon::Selected);
        result.mode = isForMode ? QIcon::Normal : mode;
        return result;
    }
    return {};
}

QSize IconEngine::fittedSize(const Picture &picture, const QSize &size) const
{
    QSize own;
    if (!picture.pixmap.isNull()) {
        own = picture.pixmap.size();
    } else if (isDrawing(picture.path)) {
        const QSize declared = drawingSize(picture.path);
        return size.isEmpty() ? QSize()
                              : declared.scaled(size, Qt::KeepAspectRatio).expandedTo({1, 1});
    } else if (!picture.path.isEmpty()) {
        own = isImage(picture.path) ? QImageReader(picture.path).size() : placeholderSize;
    }
    const bool fits = own.width() <= size.width() && own.height() <= size.height();
    return own.isEmpty() ? QSize() : fits ? own : own.scaled(size, Qt::KeepAspectRatio);
}

QPixmap IconEngine::drawn(const Picture &picture, const QSize &size) const
{
    if (size.isEmpty())
        return {};
    QPixmap result;
    if (!picture.pixmap.isNull() || !isDrawing(picture.path)) {
        result =
            picture.pixmap.isNull() ? pixelsOf(picture.path, size) : scaled(picture.pixmap, size);
        return picture.mode == QIcon::Disabled ? faded(result) : result;
    }
    const QString key = QStringLiteral("hvicon:%1x%2:%3:%4:%5:%6:")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(picture.mode)
                            .arg(IconColors::generation())
                            .arg(QGuiApplication::palette().cacheKey())
                            .arg(IconColors::OnGround::current())
        % picture.path;
    if (!QPixmapCache::find(key, &result)) {
        result = QPixmap::fromImage(drawnImage(picture.path, size, picture.mode));
        QPixmapCache::insert(key, result);
    }
    return result;
}

} // namespace HV
