// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/ownlook.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QStringListModel>

// NOLINTNEXTLINE(readability-function-size): one text
QString inspectorStyleSheet()
{
    return QStringLiteral(R"(
* {
    background: none; background-color: #f7f7f8; color: #1c1c22; border: none; border-radius: 0;
    margin: 0; padding: 0; min-width: 0; min-height: 0; max-width: 16000px; max-height: 16000px;
    font-family: sans-serif; font-size: 12px; font-weight: normal; font-style: normal; image: none;
    selection-color: #ffffff; selection-background-color: #1f5fbf; text-decoration: none;
    alternate-background-color: #eeeef1; gridline-color: #d0d0d6; outline: none;
}
QLineEdit, QComboBox, QSpinBox {background-color: #ffffff; border: 1px solid #767680; padding: 3px 5px; min-height: 16px;}
QLineEdit:focus, QComboBox:focus, QSpinBox:focus, QTreeView:focus, QListView:focus, QPlainTextEdit:focus {border: 2px solid #1f5fbf;}
QLineEdit:focus, QComboBox:focus, QSpinBox:focus {padding: 2px 4px;}
QLineEdit:disabled, QComboBox:disabled, QSpinBox:disabled {background-color: #ececf0; color: #86868e; border-color: #a8a8b0;}
QComboBox > QLineEdit, QComboBox > QLineEdit:focus {border: none; padding: 0;}
QSpinBox {padding-right: 18px;}
QSpinBox::up-button, QSpinBox::down-button {background-color: #e4e4ea; border: none; width: 16px; image: none; subcontrol-origin: border;}
QSpinBox::up-button {subcontrol-position: top right;}
QSpinBox::down-button {subcontrol-position: bottom right;}
QSpinBox::up-button:hover, QSpinBox::down-button:hover {background-color: #d4d4de;}
QSpinBox::up-arrow, QSpinBox::down-arrow {image: none; width: 0; height: 0; background: none; background-color: transparent;}
QColorDialog QSpinBox {padding-right: 5px;}
QColorDialog QSpinBox::up-button, QColorDialog QSpinBox::down-button {width: 0;}
QPlainTextEdit, QListView {background-color: #ffffff; border: 2px solid #c4c4cc;}
QPlainTextEdit {font-family: monospace;}
QComboBox::drop-down {border: none; background-color: #e4e4ea; width: 16px; image: none;}
QComboBox::down-arrow {image: none; width: 0; height: 0; background: none; background-color: transparent;}
QComboBox QAbstractItemView {background-color: #ffffff; color: #1c1c22; border: 1px solid #767680;}
QPushButton, QToolButton {
    background-color: #e4e4ea; color: #1c1c22; border: 1px solid #767680; padding: 3px 8px; image: none; min-height: 16px;
}
QPushButton:disabled, QToolButton:disabled {background-color: #ececf0; color: #86868e; border-color: #c4c4cc;}
QPushButton:hover, QToolButton:hover {background-color: #d4d4de;}
QPushButton:pressed, QToolButton:pressed, QToolButton:checked {background-color: #1f5fbf; color: #ffffff;}
QPushButton:focus, QToolButton:focus {border: 2px solid #1f5fbf; padding: 2px 7px;}
QToolButton::menu-indicator {image: none;}
QCheckBox, QRadioButton {spacing: 4px; padding: 2px; border: 1px solid transparent;}
QCheckBox:focus, QRadioButton:focus {border: 1px solid #1f5fbf;}
QRadioButton {min-height: 17px;}
QRadioButton::indicator {width: 11px; height: 11px; border: 1px solid #55555f; border-radius: 6px; background-color: #ffffff; image: none;}
QRadioButton::indicator:checked {background-color: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
    stop: 0 #1f5fbf, stop: 0.5 #1f5fbf, stop: 0.62 #ffffff, stop: 1 #ffffff); border-color: #1f5fbf; image: none;}
QCheckBox:disabled, QLabel:disabled {color: #86868e;}
QCheckBox::indicator {width: 11px; height: 11px; border: 1px solid #55555f; background-color: #ffffff; image: none;}
QCheckBox::indicator:checked {background-color: #1f5fbf; image: none;}
QCheckBox::indicator:disabled {background-color: #dcdce2; border-color: #a8a8b0; image: none;}
QTreeView {background-color: #ffffff; border: 2px solid #c4c4cc;}
QTreeView::item {background-color: transparent; color: #1c1c22; border: none; padding: 1px; min-height: 17px;}
QTreeView::item:hover {background-color: #e6eefb; color: #1c1c22;}
QListView::item {color: #1c1c22; border: none; padding: 2px;}
QListView::item:selected, QTreeView::item:selected {background-color: #1f5fbf; color: #ffffff;}
QHeaderView {background-color: #e4e4ea; border: none;}
QHeaderView::section {background-color: #e4e4ea; color: #1c1c22; border: none; border-right: 1px solid #c4c4cc; padding: 3px;}
QTabWidget::pane {border: 1px solid #c4c4cc; background-color: #f7f7f8; top: 0; padding: 0;}
QTabBar::tab {
    background-color: #e4e4ea; color: #1c1c22; border: 1px solid #c4c4cc; padding: 4px 10px; margin: 0; min-width: 20px;
    min-height: 14px; image: none;
}
QTabBar::tab:selected {background-color: #ffffff; border-bottom: 3px solid #1f5fbf; color: #1c1c22;}
QTabBar::tab:focus {border: 2px solid #1f5fbf;}
QScrollBar {background-color: #ececf0; border: none; margin: 0; image: none;}
QScrollBar:vertical {width: 11px;}
QScrollBar:horizontal {height: 11px;}
QScrollBar::handle {background-color: #a0a0aa; border: none; border-radius: 0; margin: 2px; min-width: 20px; min-height: 20px; image: none;}
QScrollBar::handle:hover, QScrollBar::handle:pressed {background-color: #70707a;}
QScrollBar::add-line, QScrollBar::sub-line {width: 0; height: 0; border: none; background: none; image: none;}
QScrollBar::add-page, QScrollBar::sub-page {background: none; image: none;}
QSplitter::handle {background-color: #c4c4cc; image: none;}
QSplitter::handle:horizontal {margin: 0 1px;}
QSplitter::handle:vertical {margin: 1px 0;}
QColorLuminancePicker {min-width: 20px;}
QColorShowLabel {min-width: 40px; min-height: 24px;}
)");
}

QString warningStyleSheet()
{
    return QStringLiteral("QLabel {background-color: #fff0c2; color: #5a2d00; border: 1px solid "
                          "#b07a00; padding: 3px 5px;}");
}

// Its list is a window without a parent.
QCompleter *ownCompleter(const QStringList &words, QObject *parent)
{
    auto *completer = new QCompleter(parent);
    completer->setModel(new QStringListModel(words, completer));
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->popup()->setProperty("hvthemeInspector", true);
    completer->popup()->setStyleSheet(inspectorStyleSheet());
    completer->popup()->setPalette(inspectorPalette());
    return completer;
}

QPalette inspectorPalette()
{
    const QColor ink(0x1c, 0x1c, 0x22);
    const QColor faint(0x86, 0x86, 0x8e);
    const QColor paper(Qt::white);
    const QColor face(0xe4, 0xe4, 0xea);
    QPalette palette(ink, face, paper, face.darker(), faint, ink, paper, paper,
                     QColor(0xf7, 0xf7, 0xf8));
    palette.setColor(QPalette::Highlight, QColor(0x1f, 0x5f, 0xbf));
    palette.setColor(QPalette::HighlightedText, paper);
    palette.setColor(QPalette::PlaceholderText, QColor(0x66, 0x66, 0x70));
    return palette;
}
