#include "windows/mainwindowcontroller.h"

#include "windows/auxiliarywindows.h"
#include "windows/copypastecommands.h"
#include "windows/fileoperations.h"
#include "windows/filelistpresenter.h"
#include "windows/geotagcommand.h"
#include "windows/mainwindow.h"
#include "windows/mainwindowmenus.h"
#include "windows/presetsmenu.h"
#include "windows/windowsheets.h"
#include "editors/configurationviewcontroller.h"
#include "engine/editsession.h"
#include "engine/writequeue.h"
#include "engine/exifutil.h"

#include <QAction>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include <algorithm>
#include <utility>

MainWindowController::MainWindowController(std::unique_ptr<WriteQueue> runner, PresetStore &store,
                                           bool debug)
    : m_debug(debug)
    , m_runner(runner ? std::move(runner) : std::make_unique<WriteQueue>())
{
    buildParts(store);
}

MainWindowController::~MainWindowController() = default;

void MainWindowController::buildParts(PresetStore &store)
{
    m_window = std::make_unique<MainWindow>(m_debug);
    m_window->setCloseHandler([this] { return windowShouldClose(); });
    m_menus = new MainWindowMenus(m_window->menuBar(), this);
    m_window->presetsButton()->setMenu(m_menus->configsMenu());

    m_session = new EditSession(this);
    m_form = new ConfigurationViewController(this);
    m_form->setEditSession(m_session);
    m_form->createUserInterface();
    m_window->setFormArea(m_form->scrollArea());

    WindowContext context{m_window.get(), m_menus, nullptr, m_session};
    m_list = new FileListPresenter(context, m_form, this);
    context.list = m_list;
    m_operations = new FileOperations(context, *m_runner, this);
    m_windows = new AuxiliaryWindows(context, store, this);
    auto *presets = new PresetsMenu(context, store, this);
    auto *copyPaste = new CopyPasteCommands(context, this);
    auto *geotag = new GeotagCommand(context, m_windows, this);
    m_parts = {m_list, m_operations, m_windows, presets, copyPaste, geotag};
    m_form->setShowMapAction([this] { m_windows->showMap(); });

    const auto recheck = [this] { recheckUIEnablement(); };
    // Edits the rows do not announce.
    const auto edited = [this] {
        updateWindowModified();
        recheckUIEnablement();
    };
    connect(m_list, &FileListPresenter::selectionChanged, this, [this] {
        m_windows->followSelection();
        recheckUIEnablement();
    });
    connect(m_list, &FileListPresenter::filesChanged, this, edited);
    connect(m_operations, &FileOperations::savingChanged, this, recheck);
    connect(m_operations, &FileOperations::batchFinished, this,
            &MainWindowController::handleBatchFinished);
    connect(m_windows, &AuxiliaryWindows::saveRequested, m_operations,
            &FileOperations::processFiles);
    connect(presets, &PresetsMenu::changed, this, edited);
    connect(copyPaste, &CopyPasteCommands::changed, this, edited);
    connect(geotag, &GeotagCommand::changed, this, edited);
    connect(m_session, &EditSession::exifFilesUpdated, m_list,
            &FileListPresenter::handleExifFilesUpdate);

    recheckUIEnablement();
}

QWidget *MainWindowController::window()
{
    return m_window.get();
}

bool MainWindowController::hasModifiedFiles() const
{
    return ExifUtil::hasModifiedFiles(m_list->files());
}

bool MainWindowController::openFile(const QString &path)
{
    return m_list->addFiles({path});
}

bool MainWindowController::openFiles(const QStringList &paths, const QList<FileRejection> &rejected)
{
    return m_list->addFiles(paths, rejected);
}

void MainWindowController::recheckUIEnablement()
{
    CommandState state;
    state.saving = m_operations->isSaving();
    state.selected = m_list->selectedFiles();
    // Kept up to date on every edit, so no pass over all files here.
    state.hasModifiedFiles = m_window->isWindowModified();
    for (WindowPart *part : std::as_const(m_parts))
        part->updateEnablement(state);
}

void MainWindowController::updateWindowModified()
{
    m_window->setWindowModified(hasModifiedFiles());
}

void MainWindowController::reply(bool terminate)
{
    if (m_terminateReply)
        m_terminateReply(terminate);
}

bool MainWindowController::windowShouldClose()
{
    return takeStep(
        m_close.closeRequested(m_operations->isSaving(), hasModifiedFiles(), m_closeSheet));
}

bool MainWindowController::takeStep(CloseFlow::Step step,
                                    const QHash<QString, ErrorMessagesPtr> &results)
{
    using S = CloseFlow::Step;
    switch (step) {
    case S::Allow:
        return true;
    case S::AllowAndQuit:
        reply(true);
        return true;
    case S::Refuse:
    case S::Nothing:
        return false;
    case S::Ask:
        askToSave();
        return false;
    case S::Quit:
    case S::CancelQuit:
        reply(step == S::Quit);
        return false;
    case S::DropAndClose:
        m_list->clearAllFiles();
        [[fallthrough]];
    case S::Close:
        m_window->close();
        return false;
    case S::StartSave:
        m_operations->processFiles();
        return false;
    case S::AskAfterFailure:
        askAfterFailedSave(results);
        return false;
    case S::Finish:
    case S::FinishAndClose:
    case S::FinishAndCancelQuit:
        finishBatch(results);
        if (step == S::FinishAndClose)
            m_window->close();
        else if (step == S::FinishAndCancelQuit)
            reply(false);
        return false;
    }
    return false;
}

void MainWindowController::askToSave()
{
    m_closeSheet =
        makeSheet(m_window.get(), localized(QStringLiteral("Save changes to modified files?")),
                  localized(QStringLiteral("If you don't save the changes, they will be lost")));
    // One role for all three keeps them in this order on every desktop.
    QHash<QAbstractButton *, CloseFlow::Answer> answers;
    for (const auto &[text, answer] : {std::pair{"Save", CloseFlow::Answer::Save},
                                       std::pair{"Cancel", CloseFlow::Answer::Cancel},
                                       std::pair{"Don't Save", CloseFlow::Answer::DontSave}})
        answers.insert(m_closeSheet->addButton(localized(text), QMessageBox::ActionRole), answer);
    m_closeSheet->setDefaultButton(
        qobject_cast<QPushButton *>(answers.key(CloseFlow::Answer::Save)));
    m_closeSheet->setEscapeButton(answers.key(CloseFlow::Answer::Cancel));
    QMessageBox *sheet = m_closeSheet;
    connect(sheet, &QMessageBox::finished, this, [this, sheet, answers] {
        takeStep(
            m_close.answered(answers.value(sheet->clickedButton(), CloseFlow::Answer::Cancel)));
    });
    m_closeSheet->open();
}

void MainWindowController::handleBatchFinished(const QHash<QString, ErrorMessagesPtr> &results)
{
    const bool failed =
        std::any_of(results.cbegin(), results.cend(),
                    [](const ErrorMessagesPtr &m) { return m && m->errorsCount(); });
    takeStep(m_close.saveFinished(failed), results);
}

void MainWindowController::askAfterFailedSave(const QHash<QString, ErrorMessagesPtr> &results)
{
    auto *alert = new QMessageBox(m_window.get());
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setWindowModality(Qt::ApplicationModal);
    alert->setIcon(QMessageBox::Critical);
    alert->setText(localized(QStringLiteral("SAVE_FAILED_DLG_MSG")));
    alert->setInformativeText(localized(QStringLiteral("SAVE_FAILED_DLG_INFO")));
    QPushButton *dontExit =
        alert->addButton(localized(QStringLiteral("Don't Exit")), QMessageBox::RejectRole);
    alert->addButton(localized(QStringLiteral("Exit")), QMessageBox::AcceptRole);
    alert->setDefaultButton(dontExit);
    connect(alert, &QMessageBox::finished, this, [this, alert, dontExit, results] {
        const auto answer = alert->clickedButton() == dontExit ? CloseFlow::FailureAnswer::DontExit
                                                               : CloseFlow::FailureAnswer::Exit;
        takeStep(m_close.failureAnswered(answer), results);
    });
    alert->open();
}

void MainWindowController::finishBatch(const QHash<QString, ErrorMessagesPtr> &results)
{
    m_operations->removeProgressPanel();
    m_list->refreshAll();
    m_list->showCurrentFilesAgain();
    updateWindowModified();
    recheckUIEnablement();
    const bool problems =
        std::any_of(results.cbegin(), results.cend(), [](const ErrorMessagesPtr &messages) {
            return messages && messages->errorsCount() + messages->warnsCount() > 0;
        });
    if (problems)
        m_windows->displayErrors(results);
}
