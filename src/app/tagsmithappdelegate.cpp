#include "app/tagsmithappdelegate.h"

#include "app/commandline.h"
#include "windows/mainwindowcontroller.h"
#include "windows/mainwindowmenus.h"
#include "windows/preferenceswindow.h"
#include "catalogue/presetstore.h"
#include "catalogue/exiffieldscontroller.h"
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

TagsmithAppDelegate *currentDelegate = nullptr;

} // namespace

TagsmithAppDelegate::TagsmithAppDelegate(QObject *parent)
    : QObject(parent)
    , m_themeKey(ApertureTheme::Key)
{
    // The five user settings need no registration step: UserSettings answers with their
    // defaults until the user changes them.
    currentDelegate = this;
}

TagsmithAppDelegate::~TagsmithAppDelegate()
{
    if (currentDelegate == this)
        currentDelegate = nullptr;
}

TagsmithAppDelegate *TagsmithAppDelegate::instance()
{
    return currentDelegate;
}

QStringList TagsmithAppDelegate::currentArguments()
{
    return QCoreApplication::arguments();
}

bool TagsmithAppDelegate::hasArgument(const QString &argument, const QStringList &arguments)
{
    return arguments.contains(argument, Qt::CaseSensitive);
}

void TagsmithAppDelegate::applicationWillFinishLaunching(const QStringList &arguments)
{
    QList<QByteArray> bytes;
    for (const QString &argument : arguments)
        bytes.append(QFile::encodeName(argument));
    applicationWillFinishLaunching(bytes);
}

void TagsmithAppDelegate::applicationWillFinishLaunching(const QList<QByteArray> &arguments)
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
    PresetStore::instance().initializeSettings();

    // Closing the main window ends the program even while the preferences window is open,
    // which is kept out of the count of windows that hold the program open.
    QGuiApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
    m_mainWindowController = m_mainWindowFactory ? m_mainWindowFactory(*this) : createMainWindow();
    m_mainWindowController->window()->show();

    // The desktop hands over files to open as arguments (the .desktop file's %F), a shell
    // relative to the folder it runs in.
    if ((!commandLine.paths.isEmpty() || !commandLine.rejected.isEmpty()) && m_mainWindowController)
        m_mainWindowController->openFiles(commandLine.paths, commandLine.rejected);
}

std::unique_ptr<AppMainWindow> TagsmithAppDelegate::createMainWindow()
{
    auto window = std::make_unique<MainWindowController>(nullptr, PresetStore::instance(), m_debug);
    window->setTerminateReply(
        [this](bool terminate) { replyToApplicationShouldTerminate(terminate); });
    // The application's own commands, in the window's menus.
    using C = MainWindowMenus::Command;
    window->menus()->onTriggered(C::Preferences, this, &TagsmithAppDelegate::showPreferences);
    window->menus()->onTriggered(C::Quit, this, &TagsmithAppDelegate::requestQuit);
    window->menus()->onTriggered(C::Help, this, &TagsmithAppDelegate::showHelp);
    window->menus()->onTriggered(C::Support, this, &TagsmithAppDelegate::openSupportPage);
    window->menus()->onTriggered(C::WebSite, this, &TagsmithAppDelegate::openWebSite);
    return window;
}

bool TagsmithAppDelegate::openFile(const QString &path)
{
    return m_mainWindowController && m_mainWindowController->openFile(path);
}

TagsmithAppDelegate::TerminateReply TagsmithAppDelegate::applicationShouldTerminate()
{
    if (m_mainWindowController && m_mainWindowController->hasModifiedFiles()) {
        m_mainWindowController->quitRequested();
        m_mainWindowController->window()->close();
        return TerminateReply::TerminateLater;
    }
    return TerminateReply::TerminateNow;
}

// exit() rather than quit(): quit() would send every window a close request again, and the
// main window would put its save question a second time.
void TagsmithAppDelegate::requestQuit()
{
    if (applicationShouldTerminate() == TerminateReply::TerminateNow)
        QCoreApplication::exit(0);
}

void TagsmithAppDelegate::replyToApplicationShouldTerminate(bool shouldTerminate)
{
    if (shouldTerminate)
        QCoreApplication::exit(0);
}

PreferencesWindow *TagsmithAppDelegate::preferencesWindow() const
{
    return m_preferencesWindowController.get();
}

void TagsmithAppDelegate::showPreferences()
{
    if (!m_preferencesWindowController)
        m_preferencesWindowController = std::make_unique<PreferencesWindow>();
    m_preferencesWindowController->showWindow();
}

void TagsmithAppDelegate::openUrl(const QString &address)
{
    if (!QDesktopServices::openUrl(QUrl(address)))
        qCWarning(lcTagsmith).noquote() << QStringLiteral("Could not open %1").arg(address);
}

void TagsmithAppDelegate::showHelp()
{
    openUrl(HelpUrl);
}

void TagsmithAppDelegate::openSupportPage()
{
    openUrl(SupportUrl);
}

void TagsmithAppDelegate::openWebSite()
{
    openUrl(WebSiteUrl);
}
