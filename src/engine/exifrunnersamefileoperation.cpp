#include "engine/exifrunnersamefileoperation.h"

#include "engine/exiftoolsession.h"
#include "engine/filekey.h"

#include <QCoreApplication>
#include <QHash>

ExifRunnerSameFileOperation::ExifRunnerSameFileOperation(ExifFileInfoPtr file,
                                                         const QString &fileName,
                                                         const QString &firstName)
    : m_file(std::move(file))
    , m_errors(std::make_shared<ErrorMessages>(fileName))
{
    m_errors->addError(
        QCoreApplication::translate("ExifRunnerSameFileOperation",
                                    "%1 is the same file as %2, which this batch already "
                                    "changes, so it was not changed a second time.")
            .arg(fileName, firstName));
}

QList<ExifRunnerOperationPtr>
ExifRunnerSameFileOperation::keepOnePerFile(const QList<ExifRunnerOperationPtr> &operations)
{
    QList<ExifRunnerOperationPtr> kept;
    kept.reserve(operations.size());
    QHash<FileKey, QString> firstNames;
    for (const ExifRunnerOperationPtr &operation : operations) {
        const QString name = operation->fileName();
        const FileKey key = FileKey::of(name);
        const auto first = firstNames.constFind(key);
        if (first == firstNames.cend()) {
            firstNames.insert(key, name);
            kept.append(operation);
        } else {
            kept.append(std::make_shared<ExifRunnerSameFileOperation>(operation->file(), name,
                                                                      first.value()));
        }
    }
    return kept;
}
