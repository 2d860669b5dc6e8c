// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/messagelog.h>
#include <analysis/style/styleparser.h>

#include <QtTest>
#include <QtWidgets>

#include <random>

class tst_StyleParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void accepts_data();
    void accepts();
    void agreesWithQtAtRandom();
    void rejectedRules_data();
    void rejectedRules();
    void leavesApplicationAlone();
    void logsNothing();
};

namespace
{

bool isApplicationStyleSheet(const QString &text)
{
    const MessageLog log;
    QWidget widget;
    qApp->setStyleSheet(text);
    widget.ensurePolished();
    qApp->setStyleSheet(QString());
    for (const LoggedMessage &message : log.messages()) {
        if (message.text.startsWith("Could not parse"))
            return false;
    }
    return true;
}

// Counts what a program would notice if its style sheet or style changed.
class Witness : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange || event->type() == QEvent::Polish
            || event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
        return false;
    }
};

} // namespace

void tst_StyleParser::accepts_data()
{
    QTest::addColumn<QString>("styleSheet");
    for (const char *text : {"",
                             "QLabel { color: red }",
                             "QLabel { color: red",
                             "QLabel, { color: red }",
                             "QLabel,",
                             "QLabel >",
                             "QLabel",
                             "color: red",
                             "}",
                             "QLabel { color: red } }",
                             "QLabel { a b; c: d }",
                             "QLabel { color: red; /* never closed",
                             "/* never closed",
                             "@import 'x'; A{b:c}",
                             "@media print { A{b:c} }",
                             "QLabel[a=5] {}",
                             "QLabel[a=\"5\"] {}",
                             "A { b: 'c }",
                             "A { b: url(c }",
                             "#hvtheme-end { color: red }",
                             "p#hvtheme-end {",
                             "* { -qt-block-indent: 3 }",
                             "A{b:c} <!--"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_StyleParser::accepts()
{
    QFETCH(QString, styleSheet);
    QCOMPARE(StyleParser::accepts(styleSheet), isApplicationStyleSheet(styleSheet));
}

// Whatever Qt complains of is found, and nothing else but what it drops without a word: from a
// character on that it knows no use of, and comments that are never closed.
void tst_StyleParser::agreesWithQtAtRandom()
{
    const QStringList pieces{"QLabel",     "{",      "}",          ":",
                             ";",          "color",  "red",        " ",
                             "\n",         "\"",     "'",          "#a",
                             "[",          "]",      "=",          ",",
                             "*",          ">",      "::item",     "(",
                             ")",          "url(x)", "@media",     "@import",
                             "!important", "12px",   "-",          "<!--",
                             "-->",        "!",      "rgb(1,2,3)", "QLabel { color: red }",
                             "A{b:c;}",    "@page",  "~",          "+"};
    std::mt19937 engine(8);
    const auto random = [&engine] { return uint(engine()); };
    int accepted = 0;
    for (int i = 0; i < 4000; ++i) {
        QString text;
        for (uint count = random() % 14; count > 0; --count)
            text += pieces.at(int(random() % uint(pieces.size()))) + (random() % 2 ? " " : "");
        const bool isAccepted = StyleParser::accepts(text);
        accepted += isAccepted;
        QVERIFY2(isAccepted == isApplicationStyleSheet(text), qPrintable(text));
    }
    QVERIFY(accepted > 100);
}

void tst_StyleParser::rejectedRules_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QStringList>("rejected"); // what they begin with

    const QString good = QStringLiteral("QLabel { color: red; }\n");
    QTest::newRow("none") << good + good << QStringList();
    QTest::newRow("empty") << QString() << QStringList();
    QTest::newRow("bare-text") << "color: red" << QStringList("color");
    QTest::newRow("one") << good + "QFrame } {}" + good << QStringList("QFrame }");
    QTest::newRow("first") << "QFrame } {}" + good << QStringList("QFrame }");
    QTest::newRow("dropped-silently") << good + "% " + good << QStringList("%");
    QTest::newRow("behind-the-last-rule") << good + "\"never closed" << QStringList("\"never");
    QTest::newRow("backslash-behind") << good + "/* a */ \\" << QStringList("/* a */");
    QTest::newRow("comment-behind") << good + "/* a */\n" << QStringList();
    QTest::newRow("two") << "A } {}" + good + good + "B } {}" + good << QStringList({"A }", "B }"});
}

void tst_StyleParser::rejectedRules()
{
    QFETCH(QString, styleSheet);
    QFETCH(QStringList, rejected);
    const QVector<int> found = StyleParser::rejectedRules(styleSheet);
    QCOMPARE(found.size(), rejected.size());
    for (int i = 0; i < found.size(); ++i)
        QVERIFY2(styleSheet.mid(found.at(i)).startsWith(rejected.at(i)),
                 qPrintable(styleSheet.mid(found.at(i))));
}

void tst_StyleParser::leavesApplicationAlone()
{
    const QString styleSheet("QLabel { color: #010203 } QPushButton { padding: 3px }");
    qApp->setStyleSheet(styleSheet);
    QWidget window;
    QLabel label(&window);
    label.setStyleSheet("font-size: 20px");
    window.ensurePolished();
    label.ensurePolished();
    const QStyle *const style = QApplication::style();
    const QStyle *const ownStyle = label.style();
    const QWidgetList windows = QApplication::allWidgets();
    Witness witness;
    qApp->installEventFilter(&witness);

    QVERIFY(StyleParser::accepts("QLabel { color: red } * { background: url(nowhere.png) }"));
    QCOMPARE(StyleParser::rejectedRules("QLabel } { color: red }").size(), 1);

    QCoreApplication::sendPostedEvents();
    QCOMPARE(witness.count, 0);
    QCOMPARE(qApp->styleSheet(), styleSheet);
    QCOMPARE(QApplication::style(), style);
    QCOMPARE(label.style(), ownStyle);
    QCOMPARE(label.styleSheet(), QString("font-size: 20px"));
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor("#010203"));
    QCOMPARE(label.font().pixelSize(), 20);
    QCOMPARE(QApplication::allWidgets(), windows);
    qApp->setStyleSheet(QString());
    QVERIFY(witness.count > 0); // it does notice
}

void tst_StyleParser::logsNothing()
{
    const MessageLog log;
    StyleParser::rejectedRules("QLabel { colour: red; background: url(nowhere.png) } } *{a:b}");
    StyleParser::rejectedRules("* { qproperty-nothing: 1; background-image: url(nowhere.png) }");
    QCOMPARE(log.messages().size(), 0);
}

int main(int argc, char **argv)
{
    {
        const QCoreApplication application(argc, argv);
        if (StyleParser::isAvailable())
            qFatal("a parser is available without a QGuiApplication");
    }
    const QApplication application(argc, argv);
    if (!StyleParser::isAvailable())
        qFatal("no parser is available with a QApplication");
    tst_StyleParser test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_styleparser.moc"
