// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/styleparser.h>
#include <analysis/style/styleselector.h>

#include <QGuiApplication>

// An input is what stands before the brace of a rule. It is taken apart exactly if Qt reads the rule,
// each piece stands where it says, and put together again it is taken apart the same way.
namespace
{

void require(bool condition, const char *what, const QString &text)
{
    if (!condition)
        qFatal("%s: %s", what, qUtf8Printable(text));
}

// Other characters make no selectors, and Qt has ways of its own with some of them.
QString selectorText(const unsigned char *data, std::size_t size)
{
    static const QByteArray letters("abcQLabelhovritm_-0123456789 *#.[]=\"'~|$:!>+,\n");
    QString text;
    for (std::size_t i = 0; i < size; ++i) {
        const char character = char(data[i]);
        text += QLatin1Char(
            letters.contains(character) ? character : letters.at(int(data[i]) % letters.size()));
    }
    return text;
}

QString quoted(const QString &value)
{
    const char quote = value.contains(QLatin1Char('"')) ? '\'' : '"';
    return QLatin1Char(quote) + value + QLatin1Char(quote);
}

QString written(const StyleSelector::Step &step)
{
    const char *const operators[] = {"", "=", "~=", "|=", "^=", "$=", "*="};
    QString text = step.type;
    for (const QString &id : step.ids)
        text += QLatin1Char('#') + id;
    for (const StyleSelector::Attribute &attribute : step.attributes) {
        const bool hasValue = attribute.match != StyleSelector::Attribute::Match::Exists;
        text += QLatin1Char('[') + attribute.name + QLatin1String(operators[int(attribute.match)])
            + (hasValue ? quoted(attribute.value) : QString()) + QLatin1Char(']');
    }
    for (const StyleSelector::Pseudo &pseudo : step.pseudos)
        text += QLatin1String(pseudo.isDoubled ? "::" : ":") + pseudo.text();
    return text;
}

QString written(const StyleSelector &selector)
{
    const char *const joints[] = {" ", " > ", " + "};
    QString text;
    for (const StyleSelector::Step &step : selector.steps)
        text += QLatin1String(text.isEmpty() ? "" : joints[int(step.combinator)]) + written(step);
    return text;
}

void checkOffsets(const StyleSelector &selector, const QString &text)
{
    int last = selector.offset - 1;
    for (const StyleSelector::Step &step : selector.steps) {
        require(step.offset > last, "steps out of order", text);
        last = step.offset;
        const bool isTyped = step.type != QLatin1String("*");
        require(!isTyped || text.mid(step.offset).startsWith(step.type), "a type elsewhere", text);
        for (const StyleSelector::Pseudo &pseudo : step.pseudos) {
            require(pseudo.offset > last, "pseudos out of order", text);
            last = pseudo.offset;
            require(text.mid(last).startsWith(pseudo.text()), "a pseudo elsewhere", text);
        }
    }
}

// What Qt reads and never matches.
bool endsInCombinator(const QString &text)
{
    return text.endsWith(QLatin1Char('>')) || text.endsWith(QLatin1Char('+'))
        || text.endsWith(QLatin1Char('~'));
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that fuzzing engines call
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_selector";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(argc, argv);

    const QString text = selectorText(data, size);
    bool isValid = true;
    bool isDangling = false;
    for (const StyleSelector &selector : StyleSelector::parsedList(text)) {
        isValid = isValid && selector.isValid();
        isDangling = isDangling || endsInCombinator(selector.text);
        checkOffsets(selector, text);
        if (!selector.isValid())
            continue;
        const QString again = written(selector);
        const StyleSelector second = StyleSelector::parsed(again);
        require(written(second) == again, "another selector the second time", text);
        require(second.specificity() == selector.specificity(), "another specificity", text);
        require(second.subControl() == selector.subControl(), "another sub-control", text);
    }
    const bool isAccepted = StyleParser::accepts(text + QLatin1String("{}"));
    require(isAccepted == isValid || isDangling, "Qt disagrees", text);
    return 0;
}
