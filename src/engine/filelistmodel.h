#pragma once

#include "engine/exiffileinfo.h"

#include <QAbstractListModel>
#include <QHash>
#include <QList>
#include <QString>

#include <utility>

// The main window's files, one row each, in list order. Exposes what the list's cell draws
// through its roles; the modified flag is asked of the change model on every read,
// so a row never shows a stale mark.
class FileListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    // The title is the display text, else the file's name; the subtitle is the folder of the
    // path unless given.
    enum Role {
        PathRole = Qt::UserRole + 400,
        SubtitleRole,
        ErrorTextRole,
        HasErrorRole,
        ModifiedRole,
        // The name of the XMP sidecar read with the file, shown after its name; empty if none.
        SidecarRole,
    };

    explicit FileListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    const QList<ExifFileInfoPtr> &files() const { return m_files; }
    ExifFileInfoPtr fileAt(int row) const;
    // -1 when no record has this path.
    int rowOf(const QString &path) const;
    bool hasFileInList(const QString &path) const { return rowOf(path) >= 0; }

    void setFiles(const QList<ExifFileInfoPtr> &files);
    void appendFiles(const QList<ExifFileInfoPtr> &files);
    void replaceFile(int row, const ExifFileInfoPtr &file);
    // Rows in any order; duplicates and rows out of range are ignored.
    void removeRowsAt(QList<int> rows);
    // Repaints the rows of these records (their values or modified state changed).
    void refreshFiles(const QList<ExifFileInfoPtr> &files);
    void refreshAll();

    static QString errorText();
    // The rows as runs of neighbours (first, last), in order; duplicates are merged.
    static QList<std::pair<int, int>> rowRuns(QList<int> rows);

private:
    // Path -> row, built on first use after a change: lists of thousands of files are looked up
    // once per file added, saved or refreshed.
    const QHash<QString, int> &rows() const;

    QList<ExifFileInfoPtr> m_files;
    mutable QHash<QString, int> m_rows;
    mutable bool m_rowsValid = false;
};
