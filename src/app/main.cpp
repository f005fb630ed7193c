#include "app/tagsmithappdelegate.h"

#include <QApplication>

#include <unistd.h>

int main(int argc, char *argv[])
{
    // Chromium refuses to start its sandbox as root; a root session gets the map without it.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tagsmith"));
    QApplication::setApplicationName(QStringLiteral("Tagsmith"));

    TagsmithAppDelegate delegate;
    delegate.applicationWillFinishLaunching();
    return QApplication::exec();
}
