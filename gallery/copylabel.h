// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_COPYLABEL_H
#define GALLERY_COPYLABEL_H

#include <QLabel>

namespace Gallery
{

/*!
 * \brief A caption that a click, or Return, copies to the clipboard.
 *
 * With Shift held it copies the alternative instead. The window's status bar says what was copied.
 */
class CopyLabel final : public QLabel
{
    Q_OBJECT

public:
    /*! \brief Shows \a caption; copies \a text, or \a alternative unless that is empty. */
    CopyLabel(const QString &caption, const QString &text, const QString &alternative = {});

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void copy(Qt::KeyboardModifiers modifiers);

    QString m_text;
    QString m_alternative;
};

} // namespace Gallery

#endif
