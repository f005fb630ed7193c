#include "windows/presetswindow.h"

#include "windows/presetslistmodel.h"

#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"
#include "editors/configurationviewcontroller.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const QColor TableBackground = QColor::fromRgbF(0.6f, 0.6f, 0.6f, 1.0f);

QToolButton *segmentButton(const QString &text, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setText(text);
    button->setFixedSize(24, 22);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

PresetsWindow::PresetsWindow(QWidget *parent, PresetStore &store)
    : QWidget(parent, Qt::Window)
    , m_store(store)
{
    setWindowTitle(StringTables::instance().localizedString(u"Presets"_qs));
    resize(900, 600);

    m_model = new PresetsListModel(m_store, this);
    m_model->setRenameHandler([this](const QString &identifier, const QString &name) {
        renameInPlace(identifier, name);
    });
    m_configurationsTable = new QTableView;
    m_configurationsTable->setModel(m_model);
    m_configurationsTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_configurationsTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_configurationsTable->setEditTriggers(QAbstractItemView::DoubleClicked |
                                           QAbstractItemView::EditKeyPressed);
    m_configurationsTable->horizontalHeader()->hide();
    m_configurationsTable->horizontalHeader()->setStretchLastSection(true);
    m_configurationsTable->verticalHeader()->hide();
    m_configurationsTable->setShowGrid(false);
    connect(m_configurationsTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PresetsWindow::tableViewSelectionDidChange);

    auto *segments = new QButtonGroup(this);
    auto *left = new QWidget;
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    segments->addButton(segmentButton(u"+"_qs, left), 0);
    segments->addButton(segmentButton(u"-"_qs, left), 1);
    buttons->addWidget(segments->button(0));
    buttons->addWidget(segments->button(1));
    connect(segments, &QButtonGroup::idClicked, this,
            &PresetsWindow::addRemoveConfigurationPressed);

    auto *commands = new QToolButton(left);
    commands->setText(u"\u2699"_qs);
    commands->setPopupMode(QToolButton::InstantPopup);
    commands->setFocusPolicy(Qt::NoFocus);
    auto *menu = new QMenu(commands);
    menu->addAction(localized("Rename"), this, &PresetsWindow::renameConfiguration);
    menu->addAction(localized("Duplicate"), this, &PresetsWindow::duplicateConfiguration);
    menu->addAction(localized("Import..."), this, &PresetsWindow::importConfigurations);
    menu->addAction(localized("Export..."), this, &PresetsWindow::exportConfigurations);
    commands->setMenu(menu);
    buttons->addStretch();
    buttons->addWidget(commands);

    auto *leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins(0, 0, 0, 0);
    leftLayout->addWidget(m_configurationsTable);
    leftLayout->addLayout(buttons);

    m_configController = new ConfigurationViewController(this);
    m_configController->setShowRemove(true);
    m_configController->createUserInterface();

    auto *splitter = new QSplitter;
    splitter->addWidget(left);
    splitter->addWidget(m_configController->scrollArea());
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({220, 680});
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(splitter);

    updateSkin();
    reloadConfigurations();
    // Nothing selected yet: the form shows no preset.
    m_configController->setExifConfiguration(nullptr);
    selectFirstPreset();
}

PresetsWindow::~PresetsWindow() = default;

void PresetsWindow::showWindow()
{
    show();
    raise();
    activateWindow();
}

QString PresetsWindow::menuTitle(const Preset &preset)
{
    const int removals = int(preset.removedValues().size());
    if (removals == 0)
        return preset.name();
    return tr("%1 (removes %n tag(s))", nullptr, removals).arg(preset.name());
}

void PresetsWindow::updateSkin()
{
    setAutoFillBackground(true);
    QPalette windowPalette = palette();
    windowPalette.setColor(QPalette::Window, ApertureTheme::normalSolidFill());
    setPalette(windowPalette);
    m_configurationsTable->setProperty("theme", ApertureTheme::Key);
    // The application's style sheet would override a palette colour.
    m_configurationsTable->setStyleSheet(
        u"QTableView { background: %1; color: rgb(20, 20, 20); }"_qs.arg(TableBackground.name()));
}

QString PresetsWindow::selectedIdentifier() const
{
    const QModelIndexList rows = m_configurationsTable->selectionModel()->selectedRows();
    if (rows.isEmpty() || rows.first().row() >= m_configNames.size())
        return QString();
    return m_configNames.at(rows.first().row());
}

void PresetsWindow::selectIdentifier(const QString &identifier)
{
    const qsizetype row = m_configNames.indexOf(identifier);
    if (row < 0)
        return;
    m_configurationsTable->selectRow(static_cast<int>(row));
}

void PresetsWindow::reloadConfigurations()
{
    const QString selected = selectedIdentifier();
    QStringList names = m_store.configurations().keys();
    const auto nameOf = [this](const QString &identifier) {
        const PresetPtr preset = m_store.loadConfiguration(identifier);
        return preset ? preset->name() : QString();
    };
    std::stable_sort(names.begin(), names.end(), [&nameOf](const QString &a, const QString &b) {
        return PresetsListModel::nameLess(nameOf(a), nameOf(b));
    });
    m_configNames = names;
    QItemSelectionModel *selection = m_configurationsTable->selectionModel();
    {
        // Putting the same preset's row back is not a change of preset.
        const QSignalBlocker blocker(selection);
        m_model->setConfigNames(m_configNames);
        if (m_configNames.contains(selected))
            selectIdentifier(selected);
    }
    m_configurationsTable->viewport()->update();
    if (!selected.isNull() && !m_configNames.contains(selected))
        tableViewSelectionDidChange();
}

void PresetsWindow::selectFirstPreset()
{
    if (!m_configNames.isEmpty())
        m_configurationsTable->selectRow(0);
}

void PresetsWindow::addRemoveConfigurationPressed(int segment)
{
    if (segment == 0)
        addConfiguration();
    else
        removeConfiguration();
}

void PresetsWindow::addConfiguration()
{
    auto preset =
        std::make_shared<Preset>(m_store.findUnusedNewIdentifier(),
                                 StringTables::instance().localizedString(u"New Configuration"_qs));
    m_store.saveConfiguration(preset);
    reloadConfigurations();
    selectIdentifier(preset->identifier());
    editName(preset->identifier(), true);
}

void PresetsWindow::removeConfiguration()
{
    const QString selected = selectedIdentifier();
    if (selected.isNull())
        return;
    m_store.removeConfigurationIdentifier(selected);
    reloadConfigurations();
}

void PresetsWindow::renameConfiguration()
{
    const QString selected = selectedIdentifier();
    if (!selected.isNull())
        editName(selected, false);
}

void PresetsWindow::editName(const QString &identifier, bool selectText)
{
    const qsizetype row = m_configNames.indexOf(identifier);
    if (row < 0)
        return;
    const QModelIndex index = m_model->index(static_cast<int>(row));
    m_configurationsTable->setFocus();
    m_configurationsTable->edit(index);
    if (auto *editor = qobject_cast<QLineEdit *>(m_configurationsTable->indexWidget(index))) {
        if (selectText)
            editor->selectAll();
        else
            editor->deselect();
    }
}

void PresetsWindow::renameInPlace(const QString &identifier, const QString &name)
{
    const PresetPtr preset = m_store.loadConfiguration(identifier);
    if (!preset)
        return;
    preset->setName(name);
    m_store.saveConfiguration(preset);
    reloadConfigurations();
}

void PresetsWindow::saveConfiguration()
{
    if (m_currentConfigName.isNull())
        return;
    const PresetPtr preset = m_store.loadConfiguration(m_currentConfigName);
    if (!preset) {
        m_currentConfigName.clear();
        return;
    }
    m_configController->copyToConfiguration(*preset);
    m_store.saveConfiguration(preset);
}

void PresetsWindow::tableViewSelectionDidChange()
{
    saveConfiguration();
    const QString selected = selectedIdentifier();
    if (selected.isNull()) {
        m_currentConfigName = QString();
        m_configController->setExifConfiguration(nullptr);
        return;
    }
    m_currentConfigName = selected;
    const PresetPtr preset = m_store.loadConfiguration(selected);
    m_configController->setExifConfiguration(preset.get());
}

void PresetsWindow::duplicateConfiguration()
{
}

void PresetsWindow::importConfigurations()
{
}

void PresetsWindow::exportConfigurations()
{
}

void PresetsWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        saveConfiguration();
}

void PresetsWindow::closeEvent(QCloseEvent *event)
{
    saveConfiguration();
    QWidget::closeEvent(event);
}
