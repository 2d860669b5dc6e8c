// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_CHANGESUBJECT_H
#define INSPECTOR_CHANGESUBJECT_H

#include <analysis/changetarget.h>
#include <inspector/inspection.h>

#include <optional>

/*! \brief What a colour is seen together with. */
struct ColorPartner {
    QColor color;
    bool isGround = true; //!< the partner is the ground and the colour a text; else the other way
    double wanted = 4.5; //!< the contrast that the text needs

    /*! \brief Returns the contrast with \a color; nothing for a ground that lets others shine through. */
    std::optional<double> ratio(const QColor &color) const;

    bool operator==(const ColorPartner &other) const
    {
        return color == other.color && isGround == other.isGround
            && qFuzzyCompare(wanted, other.wanted);
    }
};

/*! \brief A value that can be changed, and where. */
struct ChangeSubject {
    Kind kind = Kind::Color;
    QString key;
    QString property; //!< that it was chosen for; may be empty
    QVector<ChangeTarget> targets; //!< the key first, then the palette entries behind it
    QString reason; //!< why there are no targets, in a sentence
    QVector<QPair<QString, QColor>> palette; //!< of the theme
    std::optional<ColorPartner> partner;
    QStringList keysOfAccent; //!< the fileKey of those targets that the accent takes the place of

    /*! \brief Looks up \a key in the files of the theme in force. A key that they lack can be added. */
    static ChangeSubject of(const InspectedSheet &sheet, Kind kind, const QString &key);
};

/*! \brief Returns what a colour of \a property of the inspected part is seen with; nothing if that has no text. */
std::optional<ColorPartner> partnerOf(const QString &property, const Inspection &inspection,
                                      const std::optional<TextContrast> &contrast);

/*! \brief Returns what \a target would change, in one line. */
QString targetText(const ChangeTarget &target);

#endif
