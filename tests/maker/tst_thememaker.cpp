// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>
#include <colormath/contrast.h>
#include <colormath/oklch.h>
#include <colormath/vision.h>
#include <hvtheme/workabletheming.h>
#include <hvthemeapp/applicationtheme.h>
#include <maker/lookcolors.h>
#include <maker/lookpairs.h>
#include <maker/meanings.h>
#include <maker/rebranding.h>
#include <maker/thememaker.h>
#include <maker/themetext.h>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace Maker;

namespace
{

const QVector<Look> allLooks{Look::Dark, Look::Light, Look::Contrast};

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray sampleFile(const QString &name)
{
    return fileContent(QStringLiteral(HVTHEME_SOURCE_DIR "/themes/") + name);
}

bool write(const QString &folder, const MadeThemes &themes)
{
    return std::all_of(themes.files.cbegin(), themes.files.cend(), [&](const MadeFile &made) {
        QFile file(folder + '/' + made.fileName);
        return file.open(QIODevice::WriteOnly) && file.write(made.content) == made.content.size();
    });
}

Order orderOf(const QColor &brand, const Neutral &neutral = {})
{
    Order order;
    order.parameters.brand = brand;
    order.parameters.neutral = neutral;
    return order;
}

ThemeTexts branded(const ThemeTexts &theme, const QColor &brand, QStringList *notes)
{
    QString error;
    const auto made = Maker::withBrand(theme, brand, notes, &error);
    if (!made)
        qFatal("%s", qPrintable(error));
    return *made;
}

// The least that was measured so far of each kind of pair, to be told.
struct Figures {
    QMap<QString, double> ratios; // by look and need
    double meaningDistance = 100;
    double lightnessError = 0; // of tones, L*
    double hueError = 0; // of tones, degrees

    void add(Look look, const ColorPair &pair, double ratio)
    {
        static const char *names[] = {"text", "disabled", "mark", "line", "edge of"};
        QString kind = lookName(look) + ' ' + names[int(pair.need)];
        if (pair.need == Need::EdgeOfGround)
            kind += ' ' + pair.selector;
        ratios[kind] = qMin(ratios.value(kind, 21), ratio);
    }
};

Figures &figures()
{
    static Figures theFigures;
    return theFigures;
}

// What no colour can do, and what is reached instead: white text at 7:1 leaves an edge in the colour of
// its ground less than 3:1, even on black.
struct Impossibility {
    Look look;
    const char *foreground;
    double reached;
};

const Impossibility impossibilities[] = {
    {Look::Contrast, "EditHighlightBorderColor", 1.9},
    {Look::Contrast, "Color_Brand_8", 2.88},
};

double requiredOf(const ColorPair &pair, Look look)
{
    for (const Impossibility &one : impossibilities) {
        if (one.look == look && pair.foreground == QLatin1String(one.foreground)
            && pair.need == Need::EdgeOfGround)
            return one.reached;
    }
    return requiredRatio(pair.need, look, 4.5);
}

// What falls short in the theme as the library reads it, so after rounding to eight bits.
QStringList shortcomings(const HV::Theme &theme, Look look)
{
    QStringList found;
    const auto composite = [&](const QStringList &layers) {
        QColor color = theme.color(layers.first());
        for (int i = 1; i < layers.size(); ++i)
            color = ColorMath::over(theme.color(layers.at(i)), color);
        return color;
    };
    for (const ColorPair &pair : colorPairs()) {
        const double ratio =
            ColorMath::contrastRatio(theme.color(pair.foreground), composite(pair.layers));
        const double required = requiredOf(pair, look);
        figures().add(look, pair, ratio);
        if (ratio < required)
            found.append(QStringLiteral("%1: %2 on %3: %4")
                             .arg(lookName(look), pair.foreground, pair.layers.join('+'),
                                  QString::number(ratio)));
    }
    for (const MeaningPair &pair : meaningPairs()) {
        const double distance =
            ColorMath::leastDistance(theme.color(pair.first), theme.color(pair.second));
        figures().meaningDistance = qMin(figures().meaningDistance, distance);
        if (distance < meaningDistance)
            found.append(QStringLiteral("%1: %2 and %3: %4")
                             .arg(lookName(look), QString::fromLatin1(pair.first),
                                  QString::fromLatin1(pair.second), QString::number(distance)));
    }
    return found;
}

// How far the tones are from even steps and from the brand's hue.
void measureTones(const QColor &brand)
{
    const ColorMath::Oklch origin = ColorMath::toOklch(brand);
    const Run run = brandRun(brand);
    for (int step = 1; step <= toneCount; ++step) {
        const QColor tone = run.tone(step);
        figures().lightnessError = qMax(figures().lightnessError,
                                        qAbs(ColorMath::cieLightness(tone) - toneLightness(step)));
        const ColorMath::Oklch color = ColorMath::toOklch(tone);
        const double difference = qAbs(color.hue - origin.hue);
        if (color.chroma >= 0.05) // eight bits tell no hue of less
            figures().hueError = qMax(figures().hueError, qMin(difference, 360 - difference));
    }
}

QStringList shortcomings(const Order &order)
{
    const QTemporaryDir folder;
    const MadeThemes made = makeThemes(order);
    if (!write(folder.path(), made))
        return {"cannot write"};
    measureTones(order.parameters.brand);
    QStringList found;
    QStringList unsaid;
    for (const Impossibility &one : impossibilities) {
        if (order.looks.contains(one.look))
            unsaid.append(lookName(one.look) + ": " + one.foreground + " on ");
    }
    for (const QString &note : made.notes) { // nothing else that is guaranteed may need an excuse
        const auto isOf = [&](const QString &beginning) { return note.startsWith(beginning); };
        const auto said = std::find_if(unsaid.cbegin(), unsaid.cend(), isOf);
        if (said != unsaid.cend())
            unsaid.removeAt(int(said - unsaid.cbegin()));
        else if (note.contains(" reaches ") || note.contains("cannot all be told apart"))
            found.append(note);
    }
    for (const QString &beginning : qAsConst(unsaid))
        found.append("not said: " + beginning);
    for (const Look look : order.looks) {
        HV::WorkableTheme theme;
        HV::changeTheme(&theme, lookName(look), folder.path());
        found += shortcomings(theme, look);
    }
    return found;
}

} // namespace

class tst_ThemeMaker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void samples_data();
    void samples();
    void corners_data();
    void corners();
    void randomColors();
    void passesTheCheck_data();
    void passesTheCheck();
    void impossible_data();
    void impossible();
    void saysWhyNot();
    void steps_data();
    void steps();
    void brandIsAFill_data();
    void brandIsAFill();
    void selectionIsTheBrand_data();
    void selectionIsTheBrand();
    void neutral_data();
    void neutral();
    void textContrast_data();
    void textContrast();
    void names_data();
    void names();
    void withBrand_data();
    void withBrand();
    void withBrandOfAnotherTheme();
    void withBrandKeepsSpellings_data();
    void withBrandKeepsSpellings();
    void withBrandAddsFills();
    void withBrandInTheThemesOwnPalette_data();
    void withBrandInTheThemesOwnPalette();
    void namesLikeTones_data();
    void namesLikeTones();
    void withBrandBehindAnOpenQuotationMark_data();
    void withBrandBehindAnOpenQuotationMark();
};

void tst_ThemeMaker::samples_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"default.theme", "dark.theme", "light.theme", "contrast.theme"})
        QTest::newRow(name) << name;
}

// The samples are what their recorded parameters make, but for the image files, which they name.
void tst_ThemeMaker::samples()
{
    QFETCH(QString, name);
    ThemeText expected(sampleFile(name));
    expected.removeSection("ImageFiles");
    const QByteArray text = expected.text().replace(", 85 images and its flags", " and its flags");

    const MadeThemes made = makeThemes(orderOf(QColor("#3060F0"), Neutral::cool()));
    const auto file = std::find_if(made.files.cbegin(), made.files.cend(),
                                   [&](const MadeFile &one) { return one.fileName == name; });
    QVERIFY(file != made.files.cend());
    const QList<QByteArray> lines = file->content.split('\n');
    const QList<QByteArray> expectedLines = text.split('\n');
    for (int i = 0; i < qMin(lines.size(), expectedLines.size()); ++i)
        QCOMPARE(lines.at(i), expectedLines.at(i));
    QCOMPARE(lines.size(), expectedLines.size());
}

void tst_ThemeMaker::corners_data()
{
    QTest::addColumn<QColor>("brand");
    QTest::addColumn<QColor>("neutral");

    for (const char *brand :
         {"#000000", "#ffffff", "#808080", "#010101", "#fefefe", "#777777", "#ff0000",
          "#00ff00", "#0000ff", "#ffff00", "#ff00ff", "#00ffff", "#800000", "#000080",
          "#808000", "#fffffe", "#000001", "#7f8080", "#fff0f0", "#0f0000"})
        QTest::newRow(brand) << QColor(brand) << QColor("#6d7078");
    for (const char *neutral : {"#000000", "#ffffff", "#ff0000", "#ffff00", "#0000ff", "#00ff00"})
        QTest::addRow("on-%s", neutral) << QColor("#c05020") << QColor(neutral);
}

void tst_ThemeMaker::corners()
{
    QFETCH(QColor, brand);
    QFETCH(QColor, neutral);
    QCOMPARE(shortcomings(orderOf(brand, Neutral::of(neutral))), QStringList());
}

// As many as time allows; docs/maker.md tells how to try more, and what then was measured.
void tst_ThemeMaker::randomColors()
{
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue("HVTHEME_MAKER_COLORS", &isSet);
    QRandomGenerator random(20260101);
    for (int i = 0; i < (isSet ? wanted : 300); ++i) {
        const QColor brand(QRgb(random.generate() | 0xff000000u));
        const QColor neutral(QRgb(random.generate() | 0xff000000u));
        const QStringList found = shortcomings(orderOf(brand, Neutral::of(neutral)));
        QVERIFY2(found.isEmpty(),
                 qPrintable(brand.name() + ' ' + neutral.name() + ": " + found.join("; ")));
    }
    const Figures &measured = figures();
    QVERIFY(measured.lightnessError < 0.4);
    QVERIFY(measured.hueError < 4);
    if (!isSet)
        return;
    for (auto it = measured.ratios.cbegin(); it != measured.ratios.cend(); ++it)
        qDebug("%s: %.3f:1", qPrintable(it.key()), *it);
    qDebug("meanings: CIEDE2000 %.2f", measured.meaningDistance);
    qDebug("tones: off by L* %.2f, by %.2f degrees", measured.lightnessError, measured.hueError);
}

void tst_ThemeMaker::passesTheCheck_data()
{
    QTest::addColumn<QColor>("brand");
    QTest::addColumn<QColor>("neutral");

    for (const char *brand : {"#3060f0", "#000000", "#ffffff", "#808080", "#ffff00", "#0000ff",
                              "#00ff00", "#777777", "#fffffe", "#7f8080"})
        QTest::newRow(brand) << QColor(brand) << QColor("#6d7078");
    QRandomGenerator random(20260102);
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue("HVTHEME_MAKER_CHECKS", &isSet);
    for (int i = 0; i < (isSet ? wanted : 5); ++i)
        QTest::addRow("random-%d", i) << QColor(QRgb(random.generate() | 0xff000000u))
                                      << QColor(QRgb(random.generate() | 0xff000000u));
}

// What `hvtheme check` runs finds neither errors nor warnings, in all templates.
void tst_ThemeMaker::passesTheCheck()
{
    QFETCH(QColor, brand);
    QFETCH(QColor, neutral);
    QVERIFY(!HV::ApplicationTheme().names().isEmpty()); // loads the libraries' templates
    const QTemporaryDir folder;
    QVERIFY(write(folder.path(), makeThemes(orderOf(brand, Neutral::of(neutral)))));
    ThemeProjectOptions options;
    options.folder = folder.path();
    options.templates << QStringLiteral(":/hvthemeapp/stylesheet");
    QString error;
    const auto project = ThemeProject::read(options, &error);
    QVERIFY2(project, qPrintable(error));
    QStringList found;
    const QVector<Finding> findings = runLintRules(*project);
    for (const Finding &finding : findings) {
        if (finding.severity != Severity::Info || finding.rule == "unused-key")
            found.append(finding.rule + ": " + finding.message);
    }
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
}

void tst_ThemeMaker::impossible_data()
{
    QTest::addColumn<QString>("foreground");
    QTest::addColumn<double>("most"); // of all colours that carry the texts

    QTest::newRow("frame-in-use") << "EditHighlightBorderColor" << 1.99;
    QTest::newRow("hovered-edge") << "Color_Brand_8" << 3.0;
}

// All colours there are: none carries the texts and stands out as an edge in the contrast look, and the
// one that comes nearest does so as far as the maker says it could.
void tst_ThemeMaker::impossible()
{
    QFETCH(QString, foreground);
    QFETCH(double, most);
    const Parameters parameters;
    const LookColors colors(palette(parameters),
                            ThemeText(sampleFile("contrast.theme")).values("Colors"));
    const LookPairs pairs(Look::Contrast, parameters.textContrast, colors);
    const auto edge =
        std::find_if(pairs.pairs().cbegin(), pairs.pairs().cend(), [&](const ColorPair &pair) {
            return pair.foreground == foreground && pair.need == Need::EdgeOfGround;
        });
    QVERIFY(edge != pairs.pairs().cend());
    QVERIFY(!edge->selector.isEmpty());
    double text = 0; // the luminance that bars most; all of them are light
    for (const ColorPair &pair : pairs.pairs()) {
        if (pair.layers.constLast() == foreground && pair.need == Need::Text)
            text = qMax(text, ColorMath::relativeLuminance(colors.color(pair.foreground)));
    }
    QVERIFY(text > 0.9);
    const double ground = ColorMath::relativeLuminance(colors.composite(edge->layers));
    double shares[3][256]; // of a channel in the luminance
    for (int value = 0; value < 256; ++value) {
        shares[0][value] = ColorMath::relativeLuminance(QColor(value, 0, 0));
        shares[1][value] = ColorMath::relativeLuminance(QColor(0, value, 0));
        shares[2][value] = ColorMath::relativeLuminance(QColor(0, 0, value));
    }
    const auto ratio = [](double one, double other) {
        return (qMax(one, other) + 0.05) / (qMin(one, other) + 0.05);
    };
    double best = 0;
    for (int rgb = 0; rgb < 0x1000000; ++rgb) {
        const double luminance =
            shares[0][rgb >> 16] + shares[1][(rgb >> 8) & 0xff] + shares[2][rgb & 0xff];
        if (ratio(text, luminance) >= 7.0)
            best = qMax(best, ratio(luminance, ground));
    }
    QVERIFY2(best < 3.0, qPrintable(QString::number(best, 'g', 12)));
    QVERIFY2(qAbs(best - most) < 0.01, qPrintable(QString::number(best)));
    const LookPairs::Room room = pairs.roomFor(*edge);
    QVERIFY(room.ratio >= best && room.ratio < best + 0.001);
    QCOMPARE(room.text, QString("DefaultForegroundColor"));
    QVERIFY(colors.ratio(*edge) > best - 0.1);
}

// What, where, how far, and why not further.
void tst_ThemeMaker::saysWhyNot()
{
    const QStringList notes = makeThemes(orderOf(QColor("#3060F0"))).notes;
    for (const char *note :
         {"contrast: EditHighlightBorderColor on EditBackgroundColor reaches 1.94:1 and not 3.00:1 "
          "(the edge of QLineEdit:focus): what carries DefaultForegroundColor at 7.00:1 stays "
          "below "
          "1.99:1 there",
          "contrast: Color_Brand_8 on BackgroundColor_2 reaches 2.91:1 and not 3.00:1 (the edge of "
          "QPushButton[style=editButton]:hover): what carries DefaultForegroundColor at 7.00:1 "
          "stays below 3.00:1 there"})
        QVERIFY2(notes.contains(QLatin1String(note)), qPrintable(notes.join('\n')));
}

void tst_ThemeMaker::steps_data()
{
    QTest::addColumn<QColor>("brand");
    for (const char *brand : {"#3060f0", "#c0a060", "#ff0000", "#00ff00", "#0000ff", "#ffff00",
                              "#808080", "#102030", "#ffe0f0"})
        QTest::newRow(brand) << QColor(brand);
}

void tst_ThemeMaker::steps()
{
    QFETCH(QColor, brand);
    const ColorMath::Oklch origin = ColorMath::toOklch(brand);
    const Run run = brandRun(brand);
    for (int step = 1; step <= toneCount; ++step) {
        const QColor tone = run.tone(step);
        QVERIFY(qAbs(ColorMath::cieLightness(tone) - (100 - 9 * step)) < 0.4);
        const ColorMath::Oklch color = ColorMath::toOklch(tone);
        if (color.chroma < 0.05)
            continue; // eight bits tell no hue of so little
        const double difference = qAbs(color.hue - origin.hue);
        QVERIFY2(qMin(difference, 360 - difference) < 4.0,
                 qPrintable(tone.name() + ": " + QString::number(difference)));
    }
}

void tst_ThemeMaker::brandIsAFill_data()
{
    QTest::addColumn<QColor>("brand");
    QTest::addColumn<QString>("look");
    QTest::addColumn<QColor>("text"); // invalid: no text reaches its ratio on the brand
    QTest::addColumn<bool>("carriesLooksText");

    const QColor white("#ffffff");
    const QColor black("#000000");
    const QColor dark("#f7f9fc"); // the text of each look
    const QColor light("#080b10");
    QTest::newRow("dark-enough") << QColor("#7a2f9c") << "dark" << dark << true;
    QTest::newRow("black-text-in-dark") << QColor("#ffd000") << "dark" << black << false;
    QTest::newRow("light-enough") << QColor("#ffd000") << "light" << light << true;
    QTest::newRow("white-text-in-light") << QColor("#102080") << "light" << white << false;
    QTest::newRow("white-in-dark") << QColor("#ffffff") << "dark" << black << false;
    QTest::newRow("black-in-light") << QColor("#000000") << "light" << white << false;
    QTest::newRow("middle-grey-in-dark") << QColor("#777777") << "dark" << black << false;
    QTest::newRow("middle-grey-in-light") << QColor("#757575") << "light" << white << false;
    QTest::newRow("blue-in-light") << QColor("#0000ff") << "light" << white << false;
    QTest::newRow("very-dark-in-contrast") << QColor("#0a1a60") << "contrast" << white << true;
    QTest::newRow("very-light-in-contrast") << QColor("#ffff00") << "contrast" << black << false;
    QTest::newRow("middle-in-contrast") << QColor("#3060f0") << "contrast" << QColor() << false;
}

// The brand itself, unchanged, is the ground of the main button with the text that stands best on it.
// The other fills have the look's text, and are the brand where that allows it; else a note says why not.
void tst_ThemeMaker::brandIsAFill()
{
    QFETCH(QColor, brand);
    QFETCH(QString, look);
    QFETCH(QColor, text);
    QFETCH(bool, carriesLooksText);

    const QTemporaryDir folder;
    const MadeThemes made = makeThemes(orderOf(brand));
    QVERIFY(write(folder.path(), made));
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, look, folder.path());
    const auto isNoted = [&](const QString &beginning) {
        return std::any_of(made.notes.cbegin(), made.notes.cend(), [&](const QString &note) {
            return note.startsWith(look + ": " + beginning);
        });
    };
    const bool hasBrand = text.isValid();
    QCOMPARE(theme.color("AccentBackgroundColor") == brand, hasBrand);
    QCOMPARE(isNoted("no text has more than "), !hasBrand);
    if (hasBrand)
        QCOMPARE(theme.color("AccentForegroundColor"), text);
    QCOMPARE(theme.color("GeneralButtonBackgroundNormal") == brand, carriesLooksText);
    QCOMPARE(isNoted("the look's text would stand on the brand at "), !carriesLooksText);
    for (const char *kind : {"Accent%1Color", "GeneralButtonBackground%1"}) {
        QSet<QRgb> states;
        for (const char *state : {"Hover", "Pressed"})
            states.insert(theme.color(QString(kind).arg(state)).rgb());
        states.insert(theme.color("AccentBackgroundColor").rgb());
        states.insert(theme.color("GeneralButtonBackgroundNormal").rgb());
        QVERIFY2(states.size() >= 3, kind);
    }
}

void tst_ThemeMaker::selectionIsTheBrand_data()
{
    QTest::addColumn<QColor>("brand");
    QTest::addColumn<QString>("look");
    QTest::addColumn<bool>("isBrand");

    QTest::newRow("dark") << QColor("#3060f0") << "dark" << true;
    QTest::newRow("light") << QColor("#3060f0") << "light" << true;
    QTest::newRow("no-text-reaches-7") << QColor("#3060f0") << "contrast" << false;
    QTest::newRow("light-brand-in-contrast") << QColor("#ffd000") << "contrast" << true;
    QTest::newRow("light-brand-on-white") << QColor("#ffd000") << "light" << false;
    QTest::newRow("dark-brand-on-black") << QColor("#101040") << "dark" << false;
}

// Selected rows are the brand where that stands out from the field around them.
void tst_ThemeMaker::selectionIsTheBrand()
{
    QFETCH(QColor, brand);
    QFETCH(QString, look);
    QFETCH(bool, isBrand);
    const QTemporaryDir folder;
    QVERIFY(write(folder.path(), makeThemes(orderOf(brand))));
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, look, folder.path());
    const QColor ground = theme.color("Palette_Highlight");
    QCOMPARE(ground == brand, isBrand);
    QVERIFY(ColorMath::contrastRatio(ground, theme.color("EditBackgroundColor")) >= 3.0);
}

void tst_ThemeMaker::neutral_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("chroma");

    QTest::newRow("grey") << QColor("#808080") << 0.0;
    QTest::newRow("too-strong") << QColor("#ff0000") << Neutral::maximalChroma;
}

void tst_ThemeMaker::neutral()
{
    QFETCH(QColor, color);
    QFETCH(double, chroma);
    QCOMPARE(Neutral::of(color).chroma, chroma);
}

void tst_ThemeMaker::textContrast_data()
{
    QTest::addColumn<double>("textContrast");
    QTest::addColumn<double>("surfaceStep");
    QTest::newRow("high") << 7.0 << 3.0;
    QTest::newRow("deep") << 4.5 << 4.0;
    QTest::newRow("flat") << 4.5 << 1.0;
    QTest::newRow("high-and-deep") << 7.0 << 4.0;
}

// What the controls of the gallery ask for.
void tst_ThemeMaker::textContrast()
{
    QFETCH(double, textContrast);
    QFETCH(double, surfaceStep);
    Parameters parameters;
    parameters.brand = QColor("#2f7d4f");
    parameters.textContrast = textContrast;
    parameters.surfaceStep = surfaceStep;
    const QVector<PaletteEntry> entries = palette(parameters);
    for (const Look look : allLooks) {
        ThemeText text(sampleFile(lookName(look) + ".theme"));
        QMap<QString, QString> texts;
        for (const QString &key : text.keys("Colors"))
            texts.insert(key, text.value("Colors", key));
        QStringList notes;
        const LookColors colors = designedColors(look, parameters, entries, texts, &notes);
        for (const ColorPair &pair : colorPairs()) {
            const bool holds = colors.ratio(pair) >= requiredRatio(pair.need, look, textContrast);
            const QString sentence = lookName(look) + ": " + pair.foreground + " on "
                + pair.layers.join(" under ") + " reaches ";
            const bool isSaid = std::any_of(notes.cbegin(), notes.cend(), [&](const QString &note) {
                return note.startsWith(sentence);
            });
            QVERIFY2(holds != isSaid, qPrintable(sentence));
            // A selected row's ground is the frame of a field too, which leaves text 6.5:1.
            if (pair.need == Need::Text && !pair.layers.contains("EditHighlightBorderColor"))
                QVERIFY2(holds, qPrintable(sentence));
        }
    }
}

void tst_ThemeMaker::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("files"); // empty: not a name

    QTest::newRow("none") << QString()
                          << QStringList{"default.theme", "dark.theme", "light.theme",
                                         "contrast.theme"};
    QTest::newRow("word") << "sepia"
                          << QStringList{"default.theme", "sepia-dark.theme", "sepia-light.theme",
                                         "sepia-contrast.theme"};
    QTest::newRow("words") << "Stage Light"
                           << QStringList{"default.theme", "stage-light-dark.theme",
                                          "stage-light-light.theme", "stage-light-contrast.theme"};
    QTest::newRow("slash") << "a/b" << QStringList();
    QTest::newRow("dots") << ".." << QStringList();
    QTest::newRow("quotation-mark") << "a\"b" << QStringList();
    QTest::newRow("comma") << "a,b" << QStringList();
    QTest::newRow("beyond-ascii") << QString::fromUtf8("ü") << QStringList();
    QTest::newRow("leading-space") << " a" << QStringList();
    QTest::newRow("default") << "Default" << QStringList();
}

void tst_ThemeMaker::names()
{
    QFETCH(QString, name);
    QFETCH(QStringList, files);
    QCOMPARE(isThemeName(name), !files.isEmpty());
    if (files.isEmpty())
        return;
    Order order = orderOf(QColor("#3060F0"));
    order.name = name;
    QStringList made;
    const MadeThemes themes = makeThemes(order);
    for (const MadeFile &file : themes.files)
        made.append(file.fileName);
    QCOMPARE(made, files);
    for (int i = 1; i < themes.files.size(); ++i) // a reader of the default file finds the others
        QVERIFY(themes.files.first().content.contains(made.at(i).toLatin1()));
}

void tst_ThemeMaker::withBrand_data()
{
    QTest::addColumn<QColor>("brand");
    for (const char *brand : {"#c0a060", "#ff0000", "#ffff00", "#000000", "#00a050"})
        QTest::newRow(brand) << QColor(brand);
}

void tst_ThemeMaker::withBrand()
{
    QFETCH(QColor, brand);
    for (const Look look : allLooks) {
        const ThemeTexts before{sampleFile("default.theme"), sampleFile(lookName(look) + ".theme")};
        QStringList notes;
        const ThemeTexts after = branded(before, brand, &notes);
        const QTemporaryDir folder;
        QVERIFY(
            write(folder.path(), {{{"default.theme", after.base}, {"own.theme", after.own}}, {}}));
        HV::WorkableTheme theme;
        HV::changeTheme(&theme, "own", folder.path());
        QCOMPARE(shortcomings(theme, look), QStringList());
        if (look == Look::Light) // between two tones, so without a name that would follow
            QCOMPARE(ThemeText(after.own).value("Colors", "Color_Brand_8"),
                     ThemeText(makeThemes(orderOf(brand)).files.at(2).content)
                         .value("Colors", "Color_Brand_8"));
        // Comments, images and what has no brand in it stay.
        QCOMPARE(after.own.count('\n'), before.own.count('\n'));
        QCOMPARE(ThemeText(after.own).value("ImageFiles", "add"),
                 ThemeText(before.own).value("ImageFiles", "add"));
        QCOMPARE(ThemeText(after.own).value("Colors", "BackgroundColor_3"),
                 ThemeText(before.own).value("Colors", "BackgroundColor_3"));
    }
}

// A small theme, all in one default file and with few keys: nothing is invented.
void tst_ThemeMaker::withBrandOfAnotherTheme()
{
    const ThemeTexts before{"[Palettes]\nBrand_6=#2D63F0\nInk=#101010\n[Colors]\n"
                            "DefaultForegroundColor=Ink\nBackgroundColor_3=#ffffff\n",
                            "[Colors]\nHighlightedForegroundColor=Brand_6\n"};
    QStringList notes;
    const ThemeTexts after = branded(before, QColor("#a02020"), &notes);
    QCOMPARE(ThemeText(after.base).value("Colors", "DefaultForegroundColor"), QString("Ink"));
    QCOMPARE(ThemeText(after.base).value("Palettes", "Ink"), QString("#101010"));
    QVERIFY(ThemeText(after.base).value("Palettes", "Brand_6") != "#2D63F0");
    QCOMPARE(ThemeText(after.own).keys("Colors"), QStringList{"HighlightedForegroundColor"});
}

void tst_ThemeMaker::withBrandKeepsSpellings_data()
{
    QTest::addColumn<QByteArray>("entries"); // of the palette, besides the brand's
    QTest::addColumn<QString>("text"); // behind DefaultForegroundColor

    QTest::newRow("plain") << QByteArray("Ink=#101010\n") << "Ink";
    QTest::newRow("quoted-entry") << QByteArray("Ink=\"#101010\"\n") << "Ink";
    QTest::newRow("comment-behind") << QByteArray("Ink=#101010 ; note\n") << "Ink";
    QTest::newRow("quoted-color") << QByteArray("Ink=#101010\n") << "\"Ink\"";
    QTest::newRow("chain-of-two") << QByteArray("Ant=#101010\nBat=Ant\nInk=Bat\n") << "Ink";
    QTest::newRow("follows-the-brand") << QByteArray("Ink=#101010\nZoo=Brand_6\n") << "Ink";
    QTest::newRow("no-color") << QByteArray("Ink=#101010\nZoo=nothing\n") << "Ink";
    QTest::newRow("own-name-with-brand") << QByteArray("Brand_Ink=#101010\n") << "Brand_Ink";
}

// The text is as dark as it can be, so nothing but a misread value makes it fall short.
void tst_ThemeMaker::withBrandKeepsSpellings()
{
    QFETCH(QByteArray, entries);
    QFETCH(QString, text);
    const QByteArray colors = "[Colors]\nDefaultForegroundColor=" + text.toLatin1()
        + "\nBackgroundColor_3=#ffffff\nColor_W20=Brand_6\n";
    const ThemeTexts before{"[Palettes]\nBrand_6=#2D63F0\n" + entries, colors};
    QStringList notes;
    const ThemeTexts after = branded(before, QColor("#a02020"), &notes);
    QCOMPARE(notes, QStringList());
    QVERIFY2(after.base.endsWith(entries), after.base.constData());
    QVERIFY(after.base != before.base);
    QCOMPARE(after.own, before.own);
}

// A theme whose buttons follow the brand gets fills that carry a text of their own.
void tst_ThemeMaker::withBrandAddsFills()
{
    const ThemeTexts before{
        "[Palettes]\nBrand_6=#2D63F0\n",
        "[Colors]\nColor_W100=#FFFFFF\nGeneralButtonBackgroundNormal=Brand_6\n"};
    QStringList notes;
    const ThemeText own(branded(before, QColor("#ffd000"), &notes).own);
    QCOMPARE(own.value("Colors", "AccentBackgroundColor"), QString("Brand"));
    QCOMPARE(own.value("Colors", "AccentForegroundColor"), QString("#000000"));
    // All in one default file: what is added stands there too.
    const ThemeTexts one{before.base + before.own, ""};
    const ThemeTexts after = branded(one, QColor("#ffd000"), &notes);
    QCOMPARE(ThemeText(after.base).value("Colors", "AccentBackgroundColor"), QString("Brand"));
    QVERIFY(after.own.isEmpty());
}

void tst_ThemeMaker::withBrandInTheThemesOwnPalette_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("own");

    const QByteArray tones = "Brand_1=#dbe4ff\nBrand_3=#8aa9ff\nBrand_5=#4f7bf5\nBrand_6=#2D63F0\n"
                             "Brand_7=#1f4cc4\nBrand_8=#1137A2\n";
    const QByteArray palette = "[Palettes]\n" + tones;
    const QByteArray general =
        "[Colors]\nBackgroundColor_3=#202020\nDefaultForegroundColor=#ffffff\n"
        "Color_W100=#ffffff\nEditBackgroundColor=#101010\n"
        "EditHighlightBorderColor=#1f4cc4\n";
    const QByteArray button = "GeneralButtonBackgroundNormal=#2D63F0\nColor_Brand_8=#1137A2\n";
    QTest::newRow("colors-of-the-default-file") << "[Colors]\n" + button << palette + general;
    QTest::newRow("all-colors-of-the-default-file") << general + button << palette;
    QTest::newRow("named-by-the-theme")
        << "[Colors]\n" + button << palette + general + "Color_Brand_6=Brand_6\n";
    QTest::newRow("out-of-reach-already")
        << QByteArray("[Colors]\nColor_Brand_8=Brand_8\n")
        << palette + general + "GeneralButtonBackgroundNormal=Brand_6\n";
    QTest::newRow("tones-in-both-files") << "[Palettes]\nBrand_6=#2D63F0\n[Colors]\n"
            + button << "[Palettes]\nBrand_8=#1137A2\n" + general + "Color_Brand_7=Brand_8\n";
}

// The default file is read before the theme's palette, so its colours cannot name what stands there.
void tst_ThemeMaker::withBrandInTheThemesOwnPalette()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, own);
    const auto read = [](const ThemeTexts &texts, HV::WorkableTheme *theme) {
        const QTemporaryDir folder;
        QVERIFY(
            write(folder.path(), {{{"default.theme", texts.base}, {"own.theme", texts.own}}, {}}));
        const auto silent = [](QtMsgType, const QMessageLogContext &, const QString &) {};
        const QtMessageHandler former =
            qInstallMessageHandler(silent); // nearly all keys are missing
        HV::changeTheme(theme, "own", folder.path());
        qInstallMessageHandler(former);
    };
    HV::WorkableTheme before;
    read({base, own}, &before);
    QStringList notes;
    const ThemeTexts after = branded({base, own}, QColor("#a02020"), &notes);
    HV::WorkableTheme theme;
    read(after, &theme);
    for (const QByteArray &text : {after.base, after.own}) {
        const QStringList keys = ThemeText(text).keys("Colors");
        for (const QString &key : keys) {
            if (before.values().contains(key) && before.color(key) != Qt::black)
                QVERIFY2(theme.color(key) != Qt::black, qPrintable(key));
        }
    }
    const QColor ground = theme.color("GeneralButtonBackgroundNormal");
    QVERIFY2(ground.red() > ground.blue(), qPrintable(ground.name()));
    const QStringList entries = ThemeText(after.own).keys("Palettes"); // no tone has two values
    for (const QString &key : entries)
        QVERIFY2(ThemeText(after.base).value("Palettes", key).isNull(), qPrintable(key));
}

void tst_ThemeMaker::namesLikeTones_data()
{
    QTest::addColumn<QByteArray>("entry");
    for (const char *name : {"Brand_Logo", "Brand_11", "Brand_0", "Brand_06", "Brandy_6", "Brand_"})
        QTest::newRow(name) << QByteArray(name);
}

// What only begins like a tone is none: the theme has no brand, and stays byte for byte.
void tst_ThemeMaker::namesLikeTones()
{
    QFETCH(QByteArray, entry);
    const ThemeTexts before{"[Palettes]\n" + entry + "=#2D63F0\n[Colors]\nColor_W100=#ffffff\n",
                            "[Colors]\nGeneralButtonBackgroundNormal=#204080\n"
                            "EditHighlightBorderColor="
                                + entry + "\n"};
    QStringList notes;
    const ThemeTexts after = branded(before, QColor("#a02020"), &notes);
    QCOMPARE(after.base, before.base);
    QCOMPARE(after.own, before.own);
    QCOMPARE(notes.size(), 1);
    QVERIFY2(notes.constFirst().startsWith("the theme stays as it is"), qPrintable(notes.first()));
    // Beside a brand, it is a colour as any other.
    const ThemeTexts both{"[Palettes]\nBrand_6=#2D63F0\n" + entry + "=#2D63F0\n", before.own};
    const ThemeText own(branded(both, QColor("#a02020"), &notes).own);
    QCOMPARE(own.value("Colors", "EditHighlightBorderColor"), QString(entry));
}

void tst_ThemeMaker::withBrandBehindAnOpenQuotationMark_data()
{
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("own");
    QTest::addColumn<QString>("file");

    const QByteArray palette = "[Palettes]\nBrand_6=#2D63F0\n";
    const QByteArray colors =
        "[Colors]\nColor_W100=#ffffff\nGeneralButtonBackgroundNormal=Brand_6\n";
    QTest::newRow("default-file") << palette + "Veil=\"#80000000\n" << colors << "default file";
    QTest::newRow("own-file") << palette << colors + "Veil=\"#80000000"
                              << "theme's own file";
    QTest::newRow("new-section") << QByteArray("[Integers]\nA=\"1\n") << colors << "default file";
}

void tst_ThemeMaker::withBrandBehindAnOpenQuotationMark()
{
    QFETCH(QByteArray, base);
    QFETCH(QByteArray, own);
    QFETCH(QString, file);
    QStringList notes;
    QString error;
    QVERIFY(!Maker::withBrand({base, own}, QColor("#ffd000"), &notes, &error));
    QCOMPARE(
        error,
        "nothing can be added to the " + file
            + " without changing other entries; look for a quotation mark that is never closed");
}

QTEST_MAIN(tst_ThemeMaker)
#include "tst_thememaker.moc"
