#include "windows/presetslistmodel.h"

#include "catalogue/presetstore.h"

namespace {

// Compares two runs of digits by value without converting them, so no length overflows.
int compareDigitRuns(QStringView a, QStringView b)
{
    while (a.size() > 1 && a.front() == u'0')
        a = a.sliced(1);
    while (b.size() > 1 && b.front() == u'0')
        b = b.sliced(1);
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return a.compare(b);
}

qsizetype runEnd(QStringView text, qsizetype start, bool digits)
{
    qsizetype end = start;
    while (end < text.size() && text.at(end).isDigit() == digits)
        ++end;
    return end;
}

} // namespace

PresetsListModel::PresetsListModel(PresetStore &store, QObject *parent)
    : QAbstractListModel(parent)
    , m_store(store)
{
}

void PresetsListModel::setConfigNames(const QStringList &identifiers)
{
    beginResetModel();
    m_configNames = identifiers;
    endResetModel();
}

int PresetsListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_configNames.size());
}

QVariant PresetsListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_configNames.size() ||
        (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    const PresetPtr preset = m_store.loadConfiguration(m_configNames.at(index.row()));
    return preset ? preset->name() : QString();
}

bool PresetsListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || index.row() >= m_configNames.size())
        return false;
    if (m_renameHandler)
        m_renameHandler(m_configNames.at(index.row()), value.toString());
    return true;
}

Qt::ItemFlags PresetsListModel::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable;
}

bool PresetsListModel::nameLess(const QString &a, const QString &b)
{
    const QStringView left(a);
    const QStringView right(b);
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < left.size() && j < right.size()) {
        const bool leftDigits = left.at(i).isDigit();
        const bool rightDigits = right.at(j).isDigit();
        const qsizetype leftEnd = runEnd(left, i, leftDigits);
        const qsizetype rightEnd = runEnd(right, j, rightDigits);
        const QStringView leftRun = left.sliced(i, leftEnd - i);
        const QStringView rightRun = right.sliced(j, rightEnd - j);
        const int order = leftDigits && rightDigits
                              ? compareDigitRuns(leftRun, rightRun)
                              : leftRun.compare(rightRun, Qt::CaseInsensitive);
        if (order != 0)
            return order < 0;
        i = leftEnd;
        j = rightEnd;
    }
    return (left.size() - i) < (right.size() - j);
}
