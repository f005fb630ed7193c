#include "catalogue/exifsettings.h"
#include "values/tagsmithexception.h"
#include "values/usersettings.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <stdexcept>

namespace {

class RecordingListener : public ExifSettingsListener
{
public:
    RecordingListener(QStringList *calls, QString name, bool throws = false)
        : m_calls(calls)
        , m_name(std::move(name))
        , m_throws(throws)
    {
    }
    void updateConfigurations() override
    {
        m_calls->append(m_name);
        if (m_throws)
            throw TagsmithException(TagsmithException::Invalid, QStringLiteral("listener broke"));
    }

private:
    QStringList *m_calls;
    QString m_name;
    bool m_throws;
};

ExifConfigurationPtr makePreset(const QString &identifier, const QString &name)
{
    return std::make_shared<ExifConfiguration>(identifier, name);
}

} // namespace

class TestExifSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void presetSurvivesReopeningTheStore_data();
    void presetSurvivesReopeningTheStore();
    void storesTheDocumentLayout();
    void corruptPresetIsSkippedAndOthersLoad();
    void missingEntryIsDroppedFromTheNames();
    void identifiersOfRemovedPresetsAreReused();
    void listenersAreToldInOrderEvenWhenOneThrows();

private:
    QTemporaryDir m_dir;
    int m_storeNumber = 0;
};

void TestExifSettings::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(m_dir.isValid());
}

void TestExifSettings::init()
{
    UserSettings::setStoreFile(m_dir.filePath(QStringLiteral("store-%1.ini").arg(++m_storeNumber)));
}

void TestExifSettings::cleanupTestCase()
{
    UserSettings::setStoreFile(QString());
}

void TestExifSettings::presetSurvivesReopeningTheStore_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");

    QTest::newRow("markup") << QStringLiteral("<b>") << QStringLiteral("XMP-dc:Title")
                            << QStringLiteral("<b>bold</b>");
    QTest::newRow("ampersand") << QStringLiteral("Tom & Jerry") << QStringLiteral("IPTC:Caption")
                               << QStringLiteral("Tom & Jerry &amp; co");
    QTest::newRow("quotes") << QStringLiteral("say \"hi\" it's") << QStringLiteral("IFD0:Artist")
                            << QStringLiteral("say \"hi\" it's");
    QTest::newRow("line breaks") << QStringLiteral("two\nlines\r\nand\ttab")
                                 << QStringLiteral("ExifIFD:UserComment")
                                 << QStringLiteral("first\nsecond\r\nthird\rfourth\t");
    QTest::newRow("non-Latin") << QStringLiteral("東京") << QStringLiteral("IPTC:City")
                               << QStringLiteral("東京 Ελλάδα Москва 🙂");
    QTest::newRow("date shift") << QStringLiteral("Shift") << QStringLiteral("ExifIFD:CreateDate")
                                << QStringLiteral("+1d2h");
    QTest::newRow("commas like a list")
        << QStringLiteral("a,b, c") << QStringLiteral("IPTC:Keywords")
        << QStringLiteral("one, two,three\\,four");
    QTest::newRow("control character")
        << QStringLiteral("Ctrl") << QStringLiteral("IPTC:City") << QStringLiteral("bell\x07here");
    QTest::newRow("empty value") << QStringLiteral("Empty") << QStringLiteral("IPTC:City")
                                 << QString();
}

void TestExifSettings::presetSurvivesReopeningTheStore()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    QFETCH(QString, value);

    ExifSettings store;
    const QString identifier = store.findUnusedNewIdentifier();
    auto preset = makePreset(identifier, name);
    preset->changedValues().insert(key, value);
    preset->changedValues().insert(QStringLiteral("IFD0:Make"), QStringLiteral("Canon"));
    preset->removedValues().insert(QStringLiteral("GPS:GPSLatitude"));
    preset->removedValues().insert(QStringLiteral("XMP-x:Odd\"Key"));
    store.saveConfiguration(preset);

    ExifSettings reopened;
    reopened.initializeSettings();
    QCOMPARE(reopened.configurations().keys(), QStringList{identifier});
    const ExifConfigurationPtr loaded = reopened.loadConfiguration(identifier);
    QVERIFY(loaded);
    QCOMPARE(loaded->name(), name);
    QCOMPARE(loaded->changedValues(), preset->changedValues());
    QCOMPARE(loaded->removedValues(), preset->removedValues());
    QVERIFY(*loaded == *preset);
}

void TestExifSettings::storesTheDocumentLayout()
{
    ExifSettings store;
    auto holiday = makePreset(QStringLiteral("configuration-3"), QStringLiteral("Holiday"));
    holiday->changedValues().insert(QStringLiteral("IPTC:City"), QStringLiteral("Rome"));
    holiday->removedValues().insert(QStringLiteral("GPS:GPSLatitude"));
    store.saveConfiguration(holiday);
    store.saveConfiguration(makePreset(QStringLiteral("configuration-0"), QStringLiteral("Bare")));

    const auto settings = UserSettings::openStore();
    QCOMPARE(settings->value(QStringLiteral("configuration-3")).toString(),
             QStringLiteral("\n<configuration name=\"Holiday\" identifier=\"configuration-3\">"
                            "\n <field-modification name=\"IPTC:City\">Rome</field-modification>"
                            "\n <field-remove name=\"GPS:GPSLatitude\"/>"
                            "\n</configuration>"));
    QCOMPARE(settings->value(QStringLiteral("configuration-0")).toString(),
             QStringLiteral("\n<configuration name=\"Bare\" identifier=\"configuration-0\"/>"));
    QCOMPARE(settings->value(ExifSettings::SettingsNamesKey).toString(),
             QStringLiteral("configuration-0,configuration-3"));
}

void TestExifSettings::corruptPresetIsSkippedAndOthersLoad()
{
    {
        const auto settings = UserSettings::openStore();
        settings->setValue(ExifSettings::SettingsNamesKey,
                           QStringLiteral("configuration-0,configuration-1,configuration-2"));
        settings->setValue(
            QStringLiteral("configuration-0"),
            QStringLiteral("\n<configuration name=\"A\" identifier=\"configuration-0\"/>"));
        settings->setValue(QStringLiteral("configuration-1"),
                           QStringLiteral("\n<configuration name=\"B\"><field-modification "
                                          "name=\"IPTC:City\">a<b</field-modification>"));
        settings->setValue(
            QStringLiteral("configuration-2"),
            QStringLiteral("\n<configuration name=\"C\" identifier=\"configuration-2\"/>"));
    }
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^Preset document unreadable")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                           "Skipping the unreadable preset.*configuration-1")));

    ExifSettings store;
    store.initializeSettings();
    QCOMPARE(store.configurations().keys(),
             (QStringList{QStringLiteral("configuration-0"), QStringLiteral("configuration-2")}));
    QCOMPARE(store.loadConfiguration(QStringLiteral("configuration-2"))->name(),
             QStringLiteral("C"));
}

void TestExifSettings::missingEntryIsDroppedFromTheNames()
{
    {
        const auto settings = UserSettings::openStore();
        settings->setValue(ExifSettings::SettingsNamesKey,
                           QStringLiteral("configuration-0,configuration-7"));
        // The document's own identifier does not matter: the listed one is the key.
        settings->setValue(QStringLiteral("configuration-0"),
                           QStringLiteral("\n<configuration name=\"A\" identifier=\"other\"/>"));
    }
    ExifSettings store;
    store.initializeSettings();
    QCOMPARE(store.configurations().keys(), QStringList{QStringLiteral("configuration-0")});

    store.saveConfiguration(makePreset(QStringLiteral("configuration-1"), QStringLiteral("B")));
    QCOMPARE(UserSettings::openStore()->value(ExifSettings::SettingsNamesKey).toString(),
             QStringLiteral("configuration-0,configuration-1"));
}

void TestExifSettings::identifiersOfRemovedPresetsAreReused()
{
    ExifSettings store;
    QCOMPARE(store.findUnusedNewIdentifier(), QStringLiteral("configuration-0"));
    for (int i = 0; i < 3; ++i)
        store.saveConfiguration(makePreset(store.findUnusedNewIdentifier(), QStringLiteral("P")));
    store.removeConfigurationIdentifier(QStringLiteral("configuration-1"));
    QCOMPARE(store.findUnusedNewIdentifier(), QStringLiteral("configuration-1"));

    const auto settings = UserSettings::openStore();
    QVERIFY(!settings->contains(QStringLiteral("configuration-1")));
    QCOMPARE(settings->value(ExifSettings::SettingsNamesKey).toString(),
             QStringLiteral("configuration-0,configuration-2"));
}

void TestExifSettings::listenersAreToldInOrderEvenWhenOneThrows()
{
    QStringList calls;
    RecordingListener first(&calls, QStringLiteral("first"));
    RecordingListener broken(&calls, QStringLiteral("broken"), true);
    RecordingListener last(&calls, QStringLiteral("last"));

    ExifSettings store;
    store.addListener(&first);
    store.addListener(&broken);
    store.addListener(&first);
    store.addListener(&last);

    QTest::ignoreMessage(QtWarningMsg, "Caught exception of name: Invalid reason: listener broke");
    store.saveConfiguration(makePreset(QStringLiteral("configuration-0"), QStringLiteral("P")));
    QCOMPARE(calls, (QStringList{QStringLiteral("first"), QStringLiteral("broken"),
                                 QStringLiteral("last")}));

    calls.clear();
    store.removeListener(&broken);
    store.removeConfigurationIdentifier(QStringLiteral("configuration-0"));
    QCOMPARE(calls, (QStringList{QStringLiteral("first"), QStringLiteral("last")}));
}

QTEST_GUILESS_MAIN(TestExifSettings)
#include "tst_exifsettings.moc"
