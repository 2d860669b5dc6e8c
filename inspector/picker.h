// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_PICKER_H
#define INSPECTOR_PICKER_H

#include <inspector/outline.h>
#include <inspector/widgetparts.h>

#include <QObject>

#include <functional>

/*!
 * \brief Lets the user point at a widget of the program.
 *
 * For as long as it lives, Ctrl+Shift+click picks what is under the pointer, in menus, tool tips and
 * beside modal dialogs too. While it is picking, any click does, the part under the pointer is
 * outlined, and Escape ends it. The program sees nothing of such clicks.
 */
class Picker : public QObject
{
    Q_OBJECT

public:
    /*! \brief Leaves those widgets alone that \a isOwn says yes to. */
    explicit Picker(std::function<bool(const QWidget *)> isOwn, QObject *parent = nullptr);

    /*! \brief What is seen at a place of the screen. */
    struct Seen {
        QWidget *widget = nullptr;
        QPoint place; //!< in the widget
    };
    using Finder = std::function<Seen(const QPoint &place)>;

    /*!
     * \brief Lets \a finder say what is seen, where Qt does not: in a view that is zoomed, or of widgets
     *        that let the mouse through. If it finds no widget, Qt is asked.
     */
    void setFinder(Finder finder) { m_find = std::move(finder); }

    bool isPicking() const { return m_isPicking; }
    void setPicking(bool picking);

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    /*! \brief \a part is one of paintedAs(\a widget). */
    void picked(QWidget *widget, const WidgetPart &part);
    void pickingChanged(bool picking);

private:
    Seen seenAt(const QPoint &position) const;
    bool filterMouse(QEvent *event);
    bool filterOther(const QWidget *widget, QEvent *event);

    const std::function<bool(const QWidget *)> m_isOwn;
    Finder m_find;
    Outline m_outline;
    bool m_isPicking = false;
    bool m_isRelease = false; // the one that belongs to a click that was taken
};

#endif
