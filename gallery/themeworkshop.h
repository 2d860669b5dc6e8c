// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_THEMEWORKSHOP_H
#define GALLERY_THEMEWORKSHOP_H

#include <colormath/vision.h>
#include <maker/thememaker.h>

#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

namespace Gallery
{

/*! \brief How one pair of colours of a made theme turned out. */
struct PairResult {
    Maker::ColorPair pair;
    QColor foreground; //!< as it is seen
    QColor ground;
    double ratio;
    double required;
};

/*! \brief How two colours that mean different things turned out, for the eye that it is hardest for. */
struct MeaningResult {
    QString first;
    QString second;
    QColor firstColor;
    QColor secondColor;
    double distance;
    ColorMath::Vision vision;
};

/*! \brief What is to be known of one look of made themes. */
struct ThemeReport {
    QVector<PairResult> pairs; //!< what has least to spare first
    QVector<MeaningResult> meanings; //!< the same
    QStringList notes; //!< wishes that could not be fulfilled
};

/*!
 * \brief Makes themes of a few colours again and again, in a folder of its own.
 *
 * Changes that come before the event loop has nothing else to do are made together, so however fast a
 * slider moves, no more is made than is seen.
 */
class ThemeWorkshop final : public QObject
{
    Q_OBJECT

public:
    explicit ThemeWorkshop(QObject *parent = nullptr);

    const Maker::Parameters &parameters() const { return m_order.parameters; }
    void setParameters(const Maker::Parameters &parameters);

    Maker::Look look() const { return m_look; }
    void setLook(Maker::Look look);

    /*! \brief Takes \a look to begin with; nothing is made because of it. */
    void beginWith(Maker::Look look) { m_look = look; }

    /*! \brief Returns the report on look(); if nothing was made yet, on what would be. */
    ThemeReport report() const;

    /*! \brief Returns the folder that the made themes are in; they are called as their looks are. */
    QString folder() const { return m_folder.path(); }

    /*!
     * \brief Writes the themes of all looks to \a folder.
     *
     * \param name  see Maker::Order.
     * \param overwrites, error  see Maker::writeThemeFiles().
     */
    bool save(const QString &folder, const QString &name, bool overwrites, QString *error) const;

Q_SIGNALS:
    /*! \brief folder() has the themes of parameters(), and look() is the one to show. */
    void made();

private:
    void make();

    Maker::Order m_order;
    Maker::Look m_look = Maker::Look::Dark;
    QTimer m_timer;
    QTemporaryDir m_folder;
};

} // namespace Gallery

#endif
