#include "app/application.h"

#include "app/commandline.h"
#include "windows/mainwindowcontroller.h"
#include "windows/mainwindowmenus.h"
#include "windows/preferenceswindow.h"
#include "catalogue/presetstore.h"
#include "catalogue/exiffieldscontroller.h"
#include "values/usersettings.h"
#include "controls/aperturetheme.h"
#include "engine/exiftoolversion.h"
#include "values/debugmode.h"
#include "values/logging.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QUrl>

namespace {

Application *currentApplication = nullptr;

} // namespace

Application::Application(QObject *parent)
    : QObject(parent)
    , m_themeKey(ApertureTheme::Key)
{
    // The five user settings need no registration step: UserSettings answers with their
    // defaults until the user changes them.
    currentApplication = this;
}

Application::~Application()
{
    if (currentApplication == this)
        currentApplication = nullptr;
}

Application *Application::instance()
{
    return currentApplication;
}

QStringList Application::currentArguments()
{
    return QCoreApplication::arguments();
}

bool Application::hasArgument(const QString &argument, const QStringList &arguments)
{
    return arguments.contains(argument, Qt::CaseSensitive);
}

void Application::applicationWillFinishLaunching(const QStringList &arguments)
{
    QList<QByteArray> bytes;
    for (const QString &argument : arguments)
        bytes.append(QFile::encodeName(argument));
    applicationWillFinishLaunching(bytes);
}

void Application::applicationWillFinishLaunching(const QList<QByteArray> &arguments)
{
    const CommandLine commandLine = CommandLine::parse(arguments, QDir::currentPath());
    m_debug = commandLine.debug;
    DebugMode::setEnabled(m_debug);
    if (m_debug) {
        const ExifToolVersion tool = exifToolVersion();
        qCInfo(lcTagsmith).noquote()
            << QStringLiteral("ExifTool: %1, version %2")
                   .arg(tool.program, tool.isKnown() ? tool.version : tool.errorMessage);
    }

    if (auto *application = qobject_cast<QApplication *>(QCoreApplication::instance()))
        ApertureTheme::apply(*application);
    m_themeKey = ApertureTheme::Key;

    m_labelFont = ApertureTheme::labelFont();
    m_labelBoldFont = ApertureTheme::labelFont(true);

    ExifFieldsController::defaultInstance()->initializeConfigurations();
    ExifFieldsController::defaultInstance()->setLinksForms(!UserSettings::showsEveryTag());
    PresetStore::instance().initializeSettings();

    // Closing the main window ends the program even while the preferences window is open,
    // which is kept out of the count of windows that hold the program open.
    QGuiApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
    m_mainWindow = m_mainWindowFactory ? m_mainWindowFactory(*this) : createMainWindow();
    m_mainWindow->window()->show();

    // The desktop hands over files to open as arguments (the .desktop file's %F), a shell
    // relative to the folder it runs in.
    if ((!commandLine.paths.isEmpty() || !commandLine.rejected.isEmpty()) && m_mainWindow)
        m_mainWindow->openFiles(commandLine.paths, commandLine.rejected);
}

std::unique_ptr<AppMainWindow> Application::createMainWindow()
{
    auto window = std::make_unique<MainWindowController>(nullptr, PresetStore::instance(), m_debug);
    window->setTerminateReply(
        [this](bool terminate) { replyToApplicationShouldTerminate(terminate); });
    // The application's own commands, in the window's menus.
    using C = MainWindowMenus::Command;
    window->menus()->onTriggered(C::Preferences, this, &Application::showPreferences);
    window->menus()->onTriggered(C::Quit, this, &Application::requestQuit);
    window->menus()->onTriggered(C::Help, this, &Application::showHelp);
    window->menus()->onTriggered(C::Support, this, &Application::openSupportPage);
    window->menus()->onTriggered(C::WebSite, this, &Application::openWebSite);
    return window;
}

bool Application::openFile(const QString &path)
{
    return m_mainWindow && m_mainWindow->openFile(path);
}

Application::TerminateReply Application::applicationShouldTerminate()
{
    if (m_mainWindow && m_mainWindow->hasModifiedFiles()) {
        m_mainWindow->quitRequested();
        m_mainWindow->window()->close();
        return TerminateReply::TerminateLater;
    }
    return TerminateReply::TerminateNow;
}

// exit() rather than quit(): quit() would send every window a close request again, and the
// main window would put its save question a second time.
void Application::requestQuit()
{
    if (applicationShouldTerminate() == TerminateReply::TerminateNow)
        QCoreApplication::exit(0);
}

void Application::replyToApplicationShouldTerminate(bool shouldTerminate)
{
    if (shouldTerminate)
        QCoreApplication::exit(0);
}

PreferencesWindow *Application::preferencesWindow() const
{
    return m_preferencesWindow.get();
}

void Application::showPreferences()
{
    if (!m_preferencesWindow)
        m_preferencesWindow = std::make_unique<PreferencesWindow>();
    m_preferencesWindow->showWindow();
}

void Application::openUrl(const QString &address)
{
    if (!QDesktopServices::openUrl(QUrl(address)))
        qCWarning(lcTagsmith).noquote() << QStringLiteral("Could not open %1").arg(address);
}

void Application::showHelp()
{
    openUrl(HelpUrl);
}

void Application::openSupportPage()
{
    openUrl(SupportUrl);
}

void Application::openWebSite()
{
    openUrl(WebSiteUrl);
}
