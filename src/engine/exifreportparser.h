#pragma once

#include "engine/tagdictionary.h"
#include "values/structvalue.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringView>
#include <QXmlStreamReader>

#include <functional>

// Turns ExifTool's RDF/XML report ("-g1 -X") into one tag dictionary per file, keyed by
// "<System:Directory>/<System:FileName>" as ExifTool printed them. Fed in chunks as the output
// arrives, so a large batch is parsed while ExifTool is still reading files.
class ExifReportParser
{
public:
    ExifReportParser();

    using RecordHandler = std::function<void(const QString &path, TagDictionary record)>;

    // When set, each record is handed over as soon as it is complete instead of being kept
    // for finish(), so a reader can use it while ExifTool still works on the next files.
    void setRecordHandler(RecordHandler handler) { m_recordHandler = std::move(handler); }

    void addData(const QByteArray &chunk);
    // The records completed so far; a malformed report keeps those before the fault.
    // Resets the parser for the next report.
    QHash<QString, TagDictionary> finish();

    // Records completed so far in this report.
    qsizetype recordCount() const { return m_recordCount; }

    // True once the report turned out malformed; later data is ignored.
    bool hasFailed() const { return m_failed; }

    static QHash<QString, TagDictionary> parse(const QByteArray &report);

private:
    void readAvailable();
    void handleStart(QStringView name, const QXmlStreamAttributes &attributes);
    void handleEnd(QStringView name);

    QXmlStreamReader m_reader;
    RecordHandler m_recordHandler;
    qsizetype m_recordCount = 0;
    bool m_failed = false;
    QHash<QString, TagDictionary> m_filesDictionary;
    TagDictionary m_currentParserDictionary;
    QString m_currentElementName;
    QString m_currentDirName;
    QString m_currentFileName;
    QString m_textBuffer;
    // Characters are kept only between an element's start and the next end; a null buffer
    // drops them.
    bool m_hasTextBuffer = false;
    // 0 outside a record, 1 inside a record between tags, 2 inside a tag element.
    qint32 m_parsePosition = 0;
    // Inside a tag element: the values being built, outermost first. A tag whose value has
    // members (an XMP structure, or a list of them) is kept in ExifTool's serialized form.
    struct Frame
    {
        StructValue value;
        QString name;
    };
    QList<Frame> m_frames;
    bool m_isStructure = false;
};
