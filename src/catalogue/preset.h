#pragma once

#include <QMap>
#include <QSet>
#include <QString>

#include <memory>

// One preset: tag values to write and tags to delete, applied to any number of files.
class Preset
{
public:
    Preset() = default;
    Preset(QString identifier, QString name)
        : m_name(std::move(name))
        , m_identifier(std::move(identifier))
    {
    }

    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    // "configuration-N"; also the preset's key in the settings store, so it never changes.
    const QString &identifier() const { return m_identifier; }
    void setIdentifier(const QString &identifier) { m_identifier = identifier; }

    // Tag key -> value text to write.
    QMap<QString, QString> &changedValues() { return m_changedValues; }
    const QMap<QString, QString> &changedValues() const { return m_changedValues; }
    QSet<QString> &removedValues() { return m_removedValues; }
    const QSet<QString> &removedValues() const { return m_removedValues; }

    friend bool operator==(const Preset &, const Preset &) = default;

private:
    QString m_name;
    QString m_identifier;
    QMap<QString, QString> m_changedValues;
    QSet<QString> m_removedValues;
};

// Shared because the presets window edits the very object the store holds.
using PresetPtr = std::shared_ptr<Preset>;
