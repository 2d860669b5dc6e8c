// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef PLUGIN_FOREIGNPROGRAM_H
#define PLUGIN_FOREIGNPROGRAM_H

#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/desktopsettings.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPalette>
#include <QStringList>

/*!
 * \brief The look of a program that knows nothing of it.
 *
 * Lays the theme below what the program sets itself: its application style sheet comes behind the
 * theme's, and the roles that it sets in the application's palette keep its colours. A program that
 * is light by a palette of its own gets a light theme, and one that is dark a dark one, as long as it
 * is; the desktop is followed in all else. Qt tells nobody
 * that an application style sheet was replaced. So what is told is taken for a sign to look: a
 * widget that is polished or changes its style.
 */
class ForeignProgram : public HV::ApplicationTheme
{
    Q_OBJECT

public:
    struct Options {
        QString theme; //!< name; empty means as the desktop
        QString folder; //!< of theme files; empty means the built-in themes
        QString suffix; //!< of the files of a folder; empty means "theme"
        QStringList templates; //!< folders
        QString prefix = QStringLiteral("global"); //!< of the tokens of these templates
        bool liftsText = true;
    };

    /*! \brief Themes the application, which may still be under construction. */
    explicit ForeignProgram(const Options &options);

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void complete(QPalette *palette, QString *styleSheet) override;

private:
    using Brushes = QHash<QPair<QPalette::ColorGroup, QPalette::ColorRole>, QBrush>;

    bool takeWantedTheme();
    void watchDesktop();
    bool takeThemeLike(const QPalette &palette);
    void look();
    void lookSoon();
    Brushes ownBrushesOf(const QPalette &palette) const;
    QString withoutTheme(const QString &styleSheet) const;

    Options m_options;
    bool m_isThemeLikeProgram = false; // instead of the one that is asked for
    HV::DesktopSettings *m_desktop = nullptr; // for the time of such a theme
    const QPalette m_startPalette;
    QPalette m_themePalette; // as the theme has it
    QStringList m_themeStyleSheets; // of the last themes, the one in force at the end
    QPalette m_palette; // what the application has since the last look
    QString m_styleSheet;
    QString m_ownStyleSheet; // what the program has set
    Brushes m_ownBrushes;
    QElapsedTimer m_sinceLook;
    int m_repetitions = 0; // of the same own look, one soon after the other
    bool m_isLookPending = false;
};

#endif
