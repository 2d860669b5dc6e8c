// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/coloreditor.h>

#include <colormath/contrast.h>
#include <inspector/colorswatch.h>
#include <inspector/ownlook.h>
#include <inspector/plaintree.h>

#include <QColorDialog>
#include <QCompleter>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QToolButton>
#include <QTreeWidget>

namespace
{

const QSize swatchSize(22, 22);

QString hexText(const QColor &color)
{
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb).toUpper();
}

} // namespace

ColorEditor::ColorEditor(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLineEdit)
    , m_swatch(new QLabel)
    , m_contrast(new QLabel)
    , m_more(new QToolButton)
    , m_list(new PlainTree<QTreeWidget>)
{
    setUpText();
    setUpList();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    auto *column = new QVBoxLayout;
    auto *line = new QHBoxLayout;
    line->addWidget(m_swatch);
    line->addWidget(m_text, 1);
    line->addWidget(m_more);
    column->addLayout(line);
    column->addWidget(m_contrast);
    column->addStretch(1);
    row->addLayout(column, 2);
    row->addWidget(m_list, 3);
    setFocusProxy(m_text);
}

void ColorEditor::setUpText()
{
    m_text->setAccessibleName(tr("Colour"));
    m_text->setToolTip(tr("#RRGGBB, #AARRGGBB with the opacity first, or a palette entry"));
    m_text->setMinimumWidth(90);
    auto *completer = ownCompleter({}, this);
    m_text->setCompleter(completer);
    connect(completer, qOverload<const QString &>(&QCompleter::activated), this,
            [this](const QString &text) { readText(text); });
    connect(m_text, &QLineEdit::textEdited, this, &ColorEditor::readText);
    m_more->setText(tr("&More…"));
    m_more->setAccessibleName(tr("Choose any colour"));
    connect(m_more, &QToolButton::clicked, this, &ColorEditor::openDialog);
    m_contrast->setAccessibleName(tr("Contrast of the chosen colour"));
    m_contrast->setWordWrap(true);
}

void ColorEditor::setUpList()
{
    m_list->setAccessibleName(tr("Palette entries"));
    m_list->setHeaderLabels({tr("Palette entry"), tr("Colour"), tr("Contrast")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setStretchLastSection(false);
    m_list->setColumnWidth(1, 84);
    m_list->setColumnWidth(2, 84);
    m_list->setMinimumWidth(220);
    const auto take = [this](const QTreeWidgetItem *item) {
        if (!item)
            return;
        edit(textOf(m_list->indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(item)))); // NOLINT
        m_text->setText(m_value);
    };
    connect(m_list, &QTreeWidget::currentItemChanged, this, take);
    connect(m_list, &QTreeWidget::itemActivated, this, take);
}

void ColorEditor::setEntries(const QVector<QPair<QString, QColor>> &entries)
{
    if (entries == m_entries)
        return;
    m_entries = entries;
    QStringList names;
    for (const auto &entry : entries)
        names << entry.first;
    static_cast<QStringListModel *>(m_text->completer()->model())->setStringList(names);
    showEntries();
    showColor();
}

void ColorEditor::setPartner(const std::optional<ColorPartner> &partner)
{
    m_list->setColumnHidden(2, !partner);
    if (partner == m_partner)
        return;
    m_partner = partner;
    showEntries();
    showColor();
}

void ColorEditor::setValue(const QString &text, Entries entries)
{
    m_choice = entries;
    if (text == m_value)
        return;
    m_value = text;
    m_text->setText(text);
    showColor();
}

QColor ColorEditor::colorOf(const QString &text) const
{
    for (const auto &entry : m_entries) {
        if (entry.first == text)
            return entry.second;
    }
    const bool isWhole =
        text.startsWith(QLatin1Char('#')) && (text.size() == 7 || text.size() == 9);
    return isWhole ? QColor(text) : QColor();
}

// Palette entries have colours of their own: their names stand for those that they have.
void ColorEditor::readText(const QString &text)
{
    const QString written = text.trimmed();
    const QColor color = colorOf(written);
    if (!color.isValid()) {
        m_contrast->setText(tr("Not yet a colour: #RRGGBB, #AARRGGBB or a palette entry"));
        return;
    }
    const bool isEntry = !written.startsWith(QLatin1Char('#'));
    edit(isEntry && m_choice == Entries::AsColors ? hexText(color) : written);
}

void ColorEditor::edit(const QString &text)
{
    if (text == m_value) {
        showColor();
        return;
    }
    m_value = text;
    showColor();
    Q_EMIT edited(text);
}

void ColorEditor::closeDialog()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this); // it is still there for a while
    m_dialog->close();
    m_dialog.clear();
}

void ColorEditor::openDialog()
{
    if (!m_dialog) {
        m_dialog = new QColorDialog(this);
        m_dialog->setPalette(inspectorPalette());
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        m_dialog->setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel
                             | QColorDialog::NoButtons);
        m_dialog->setWindowTitle(tr("Any colour"));
        m_dialog->setCurrentColor(colorOf(m_value));
        connect(m_dialog, &QColorDialog::currentColorChanged, this, [this](const QColor &color) {
            edit(hexText(color));
            m_text->setText(m_value);
        });
    }
    m_dialog->show();
    m_dialog->raise();
}

// What choosing the entry of a row edits.
QString ColorEditor::textOf(int row) const
{
    const auto &entry = m_entries.at(row);
    return m_choice == Entries::Named ? entry.first : hexText(entry.second);
}

// An entry that is chosen by its colour stays, so that the next key goes on from there.
void ColorEditor::showChosen()
{
    const QSignalBlocker blocker(m_list);
    QTreeWidgetItem *chosen = m_list->currentItem();
    if (chosen && textOf(m_list->indexOfTopLevelItem(chosen)) == m_value)
        return;
    chosen = nullptr;
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).first == m_value)
            chosen = m_list->topLevelItem(i);
    }
    m_list->setCurrentItem(chosen);
}

void ColorEditor::showColor()
{
    const QColor color = colorOf(m_value);
    m_swatch->setPixmap(colorSwatch(color, swatchSize, devicePixelRatioF()));
    showChosen();
    const std::optional<double> ratio =
        m_partner && color.isValid() ? m_partner->ratio(color) : std::nullopt;
    QString told;
    bool isLow = false;
    if (ratio) {
        isLow = *ratio < m_partner->wanted;
        told = m_partner->isGround
            ? tr("%1 on the ground %2")
                  .arg(ColorMath::contrastText(*ratio), hexText(m_partner->color))
            : tr("%1 under the text %2")
                  .arg(ColorMath::contrastText(*ratio), hexText(m_partner->color));
        if (isLow)
            told.prepend(tr("Too low for text, %1:1 is needed: ").arg(m_partner->wanted));
    } else if (m_partner && color.isValid()) {
        told = tr("What lies below shines through; the line above the lists has the contrast as it "
                  "is painted.");
    } else {
        told = tr("No text is drawn with this here.");
    }
    m_contrast->setText(told);
    m_contrast->setProperty("isWarning", isLow);
    m_contrast->setStyleSheet(isLow ? warningStyleSheet() : QString());
}

void ColorEditor::showEntries()
{
    const QSignalBlocker blocker(m_list);
    // Colours change while the user goes through the entries, which then stay where they are.
    while (m_list->topLevelItemCount() > m_entries.size())
        delete m_list->topLevelItem(m_list->topLevelItemCount() - 1);
    while (m_list->topLevelItemCount() < m_entries.size())
        new QTreeWidgetItem(m_list);
    for (int i = 0; i < m_entries.size(); ++i) {
        const auto &entry = m_entries.at(i);
        QTreeWidgetItem *item = m_list->topLevelItem(i);
        item->setText(0, entry.first);
        item->setText(1, hexText(entry.second));
        item->setText(2, QString());
        item->setData(2, Qt::AccessibleTextRole, QVariant());
        item->setIcon(0, colorSwatch(entry.second, QSize(16, 16), devicePixelRatioF()));
        const std::optional<double> ratio =
            m_partner ? m_partner->ratio(entry.second) : std::nullopt;
        if (!ratio)
            continue;
        const bool isLow = *ratio < m_partner->wanted;
        const QString text = ColorMath::contrastText(*ratio);
        item->setText(2, isLow ? text + tr("  low") : text);
        item->setData(2, Qt::AccessibleTextRole,
                      isLow ? tr("%1, too low for text").arg(text) : text);
    }
}
