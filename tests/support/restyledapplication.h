// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_RESTYLEDAPPLICATION_H
#define HVTHEME_TESTS_RESTYLEDAPPLICATION_H

#include "completetheme.h"
#include "temporaryfolder.h"

/*! Three theme folders, 0 to 2, whose default themes agree in no value, and a theme to apply. */
class RestyledApplication
{
public:
    RestyledApplication()
    {
        for (int variant = 0; variant < 3; ++variant)
            m_folder.write(QString("%1/default.theme").arg(variant), completeTheme(variant));
    }

    HV::Theme &theme() { return m_theme; }
    QString folder(int variant) const { return m_folder.filePath(QString::number(variant)); }

    void apply(int variant) { HV::changeAppStyleSheet(&m_theme, "default", folder(variant)); }

    /*! What the application's style sheet has to be after apply(). */
    QString styleSheet(int variant) const
    {
        HV::WorkableTheme theme;
        HV::changeTheme(&theme, "default", folder(variant));
        return HV::findStyleSheet(&theme, QStringLiteral(":/stylesheet"), "global");
    }

private:
    TemporaryFolder m_folder;
    HV::WorkableTheme m_theme;
};

#endif // HVTHEME_TESTS_RESTYLEDAPPLICATION_H
