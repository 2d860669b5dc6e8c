// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_INIFILE_H
#define HVTHEME_INIFILE_H

#include <QSettings>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QFileInfo>
#include <QTemporaryFile>

#include <algorithm>
#endif

/*!
 * \file
 * \brief The one place that decides what the bytes of a theme file mean. Not installed.
 *
 * A byte is a Latin-1 character, as it has always been, unless the file begins with a byte order
 * mark; then the file is UTF-8. Qt 5 reads INI files so. Qt 6 takes all for UTF-8, so there a file
 * that needs it is turned into UTF-8 before Qt's own reader sees it.
 */
namespace HV
{

/*! \brief Returns what Qt's reader must be given so that it reads the bytes \a content as said above. */
inline QByteArray iniText(const QByteArray &content)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    if (!content.startsWith("\xef\xbb\xbf"))
        return QString::fromLatin1(content).toUtf8();
#endif
    return content;
}

/*!
 * \brief Returns \a written, what QSettings wrote as an INI file, with values in ASCII: Qt 6 leaves
 *        characters as they are that Qt 5 writes as `\xhhhh`.
 */
inline QByteArray asciiIniText(const QByteArray &written)
{
    QByteArray result;
    bool isBehindNumber = false; // a digit there would belong to it
    const QString text = QString::fromUtf8(written);
    for (const QChar c : text) {
        const bool isDigit =
            (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
        isBehindNumber = c.unicode() >= 0x7f || (isBehindNumber && isDigit);
        if (isBehindNumber)
            result += "\\x" + QByteArray::number(c.unicode(), 16);
        else
            result += char(c.unicode());
    }
    return result;
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

// Called by QSettings for files of the format below, and only then.
inline bool readLatin1IniFile(QIODevice &device, QSettings::SettingsMap &values)
{
    const QByteArray text = iniText(device.readAll());
    QTemporaryFile copy;
    if (!copy.open() || copy.write(text) != text.size() || !copy.flush())
        return false;
    const QSettings settings(copy.fileName(), QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (key.count(u'/') < key.size()) // QSettings warns of keys without a name
            values.insert(key, settings.value(key));
    }
    return true;
}

inline bool isLatin1IniFile(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe is read only once
        return false;
    const QByteArray text = file.readAll();
    return !text.startsWith("\xef\xbb\xbf")
        && std::any_of(text.cbegin(), text.cend(), [](char byte) { return uchar(byte) >= 0x80; });
}

#endif

/*!
 * \brief Returns the format with which to open the theme file \a path: `QSettings(path, format)`.
 *
 * QSettings keeps what it has read of a file, whatever the format, until the file changes; so open
 * the theme files of a program in no other way. Such settings are for reading only.
 */
inline QSettings::Format iniFormat(const QString &path)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    if (isLatin1IniFile(path)) {
        static const QSettings::Format latin1 = QSettings::registerFormat(
            QStringLiteral("theme"), readLatin1IniFile, nullptr, Qt::CaseSensitive);
        return latin1;
    }
#else
    Q_UNUSED(path)
#endif
    return QSettings::IniFormat;
}

} // namespace HV

#endif // HVTHEME_INIFILE_H
