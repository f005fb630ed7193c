#include "app/commandline.h"
#include "app/tagsmithappdelegate.h"

#include <QApplication>
#include <QFile>
#include <QIcon>

#include <unistd.h>

namespace {

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Tagsmith"));
    QCoreApplication::setApplicationName(QStringLiteral("Tagsmith"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TAGSMITH_VERSION));
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    // Help, versions and presets applied from a shell need no display.
    if (CommandLine::isHeadless(arguments)) {
        QCoreApplication application(argc, argv);
        nameApplication();
        return runHeadless(CommandLine::parse(QCoreApplication::arguments()));
    }

    // Chromium's sandbox refuses to start as root and takes the whole program down with it, with
    // any unsaved edits, the moment the map opens. Root has nothing for the sandbox to guard.
    if (::geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");

    QApplication app(argc, argv);
    nameApplication();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tagsmith.Tagsmith"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.tagsmith.Tagsmith")));

    // Qt has taken its own options (-platform, -style...) out by now.
    const CommandLine commandLine = CommandLine::parse(QApplication::arguments());
    if (commandLine.mode == CommandLine::Mode::Error)
        return runHeadless(commandLine);

    TagsmithAppDelegate delegate;
    delegate.applicationWillFinishLaunching();
    return QApplication::exec();
}
