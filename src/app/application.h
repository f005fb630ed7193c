#pragma once

#include "windows/appmainwindow.h"

#include <QFont>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class PreferencesWindow;
class QWidget;

// The application's shell: settings, start-up, the one main window, quitting, preferences and
// the product's web pages. One per process, on the main thread.
class Application : public QObject
{
    Q_OBJECT

public:
    enum class TerminateReply { TerminateNow, TerminateLater };
    using MainWindowFactory = std::function<std::unique_ptr<AppMainWindow>(Application &)>;

    static inline const QString HelpUrl = QStringLiteral("https://tagsmith.org/help");
    static inline const QString SupportUrl = QStringLiteral("https://tagsmith.org/support");
    static inline const QString WebSiteUrl = QStringLiteral("https://tagsmith.org");

    explicit Application(QObject *parent = nullptr);
    ~Application() override;

    // The delegate of the running application, if one was created.
    static Application *instance();
    // True when one argument is exactly `argument` (the program path counts as one).
    static bool hasArgument(const QString &argument,
                            const QStringList &arguments = currentArguments());

    // Replaces the main window made at start-up (a test's stand-in).
    void setMainWindowFactory(MainWindowFactory factory)
    {
        m_mainWindowFactory = std::move(factory);
    }

    void applicationWillFinishLaunching(const QStringList &arguments = currentArguments());
    // The process's arguments as the bytes they were given: a file name need not be UTF-8.
    void applicationWillFinishLaunching(const QList<QByteArray> &arguments);
    bool openFile(const QString &path);
    // Closing the main window ends the program.
    bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }
    TerminateReply applicationShouldTerminate();

    bool debug() const { return m_debug; }
    const QFont &labelFont() const { return m_labelFont; }
    const QFont &labelBoldFont() const { return m_labelBoldFont; }
    const QString &themeKey() const { return m_themeKey; }
    AppMainWindow *mainWindow() const { return m_mainWindow.get(); }
    PreferencesWindow *preferencesWindow() const;

public Q_SLOTS:
    // The Quit command: quits now, or leaves it to the main window's save question.
    void requestQuit();
    // The main window's answer to a quit it held: true ends the program.
    void replyToApplicationShouldTerminate(bool shouldTerminate);
    void showPreferences();
    void openUrl(const QString &address);
    void showHelp();
    void openSupportPage();
    void openWebSite();

private:
    static QStringList currentArguments();
    std::unique_ptr<AppMainWindow> createMainWindow();

    std::unique_ptr<PreferencesWindow> m_preferencesWindow;
    std::unique_ptr<AppMainWindow> m_mainWindow;
    MainWindowFactory m_mainWindowFactory;
    QFont m_labelFont;
    QFont m_labelBoldFont;
    QString m_themeKey;
    bool m_debug = false;
};
