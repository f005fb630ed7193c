#include "windows/resultsmodel.h"

#include "catalogue/stringtables.h"

#include <QFileInfo>

#include <algorithm>

namespace {

// The texts carry printf-style "%i" and "%@" placeholders, filled in the order they appear.
QString fillPlaceholders(QString text, const QString &placeholder, const QStringList &values)
{
    qsizetype from = 0;
    for (const QString &value : values) {
        const qsizetype at = text.indexOf(placeholder, from);
        if (at < 0)
            break;
        text.replace(at, placeholder.size(), value);
        from = at + value.size();
    }
    return text;
}

} // namespace

ResultsModel::ResultsModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_summary(localized(QStringLiteral("No errors or warnings")))
{
}

void ResultsModel::displayErrors(const QList<ErrorMessagesPtr> &files)
{
    beginResetModel();
    m_files.clear();
    for (const ErrorMessagesPtr &file : files) {
        if (file)
            m_files.append(file);
    }
    std::stable_sort(m_files.begin(), m_files.end(),
                     [](const ErrorMessagesPtr &a, const ErrorMessagesPtr &b) { return *a < *b; });
    m_summary = summaryForFiles(m_files);
    endResetModel();
}

QString ResultsModel::summaryForFiles(const QList<ErrorMessagesPtr> &files)
{
    qint32 errors = 0;
    qint32 warnings = 0;
    bool any = false;
    for (const ErrorMessagesPtr &file : files) {
        if (!file)
            continue;
        any = true;
        errors += static_cast<qint32>(file->errorsCount());
        warnings += static_cast<qint32>(file->warnsCount());
    }
    if (!any || (errors < 1 && warnings < 1))
        return localized(QStringLiteral("No errors"));
    // "There is 1 error and 2 warnings": the verb follows the first count.
    if (errors >= 1 && warnings >= 1)
        return tr("There are %n error(s) and %1", nullptr, errors)
            .arg(tr("%n warning(s)", nullptr, warnings));
    if (errors >= 1)
        return tr("There are %n error(s)", nullptr, errors);
    return tr("There are %n warning(s)", nullptr, warnings);
}

QString ResultsModel::formatErrorForErrorMessage(const ErrorMessage &message)
{
    QString text = message.message();
    const QString minor = localized(QStringLiteral("[minor] "));
    // Cut from the start wherever the marker stood: ExifTool puts it first.
    if (!minor.isEmpty() && text.contains(minor))
        text.remove(0, minor.size());
    // ExifTool ends many messages with " - <path>"; the file is already the line above.
    if (!message.fileName().isEmpty()) {
        const qsizetype at = text.indexOf(QStringLiteral(" - ") + message.fileName());
        if (at >= 0)
            text.truncate(at);
    }
    return text;
}

QString ResultsModel::formatErrorForErrorMessages(const ErrorMessages &messages)
{
    if (messages.errorsCount() > 0) {
        return fillPlaceholders(
            localized(QStringLiteral(
                "Cannot save the file %@. See details below for more detailed information.")),
            QStringLiteral("%@"), {QFileInfo(messages.fileName()).fileName()});
    }
    return messages.fileName();
}

int ResultsModel::levelOfFile(const ErrorMessages &messages)
{
    if (messages.errorsCount() > 0)
        return ErrorMessage::Error;
    if (messages.warnsCount() > 0)
        return ErrorMessage::Warning;
    return ErrorMessage::Info;
}

QModelIndex ResultsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column != 0)
        return {};
    if (!parent.isValid())
        return row < m_files.size() ? createIndex(row, column, FileLevelId) : QModelIndex();
    if (parent.internalId() != FileLevelId || parent.row() >= m_files.size())
        return {};
    if (row >= m_files.at(parent.row())->messages().size())
        return {};
    return createIndex(row, column, quintptr(parent.row()) + 1);
}

QModelIndex ResultsModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == FileLevelId)
        return {};
    return createIndex(int(child.internalId() - 1), 0, FileLevelId);
}

int ResultsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_files.size());
    if (parent.column() != 0 || parent.internalId() != FileLevelId)
        return 0;
    return int(m_files.at(parent.row())->messages().size());
}

int ResultsModel::columnCount(const QModelIndex &) const
{
    return 1;
}

bool ResultsModel::hasChildren(const QModelIndex &parent) const
{
    // Every file line can be opened, also one without messages.
    return !parent.isValid() || parent.internalId() == FileLevelId;
}

QVariant ResultsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const bool isFile = index.internalId() == FileLevelId;
    const int fileRow = isFile ? index.row() : int(index.internalId() - 1);
    if (fileRow >= m_files.size())
        return {};
    const ErrorMessages &file = *m_files.at(fileRow);
    if (!isFile && index.row() >= file.messages().size())
        return {};

    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return isFile ? formatErrorForErrorMessages(file)
                      : formatErrorForErrorMessage(file.messages().at(index.row()));
    case LevelRole:
        return isFile ? levelOfFile(file) : file.messages().at(index.row()).type();
    case IsFileRole:
        return isFile;
    case FileNameRole:
        return file.fileName();
    default:
        return {};
    }
}

Qt::ItemFlags ResultsModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}
