#include "windows/reviewchangesmodel.h"

#include "catalogue/exiffieldscontroller.h"
#include "engine/exifutil.h"
#include "values/dateoffset.h"
#include "values/datevalue.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFont>
#include <QStyle>

#include <algorithm>

ReviewChangesModel::ReviewChangesModel(QObject *parent)
    : QAbstractTableModel(parent)
    , m_fill(new QTimer(this))
{
    m_fill->setSingleShot(true);
    m_fill->setInterval(0);
    connect(m_fill, &QTimer::timeout, this, &ReviewChangesModel::appendSlice);
}

void ReviewChangesModel::setFiles(const QList<ExifFileInfoPtr> &files)
{
    m_fill->stop();
    beginResetModel();
    m_paths.clear();
    m_names.clear();
    m_rows.clear();
    m_pending = files;
    m_next = 0;
    endResetModel();
    appendSlice();
}

void ReviewChangesModel::appendSlice()
{
    constexpr qint64 sliceMs = 25;
    QElapsedTimer clock;
    clock.start();
    const ExifFieldsController *catalogue = ExifFieldsController::defaultInstance();
    const auto tagOf = [&](const QString &key) {
        // One language of a language alternative reads "Caption (XMP-dc:Description-de)".
        const ExifFieldPtr field = catalogue->fieldOf(key);
        return field && !field->title().isEmpty()
                   ? field->title() + QStringLiteral(" (") + key + u')'
                   : key;
    };
    QList<Row> slice;
    while (m_next < m_pending.size() && !clock.hasExpired(sliceMs)) {
        const ExifFileInfoPtr file = m_pending.at(m_next++);
        if (!file)
            continue;
        const TagDictionary original = file->originalExifData();
        const TagDictionary changes = ExifUtil::changedFieldsDictionary(*file);
        const QSet<QString> removed = ExifUtil::removedFieldsSet(*file);
        const int index = int(m_paths.size());
        QList<Row> rows;
        for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
            const QString &key = it.key();
            const QString onDisk = original.value(key);
            Row row{index, key, tagOf(key), onDisk, it.value(), onDisk.isEmpty() ? Added : Changed};
            const ExifFieldPtr field = catalogue->field(key);
            const FieldDataRepresentation representation =
                field ? field->dataRepresentation() : FieldDataRepresentation::None;
            if ((representation == FieldDataRepresentation::Date ||
                 representation == FieldDataRepresentation::DateTime) &&
                isDateOffsetText(it.value())) {
                // What the shift makes of this file's own date, as the save will write it.
                const QDateTime date = applyDateOffset(it.value(), onDisk);
                row.kind = Shifted;
                row.newValue = date.isValid() ? (representation == FieldDataRepresentation::Date
                                                     ? formatDateValue(date)
                                                     : formatDateTimeValue(date))
                                              : tr("(no date to shift)");
            } else if (it.value().isEmpty()) {
                row.kind = Removed;
            } else if (field && !field->itemsOverByteLimit(it.value()).isEmpty()) {
                row.overLimit = field->maxBytes();
            }
            rows.append(row);
        }
        for (const QString &key : removed) {
            if (!changes.contains(key))
                rows.append(Row{index, key, tagOf(key), original.value(key), QString(), Removed});
        }
        if (rows.isEmpty())
            continue;
        std::sort(rows.begin(), rows.end(),
                  [](const Row &a, const Row &b) { return a.tag < b.tag; });
        m_paths.append(file->fileName());
        m_names.append(QFileInfo(file->fileName()).fileName());
        slice += rows;
    }
    if (!slice.isEmpty()) {
        beginInsertRows({}, int(m_rows.size()), int(m_rows.size() + slice.size() - 1));
        m_rows += slice;
        endInsertRows();
    }
    if (isFilling()) {
        m_fill->start();
        return;
    }
    m_pending.clear();
    m_next = 0;
    Q_EMIT filled();
}

int ReviewChangesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ReviewChangesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ReviewChangesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        switch (index.column()) {
        case FileColumn:
            return m_names.at(row.file);
        case TagColumn:
            return row.tag;
        case OnDiskColumn:
            return row.onDisk;
        case NewValueColumn:
            return row.kind == Removed ? tr("(removed)") : row.newValue;
        }
        return {};
    case Qt::ToolTipRole:
        if (index.column() == FileColumn)
            return m_paths.at(row.file);
        if (index.column() == NewValueColumn && row.kind == Shifted)
            return tr("A date shift: the date it gives this file");
        if (index.column() == NewValueColumn && row.overLimit > 0) {
            return tr("Longer than IPTC allows (at most %n byte(s)): the save will not write "
                      "this file until it is shortened.",
                      nullptr, int(row.overLimit));
        }
        return data(index, Qt::DisplayRole);
    case Qt::DecorationRole:
        if (index.column() == NewValueColumn && row.overLimit > 0)
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
        return {};
    case Qt::FontRole:
        if (index.column() == NewValueColumn && row.kind == Removed) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        return {};
    case PathRole:
        return m_paths.at(row.file);
    case KeyRole:
        return row.key;
    case KindRole:
        return row.kind;
    case OverLimitRole:
        return row.overLimit;
    }
    return {};
}

QVariant ReviewChangesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case FileColumn:
        return tr("File");
    case TagColumn:
        return tr("Tag");
    case OnDiskColumn:
        return tr("On Disk");
    case NewValueColumn:
        return tr("After Saving");
    }
    return {};
}

void ReviewChangesFilter::setFileFilter(const QString &text)
{
    m_file = text.trimmed();
    invalidateFilter();
}

void ReviewChangesFilter::setTagFilter(const QString &text)
{
    m_tag = text.trimmed();
    invalidateFilter();
}

bool ReviewChangesFilter::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QAbstractItemModel *source = sourceModel();
    const auto cellContains = [&](int column, const QString &text) {
        return text.isEmpty() || source->index(sourceRow, column, sourceParent)
                                     .data()
                                     .toString()
                                     .contains(text, Qt::CaseInsensitive);
    };
    return cellContains(ReviewChangesModel::FileColumn, m_file) &&
           cellContains(ReviewChangesModel::TagColumn, m_tag);
}
