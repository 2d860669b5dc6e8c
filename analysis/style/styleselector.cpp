// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/styleselector.h>

#include <QHash>
#include <QRegularExpression>
#include <QtWidgets>

namespace
{

QHash<QString, const QMetaObject *> widgetClasses()
{
    const QMetaObject *const classes[] = {&QCalendarWidget::staticMetaObject,
                                          &QCheckBox::staticMetaObject,
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
                                          &QGroupBox::staticMetaObject,
                                          &QHeaderView::staticMetaObject,
                                          &QKeySequenceEdit::staticMetaObject,
                                          &QLCDNumber::staticMetaObject,
                                          &QLabel::staticMetaObject,
                                          &QLineEdit::staticMetaObject,
                                          &QListWidget::staticMetaObject,
                                          &QMainWindow::staticMetaObject,
                                          &QMdiArea::staticMetaObject,
                                          &QMenu::staticMetaObject,
                                          &QMenuBar::staticMetaObject,
                                          &QMessageBox::staticMetaObject,
                                          &QPlainTextEdit::staticMetaObject,
                                          &QProgressBar::staticMetaObject,
                                          &QPushButton::staticMetaObject,
                                          &QRadioButton::staticMetaObject,
                                          &QScrollArea::staticMetaObject,
                                          &QScrollBar::staticMetaObject,
                                          &QSizeGrip::staticMetaObject,
                                          &QSlider::staticMetaObject,
                                          &QSpinBox::staticMetaObject,
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

// What a single colon can introduce; any other word names a sub-control, for Qt too.
bool isState(const QString &name)
{
    static const QSet<QString> states = [] {
        const QString names = QStringLiteral(
            "active adjoins-item alternate bottom checked closable closed default disabled "
            "editable edit-focus enabled exclusive first flat floatable focus has-children "
            "has-siblings horizontal hover indeterminate last left maximized middle minimized "
            "movable no-frame non-exclusive off on only-one open next-selected pressed "
            "previous-selected read-only right selected top unchecked vertical window");
        const QStringList list = names.split(QLatin1Char(' '));
        return QSet<QString>(list.cbegin(), list.cend());
    }();
    return states.contains(name.startsWith(QLatin1Char('!')) ? name.mid(1) : name);
}

bool holds(const StyleSelector::Step &general, const StyleSelector::Step &specific)
{
    if (!typeAndBases(specific.type).contains(general.type))
        return false;
    for (const QString &attribute : general.attributes) {
        if (!specific.attributes.contains(attribute))
            return false;
    }
    return true;
}

} // namespace

int StyleSelector::specificity() const
{
    int names = 0;
    int attributes = states.size();
    int types = part.isEmpty() ? 0 : 1;
    for (const Step &step : steps) {
        for (const QString &attribute : step.attributes)
            ++(attribute.startsWith(QLatin1Char('#')) ? names : attributes);
        types += step.type == QLatin1String("*") ? 0 : 1;
    }
    return names * 10000 + attributes * 100 + types;
}

StyleSelector StyleSelector::parsed(const QString &text)
{
    static const QRegularExpression piece(QStringLiteral(
        "\\s*(>)\\s*|(\\s+)|(\\[[^\\]]*\\])|([#.][\\w-]+)|(::?)(!?[\\w-]+)|([\\w*]+)"));
    StyleSelector selector;
    selector.text = text.trimmed();
    selector.steps.append({QStringLiteral("*"), {}, false});
    int position = 0;
    while (position < selector.text.size()) {
        const QRegularExpressionMatch match =
            piece.match(selector.text, position, QRegularExpression::NormalMatch,
                        QRegularExpression::AnchoredMatchOption);
        if (!match.hasMatch())
            return {};
        position = match.capturedEnd();
        Step &step = selector.steps.last();
        if (match.capturedLength(1) > 0 || match.capturedLength(2) > 0) {
            selector.steps.append({QStringLiteral("*"), {}, match.capturedLength(1) > 0});
        } else if (match.capturedLength(3) > 0) {
            QString attribute = match.captured(3);
            step.attributes << attribute.remove(QLatin1Char(' '))
                                   .remove(QLatin1Char('"'))
                                   .remove(QLatin1Char('\''));
        } else if (match.capturedLength(4) > 0) {
            step.attributes << match.captured(4);
        } else if (match.capturedLength(5) > 0) {
            const QString name = match.captured(6);
            if (selector.part.isEmpty() && selector.states.isEmpty() && !isState(name))
                selector.part = name;
            else
                selector.states << name;
        } else {
            step.type = match.captured(7);
        }
    }
    for (Step &step : selector.steps)
        step.attributes.sort();
    selector.states.sort();
    return selector;
}

bool isWherever(const QVector<StyleSelector::Step> &general,
                const QVector<StyleSelector::Step> &specific)
{
    if (!holds(general.constLast(), specific.constLast()))
        return false;
    int from = specific.size() - 1;
    for (int i = general.size() - 2; i >= 0; --i) {
        const bool isChild = general.at(i + 1).isChild;
        if (isChild && (from == 0 || !specific.at(from).isChild))
            return false;
        --from;
        while (from >= 0 && !isChild && !holds(general.at(i), specific.at(from)))
            --from;
        if (from < 0 || !holds(general.at(i), specific.at(from)))
            return false;
    }
    return true;
}

QStringList typeAndBases(const QString &type)
{
    static const QHash<QString, const QMetaObject *> classes = widgetClasses();
    QStringList types;
    for (const QMetaObject *meta = classes.value(type); meta && meta != &QObject::staticMetaObject;
         meta = meta->superClass())
        types << QString::fromLatin1(meta->className());
    if (types.isEmpty() && type != QLatin1String("*"))
        types << type << QStringLiteral("QWidget"); // a class of the application
    return types << QStringLiteral("*");
}
