// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "../tests/support/completetheme.h"
#include "../tests/support/temporaryfolder.h"
#include "measuring.h"

#include <QCoreApplication>
#include <QSettings>

namespace
{

const char *const sections[] = {"Palettes",  "Colors", "ImageFiles",
                                "Gradients", "Flags",  "Integers"};

// A complete theme and as many keys more, in four sections, as make the count.
QByteArray themeOf(int count)
{
    QByteArray text = completeTheme(0);
    const int more = std::max(0, count - int(text.count('=')));
    const char *const lines[] = {"[Colors]\nc%1=#010203\n", "[ImageFiles]\ni%1=images/%1.svg\n",
                                 "[Flags]\nf%1=1\n", "[Integers]\nn%1=%1\n"};
    for (const char *line : lines) {
        const QByteArray section = QByteArray(line).left(QByteArray(line).indexOf('\n') + 1);
        const QString entry = QByteArray(line).mid(section.size());
        text += section;
        for (int i = 0; i < more / 4; ++i)
            text += entry.arg(i).toLatin1();
    }
    return text;
}

int storedKeys(HV::Theme &theme)
{
    return int(theme.values().size());
}

// What any reader of the file has to do with QSettings: parse it, list the keys, take the values.
int readWithSettings(const QString &path)
{
    QSettings settings(path, QSettings::IniFormat);
    int count = 0;
    for (const char *section : sections) {
        settings.beginGroup(section);
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys)
            count += settings.value(key).isValid();
        settings.endGroup();
    }
    return count;
}

// Qt keeps what it read of a file, so each reading has a file of its own.
void load(benchmark::State &state, const std::function<void(const QString &)> &read)
{
    const int count = int(state.range(0));
    const QByteArray text = themeOf(count);
    int number = 0;
    while (state.KeepRunning()) {
        const TemporaryFolder folder;
        folder.write(QString("%1/default.theme").arg(++number), text);
        const QString path = folder.filePath(QString::number(number));
        state.SetIterationTime(processorSeconds([&] { read(path); }));
    }
    state.counters["per_key"] =
        benchmark::Counter(double(count) * double(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void loadTheme(benchmark::State &state)
{
    HV::WorkableTheme theme;
    load(state, [&theme](const QString &folder) { HV::changeTheme(&theme, "default", folder); });
    require(std::abs(storedKeys(theme) - int(state.range(0))) < 90, "number of keys");
}

void loadSettings(benchmark::State &state)
{
    load(state, [&state](const QString &folder) {
        const int count = readWithSettings(folder + "/default.theme");
        require(std::abs(count - int(state.range(0))) < 20, "number of keys");
    });
}

void flatValues(benchmark::State &state)
{
    const TemporaryFolder folder;
    folder.write("default.theme", themeOf(int(state.range(0))));
    while (state.KeepRunning()) {
        HV::WorkableTheme theme;
        HV::changeTheme(&theme, "default", folder.path());
        int size = 0;
        state.SetIterationTime(processorSeconds([&] { size = storedKeys(theme); }));
        require(size > int(state.range(0)) - 90, "number of values");
    }
    state.counters["per_key"] =
        benchmark::Counter(double(state.range(0)) * double(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

HV::WorkableTheme &largeTheme()
{
    static HV::WorkableTheme theme;
    if (theme.filePath().isEmpty()) {
        const TemporaryFolder folder;
        folder.write("default.theme", themeOf(1000));
        HV::changeTheme(&theme, "default", folder.path());
        theme.values();
    }
    return theme;
}

template<typename Lookup>
void lookUp(const char *name, Lookup lookup)
{
    benchmark::RegisterBenchmark(name, [lookup](benchmark::State &state) {
        HV::WorkableTheme &theme = largeTheme();
        require(lookup(theme), "lookup");
        while (state.KeepRunning())
            benchmark::DoNotOptimize(lookup(theme));
    });
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    for (int count : {1000, 10000, 100000}) {
        for (const auto &[name, call] : {std::make_pair("loading/theme", loadTheme),
                                         std::make_pair("loading/settings", loadSettings),
                                         std::make_pair("loading/values", flatValues)})
            benchmark::RegisterBenchmark(name, call)
                ->Arg(count)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
    }
    const QString key = "n7";
    const QString color = "c7";
    const QString image = "i7";
    lookUp("lookup/integer-by-key", [key](HV::Theme &theme) { return theme.integer(key) == 7; });
    lookUp("lookup/integer-by-number", [](HV::Theme &theme) { return theme.integer(2) > 0; });
    lookUp("lookup/color-by-key",
           [color](HV::Theme &theme) { return theme.color(color).red() == 1; });
    lookUp("lookup/image-by-key",
           [image](HV::Theme &theme) { return !theme.imageFile(image).isEmpty(); });
    lookUp("lookup/values", [](HV::Theme &theme) { return !theme.values().isEmpty(); });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
