#pragma once

#include <QList>
#include <QString>

// Streams one XML document into memory. The presets are stored in exactly this layout, so the
// quirks below (lazy ">" of start tags, a leading line feed, one blank per level from a fresh
// writer) are part of the stored format and must not be "fixed".
class XMLWriter
{
public:
    XMLWriter() = default;

    int currentLevel() const { return int(m_levels.size()); }

    void startElement(const QString &name);
    void endElement() { endElementForceClose(false); }
    // With force an empty element gets a start and an end tag instead of the short form.
    void endElementForceClose(bool force);
    void endElementNamed(const QString &name);
    void writeElement(const QString &name, const QString &content);
    void writeAttribute(const QString &name, const QString &value);
    void writeContent(const QString &text);
    void writeComment(const QString &text);
    void close() {}
    void flush() {}

    void setIndent(int count);
    int indent() const { return m_indent; }
    void setXmlTagEnabled(bool enabled) { m_xmlTagEnabled = enabled; }
    bool xmlTagEnabled() const { return m_xmlTagEnabled; }
    const QString &output() const { return m_output; }

    // Characters that XML 1.0 cannot hold are written in content as the processing instruction
    // <?tagsmith-char N?> with their code, so a value with a stray control character survives.
    static inline const QString CharacterInstruction = QStringLiteral("tagsmith-char");

    static QString encodeString(const QString &text);
    static QString encodeAttribute(const QString &text);

private:
    enum class ContentKind { Attribute = 0, Markup = 1, Text = 2 };

    struct XMLLevelData
    {
        QString name;
        bool closedStart = false;
    };

    void beforeWriteContent(ContentKind kind);
    void writeIndent();
    void checkHaveElement() const;

    QList<XMLLevelData> m_levels;
    QString m_output;
    bool m_empty = true;
    bool m_elementInside = false;
    // Deliberately out of step with m_indentSz until setIndent() is called.
    int m_indent = 2;
    QString m_indentSz = QStringLiteral(" ");
    bool m_xmlTagEnabled = false;
    bool m_headerWritten = false;
};
