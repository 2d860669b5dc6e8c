// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/changedtext.h>
#include <hvtheme/inifile.h>

#include "qtversion.h"

#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QtTest>

namespace
{

ThemeFile fileOf(const QByteArray &content)
{
    QString error;
    return *ThemeFile::fromContent(QStringLiteral("a.theme"), content, &error);
}

// All that QSettings reads, from a file on disk: always another, because it remembers files by name,
// size and time.
QMap<QString, QVariant> readBySettings(const QTemporaryDir &folder, const QByteArray &content)
{
    QTemporaryFile file(folder.filePath("XXXXXX.ini"));
    if (!file.open() || file.write(content) != content.size() || !file.flush())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    QMap<QString, QVariant> values;
    const QSettings settings(file.fileName(), HV::iniFormat(file.fileName()));
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (!key.isEmpty())
            values.insert(key, settings.value(key));
    }
    return values;
}

class Chance
{
public:
    explicit Chance(quint32 seed)
        : m_generator(seed)
    {
    }
    int below(int bound) { return m_generator.bounded(bound); }
    bool isOneIn(int count) { return below(count) == 0; }
    template<typename List>
    auto oneOf(const List &list)
    {
        return list.at(below(int(list.size())));
    }

private:
    QRandomGenerator m_generator;
};

const QVector<QByteArray> keys{"a", "b", "Bg_1", "H\\1\\pos", "%20x", "%U4E2Dy", "\xE9", "c.d"};
const QVector<QByteArray> headers{"[Palettes]", "[Colors]",     "[General]", "[%General]",
                                  "[Colors]",   "[Gradients] ", "[X%20Y]",   "[Palettes"};
const QVector<QByteArray> rawValues{
    "",         "fff",        "#102030",      "\"a, b\"",      "a, b",        "\"x;y\" z",
    "1 ",       "  2\t",      "\\x4e2d\\x41", "\"\\\"q\\\"\"", "caf\xC3\xA9", "\xE9t\xE9",
    "a\\\n  b", "\"c\nd=e\"", "@Size(1 2)",   "@@at",          "=x",          "a\\",
    "\"q\"",    "\"\"",       "\\t\\n",       "a\\ ",          "%41",         "'s'"};

// A text with all that theme files may have in them; rarely one whose last quotation mark is open.
QByteArray randomFile(Chance *chance)
{
    const QByteArray end = chance->oneOf(QVector<QByteArray>{"\n", "\n", "\r\n", "\r"});
    QByteArray text = chance->isOneIn(3) ? QByteArray("\xEF\xBB\xBF") : QByteArray();
    const int lines = chance->below(16);
    for (int i = 0; i < lines; ++i) {
        if (chance->isOneIn(5)) {
            text += chance->oneOf(headers);
        } else if (chance->isOneIn(6)) {
            text += chance->oneOf(QVector<QByteArray>{"; a=1 \"", "", "   ", "# not", "noise"});
        } else {
            text += chance->oneOf(QVector<QByteArray>{"", "", "  ", "\t"}) + chance->oneOf(keys);
            text += chance->oneOf(QVector<QByteArray>{"=", "=", " = "}) + chance->oneOf(rawValues);
            text += chance->oneOf(QVector<QByteArray>{"", "", "", ";c", " ; \"c"});
        }
        if (i + 1 < lines || !chance->isOneIn(4))
            text += end;
    }
    if (QtDifference::markIsForKeysToo && text.startsWith("\xEF\xBB\xBF"))
        text.replace('\xE9', 'e').insert(3, '\n');
    return chance->isOneIn(40) ? text + "z=\"open" : text;
}

QString randomValue(Chance *chance)
{
    static const QString characters = QStringLiteral("aF9 ,;=\"\\#@%'()/x0\n\r\t") + QChar(0)
        + QChar(0x1b) + QChar(0x7f) + QChar(0xe9) + QChar(0x4e2d) + QChar(0xd83d) + QChar(0xde00)
        + QChar(0xfeff) + QChar(0x2028);
    QString value;
    for (int i = chance->below(9); i > 0; --i)
        value += characters.at(chance->below(int(characters.size())));
    return chance->isOneIn(8) ? QStringLiteral("@String(") + value : value;
}

// Tells whether one run of characters is all that is new, and none is gone.
bool isInsertion(const QByteArray &before, const QByteArray &after)
{
    int same = 0;
    while (same < before.size() && same < after.size() && before.at(same) == after.at(same))
        ++same;
    for (; same >= 0; --same) {
        if (after.endsWith(before.mid(same)))
            return after.size() >= before.size();
    }
    return false;
}

} // namespace

class tst_ChangedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withValue_data();
    void withValue();
    void refused_data();
    void refused();
    void withoutKey_data();
    void withoutKey();
    void agreesWithSettings();
};

void tst_ChangedText::withValue_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const char *name, const char *before, const char *key, const char *value,
                        const char *after) {
        QTest::newRow(name) << QByteArray(before) << QString::fromUtf8(key)
                            << QString::fromUtf8(value) << QByteArray(after);
    };
    row("plain", "[Palettes]\nBg=fff\nFg=000\n", "Palettes/Bg", "123",
        "[Palettes]\nBg=123\nFg=000\n");
    row("crlf", "[P]\r\na=1\r\nb=2\r\n", "P/a", "#fff", "[P]\r\na=#fff\r\nb=2\r\n");
    row("blanks", "[P]\n  a =  1\t ; why\n", "P/a", "2", "[P]\n  a =  2\t ; why\n");
    row("quotes-stay", "[P]\na=\"1\"\n", "P/a", "2", "[P]\na=\"2\"\n");
    row("quotes-come", "[P]\na=1\n", "P/a", "a,b;c", "[P]\na=\"a,b;c\"\n");
    row("continued", "[P]\na=1\\\n  2\nb=3\n", "P/a", "4", "[P]\na=4\nb=3\n");
    row("empty", "[P]\na=\nb=1\n", "P/a", "x", "[P]\na=x\nb=1\n");
    row("last-of-two", "[P]\na=1\na=2\n", "P/a", "3", "[P]\na=1\na=3\n");
    row("escaped", "[P]\na=1\n", "P/a", "\u4e2d1g", "[P]\na=\\x4e2d\\x31g\n");
    row("utf-8", "\xEF\xBB\xBF[P]\na=1\n", "P/a", "\u4e2d1",
        "\xEF\xBB\xBF[P]\na=\xE4\xB8\xAD"
        "1\n");
    row("at-sign", "[P]\na=1\n", "P/a", "@x", "[P]\na=@@x\n");
    row("same-value-stays-as-written", "[P]\na=\\x31\n", "P/a", "1", "[P]\na=\\x31\n");
    row("array", "[G]\nH\\1\\color=a\n", "G/H/1/color", "b", "[G]\nH\\1\\color=b\n");
    row("no-last-line-end", "[P]\na=1", "P/a", "2", "[P]\na=2");
    row("new-key", "[P]\na=1 ; x\n\n; of Q\n[Q]\nb=1\n", "P/c", "2",
        "[P]\na=1 ; x\nc=2\n\n; of Q\n[Q]\nb=1\n");
    row("new-key-behind-header", "[P] ; x\r\n[Q]\r\n", "P/c d", "2",
        "[P] ; x\r\nc%20d=2\r\n[Q]\r\n");
    row("new-key-last-section-of-two", "[P]\na=1\n[Q]\nb=1\n[P]\nc=1\n", "P/d", "1",
        "[P]\na=1\n[Q]\nb=1\n[P]\nc=1\nd=1\n");
    row("new-key-no-last-line-end", "[P]\na=1", "P/b", "2", "[P]\na=1\nb=2");
    row("new-key-behind-backslash", "[P]\na=1\\", "P/b", "2", "[P]\na=1\\\n\nb=2");
    row("new-top-level", "ThemeName=x\n[P]\na=1\n", "b", "2", "ThemeName=x\nb=2\n[P]\na=1\n");
    row("new-general", "[P]\na=1\n", "b", "2", "[P]\na=1\n\n[General]\nb=2\n");
    row("new-section", "[P]\na=1\n", "Q/H/size", "2", "[P]\na=1\n\n[Q]\nH\\size=2\n");
    row("new-section-called-general", "[P]\na=1\n", "General/x", "2",
        "[P]\na=1\n\n[%General]\nx=2\n");
    row("empty-file", "", "P/a", "2", "[P]\na=2\n");
    row("only-byte-order-mark", "\xEF\xBB\xBF", "P/a", "2", "\xEF\xBB\xBF[P]\na=2\n");
}

void tst_ChangedText::withValue()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QByteArray, after);
    QString error;
    const auto content = ChangedText::withValue(fileOf(before), key, value, &error);
    QVERIFY2(content, qPrintable(error));
    QCOMPARE(*content, after);
    QCOMPARE(ChangedText::values(*content).value(key).toString(), value);
}

void tst_ChangedText::refused_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("message");

    const QString noKey = QStringLiteral("a.theme: no entry can be called \"%1\"");
    QTest::newRow("empty") << QByteArray("[P]\n") << QString() << noKey.arg(QString());
    QTest::newRow("slashes") << QByteArray("[P]\n") << "P//a" << noKey.arg("P//a");
    QTest::newRow("open-quotes")
        << QByteArray("[P]\na=\"1\n") << "P/b"
        << "a.theme: \"P/b\" cannot be set without changing other entries; "
           "look for a quotation mark that is never closed";
}

void tst_ChangedText::refused()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, key);
    QFETCH(QString, message);
    QString error;
    QVERIFY(!ChangedText::withValue(fileOf(before), key, QStringLiteral("x"), &error));
    QCOMPARE(error, message);
}

void tst_ChangedText::withoutKey_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("line") << QByteArray("[P]\r\n  a=1\r\nb=2\r\n") << QByteArray("[P]\r\nb=2\r\n");
    QTest::newRow("comment-stays") << QByteArray("[P]\na=1 ;c\n") << QByteArray("[P]\n;c\n");
    QTest::newRow("all-of-several") << QByteArray("[P]\na=1\nb=2\na=3") << QByteArray("[P]\nb=2\n");
    QTest::newRow("continued") << QByteArray("[P]\na=1\\\n 2\nb=2\n") << QByteArray("[P]\nb=2\n");
    QTest::newRow("none") << QByteArray("[Q]\na=1\n") << QByteArray("[Q]\na=1\n");
}

void tst_ChangedText::withoutKey()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QCOMPARE(ChangedText::withoutKey(fileOf(before), QStringLiteral("P/a")), after);
}

void tst_ChangedText::agreesWithSettings()
{
    const int count = 3000;
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    Chance chance(20260713);
    int changed = 0;
    int added = 0;
    int refused = 0;
    for (int i = 0; i < count; ++i) {
        const QByteArray before = randomFile(&chance);
        const ThemeFile file = fileOf(before);
        const bool isNew = file.entries().isEmpty() || chance.isOneIn(3);
        const QStringList newKeys{"Palettes/new", "new", "Colors/a b/c", "General/x", "New/\u4e2d"};
        const QString key = isNew ? chance.oneOf(newKeys) : chance.oneOf(file.entries()).key;
        const QString value = randomValue(&chance);
        QString error;
        const auto content = ChangedText::withValue(file, key, value, &error);
        const QByteArray told = "file " + before.toPercentEncoding(" =[]") + " key "
            + key.toUtf8().toPercentEncoding() + " value " + value.toUtf8().toPercentEncoding()
            + " now " + content.value_or(QByteArray()).toPercentEncoding(" =[]");
        if (!content) {
            // Nothing but an open quotation mark is in the way: another entry cannot be added either.
            const auto probed = readBySettings(folder, before + "\n\n[Probe]\nprobe=1\n");
            QVERIFY2(!file.find(key) && !probed.contains("Probe/probe"), told.constData());
            ++refused;
            continue;
        }
        auto expected = readBySettings(folder, before);
        const auto found = readBySettings(folder, *content);
        expected.insert(key, value);
        QVERIFY2(found.keys() == expected.keys(), told.constData());
        for (auto it = expected.cbegin(); it != expected.cend(); ++it)
            QVERIFY2(found.value(it.key()) == *it, told.constData());
        if (const ThemeFileEntry *entry = file.find(key)) {
            QVERIFY2(content->startsWith(before.left(entry->valueStart)), told.constData());
            QVERIFY2(content->endsWith(before.mid(entry->valueEnd)), told.constData());
            ++changed;
        } else {
            QVERIFY2(isInsertion(before, *content), told.constData());
            ++added;
        }
    }
    qInfo("%d changed, %d added, %d refused", changed, added, refused);
    QVERIFY(changed > count / 2);
    QVERIFY(added > count / 5);
    QVERIFY(refused < count / 10);
}

QTEST_GUILESS_MAIN(tst_ChangedText)

#include "tst_changedtext.moc"
