#include "catalogue/presetstore.h"

#include "catalogue/xmlwriter.h"
#include "values/logging.h"
#include "values/tagsmithexception.h"
#include "values/usersettings.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace {

const QString configurationElement = QStringLiteral("configuration");
const QString modificationElement = QStringLiteral("field-modification");
const QString removeElement = QStringLiteral("field-remove");
const QString nameAttribute = QStringLiteral("name");
const QString identifierAttribute = QStringLiteral("identifier");

// QSettings reads an unquoted INI value holding commas back as a list.
QString storedText(const QVariant &value)
{
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(u',');
    return value.toString();
}

// XML cannot carry control characters in an attribute at all, and a document holding one would
// not load, losing the preset. A name is one line of text: they are dropped from it instead.
QString storableName(QString name)
{
    name.removeIf(
        [](QChar c) { return c.unicode() < 0x20 && c != u'\t' && c != u'\n' && c != u'\r'; });
    return name;
}

} // namespace

PresetStore::PresetStore(QObject *parent)
    : QObject(parent)
{
}

PresetStore &PresetStore::instance()
{
    static PresetStore settings;
    return settings;
}

void PresetStore::initializeSettings()
{
    const QString names = storedText(UserSettings::value(SettingsNamesKey));
    if (names.isEmpty())
        return;
    for (const QString &identifier : names.split(u',')) {
        const QString document = storedText(UserSettings::value(identifier));
        if (document.isEmpty())
            continue;
        if (PresetPtr configuration = loadConfigurationFromXml(document))
            m_configurations.insert(identifier, configuration);
        else
            qCWarning(lcTagsmith) << "Skipping the unreadable preset" << identifier;
    }
}

PresetPtr PresetStore::loadConfiguration(const QString &identifier) const
{
    return m_configurations.value(identifier);
}

void PresetStore::saveConfiguration(const PresetPtr &configuration)
{
    if (!m_configurations.contains(configuration->identifier())) {
        m_configurations.insert(configuration->identifier(), configuration);
        writeConfigurationNames();
    }
    UserSettings::setValue(configuration->identifier(), configurationToXml(*configuration));
    fireConfigurationChangeEvent();
}

void PresetStore::removeConfigurationIdentifier(const QString &identifier)
{
    m_configurations.remove(identifier);
    writeConfigurationNames();
    UserSettings::remove(identifier);
    fireConfigurationChangeEvent();
}

QString PresetStore::findUnusedNewIdentifier() const
{
    for (qint64 n = 0;; ++n) {
        const QString identifier = QStringLiteral("configuration-%1").arg(n);
        if (!m_configurations.contains(identifier))
            return identifier;
    }
}

QMetaObject::Connection PresetStore::onPresetsChanged(const QObject *context,
                                                      std::function<void()> receiver)
{
    return connect(this, &PresetStore::presetsChanged, context, [receiver = std::move(receiver)] {
        runLoggingExceptions(receiver, [](const QString &name, const QString &reason) {
            return QStringLiteral("Caught exception of name: %1 reason: %2").arg(name, reason);
        });
    });
}

QString PresetStore::configurationToXml(const Preset &configuration)
{
    XMLWriter writer;
    writer.startElement(configurationElement);
    writer.writeAttribute(nameAttribute, storableName(configuration.name()));
    writer.writeAttribute(identifierAttribute, configuration.identifier());
    for (auto it = configuration.changedValues().cbegin();
         it != configuration.changedValues().cend(); ++it) {
        writer.startElement(modificationElement);
        writer.writeAttribute(nameAttribute, it.key());
        writer.writeContent(it.value());
        writer.endElementNamed(modificationElement);
    }
    QStringList removed(configuration.removedValues().cbegin(),
                        configuration.removedValues().cend());
    std::sort(removed.begin(), removed.end());
    for (const QString &key : std::as_const(removed)) {
        writer.startElement(removeElement);
        writer.writeAttribute(nameAttribute, key);
        writer.endElementNamed(removeElement);
    }
    writer.endElementNamed(configurationElement);
    return writer.output();
}

PresetPtr PresetStore::loadConfigurationFromXml(const QString &text)
{
    QXmlStreamReader reader(text);
    PresetPtr configuration;
    QString fieldName;
    QString textBuffer;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            textBuffer.clear();
            const auto attributes = reader.attributes();
            const auto name = reader.name();
            if (name == configurationElement) {
                configuration =
                    std::make_shared<Preset>(attributes.value(identifierAttribute).toString(),
                                             attributes.value(nameAttribute).toString());
            } else if (!configuration) {
                // Fields outside a preset have nowhere to go.
            } else if (name == modificationElement) {
                fieldName = attributes.value(nameAttribute).toString();
            } else if (name == removeElement) {
                configuration->removedValues().insert(attributes.value(nameAttribute).toString());
            }
            break;
        }
        case QXmlStreamReader::Characters:
            textBuffer += reader.text();
            break;
        case QXmlStreamReader::ProcessingInstruction:
            if (reader.processingInstructionTarget() == XMLWriter::CharacterInstruction)
                textBuffer += QChar(reader.processingInstructionData().toUShort());
            break;
        case QXmlStreamReader::EndElement:
            if (configuration && reader.name() == modificationElement)
                configuration->changedValues().insert(fieldName, textBuffer);
            textBuffer.clear();
            break;
        default:
            break;
        }
    }
    if (reader.hasError()) {
        qCWarning(lcTagsmith).noquote()
            << QStringLiteral("Preset document unreadable at line %1, column %2: %3")
                   .arg(reader.lineNumber())
                   .arg(reader.columnNumber())
                   .arg(reader.errorString());
        return {};
    }
    return configuration;
}

void PresetStore::writeConfigurationNames()
{
    UserSettings::setValue(SettingsNamesKey, m_configurations.keys().join(u','));
}

void PresetStore::fireConfigurationChangeEvent()
{
    Q_EMIT presetsChanged();
}
