// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_LOOKCOLORS_H
#define MAKER_LOOKCOLORS_H

#include <maker/pairs.h>
#include <maker/tones.h>

#include <QHash>
#include <QMap>

namespace Maker
{

/*!
 * \brief The colours of one look while it is being designed: by key, as theme files write them.
 *
 * A text is the name of a palette entry or a colour in hexadecimal digits.
 */
class LookColors
{
public:
    LookColors(const QVector<PaletteEntry> &palette, const QMap<QString, QString> &texts);

    QStringList keys() const { return m_texts.keys(); }
    QString text(const QString &key) const { return m_texts.value(key); }
    QColor color(const QString &key) const { return resolved(m_texts.value(key)); }
    QColor resolved(const QString &text) const;
    void setText(const QString &key, const QString &text) { m_texts.insert(key, text); }
    const QMap<QString, QString> &texts() const { return m_texts; }

    /*! \brief Returns what is seen where \a layers lie on one another, the lowest first. */
    QColor composite(const QStringList &layers) const;

    /*! \brief Returns the contrast of \a pair. */
    double ratio(const ColorPair &pair) const;

private:
    QHash<QString, QColor> m_palette;
    QMap<QString, QString> m_texts;
};

class ThemeText;

/*! \brief Returns the colour of `#RRGGBB`, `#AARRGGBB` and the same without `#`; else an invalid one. */
QColor colorFromText(const QString &text);

/*!
 * \brief Sets the palette of a theme file; an entry that has its colour already keeps its spelling,
 *        and one whose colour is invalid is left as it is.
 */
void setPaletteEntries(ThemeText *text, const QVector<PaletteEntry> &entries);

/*! \brief Returns the ratio that \a need means in \a look. */
double requiredRatio(Need need, Look look, double textContrast);

/*!
 * \brief Designs the colours of \a look: begins with those of \a sample and changes what the
 *        parameters call for, as little as will do.
 *
 * \param palette  as Maker::palette() gives it.
 * \param sample   key to text, complete; keys beyond the samples' are kept as they are.
 * \param notes    gets one sentence for each wish that could not be fulfilled.
 */
LookColors designedColors(Look look, const Parameters &parameters,
                          const QVector<PaletteEntry> &palette,
                          const QMap<QString, QString> &sample, QStringList *notes);

/*!
 * \brief Changes the colours of a look that is there to those that another brand calls for; what
 *        has nothing to do with the brand stays.
 *
 * \param texts  key to text, need not be complete: pairs that a key is missing for are not looked at.
 */
LookColors recoloredLook(Look look, const Parameters &parameters,
                         const QVector<PaletteEntry> &palette, const QMap<QString, QString> &texts,
                         QStringList *notes);

} // namespace Maker

#endif
