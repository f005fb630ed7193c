#include "app/tagsmithappdelegate.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tagsmith"));
    QApplication::setApplicationName(QStringLiteral("Tagsmith"));

    TagsmithAppDelegate delegate;
    delegate.applicationWillFinishLaunching();
    return QApplication::exec();
}
