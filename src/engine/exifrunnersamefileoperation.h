#pragma once

#include "engine/errormessages.h"
#include "engine/exifrunneroperation.h"

#include <QList>
#include <QString>

// Stands in a batch for an operation on a file that an earlier operation of the batch already
// works on under another name: it runs nothing and tells its file why. Run twice, a save would
// shift the file's dates twice; run at once by the runner's two threads, one write would undo
// the other.
class ExifRunnerSameFileOperation : public ExifRunnerOperation
{
public:
    ExifRunnerSameFileOperation(ExifFileInfoPtr file, const QString &fileName,
                                const QString &firstName);

    QString fileName() const override { return m_errors->fileName(); }
    ExifFileInfoPtr file() const override { return m_file; }
    ErrorMessagesPtr errors() const override { return m_errors; }
    void run() override {}

    // The operations in order, the first on each file kept and each later one on the same file
    // (by device and inode, whatever the path) replaced by an ExifRunnerSameFileOperation.
    static QList<ExifRunnerOperationPtr>
    keepOnePerFile(const QList<ExifRunnerOperationPtr> &operations);

private:
    const ExifFileInfoPtr m_file;
    const ErrorMessagesPtr m_errors;
};
