// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef FORMAT_PLACE_H
#define FORMAT_PLACE_H

#include <QString>

/*! \brief A place in a text; line and column count characters from 1. */
struct TextPosition {
    int line = 0;
    int column = 0;

    bool operator==(TextPosition other) const
    {
        return line == other.line && column == other.column;
    }
    bool operator<(TextPosition other) const
    {
        return line == other.line ? column < other.column : line < other.line;
    }
};

/*! \brief Returns the place of \a offset in \a text, whose lines end in "\n"; 1:1 if it is negative. */
TextPosition textPosition(const QString &text, int offset);

/*! \brief A place in a file. This is all there is to writing one down. */
struct Place {
    QString file; //!< as the user named it, or `:/…` for a resource
    TextPosition position;

    /*! \brief Returns `file:line:column`, as editors and terminals follow it. */
    QString text() const;

    /*! \brief Returns `file:line`. */
    QString lineText() const;

    /*! \brief Returns `name:line`, the file without its folder: for the middle of a sentence. */
    QString shortText() const;
};

#endif
