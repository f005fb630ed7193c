#include "catalogue/stringtables.h"

#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class TestStringTables : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString m_skipReason;

    bool compile(const QString &name, const QByteArray &messages)
    {
        const QString base = m_dir.filePath(name);
        QFile file(base + QStringLiteral(".ts"));
        const QByteArray ts = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                              "<TS version=\"2.1\"><context><name>T</name>" +
                              messages + "</context></TS>\n";
        if (!file.open(QIODevice::WriteOnly) || file.write(ts) != ts.size())
            return false;
        file.close();
        const QString lrelease =
            QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/lrelease");
        return QProcess::execute(lrelease, {QStringLiteral("-silent"), base + u".ts",
                                            QStringLiteral("-qm"), base + u".qm"}) == 0;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        if (!QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::BinariesPath) +
                               QStringLiteral("/lrelease"))) {
            m_skipReason = QStringLiteral("lrelease is not installed");
            return;
        }
        QVERIFY(compile(QStringLiteral("table_en"),
                        "<message><source>both</source><translation>Both en</translation>"
                        "</message><message><source>enOnly</source><translation>En only"
                        "</translation></message><message><source>empty</source><translation>"
                        "</translation></message><message><source>unfinished</source>"
                        "<translation type=\"unfinished\"></translation></message>"
                        "<message><source>draft</source><translation type=\"unfinished\">"
                        "Draft</translation></message>"));
        QVERIFY(compile(QStringLiteral("table_de"),
                        "<message><source>both</source><translation>Beide</translation>"
                        "</message><message><source>deEmpty</source><translation></translation>"
                        "</message>"));
        QVERIFY(compile(QStringLiteral("other_en"),
                        "<message><source>other</source><translation>Other</translation>"
                        "</message>"));
    }

    // lrelease keeps a finished empty translation (as a null string) and drops an unfinished
    // empty one: that is what lets a table tell an empty entry from a missing one.
    void lookup_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("present");
        QTest::addColumn<QString>("expected");
        const QLocale en(QLocale::English, QLocale::UnitedStates);
        const QLocale de(QLocale::German, QLocale::Germany);
        const QLocale fr(QLocale::French, QLocale::France);
        QTest::newRow("en entry") << en << QStringLiteral("both") << true
                                  << QStringLiteral("Both en");
        QTest::newRow("empty entry is present")
            << en << QStringLiteral("empty") << true << QStringLiteral("");
        QTest::newRow("unfinished empty is absent")
            << en << QStringLiteral("unfinished") << false << QString();
        QTest::newRow("unfinished with text is kept")
            << en << QStringLiteral("draft") << true << QStringLiteral("Draft");
        QTest::newRow("missing key") << en << QStringLiteral("nope") << false << QString();
        QTest::newRow("de overrides en")
            << de << QStringLiteral("both") << true << QStringLiteral("Beide");
        QTest::newRow("de falls back to en")
            << de << QStringLiteral("enOnly") << true << QStringLiteral("En only");
        QTest::newRow("de empty hides nothing")
            << de << QStringLiteral("deEmpty") << true << QStringLiteral("");
        QTest::newRow("file without de uses en")
            << de << QStringLiteral("other") << true << QStringLiteral("Other");
        QTest::newRow("unknown language uses en")
            << fr << QStringLiteral("both") << true << QStringLiteral("Both en");
    }

    void lookup()
    {
        if (!m_skipReason.isEmpty())
            QSKIP(qPrintable(m_skipReason));
        QFETCH(QLocale, locale);
        QFETCH(QString, key);
        QFETCH(bool, present);
        QFETCH(QString, expected);
        const StringTables tables(m_dir.path(), locale);
        const auto text = tables.lookup(QStringLiteral("T"), key);
        QCOMPARE(text.has_value(), present);
        if (present) {
            QCOMPARE(*text, expected);
            QVERIFY(!text->isNull());
        }
        QVERIFY(!tables.lookup(QStringLiteral("Other table"), key));
    }

    void localizedStringDefaults()
    {
        const QTemporaryDir empty;
        const StringTables none(empty.path(), QLocale(QLocale::English));
        QCOMPARE(none.localizedString(QStringLiteral("KEY")), QStringLiteral("KEY"));
        QCOMPARE(none.localizedString(QStringLiteral("KEY"), QStringLiteral("T"),
                                      QStringLiteral("Default")),
                 QStringLiteral("Default"));
        QCOMPARE(
            none.localizedString(QStringLiteral("KEY"), QStringLiteral("T"), QStringLiteral("")),
            QString());
    }

    void bundledTablesAreEmbedded()
    {
        StringTables &tables = StringTables::instance();
        tables.load(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(tables.lookup(QStringLiteral("CustomFields"), QStringLiteral("IFD0:Make")),
                 QStringLiteral("Camera Make"));
        QCOMPARE(tables.localizedString(QStringLiteral("IFD0:Make"), QStringLiteral("Fields")),
                 QStringLiteral("Make"));
        QCOMPARE(tables.localizedString(QStringLiteral("Tagsmith")), QStringLiteral("Tagsmith"));
        QVERIFY(!tables.lookup(QStringLiteral("Fields"), QStringLiteral("No:Such")));
    }
};

QTEST_GUILESS_MAIN(TestStringTables)
#include "tst_stringtables.moc"
