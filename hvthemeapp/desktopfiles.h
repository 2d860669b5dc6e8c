// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_DESKTOPFILES_H
#define HVTHEMEAPP_DESKTOPFILES_H

#include "desktoppreferences.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace HV
{

/*! \brief What KDE's and GTK's configuration files say of the desktop, read again when they change. */
class DesktopFiles : public QObject
{
    Q_OBJECT

public:
    explicit DesktopFiles(QObject *parent = nullptr);

    /*! \brief Returns what KDE's file says, completed by GTK's. */
    const DesktopPreferences &preferences() const { return m_preferences; }

Q_SIGNALS:
    void changed();

private:
    void read();
    void watch();

    DesktopPreferences m_preferences;
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
};

} // namespace HV

#endif // HVTHEMEAPP_DESKTOPFILES_H
