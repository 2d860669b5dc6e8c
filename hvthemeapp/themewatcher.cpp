// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "themewatcher.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace HV
{
namespace
{

// Long enough for the several writes of one save, far too short to be felt.
constexpr int coalescingTimeMs = 30;

QString nearestExistingFolder(const QString &path)
{
    QDir folder(path);
    while (!folder.exists() && !folder.isRoot())
        folder.setPath(QFileInfo(folder.absolutePath()).absolutePath());
    return folder.absolutePath();
}

// With the folder above, since a folder itself does not tell that it is moved away.
void addFolder(const QString &path, QStringList *folders)
{
    const QString folder = nearestExistingFolder(path);
    folders->append(folder);
    folders->append(QFileInfo(folder).path());
}

} // namespace

ThemeWatcher::ThemeWatcher(QObject *parent)
    : QObject(parent)
{
    // The timer is not started anew by each change: a program that never stops writing must not
    // keep the change from being shown.
    m_timer.setSingleShot(true);
    m_timer.setInterval(coalescingTimeMs);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_fingerprint = fingerprint();
        arm();
        Q_EMIT changed();
    });
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] {
        if (!m_timer.isActive())
            m_timer.start();
    });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &ThemeWatcher::compare);
}

void ThemeWatcher::setPaths(const QStringList &files, const QStringList &folders)
{
    const QStringList known = m_files + m_folders;
    m_files = files;
    m_folders = folders;
    m_files.removeDuplicates();
    QHash<QString, QString> prints = fingerprint();
    // What changed while the caller was reading must still be told.
    const QStringList wanted = m_files + m_folders;
    for (const QString &path : known) {
        if (!wanted.contains(path))
            continue;
        prints.remove(path);
        if (m_fingerprint.contains(path))
            prints.insert(path, m_fingerprint.value(path));
    }
    m_fingerprint = prints;
    arm();
    compare();
}

// The system watches a file or folder, not a path: one that was replaced or moved is lost. So all
// are taken anew, and the folders above tell when something comes to a path that leads nowhere.
void ThemeWatcher::arm()
{
    QStringList wanted;
    for (const QString &folder : qAsConst(m_folders))
        addFolder(folder, &wanted);
    for (const QString &file : qAsConst(m_files)) {
        addFolder(QFileInfo(file).path(), &wanted);
        if (QFileInfo::exists(file))
            wanted.append(file);
    }
    wanted.removeDuplicates();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    if (!wanted.isEmpty())
        m_watcher.addPaths(wanted);
}

// A folder tells of everything in it; only what is watched counts.
void ThemeWatcher::compare()
{
    if (!m_timer.isActive() && fingerprint() != m_fingerprint)
        m_timer.start();
}

QHash<QString, QString> ThemeWatcher::fingerprint() const
{
    QHash<QString, QString> prints;
    for (const QString &path : m_files) {
        const QFileInfo file(path);
        if (file.exists())
            prints.insert(path,
                          QStringLiteral("%1 %2")
                              .arg(file.size())
                              .arg(file.lastModified().toMSecsSinceEpoch()));
    }
    for (const QString &path : m_folders)
        prints.insert(path, QDir(path).entryList().join(QLatin1Char('/')));
    return prints;
}

} // namespace HV
