#include <QApplication>
#include <QMainWindow>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tagsmith"));
    QApplication::setApplicationName(QStringLiteral("Tagsmith"));

    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Tagsmith"));
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
