// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "specimentable.h"

namespace Gallery
{

namespace
{

using Kind = EngineNote::Kind;

struct Note {
    Kind kind;
    const char *selector;
    const char *reason;
};

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
constexpr char dayDelegate[] = "the calendar draws its days with a delegate of its own, which asks "
                               "no style sheet; colours come from the view and its palette.";
#endif
constexpr char innerEdit[] = "color does not reach the text, which belongs to the inner line edit "
                             "and takes the rules of QLineEdit.";
constexpr char comboDelegate[] = "Qt asks it only of a combo box whose item delegate is a "
                                 "QStyledItemDelegate, as in this specimen.";
constexpr char noArrowButtons[] = "the pages of the groove are painted over the arrow button that "
                                  "it removes.";
constexpr char noSuchTabPart[] = "a tab bar has no such part; its arrows are tool buttons.";
constexpr char calendarButton[] = "the rule for all tool buttons of a calendar says the same.";

// clang-format off
constexpr Note notes[] = {
    {Kind::Ignored, "QCalendarWidget", "a calendar paints no box of its own, and its children cover it."},
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which asks the style sheet
    {Kind::Ignored, "QCalendarWidget QTableView::item", dayDelegate},
    {Kind::Ignored, "QCalendarWidget QTableView::item:selected", dayDelegate},
    {Kind::Ignored, "QCalendarWidget QTableView::item:hover", dayDelegate},
    {Kind::Ignored, "QCalendarWidget QTableView::item:disabled", dayDelegate},
    {Kind::Ignored, "QCalendarWidget QTableView::item:disabled:selected", dayDelegate},
#endif
    {Kind::Ignored, "QCalendarWidget QHeaderView::section", "the calendar hides its headers and draws the names of the days as its first row."},
    {Kind::Hidden, "QCalendarWidget QSpinBox:hover", "the border has that colour already."},
    {Kind::Hidden, "QCalendarWidget QSpinBox:focus", "the rule QSpinBox:focus says the same."},
    {Kind::Hidden, "QCalendarWidget QToolButton#qt_calendar_monthbutton", calendarButton},
    {Kind::Hidden, "QCalendarWidget QToolButton#qt_calendar_yearbutton", calendarButton},
    {Kind::Hidden, "QCalendarWidget QToolButton#qt_calendar_monthbutton::menu-indicator", "the rule for all menu indicators of a calendar says the same."},
    {Kind::Ignored, "QCalendarWidget QToolButton#qt_calendar_yearbutton::menu-indicator", "the year button has no menu, so no indicator."},
    {Kind::Hidden, "QCalendarWidget QComboBox::down-arrow", "the drop-down area is 0 pixels wide already."},
    {Kind::Hidden, "QCalendarWidget QAbstractButton::menu-indicator", "the rule for the month button says the same."},
    {Kind::Conditional, "QComboBox QAbstractItemView::item", comboDelegate},
    {Kind::Conditional, "QComboBox QAbstractItemView::item:selected", comboDelegate},
    {Kind::PartlyIgnored, "QDateTimeEdit:hover", innerEdit},
    {Kind::Hidden, "*[fontSize=L]", "L is the size of every widget without fontSize."},
    {Kind::Ignored, "QLineEdit::placeholderText", "Qt 5 knows no such sub-control; a placeholder has the colour of the text."},
    {Kind::PartlyIgnored, "QListWidget[style=simpleList]::Item", "there is no property alignment; items stay at the left."},
    {Kind::Hidden, "QPushButton[style=transparent]", "QWidget[style=transparent] says the same of every widget."},
    {Kind::Hidden, "QPushButton[imageBtn=correct]", "a push button has no image until a rule gives it one."},
    {Kind::Hidden, "QScrollBar:add-line:vertical", noArrowButtons},
    {Kind::Hidden, "QScrollBar:sub-line:vertical", noArrowButtons},
    {Kind::Hidden, "QScrollBar:add-line:horizontal", noArrowButtons},
    {Kind::Hidden, "QScrollBar:sub-line:horizontal", noArrowButtons},
    {Kind::PartlyIgnored, "QSpinBox:hover", innerEdit},
    {Kind::PartlyIgnored, "QDoubleSpinBox:hover", innerEdit},
    {Kind::Ignored, "QTabBar[style=floatTabBar]::scroll-arrow", noSuchTabPart},
    {Kind::Ignored, "QTabBar[style=floatTabBar]::down-arrow", noSuchTabPart},
    {Kind::Ignored, "QTabBar[style=floatTabBar]::up-arrow", noSuchTabPart},
    {Kind::Hidden, "QWidget[style=BG6]", "the templates have it twice."},
};
// clang-format on

} // namespace

QString EngineNote::text() const
{
    switch (kind) {
    case Kind::Ignored:
        return QStringLiteral("Qt ignores this rule: ") + reason;
    case Kind::PartlyIgnored:
        return QStringLiteral("Qt ignores a part of this rule: ") + reason;
    case Kind::Conditional:
        return QStringLiteral("Qt honours this rule on a condition: ") + reason;
    case Kind::Hidden:
        break;
    }
    return QStringLiteral("This rule changes nothing: ") + reason;
}

QVector<EngineNote> engineNotes()
{
    QVector<EngineNote> all;
    for (const Note &note : notes)
        all.append(
            {note.kind, QString::fromLatin1(note.selector), QString::fromLatin1(note.reason)});
    return all;
}

} // namespace Gallery
