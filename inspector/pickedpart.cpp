// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/pickedpart.h>

#include <inspector/owncontrols.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

PickedPart::PickedPart(QWidget *parent)
    : QWidget(parent)
    , m_name(new QLabel)
    , m_parts(new OwnComboBox)
{
    m_name->setAccessibleName(tr("Picked widget"));
    m_name->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    m_name->setWordWrap(true);
    m_parts->setAccessibleName(tr("Part of the widget"));
    m_parts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_parts->setMinimumContentsLength(16);
    connect(m_parts, qOverload<int>(&QComboBox::activated), this, &PickedPart::partChosen);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_name);
    auto *line = new QHBoxLayout;
    line->addWidget(m_parts, 1);
    const QStringList states = ForcedStates::names();
    for (const QString &state : states) {
        auto *box = new OwnCheckBox(QLatin1Char(':') % state);
        box->setAccessibleName(tr("Force the state %1").arg(state));
        connect(box, &QCheckBox::toggled, this,
                [this, state](bool on) { Q_EMIT stateForced(state, on); });
        m_states.insert(state, box);
        line->addWidget(box);
    }
    column->addLayout(line);
    showNothing();
}

void PickedPart::showNothing()
{
    m_name->setText(tr("Nothing is picked."));
    m_parts->clear();
    for (QCheckBox *box : qAsConst(m_states)) {
        const QSignalBlocker blocker(box);
        box->setChecked(false);
        box->setEnabled(false);
    }
}

void PickedPart::show(const Inspection &inspection, const QVector<WidgetPart> &parts,
                      const WidgetPart &part, const ForcedStates &forced)
{
    QString name = nameOf(inspection.widget);
    if (inspection.styledWidget != inspection.widget)
        name += tr(", which has the rules of %1").arg(nameOf(inspection.styledWidget));
    QStringList states = inspection.element.states.values();
    states.sort();
    m_name->setText(QStringLiteral("%1   (%2)").arg(name, states.join(QLatin1String(", "))));
    m_parts->clear();
    int current = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const WidgetPart &one = parts.at(i);
        m_parts->addItem(one.subControl.isEmpty() ? tr("the widget itself")
                                                  : QString(QLatin1String("::") % one.subControl
                                                            % QLatin1String("  ") % one.label));
        if (one == part)
            current = i;
    }
    m_parts->setCurrentIndex(current);
    for (auto it = m_states.cbegin(); it != m_states.cend(); ++it) {
        const QSignalBlocker blocker(*it);
        (*it)->setEnabled(ForcedStates::isPossible(inspection.styledWidget, it.key()));
        (*it)->setChecked(forced.isForced(it.key()));
    }
}
