#pragma once

#include "engine/exiffileinfo.h"

#include <QAbstractTableModel>
#include <QList>
#include <QSortFilterProxyModel>
#include <QString>
#include <QTimer>

// What a save will write, one row per tag of each modified file: the value on disk and the one
// the save will leave (a removal shown as such, a date shift as the date it produces).
class ReviewChangesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { FileColumn, TagColumn, OnDiskColumn, NewValueColumn, ColumnCount };
    enum Kind { Changed, Added, Removed, Shifted };
    // OverLimitRole: the byte limit of IPTC the new value exceeds (the save refuses it), or 0.
    enum Roles { PathRole = Qt::UserRole + 1, KeyRole, KindRole, OverLimitRole };

    explicit ReviewChangesModel(QObject *parent = nullptr);

    // Files without pending edits add no rows. The rows come in slices of a few milliseconds,
    // so a window over thousands of files shows at once and fills while the user looks.
    void setFiles(const QList<ExifFileInfoPtr> &files);
    int fileCount() const { return int(m_paths.size()); }
    bool isFilling() const { return m_next < m_pending.size(); }

Q_SIGNALS:
    void filled();

public:
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    void appendSlice();

    struct Row
    {
        int file; // into m_paths
        QString key;
        QString tag; // "Title (Group:Name)"
        QString onDisk;
        QString newValue;
        Kind kind;
        qint64 overLimit = 0;
    };

    QList<QString> m_paths;
    QList<QString> m_names;
    QList<Row> m_rows;
    QList<ExifFileInfoPtr> m_pending;
    qsizetype m_next = 0;
    QTimer *m_fill = nullptr;
};

// Keeps the rows whose file and tag contain the two filter texts, case aside.
class ReviewChangesFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setFileFilter(const QString &text);
    void setTagFilter(const QString &text);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    QString m_file;
    QString m_tag;
};
