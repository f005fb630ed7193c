#include "engine/filelistmodel.h"

#include "catalogue/stringtables.h"
#include "engine/exifutil.h"

#include <QFileInfo>

#include <algorithm>

FileListModel::FileListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

int FileListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_files.size());
}

QString FileListModel::errorText()
{
    const StringTables &tables = StringTables::instance();
    return tables.localizedString(QStringLiteral("Error in image")) + QStringLiteral(" - ") +
           tables.localizedString(QStringLiteral("invalid maker metadata"));
}

QVariant FileListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ExifFileInfo &file = *m_files.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return role == Qt::DisplayRole ? QFileInfo(file.fileName()).fileName() : file.fileName();
    case PathRole:
        return file.fileName();
    case SubtitleRole:
        return QFileInfo(file.fileName()).path();
    case HasErrorRole:
        return file.hasError();
    case ErrorTextRole:
        return file.hasError() ? errorText() : QString();
    case ModifiedRole:
        return isExifFileModified(file);
    case SidecarRole:
        return QFileInfo(file.sidecarPath()).fileName();
    default:
        return {};
    }
}

ExifFileInfoPtr FileListModel::fileAt(int row) const
{
    return row >= 0 && row < m_files.size() ? m_files.at(row) : nullptr;
}

int FileListModel::rowOf(const QString &path) const
{
    return rows().value(path, -1);
}

const QHash<QString, int> &FileListModel::rows() const
{
    if (!m_rowsValid) {
        m_rows.clear();
        m_rows.reserve(m_files.size());
        // The first row wins, as a search from the top would find it.
        for (int row = int(m_files.size()) - 1; row >= 0; --row)
            m_rows.insert(m_files.at(row)->fileName(), row);
        m_rowsValid = true;
    }
    return m_rows;
}

void FileListModel::setFiles(const QList<ExifFileInfoPtr> &files)
{
    beginResetModel();
    m_files = files;
    m_rowsValid = false;
    endResetModel();
}

void FileListModel::appendFiles(const QList<ExifFileInfoPtr> &files)
{
    if (files.isEmpty())
        return;
    const int first = int(m_files.size());
    beginInsertRows(QModelIndex(), first, first + int(files.size()) - 1);
    m_files.append(files);
    m_rowsValid = false;
    endInsertRows();
}

void FileListModel::replaceFile(int row, const ExifFileInfoPtr &file)
{
    if (row < 0 || row >= m_files.size() || !file)
        return;
    m_files[row] = file;
    m_rowsValid = false;
    const QModelIndex changed = index(row);
    Q_EMIT dataChanged(changed, changed);
}

void FileListModel::removeRowsAt(QList<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    // From the bottom up, so earlier removals do not move the rows still to go.
    for (const int row : std::as_const(rows)) {
        if (row < 0 || row >= m_files.size())
            continue;
        beginRemoveRows(QModelIndex(), row, row);
        m_files.removeAt(row);
        m_rowsValid = false;
        endRemoveRows();
    }
}

void FileListModel::refreshFiles(const QList<ExifFileInfoPtr> &files)
{
    QList<int> changed;
    changed.reserve(files.size());
    for (const ExifFileInfoPtr &file : files) {
        const int row = rowOf(file->fileName());
        if (row >= 0 && m_files.at(row) == file)
            changed.append(row);
    }
    // One signal per run of neighbouring rows: an edit over all files repaints once.
    for (const auto &[first, last] : rowRuns(changed))
        Q_EMIT dataChanged(index(first), index(last));
}

QList<std::pair<int, int>> FileListModel::rowRuns(QList<int> rows)
{
    std::sort(rows.begin(), rows.end());
    QList<std::pair<int, int>> runs;
    for (const int row : std::as_const(rows)) {
        if (!runs.isEmpty() && row <= runs.last().second + 1)
            runs.last().second = std::max(runs.last().second, row);
        else
            runs.append({row, row});
    }
    return runs;
}

void FileListModel::refreshAll()
{
    if (!m_files.isEmpty())
        Q_EMIT dataChanged(index(0), index(int(m_files.size()) - 1));
}
