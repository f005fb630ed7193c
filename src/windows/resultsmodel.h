#pragma once

#include "engine/exifoperationstatus.h"

#include <QAbstractItemModel>
#include <QList>
#include <QString>

// The results of one batch as a two-level tree: files (sorted by path) and, under each, its
// messages in the order they came. No widgets, so the window's logic is tested headless.
class ResultsModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Roles {
        // 3 error, 2 warning, anything else none: picks the line's icon.
        LevelRole = Qt::UserRole + 1,
        IsFileRole,
        FileNameRole,
    };

    explicit ResultsModel(QObject *parent = nullptr);

    // Replaces what is shown. Null entries are skipped.
    void displayErrors(const QList<ErrorMessagesPtr> &files);
    const QList<ErrorMessagesPtr> &files() const { return m_files; }

    // "No errors or warnings" until the first batch is shown.
    QString summary() const { return m_summary; }
    static QString summaryForFiles(const QList<ErrorMessagesPtr> &files);

    static QString formatErrorForErrorMessage(const ErrorMessage &message);
    static QString formatErrorForErrorMessages(const ErrorMessages &messages);
    static int levelOfFile(const ErrorMessages &messages);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    // File rows carry 0, message rows their file's row + 1.
    static constexpr quintptr FileLevelId = 0;

    QList<ErrorMessagesPtr> m_files;
    QString m_summary;
};
