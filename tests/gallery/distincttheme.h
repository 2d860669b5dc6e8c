// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_DISTINCTTHEME_H
#define TESTS_DISTINCTTHEME_H

#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

/*!
 * \brief A theme on disk in which no two keys look alike, made for the keys the templates name.
 *
 * Each colour key has a colour of its own and each image key an image filled with a colour of its
 * own, so a pixel of that colour can come from that key alone.
 */
class DistinctTheme
{
public:
    DistinctTheme()
    {
        QString templates;
        HV::readStyleSheet(QStringLiteral(":/stylesheet"), templates);
        m_colorKeys = keysIn(templates, QStringLiteral("color"));
        m_imageKeys = keysIn(templates, QStringLiteral("image"));
        writeImages();
        writeFile(QStringLiteral("default"));
    }

    QString folder() const { return m_folder.path(); }
    QString imagePath(const QString &key) const
    {
        return folder() + QLatin1String("/images/") + key + QLatin1String(".png");
    }
    QStringList colorKeys() const { return m_colorKeys; }
    QStringList imageKeys() const { return m_imageKeys; }
    QColor color(const QString &key) const { return numbered(int(m_colorKeys.indexOf(key))); }
    QColor imageColor(const QString &key) const
    {
        return numbered(int(m_colorKeys.size() + m_imageKeys.indexOf(key)));
    }

    /*! \brief Writes the theme file \a name; \a changed replaces single colours (key to text). */
    void writeFile(const QString &name, const QMap<QString, QString> &changed = {}) const
    {
        QFile file(folder() + QLatin1Char('/') + name + QLatin1String(".theme"));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qUtf8Printable(file.fileName()));
        QTextStream out(&file);
        out << "[General]\nThemeName=" << name << "\n\n[Palettes]\n";
        const auto palette = QMetaEnum::fromType<HV::WorkableTheme::Palette>();
        for (int i = 0; i < palette.keyCount(); ++i)
            out << palette.key(i) << "=#" << QString::number(0x100000 + i * 0x111, 16) << '\n';
        out << "\n[Colors]\n";
        for (const QString &key : m_colorKeys)
            out << key << '=' << changed.value(key, color(key).name()) << '\n';
        out << "\n[ImageFiles]\n";
        for (const QString &key : m_imageKeys)
            out << key << '=' << relativeToProgram(imagePath(key)) << '\n';
        out << "\n[Integers]\n";
        const auto sizes = QMetaEnum::fromType<HV::WorkableTheme::Integer>();
        for (int i = 0; i < sizes.keyCount(); ++i)
            out << sizes.key(i) << '=' << 9 + 3 * i << '\n';
    }

    void writeImage(const QString &key, const QColor &fill) const
    {
        QImage image(24, 24, QImage::Format_RGB32);
        image.fill(fill);
        if (!image.save(imagePath(key)))
            qFatal("cannot write %s", qUtf8Printable(imagePath(key)));
    }

private:
    static QStringList keysIn(const QString &templates, const QString &kind)
    {
        QSet<QString> keys;
        const QRegularExpression token(QStringLiteral("global\\.theme\\.%1\\.(\\w+)").arg(kind));
        for (auto hits = token.globalMatch(templates); hits.hasNext();)
            keys.insert(hits.next().captured(1));
        QStringList sorted = keys.values();
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

    // A theme names its images relative to the program.
    static QString relativeToProgram(const QString &path)
    {
        return QDir(QCoreApplication::applicationDirPath()).relativeFilePath(path);
    }

    // 6 x 6 x 6 colours, none of them black, white or a grey.
    static QColor numbered(int index)
    {
        return {12 + index % 6 * 40, 25 + index / 6 % 6 * 40, 38 + index / 36 * 40};
    }

    void writeImages() const
    {
        QDir(folder()).mkdir(QStringLiteral("images"));
        for (const QString &key : m_imageKeys)
            writeImage(key, imageColor(key));
    }

    QTemporaryDir m_folder;
    QStringList m_colorKeys;
    QStringList m_imageKeys;
};

#endif
