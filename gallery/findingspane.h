// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_FINDINGSPANE_H
#define GALLERY_FINDINGSPANE_H

#include "findinglist.h"

#include <QWidget>

class QLabel;
class QTreeView;

namespace Gallery
{

/*! \brief The list of what `hvtheme check` finds. Its parts are `findings`, `notes` and `found`. */
class FindingsPane final : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPane(QWidget *parent = nullptr);

    void setFindings(const QVector<Finding> &findings);
    const FindingList &list() const { return m_list; }
    /*! \brief Chooses the first finding, if there is one. */
    void chooseFirst();

Q_SIGNALS:
    /*! \brief The user wants to be led to \a finding. */
    void led(const Finding &finding);

private:
    void openMenu(const QPoint &place);

    FindingList m_list;
    QTreeView *m_view;
    QLabel *m_summary;
};

/*! \brief Puts \a text into the clipboard; the status bar of the window of \a widget says so. */
void copyText(QWidget *widget, const QString &text);

/*! \brief Opens the file of \a place in the desktop's editor, copies the place for its "go to line", and
 *         says so in the status bar of the window of \a widget. */
void openPlace(QWidget *widget, const Place &place);

/*! \brief Tells whether there is a file to open at \a place, and not one inside the program. */
bool canOpen(const Place &place);

} // namespace Gallery

#endif
