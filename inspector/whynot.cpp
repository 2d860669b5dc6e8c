// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/whynot.h>

#include <inspector/mismatch.h>
#include <inspector/plaintree.h>

#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

WhyNot::WhyNot(QWidget *parent)
    : QWidget(parent)
    , m_selector(new QLineEdit)
    , m_verdict(new PlainTree<QTreeWidget>)
{
    m_selector->setAccessibleName(tr("Selector"));
    m_selector->setToolTip(tr("A selector without commas: QPushButton[style=general]:hover"));
    auto *label = new QLabel(tr("Wh&y does this selector not match the picked part?"));
    label->setBuddy(m_selector);
    m_verdict->setHeaderLabels({tr("Part of the selector"), tr("Verdict")});
    m_verdict->setAccessibleName(tr("Why not"));
    m_verdict->setUniformRowHeights(true);
    m_verdict->setColumnWidth(0, 260);
    auto *column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(m_selector);
    column->addWidget(m_verdict);
    connect(m_selector, &QLineEdit::textChanged, this, &WhyNot::showVerdict);
}

void WhyNot::setInspection(const Inspection &inspection, const QStringList &attributes)
{
    m_inspection = inspection;
    m_attributes = attributes;
    showVerdict();
}

void WhyNot::showVerdict()
{
    m_verdict->clear();
    const QString text = m_selector->text().trimmed();
    if (text.isEmpty() || !m_inspection.styledWidget)
        return;
    // It may ask for properties that no rule asks for.
    const StyleRules rules(text % QLatin1String("{}"));
    StyleElement element =
        StyleElement::of(m_inspection.styledWidget, attributesIn(rules.rules()) + m_attributes);
    element.subControl = m_inspection.subControl;
    element.states = m_inspection.element.states;
    const SelectorVerdict verdict = whyNot(text, element);
    new QTreeWidgetItem(m_verdict, {text, verdict.matches ? tr("matches") : verdict.reason});
    for (const SelectorPiece &piece : verdict.pieces)
        new QTreeWidgetItem(m_verdict, {piece.text, piece.fits ? tr("fits") : piece.reason});
}
