#include "app/tagsmithappdelegate.h"

#include <QApplication>

#include <unistd.h>

int main(int argc, char *argv[])
{
    // Chromium's sandbox refuses to start as root and takes the whole program down with it, with
    // any unsaved edits, the moment the map opens. Root has nothing for the sandbox to guard.
    if (::geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");

    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tagsmith"));
    QApplication::setApplicationName(QStringLiteral("Tagsmith"));

    TagsmithAppDelegate delegate;
    // What Qt left in argv once it took its own options, as the bytes given.
    QList<QByteArray> arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QByteArray(argv[i]));
    delegate.applicationWillFinishLaunching(arguments);
    return QApplication::exec();
}
