// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "qtversion.h"
#include "quietplatform.h"
#include "widgetzoo.h"

#include <inspector/inspection.h>

#include <QtTest>
#include <QtWidgets>

/*
 * Fonts, least and greatest sizes, and the box around contents: what the inspector says wins is held against
 * what Qt gave the widgets. For each class of a window there are rules of several weights that want
 * different values, no value twice, so that a wrong winner shows.
 */
class tst_SizesAgainstQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void windows_data();
    void windows();
    void cleanupTestCase();

private:
    QString competingRules(const QWidget *window);
    void compare(QWidget *widget, const InspectedSheet &sheet);
    void compareFont(const QWidget *widget, const Inspection &inspection);
    void compareLimits(const QWidget *widget, const Inspection &inspection);
    void compareContents(const QWidget *widget, const Inspection &inspection);
    template<typename Value>
    void count(const QWidget *widget, const char *what, const Value &said, const Value &given);

    std::unique_ptr<QuietPlatform> m_quiet;
    int m_next = 0; // of values that nobody has
    QMap<QString, int> m_comparisons; // by what is compared
    QStringList m_disagreements;
};

namespace
{

// The number that a winning rule says, or nothing.
std::optional<double> numberOf(const Inspection &inspection, const char *property)
{
    const InspectedValue *value = inspection.value(QLatin1String(property));
    if (!value || !value->isOfRule())
        return std::nullopt;
    QString number = value->value;
    if (number.endsWith(QLatin1String("px")) || number.endsWith(QLatin1String("pt")))
        number.chop(2);
    bool isNumber = false;
    const double result = number.toDouble(&isNumber);
    return isNumber ? std::make_optional(result) : std::nullopt;
}

int across(const QMargins &margins)
{
    return margins.left() + margins.right();
}

int upright(const QMargins &margins)
{
    return margins.top() + margins.bottom();
}

// Widgets whose limits layouts or their owners set after Qt has set those of the rules.
bool isLimitedByOthers(const QWidget *widget)
{
    return (widget->isWindow() && widget->layout()) || qobject_cast<const QDockWidget *>(widget)
        || qobject_cast<const QSplitter *>(widget)
        || widget->objectName().startsWith("qt_scrollarea_")
        || widget->inherits("QDockWidgetTitleButton");
}

// Texts that show a font that is to be chosen, and buttons that Qt gives no font.
bool hasOwnFont(const QWidget *widget)
{
    return widget->objectName() == "qt_fontDialog_sampleEdit"
        || widget->inherits("QDockWidgetTitleButton");
}

} // namespace

void tst_SizesAgainstQt::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    QApplication::setStyle("fusion");
}

void tst_SizesAgainstQt::windows_data()
{
    QTest::addColumn<int>("page");
    for (int i = 0; i < Zoo::pages().size(); ++i)
        QTest::newRow(Zoo::pages().at(i).name) << i;
    for (int i = 0; i < Zoo::dialogs().size(); ++i)
        QTest::newRow(Zoo::dialogs().at(i).name) << Zoo::pages().size() + i;
}

// Rules of five weights; each wants other properties than the one before, in turns. All classes have a border
// on all sides: one that no rule tells is native, and as wide as the style alone knows.
QString tst_SizesAgainstQt::competingRules(const QWidget *window)
{
    static const char *const selectors[] = {"%1", ".%1", "QWidget %1", "QWidget > %1",
                                            "QWidget QWidget %1"};
    static const char *const properties[] = {
        "font-size: %1pt",    "min-width: %2px",    "padding: %3px",          "font-weight: %4",
        "max-height: %5px",   "margin-left: %3px",  "border: %3px solid red", "min-height: %2px",
        "padding-left: %3px", "font-style: italic", "max-width: %5px",        "margin: %3px",
        "margin-top: %3px",   "font-size: %1pt",    "padding-bottom: %3px",
    };
    QStringList classes{"QWidget"};
    const auto all = window->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        const QString name = QLatin1String(widget->metaObject()->className());
        if (!name.contains(':') && !classes.contains(name))
            classes.append(name);
    }
    QString rules;
    int property = 0;
    for (const char *selector : selectors) {
        for (const QString &name : qAsConst(classes)) {
            QStringList declarations{QString("border: %1px solid red").arg(++m_next % 11)};
            if (QLatin1String(selector) != QLatin1String("%1"))
                declarations.clear();
            for (int i = 0; i < 4; ++i) {
                ++m_next;
                QString text = QLatin1String(properties[property++ % int(std::size(properties))]);
                text.replace("%1", QString::number(8 + 0.004 * (m_next % 1000)));
                text.replace("%2", QString::number(5 + m_next % 60));
                text.replace("%3", QString::number(m_next % 13));
                text.replace("%4", QString::number(100 * (1 + m_next % 9)));
                text.replace("%5", QString::number(300 + m_next % 600));
                declarations.append(text);
            }
            rules +=
                QString::fromLatin1(selector).arg(name) + " {" + declarations.join("; ") + "}\n";
        }
    }
    return rules;
}

void tst_SizesAgainstQt::windows()
{
    QFETCH(int, page);
    const int dialog = page - int(Zoo::pages().size());
    const std::unique_ptr<QWidget> window(dialog < 0 ? Zoo::pages().at(page).make()
                                                     : Zoo::dialogs().at(dialog).make());
    qApp->setStyleSheet(competingRules(window.get()));
    Zoo::settle(window.get());
    const InspectedSheet sheet(qApp->styleSheet(), {});
    const QList<QWidget *> widgets = window->findChildren<QWidget *>() << window.get();
    for (QWidget *widget : widgets) {
        if (widget->testAttribute(Qt::WA_WState_Polished) && paintedAs(widget) == widget)
            compare(widget, sheet);
    }
    QVERIFY(!m_comparisons.isEmpty());
}

template<typename Value>
void tst_SizesAgainstQt::count(const QWidget *widget, const char *what, const Value &said,
                               const Value &given)
{
    ++m_comparisons[QLatin1String(what)];
    if (said == given)
        return;
    QString text;
    QDebug(&text).nospace() << QTest::currentDataTag() << ' ' << qPrintable(nameOf(widget)) << ": "
                            << what << " said " << said << ", given " << given;
    m_disagreements << text;
}

void tst_SizesAgainstQt::compare(QWidget *widget, const InspectedSheet &sheet)
{
    const WidgetPart itself = widgetParts(widget).constFirst();
    const Inspection inspection = Inspection::of(widget, itself, sheet);
    if (!hasOwnFont(widget))
        compareFont(widget, inspection);
    if (!isLimitedByOthers(widget))
        compareLimits(widget, inspection);
    compareContents(widget, inspection);
}

void tst_SizesAgainstQt::compareFont(const QWidget *widget, const Inspection &inspection)
{
    const QFont font = widget->font();
    if (const auto size = numberOf(inspection, "font-size");
        size && inspection.value("font-size")->value.endsWith("pt"))
        count(widget, "font-size", *size, font.pointSizeF());
    if (const auto weight = numberOf(inspection, "font-weight"))
        count(widget, "font-weight", QtDifference::fontWeight(*weight), int(font.weight()));
    if (const InspectedValue *style = inspection.value("font-style"); style && style->isOfRule())
        count(widget, "font-style", true, font.italic());
}

// Qt sets them from the rules of the enabled widget, with all that is around the contents.
void tst_SizesAgainstQt::compareLimits(const QWidget *widget, const Inspection &inspection)
{
    const QMargins around = inspection.box.padding + inspection.box.border + inspection.box.margin;
    const auto least = [&](const char *limit, const char *size) {
        return qMax(*numberOf(inspection, limit), numberOf(inspection, size).value_or(-1));
    };
    if (numberOf(inspection, "min-width"))
        count(widget, "min-width", int(least("min-width", "width")) + across(around),
              widget->minimumWidth());
    if (numberOf(inspection, "min-height"))
        count(widget, "min-height", int(least("min-height", "height")) + upright(around),
              widget->minimumHeight());
    if (const auto most = numberOf(inspection, "max-width"))
        count(widget, "max-width", int(*most) + across(around), widget->maximumWidth());
    if (const auto most = numberOf(inspection, "max-height"))
        count(widget, "max-height", int(*most) + upright(around), widget->maximumHeight());
}

void tst_SizesAgainstQt::compareContents(const QWidget *widget, const Inspection &inspection)
{
    QSize given;
    if (const auto *button = qobject_cast<const QPushButton *>(widget)) {
        QStyleOptionButton option;
        option.initFrom(button);
        given =
            button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button).size();
    } else if (qobject_cast<const QLineEdit *>(widget)) {
        QStyleOptionFrame option;
        option.initFrom(widget);
        given =
            widget->style()->subElementRect(QStyle::SE_LineEditContents, &option, widget).size();
    } else {
        return;
    }
    if (inspection.box.contents.isValid()) // else the widget is smaller than what is around
        count(widget, "contents", inspection.box.contents, given);
}

void tst_SizesAgainstQt::cleanupTestCase()
{
    for (const QString &disagreement : qAsConst(m_disagreements))
        qInfo("%s", qUtf8Printable(disagreement));
    int all = 0;
    for (auto it = m_comparisons.cbegin(); it != m_comparisons.cend(); ++it) {
        qInfo("%s: %d", qUtf8Printable(it.key()), *it);
        all += *it;
    }
    qInfo("%d comparisons, %d disagreements", all, int(m_disagreements.size()));
    QCOMPARE(m_comparisons.size(), 8);
    QCOMPARE(m_disagreements.size(), 0);
    qApp->setStyleSheet(QString());
}

QTEST_MAIN(tst_SizesAgainstQt)

#include "tst_sizesagainstqt.moc"
