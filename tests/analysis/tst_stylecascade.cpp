// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/messagelog.h>
#include <analysis/style/stylecascade.h>
#include <analysis/style/stylevocabulary.h>

#include <QtTest>
#include <QtWidgets>

#include <random>

namespace HV
{
// A class in a namespace, as an application has them.
class NamedFrame : public QFrame
{
    Q_OBJECT
};
} // namespace HV

// Every statement of the cascade is held against Qt: a widget is painted, and what Qt made its
// background has to be what the cascade says is in force.
class tst_StyleCascade : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void agreesWithQt_data();
    void agreesWithQt();
    void agreesWithQtAtRandom();
    void ownStyleSheets_data();
    void ownStyleSheets();
    void statesAgreeWithQt_data();
    void statesAgreeWithQt();
    void containers();
    void toolTip();
    void inheritance_data();
    void inheritance();
    void ofSubControl();
    void shorthands_data();
    void shorthands();
    void allProperties();
    void positions();
    void vocabularyAgreesWithQt_data();
    void vocabularyAgreesWithQt();
    void statesAreThoseOfQt();
};

namespace
{

// A dialog with frames in one another and a label in the innermost.
class Family
{
public:
    Family()
    {
        m_dialog.setObjectName("dialog");
        m_outer.setObjectName("outer");
        m_inner.setObjectName("inner");
        m_label.setObjectName("label");
        m_label.setProperty("kind", "alpha beta");
        m_label.setProperty("level", 5);
        m_label.setProperty("names", QStringList({"one", "two"}));
        m_label.resize(8, 8);
    }

    QLabel *label() { return &m_label; }
    QWidget *inner() { return &m_inner; }

private:
    QDialog m_dialog;
    QFrame m_outer{&m_dialog};
    HV::NamedFrame m_middle{};
    QFrame m_inner{adopted(&m_middle, &m_outer)};
    QLabel m_label{&m_inner};

    static QWidget *adopted(QWidget *child, QWidget *parent)
    {
        child->setParent(parent);
        return child;
    }
};

QString paintedColor(QWidget *widget)
{
    widget->ensurePolished();
    return widget->grab().toImage().pixelColor(widget->width() - 2, 2).name();
}

// Of a label without any style sheet; first asked before there is one.
QString plainColor()
{
    static const QString color = [] {
        Family family;
        return paintedColor(family.label());
    }();
    return color;
}

// The background in force, as a colour; that of a label without a style sheet if there is none.
QString toldColor(const StyleCascade &cascade, const QWidget *widget)
{
    const StyleElement element = StyleElement::of(widget, cascade.attributes());
    const QVector<StyleProperty> properties = cascade.properties(element);
    for (const StyleProperty &property : properties) {
        if (property.name == "background-color")
            return QColor(property.winner().value).name();
    }
    return plainColor();
}

class ApplicationStyleSheet
{
public:
    explicit ApplicationStyleSheet(const QString &text) { qApp->setStyleSheet(text); }
    ~ApplicationStyleSheet() { qApp->setStyleSheet(QString()); }
    Q_DISABLE_COPY_MOVE(ApplicationStyleSheet)
};

} // namespace

void tst_StyleCascade::initTestCase()
{
    QVERIFY(QColor(plainColor()).isValid());
}

// "#" stands for a declaration with a colour of its own in each rule.
static const char *const styleSheets[] = {
    "QLabel {#}",
    "qlabel {#}",
    "QObject {#}",
    "QFrame {#} QLabel {#}",
    "QLabel {#} QFrame {#}",
    "QLabel {#} * {#}",
    "QLabel:enabled {#} QLabel[level] {#}",
    "QLabel[level=\"5\"] {#}",
    "QLabel[level=\"6\"] {#}",
    "QLabel[missing] {#}",
    "[kind~=beta] {#}",
    "[kind~=bet] {#}",
    "[kind|=alpha] {#}",
    "[objectName|=label] {#}",
    "[kind^=alp] {#}",
    "[kind$=eta] {#}",
    "[kind*=\"a b\"] {#}",
    "[names=\"one two\"] {#}",
    "[class=QLabel] {#}",
    ".QLabel {#}",
    ".QFrame {#}",
    "[style=QFusionStyle] {#}",
    "[style=QWindowsStyle] {#}",
    "#label {#} QLabel[level][kind]:enabled {#}",
    "#label#label {#}",
    "#label#other {#}",
    "#Label {#}",
    "QDialog QLabel {#}",
    "QDialog > QLabel {#}",
    "#inner > QLabel {#}",
    "HV--NamedFrame QLabel {#}",
    "NamedFrame QLabel {#}",
    "#outer > HV--NamedFrame QLabel {#}",
    "QDialog > QFrame QLabel {#}",
    "#outer > QFrame QLabel {#}",
    "QDialog QFrame > QLabel {#}",
    "QLabel QLabel {#}",
    "QLabel + QLabel {#}",
    "QLabel ~ QLabel {#}",
    "QFrame:hover QLabel {#} QFrame QLabel {#}",
    "QLabel:hover {#}",
    "QLabel:!hover {#}",
    "QLabel:!enabled {#}",
    "QLabel:ENABLED {#}",
    "QLabel::enabled {#}",
    "QLabel:enabled:hover {#}",
    "QLabel:hover:nonsense {#}",
    "QLabel:!enabled:nonsense {#}",
    "QLabel:nonsense:!enabled {#}",
    "QLabel:nonsense {#}",
    "QLabel:item {#}",
    "QLabel:hover, QLabel {#}",
    "QLabel {background: #f00 !important} QLabel {#}",
    "QLabel {background: #f00 !important} #label {#}",
    "QLabel {BACKGROUND: #0f0}",
    "QLabel {background-color: #f00; background: #0f0}",
    "QLabel {background: #f00; background-color: #0f0; background-color: }",
};

void tst_StyleCascade::agreesWithQt_data()
{
    QTest::addColumn<QString>("styleSheet");
    const QString unused = QString("QSlider {} ");

    for (const char *text : styleSheets)
        QTest::newRow(text) << QString::fromLatin1(text);
    for (const int count : {0, 254, 255, 256, 511, 512}) {
        QTest::addRow("rules-between-%d", count)
            << "QFrame QLabel {#} " + unused.repeated(count) + "QLabel {#}";
        QTest::addRow("names-between-%d", count)
            << "* #label {#} " + unused.repeated(count) + "#label {#}";
        QTest::addRow("any-between-%d", count) << "QLabel {#} " + unused.repeated(count) + "* {#}";
    }
}

static QString withColors(QString styleSheet)
{
    const char *const colors[] = {"#ff0000", "#00ff00", "#0000ff"};
    for (int i = 0; styleSheet.contains("{#}"); ++i) {
        const int at = int(styleSheet.indexOf("{#}"));
        styleSheet.replace(at, 3, QString("{background-color: %1}").arg(colors[i % 3]));
    }
    return styleSheet;
}

void tst_StyleCascade::agreesWithQt()
{
    QFETCH(QString, styleSheet);
    styleSheet = withColors(styleSheet);
    const ApplicationStyleSheet application(styleSheet);
    Family family;
    QCOMPARE(toldColor(StyleCascade(styleSheet), family.label()), paintedColor(family.label()));
}

// Style sheets of up to a thousand rules, so that the number of a rule outweighs specificity.
void tst_StyleCascade::agreesWithQtAtRandom()
{
    const QStringList steps{"*",       "QLabel",       "QFrame",  "QWidget",
                            "QDialog", "#outer",       "#inner",  "QLabel#label",
                            "[level]", "QFrame[kind]", ".QLabel", "QFrame:hover"};
    const QStringList ends{"QLabel",
                           "QFrame",
                           "*",
                           "#label",
                           "QLabel[level]",
                           "QLabel:enabled",
                           "[kind]:enabled:!hover",
                           ".QLabel",
                           "QWidget",
                           "QLabel::item"};
    std::mt19937 random(20);
    const auto below = [&random](qsizetype limit) { return int(random() % uint(limit)); };
    for (int round = 0; round < 60; ++round) {
        QString styleSheet;
        const int count = 2 + below(round % 2 == 0 ? 12 : 1000);
        for (int i = 0; i < count; ++i) {
            QString selector;
            for (int step = below(4); step > 0; --step)
                selector += steps.at(below(steps.size())) + (below(3) == 0 ? " > " : " ");
            styleSheet += selector + ends.at(below(ends.size()))
                + QString(" { background-color: #%1 }\n").arg(0x800000 + i, 6, 16);
        }
        const ApplicationStyleSheet application(styleSheet);
        Family family;
        const QString told = toldColor(StyleCascade(styleSheet), family.label());
        const QString painted = paintedColor(family.label());
        QVERIFY2(told == painted,
                 qPrintable(QString("round %1: %2, not %3").arg(round).arg(told, painted)));
    }
}

void tst_StyleCascade::ownStyleSheets_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("ofParent");
    QTest::addColumn<QString>("ofLabel");
    QTest::newRow("application-alone") << "#label {#}" << QString() << QString();
    QTest::newRow("own-beats-name") << "#label {#}" << QString() << "* {#}";
    QTest::newRow("parent-beats-application") << "#label {#}"
                                              << "QLabel {#}" << QString();
    QTest::newRow("nearest-wins") << "#label {#}"
                                  << "#label {#}"
                                  << "QLabel {#}";
    QTest::newRow("bare") << "#label {#}" << QString() << "background-color: #00ff00";
    QTest::newRow("bare-of-parent") << "#label {#}"
                                    << "background-color: #00ff00" << QString();
    QTest::newRow("names-ancestor") << "QLabel {#}" << QString() << "QDialog QLabel {#}";
    QTest::newRow("names-property") << "QLabel {#}" << QString() << "[level] {#}";
    QTest::newRow("names-style") << "QLabel {#}" << QString() << "[style=QFusionStyle] {#}";
    QTest::newRow("matches-nothing") << "QLabel {#}"
                                     << "QSlider {#}" << QString();
}

void tst_StyleCascade::ownStyleSheets()
{
    QFETCH(QString, application);
    QFETCH(QString, ofParent);
    QFETCH(QString, ofLabel);
    const ApplicationStyleSheet sheet(application.replace("#}", "background-color: #ff0000}"));
    Family family;
    family.inner()->setStyleSheet(ofParent.replace("#}", "background-color: #0000ff}"));
    family.label()->setStyleSheet(ofLabel.replace("#}", "background-color: #00ff00}"));
    const QString painted = paintedColor(family.label());
    QCOMPARE(toldColor(StyleCascade(application), family.label()), painted);
    QVERIFY(painted != plainColor());
}

void tst_StyleCascade::statesAgreeWithQt_data()
{
    QTest::addColumn<QString>("widget");
    for (const char *widget : {"label", "disabled", "hovered", "button", "checked", "unchecked",
                               "box", "box-checked", "box-partial", "tool-checked", "down", "flat",
                               "default", "edit", "read-only", "frameless"})
        QTest::newRow(widget) << QString::fromLatin1(widget);
}

static QWidget *widgetInState(const QString &name, QWidget *parent)
{
    if (name == "edit" || name == "read-only" || name == "frameless") {
        auto *edit = new QLineEdit(parent);
        edit->setReadOnly(name == "read-only");
        edit->setFrame(name != "frameless");
        return edit;
    }
    if (name == "label" || name == "disabled" || name == "hovered") {
        auto *label = new QLabel(parent);
        label->setEnabled(name != "disabled");
        label->setAttribute(Qt::WA_UnderMouse, name == "hovered");
        return label;
    }
    if (name.startsWith("box")) {
        auto *box = new QCheckBox(parent);
        box->setTristate(name == "box-partial");
        box->setCheckState(name == "box"               ? Qt::Unchecked
                               : name == "box-checked" ? Qt::Checked
                                                       : Qt::PartiallyChecked);
        return box;
    }
    if (name == "tool-checked") {
        auto *tool = new QToolButton(parent);
        tool->setCheckable(true);
        tool->setChecked(true);
        return tool;
    }
    auto *button = new QPushButton(parent);
    button->setCheckable(name == "checked" || name == "unchecked");
    button->setChecked(name == "checked");
    button->setDown(name == "down");
    button->setFlat(name == "flat");
    button->setDefault(name == "default");
    return button;
}

// Each state alone has a rule, and Qt paints it if it holds.
void tst_StyleCascade::statesAgreeWithQt()
{
    QFETCH(QString, widget);
    QStringList told;
    QStringList painted;
    for (const QString &state : StyleVocabulary::states()) {
        const QString styleSheet = QString("QWidget { border: none; background-color: #ff0000 }"
                                           "QWidget:%1 { background-color: #00ff00 }")
                                       .arg(state);
        const ApplicationStyleSheet application(styleSheet);
        QDialog dialog;
        QWidget *shown = widgetInState(widget, &dialog);
        shown->resize(60, 9);
        if (paintedColor(shown) == "#00ff00")
            painted << state;
        if (StyleElement::of(shown, {}).states.contains(state))
            told << state;
    }
    QCOMPARE(told, painted);
    QVERIFY(!told.isEmpty());
}

void tst_StyleCascade::containers()
{
    QScrollArea area;
    QComboBox combo;
    combo.setEditable(true);
    QSpinBox spin;
    QLineEdit edit;
    const auto classOf = [](const QWidget *widget) {
        return StyleElement::of(widget, {}).path.constFirst().classes.constFirst();
    };
    QCOMPARE(classOf(area.viewport()), QString("QScrollArea"));
    QCOMPARE(classOf(combo.lineEdit()), QString("QComboBox"));
    QCOMPARE(classOf(spin.findChild<QLineEdit *>()), QString("QSpinBox"));
    QCOMPARE(classOf(&edit), QString("QLineEdit"));

    const QString styleSheet("QLineEdit { color: #ff0000 } QSpinBox { color: #00ff00 }");
    const ApplicationStyleSheet application(styleSheet);
    QSpinBox styled;
    auto *inner = styled.findChild<QLineEdit *>();
    styled.ensurePolished();
    inner->ensurePolished();
    const StyleCascade cascade(styleSheet);
    QCOMPARE(cascade.properties(StyleElement::of(inner, {})).constFirst().winner().value,
             inner->palette().color(QPalette::Text).name());
}

// A tool tip is called QToolTip and nothing else.
void tst_StyleCascade::toolTip()
{
    QStringList matching;
    for (const char *type : {"QToolTip", "QTipLabel", "QLabel", "QWidget", "*"}) {
        const QString styleSheet = QString("%1 { color: #010203 }").arg(type);
        const ApplicationStyleSheet application(styleSheet);
        {
            const MessageLog offscreen; // where windows cannot be raised
            QToolTip::showText(QPoint(), QString(type));
        }
        QWidget *tip = nullptr;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->inherits("QTipLabel"))
                tip = widget;
        }
        QVERIFY(tip);
        const StyleCascade cascade(styleSheet);
        const bool told = !cascade.properties(StyleElement::of(tip, {})).isEmpty();
        QCOMPARE(tip->palette().color(QPalette::WindowText) == QColor("#010203"), told);
        if (told)
            matching << type;
        delete tip;
    }
    QCOMPARE(matching, QStringList({"QToolTip", "*"}));
}

void tst_StyleCascade::inheritance_data()
{
    QTest::addColumn<bool>("isPropagating");
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QString>("expected");
    for (const bool isPropagating : {false, true}) {
        const char *const suffix = isPropagating ? "-on" : "-off";
        QTest::addRow("parent%s", suffix)
            << isPropagating << "#inner { color: #ff0000 }" << (isPropagating ? "#ff0000" : "");
        QTest::addRow("own%s", suffix)
            << isPropagating << "#inner { color: #ff0000 } QLabel { color: #00ff00 }"
            << "#00ff00";
        QTest::addRow("nearest%s", suffix)
            << isPropagating << "#outer { color: #ff0000 } #inner { color: #0000ff }"
            << (isPropagating ? "#0000ff" : "");
        QTest::addRow("background%s", suffix)
            << isPropagating << "#inner { background-color: #ff0000 }"
            << "";
    }
}

void tst_StyleCascade::inheritance()
{
    QFETCH(bool, isPropagating);
    QFETCH(QString, styleSheet);
    QFETCH(QString, expected);
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, isPropagating);
    const ApplicationStyleSheet application(styleSheet);
    Family family;
    QWidget *inner = family.inner();
    for (QWidget *widget = inner; widget; widget = widget->parentWidget())
        widget->ensurePolished();
    family.label()->ensurePolished();
    const StyleCascade cascade(styleSheet);
    const QVector<StyleProperty> properties =
        cascade.properties(StyleElement::of(family.label(), cascade.attributes()));
    const QColor painted = family.label()->palette().color(QPalette::WindowText);
    QCoreApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles, false);
    const QString told = properties.isEmpty() ? QString() : properties.constFirst().winner().value;
    QCOMPARE(told, expected);
    QCOMPARE(painted,
             expected.isEmpty() ? QApplication::palette().color(QPalette::WindowText)
                                : QColor(expected));
}

void tst_StyleCascade::ofSubControl()
{
    const StyleCascade cascade("QMenu { color: a; background: b; font-size: c }"
                               "QMenu::item { background: d } QMenu::item:selected { color: e }");
    QMenu menu;
    StyleElement element = StyleElement::of(&menu, {});
    element.subControl = "item";
    const auto outline = [&] {
        QStringList texts;
        for (const StyleProperty &property : cascade.properties(element)) {
            QStringList values;
            for (const StyleMatch &match : property.matches)
                values << match.value + (match.isOfWidget ? "'" : "");
            if (property.name == "color" || property.name.startsWith("font")
                || property.name == "background-color")
                texts << property.name + "=" + values.join('<');
        }
        return texts.join(' ');
    };
    QCOMPARE(outline(), QString("background-color=d color=a' font-size=c'"));
    element.states << "selected";
    QCOMPARE(outline(), QString("background-color=d color=e<a' font-size=c'"));
}

void tst_StyleCascade::shorthands_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("expected");
    QTest::newRow("itself") << "spacing"
                            << "spacing";
    QTest::newRow("box") << "Padding"
                         << "padding-bottom padding-left padding-right padding-top";
    QTest::newRow("margin") << "margin"
                            << "margin-bottom margin-left margin-right margin-top";
    QTest::newRow("edge") << "border-top"
                          << "border-top-color border-top-style border-top-width";
    QTest::newRow("detail") << "border-color"
                            << "border-bottom-color border-left-color border-right-color "
                               "border-top-color";
    QTest::newRow("border") << "border"
                            << "border-bottom-color border-bottom-style border-bottom-width "
                               "border-left-color border-left-style border-left-width "
                               "border-right-color border-right-style border-right-width "
                               "border-top-color border-top-style border-top-width";
    QTest::newRow("radius") << "border-radius"
                            << "border-bottom-left-radius border-bottom-right-radius "
                               "border-top-left-radius border-top-right-radius";
    QTest::newRow("background") << "background"
                                << "background-color background-image background-position "
                                   "background-repeat";
    QTest::newRow("font") << "font"
                          << "font-family font-size font-style font-weight";
    QTest::newRow("of-application") << "qproperty-text"
                                    << "qproperty-text";
}

void tst_StyleCascade::shorthands()
{
    QFETCH(QString, property);
    QFETCH(QString, expected);
    const StyleCascade cascade("* { " + property + ": a }");
    QLabel label;
    QStringList names;
    for (const StyleProperty &found : cascade.properties(StyleElement::of(&label, {})))
        names << found.name;
    QCOMPARE(names.join(' '), expected);
}

void tst_StyleCascade::allProperties()
{
    const StyleCascade cascade("QLabel { border: 1px; spacing: 2 }\n"
                               "QFrame { border-top-width: 3px; spacing: 4 !important }\n"
                               "QLabel[kind=\"x\"] { border-left-width: 5px }");
    QLabel label;
    label.setProperty("kind", "x");
    QCOMPARE(cascade.attributes(), QStringList("kind"));
    QStringList outline;
    for (const StyleProperty &property :
         cascade.properties(StyleElement::of(&label, cascade.attributes()))) {
        QStringList values;
        for (const StyleMatch &match : property.matches)
            values << match.property + ":" + match.value + (match.isImportant ? "!" : "");
        if (values.size() > 1)
            outline << property.name + " = " + values.join(" < ");
    }
    QCOMPARE(outline,
             QStringList({"border-left-width = border-left-width:5px < border:1px",
                          "border-top-width = border-top-width:3px < border:1px",
                          "spacing = spacing:4! < spacing:2"}));
}

void tst_StyleCascade::positions()
{
    QTemporaryDir folder;
    const auto write = [&folder](const QString &name, const QByteArray &text) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    write("a.qss", "QFrame { color: a }\n\n/* x */ ");
    write("b.qss", "* { color: b }\n  QLabel, QMenu {\n    color: global.theme.color.C; }");
    QString error;
    const auto templates = TemplateText::read({folder.path()}, "global", &error);
    QVERIFY2(templates, qPrintable(error));
    QLabel label;
    label.setStyleSheet("color: d;\n color: e");
    const StyleCascade cascade(*templates);
    QStringList lines;
    for (const StyleMatch &match : cascade.matches(StyleElement::of(&label, {})))
        lines << QFileInfo(match.place.text()).fileName()
                + QString(" %1 %2 %3").arg(match.selector, match.value).arg(match.sheet);
    QCOMPARE(lines,
             QStringList({":2:2 * e 0", ":1:1 * d 0", "b.qss:3:5 QLabel global.theme.color.C -1",
                          "a.qss:1:10 QFrame a -1", "b.qss:1:5 * b -1"}));
}

void tst_StyleCascade::vocabularyAgreesWithQt_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<bool>("isKnown");
    for (const QString &property : StyleVocabulary::properties())
        QTest::newRow(qPrintable(property)) << property << true;
    for (const char *property : {"colour", "background-colour", "placeholder-text", "box-shadow"})
        QTest::newRow(property) << QString::fromLatin1(property) << false;
}

// Qt tells of a property that it does not know when it first styles a widget.
void tst_StyleCascade::vocabularyAgreesWithQt()
{
    QFETCH(QString, property);
    QFETCH(bool, isKnown);
    const MessageLog log;
    const ApplicationStyleSheet application(QString("QLabel { %1: a }").arg(property));
    QLabel label;
    label.ensurePolished();
    QStringList messages;
    for (const LoggedMessage &message : log.messages())
        messages << message.text;
    messages.removeDuplicates();
    QCOMPARE(messages,
             isKnown ? QStringList() : QStringList(QString("Unknown property %1").arg(property)));
}

// Behind a state that holds, a word that is none makes no difference; one that is a state and does
// not hold does.
void tst_StyleCascade::statesAreThoseOfQt()
{
    const auto isPainted = [](const QString &pseudos) {
        const ApplicationStyleSheet application(
            QString("QLabel%1 { background-color: #010203 }").arg(pseudos));
        Family family;
        return paintedColor(family.label()) == "#010203";
    };
    for (const QString &state : StyleVocabulary::states())
        QVERIFY2(!isPainted(":" + state + ":!" + state), qPrintable(state));
    for (const QString &part : StyleVocabulary::subControls())
        QVERIFY2(isPainted(":enabled:!" + part + ":!enabled"), qPrintable(part));
    for (const char *word : {"hovered", "visited", "active-window", "empty"})
        QVERIFY2(isPainted(QString(":enabled:!%1:!enabled").arg(word)), word);
}

QTEST_MAIN(tst_StyleCascade)
#include "tst_stylecascade.moc"
