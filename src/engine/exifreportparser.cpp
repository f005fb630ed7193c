#include "engine/exifreportparser.h"

namespace {
const QString descriptionElement = QStringLiteral("rdf:Description");
const QString listItemElement = QStringLiteral("rdf:li");
const QString bagElement = QStringLiteral("rdf:Bag");
const QString seqElement = QStringLiteral("rdf:Seq");
const QString altElement = QStringLiteral("rdf:Alt");
const QString parseTypeAttribute = QStringLiteral("rdf:parseType");
const QString resourceParseType = QStringLiteral("Resource");
const QString fileNameElement = QStringLiteral("System:FileName");
const QString directoryElement = QStringLiteral("System:Directory");
} // namespace

ExifReportParser::ExifReportParser()
{
    // Element names must arrive as "IFD0:Make"; ExifTool's prefixes are not ours to resolve.
    m_reader.setNamespaceProcessing(false);
}

void ExifReportParser::addData(const QByteArray &chunk)
{
    if (m_failed || chunk.isEmpty())
        return;
    m_reader.addData(chunk);
    readAvailable();
}

QHash<QString, TagDictionary> ExifReportParser::finish()
{
    QHash<QString, TagDictionary> result = std::move(m_filesDictionary);
    m_reader.clear();
    m_reader.setNamespaceProcessing(false);
    m_failed = false;
    m_recordCount = 0;
    m_filesDictionary.clear();
    m_currentParserDictionary.clear();
    m_currentElementName.clear();
    m_currentDirName.clear();
    m_currentFileName.clear();
    m_textBuffer.clear();
    m_hasTextBuffer = false;
    m_parsePosition = 0;
    return result;
}

QHash<QString, TagDictionary> ExifReportParser::parse(const QByteArray &report)
{
    ExifReportParser parser;
    parser.addData(report);
    return parser.finish();
}

void ExifReportParser::readAvailable()
{
    while (!m_reader.atEnd()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            handleStart(m_reader.qualifiedName(), m_reader.attributes());
            break;
        case QXmlStreamReader::EndElement:
            handleEnd(m_reader.qualifiedName());
            break;
        case QXmlStreamReader::Characters:
            if (m_hasTextBuffer)
                m_textBuffer += m_reader.text();
            // Only a member's text: a plain tag's is the buffer's.
            if (m_frames.size() > 1 && m_frames.constLast().value.kind == StructValue::Kind::Text)
                m_frames.last().value.text += m_reader.text();
            break;
        case QXmlStreamReader::Invalid:
            if (m_reader.error() == QXmlStreamReader::PrematureEndOfDocumentError)
                return; // wait for the next chunk
            m_failed = true;
            return;
        default:
            break;
        }
    }
}

void ExifReportParser::handleStart(QStringView name, const QXmlStreamAttributes &attributes)
{
    const bool resource = attributes.value(parseTypeAttribute) == resourceParseType;
    if (name == descriptionElement) {
        m_currentParserDictionary = TagDictionary();
        m_parsePosition = 1;
    } else if (m_parsePosition == 1) {
        m_parsePosition = 2;
        m_currentElementName = name.toString();
        m_frames.clear();
        m_frames.append(Frame{});
        m_isStructure = resource;
        if (resource)
            m_frames.last().value.kind = StructValue::Kind::Struct;
    } else if (m_parsePosition == 2) {
        if (name == bagElement || name == seqElement || name == altElement) {
            m_frames.last().value.kind = StructValue::Kind::List;
        } else {
            Frame frame;
            if (name != listItemElement) {
                // A member: its holder is a structure.
                m_frames.last().value.kind = StructValue::Kind::Struct;
                m_isStructure = true;
                frame.name = name.mid(name.indexOf(u':') + 1).toString();
            }
            if (resource) {
                frame.value.kind = StructValue::Kind::Struct;
                m_isStructure = true;
            }
            m_frames.append(std::move(frame));
        }
    }
    m_textBuffer.clear();
    m_hasTextBuffer = true;
}

void ExifReportParser::handleEnd(QStringView name)
{
    if (name == descriptionElement) {
        // A record without its path parts can match no file, so it is not kept.
        if (!m_currentDirName.isNull() && !m_currentFileName.isNull()) {
            const QString path = m_currentDirName + QLatin1Char('/') + m_currentFileName;
            ++m_recordCount;
            if (m_recordHandler)
                m_recordHandler(path, std::move(m_currentParserDictionary));
            else
                m_filesDictionary.insert(path, m_currentParserDictionary);
        }
        m_currentParserDictionary = TagDictionary();
        m_currentDirName = QString();
        m_currentFileName = QString();
        m_parsePosition = 0;
    } else if (name == fileNameElement) {
        m_currentFileName = m_hasTextBuffer ? m_textBuffer : QString();
    } else if (name == directoryElement) {
        m_currentDirName = m_hasTextBuffer ? m_textBuffer : QString();
    }

    if (m_parsePosition == 2 && !m_frames.isEmpty() && name != bagElement && name != seqElement &&
        name != altElement) {
        Frame done = m_frames.takeLast();
        if (m_frames.isEmpty()) {
            if (m_isStructure)
                m_currentParserDictionary.insert(m_currentElementName, done.value.serialized());
        } else if (m_frames.constLast().value.kind == StructValue::Kind::List) {
            m_frames.last().value.items.append(std::move(done.value));
        } else {
            m_frames.last().value.members.append({std::move(done.name), std::move(done.value)});
        }
    }
    if (m_parsePosition == 2 && m_isStructure) {
        if (name == m_currentElementName) {
            m_parsePosition = 1;
            m_currentElementName = QString();
        }
    } else if (m_parsePosition == 2) {
        if (name == listItemElement) {
            QString item = m_hasTextBuffer ? m_textBuffer : QString();
            item.replace(QLatin1Char(','), QStringLiteral("\\,"));
            auto existing = m_currentParserDictionary.find(m_currentElementName);
            if (existing != m_currentParserDictionary.end())
                *existing += QLatin1Char(',') + item;
            else
                m_currentParserDictionary.insert(m_currentElementName, item);
        } else if (name == m_currentElementName) {
            // A list tag's own buffer is null here, so its joined items stay as they are.
            if (m_hasTextBuffer && !m_textBuffer.isEmpty())
                m_currentParserDictionary.insert(m_currentElementName, m_textBuffer);
            m_parsePosition = 1;
            m_currentElementName = QString();
        }
    }
    m_textBuffer.clear();
    m_hasTextBuffer = false;
}
