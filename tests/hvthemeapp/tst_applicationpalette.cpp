// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "temporaryfolder.h"

#include <colormath/contrast.h>
#include <hvthemeapp/applicationtheme.h>

#include <QApplication>
#include <QMetaEnum>
#include <QtTest>

using HV::ApplicationTheme;
using Roles = QList<QPalette::ColorRole>;

namespace
{

const QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

struct Pair {
    QPalette::ColorRole text;
    Roles grounds;
};

// What Qt draws on what.
const QVector<Pair> &pairs()
{
    static const QVector<Pair> all = {
        {QPalette::WindowText,
         {QPalette::Window, QPalette::Button, QPalette::Midlight, QPalette::Mid, QPalette::Dark}},
        {QPalette::Text,
         {QPalette::Base, QPalette::AlternateBase, QPalette::Window, QPalette::Button}},
        {QPalette::ButtonText,
         {QPalette::Button, QPalette::Window, QPalette::Midlight, QPalette::Mid}},
        {QPalette::BrightText, {QPalette::Dark, QPalette::Window, QPalette::Button}},
        {QPalette::HighlightedText, {QPalette::Highlight}},
        {QPalette::ToolTipText, {QPalette::ToolTipBase}},
        {QPalette::PlaceholderText, {QPalette::Base, QPalette::AlternateBase}},
        {QPalette::Link,
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase}},
        {QPalette::LinkVisited,
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase}}};
    return all;
}

// The themes that a palette is made of: the looks, and some that are hard.
QByteArray flagged(const QByteArray &colors, bool isHighContrast = false)
{
    return "[Colors]\n" + colors + "[Flags]\nHighContrast=" + (isHighContrast ? "1\n" : "0\n");
}

QPalette paletteOf(const QByteArray &text)
{
    TemporaryFolder folder;
    folder.write("default.theme", "ThemeName=Shared\n");
    folder.write("own.theme", text);
    ApplicationTheme theme;
    return theme.setFolder(folder.path()) && theme.setName("own") ? theme.palette() : QPalette();
}

QByteArray look(const QString &name, const QByteArray &more = QByteArray())
{
    QFile shared(":/hvthemeapp/themes/default.theme");
    QFile file(QString(":/hvthemeapp/themes/%1.theme").arg(name));
    if (!shared.open(QIODevice::ReadOnly) || !file.open(QIODevice::ReadOnly))
        return {};
    return shared.readAll() + file.readAll() + more;
}

QString named(QPalette::ColorGroup group, QPalette::ColorRole role)
{
    return QString("%1 %2").arg(QMetaEnum::fromType<QPalette::ColorGroup>().valueToKey(group),
                                QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role));
}

} // namespace

class tst_ApplicationPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPairIsLegible_data();
    void everyPairIsLegible();
    void everyRoleIsOfTheLook();
    void disabledIsDimmed_data();
    void disabledIsDimmed();
    void optionalKeys_data();
    void optionalKeys();
    void framesAreVisible_data();
    void framesAreVisible();
};

void tst_ApplicationPalette::initTestCase()
{
    QVERIFY(ApplicationTheme().setName("dark"));
}

void tst_ApplicationPalette::everyPairIsLegible_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("disabledRatio");

    QTest::newRow("dark") << look("dark") << 4.5 << 3.0;
    QTest::newRow("light") << look("light") << 4.5 << 3.0;
    QTest::newRow("contrast") << look("contrast") << 7.0 << 4.5;
    QTest::newRow("grey-on-grey") << flagged(
        "BackgroundColor_2=#333\nDefaultForegroundColor=#444\n"
        "DisabledForegroundColor=#343434\nHighlightedForegroundColor=#303060\n")
                                  << 4.5 << 3.0;
    QTest::newRow("transparent-text")
        << flagged("BackgroundColor_2=#eee\nDefaultForegroundColor=#20000000\n") << 4.5 << 3.0;
    QTest::newRow("high-contrast-of-greys")
        << flagged("BackgroundColor_2=#101010\nDefaultForegroundColor=#888\n", true) << 7.0 << 4.5;
}

void tst_ApplicationPalette::everyPairIsLegible()
{
    QFETCH(QByteArray, theme);
    QFETCH(double, ratio);
    QFETCH(double, disabledRatio);
    if (!theme.contains("ToolTipBackgroundColor="))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("lacks \\d+ of the colours"));
    const QPalette palette = paletteOf(theme);
    for (const QPalette::ColorGroup group : groups) {
        for (const Pair &pair : pairs()) {
            for (const QPalette::ColorRole ground : pair.grounds) {
                const double wanted = group == QPalette::Disabled ? disabledRatio : ratio;
                const QColor &text = palette.color(group, pair.text);
                QCOMPARE(text.alpha(), 255);
                const double found = ColorMath::contrastRatio(text, palette.color(group, ground));
                QVERIFY2(found >= wanted,
                         qPrintable(QString("%1 on %2: %3")
                                        .arg(named(group, pair.text), named(group, ground))
                                        .arg(found)));
            }
        }
    }
}

// None is what Qt would have put there: its own palette shares no colour with this theme. Selected
// rows are the brand in both looks.
void tst_ApplicationPalette::everyRoleIsOfTheLook()
{
    const QPalette dark = paletteOf(look("dark"));
    const QPalette light = paletteOf(look("light"));
    for (const QPalette::ColorGroup group : groups) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = QPalette::ColorRole(i);
            if (role == QPalette::NoRole)
                continue;
            QVERIFY2(dark.isBrushSet(group, role), qPrintable(named(group, role)));
            const bool isBrand = role == QPalette::Highlight && group != QPalette::Disabled;
            QVERIFY2(isBrand || dark.color(group, role) != light.color(group, role),
                     qPrintable(named(group, role)));
        }
    }
}

void tst_ApplicationPalette::disabledIsDimmed_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"dark", "light", "contrast"})
        QTest::newRow(name) << name;
}

void tst_ApplicationPalette::disabledIsDimmed()
{
    QFETCH(QString, name);
    const QPalette palette = paletteOf(look(name));
    for (const Pair &pair : pairs()) {
        if (pair.text == QPalette::PlaceholderText)
            continue; // is as dim already
        const QColor &enabled = palette.color(QPalette::Active, pair.text);
        const QColor &disabled = palette.color(QPalette::Disabled, pair.text);
        const QColor &ground = palette.color(QPalette::Disabled, pair.grounds.first());
        const QColor &enabledGround = palette.color(QPalette::Active, pair.grounds.first());
        QVERIFY2(ColorMath::contrastRatio(disabled, ground)
                     < ColorMath::contrastRatio(enabled, enabledGround),
                 qPrintable(named(QPalette::Disabled, pair.text)));
        QCOMPARE(palette.color(QPalette::Inactive, pair.text), enabled);
    }
}

void tst_ApplicationPalette::optionalKeys_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("inactive");
    QTest::addColumn<QString>("disabled"); // empty: as without the keys

    // clang-format off
    QTest::newRow("ground") << QByteArray("Palette_Mid=#123456\n") << QPalette::Mid << "#123456" << "#123456" << "#123456";
    QTest::newRow("text-stays-dimmed") << QByteArray("Palette_Link=#abcdef\n") << QPalette::Link << "#abcdef" << "#abcdef" << "";
    QTest::newRow("text-of-a-group") << QByteArray("Palette_Disabled_Text=#fedcba\n") << QPalette::Text << "" << "" << "#fedcba";
    QTest::newRow("group-before-role") << QByteArray("Palette_Base=#010203\nPalette_Inactive_Base=#040506\n") << QPalette::Base << "#010203" << "#040506" << "#010203";
    QTest::newRow("palette-entry") << QByteArray("Palette_Midlight=Red_9\n") << QPalette::Midlight << "#600a0e" << "#600a0e" << "#600a0e";
    QTest::newRow("as-illegible-as-wished") << QByteArray("Palette_WindowText=#111319\n") << QPalette::WindowText << "#111319" << "#111319" << "";
    // clang-format on
}

void tst_ApplicationPalette::optionalKeys()
{
    QFETCH(QByteArray, keys);
    QFETCH(QPalette::ColorRole, role);
    QFETCH(QString, active);
    QFETCH(QString, inactive);
    QFETCH(QString, disabled);
    const QPalette without = paletteOf(look("dark"));
    const QPalette palette = paletteOf(look("dark", "\n[Colors]\n" + keys));
    const QStringList wanted = {active, inactive, disabled};
    for (int i = 0; i < 3; ++i) {
        const QColor color =
            wanted.at(i).isEmpty() ? without.color(groups[i], role) : QColor(wanted.at(i));
        QCOMPARE(palette.color(groups[i], role), color);
    }
}

void tst_ApplicationPalette::framesAreVisible_data()
{
    disabledIsDimmed_data();
}

// A sunken line is of Dark and Light; one of them must be seen, and in dark not shine.
void tst_ApplicationPalette::framesAreVisible()
{
    QFETCH(QString, name);
    const QPalette palette = paletteOf(look(name));
    const QColor &window = palette.color(QPalette::Window);
    const double light = ColorMath::contrastRatio(palette.color(QPalette::Light), window);
    QVERIFY(light >= (name == "contrast" ? 3 : 1.3));
    QVERIFY(light < 4);
}

QTEST_MAIN(tst_ApplicationPalette)
#include "tst_applicationpalette.moc"
