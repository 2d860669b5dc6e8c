// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef TESTS_COMMANDRUN_H
#define TESTS_COMMANDRUN_H

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/*! \brief Returns the path of the command under test. */
inline QString commandPath()
{
    return QStringLiteral(HVTHEME_COMMAND);
}

/*! \brief Returns the folder in which the commands run, so that their output names no other. */
inline QString dataFolder()
{
    return QStringLiteral(HVTHEME_TEST_DIR "/data/commands");
}

/*! \brief One run of the command; it must come to an end by itself within 20 seconds. */
struct CommandRun {
    explicit CommandRun(const QStringList &arguments, const QString &outputFile = QString())
    {
        QProcess process;
        process.setWorkingDirectory(dataFolder());
        if (!outputFile.isEmpty())
            process.setStandardOutputFile(outputFile);
        process.start(commandPath(), arguments, QIODevice::ReadOnly);
        isFinished =
            process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
        exitCode = isFinished ? process.exitCode() : -1;
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
        process.kill();
        process.waitForFinished();
    }

    bool isFinished = false;
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

/*! \brief A folder of its own whose default theme is the given text. */
class TemporaryTheme
{
public:
    explicit TemporaryTheme(const QByteArray &text) { write("default.theme", text); }

    QString path(const QString &name = QString()) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

    QStringList entries() const
    {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                      | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;
};

/*! \brief Tells the first line in which \a text is not what was \a expected. */
inline QString firstDifference(const QByteArray &expected, const QByteArray &text)
{
    const QList<QByteArray> expectedLines = expected.split('\n');
    const QList<QByteArray> lines = text.split('\n');
    int line = 0;
    while (line < lines.size() && line < expectedLines.size()
           && lines.at(line) == expectedLines.at(line))
        ++line;
    return QStringLiteral("line %1\n  is       %2\n  expected %3")
        .arg(line + 1)
        .arg(QString::fromUtf8(lines.value(line, "(missing)")),
             QString::fromUtf8(expectedLines.value(line, "(missing)")));
}

/*!
 * \brief Compares \a text with the golden file called \a name; tells the first line that differs.
 *
 * With HVTHEME_UPDATE_GOLDEN set the file is written instead, see scripts/update-goldens.
 */
inline QString differenceFromGolden(const QString &name, const QByteArray &text)
{
    QFile file(QStringLiteral(HVTHEME_TEST_DIR "/golden/commands/%1.txt").arg(name));
    if (qEnvironmentVariableIsSet("HVTHEME_UPDATE_GOLDEN")) {
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        return isWritten ? QString() : file.errorString();
    }
    if (!file.open(QIODevice::ReadOnly))
        return file.fileName() + ": " + file.errorString();
    const QByteArray expected = file.readAll();
    return expected == text ? QString() : firstDifference(expected, text);
}

#endif
