// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <plugin/foreignprogram.h>

#include <colormath/contrast.h>
#include <format/themepath.h>
#include <hvtheme/theme.h>
#include <hvthemeapp/desktoptheme.h>
#include <hvthemeapp/stylesheettext.h>

#include <QApplication>
#include <QEvent>

#include <optional>

namespace
{

const QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

// Whether what stands on the palette is dark; nothing if windows and pages differ in that, or text
// hardly stands out from them.
std::optional<bool> isDarkPalette(const QPalette &palette)
{
    const auto isDark = [&](QPalette::ColorRole ground, QPalette::ColorRole text) {
        return palette.color(ground).lightness() < palette.color(text).lightness();
    };
    const auto isLegible = [&](QPalette::ColorRole ground, QPalette::ColorRole text) {
        return ColorMath::contrastRatio(palette.color(ground), palette.color(text)) >= 3;
    };
    const bool isWindowDark = isDark(QPalette::Window, QPalette::WindowText);
    const bool isClear = isWindowDark == isDark(QPalette::Base, QPalette::Text)
        && isLegible(QPalette::Window, QPalette::WindowText)
        && isLegible(QPalette::Base, QPalette::Text);
    return isClear ? std::optional<bool>(isWindowDark) : std::nullopt;
}

} // namespace

ForeignProgram::ForeignProgram(const Options &options)
    : m_options(options)
    , m_startPalette(QApplication::palette())
{
    // An application style sheet wants a style to stand on, and makes none itself.
    QApplication::style();
    setKeepsFonts(true);
    setLiftsText(options.liftsText);
    connect(this, &HV::ApplicationTheme::changed, this, [this] {
        m_palette = QApplication::palette();
        m_styleSheet = qApp->styleSheet();
    });
    // What lies beside a program of others under the name of a folder of themes is none.
    setFolder(builtInThemesFolder());
    const bool isReady =
        options.folder.isEmpty() || (setSuffix(options.suffix) && setFolder(options.folder));
    if (!isReady)
        return; // it has said why
    for (const QString &templates : options.templates) {
        if (!addTemplates(templates, options.prefix))
            return;
    }
    takeWantedTheme();
    qApp->installEventFilter(this);
}

bool ForeignProgram::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ApplicationPaletteChange:
    case QEvent::Polish:
    case QEvent::StyleChange:
        if (!m_isLookPending)
            lookSoon();
        break;
    default:
        break;
    }
    return HV::ApplicationTheme::eventFilter(object, event);
}

// The program may be in the middle of its change, and a window in the middle of being shown. Nothing
// is painted before posted events are through.
void ForeignProgram::lookSoon()
{
    if (qApp->styleSheet() == m_styleSheet && QApplication::palette() == m_palette)
        return;
    m_isLookPending = true;
    QMetaObject::invokeMethod(this, &ForeignProgram::look, Qt::QueuedConnection);
}

void ForeignProgram::look()
{
    m_isLookPending = false;
    const QPalette palette = QApplication::palette();
    const QString styleSheet = qApp->styleSheet();
    if (name().isEmpty() || (styleSheet == m_styleSheet && palette == m_palette))
        return;
    const QString ownStyleSheet = withoutTheme(styleSheet);
    const Brushes ownBrushes = ownBrushesOf(palette);

    // A program may answer each change of style with its own look. It has the last word then.
    const qint64 soon = 1000; // ms
    const bool isRepeated = ownStyleSheet == m_ownStyleSheet && ownBrushes == m_ownBrushes
        && m_sinceLook.isValid() && m_sinceLook.elapsed() < soon;
    m_repetitions = isRepeated ? m_repetitions + 1 : 0;
    m_sinceLook.start();
    if (m_repetitions > 3) {
        m_palette = palette;
        m_styleSheet = styleSheet;
        return;
    }
    m_ownStyleSheet = ownStyleSheet;
    m_ownBrushes = ownBrushes;
    if (!takeThemeLike(palette))
        restyleAgain();
}

bool ForeignProgram::takeWantedTheme()
{
    m_isThemeLikeProgram = false;
    return m_options.theme.isEmpty() ? followDesktop() : setName(m_options.theme);
}

// A theme that is like the program ends the following, and what the desktop says still counts.
void ForeignProgram::watchDesktop()
{
    if (m_desktop || !m_options.theme.isEmpty())
        return;
    m_desktop = new HV::DesktopSettings(m_startPalette, this);
    connect(m_desktop, &HV::DesktopSettings::changed, this, [this] {
        const QPalette palette = QApplication::palette();
        if (m_isThemeLikeProgram && takeWantedTheme())
            takeThemeLike(palette);
    });
}

/*
 * The look of a program with a palette of its own would be neither its nor the theme's, with white
 * pages between black bars. Returns false if the theme in force suits the program.
 */
bool ForeignProgram::takeThemeLike(const QPalette &palette)
{
    const std::optional<bool> isDark = isDarkPalette(palette);
    const auto suits = [&] { return !isDark || isDarkPalette(m_themePalette) == isDark; };
    if (suits())
        return false;
    if (m_isThemeLikeProgram && takeWantedTheme() && suits())
        return true;
    using HV::DesktopSettings;
    const bool isContrast = theme()->values().value(QStringLiteral("HighContrast")).toBool();
    const auto scheme =
        *isDark ? DesktopSettings::ColorScheme::Dark : DesktopSettings::ColorScheme::Light;
    const auto contrast =
        isContrast ? DesktopSettings::Contrast::High : DesktopSettings::Contrast::Normal;
    const QString fitting = HV::themeForDesktop(folder(), suffix(), names(), scheme, contrast);
    if (fitting == name() || !setName(fitting))
        return false;
    m_isThemeLikeProgram = true;
    watchDesktop();
    return suits() || takeWantedTheme();
}

ForeignProgram::Brushes ForeignProgram::ownBrushesOf(const QPalette &palette) const
{
    Brushes brushes;
    for (const QPalette::ColorGroup group : groups) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = QPalette::ColorRole(i);
            const QBrush &brush = palette.brush(group, role);
            if (brush != m_themePalette.brush(group, role))
                brushes.insert({group, role}, brush);
        }
    }
    return brushes;
}

void ForeignProgram::complete(QPalette *palette, QString *styleSheet)
{
    m_themePalette = *palette;
    m_themeStyleSheets.removeAll(*styleSheet);
    m_themeStyleSheets << *styleSheet;
    // What a program has kept of ours is seldom older, and an edited theme makes one at each change.
    constexpr int kept = 16;
    while (m_themeStyleSheets.size() > kept)
        m_themeStyleSheets.removeFirst();
    for (auto it = m_ownBrushes.cbegin(); it != m_ownBrushes.cend(); ++it)
        palette->setBrush(it.key().first, it.key().second, it.value());
    if (!m_ownStyleSheet.isEmpty())
        *styleSheet += QLatin1Char('\n') + m_ownStyleSheet;
}

QString ForeignProgram::withoutTheme(const QString &styleSheet) const
{
    QString own = styleSheet;
    for (const QString &theme : m_themeStyleSheets)
        own.remove(theme);
    return HV::styleSheetText(own).trimmed();
}
