// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>

#include <cstdio>

// NOLINTNEXTLINE(readability-identifier-naming): the name that fuzzing engines call
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

/*! Runs every file of the folders that are its arguments once. */
int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir folder(QFile::decodeName(argv[i]));
        const QStringList names = folder.entryList(QDir::Files);
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::ReadOnly))
                return EXIT_FAILURE;
            const QByteArray data = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char *>(data.constData()),
                                   std::size_t(data.size()));
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
