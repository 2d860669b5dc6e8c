// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_TEMPORARYFOLDER_H
#define HVTHEME_TESTS_TEMPORARYFOLDER_H

#include <hvtheme/theme.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

/*! A folder of theme files and templates that lives as long as the object. */
class TemporaryFolder
{
public:
    // Others may look in, for the tests that read as another user.
    TemporaryFolder() { chmod(QFile::encodeName(path()).constData(), 0755); }

    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

    /*! Writes \a content to the file \a name, in a subfolder if it says so; gives its path. */
    QString write(const QString &name, const QByteArray &content) const
    {
        QString path = filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qUtf8Printable(path));
        return path;
    }

private:
    QTemporaryDir m_folder;
};

/*! Reads \a text into \a theme as one more theme file. A new file each time: QSettings caches. */
inline void readText(HV::Theme &theme, const QByteArray &text)
{
    const TemporaryFolder folder;
    QSettings settings(folder.write("text.theme", text), QSettings::IniFormat);
    theme.readSettings(settings);
}

/*!
 * Takes the right to read \a path away while the object lives. The mode does not bind root, so
 * root steps down to an ordinary user meanwhile.
 */
class Unreadable
{
    Q_DISABLE_COPY(Unreadable)

public:
    explicit Unreadable(const QString &path)
        : m_path(QFile::encodeName(path))
        , m_user(geteuid())
    {
        const bool done = chmod(m_path.constData(), 0) == 0 && (m_user != 0 || seteuid(65534) == 0);
        if (!done || access(m_path.constData(), F_OK) != 0)
            qFatal("cannot make %s unreadable", m_path.constData());
    }

    ~Unreadable()
    {
        const bool done = (m_user != 0 || seteuid(0) == 0) && chmod(m_path.constData(), 0600) == 0;
        if (!done)
            qFatal("cannot make %s readable again", m_path.constData());
    }

private:
    QByteArray m_path;
    uid_t m_user;
};

#endif // HVTHEME_TESTS_TEMPORARYFOLDER_H
