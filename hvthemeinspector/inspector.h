// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEINSPECTOR_INSPECTOR_H
#define HVTHEMEINSPECTOR_INSPECTOR_H

#include <hvthemeinspector/hvthemeinspector_export.h>

#include <QKeySequence>

class QWidget;

namespace HV
{

/*!
 * \brief Shows why the widgets of the running program look as they do.
 *
 * ```cpp
 * HV::Inspector::installShortcut(); // Ctrl+Shift+F12 opens it, and closes it again
 * ```
 *
 * A program has one inspector, in a window that no theme reaches. While it is closed nothing of it
 * exists but the key, and changes that the user kept. It keeps no widget alive, and no program running
 * that has closed its windows, unless there are changes that are not saved: then it asks.
 * Use it on the GUI thread, with a QApplication.
 */
class HVTHEMEINSPECTOR_EXPORT Inspector
{
public:
    Inspector() = delete;

    /*! \brief Opens the inspector, or raises it; \a widget, if not null, is picked. */
    static void open(QWidget *widget = nullptr);

    /*! \brief Closes it without a question; what is not saved stays in force, and in its list when it
     *         is opened again. */
    static void close();
    /*! \brief Tells whether its window is there for the user. */
    static bool isOpen();

    /*! \brief Lets \a keys open and close the inspector in all windows of the program, modal dialogs too. An empty
     *         sequence takes the key away again; only the first combination of several counts. */
    static void installShortcut(const QKeySequence &keys = QKeySequence(Qt::CTRL | Qt::SHIFT
                                                                        | Qt::Key_F12));
};

} // namespace HV

#endif // HVTHEMEINSPECTOR_INSPECTOR_H
