// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "../tests/support/completetheme.h"
#include "../tests/support/plainsubstitution.h"
#include "../tests/support/temporaryfolder.h"
#include "measuring.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <climits>

namespace
{

const QString prefix = QStringLiteral("global");

// A theme with every key of the templates; its images are one file that exists.
HV::WorkableTheme &theme()
{
    static HV::WorkableTheme loaded;
    if (loaded.filePath().isEmpty()) {
        const QString image = ":/qt-project.org/styles/commonstyle/images/right-16.png";
        const QString file = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
        QString text = completeTheme(0);
        const TemporaryFolder folder;
        folder.write("default.theme", text.replace(image, file).toUtf8());
        HV::changeTheme(&loaded, "default", folder.path());
    }
    return loaded;
}

const QVariantMap &values()
{
    return theme().values();
}

QString builtIn()
{
    QString text;
    HV::readStyleSheet(QStringLiteral(":/stylesheet"), text);
    return text;
}

// One token in 100 characters, of each kind in turn.
QString withTokens(int size)
{
    const QStringList tokens = {"global.theme.color.Color_W100", "global.theme.image.add",
                                "global.theme.integer.FontSize_L|px"};
    QString text;
    text.reserve(size);
    for (int i = 0; text.size() < size; ++i) {
        const QString line = "QLabel { color: " + tokens.at(i % 3) + "; ";
        text += line.leftJustified(98, '-') + "}\n";
    }
    return text;
}

QString repeated(const QString &line, int size)
{
    return line.repeated(size / line.size());
}

QString chain(const QString &text)
{
    QString result = text;
    HV::replaceStyleSheet(&theme(), prefix, result);
    return result;
}

QString plainChain(const QString &text)
{
    QString result = text;
    for (Plain::Kind kind : {Plain::Kind::Color, Plain::Kind::Image, Plain::Kind::Integer}) {
        const Plain::Result pass = Plain::replaced(kind, prefix, values(), result, INT_MAX);
        for (const auto &image : pass.images)
            benchmark::DoNotOptimize(QFileInfo::exists(image.second));
        result = pass.text;
    }
    return result;
}

QString copy(const QString &text)
{
    return QString(text.constData(), text.size());
}

using Call = QString (*)(const QString &);
using MakeText = QString (*)();

void measure(const char *name, MakeText make, Call call, bool hasTokens)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State &state) {
        const QString text = make();
        if (call != copy)
            require(text.size() > 2000000 || call(text) == plainChain(text), "another text");
        require(hasTokens == (chain(text) != text), "tokens");
        while (state.KeepRunning())
            benchmark::DoNotOptimize(call(text));
        state.counters["characters"] = double(text.size());
    })->Unit(benchmark::kMillisecond);
}

template<QString (*pass)(const QString &, const QVariantMap &, const QString &)>
QString single(const QString &text)
{
    return pass(prefix, values(), text);
}

void measurePasses()
{
    const MakeText make = [] { return builtIn(); };
    const std::pair<const char *, Call> passes[] = {
        {"pass/colors", single<HV::replaceCssColors>},
        {"pass/images", single<HV::replaceCssImages>},
        {"pass/integers", single<HV::replaceCssIntegers>}};
    for (const auto &[name, call] : passes) {
        benchmark::RegisterBenchmark(name, [make, call = call](benchmark::State &state) {
            const QString text = make();
            require(call(text) != text, "no token");
            while (state.KeepRunning())
                benchmark::DoNotOptimize(call(text));
        })->Unit(benchmark::kMillisecond);
    }
}

// The most memory that the chain takes at a time, the given text included, in texts.
void measureMemory()
{
    benchmark::RegisterBenchmark("memory/64MB",
                                 [](benchmark::State &state) {
                                     theme().values();
                                     while (state.KeepRunning()) {
                                         QString text = withTokens(64 << 20);
                                         const double textKilobytes =
                                             2.0 * double(text.size()) / 1024;
                                         const double before = statusKilobytes("VmRSS");
                                         resetPeak();
                                         HV::replaceStyleSheet(&theme(), prefix, text);
                                         const double peak = statusKilobytes("VmHWM") - before;
                                         state.counters["texts"] = 1 + peak / textKilobytes;
                                     }
                                 })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

void measureChains()
{
    const MakeText builtInText = [] { return builtIn(); };
    const MakeText noImages = [] { return builtIn().replace(".image.", ".color."); };
    const MakeText small = [] { return withTokens(64 << 10); };
    const MakeText large = [] { return withTokens(1 << 20); };
    const MakeText huge = [] { return withTokens(64 << 20); };
    const MakeText none = [] { return repeated("QLabel { color: red; border: 1px }\n", 1 << 20); };
    const MakeText misses = [] {
        return repeated("color: global.theme.colour.A; x: global.theme.;\n", 1 << 20);
    };
    const MakeText denseMisses = [] { return repeated("global.theme.color. ", 1 << 20); };
    measure("chain/built-in/library", builtInText, chain, true);
    measure("chain/built-in/plain", builtInText, plainChain, true);
    measure("chain/built-in-no-images/library", noImages, chain, true);
    measure("chain/built-in-no-images/plain", noImages, plainChain, true);
    measure("chain/64KB/library", small, chain, true);
    measure("chain/64KB/plain", small, plainChain, true);
    measure("chain/1MB/library", large, chain, true);
    measure("chain/1MB/plain", large, plainChain, true);
    measure("chain/1MB/copy", large, copy, true);
    measure("chain/64MB/library", huge, chain, true);
    measure("chain/64MB/copy", huge, copy, true);
    measure("chain/no-tokens/library", none, chain, false);
    measure("chain/no-tokens/plain", none, plainChain, false);
    measure("chain/no-tokens/copy", none, copy, false);
    measure("chain/near-misses/library", misses, chain, false);
    measure("chain/near-misses/copy", misses, copy, false);
    measure("chain/dense-misses/library", denseMisses, chain, false);
    measure("chain/dense-misses/copy", denseMisses, copy, false);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    measurePasses();
    measureChains();
    measureMemory();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
