// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_THEMEWATCHER_H
#define HVTHEMEAPP_THEMEWATCHER_H

#include <QFileSystemWatcher>
#include <QHash>
#include <QTimer>

namespace HV
{

/*!
 * \brief Tells when any of a set of files changes, however it is saved.
 *
 * A file may be written in place, replaced by rename, or go and come back, and so may its folder.
 * Changes that follow each other within a moment are told once. Nothing polls; the timer runs for that
 * moment only. Internal.
 */
class ThemeWatcher final : public QObject
{
    Q_OBJECT

public:
    explicit ThemeWatcher(QObject *parent = nullptr);

    /*!
     * \brief Watches \a files, which need not exist yet, and the listing of \a folders.
     *
     * Replaces what was watched before.
     */
    void setPaths(const QStringList &files, const QStringList &folders);

Q_SIGNALS:
    /*! \brief Something changed; emitted at most \c coalescingTimeMs after the first change. */
    void changed();

private:
    void arm();
    void compare();
    QHash<QString, QString> fingerprint() const;

    QFileSystemWatcher m_watcher;
    QTimer m_timer;
    QStringList m_files;
    QStringList m_folders;
    QHash<QString, QString> m_fingerprint;
};

} // namespace HV

#endif // HVTHEMEAPP_THEMEWATCHER_H
