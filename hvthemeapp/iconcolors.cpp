// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "iconcolors.h"

#include <colormath/contrast.h>

#include <QGuiApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QPalette>
#include <QPixmapCache>
#include <QReadLocker>
#include <QReadWriteLock>
#include <QWriteLocker>

namespace HV::IconColors
{

namespace
{

const QLatin1String inkKey("Color_W100");
// What is cut out of a shape, and what lies below the strokes of a sign.
const QLatin1String cutOutKey("EditBackgroundColor");
const QLatin1String signGroundKey("Color_Yellow_10");
// A stroke is a graphical object: WCAG 2.1 asks for this much against what lies beside it.
const double enoughContrast = 3;

struct State {
    QReadWriteLock lock;
    QVariantMap values;
    QPalette palette;
    int generation = 0;
    QMutex usedLock; // readers write there
    QSet<QString> used;
};

State &state()
{
    static State theState;
    return theState;
}

// Palettes are the GUI thread's, but pictures may be read on others; those see the last one set.
QPalette currentPalette(const State &s)
{
    return s.generation == 0 ? QGuiApplication::palette() : s.palette;
}

// Called with the lock for reading.
QVariant valueOf(State &s, const QString &key)
{
    const QMutexLocker locker(&s.usedLock);
    s.used.insert(key);
    return s.values.value(key);
}

struct Ground {
    QColor ground;
    QColor text;
};

Ground &groundOfOwn()
{
    static thread_local Ground ground;
    return ground;
}

QColor colorOfPalette(const QString &key, const QPalette &palette)
{
    if (key == cutOutKey || key == signGroundKey)
        return palette.color(QPalette::Base);
    if (key == QLatin1String("HighlightedForegroundColor"))
        return palette.color(QPalette::Link);
    return palette.color(QPalette::WindowText);
}

} // namespace

void setValues(const QVariantMap &values)
{
    State &s = state();
    {
        const QWriteLocker locker(&s.lock);
        s.values = values;
        s.palette = QGuiApplication::palette();
        ++s.generation;
    }
    QPixmapCache::clear();
}

QVariantMap values()
{
    const QReadLocker locker(&state().lock);
    return state().values;
}

QSet<QString> usedKeys()
{
    const QMutexLocker locker(&state().usedLock);
    return state().used;
}

int generation()
{
    const QReadLocker locker(&state().lock);
    return state().generation;
}

bool hasValues()
{
    return generation() != 0;
}

QString imageFile(const QString &key)
{
    const QReadLocker locker(&state().lock);
    const QVariant value = valueOf(state(), key);
    return value.userType() == QMetaType::QString ? value.toString() : QString();
}

QColor color(const QString &key, QIcon::Mode mode, bool *found)
{
    State &s = state();
    const QReadLocker locker(&s.lock);
    const QPalette palette = currentPalette(s);
    const QVariant value = valueOf(s, key);
    const bool isColor = value.userType() == QMetaType::QColor;
    if (found)
        *found = isColor || s.generation == 0;
    QColor normal = isColor ? value.value<QColor>() : colorOfPalette(key, palette);
    const Ground own = groundOfOwn();
    if (mode != QIcon::Selected && !own.ground.isValid())
        return normal;

    // A shape must stand out from the ground, which shows where something is cut out of it.
    QColor ground = own.ground.isValid() ? own.ground : palette.color(QPalette::Highlight);
    if (key == cutOutKey || key == signGroundKey)
        return ground;
    if (ColorMath::contrastRatio(normal, ground) >= enoughContrast && key != inkKey)
        return normal;
    return own.text.isValid() ? own.text : palette.color(QPalette::HighlightedText);
}

OnGround::OnGround(const QColor &ground, const QColor &text)
{
    groundOfOwn() = {ground, text};
}

OnGround::~OnGround()
{
    groundOfOwn() = {};
}

QString OnGround::current()
{
    const Ground own = groundOfOwn();
    return own.ground.isValid() ? own.ground.name() + own.text.name() : QString();
}

QColor ink(QIcon::Mode mode)
{
    return color(inkKey, mode);
}

} // namespace HV::IconColors
