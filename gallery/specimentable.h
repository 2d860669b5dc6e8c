// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SPECIMENTABLE_H
#define GALLERY_SPECIMENTABLE_H

#include "selector.h"

namespace Gallery
{

/*! \brief One widget held in one state, as the table of specimens describes it. */
struct Specimen {
    QString selector; //!< as the templates write it, the state included
    Selector parts; //!< of selector, with the widget's class filled in
    QVector<QPair<QString, QString>> extraProperties; //!< what the rule needs to be seen
    bool hasRule = true; //!< false: no template rule names this state; it is shown all the same

    /*! \brief Returns what stands under the specimen: "normal", ":hover", "::item:selected". */
    QString stateCaption() const;
};

/*! \brief The specimens of one base selector, side by side. */
struct SpecimenRow {
    QString baseSelector;
    QVector<Specimen> specimens;
};

/*! \brief A titled group of rows, laid out in \a columns columns. */
struct SpecimenSection {
    QString title;
    int columns = 1;
    QVector<SpecimenRow> rows;
};

/*! \brief Returns the sections of the page called \a page, empty for a page without specimens. */
QVector<SpecimenSection> specimenSections(const QString &page);

/*! \brief Returns every specimen of every page, in table order. */
QVector<Specimen> allSpecimens();

/*! \brief Why a rule of the templates does not do, or not by itself, what it says. */
struct EngineNote {
    enum class Kind {
        Ignored, //!< the whole rule has no effect on any widget
        PartlyIgnored, //!< one declaration of the rule has no effect
        Conditional, //!< Qt honours the rule only on widgets set up in a certain way
        Hidden //!< Qt honours the rule, but another rule of the templates says the same or more
    };
    Kind kind;
    QString selector; //!< as the templates write it
    QString reason; //!< one sentence for the designer

    /*! \brief Returns the sentence with the kind in front: "Qt ignores this rule: …". */
    QString text() const;
};

/*! \brief Returns the notes in template order; docs/gallery.md lists the same. */
QVector<EngineNote> engineNotes();

} // namespace Gallery

#endif
