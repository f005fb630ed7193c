#include "catalogue/xmlwriter.h"

#include "values/tagsmithexception.h"

namespace {

bool isAttributeNameChar(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= u'a' && u <= u'z') || (u >= u'A' && u <= u'Z') || (u >= u'0' && u <= u'9') ||
           u == u'-' || u == u'_';
}

// XML 1.0 cannot carry these even as character references.
bool isOutsideXmlCharacters(QChar c)
{
    const char16_t u = c.unicode();
    return (u < 0x20 && u != u'\t' && u != u'\n' && u != u'\r') || u == 0xFFFE || u == 0xFFFF;
}

QString encode(const QString &text, bool inAttribute)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            out += QStringLiteral("&amp;");
            break;
        case u'<':
            out += QStringLiteral("&lt;");
            break;
        case u'>':
            out += QStringLiteral("&gt;");
            break;
        // A reader folds a raw carriage return into a line feed, and in attribute values also
        // tabs and line feeds into blanks: references keep them as they were typed.
        case u'\r':
            out += QStringLiteral("&#13;");
            break;
        case u'"':
            out += inAttribute ? QStringLiteral("&quot;") : QStringLiteral("\"");
            break;
        case u'\n':
            out += inAttribute ? QStringLiteral("&#10;") : QStringLiteral("\n");
            break;
        case u'\t':
            out += inAttribute ? QStringLiteral("&#9;") : QStringLiteral("\t");
            break;
        default:
            if (!inAttribute && isOutsideXmlCharacters(c))
                out += QStringLiteral("<?%1 %2?>")
                           .arg(XMLWriter::CharacterInstruction)
                           .arg(c.unicode());
            else
                out += c;
        }
    }
    return out;
}

} // namespace

void XMLWriter::startElement(const QString &name)
{
    beforeWriteContent(ContentKind::Markup);
    m_levels.append(XMLLevelData{name, false});
    m_empty = true;
    writeIndent();
    m_output += u'<' + name;
}

void XMLWriter::endElementForceClose(bool force)
{
    if (m_levels.isEmpty())
        throw TagsmithException(TagsmithException::LogicError,
                                QStringLiteral("There is nothing to close."));
    const XMLLevelData level = m_levels.constLast();
    if (m_empty && !force) {
        m_output += QStringLiteral("/>");
    } else {
        if (m_empty)
            m_output += u'>';
        else if (m_elementInside)
            writeIndent();
        m_output += QStringLiteral("</") + level.name + u'>';
    }
    m_levels.removeLast();
    m_empty = false;
    m_elementInside = true;
}

void XMLWriter::endElementNamed(const QString &name)
{
    if (m_levels.isEmpty())
        throw TagsmithException(TagsmithException::LogicError,
                                QStringLiteral("There is nothing to close."));
    const QString &expected = m_levels.constLast().name;
    if (expected != name)
        throw TagsmithException(
            TagsmithException::LogicError,
            QStringLiteral("Invalid closing tag \"%1\". It should be: \"%2\"").arg(name, expected));
    endElementForceClose(false);
}

void XMLWriter::writeElement(const QString &name, const QString &content)
{
    startElement(name);
    writeContent(content);
    endElement();
}

void XMLWriter::writeAttribute(const QString &name, const QString &value)
{
    checkHaveElement();
    if (name.isEmpty())
        throw TagsmithException(TagsmithException::IllegalArgument,
                                QStringLiteral("Xml attribute cannot be empty"));
    for (const QChar c : name) {
        if (!isAttributeNameChar(c))
            throw TagsmithException(
                TagsmithException::IllegalArgument,
                QStringLiteral("\"%1\" is not a valid xml attribute name.").arg(name));
    }
    beforeWriteContent(ContentKind::Attribute);
    m_output += u' ' + name + QStringLiteral("=\"") + encodeAttribute(value) + u'"';
}

void XMLWriter::writeContent(const QString &text)
{
    if (text.isEmpty())
        return;
    checkHaveElement();
    beforeWriteContent(ContentKind::Text);
    m_output += encodeString(text);
}

void XMLWriter::writeComment(const QString &text)
{
    checkHaveElement();
    beforeWriteContent(ContentKind::Markup);
    writeIndent();
    m_output += QStringLiteral("<!--") + encodeString(text) + QStringLiteral("-->\n");
}

void XMLWriter::setIndent(int count)
{
    m_indent = count;
    m_indentSz = count > 0 ? QString(count, u' ') : QString();
}

QString XMLWriter::encodeString(const QString &text)
{
    return encode(text, false);
}

QString XMLWriter::encodeAttribute(const QString &text)
{
    return encode(text, true);
}

void XMLWriter::beforeWriteContent(ContentKind kind)
{
    if (kind == ContentKind::Markup && m_xmlTagEnabled && !m_headerWritten) {
        m_output += QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        m_headerWritten = true;
    }
    if (!m_levels.isEmpty() && kind != ContentKind::Attribute &&
        !m_levels.constLast().closedStart) {
        m_output += u'>';
        m_levels.last().closedStart = true;
    }
    m_elementInside = m_empty = (kind != ContentKind::Text);
}

void XMLWriter::writeIndent()
{
    m_output += u'\n';
    for (qsizetype i = 1; i < m_levels.size(); ++i)
        m_output += m_indentSz;
}

void XMLWriter::checkHaveElement() const
{
    if (m_levels.isEmpty())
        throw TagsmithException(TagsmithException::LogicError,
                                QStringLiteral("Write element at first"));
}
