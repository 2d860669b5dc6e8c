// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "specimentable.h"

#include <iterator>

namespace Gallery
{

namespace
{

// A row makes one specimen per word of its states. "-" is the base selector alone, any other word
// is appended to it. A "+" in front says that the templates have no rule for just that selector:
// the specimen is there to show that the state looks like another one.
struct Row {
    const char *page;
    const char *section;
    const char *baseSelector;
    const char *states;
    const char *extra = ""; // "QFrame style=BG1": another class or properties the rule needs
};

struct SectionLayout {
    const char *section;
    int columns;
};

constexpr char imageStates[] = "- +:hover +:pressed +:disabled";
constexpr char imageToggle[] = "- :checked +:hover +:pressed +:disabled";

// clang-format off
constexpr SectionLayout sectionLayouts[] = {
    {"Plain", 2}, {"Main actions", 2}, {"Floating tabs", 2},
    {"Title bar", 3}, {"Tool bar", 3}, {"Project and layout", 3}, {"Editing", 3},
    {"Icon with text", 3}, {"Output patch", 3},
    {"Line edit", 2}, {"Spin box", 2}, {"Double spin box", 2}, {"Date and time", 2},
    {"Check mark on a push button", 3}, {"Combo box", 2}, {"Combo box list", 2},
    {"Horizontal sliders", 2}, {"Coloured grooves", 3}, {"Scroll bars", 3},
    {"Hint texts", 4}, {"Font sizes", 4}, {"Label images", 4},
    {"Simple list", 2}, {"Mapping table", 2}, {"Floating tab bar", 2},
    {"Calendar", 3}, {"Navigation bar", 3},
    {"Backgrounds", 4}, {"Lines and masks", 4}, {"Radii", 4}, {"Borders", 4},
};

constexpr Row rows[] = {
    {"buttons", "Plain", "QPushButton", "- :hover :pressed :disabled +:checked +:focus"},
    {"buttons", "Plain", "QPushButton::menu-indicator", "-"},
    {"buttons", "Plain", "QPushButton[style=transparent]", "- +:hover +:pressed +:disabled +:focus"},
    {"buttons", "Plain", "QPushButton[style=helper]", "+- :hover :pressed +:disabled +:focus"},
    {"buttons", "Main actions", "QPushButton[style=general]", "- :hover :pressed :disabled +:focus"},
    {"buttons", "Main actions", "QPushButton[style=assist]", "- :hover :pressed :disabled +:focus"},
    {"buttons", "Main actions", "QPushButton[style=editButton]", "- :hover +:pressed +:disabled +:focus"},
    {"buttons", "Main actions", "QPushButton[style=menuButton]", "- :hover :pressed +:disabled +:focus"},
    {"buttons", "Floating tabs", "QPushButton[style=floatingTabButton]", "- :hover :pressed :checked +:disabled"},
    {"buttons", "Floating tabs", "QPushButton[style=floatingTabButtonAssist]", "- :hover :pressed :checked +:disabled"},

    {"image-buttons", "Title bar", "QPushButton[imageBtn=close]", imageStates},
    {"image-buttons", "Title bar", "QPushButton[imageBtn=showChange]", imageToggle},
    {"image-buttons", "Title bar", "QPushButton[imageBtn=minimize]", imageStates},
    {"image-buttons", "Title bar", "QPushButton[imageBtn=msgCenter]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=add]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=delete]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=lock]", imageToggle},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=adminTip]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=nail]", imageToggle},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=mute]", imageToggle},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=locate]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=origin]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=turnNext]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=turnPrev]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=shortcutShow]", imageStates},
    {"image-buttons", "Tool bar", "QPushButton[imageBtn=shortcutHide]", imageStates},
    {"image-buttons", "Project and layout", "QPushButton[imageBtn=projectNew]", imageStates},
    {"image-buttons", "Project and layout", "QPushButton[imageBtn=projectSave]", imageStates},
    {"image-buttons", "Project and layout", "QPushButton[imageBtn=projectSaveAs]", imageStates},
    {"image-buttons", "Project and layout", "QPushButton[imageBtn=projectPack]", imageStates},
    {"image-buttons", "Project and layout", "QPushButton[imageBtn=layoutDefault]", imageStates},
    {"image-buttons", "Project and layout", "QPushButton[imageBtn=layoutSave]", imageStates},
    {"image-buttons", "Project and layout", "QPushButton[imageBtn=lyoutManager]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=resetBtn]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=colorPicker]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=linkBtn]", imageToggle},
    {"image-buttons", "Editing", "QPushButton[imageBtn=display]", imageToggle},
    {"image-buttons", "Editing", "QPushButton[imageBtn=correct]", imageToggle},
    {"image-buttons", "Editing", "QPushButton[imageBtn=expand]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=reduce]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=increase]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=right]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=down]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=undo]", imageStates},
    {"image-buttons", "Editing", "QPushButton[imageBtn=redo]", imageStates},
    {"image-buttons", "Icon with text", "QPushButton[imageBtn=moveUpWithText]", "- +:hover +:disabled"},
    {"image-buttons", "Icon with text", "QPushButton[imageBtn=moveDownWithText]", "- +:hover +:disabled"},
    {"image-buttons", "Icon with text", "QPushButton[imageBtn=moveTopWithText]", "- +:hover +:disabled"},
    {"image-buttons", "Icon with text", "QPushButton[imageBtn=moveBottomWithText]", "- +:hover +:disabled"},
    {"image-buttons", "Output patch", "QPushButton[imageBtn=patchAlignLeft]", imageStates},
    {"image-buttons", "Output patch", "QPushButton[imageBtn=patchAlignHorCenter]", imageStates},
    {"image-buttons", "Output patch", "QPushButton[imageBtn=patchAlignRight]", imageStates},
    {"image-buttons", "Output patch", "QPushButton[imageBtn=patchAlignTop]", imageStates},
    {"image-buttons", "Output patch", "QPushButton[imageBtn=patchAlignVerCenter]", imageStates},
    {"image-buttons", "Output patch", "QPushButton[imageBtn=patchAlignBottom]", imageStates},

    {"inputs", "Line edit", "QLineEdit", "- :hover :focus :disabled"},
    {"inputs", "Line edit", "QLineEdit::placeholderText", "-"},
    {"inputs", "Line edit", "QLineEdit[style=editError]", "- +:hover +:focus +:disabled"},
    {"inputs", "Line edit", "QLineEdit[style=editSuccess]", "- +:hover +:focus +:disabled"},
    {"inputs", "Line edit", "QLineEdit[style=transparent]", "- +:hover +:focus +:disabled"},
    {"inputs", "Spin box", "QSpinBox", "- :hover :focus :disabled"},
    {"inputs", "Spin box", "QSpinBox:up-button", "-"},
    {"inputs", "Spin box", "QSpinBox::up-button", ":hover :pressed"},
    {"inputs", "Spin box", "QSpinBox:down-button", "-"},
    {"inputs", "Spin box", "QSpinBox::down-button", ":hover :pressed"},
    {"inputs", "Spin box", "QSpinBox[style=editError]", "- +:hover +:focus +:disabled"},
    {"inputs", "Spin box", "QSpinBox[style=transparent]", "- +:hover +:focus +:disabled"},
    {"inputs", "Double spin box", "QDoubleSpinBox", "- :hover :focus :disabled"},
    {"inputs", "Double spin box", "QDoubleSpinBox:up-button", "- :hover :pressed"},
    {"inputs", "Double spin box", "QDoubleSpinBox:down-button", "- :hover :pressed"},
    {"inputs", "Double spin box", "QDoubleSpinBox[style=transparent]", "- +:hover +:focus +:disabled"},
    {"inputs", "Date and time", "QDateTimeEdit", "- :hover :focus :disabled"},
    {"inputs", "Date and time", "QDateTimeEdit:up-button", "-"},
    {"inputs", "Date and time", "QDateTimeEdit::up-button", ":hover :pressed"},
    {"inputs", "Date and time", "QDateTimeEdit:down-button", "-"},
    {"inputs", "Date and time", "QDateTimeEdit::down-button", ":hover :pressed"},
    {"inputs", "Date and time", "QDateTimeEdit[style=transparent]", "- +:hover +:focus +:disabled"},
    {"inputs", "Text", "QTextEdit[style=qrCodeEdit]", "- +:hover +:focus +:disabled"},

    {"selection", "Check box", "QCheckBox", "- :hover :pressed +:disabled +:focus"},
    {"selection", "Check box", "QCheckBox::indicator", "- :enabled:unchecked :disabled:unchecked :enabled:checked :disabled:checked"},
    {"selection", "Radio button", "QRadioButton", "- :hover :pressed +:disabled +:focus"},
    {"selection", "Radio button", "QRadioButton::indicator", "- :disabled :checked :checked:disabled"},
    {"selection", "Check mark on a push button", "QPushButton[checkStyle=checked]", "- :checked :disabled :checked:disabled"},
    {"selection", "Check mark on a push button", "QPushButton[checkStyle=halfChecked]", ":checked :checked:disabled"},
    {"selection", "Check mark on a push button", "[checkStyle=halfChecked]", "- :disabled", "QPushButton"},
    {"selection", "Switch", "QPushButton[switchStyle=general]", "- :hover :checked :checked:hover +:disabled"},
    {"selection", "Combo box", "QComboBox", "- :hover :on :disabled +:focus"},
    {"selection", "Combo box", "QComboBox::drop-down", "-"},
    {"selection", "Combo box", "QComboBox[style=transparent]", "- +:hover +:on +:disabled"},
    {"selection", "Combo box", "QComboBox[style=noBorder]", "- +:hover +:on +:disabled"},
    {"selection", "Combo box list", "QComboBox QAbstractItemView", "-"},
    {"selection", "Combo box list", "QComboBox QAbstractItemView::item", "- :selected"},

    {"sliders", "Horizontal sliders", "QSlider:horizontal", "- +:disabled"},
    {"sliders", "Horizontal sliders", "QSlider:groove:horizontal", "-"},
    {"sliders", "Horizontal sliders", "QSlider:handle:horizontal", "- +:pressed +:disabled"},
    {"sliders", "Horizontal sliders", "QSlider[sliderStyle=hGeneral]:add-page:horizontal", "- +:disabled"},
    {"sliders", "Horizontal sliders", "QSlider[sliderStyle=hGeneral]:sub-page:horizontal", "- +:disabled"},
    {"sliders", "Horizontal sliders", "QSlider[sliderStyle=hGeneralTwoWay]:add-page:horizontal", "- +:disabled"},
    {"sliders", "Horizontal sliders", "QSlider[sliderStyle=hGeneralTwoWay]:sub-page:horizontal", "- +:disabled"},
    {"sliders", "Coloured grooves", "QSlider::groove:horizontal[sliderStyle=luminance]", "-"},
    {"sliders", "Coloured grooves", "QSlider::groove:horizontal[sliderStyle=contrast]", "-"},
    {"sliders", "Coloured grooves", "QSlider::groove:horizontal[sliderStyle=opacity]", "-"},
    {"sliders", "Coloured grooves", "QSlider::groove:horizontal[sliderStyle=kelvin]", "-"},
    {"sliders", "Coloured grooves", "QSlider::groove:horizontal[sliderStyle=hue]", "-"},
    {"sliders", "Coloured grooves", "QSlider::groove:horizontal[sliderStyle=saturability]", "-"},
    {"sliders", "Coloured grooves", "QSlider[sliderStyle=red]:groove:horizontal", "-"},
    {"sliders", "Coloured grooves", "QSlider[sliderStyle=green]:groove:horizontal", "-"},
    {"sliders", "Coloured grooves", "QSlider[sliderStyle=blue]:groove:horizontal", "-"},
    {"sliders", "Scroll bars", "QScrollBar:vertical", "- +:disabled"},
    {"sliders", "Scroll bars", "QScrollBar:horizontal", "- +:disabled"},
    {"sliders", "Scroll bars", "QScrollBar:handle", "-"},
    {"sliders", "Scroll bars", "QScrollBar:add-line:vertical", "-"},
    {"sliders", "Scroll bars", "QScrollBar:sub-line:vertical", "-"},
    {"sliders", "Scroll bars", "QScrollBar:add-line:horizontal", "-"},
    {"sliders", "Scroll bars", "QScrollBar:sub-line:horizontal", "-"},
    {"sliders", "Scroll bars", "QScrollBar::add-page", "-"},
    {"sliders", "Scroll bars", "QScrollBar::sub-page", "-"},
    {"sliders", "Scroll area", "QScrollArea", "-"},

    {"labels", "Hint texts", "QLabel[style=highlightText]", "- +:disabled"},
    {"labels", "Hint texts", "QLabel[style=errorHint]", "- +:disabled"},
    {"labels", "Hint texts", "QLabel[style=grayHint]", "- +:disabled"},
    {"labels", "Hint texts", "QLabel[style=yellowHint]", "- +:disabled"},
    {"labels", "Hint texts", "QLabel[style=greenHint]", "- +:disabled"},
    {"labels", "Hint texts", "QLabel[style=originHint]", "- +:disabled"},
    {"labels", "Hint texts", "QLabel[style=redBackground]", "- +:disabled"},
    {"labels", "Font sizes", "*", "- :disabled", "QLabel"},
    {"labels", "Font sizes", "*[fontSize=XS]", "-", "QLabel"},
    {"labels", "Font sizes", "*[fontSize=S]", "-", "QLabel"},
    {"labels", "Font sizes", "*[fontSize=M]", "-", "QLabel"},
    {"labels", "Font sizes", "*[fontSize=L]", "-", "QLabel"},
    {"labels", "Font sizes", "*[fontSize=XL]", "-", "QLabel"},
    {"labels", "Font sizes", "*[textSize=XXL]", "-", "QLabel"},
    {"labels", "Font sizes", "*[fontWeight=bold]", "-", "QLabel"},
    {"labels", "Label images", "QLabel[labelImage=titleIcon]", "-"},
    {"labels", "Label images", "QLabel[labelImage=desktopIcon]", "-"},
    {"labels", "Label images", "QLabel[labelImage=softIcon]", "-"},
    {"labels", "Label images", "QLabel[labelImage=search]", "-"},
    {"labels", "Label images", "QLabel[labelImage=tip_warning]", "-"},
    {"labels", "Label images", "QLabel[labelImage=tip_question]", "-"},
    {"labels", "Label images", "QLabel[labelImage=tip_critical]", "-"},
    {"labels", "Label images", "QLabel[labelImage=tip_about]", "-"},
    {"labels", "Label images", "QLabel[labelImage=tip_succeed]", "-"},
    {"labels", "Label images", "QLabel[labelImage=popup_succeed]", "-"},
    {"labels", "Label images", "QLabel[labelImage=popup_warning]", "-"},
    {"labels", "Label images", "QLabel[labelImage=popup_hint]", "-"},
    {"labels", "Label images", "QLabel[labelImage=up]", "-"},
    {"labels", "Label images", "QLabel[labelImage=down]", "-"},
    {"labels", "Label images", "QLabel[labelImage=left]", "-"},
    {"labels", "Label images", "QLabel[labelImage=right]", "-"},

    {"lists", "Simple list", "QListWidget[style=simpleList]", "-"},
    {"lists", "Simple list", "QListWidget[style=simpleList]::Item", "- :hover :selected +:disabled"},
    {"lists", "Mapping table", "QTableWidget[style=audioMappingTableWidget]", "-"},
    {"lists", "Mapping table", "QTableWidget[style=audioMappingTableWidget]::item", "- :hover :disabled"},
    {"lists", "Mapping table", "QHeaderView[style=audioMappingHeaderView]::section", "-"},

    {"tabs", "Floating tab bar", "QTabBar[style=floatTabBar]:tab", "- :selected +:hover +:disabled"},
    {"tabs", "Floating tab bar", "QTabBar[style=floatTabBar]::scroller", "-"},
    {"tabs", "Floating tab bar", "QTabBar[style=floatTabBar]::scroll-arrow", "-"},
    {"tabs", "Floating tab bar", "QTabBar[style=floatTabBar]::down-arrow", "-"},
    {"tabs", "Floating tab bar", "QTabBar[style=floatTabBar]::up-arrow", "-"},

    {"calendar", "Calendar", "QCalendarWidget", "-"},
    {"calendar", "Calendar", "QCalendarWidget QTableView", "-"},
    {"calendar", "Calendar", "QCalendarWidget QHeaderView::section", "-"},
    {"calendar", "Days", "QCalendarWidget QTableView::item", "- :hover :selected"},
    {"calendar", "Disabled days", "QCalendarWidget QTableView::item", ":disabled :disabled:selected"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton", "-"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton", ":hover"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton", ":pressed"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton#qt_calendar_prevmonth", "-"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton#qt_calendar_nextmonth", "-"},
    {"calendar", "Navigation bar", "QCalendarWidget QAbstractButton::menu-indicator", "-"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton#qt_calendar_monthbutton", "-"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton#qt_calendar_monthbutton::menu-indicator", "-"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton#qt_calendar_yearbutton", "-"},
    {"calendar", "Navigation bar", "QCalendarWidget QToolButton#qt_calendar_yearbutton::menu-indicator", "-"},
    {"calendar", "Year field", "QCalendarWidget QSpinBox", "- :hover :focus"},
    {"calendar", "Combo box in a calendar", "QCalendarWidget QComboBox", "- ::drop-down ::down-arrow"},

    {"menus", "Menu", "QMenu", "-"},
    {"menus", "Menu", "QMenu::item", "- :selected +:disabled"},
    {"menus", "Tool tip", "QToolTip", "-"},

    {"surfaces", "Backgrounds", "QWidget[style=transparent]", "-", "QPlainTextEdit"},
    {"surfaces", "Backgrounds", "QWidget[style=BG1]", "-"},
    {"surfaces", "Backgrounds", "QWidget[style=BG2]", "-"},
    {"surfaces", "Backgrounds", "QWidget[style=BG3]", "-"},
    {"surfaces", "Backgrounds", "QWidget[style=BG4]", "-"},
    {"surfaces", "Backgrounds", "QWidget[style=BG5]", "-"},
    {"surfaces", "Backgrounds", "QWidget[style=BG6]", "-"},
    {"surfaces", "Backgrounds", "QWidget[style=BG7]", "-"},
    {"surfaces", "Backgrounds", "QWidget[style=toolWidget]", "-"},
    {"surfaces", "Lines and masks", "QWidget[style=dialogMask]", "-"},
    {"surfaces", "Lines and masks", "QWidget[style=cutLine]", "-"},
    {"surfaces", "Lines and masks", "QWidget[style=tagLine]", "-"},
    {"surfaces", "Lines and masks", "QWidget[style=highlight]", "-"},
    {"surfaces", "Radii", "QWidget[radius=S]", "-", "QWidget style=highlight"},
    {"surfaces", "Radii", "QWidget[radius=M]", "-", "QWidget style=highlight"},
    {"surfaces", "Radii", "QWidget[radius=L]", "-", "QWidget style=highlight"},
    {"surfaces", "Borders", "QWidget[borderColor=none]", "-", "QLineEdit style=editError"},
    {"surfaces", "Borders", "QWidget[borderColor=highlight]", "-", "QWidget style=BG3"},
    {"surfaces", "Borders", "QWidget[borderColor=default]", "-", "QWidget style=BG5"},
    {"surfaces", "Borders", "QWidget[borderColor=BG5]", "-", "QWidget style=BG2"},
};
// clang-format on

void applyExtra(const QString &extra, Specimen *specimen)
{
    const QStringList words = extra.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.isEmpty())
        return;
    specimen->parts.widgetClass = words.first();
    for (int i = 1; i < words.size(); ++i) {
        const QString &pair = words.at(i);
        specimen->extraProperties.append(
            {pair.section(QLatin1Char('='), 0, 0), pair.section(QLatin1Char('='), 1)});
    }
}

Specimen makeSpecimen(const Row &row, QString state)
{
    Specimen specimen;
    specimen.hasRule = !state.startsWith(QLatin1Char('+'));
    if (!specimen.hasRule)
        state.remove(0, 1);
    if (state == QLatin1String("-"))
        state.clear();
    specimen.selector = QString::fromLatin1(row.baseSelector) + state;
    specimen.parts = Selector::fromText(specimen.selector);
    applyExtra(QString::fromLatin1(row.extra), &specimen);
    return specimen;
}

SpecimenRow makeRow(const Row &row)
{
    SpecimenRow made{QString::fromLatin1(row.baseSelector), {}};
    const QStringList states = QString::fromLatin1(row.states).split(QLatin1Char(' '));
    for (const QString &state : states)
        made.specimens.append(makeSpecimen(row, state));
    return made;
}

int columnsOf(const QString &section)
{
    const auto layout =
        std::find_if(std::begin(sectionLayouts), std::end(sectionLayouts),
                     [&](const SectionLayout &each) { return section == each.section; });
    return layout == std::end(sectionLayouts) ? 1 : layout->columns;
}

} // namespace

QString Specimen::stateCaption() const
{
    QString caption;
    if (!parts.subControl.isEmpty())
        caption += QLatin1String("::") + parts.subControl;
    for (const QString &state : parts.states)
        caption += QLatin1Char(':') + state;
    return caption.isEmpty() ? QStringLiteral("normal") : caption;
}

QVector<SpecimenSection> specimenSections(const QString &page)
{
    QVector<SpecimenSection> sections;
    for (const Row &row : rows) {
        if (page != row.page)
            continue;
        const QString title = QString::fromLatin1(row.section);
        if (sections.isEmpty() || sections.last().title != title)
            sections.append({title, columnsOf(title), {}});
        sections.last().rows.append(makeRow(row));
    }
    return sections;
}

QVector<Specimen> allSpecimens()
{
    QVector<Specimen> specimens;
    for (const Row &row : rows)
        specimens += makeRow(row).specimens;
    return specimens;
}

} // namespace Gallery
