// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "makerpage.h"

#include "makerfields.h"
#include "reportmodel.h"

#include <colormath/contrast.h>
#include <format/themepath.h>
#include <maker/meanings.h>

#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Gallery
{

namespace
{

constexpr int controlsWidth = 380;
constexpr int leastTableWidth = 700; // with the rest it fits the window as it opens first
constexpr double chromaOfGrey = 0;

enum Tinge {
    Cool,
    Warm,
    Grey,
    OfAColor,
};

template<typename Widget>
Widget *named(const char *name, Widget *widget)
{
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QComboBox *createChooser(const char *name, const QString &label, const QStringList &texts)
{
    auto *chooser = named(name, new QComboBox);
    chooser->setAccessibleName(label);
    chooser->addItems(texts);
    chooser->setItemDelegate(new QStyledItemDelegate(chooser)); // or no row would look selected
    return chooser;
}

QLabel *createHeading(const QString &title)
{
    auto *heading = new QLabel(title);
    heading->setProperty("fontSize", QStringLiteral("XL"));
    heading->setProperty("fontWeight", QStringLiteral("bold"));
    return heading;
}

QLabel *createText(const char *name, const QString &text = {})
{
    auto *label = named(name, new QLabel(text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QTableView *createTable(const char *name, const QString &label, ReportModel *model, int shownRows)
{
    auto *table = named(name, new QTableView);
    table->setAccessibleName(label);
    table->setModel(model);
    table->setIconSize({34, 20});
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false); // the Tab key leads to the next part of the page
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(28);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->setColumnWidth(0, 255);
    table->setColumnWidth(2, 130);
    table->setColumnWidth(3, 70);
    table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    table->setMinimumSize(leastTableWidth, 36 + 28 * shownRows);
    return table;
}

QString hasText(const PairResult &result)
{
    const QString text = ColorMath::contrastText(result.ratio);
    return result.ratio < result.required ? text + QLatin1String(", too little") : text;
}

QString hasText(const MeaningResult &result)
{
    const QString vision = result.vision == ColorMath::Vision::Normal
        ? QString()
        : QLatin1String(" for ") + ColorMath::visionName(result.vision);
    return QString::number(result.distance, 'f', 1) + vision;
}

QVector<ReportRow> rowsOf(const QVector<PairResult> &results)
{
    QVector<ReportRow> rows;
    for (const PairResult &result : results) {
        QStringList layers = result.pair.layers; // what is on top tells most
        std::reverse(layers.begin(), layers.end());
        rows.append({result.pair.foreground, layers.join(QLatin1String(" over ")), hasText(result),
                     ColorMath::contrastText(result.required), result.foreground, result.ground,
                     ReportRow::Sample::Text});
    }
    return rows;
}

QVector<ReportRow> rowsOf(const QVector<MeaningResult> &results)
{
    QVector<ReportRow> rows;
    for (const MeaningResult &result : results)
        rows.append({result.first, result.second, hasText(result),
                     QString::number(Maker::meaningDistance, 'f', 1), result.firstColor,
                     result.secondColor, ReportRow::Sample::Halves});
    return rows;
}

QString summaryOf(const ThemeReport &report)
{
    const auto isShort = [](const PairResult &result) { return result.ratio < result.required; };
    const auto count = std::count_if(report.pairs.cbegin(), report.pairs.cend(), isShort);
    const QString rest = count == 0 ? QStringLiteral("all with the contrast that they need")
                                    : QStringLiteral("%1 with too little contrast").arg(count);
    return QStringLiteral("%1 pairs of colours, ").arg(report.pairs.size()) + rest;
}

} // namespace

MakerPage::MakerPage(ThemeWorkshop *workshop)
    : m_workshop(workshop)
    , m_look(createChooser("look", QStringLiteral("Look"), {"Dark", "Light", "Contrast"}))
    , m_brand(named("brand", new ColorField(QStringLiteral("Brand"), workshop->parameters().brand)))
    , m_neutral(createChooser("neutral", QStringLiteral("Tinge of the surfaces"),
                              {"Cool", "Warm", "Grey", "Of a colour"}))
    , m_neutralColor(
          named("neutralColor",
                new ColorField(QStringLiteral("Tinge of the surfaces"), QColor(0x5f7a6a))))
    , m_textContrast(named("textContrast",
                           new NumberField(QStringLiteral("Text contrast"), 4.5, 10,
                                           workshop->parameters().textContrast)))
    , m_depth(named("depth",
                    new NumberField(QStringLiteral("Depth of dark surfaces"), 1, 4,
                                    workshop->parameters().surfaceStep)))
    , m_name(named("name", new QLineEdit))
    , m_save(named("save", new QPushButton(QStringLiteral("Save as folder…"))))
    , m_back(named("back", new QPushButton(QStringLiteral("Leave these themes"))))
    , m_status(createText("status"))
    , m_notes(createText("notes"))
    , m_summary(createText("summary"))
    , m_pairs(new ReportModel({"Colour", "On", "Contrast", "Needs"}, this))
    , m_meanings(new ReportModel({"Meaning", "Other meaning", "Distance", "Needs"}, this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(32);
    layout->addWidget(createControls());
    layout->addWidget(createReport(), 1);
    connectControls();
    say({});
    showReport();
}

QWidget *MakerPage::createControls()
{
    m_name->setAccessibleName(QStringLiteral("Name of the set"));
    m_name->setPlaceholderText(QStringLiteral("none"));
    const Maker::Neutral neutral = m_workshop->parameters().neutral;
    const bool isCool = qFuzzyCompare(neutral.hue, Maker::Neutral::cool().hue);
    m_neutral->setCurrentIndex(isCool ? Cool : Warm);
    if (qIsNull(neutral.chroma))
        m_neutral->setCurrentIndex(Grey);
    m_neutralColor->setEnabled(false);

    auto *controls = new QWidget;
    controls->setFixedWidth(controlsWidth);
    auto *column = new QVBoxLayout(controls);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(14);
    column->addWidget(createHeading(QStringLiteral("Make a theme")));
    column->addWidget(
        createText("hint", QStringLiteral("What you change here, all that you see follows.")));
    auto *form = new QFormLayout;
    form->setVerticalSpacing(12);
    form->addRow(QStringLiteral("&Look"), m_look);
    form->addRow(QStringLiteral("&Brand"), m_brand);
    form->addRow(QStringLiteral("&Tinge"), m_neutral);
    form->addRow(QString(), m_neutralColor);
    form->addRow(QStringLiteral("Text &contrast"), m_textContrast);
    form->addRow(QStringLiteral("Dark &depth"), m_depth);
    form->addRow(QStringLiteral("&Name"), m_name);
    column->addLayout(form);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_save);
    buttons->addWidget(m_back);
    buttons->addStretch();
    column->addLayout(buttons);
    column->addWidget(m_status);
    column->addWidget(m_notes);
    column->addStretch();
    return controls;
}

QWidget *MakerPage::createReport()
{
    auto *report = new QWidget;
    auto *column = new QVBoxLayout(report);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    column->addWidget(createHeading(QStringLiteral("Contrast")));
    column->addWidget(m_summary);
    column->addWidget(
        createTable("pairs", QStringLiteral("Contrast of all pairs of colours"), m_pairs, 10), 1);
    column->addSpacing(8);
    column->addWidget(createHeading(QStringLiteral("Meanings, for all eyes")));
    column->addWidget(
        createTable("meanings", QStringLiteral("Distance of meanings"), m_meanings, 7));
    return report;
}

void MakerPage::connectControls()
{
    const auto chosen = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(m_look, chosen, this, [this](int row) { m_workshop->setLook(Maker::Look(row)); });
    connect(m_neutral, chosen, this, [this](int row) {
        m_neutralColor->setEnabled(row == OfAColor);
        takeParameters();
    });
    connect(m_brand, &ColorField::colorChanged, this, &MakerPage::takeParameters);
    connect(m_neutralColor, &ColorField::colorChanged, this, &MakerPage::takeParameters);
    connect(m_textContrast, &NumberField::valueChanged, this, &MakerPage::takeParameters);
    connect(m_depth, &NumberField::valueChanged, this, &MakerPage::takeParameters);
    connect(m_name, &QLineEdit::textChanged, this, &MakerPage::checkName);
    connect(m_save, &QPushButton::clicked, this, &MakerPage::chooseFolder);
    connect(m_back, &QPushButton::clicked, this, &MakerPage::left);
    connect(m_workshop, &ThemeWorkshop::made, this, &MakerPage::showReport);
}

void MakerPage::takeParameters()
{
    Maker::Parameters parameters = m_workshop->parameters();
    parameters.brand = m_brand->color();
    parameters.textContrast = m_textContrast->value();
    parameters.surfaceStep = m_depth->value();
    switch (m_neutral->currentIndex()) {
    case Cool:
        parameters.neutral = Maker::Neutral::cool();
        break;
    case Warm:
        parameters.neutral = Maker::Neutral::warm();
        break;
    case Grey:
        parameters.neutral.chroma = chromaOfGrey;
        break;
    default:
        parameters.neutral = Maker::Neutral::of(m_neutralColor->color());
    }
    m_workshop->setParameters(parameters);
}

void MakerPage::showReport()
{
    const QSignalBlocker blocker(m_look);
    m_look->setCurrentIndex(int(m_workshop->look()));
    const ThemeReport report = m_workshop->report();
    m_pairs->setRows(rowsOf(report.pairs));
    m_meanings->setRows(rowsOf(report.meanings));
    m_summary->setText(summaryOf(report));
    m_notes->setText(report.notes.join(QLatin1String("\n\n")));
}

void MakerPage::say(const QString &text)
{
    m_status->setText(text);
    m_status->setVisible(!text.isEmpty());
}

void MakerPage::checkName()
{
    const QString name = m_name->text();
    const bool isGood = Maker::isThemeName(name);
    m_save->setEnabled(isGood);
    say(isGood ? QString()
               : QStringLiteral("This name cannot name files: take letters, digits, “-”, "
                                "“_” and single spaces, and not “default”."));
}

void MakerPage::chooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, QStringLiteral("Folder for the themes"));
    if (!folder.isEmpty())
        saveTo(folder);
}

void MakerPage::saveTo(const QString &folder)
{
    const QStringList present = listThemes(folder).names;
    if (!present.isEmpty()
        && QMessageBox::question(
               this, QStringLiteral("Save themes"),
               QStringLiteral(
                   "There are themes in “%1” already: %2.\n\nWrite over those of the same name?")
                   .arg(folder, present.join(QLatin1String(", "))),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes) {
        say(QStringLiteral("Nothing was written."));
        return;
    }
    QString error;
    const bool isSaved = m_workshop->save(folder, m_name->text(), !present.isEmpty(), &error);
    say(isSaved ? QStringLiteral("Saved in “%1”.").arg(folder) : error);
}

} // namespace Gallery
