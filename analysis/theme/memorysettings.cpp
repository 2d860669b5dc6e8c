// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/memorysettings.h>

#include <hvtheme/inifile.h>

#include <QDataStream>
#include <QResource>
#include <QSettings>
#include <QStringBuilder>

#include <atomic>

namespace
{

QString fileName()
{
    return QStringLiteral("settings.ini");
}

// As QResource looks names up.
quint32 nameHash(const QString &name)
{
    quint32 hash = 0;
    for (const QChar character : name) {
        hash = (hash << 4) + character.unicode();
        hash ^= (hash & 0xf0000000) >> 23;
        hash &= 0x0fffffff;
    }
    return hash;
}

// One file in the format that rcc writes, version 1: header, tree, names, data.
QByteArray resourceOf(const QByteArray &content)
{
    const QString name = fileName();
    const quint32 treeStart = 20;
    const quint32 nodeSize = 14;
    const quint32 namesStart = treeStart + 2 * nodeSize;
    const quint32 dataStart = namesStart + 6 + 2 * quint32(name.size());
    QByteArray resource;
    QDataStream stream(&resource, QIODevice::WriteOnly); // big endian
    stream.writeRawData("qres", 4);
    stream << quint32(1) << treeStart << dataStart << namesStart;
    const quint16 folder = 2;
    stream << quint32(0) << folder << quint32(1) << quint32(1); // one child, which is node 1
    const quint16 anyCountry = 0;
    const quint16 anyLanguage = 1;
    stream << quint32(0) << quint16(0) << anyCountry << anyLanguage << quint32(0);
    stream << quint16(name.size()) << nameHash(name);
    for (const QChar character : name)
        stream << quint16(character.unicode());
    stream << quint32(content.size());
    stream.writeRawData(content.constData(), int(content.size()));
    return resource;
}

const uchar *bytesOf(const QByteArray &resource)
{
    return reinterpret_cast<const uchar *>(resource.constData());
}

} // namespace

MemorySettings::MemorySettings(const QByteArray &ini)
    : m_resource(resourceOf(HV::iniText(ini)))
{
    static std::atomic<quint64> count{0};
    m_root = QLatin1String("/hvtheme-analysis/") % QString::number(++count);
    QResource::registerResource(bytesOf(m_resource), m_root);
    m_settings = std::make_unique<QSettings>(
        QLatin1Char(':') % m_root % QLatin1Char('/') % fileName(), QSettings::IniFormat);
}

MemorySettings::~MemorySettings()
{
    m_settings.reset();
    QResource::unregisterResource(bytesOf(m_resource), m_root);
}
