#include "app/commandline.h"
#include "app/application.h"
#include "catalogue/stringtables.h"
#include "engine/scratchjournal.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QThreadPool>

#include <unistd.h>

namespace {

void nameApplication()
{
    StringTables::installPluralForms();
    QCoreApplication::setOrganizationName(QStringLiteral("Tagsmith"));
    QCoreApplication::setApplicationName(QStringLiteral("Tagsmith"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TAGSMITH_VERSION));
}

// What saves stopped by a crash or a kill left beside the photos goes, off the main thread.
void removeScratchLeftovers()
{
    QThreadPool::globalInstance()->start([] { ScratchJournal::cleanUp(); });
}

// The arguments as the bytes given, which need not be UTF-8.
QList<QByteArray> argumentBytes(int argc, char *argv[])
{
    QList<QByteArray> arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QByteArray(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList decoded;
    for (int i = 0; i < argc; ++i)
        decoded.append(QFile::decodeName(argv[i]));
    // Help, versions and presets applied from a shell need no display.
    if (CommandLine::isHeadless(decoded)) {
        QCoreApplication application(argc, argv);
        nameApplication();
        return runHeadless(CommandLine::parse(argumentBytes(argc, argv), QDir::currentPath()));
    }

    // Chromium's sandbox refuses to start as root and takes the whole program down with it, with
    // any unsaved edits, the moment the map opens. Root has nothing for the sandbox to guard.
    if (::geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");

    QApplication app(argc, argv);
    nameApplication();
    removeScratchLeftovers();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tagsmith.Tagsmith"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.tagsmith.Tagsmith")));

    // What Qt left in argv once it took its own options (-platform, -style...).
    const QList<QByteArray> arguments = argumentBytes(argc, argv);
    const CommandLine commandLine = CommandLine::parse(arguments, QDir::currentPath());
    if (commandLine.mode == CommandLine::Mode::Error)
        return runHeadless(commandLine);

    Application delegate;
    delegate.applicationWillFinishLaunching(arguments);
    return QApplication::exec();
}
