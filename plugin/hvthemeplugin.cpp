// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeinspector/inspector.h>
#include <plugin/foreignprogram.h>
#include <plugin/leavealone.h>

#include <QApplication>
#include <QGenericPlugin>
#include <QUrlQuery>

#include <dlfcn.h>

namespace
{

// A program that links the application library has a theme of its own making. The plugin links it as
// well, but is not among what the program was started with.
bool hasThemeOfItsOwn()
{
    void *program = ::dlopen(nullptr, RTLD_LAZY);
    const bool has = ::dlsym(program, "_ZN2HV16ApplicationTheme16staticMetaObjectE") != nullptr;
    ::dlclose(program);
    return has;
}

ForeignProgram::Options optionsOf(const QUrlQuery &query)
{
    const auto value = [&](const char *key) {
        return query.queryItemValue(QLatin1String(key), QUrl::FullyDecoded);
    };
    ForeignProgram::Options options;
    options.theme = value("theme");
    options.folder = value("themes");
    options.suffix = value("suffix");
    options.templates = query.allQueryItemValues(QStringLiteral("templates"), QUrl::FullyDecoded);
    if (query.hasQueryItem(QStringLiteral("prefix")))
        options.prefix = value("prefix");
    options.liftsText = value("lift") != QLatin1String("no");
    return options;
}

} // namespace

/*!
 * \brief Gives a theme to a program of Qt Widgets that knows nothing of it.
 *
 * What stands behind the key is the query of a URL: `theme` the name of the theme, without one the desktop is
 * followed; `themes` a folder of theme files, `suffix` what their names end in; `templates`
 * a folder of templates, several times for several, `prefix` what their tokens begin with; `lift=no` leaves the program's own colours of text as
 * they are; `inspect=yes` opens the inspector; `program` is the file name of one that is not left alone, whatever the lists say.
 */
class HVThemePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hvthemeplugin.json")

public:
    QObject *create(const QString &key, const QString &request) override;

private:
    bool m_isDone = false;
};

QObject *HVThemePlugin::create(const QString &, const QString &request)
{
    // Qt warns of a plugin that makes nothing, and a program without widgets deserves no warning.
    const auto nothing = [] { return new QObject; };

    // A program with a theme of its own is inspected as well. The inspector opens once there are
    // windows, and its key opens it again.
    const QUrlQuery query(request);
    const auto inspect = [] {
        HV::Inspector::installShortcut();
        HV::Inspector::open();
    };
    if (!m_isDone && qobject_cast<QApplication *>(QCoreApplication::instance())
        && query.queryItemValue(QStringLiteral("inspect")) == QLatin1String("yes"))
        QMetaObject::invokeMethod(qApp, inspect, Qt::QueuedConnection);

    // The application is under construction; as far as here it has got to be what it is.
    if (m_isDone || !qobject_cast<QApplication *>(QCoreApplication::instance())
        || hasThemeOfItsOwn())
        return nothing();
    m_isDone = true; // the first of several requests counts
    const QStringList names = programNames();
    if (!names.contains(query.queryItemValue(QStringLiteral("program"), QUrl::FullyDecoded))
        && isLeftAlone(names, leaveAloneLines()))
        return nothing();
    return new ForeignProgram(optionsOf(query));
}

#include "hvthemeplugin.moc"
