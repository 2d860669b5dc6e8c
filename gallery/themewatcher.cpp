// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "themewatcher.h"

#include <QDir>
#include <QFileInfo>

namespace Gallery
{

namespace
{

// Long enough for the several writes of one save, far too short to be felt.
constexpr int coalescingTimeMs = 40;

QString nearestExistingFolder(const QString &path)
{
    QDir folder(path);
    while (!folder.exists() && !folder.isRoot())
        folder.setPath(QFileInfo(folder.absolutePath()).absolutePath());
    return folder.absolutePath();
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
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &ThemeWatcher::folderChanged);
}

void ThemeWatcher::setPaths(const QStringList &files, const QStringList &folders)
{
    const QStringList known = m_files + m_folders;
    m_files = files;
    m_folders = folders;
    m_files.removeDuplicates();
    QHash<QString, QString> prints = fingerprint();
    // What changed while the caller was reading must still be told.
    for (const QString &path : known) {
        prints.remove(path);
        if (m_fingerprint.contains(path))
            prints.insert(path, m_fingerprint.value(path));
    }
    m_fingerprint = prints;
    arm();
    folderChanged();
}

// The watcher loses a file that is deleted or replaced by rename; its folder, or what is left of
// the path, tells when there is one again.
void ThemeWatcher::arm()
{
    QStringList wanted;
    for (const QString &folder : qAsConst(m_folders))
        wanted.append(nearestExistingFolder(folder));
    for (const QString &file : qAsConst(m_files)) {
        wanted.append(nearestExistingFolder(QFileInfo(file).path()));
        if (QFileInfo::exists(file))
            wanted.append(file);
    }
    wanted.removeDuplicates();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList dropped;
    for (const QString &path : watched) {
        if (!wanted.removeOne(path))
            dropped.append(path);
    }
    if (!dropped.isEmpty())
        m_watcher.removePaths(dropped);
    if (!wanted.isEmpty())
        m_watcher.addPaths(wanted);
}

// A folder tells of every file in it; only those that are watched count.
void ThemeWatcher::folderChanged()
{
    arm();
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

} // namespace Gallery
