#include "catalogue/stringtables.h"

#include "values/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QtEndian>

namespace {

// QTranslator answers a null text both for a missing entry and for an entry whose translation
// is empty (lrelease stores it as a null string), so the messages are read from the .qm here.
class QmReader
{
public:
    explicit QmReader(QByteArray data)
        : m_data(std::move(data))
    {
    }

    // Calls add(context, source, translation) per message; false when the file is damaged.
    template <typename Add> bool read(Add add)
    {
        static const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
        if (!m_data.startsWith(magic))
            return false;
        m_pos = magic.size();
        while (m_pos < m_data.size()) {
            const quint8 tag = byte();
            const quint32 length = word();
            if (!m_ok || length > quint32(m_data.size() - m_pos))
                return false;
            const qsizetype end = m_pos + length;
            if (tag == MessagesSection && !readMessages(end, add))
                return false;
            m_pos = end;
        }
        return m_ok;
    }

private:
    enum : quint8 { MessagesSection = 0x69 };
    enum : quint8 {
        TagEnd = 1,
        TagTranslation = 3,
        TagObsolete1 = 5,
        TagSourceText = 6,
        TagContext = 7,
        TagComment = 8,
        TagObsolete2 = 9,
    };

    template <typename Add> bool readMessages(qsizetype end, Add add)
    {
        while (m_pos < end) {
            std::optional<QString> translation;
            QByteArray context;
            QByteArray source;
            bool hasSource = false;
            for (quint8 tag = byte(); m_ok && tag != TagEnd; tag = byte()) {
                switch (tag) {
                case TagTranslation: {
                    const QString text = utf16();
                    if (!translation) // later ones are plural forms
                        translation = text.isNull() ? QStringLiteral("") : text;
                    break;
                }
                case TagSourceText:
                    source = bytes();
                    hasSource = true;
                    break;
                case TagContext:
                    context = bytes();
                    break;
                case TagComment:
                    bytes();
                    break;
                case TagObsolete1:
                    m_pos += 4;
                    break;
                case TagObsolete2:
                    break;
                default:
                    return false;
                }
            }
            if (!m_ok || m_pos > end)
                return false;
            // Files compressed to hashes only carry no source text to look up by.
            if (translation && hasSource)
                add(QString::fromUtf8(context), QString::fromUtf8(source), *translation);
        }
        return true;
    }

    quint8 byte()
    {
        if (m_pos + 1 > m_data.size()) {
            m_ok = false;
            return TagEnd;
        }
        return quint8(m_data.at(m_pos++));
    }

    quint32 word()
    {
        if (m_pos + 4 > m_data.size()) {
            m_ok = false;
            return 0;
        }
        const quint32 value = qFromBigEndian<quint32>(m_data.constData() + m_pos);
        m_pos += 4;
        return value;
    }

    QByteArray bytes()
    {
        const quint32 length = word();
        if (!m_ok || length == 0xffffffff)
            return {};
        if (length > quint32(m_data.size() - m_pos)) {
            m_ok = false;
            return {};
        }
        const QByteArray result = m_data.mid(m_pos, length);
        m_pos += length;
        return result;
    }

    QString utf16()
    {
        const quint32 length = word();
        if (!m_ok || length == 0xffffffff)
            return {};
        if ((length & 1) || length > quint32(m_data.size() - m_pos)) {
            m_ok = false;
            return {};
        }
        QString text(length / 2, Qt::Uninitialized);
        qFromBigEndian<char16_t>(m_data.constData() + m_pos, length / 2, text.data());
        m_pos += length;
        return text;
    }

    QByteArray m_data;
    qsizetype m_pos = 0;
    bool m_ok = true;
};

} // namespace

StringTables &StringTables::instance()
{
    static StringTables tables;
    return tables;
}

StringTables::StringTables()
{
    load(QLocale());
}

StringTables::StringTables(const QString &directory, const QLocale &locale)
{
    loadDirectory(directory, locale);
}

void StringTables::load(const QLocale &locale)
{
    loadDirectory(QStringLiteral(":/i18n"), locale);
}

void StringTables::loadDirectory(const QString &directory, const QLocale &locale)
{
    m_tables.clear();
    static const QRegularExpression languageSuffix(
        QStringLiteral("^(.+?)_[a-z]{2,3}(?:_[A-Za-z0-9]+)*$"));
    QSet<QString> baseNames;
    const QStringList files =
        QDir(directory).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const auto match = languageSuffix.match(QFileInfo(file).completeBaseName());
        if (match.hasMatch())
            baseNames.insert(match.captured(1));
    }
    QStringList names(baseNames.begin(), baseNames.end());
    names.sort();

    // The locale's files first, so that the English ones only fill the gaps.
    QStringList fallbacks;
    for (const QString &name : std::as_const(names)) {
        QTranslator resolver; // only for its choice of file by the locale's UI languages
        QString chosen;
        if (resolver.load(locale, name, QStringLiteral("_"), directory, QStringLiteral(".qm"))) {
            chosen = resolver.filePath();
            addFile(chosen);
        }
        const QString english = QDir(directory).filePath(name + QStringLiteral("_en.qm"));
        if (english != chosen && QFileInfo::exists(english))
            fallbacks << english;
    }
    for (const QString &path : std::as_const(fallbacks))
        addFile(path);
}

void StringTables::installPluralForms()
{
    static QTranslator *translator = nullptr;
    if (translator || !QCoreApplication::instance())
        return;
    translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QStringLiteral(":/i18n/plurals_en.qm")))
        QCoreApplication::installTranslator(translator);
    else
        qCWarning(lcTagsmith) << "The plural forms of the texts are missing";
}

bool StringTables::addFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcTagsmith).noquote() << QStringLiteral("Cannot read string table %1").arg(path);
        return false;
    }
    const bool ok =
        QmReader(file.readAll())
            .read([this](const QString &table, const QString &key, const QString &text) {
                auto &entries = m_tables[table];
                if (!entries.contains(key))
                    entries.insert(key, text);
            });
    if (!ok)
        qCWarning(lcTagsmith).noquote() << QStringLiteral("Damaged string table %1").arg(path);
    return ok;
}

std::optional<QString> StringTables::lookup(const QString &table, const QString &key) const
{
    const auto tableIt = m_tables.constFind(table);
    if (tableIt == m_tables.cend())
        return std::nullopt;
    const auto it = tableIt->constFind(key);
    if (it == tableIt->cend())
        return std::nullopt;
    return *it;
}

QString StringTables::localizedString(const QString &key, const QString &table,
                                      const QString &defaultValue) const
{
    if (auto text = lookup(table, key))
        return *text;
    return defaultValue.isNull() ? key : defaultValue;
}

QString localized(const QString &key)
{
    return StringTables::instance().localizedString(key);
}

QString localized(const char *key)
{
    return localized(QString::fromUtf8(key));
}
