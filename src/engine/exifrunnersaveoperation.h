#pragma once

#include "engine/filerewriteoperation.h"
#include "engine/revertrecord.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class ExifField;

// Writes one file's pending edits with a single ExifTool run.
class ExifRunnerSaveOperation : public FileRewriteOperation
{
public:
    // Null for a file without edits: such a file gets no operation.
    static std::shared_ptr<ExifRunnerSaveOperation> create(ExifFileInfoPtr efi,
                                                           ExifOperationOption options);

    ExifRunnerSaveOperation(ExifFileInfoPtr efi, ExifOperationOption options);

    void run() override;
    FileReplacement *runUntilFlush() override;
    void runAfterFlush() override;
    void postProcessInMainThread() override;

    // What goes to the file itself; a raw file's XMP tags go to its sidecar instead.
    const TagDictionary &itemsToChange() const { return m_itemsToChange; }
    const QSet<QString> &itemsToRemove() const { return m_itemsToRemove; }
    // The XMP sidecar this save writes, or empty; sidecarCreated: it does not exist yet.
    const QString &sidecarPath() const { return m_sidecarPath; }
    bool createsSidecar() const { return m_createsSidecar; }
    const TagDictionary &sidecarItemsToChange() const { return m_sidecarChanges; }
    const QSet<QString> &sidecarItemsToRemove() const { return m_sidecarRemovals; }
    QSet<QString> gatherFieldsToRemove() const;

    // ExifTool's arguments for this file, up to but without "-o" and the paths. A value that
    // cannot be written as typed adds a message to failures and no argument.
    QStringList exifToolArguments(QStringList *failures) const;

    // Values in ExifTool's form, by the fields' representations. Values that cannot be
    // converted are left out and described in failures.
    static TagDictionary convertValuesToChange(const TagDictionary &changes,
                                               QStringList *failures = nullptr);
    // The number in en_US form with the field's decimals; nullopt when it does not parse.
    static std::optional<QString> formatNumberForExifTool(const QString &text,
                                                          const ExifField &field);
    static std::optional<QString> identifyMaker(const TagDictionary &values);
    static QStringList gatherExifToolArgumentsToChange(const TagDictionary &converted);
    static QStringList gatherExifToolArgumentsToRemove(const QSet<QString> &keys);
    // The name a key is written under: a language alternative's default language.
    static QString writtenForm(const QString &key);
    // The fixed options, without "-o" and the paths, which the write step adds.
    static QStringList otherExifFileArguments();

protected:
    void verifyWrittenValues(const TagDictionary &written, ErrorMessages &errors) override;

private:
    // Sidecar of a raw file (exifrunnersidecarsave.cpp).
    void routeToSidecar();
    bool writesFile() const { return !m_itemsToChange.isEmpty() || !m_itemsToRemove.isEmpty(); }
    QStringList sidecarArguments(QStringList *failures) const;
    // Writes the sidecar and, with the re-read option, puts its values over the file's in
    // result.reRead.
    void writeSidecar(ErrorMessages &errors, WriteResult &result);
    std::optional<TagDictionary> replaceSidecar(const QStringList &arguments,
                                                ErrorMessages &errors);
    std::optional<TagDictionary> createSidecar(const QStringList &arguments, ErrorMessages &errors);
    std::optional<TagDictionary> readSidecar(const QString &path, ErrorMessages &errors);

    bool readsBackAsWritten(const QString &key, const QString &value,
                            const TagDictionary &written) const;

    // Between runUntilFlush and runAfterFlush.
    ErrorMessagesPtr m_runErrors;
    std::optional<RevertEntry> m_revert;

    TagDictionary m_itemsToChange;
    QSet<QString> m_itemsToRemove;
    QString m_sidecarPath;
    bool m_createsSidecar = false;
    TagDictionary m_sidecarChanges;
    QSet<QString> m_sidecarRemovals;
};
