// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/stylevocabulary.h>

#include <QHash>
#include <QSet>
#include <QtWidgets>

namespace
{

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

// NOLINTNEXTLINE(readability-function-size): a list is as long as what it lists
QHash<QString, const QMetaObject *> widgetClasses()
{
    const QMetaObject *const classes[] = {&QCalendarWidget::staticMetaObject,
                                          &QCheckBox::staticMetaObject,
                                          &QColorDialog::staticMetaObject,
                                          &QColumnView::staticMetaObject,
                                          &QComboBox::staticMetaObject,
                                          &QCommandLinkButton::staticMetaObject,
                                          &QDateEdit::staticMetaObject,
                                          &QDateTimeEdit::staticMetaObject,
                                          &QDial::staticMetaObject,
                                          &QDialog::staticMetaObject,
                                          &QDialogButtonBox::staticMetaObject,
                                          &QDockWidget::staticMetaObject,
                                          &QDoubleSpinBox::staticMetaObject,
                                          &QErrorMessage::staticMetaObject,
                                          &QFileDialog::staticMetaObject,
                                          &QFocusFrame::staticMetaObject,
                                          &QFontComboBox::staticMetaObject,
                                          &QFontDialog::staticMetaObject,
                                          &QGraphicsView::staticMetaObject,
                                          &QGroupBox::staticMetaObject,
                                          &QHeaderView::staticMetaObject,
                                          &QInputDialog::staticMetaObject,
                                          &QKeySequenceEdit::staticMetaObject,
                                          &QLCDNumber::staticMetaObject,
                                          &QLabel::staticMetaObject,
                                          &QLineEdit::staticMetaObject,
                                          &QListWidget::staticMetaObject,
                                          &QMainWindow::staticMetaObject,
                                          &QMdiArea::staticMetaObject,
                                          &QMdiSubWindow::staticMetaObject,
                                          &QMenu::staticMetaObject,
                                          &QMenuBar::staticMetaObject,
                                          &QMessageBox::staticMetaObject,
                                          &QPlainTextEdit::staticMetaObject,
                                          &QProgressBar::staticMetaObject,
                                          &QProgressDialog::staticMetaObject,
                                          &QPushButton::staticMetaObject,
                                          &QRadioButton::staticMetaObject,
                                          &QRubberBand::staticMetaObject,
                                          &QScrollArea::staticMetaObject,
                                          &QScrollBar::staticMetaObject,
                                          &QSizeGrip::staticMetaObject,
                                          &QSlider::staticMetaObject,
                                          &QSpinBox::staticMetaObject,
                                          &QSplashScreen::staticMetaObject,
                                          &QSplitter::staticMetaObject,
                                          &QStackedWidget::staticMetaObject,
                                          &QStatusBar::staticMetaObject,
                                          &QTabBar::staticMetaObject,
                                          &QTabWidget::staticMetaObject,
                                          &QTableWidget::staticMetaObject,
                                          &QTextBrowser::staticMetaObject,
                                          &QTimeEdit::staticMetaObject,
                                          &QToolBar::staticMetaObject,
                                          &QToolBox::staticMetaObject,
                                          &QToolButton::staticMetaObject,
                                          &QTreeWidget::staticMetaObject,
                                          &QUndoView::staticMetaObject,
                                          &QWizard::staticMetaObject};
    QHash<QString, const QMetaObject *> byName;
    for (const QMetaObject *meta : classes) {
        for (; meta && meta != &QObject::staticMetaObject; meta = meta->superClass())
            byName.insert(QString::fromLatin1(meta->className()), meta);
    }
    return byName;
}

QStringList edges(const QString &opening, const QString &closing)
{
    QStringList names;
    for (const char *edge : {"top", "right", "bottom", "left"})
        names << opening % QLatin1Char('-') % QLatin1String(edge) % closing;
    return names;
}

QStringList corners(const QString &opening)
{
    QStringList names;
    for (const char *corner : {"top-left", "top-right", "bottom-left", "bottom-right"})
        names << opening % QLatin1Char('-') % QLatin1String(corner) % QLatin1String("-radius");
    return names;
}

QHash<QString, QStringList> shorthands()
{
    QHash<QString, QStringList> all;
    for (const char *box : {"margin", "padding"})
        all.insert(QLatin1String(box), edges(QLatin1String(box), QString()));
    QStringList border;
    for (const char *detail : {"-width", "-style", "-color"}) {
        const QStringList names = edges(QStringLiteral("border"), QLatin1String(detail));
        all.insert(QLatin1String("border") + QLatin1String(detail), names);
        for (const QString &name : names)
            all[name.section(QLatin1Char('-'), 0, 1)] << name;
        border << names;
    }
    all.insert(QStringLiteral("border"), border);
    all.insert(QStringLiteral("border-radius"), corners(QStringLiteral("border")));
    all.insert(QStringLiteral("outline-radius"), corners(QStringLiteral("outline")));
    all.insert(QStringLiteral("outline"), words("outline-width outline-style outline-color"));
    all.insert(QStringLiteral("background"),
               words("background-color background-image background-repeat background-position"));
    all.insert(QStringLiteral("font"), words("font-style font-weight font-size font-family"));
    return all;
}

} // namespace

const QStringList &StyleVocabulary::properties()
{
    static const QStringList names = words(
        "-qt-background-role -qt-block-indent -qt-fg-texture-cachekey -qt-line-height-type "
        "-qt-list-indent -qt-list-number-prefix -qt-list-number-suffix -qt-paragraph-type "
        "-qt-style-features -qt-table-type -qt-user-state activate-on-singleclick alignment "
        "alternate-background-color arrow-keys-navigate-into-children background "
        "background-attachment background-clip background-color background-image "
        "background-origin background-position background-repeat backward-icon border "
        "border-bottom border-bottom-color border-bottom-left-radius "
        "border-bottom-right-radius border-bottom-style border-bottom-width border-collapse "
        "border-color border-image border-left border-left-color border-left-style "
        "border-left-width border-radius border-right border-right-color border-right-style "
        "border-right-width border-style border-top border-top-color border-top-left-radius "
        "border-top-right-radius border-top-style border-top-width border-width bottom "
        "button-layout cd-icon color combobox-list-mousetracking combobox-popup computer-icon "
        "desktop-icon dialog-apply-icon dialog-cancel-icon dialog-close-icon "
        "dialog-discard-icon dialog-help-icon dialog-no-icon dialog-ok-icon dialog-open-icon "
        "dialog-reset-icon dialog-save-icon dialog-yes-icon "
        "dialogbuttonbox-buttons-have-icons directory-closed-icon directory-icon "
        "directory-link-icon directory-open-icon dither-disable-text dockwidget-close-icon "
        "downarrow-icon dvd-icon etch-disabled-text file-icon file-link-icon "
        "filedialog-backward-icon filedialog-contentsview-icon filedialog-detailedview-icon "
        "filedialog-end-icon filedialog-infoview-icon filedialog-listview-icon "
        "filedialog-new-directory-icon filedialog-parent-directory-icon filedialog-start-icon "
        "float floppy-icon font font-family font-kerning font-size font-style font-variant "
        "font-weight forward-icon gridline-color harddisk-icon height home-icon icon "
        "icon-size image image-position left leftarrow-icon letter-spacing line-height "
        "lineedit-password-character lineedit-password-mask-delay list-style list-style-type "
        "margin margin-bottom margin-left margin-right margin-top max-height max-width "
        "mdi-fill-space-on-maximize menu-scrollable menubar-altkey-navigation "
        "menubar-separator messagebox-critical-icon messagebox-information-icon "
        "messagebox-question-icon messagebox-text-interaction-flags messagebox-warning-icon "
        "min-height min-width mouse-tracking network-icon opacity outline "
        "outline-bottom-left-radius outline-bottom-right-radius outline-color outline-offset "
        "outline-radius outline-style outline-top-left-radius outline-top-right-radius "
        "outline-width padding padding-bottom padding-left padding-right padding-top "
        "page-break-after page-break-before paint-alternating-row-colors-for-empty-area "
        "position right rightarrow-icon scrollbar-contextmenu "
        "scrollbar-leftclick-absolute-position scrollbar-middleclick-absolute-position "
        "scrollbar-roll-between-buttons scrollbar-scroll-when-pointer-leaves-control "
        "scrollview-frame-around-contents selection-background-color selection-color "
        "show-decoration-selected spacing spinbox-click-autorepeat-rate "
        "spincontrol-disable-on-bounds subcontrol-origin subcontrol-position "
        "tabbar-elide-mode tabbar-prefer-no-arrows text-align text-decoration text-indent "
        "text-transform text-underline-style titlebar-close-icon titlebar-contexthelp-icon "
        "titlebar-maximize-icon titlebar-menu-icon titlebar-minimize-icon "
        "titlebar-normal-icon titlebar-shade-icon titlebar-show-tooltips-on-buttons "
        "titlebar-unshade-icon toolbutton-popup-delay top trash-icon uparrow-icon "
        "vertical-align white-space widget-animation-duration width word-spacing");
    return names;
}

const QStringList &StyleVocabulary::states()
{
    static const QStringList names =
        words("active adjoins-item alternate bottom checked closable closed default disabled "
              "edit-focus editable enabled exclusive first flat floatable focus has-children "
              "has-siblings horizontal hover indeterminate last left maximized middle minimized "
              "movable next-selected no-frame non-exclusive off on only-one open pressed "
              "previous-selected read-only right selected top unchecked vertical window");
    return names;
}

const QStringList &StyleVocabulary::subControls()
{
    static const QStringList names =
        words("add-line add-page branch chunk close-button contexthelp-button corner down-arrow "
              "down-button drop-down float-button groove handle icon indicator item "
              "left-arrow left-corner maximize-button menu-arrow menu-button menu-indicator "
              "minimize-button normal-button pane right-arrow right-corner scroller section "
              "separator shade-button sub-line sub-page sys-menu tab tab-bar tear tearoff text "
              "tick-mark title unshade-button up-arrow up-button");
    return names;
}

const QStringList &StyleVocabulary::classes()
{
    static const QStringList names = [] {
        QStringList list = widgetClasses().keys();
        list << QStringLiteral("QObject") << QStringLiteral("QToolTip");
        list.sort();
        return list;
    }();
    return names;
}

bool StyleVocabulary::isState(const QString &name)
{
    static const QSet<QString> known(states().cbegin(), states().cend());
    return known.contains(name.toLower());
}

bool StyleVocabulary::isSubControl(const QString &name)
{
    static const QSet<QString> known(subControls().cbegin(), subControls().cend());
    return known.contains(name.toLower());
}

QStringList StyleVocabulary::longhands(const QString &property)
{
    static const QHash<QString, QStringList> known = shorthands();
    return known.value(property, QStringList(property));
}

bool StyleVocabulary::isInherited(const QString &property)
{
    return property == QLatin1String("color") || property.startsWith(QLatin1String("font"));
}

QStringList StyleVocabulary::typeAndBases(const QString &type)
{
    static const QHash<QString, const QMetaObject *> known = widgetClasses();
    QStringList types;
    for (const QMetaObject *meta = known.value(type); meta && meta != &QObject::staticMetaObject;
         meta = meta->superClass())
        types << QString::fromLatin1(meta->className());
    if (types.isEmpty() && type != QLatin1String("*"))
        types << type << QStringLiteral("QWidget"); // a class of the application
    return types << QStringLiteral("*");
}
