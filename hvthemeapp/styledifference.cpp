// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "styledifference.h"

#include "stylesbehind.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStyle>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace HV
{
namespace
{

struct Rule {
    QStringView selectors;
    QStringView body;
};

// Returns the index behind a comment or a text in quotation marks that begins at \a at, else \a at.
int behindQuoted(const QString &text, int at)
{
    const QChar first = text.at(at);
    if (first == QLatin1Char('/') && at + 1 < text.size() && text.at(at + 1) == QLatin1Char('*')) {
        const int end = int(text.indexOf(QLatin1String("*/"), at + 2));
        return end < 0 ? int(text.size()) : end + 2;
    }
    if (first != QLatin1Char('"') && first != QLatin1Char('\''))
        return at;
    int end = at + 1;
    while (end < text.size() && text.at(end) != first)
        end += text.at(end) == QLatin1Char('\\') ? 2 : 1;
    return qMin(end + 1, int(text.size()));
}

// Splits at braces. Returns nothing for what is no plain list of rules.
std::optional<QVector<Rule>> rulesOf(const QString &text)
{
    QVector<Rule> rules;
    const QStringView all(text);
    int start = 0;
    int brace = -1;
    for (int i = 0; i < text.size();) {
        const int behind = behindQuoted(text, i);
        if (behind != i) {
            i = behind;
            continue;
        }
        const QChar c = text.at(i);
        const bool isOpening = c == QLatin1Char('{');
        if (c == QLatin1Char('@') || (isOpening && brace >= 0)
            || (c == QLatin1Char('}') && brace < 0))
            return std::nullopt;
        if (isOpening) {
            brace = i;
        } else if (c == QLatin1Char('}')) {
            rules.append({all.mid(start, brace - start), all.mid(brace + 1, i - brace - 1)});
            brace = -1;
            start = i + 1;
        }
        ++i;
    }
    if (brace >= 0)
        return std::nullopt;
    rules.append({all.mid(start), {}}); // what follows the last one
    return rules;
}

// Whether two bodies of a rule differ in colours alone, or in what nothing but the paint depends on.
bool differInPaintAlone(QStringView before, QStringView after)
{
    static const QRegularExpression paint(
        QStringLiteral("#[0-9a-fA-F]{3,8}\\b|\\b(?:rgb|hsl|hsv)a?\\([^)]*\\)"
                       "|\\bq(?:linear|radial|conical)gradient\\([^;}]*|\\bborder(?:-[a-z]+){0,2}-"
                       "radius\\s*:[^;}]*"));
    QString one = before.toString();
    QString other = after.toString();
    return one.remove(paint) == other.remove(paint);
}

QString withoutComments(QStringView text)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    return text.toString().remove(comment);
}

QString classNameInStyleSheets(const QMetaObject &type)
{
    const QString name = QLatin1String(type.className());
    return name == QLatin1String("QTipLabel")
        ? QStringLiteral("QToolTip")
        : QString(name).replace(QLatin1String("::"), QLatin1String("--"));
}

// Qt gives the attribute "class" a value of its own, and "style" one where a widget has none.
bool mayHave(const QWidget &widget, const QString &name, const QString &wanted)
{
    const QVariant value = widget.property(name.toUtf8().constData());
    if (name == QLatin1String("class") || value.userType() == QMetaType::QStringList
        || value.userType() == QMetaType::QVariantList)
        return true;
    if (value.isValid() || name != QLatin1String("style"))
        return wanted.isNull() ? value.isValid() : value.toString() == wanted;
    if (wanted.isNull())
        return true;
    return widget.style() != QApplication::style()
        || QLatin1String(plainStyle()->metaObject()->className()) == wanted;
}

// A view is hovered where its viewport is.
bool isUnderMouse(const QWidget &widget)
{
    const QObjectList &children = widget.children();
    return widget.underMouse()
        || std::any_of(children.cbegin(), children.cend(), [](const QObject *child) {
               return child->isWidgetType() && static_cast<const QWidget *>(child)->underMouse();
           });
}

// Only of simple buttons is it known from outside.
bool mayBeDown(const QWidget &widget)
{
    const auto *push = qobject_cast<const QPushButton *>(&widget);
    const bool isSimple = push
        ? !push->menu()
        : qobject_cast<const QCheckBox *>(&widget) || qobject_cast<const QRadioButton *>(&widget);
    return !isSimple || static_cast<const QAbstractButton &>(widget).isDown();
}

} // namespace

// As few conditions as it takes to leave out most; those that are not looked at hold for all.
StyleDifference::Subject StyleDifference::subjectOf(const QString &selector)
{
    static const QRegularExpression last(QStringLiteral(
        "(?:^|[\\s>])([A-Za-z_][\\w-]*)?((?:[^\\s>\\[\\]\\\\]|\\[[^\\[\\]\\\\]*\\])*)$"));
    static const QRegularExpression condition(
        QStringLiteral("\\[\\s*(\\w+)\\s*(?:=\\s*(?:\"([^\"]*)\"|'([^']*)'|([\\w-]+)))?\\s*\\]"));
    static const QRegularExpression hovered(QStringLiteral(":hover(?![\\w-])"));
    static const QRegularExpression pressed(QStringLiteral(":pressed(?![\\w-])"));
    const QRegularExpressionMatch match = last.match(selector.trimmed());
    if (!match.hasMatch())
        return {};
    Subject subject;
    subject.type = match.captured(1);
    subject.isHovered = hovered.match(match.captured(2)).hasMatch();
    subject.isPressed = pressed.match(match.captured(2)).hasMatch();
    auto conditions = condition.globalMatch(match.captured(2));
    while (conditions.hasNext()) {
        const QRegularExpressionMatch one = conditions.next();
        const bool hasValue =
            one.capturedLength(0) > 0 && one.captured(0).contains(QLatin1Char('='));
        subject.properties.append(
            {one.captured(1),
             hasValue ? one.captured(2) + one.captured(3) + one.captured(4) : QString()});
    }
    return subject;
}

void StyleDifference::add(const QString &selectors)
{
    // A comma in quotation marks cuts a selector into pieces that hold for any widget.
    const QStringList all = selectors.split(QLatin1Char(','));
    for (const QString &selector : all) {
        const Subject subject = subjectOf(selector);
        if (!m_subjects.contains(subject))
            m_subjects.append(subject);
    }
}

std::optional<StyleDifference> StyleDifference::between(const QString &before, const QString &after)
{
    const auto former = rulesOf(before);
    const auto next = rulesOf(after);
    if (!former || !next || former->size() != next->size())
        return std::nullopt;
    StyleDifference difference;
    for (int i = 0; i < next->size(); ++i) {
        const Rule &one = former->at(i);
        const Rule &other = next->at(i);
        if (one.selectors != other.selectors)
            return std::nullopt;
        if (one.body == other.body)
            continue;
        difference.m_changesLayout =
            difference.m_changesLayout || !differInPaintAlone(one.body, other.body);
        difference.add(withoutComments(other.selectors));
    }
    return difference;
}

// Of what is not hovered or pressed, nothing of such a rule is seen or kept.
bool StyleDifference::isInState(const Subject &subject, const QWidget &widget)
{
    return (!subject.isHovered || isUnderMouse(widget))
        && (!subject.isPressed || mayBeDown(widget));
}

QVector<int> StyleDifference::subjectsFor(const QMetaObject &type) const
{
    QStringList names;
    for (const QMetaObject *each = &type; each; each = each->superClass())
        names.append(classNameInStyleSheets(*each));
    QVector<int> subjects;
    for (int i = 0; i < m_subjects.size(); ++i) {
        const QString &wanted = m_subjects.at(i).type;
        if (wanted.isEmpty() || names.contains(wanted))
            subjects.append(i);
    }
    return subjects;
}

bool StyleDifference::concerns(const QWidget &widget) const
{
    const QMetaObject *type = widget.metaObject();
    if (!m_subjectsOfType.contains(type))
        m_subjectsOfType.insert(type, subjectsFor(*type));
    const QVector<int> subjects = m_subjectsOfType.value(type);
    return std::any_of(subjects.cbegin(), subjects.cend(), [&](int index) {
        const Subject &subject = m_subjects.at(index);
        if (!m_changesLayout && !isInState(subject, widget))
            return false;
        const auto &properties = subject.properties;
        return std::all_of(properties.cbegin(), properties.cend(), [&](const auto &wanted) {
            return mayHave(widget, wanted.first, wanted.second);
        });
    });
}

} // namespace HV
