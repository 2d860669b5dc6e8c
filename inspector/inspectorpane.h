// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_INSPECTORPANE_H
#define INSPECTOR_INSPECTORPANE_H

#include <inspector/changesubject.h>
#include <inspector/forcedstates.h>
#include <inspector/inspection.h>
#include <inspector/outline.h>
#include <inspector/picker.h>
#include <inspector/programchanges.h>
#include <inspector/savebar.h>
#include <inspector/widgettree.h>

#include <QTimer>
#include <QWidget>

#include <functional>

class ChangePanel;
class PickedPart;
class PropertyEditor;
class WhyNot;
class QLabel;
class QLineEdit;
class QTabWidget;
class QToolButton;
class QTreeView;
class QTreeWidget;
class QTreeWidgetItem;

/*!
 * \brief The inspector as a pane: the program's widgets, and why the picked one looks as it does, and
 *        the values to change.
 *
 * It has a look of its own that no theme reaches, and is none of the widgets that it tells of. All
 * that it does to the program, frames and forced states, is gone when it dies.
 */
class InspectorPane : public QWidget
{
    Q_OBJECT

public:
    /*! \brief Returns the style sheet in force and where it came from; never null. */
    using Source = std::function<std::unique_ptr<InspectedSheet>()>;

    explicit InspectorPane(QWidget *parent = nullptr);
    InspectorPane(Source source, QWidget *parent);
    ~InspectorPane() override;

    /*! \brief Shows \a part of \a widget; a part without states means the widget itself. */
    void pick(QWidget *widget, const WidgetPart &part = {});
    QWidget *pickedWidget() const { return m_widget; }
    const Inspection &inspection() const { return m_inspection; }

    /*! \brief Outlines all that has a property from one of \a declarations, and says how many. */
    void showUsers(const QSet<int> &declarations, const QString &what);

    /*! \brief Reads the widgets, and looks at the picked one anew. */
    void refresh();

    /*!
     * \brief Asks what is to become of changes that are not saved; to be called before the pane is closed
     *        or the program ends.
     *
     * \return false if the user wants all to stay as it is; true without a question if all is saved.
     */
    bool mayClose(SaveBar::Closing closing);

    /*! \brief Tells whether \a widget is a part of an inspector. */
    static bool isOwn(const QWidget *widget);
    /*! \brief Tells whether a part of an inspector begins with \a widget. */
    static bool isOwnRoot(const QWidget *widget);

    /*! \brief Lets \a finder say what the user points at, see Picker::setFinder(). */
    void setFinder(Picker::Finder finder) { m_picker.setFinder(std::move(finder)); }

Q_SIGNALS:
    void picked(QWidget *widget);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QWidget *makeTools();
    QWidget *makeDetails();
    QTreeWidget *makeList(const QString &title, const QStringList &columns);
    void readTree();
    void showInTree();
    void look();
    void showNothing();
    void showContrast();
    void fill(QTreeWidget *list, const std::function<void()> &show);
    void showTheme();
    ChangeSubject subject(Kind kind, const QString &key, const QString &property) const;
    void showChange(const QTreeWidgetItem *item);
    void refreshChange();
    void lookSoon();
    void showUsersOf(const QTreeWidgetItem *item);
    void force(const QString &state, bool on);

    const Source m_source;
    std::unique_ptr<InspectedSheet> m_sheet;
    WidgetTree m_tree;
    Picker m_picker;
    ForcedStates m_forced;
    Outline m_outline;
    Outline m_users;
    QTimer m_later;

    QPointer<QWidget> m_widget;
    QPointer<QWidget> m_painted; // which the picked one is seen in
    WidgetPart m_part;
    QVector<WidgetPart> m_parts;
    Inspection m_inspection;
    std::optional<TextContrast> m_textContrast;
    ProgramChanges *const m_changes;
    bool m_isSheetOld = false;

    QToolButton *m_pick = nullptr;
    QLineEdit *m_filter = nullptr;
    QTreeView *m_widgets = nullptr;
    PickedPart *m_picked = nullptr;
    QLabel *m_contrast = nullptr;
    QTabWidget *m_tabs = nullptr;
    QTreeWidget *m_rules = nullptr;
    QTreeWidget *m_values = nullptr;
    QTreeWidget *m_boxes = nullptr;
    QTreeWidget *m_theme = nullptr;
    ChangePanel *m_change = nullptr;
    WhyNot *m_whyNot = nullptr;
    PropertyEditor *m_properties = nullptr;
    SaveBar *m_save = nullptr;
    QLabel *m_status = nullptr;
};

#endif
