// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_MEMORYSETTINGS_H
#define ANALYSIS_THEME_MEMORYSETTINGS_H

#include <QByteArray>
#include <QString>

#include <memory>

class QSettings;

/*!
 * \brief The text of an INI file as QSettings reads it, without a file on disk.
 *
 * QSettings takes nothing but paths, so the text stands in the program's resources for as long as
 * this lives, under a name that nothing else has.
 */
class MemorySettings
{
public:
    explicit MemorySettings(const QByteArray &ini);
    ~MemorySettings();
    Q_DISABLE_COPY_MOVE(MemorySettings)

    QSettings &settings() { return *m_settings; }

private:
    const QByteArray m_resource;
    QString m_root;
    std::unique_ptr<QSettings> m_settings;
};

#endif
