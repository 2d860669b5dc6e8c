// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "ownpicture.h"
#include "quietplatform.h"
#include "styledparts.h"
#include "widgetzoo.h"

#include <inspector/inspection.h>

#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

/*
 * A rule is taken out of the style sheet: what looks different then must be what the inspector says has
 * something of that rule.
 */
class tst_RulesTakenOut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void changesWhatIsNamed_data();
    void changesWhatIsNamed();
    void cleanupTestCase();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
    HV::ApplicationTheme m_theme;
    QString m_look;
    int m_rules = 0;
    int m_comparisons = 0;
    int m_changes = 0;
    int m_unchanged = 0; // named, but what comes next in the cascade looks the same
    QStringList m_disagreements;
};

namespace
{

constexpr int rulesOfAWindow = 5;

// What a widget looks like, and how large it wants to be. What has children wants what they want.
struct Look {
    QImage picture;
    QFont font;
    QSize least;
    QSize most;
    QSize hint;

    static Look of(QWidget *widget)
    {
        const bool isSingle = widget->findChildren<QWidget *>().isEmpty();
        // Layouts limit windows, and scroll areas what holds their bars.
        const bool isLimited = (widget->isWindow() && widget->layout())
            || widget->objectName().startsWith("qt_scrollarea_");
        return {ownPicture(widget), widget->font(), isLimited ? QSize() : widget->minimumSize(),
                isLimited ? QSize() : widget->maximumSize(),
                isSingle ? widget->sizeHint() : QSize()};
    }
    // Of a widget that another size was given to, only what it was given by its rules is compared.
    bool operator==(const Look &other) const
    {
        return (picture == other.picture || picture.size() != other.picture.size())
            && font == other.font && least == other.least && most == other.most
            && hint == other.hint;
    }
};

// Every value that a rule gives to a widget, or to a part of it, as the inspector tells them.
QHash<QString, QString> valuesOf(QWidget *widget, const InspectedSheet &sheet)
{
    QHash<QString, QString> values;
    forEachStyledProperty(widget, sheet, [&](int part, const StyleProperty &property) {
        values.insert(QString::number(part) + property.name, property.winner().value);
    });
    return values;
}

// Rules that match something here, spread over the style sheet.
QVector<StyleRule> sampleOf(const InspectedSheet &sheet, const QList<QWidget *> &widgets, int seed)
{
    QSet<int> offsets; // of winners
    for (QWidget *widget : widgets)
        forEachStyledProperty(widget, sheet, [&](int, const StyleProperty &property) {
            offsets << property.winner().offset;
        });
    QVector<StyleRule> used;
    for (const StyleRule &rule : sheet.rules().rules()) {
        const bool isUsed =
            std::any_of(rule.declarations.cbegin(), rule.declarations.cend(),
                        [&](const StyleDeclaration &one) { return offsets.contains(one.start); });
        if (isUsed)
            used.append(rule);
    }
    QVector<StyleRule> sample;
    const int step = qMax(1, int(used.size()) / rulesOfAWindow);
    for (int i = seed % step; i < used.size() && sample.size() < rulesOfAWindow; i += step)
        sample.append(used.at(i));
    return sample;
}

// The buttons of a dock widget's title change with any style sheet: Qt gives them no rules. Whether a
// combo box's list is drawn as a menu's hangs on whether a rule draws the box.
bool hangsOnOthers(const QWidget *widget)
{
    return widget->inherits("QDockWidgetTitleButton")
        || (widget->parent() && widget->parent()->inherits("QComboBoxListView"));
}

} // namespace

void tst_RulesTakenOut::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    QApplication::setStyle("fusion");
    QVERIFY(m_theme.setName("light"));
    m_look = qApp->styleSheet();
}

void tst_RulesTakenOut::changesWhatIsNamed_data()
{
    QTest::addColumn<int>("page");
    for (int i = 0; i < Zoo::pages().size(); ++i)
        QTest::newRow(Zoo::pages().at(i).name) << i;
}

void tst_RulesTakenOut::changesWhatIsNamed()
{
    QFETCH(int, page);
    qApp->setStyleSheet(m_look);
    const std::unique_ptr<QWidget> window(Zoo::pages().at(page).make());
    Zoo::settle(window.get());
    QList<QWidget *> widgets;
    const QList<QWidget *> all = window->findChildren<QWidget *>() << window.get();
    for (QWidget *widget : all) {
        if (widget->isVisible() && !widget->size().isEmpty() && !hangsOnOthers(widget))
            widgets.append(widget);
    }
    const InspectedSheet whole(m_look, {});
    QVector<Look> before;
    QVector<QHash<QString, QString>> saidBefore;
    for (QWidget *widget : qAsConst(widgets)) {
        before.append(Look::of(widget));
        saidBefore.append(valuesOf(widget, whole));
    }
    const QVector<StyleRule> sample = sampleOf(whole, widgets, page);
    QVERIFY(!sample.isEmpty());
    for (const StyleRule &rule : sample) {
        QString text = m_look;
        text.replace(rule.start, rule.end - rule.start, QString(rule.end - rule.start, ' '));
        const InspectedSheet without(text, {});
        qApp->setStyleSheet(text);
        ++m_rules;
        for (int i = 0; i < widgets.size(); ++i) {
            const bool isNamed = valuesOf(widgets.at(i), without) != saidBefore.at(i);
            const bool isChanged = !(Look::of(widgets.at(i)) == before.at(i));
            ++m_comparisons;
            m_changes += isChanged ? 1 : 0;
            m_unchanged += isNamed && !isChanged ? 1 : 0;
            if (isChanged && !isNamed)
                m_disagreements << QTest::currentDataTag() + QString(": ") + nameOf(widgets.at(i))
                        + " in " + nameOf(widgets.at(i)->parent() ? widgets.at(i)->parent() : qApp)
                        + " changes without " + rule.selector;
        }
        qApp->setStyleSheet(m_look);
    }
}

void tst_RulesTakenOut::cleanupTestCase()
{
    for (const QString &disagreement : qAsConst(m_disagreements))
        qInfo("%s", qUtf8Printable(disagreement));
    qInfo("%d rules, %d comparisons: %d changes, %d that look the same all the same, %d "
          "disagreements",
          m_rules, m_comparisons, m_changes, m_unchanged, int(m_disagreements.size()));
    QVERIFY(m_rules > 30);
    QVERIFY(m_changes > 100);
    QCOMPARE(m_disagreements.size(), 0);
    qApp->setStyleSheet(QString());
}

QTEST_MAIN(tst_RulesTakenOut)

#include "tst_rulestakenout.moc"
