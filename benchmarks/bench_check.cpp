// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "../tests/support/temporaryfolder.h"
#include "measuring.h"

#include <analysis/rules/rules.h>

#include <QApplication>

namespace
{

// 10,000 keys go with 8 MB of templates.
constexpr int keysPerMegabyte = 1250;

QByteArray themeText(int keys)
{
    QByteArray palettes("ThemeName=Default\n[Palettes]\n");
    QByteArray colors("[Colors]\n");
    QByteArray integers("[Integers]\n");
    const int quarter = keys / 4;
    for (int i = 0; i < quarter; ++i) {
        palettes +=
            "P" + QByteArray::number(i) + "=#" + QByteArray::number(0x100000 + i, 16) + '\n';
        colors += "C" + QByteArray::number(2 * i) + "=P" + QByteArray::number(i) + '\n';
        colors += "C" + QByteArray::number(2 * i + 1) + "=#fff\n";
        integers += "I" + QByteArray::number(i) + '=' + QByteArray::number(i) + '\n';
    }
    return palettes + colors + integers;
}

QByteArray templateText(int size, int keys)
{
    QByteArray text;
    for (int i = 0; text.size() < size; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "QPushButton[style=s" + number + "]:hover { color: global.theme.color.C"
            + QByteArray::number(2 * i % (keys / 4)) + "; background-color: global.theme.color.C"
            + QByteArray::number((2 * i + 1) % (keys / 4)) + "; padding: global.theme.integer.I"
            + QByteArray::number(i % (keys / 4)) + "|px; }\n";
    }
    return text;
}

ThemeProjectOptions grown(const TemporaryFolder &folder, int megabytes)
{
    const int keys = keysPerMegabyte * megabytes;
    ThemeProjectOptions options;
    options.folder = folder.path();
    options.applicationFolder = folder.path();
    folder.write("default.theme", themeText(keys));
    options.templates =
        QStringList(folder.write("a.qss", templateText(megabytes * 1024 * 1024, keys)));
    options.vocabularyFile = folder.write("v.json", "{\"Palette\": [], \"Integer\": []}");
    return options;
}

QVector<Finding> check(const ThemeProjectOptions &options)
{
    QString error;
    const std::unique_ptr<ThemeProject> input = ThemeProject::read(options, &error);
    require(input != nullptr, qPrintable(error));
    return runLintRules(*input);
}

void sampleFolder(benchmark::State &state)
{
    ThemeProjectOptions options;
    options.folder = QStringLiteral(HVTHEME_SOURCE_DIR "/themes");
    options.applicationFolder = QCoreApplication::applicationDirPath();
    require(!check(options).isEmpty(), "the sample folder");
    while (state.KeepRunning())
        check(options);
}

// Templates of 1 to 8 MB, and themes of 1,250 to 10,000 keys.
void growing(benchmark::State &state)
{
    const TemporaryFolder folder;
    const ThemeProjectOptions options = grown(folder, int(state.range(0)));
    for (const Finding &finding : check(options))
        require(finding.severity != Severity::Error, qPrintable(finding.message));
    while (state.KeepRunning())
        check(options);
    state.SetComplexityN(state.range(0));
}

BENCHMARK(sampleFolder)->Unit(benchmark::kMillisecond);
BENCHMARK(growing)
    ->RangeMultiplier(2)
    ->Range(1, 8)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Complexity();

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
