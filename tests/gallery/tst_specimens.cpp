// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"
#include "specimenpicture.h"

#include <gallery/messagelist.h>

#include <QtTest>

using namespace Gallery;

namespace
{

struct Rule {
    QString selector; // one member of the selector list
    QString body;
};

QVector<Rule> parseRules(QString sheet)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression block(QStringLiteral("([^{}]+)\\{([^}]*)\\}"));
    sheet.remove(comment);
    QVector<Rule> rules;
    for (auto hits = block.globalMatch(sheet); hits.hasNext();) {
        const auto hit = hits.next();
        const QStringList selectors = hit.captured(1).split(QLatin1Char(','));
        for (const QString &selector : selectors)
            rules.append({selector.simplified(), hit.captured(2)});
    }
    return rules;
}

// Bodies that no rule could be given without showing, if only Qt listened to it.
QStringList garishBodies(const QString &image)
{
    return {QStringLiteral("background-color: #ff00ff"),
            QStringLiteral("background: #ff00ff; width: 37px; height: 37px"),
            QStringLiteral("background: #ff00ff; width: 150px; height: 80px"),
            QStringLiteral("color: #ff00ff"),
            QStringLiteral("border: 3px solid #ff00ff"),
            QStringLiteral("font-size: 31px"),
            QStringLiteral("image: url(%1); width: 10px; height: 10px").arg(image)};
}

} // namespace

class tst_Specimens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everySpecimenHasItsRule_data();
    void everySpecimenHasItsRule();
    void everyRuleHasASpecimen_data();
    void everyRuleHasASpecimen();
    void ruleShowsOnItsSpecimen_data();
    void ruleShowsOnItsSpecimen();
    void notesNameRules();
    void documentationListsTheNotes();

private:
    void addRules() const;
    void setSheet(int changedRule, const QString &body) const;
    bool changes(int rule, const QString &body, const QImage &whole) const;
    const EngineNote *noteOf(const QString &selector) const;

    MessageList m_log; // swallows what the platform says of every window shown
    DistinctTheme m_files;
    QVector<Rule> m_rules;
    QVector<EngineNote> m_notes = engineNotes();
};

void tst_Specimens::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, QStringLiteral("default"), m_files.folder());
    m_rules = parseRules(
        HV::findStyleSheet(&theme, QStringLiteral(":/stylesheet"), QStringLiteral("global")));
    QVERIFY(m_rules.size() > 250);
}

void tst_Specimens::addRules() const
{
    QTest::addColumn<int>("rule");
    for (int i = 0; i < m_rules.size(); ++i)
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(i).arg(m_rules.at(i).selector))) << i;
}

// The whole sheet, with another body for one rule.
void tst_Specimens::setSheet(int changedRule, const QString &body) const
{
    QString sheet;
    for (int i = 0; i < m_rules.size(); ++i)
        sheet += m_rules.at(i).selector + QLatin1String(" {")
            + (i == changedRule ? body : m_rules.at(i).body) + QLatin1String("}\n");
    qApp->setStyleSheet(QString());
    qApp->setStyleSheet(sheet);
}

bool tst_Specimens::changes(int rule, const QString &body, const QImage &whole) const
{
    setSheet(rule, body);
    return pictureOf(specimenOf(m_rules.at(rule).selector)) != whole;
}

const EngineNote *tst_Specimens::noteOf(const QString &selector) const
{
    for (const EngineNote &note : m_notes) {
        if (note.selector == selector)
            return &note;
    }
    return nullptr;
}

void tst_Specimens::everySpecimenHasItsRule_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<bool>("hasRule");
    int i = 0;
    const auto specimens = allSpecimens();
    for (const Specimen &specimen : specimens)
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(i++).arg(specimen.selector)))
            << specimen.selector << specimen.hasRule;
}

void tst_Specimens::everySpecimenHasItsRule()
{
    QFETCH(QString, selector);
    QFETCH(bool, hasRule);
    const bool found = std::any_of(m_rules.cbegin(), m_rules.cend(),
                                   [&](const Rule &rule) { return rule.selector == selector; });
    QCOMPARE(found, hasRule);
    QVERIFY(!pictureOf(specimenOf(selector)).isNull());
}

void tst_Specimens::everyRuleHasASpecimen_data()
{
    addRules();
}

void tst_Specimens::everyRuleHasASpecimen()
{
    QFETCH(int, rule);
    QCOMPARE(specimenOf(m_rules.at(rule).selector).selector, m_rules.at(rule).selector);
}

void tst_Specimens::ruleShowsOnItsSpecimen_data()
{
    addRules();
}

// A rule that Qt honours is seen to go; what the notes say of the others is true.
void tst_Specimens::ruleShowsOnItsSpecimen()
{
    QFETCH(int, rule);
    const QString selector = m_rules.at(rule).selector;
    setSheet(-1, {});
    const QImage whole = pictureOf(specimenOf(selector));
    const bool seen = changes(rule, {}, whole);
    const EngineNote *note = noteOf(selector);
    const bool silent = note != nullptr
        && (note->kind == EngineNote::Kind::Ignored || note->kind == EngineNote::Kind::Hidden);
    QCOMPARE(seen, !silent);
    if (!silent)
        return;
    bool garishSeen = false;
    for (const QString &body : garishBodies(m_files.imagePath(QStringLiteral("add"))))
        garishSeen = garishSeen || changes(rule, body, whole);
    QCOMPARE(garishSeen, note->kind == EngineNote::Kind::Hidden);
}

void tst_Specimens::notesNameRules()
{
    for (const EngineNote &note : qAsConst(m_notes)) {
        QVERIFY2(specimenOf(note.selector).hasRule, qPrintable(note.selector));
        QCOMPARE(specimenOf(note.selector).selector, note.selector);
        QVERIFY(note.reason.endsWith(QLatin1Char('.')));
    }
}

void tst_Specimens::documentationListsTheNotes()
{
    QFile page(QStringLiteral(HVTHEME_SOURCE_DIR "/docs/gallery.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll()).simplified();
    for (const EngineNote &note : qAsConst(m_notes)) {
        QVERIFY2(text.contains(QLatin1Char('`') + note.selector + QLatin1Char('`')),
                 qPrintable(note.selector));
        QVERIFY2(text.contains(note.reason), qPrintable(note.reason));
    }
}

QTEST_MAIN(tst_Specimens)

#include "tst_specimens.moc"
