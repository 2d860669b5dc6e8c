// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "temporaryfolder.h"

#include <analysis/style/stylecascade.h>
#include <analysis/style/stylevocabulary.h>
#include <hvthemeapp/applicationtheme.h>
#include <maker/pairs.h>

#include <QtTest>

#include <algorithm>
#include <memory>

namespace
{

const QString builtIn = QStringLiteral(":/stylesheet");
const QString application = QStringLiteral(":/hvthemeapp/stylesheet");

// What a colour of a style sheet is in the table: a key of the theme, or a role of the palette that a
// key stands for. Empty for what shines through.
QString keyOf(const QString &value)
{
    static const QHash<QString, QString> roles{
        {QStringLiteral("palette(window)"), QStringLiteral("*")},
        {QStringLiteral("palette(highlight)"), QStringLiteral("Palette_Highlight")},
        {QStringLiteral("palette(highlighted-text)"), QStringLiteral("Palette_HighlightedText")}};
    for (auto it = roles.cbegin(); it != roles.cend(); ++it) {
        if (value.contains(it.key()))
            return it.value();
    }
    static const QRegularExpression token(QStringLiteral("global\\.theme\\.color\\.(\\w+)"));
    return token.match(value).captured(1);
}

// Colours that let nothing through, in every look.
bool isOpaque(const QString &key)
{
    static const QSet<QString> veils{"AssistButtonBackgroundNormal",
                                     "AssistButtonBackgroundHover",
                                     "AssistButtonBackgroundPressed",
                                     "AssistButtonBackgroundDisabled",
                                     "Color_W15",
                                     "Color_B20",
                                     "Color_B32",
                                     "ScrollBarGrooveBackgroundColor",
                                     "SliderGrooveBackgroundColor",
                                     "DialogMaskBackgroundColor",
                                     "DisabledForegroundColor",
                                     "Color_W40",
                                     "EditBorderColor",
                                     "ScrollBarHandleBackgroundColor"};
    return !veils.contains(key);
}

struct Pair {
    QString foreground;
    QStringList layers; // the lowest first
    QStringList behind; // for an edge, which may stand out from either: what the object lies on
    bool isDisabled;
    QString where; // the first object found

    QString text() const
    {
        return foreground + " on " + layers.join('+') + (isDisabled ? " (disabled)" : "");
    }
};

// Grounds that tell nothing: veils of states beside which something else changes or the pointer is,
// what lies around handles, masks, and a part in the colour of its widget.
bool isGroundAlone(const QString &key)
{
    static const QSet<QString> keys{"Color_W15", "Color_B20", "DialogMaskBackgroundColor",
                                    "ScrollBarGrooveBackgroundColor", "MenuBackgroundColor"};
    return keys.contains(key);
}

class Derivation
{
public:
    explicit Derivation(const QStringList &templates)
    {
        QString error;
        const auto text = TemplateText::read(templates, QStringLiteral("global"), &error);
        if (!text)
            qFatal("%s", qPrintable(error));
        m_cascade = std::make_unique<StyleCascade>(*text);
        m_rules = std::make_unique<StyleRules>(text->text());
        for (const StyleRule &rule : m_rules->rules()) {
            for (const StyleSelector &selector : rule.selectors)
                visit(selector);
        }
    }

    /*! \brief Tells whether an object that \a selector describes, and no more, has an edge in a colour. */
    bool hasEdge(const QString &selector, const QString &key) const
    {
        const StyleRules rules(selector + "{}");
        if (rules.rules().isEmpty())
            return false;
        const StyleSelector parsed = rules.rules().constFirst().selectors.constFirst();
        StyleElement element;
        element.path.append(node(parsed.subject(), parsed.subject().type));
        for (const StyleSelector::Pseudo &state : parsed.states())
            element.states.insert(state.name.toLower());
        element.states.insert("enabled");
        return keyOf(valuesOf(element).value("border-left-color")) == key;
    }

    const QMap<QString, Pair> &texts() const { return m_texts; }
    const QMap<QString, Pair> &marks() const { return m_marks; }

private:
    static StyleNode node(const StyleSelector::Step &step, const QString &type)
    {
        StyleNode node;
        node.classes = StyleVocabulary::typeAndBases(type);
        node.classes.removeAll(QStringLiteral("*"));
        node.name = step.ids.value(0);
        for (const StyleSelector::Attribute &attribute : step.attributes)
            node.attributes.insert(attribute.name, attribute.value);
        return node;
    }

    static QStringList typesFor(const QString &type)
    {
        if (type == QLatin1String("*"))
            return {QStringLiteral("QLabel")};
        if (type == QLatin1String("QWidget"))
            return {type};
        QStringList types;
        for (const QString &name : StyleVocabulary::classes()) {
            if (StyleVocabulary::typeAndBases(name).contains(type))
                types.append(name);
        }
        return types.isEmpty() ? QStringList{type} : types;
    }

    void visit(const StyleSelector &selector)
    {
        if (!selector.isValid())
            return;
        for (const QString &type : typesFor(selector.subject().type)) {
            StyleElement element;
            element.path.append(node(selector.subject(), type));
            for (int i = int(selector.steps.size()) - 2; i >= 0; --i)
                element.path.append(node(selector.steps.at(i), selector.steps.at(i).type));
            element.subControl = selector.subControl().toLower();
            const QString id = idOf(element);
            if (m_visited.contains(id))
                continue;
            m_visited.insert(id);
            visitStates(element);
        }
    }

    static QString idOf(const StyleElement &element)
    {
        QString id = element.subControl;
        for (const StyleNode &node : element.path) {
            QStringList attributes;
            for (auto it = node.attributes.cbegin(); it != node.attributes.cend(); ++it)
                attributes.append(it.key() + '=' + it.value());
            attributes.sort();
            id += '|' + node.classes.value(0) + '#' + node.name + '[' + attributes.join(',');
        }
        return id;
    }

    // The states that rules for the object or the part ask for.
    QStringList statesFor(const StyleElement &element) const
    {
        QSet<QString> names;
        for (const StyleRule &rule : m_rules->rules()) {
            for (const StyleSelector &selector : rule.selectors) {
                if (!selector.isValid() || !matchesObject(selector, element.path))
                    continue;
                const QString part = selector.subControl().toLower();
                if (!part.isEmpty() && part != element.subControl)
                    continue;
                for (const StyleSelector::Pseudo &state : selector.states())
                    names.insert(state.name.toLower());
            }
        }
        names -= QSet<QString>{"enabled", "disabled"};
        QStringList sorted = names.values();
        sorted.sort();
        return sorted;
    }

    // Up to three states at once, which no rule of the templates goes beyond.
    void visitStates(const StyleElement &element)
    {
        QVector<QSet<QString>> sets{{}};
        for (const QString &state : statesFor(element)) {
            for (int i = int(sets.size()) - 1; i >= 0; --i) {
                if (sets.at(i).size() < 3)
                    sets.append(sets.at(i) + QSet<QString>{state});
            }
        }
        for (const QSet<QString> &set : qAsConst(sets)) {
            measure(element, set + QSet<QString>{"enabled"});
            // What is disabled is neither used nor opened.
            const bool isPopup = element.path.size() > 1
                && element.path.last().classes.contains(QStringLiteral("QComboBox"));
            if (set.size() < 3 && !isPopup && !set.intersects({"hover", "pressed", "focus", "on"}))
                measure(element, set + QSet<QString>{"disabled"});
        }
    }

    using Values = QHash<QString, QString>;

    Values valuesOf(const StyleElement &element) const
    {
        Values values;
        const QVector<StyleProperty> properties = m_cascade->properties(element);
        for (const StyleProperty &property : properties)
            values.insert(property.name, property.winner().value);
        return values;
    }

    // What lies behind an object: what it stands in, and a surface.
    QStringList layersBehind(StyleElement element) const
    {
        QVector<StyleElement> around;
        if (!element.subControl.isEmpty()) {
            element.subControl.clear();
            around.append(element);
        }
        element.states.intersect({"enabled", "disabled"});
        while (element.path.size() > 1) {
            element.path.removeFirst();
            around.append(element);
        }
        QStringList layers;
        for (const StyleElement &one : qAsConst(around)) {
            if (layers.isEmpty() || !isOpaque(layers.constFirst()))
                layers = over(keyOf(valuesOf(one).value("background-color")), {}) + layers;
        }
        if (layers.isEmpty() || !isOpaque(layers.constFirst()))
            layers.prepend(QStringLiteral("*"));
        return layers;
    }

    static QStringList over(const QString &key, const QStringList &layers)
    {
        if (key.isEmpty())
            return layers;
        return isOpaque(key) ? QStringList{key} : layers + QStringList{key};
    }

    // Containers show the texts of others, and what has no text shows none.
    static bool showsText(const StyleElement &element)
    {
        static const QSet<QString> parts{"", "item", "section", "tab", "title", "text", "chunk"};
        static const QSet<QString> textless{"QSlider",     "QScrollBar",     "QSplitter",
                                            "QMainWindow", "QWidget",        "QFrame",
                                            "QDialog",     "QSplitterHandle"};
        return parts.contains(element.subControl)
            && !textless.contains(element.path.constFirst().classes.constFirst());
    }

    void measure(StyleElement element, const QSet<QString> &states)
    {
        element.states = states;
        const bool isDisabled = states.contains(QStringLiteral("disabled"));
        QStringList names = states.values();
        names.sort();
        const QString where = idOf(element) + ':' + names.join(':');
        const Values values = valuesOf(element);
        const QStringList behind = layersBehind(element);
        const QString ground = keyOf(values.value("background-color"));
        const QStringList layers = over(ground, behind);
        if (showsText(element)) {
            add(&m_texts, values.value("color"), layers, {}, isDisabled, where);
            const QString selected = keyOf(values.value("selection-background-color"));
            if (!selected.isEmpty())
                add(&m_texts, values.value("selection-color"), {selected}, {}, isDisabled, where);
        } else {
            add(&m_marks, values.value("background-color"), behind, {}, isDisabled, where);
        }
        for (const char *side : {"top", "right", "bottom", "left"}) {
            const QString name = QStringLiteral("border-%1-").arg(side);
            if (isDrawn(values.value(name + "style"), values.value(name + "width")))
                add(&m_marks, values.value(name + "color"), layers, behind, isDisabled, where);
        }
        for (const char *name : {"outline-color", "gridline-color"})
            add(&m_marks, values.value(name), layers, {}, isDisabled, where);
    }

    static bool isDrawn(const QString &style, const QString &width)
    {
        static const QRegularExpression nothing(QStringLiteral("(^|\\s)0(px)?(\\s|$)"));
        return style.contains("solid") && !width.contains(nothing);
    }

    static void add(QMap<QString, Pair> *pairs, const QString &value, const QStringList &layers,
                    const QStringList &behind, bool isDisabled, const QString &where)
    {
        const QString key = keyOf(value);
        if (key.isEmpty() || key == QLatin1String("*")
            || key.startsWith(QLatin1String("BackgroundColor_")))
            return;
        const Pair pair{key, layers, behind, isDisabled, where};
        if (pairs->contains(pair.text()))
            return;
        pairs->insert(pair.text(), pair);
    }

    std::unique_ptr<StyleCascade> m_cascade;
    std::unique_ptr<StyleRules> m_rules;
    QSet<QString> m_visited;
    QMap<QString, Pair> m_texts;
    QMap<QString, Pair> m_marks;
};

// What is seen of layers, the lowest first: all from the topmost opaque one on.
QStringList seenLayers(const QStringList &layers)
{
    const auto top = std::find_if(layers.crbegin(), layers.crend(), isOpaque);
    return top == layers.crend() ? layers : QStringList(layers.mid(int(layers.crend() - top) - 1));
}

bool hasRow(const Pair &pair, bool isText, const QStringList &layers)
{
    const auto covers = [&](const Maker::ColorPair &row) {
        const bool isEnough = row.need == Maker::Need::Text
            || (row.need == Maker::Need::Disabled ? pair.isDisabled : !isText);
        return isEnough && row.foreground == pair.foreground && seenLayers(row.layers) == layers;
    };
    const auto &rows = Maker::colorPairs();
    return std::any_of(rows.cbegin(), rows.cend(), covers);
}

// On any surface means on each.
bool isCoveredOn(const Pair &pair, bool isText, const QStringList &layers)
{
    if (layers.isEmpty() || layers.constFirst() != "*")
        return hasRow(pair, isText, layers);
    for (int n = 0; n < 8; ++n) {
        QStringList exact = layers;
        exact[0] = "BackgroundColor_" + QString::number(n);
        if (!hasRow(pair, isText, exact))
            return false;
    }
    return true;
}

bool isCovered(const Pair &pair, bool isText)
{
    return isCoveredOn(pair, isText, pair.layers) || isCoveredOn(pair, isText, pair.behind);
}

QStringList missingPairs(const Derivation &derived)
{
    QStringList missing;
    for (const Pair &pair : derived.texts()) {
        if (!isCovered(pair, true))
            missing.append(pair.text() + ", " + pair.where);
    }
    for (const Pair &pair : derived.marks()) {
        if (!isGroundAlone(pair.foreground) && !isCovered(pair, false))
            missing.append(pair.text() + ", " + pair.where);
    }
    return missing;
}

} // namespace

// Whether the table has each pair that the templates make, as their cascade tells it.
class tst_Pairs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(!HV::ApplicationTheme().names().isEmpty());
    } // loads the libraries
    void templates_data();
    void templates();
    void newRules_data();
    void newRules();
    void edgesOfGrounds();
};

void tst_Pairs::templates_data()
{
    QTest::addColumn<QStringList>("sources");
    QTest::newRow("built-in") << QStringList{builtIn};
    QTest::newRow("application") << QStringList{builtIn, application};
}

void tst_Pairs::templates()
{
    QFETCH(QStringList, sources);
    const Derivation derived(sources);
    QVERIFY(derived.texts().size() > 25); // one that finds nothing would miss nothing
    QVERIFY(derived.marks().size() > 15);
    const QStringList missing = missingPairs(derived);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
}

void tst_Pairs::newRules_data()
{
    QTest::addColumn<QByteArray>("rules");
    QTest::addColumn<QStringList>("missing");

    const QByteArray token = "global.theme.color.";
    QTest::newRow("text") << "QLabel {color: " + token + "Color_Blue_1;}"
                          << QStringList{"Color_Blue_1 on *, |QLabel#[:enabled",
                                         "Color_Blue_1 on * (disabled), |QLabel#[:disabled"};
    QTest::newRow("ground-of-a-state")
        << "QLineEdit {color: " + token + "Color_W100;}"
            + "QLineEdit:hover {background-color: " + token + "Color_Green_6;}"
        << QStringList{"Color_W100 on Color_Green_6, |QLineEdit#[:enabled:hover"};
    QTest::newRow("text-of-a-disabled-part")
        << "QMenu {background: " + token + "ToolTipBackgroundColor;}"
            + "QMenu::item:disabled {color: " + token + "Color_W40;}"
        << QStringList{"Color_W40 on ToolTipBackgroundColor (disabled), item|QMenu#[:disabled"};
    QTest::newRow("edge") << "QLineEdit:focus {border: 1px solid " + token + "Color_Brand_7;}"
                          << QStringList{"Color_Brand_7 on *, |QLineEdit#[:enabled:focus"};
    QTest::newRow("no-edge") << "QLineEdit:focus {border: 0px solid " + token + "Color_Brand_7;}"
                             << QStringList();
}

void tst_Pairs::newRules()
{
    QFETCH(QByteArray, rules);
    QFETCH(QStringList, missing);
    const TemporaryFolder folder;
    QCOMPARE(missingPairs(Derivation({folder.write("new.qss", rules)})), missing);
}

// The rules that notes name for an edge that cannot reach its ratio, and the text that is why.
void tst_Pairs::edgesOfGrounds()
{
    const Derivation derived({builtIn});
    QStringList found;
    for (const Maker::ColorPair &pair : Maker::colorPairs()) {
        if (pair.need != Maker::Need::EdgeOfGround)
            continue;
        found.append(pair.selector);
        QVERIFY2(derived.hasEdge(pair.selector, pair.foreground), qPrintable(pair.selector));
        const auto stands = [&](const Pair &text) {
            return text.layers.constLast() == pair.foreground;
        };
        const QList<Pair> texts = derived.texts().values();
        QVERIFY(std::any_of(texts.cbegin(), texts.cend(), stands));
    }
    QCOMPARE(found, (QStringList{"QLineEdit:focus", "QPushButton[style=editButton]:hover"}));
    QVERIFY(!derived.hasEdge("QPushButton[style=editButton]", "Color_Brand_8"));
}

QTEST_MAIN(tst_Pairs)
#include "tst_pairs.moc"
