#include "windows/pastemetadatadialog.h"

#include "catalogue/exiffield.h"
#include "catalogue/exiffieldscontroller.h"
#include "catalogue/stringtables.h"
#include "values/usersettings.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int SectionKeyRole = Qt::UserRole + 1;

} // namespace

PasteMetadataDialog::PasteMetadataDialog(const MetadataClipboard &clipboard, int fileCount,
                                         QWidget *parent)
    : QDialog(parent)
    , m_tree(new QTreeWidget(this))
{
    setWindowTitle(tr("Paste Metadata"));
    auto *layout = new QVBoxLayout(this);
    auto *intro =
        new QLabel(tr("Paste the values copied from “%1” into %n file(s):", nullptr, fileCount)
                       .arg(QFileInfo(clipboard.sourceFileName()).fileName()),
                   this);
    intro->setWordWrap(true);
    layout->addWidget(intro);

    // How many copied values each section holds, so the user sees what a box carries.
    QHash<QString, int> counts;
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    for (auto it = clipboard.values().cbegin(); it != clipboard.values().cend(); ++it) {
        if (const ExifFieldPtr field = catalogue->field(it.key()))
            ++counts[MetadataSelection::sectionKey(field->groupName(), field->sectionName())];
    }

    m_tree->setColumnCount(2);
    m_tree->setHeaderLabels({tr("Metadata"), tr("Values")});
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setStretchLastSection(false);
    m_everything = new QTreeWidgetItem(
        m_tree, {tr("everything ExifTool can copy"), QString::number(clipboard.values().size())});
    m_everything->setFlags(m_everything->flags() | Qt::ItemIsUserCheckable |
                           Qt::ItemIsAutoTristate);
    const StringTables &strings = StringTables::instance();
    for (const GroupPtr &group : catalogue->groups()) {
        auto *groupItem =
            new QTreeWidgetItem(m_everything, {strings.localizedString(group->name())});
        groupItem->setFlags(groupItem->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
        int groupCount = 0;
        for (const SectionPtr &section : group->sections()) {
            const QString key = MetadataSelection::sectionKey(group->name(), section->name());
            const int count = counts.value(key);
            groupCount += count;
            auto *item = new QTreeWidgetItem(
                groupItem, {strings.localizedString(section->name()), QString::number(count)});
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setData(0, SectionKeyRole, key);
            item->setCheckState(0, Qt::Unchecked);
        }
        groupItem->setText(1, QString::number(groupCount));
    }
    m_everything->setExpanded(true);
    layout->addWidget(m_tree);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Paste"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PasteMetadataDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PasteMetadataDialog::reject);
    // Nothing chosen, nothing to paste.
    connect(m_tree, &QTreeWidget::itemChanged, this, [this, buttons] {
        buttons->button(QDialogButtonBox::Ok)->setEnabled(!selection().isEmpty());
    });
    layout->addWidget(buttons);
    resize(420, 520);

    setSelection(lastSelection());
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!selection().isEmpty());
}

MetadataSelection PasteMetadataDialog::selection() const
{
    MetadataSelection result;
    result.everything = m_everything->checkState(0) == Qt::Checked;
    for (int g = 0; g < m_everything->childCount(); ++g) {
        const QTreeWidgetItem *group = m_everything->child(g);
        for (int s = 0; s < group->childCount(); ++s) {
            if (group->child(s)->checkState(0) == Qt::Checked)
                result.sections.insert(group->child(s)->data(0, SectionKeyRole).toString());
        }
    }
    return result;
}

void PasteMetadataDialog::setSelection(const MetadataSelection &selection)
{
    // The parents follow their children on their own.
    for (int g = 0; g < m_everything->childCount(); ++g) {
        QTreeWidgetItem *group = m_everything->child(g);
        for (int s = 0; s < group->childCount(); ++s) {
            QTreeWidgetItem *item = group->child(s);
            const bool on = selection.everything ||
                            selection.sections.contains(item->data(0, SectionKeyRole).toString());
            item->setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
        }
    }
}

MetadataSelection PasteMetadataDialog::lastSelection()
{
    MetadataSelection selection;
    selection.everything = UserSettings::value(UserSettings::PasteEverything).toBool();
    const QStringList sections = UserSettings::value(UserSettings::PasteSections).toStringList();
    selection.sections = QSet<QString>(sections.cbegin(), sections.cend());
    return selection;
}

void PasteMetadataDialog::storeSelection(const MetadataSelection &selection)
{
    UserSettings::setValue(UserSettings::PasteEverything, selection.everything);
    QStringList sections(selection.sections.cbegin(), selection.sections.cend());
    sections.sort();
    UserSettings::setValue(UserSettings::PasteSections, sections);
}

void PasteMetadataDialog::accept()
{
    storeSelection(selection());
    QDialog::accept();
}
