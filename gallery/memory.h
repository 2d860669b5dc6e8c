// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_MEMORY_H
#define GALLERY_MEMORY_H

#include "options.h"

class QSettings;

namespace Gallery
{

/*! \brief What the gallery's window is the next time as it was the last. */
class Memory
{
public:
    /*! \brief Keeps all in \a settings; nothing if that is null. */
    explicit Memory(QSettings *settings)
        : m_settings(settings)
    {
    }

    /*!
     * \brief Fills in what the command line left open in \a options: folder, theme, form, page, pane.
     *
     * A theme is that of its folder, and a page or a form that is not there any more is not remembered.
     */
    void complete(Options *options) const;

    void keepSource(const ThemeSource &source);
    void keepForm(const QString &file);
    void keepPage(const QString &page);
    void keepPane(Pane pane);
    void keepWindow(const QByteArray &geometry, const QByteArray &panes, int zoom);

    QByteArray geometry() const;
    QByteArray panes() const; //!< how large they are
    int zoom() const; //!< in per cent

    /*! \brief Returns the last folders that are still there, the latest first. */
    QStringList recentFolders() const;

private:
    QSettings *m_settings;
};

} // namespace Gallery

#endif
