#include "catalogue/stringtables.h"

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestStringTables : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    bool compile(const char *name, const QByteArray &messages)
    {
        const QString base = m_dir.filePath(QString::fromLatin1(name));
        QFile file(base + u".ts");
        const QByteArray ts = "<?xml version=\"1.0\"?><TS version=\"2.1\"><context><name>T</name>" +
                              messages + "</context></TS>";
        if (!file.open(QIODevice::WriteOnly) || file.write(ts) != ts.size())
            return false;
        file.close();
        const QString lrelease = QLibraryInfo::path(QLibraryInfo::BinariesPath) + u"/lrelease";
        return QProcess::execute(lrelease, {QStringLiteral("-silent"), base + u".ts",
                                            QStringLiteral("-qm"), base + u".qm"}) == 0;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const auto message = [](const char *key, const char *text,
                                const char *type = nullptr) -> QByteArray {
            return "<message><source>" + QByteArray(key) + "</source><translation" +
                   (type ? " type=\"" + QByteArray(type) + '"' : QByteArray()) + '>' + text +
                   "</translation></message>";
        };
        if (!compile("table_en", message("both", "Both en") + message("enOnly", "En only") +
                                     message("empty", "") + message("draft", "", "unfinished") +
                                     message("draftText", "Draft", "unfinished")) ||
            !compile("table_de", message("both", "Beide") + message("deEmpty", "")) ||
            !compile("other_en", message("other", "Other"))) {
            QSKIP("lrelease could not compile the test tables");
        }
    }

    // lrelease keeps a finished empty translation (as a null string) and drops an unfinished
    // empty one: that is what lets a table tell an empty entry from a missing one.
    void lookup_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("key");
        QTest::addColumn<std::optional<QString>>("expected");
        const auto row = [](const char *name, QLocale::Language language, const char *key,
                            std::optional<QString> expected) {
            QTest::newRow(name) << QLocale(language) << QString::fromLatin1(key) << expected;
        };
        const std::nullopt_t absent = std::nullopt;
        row("entry", QLocale::English, "both", u"Both en"_s);
        row("empty entry is present", QLocale::English, "empty", QStringLiteral(""));
        row("unfinished empty is absent", QLocale::English, "draft", absent);
        row("unfinished with text is kept", QLocale::English, "draftText", u"Draft"_s);
        row("missing key", QLocale::English, "nope", absent);
        row("de overrides en", QLocale::German, "both", u"Beide"_s);
        row("de falls back to en", QLocale::German, "enOnly", u"En only"_s);
        row("de empty entry", QLocale::German, "deEmpty", QStringLiteral(""));
        row("table without de uses en", QLocale::German, "other", u"Other"_s);
        row("unknown language uses en", QLocale::French, "both", u"Both en"_s);
    }

    void lookup()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, key);
        QFETCH(std::optional<QString>, expected);
        const StringTables tables(m_dir.path(), locale);
        const auto text = tables.lookup(QStringLiteral("T"), key);
        QCOMPARE(text, expected);
        QVERIFY(!text || !text->isNull());
        QCOMPARE(tables.lookup(QStringLiteral("Other table"), key), std::nullopt);
        QCOMPARE(tables.localizedString(key, QStringLiteral("T")), text.value_or(key));
        QCOMPARE(tables.localizedString(key, QStringLiteral("T"), QStringLiteral("D")),
                 text.value_or(u"D"_s));
    }

    void bundledTablesAreEmbedded()
    {
        StringTables &tables = StringTables::instance();
        tables.load(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(tables.localizedString(u"IFD0:Make"_s, u"CustomFields"_s), u"Camera Make"_s);
        QCOMPARE(tables.localizedString(u"IFD0:Make"_s, u"Fields"_s), u"Make"_s);
        QCOMPARE(tables.localizedString(u"Tagsmith"_s), u"Tagsmith"_s);
    }
};

QTEST_GUILESS_MAIN(TestStringTables)
#include "tst_stringtables.moc"
