#pragma once

#include "engine/exiffileinfo.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

#include <optional>

// The details of one "ExifFilesUpdate": files whose values changed outside the receiver's own row.
struct ExifFilesUpdate
{
    QString xmlName;
    QList<ExifFileInfoPtr> changedFiles;
    // Absent for a removal.
    std::optional<QString> newValue;
    QList<ExifFileInfoPtr> exifFiles;
    // Who posted it, so a receiver can ignore its own posts; compared by address only.
    const void *source = nullptr;
};

Q_DECLARE_METATYPE(ExifFilesUpdate)

// The edits of one window's files: everything that changes their values outside a row of its
// own (the form's rows, the date panel, the map, geotagging, pasting) posts here, and the file
// list, the map and dependent rows follow. Delivery is synchronous, in the session's thread:
// when post() returns every receiver has seen the change.
class EditSession : public QObject
{
    Q_OBJECT

public:
    static inline const QString NotificationName = QStringLiteral("ExifFilesUpdate");

    explicit EditSession(QObject *parent = nullptr);

    void post(const ExifFilesUpdate &update);
    void post(const QString &xmlName, const QList<ExifFileInfoPtr> &changedFiles,
              const std::optional<QString> &newValue, const QList<ExifFileInfoPtr> &exifFiles,
              const void *source);

Q_SIGNALS:
    void exifFilesUpdated(const ExifFilesUpdate &update);
};
