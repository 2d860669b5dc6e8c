// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "specimenpage.h"

#include "copylabel.h"
#include "shownpart.h"
#include "specimentable.h"
#include "specimenwidget.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

constexpr int pageMargin = 24;

QLabel *createHeading(const QString &title)
{
    auto *heading = new QLabel(title);
    heading->setProperty("fontSize", QStringLiteral("XL"));
    heading->setProperty("fontWeight", QStringLiteral("bold"));
    return heading;
}

// Lines are broken here, since a label that breaks them itself has no size a grid can rely on.
QString wrapped(const QString &text)
{
    constexpr int charactersPerLine = 58;
    QString lines;
    int column = 0;
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString &word : words) {
        const bool breaks = column + word.size() > charactersPerLine;
        if (column > 0)
            lines += QLatin1Char(breaks ? '\n' : ' ');
        lines += word;
        column = (breaks ? 0 : column) + int(word.size()) + 1;
    }
    return lines;
}

QLabel *createNote(const QString &text)
{
    auto *note = new QLabel(wrapped(text));
    note->setObjectName(QStringLiteral("note"));
    note->setTextFormat(Qt::PlainText);
    return note;
}

// A specimen above the name of its state. Layouts, not widgets, hold the parts of a page together:
// restyling costs as much as there are widgets.
QLayout *createCell(const Specimen &specimen)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(3);
    layout->addStretch();
    QWidget *widget = createSpecimenWidget(specimen);
    widget->setProperty(specimenProperty, specimen.selector);
    widget->setAccessibleName(specimen.selector);
    layout->addWidget(widget, 0, Qt::AlignLeft);
    auto *caption =
        new CopyLabel(specimen.stateCaption(), specimen.selector, specimen.parts.propertyLines());
    caption->setObjectName(QStringLiteral("stateCaption"));
    caption->setProperty(specimenProperty, specimen.selector);
    layout->addWidget(caption, 0, Qt::AlignLeft);
    return layout;
}

// A note that holds for several specimens of the row stands there once.
void addNotes(const SpecimenRow &row, QVBoxLayout *layout)
{
    QStringList texts;
    const auto notes = engineNotes();
    for (const EngineNote &note : notes) {
        for (const Specimen &specimen : row.specimens) {
            if (specimen.hasRule && specimen.selector == note.selector)
                texts.append(note.text());
        }
    }
    texts.removeDuplicates();
    for (const QString &text : qAsConst(texts))
        layout->addWidget(createNote(text));
}

// The base selector, its specimens side by side, and what Qt makes of their rules.
QLayout *createRow(const SpecimenRow &row)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(6);
    const Selector base = Selector::fromText(row.baseSelector);
    auto *caption = new CopyLabel(row.baseSelector, row.baseSelector, base.propertyLines());
    caption->setObjectName(QStringLiteral("caption"));
    layout->addWidget(caption, 0, Qt::AlignLeft);
    auto *cells = new QHBoxLayout;
    cells->setSpacing(16);
    for (const Specimen &specimen : row.specimens)
        cells->addLayout(createCell(specimen));
    cells->addStretch();
    layout->addLayout(cells);
    addNotes(row, layout);
    layout->addStretch();
    return layout;
}

QLayout *createSection(const SpecimenSection &section)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(18);
    for (int i = 0; i < section.rows.size(); ++i)
        grid->addLayout(createRow(section.rows.at(i)), i / section.columns, i % section.columns);
    for (int column = 0; column < section.columns; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

} // namespace

QWidget *createSpecimenPage(const QString &name)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    layout->setSpacing(14);
    const auto sections = specimenSections(name);
    for (const SpecimenSection &section : sections) {
        layout->addWidget(createHeading(section.title));
        layout->addLayout(createSection(section));
        layout->addSpacing(12);
    }
    layout->addStretch();
    return page;
}

} // namespace Gallery
