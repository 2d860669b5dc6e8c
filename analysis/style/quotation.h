// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_QUOTATION_H
#define ANALYSIS_STYLE_QUOTATION_H

#include <QChar>

/*!
 * \brief Knows what of a style sheet stands in quotation marks, while it is read from left to right.
 *
 * As Qt reads it: a backslash takes the meaning from the character behind it, and a line end closes a
 * quotation that was left open.
 */
class Quotation
{
public:
    /*! \brief Takes the next character; returns whether it means nothing by itself. */
    bool take(QChar character)
    {
        if (m_isEscaped) {
            m_isEscaped = false;
            return true;
        }
        m_isEscaped = character == u'\\';
        if (!m_mark.isNull()) {
            if (character == m_mark || character == u'\n')
                m_mark = QChar();
            return true;
        }
        if (character == u'"' || character == u'\'')
            m_mark = character;
        return m_isEscaped || !m_mark.isNull();
    }

private:
    QChar m_mark; // that opened the quotation
    bool m_isEscaped = false;
};

#endif
