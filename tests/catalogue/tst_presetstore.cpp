#include "catalogue/presetstore.h"
#include "values/tagsmithexception.h"
#include "values/usersettings.h"

#include "../support/teststore.h"

#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct RecordingListener : QObject
{
    RecordingListener(QStringList *calls, const char *name)
        : calls(calls)
        , name(name)
    {
    }
    void listen(PresetStore &store)
    {
        store.onPresetsChanged(this, [this] {
            calls->append(QLatin1String(name));
            if (qstrcmp(name, "broken") == 0)
                throw TagsmithException(TagsmithException::Invalid, u"listener broke"_s);
        });
    }
    QStringList *calls;
    const char *name;
};

PresetPtr preset(const char *identifier, const QString &name = u"P"_s)
{
    return std::make_shared<Preset>(QLatin1String(identifier), name);
}

QString storedNames()
{
    return QSettings(UserSettings::storeFile(), QSettings::IniFormat)
        .value(PresetStore::SettingsNamesKey)
        .toString();
}

} // namespace

class TestPresetStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { useFreshSettingsStore(); }

    // A preset may hold anything a user can type; none may be lost or altered by the store.
    void presetSurvivesReopeningTheStore_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("nameBack"); // null: the name comes back unchanged
        QTest::newRow("markup") << u"<b>bold</b>"_s << QString();
        QTest::newRow("ampersand") << u"Tom & Jerry &amp; co"_s << QString();
        QTest::newRow("quotes") << u"say \"hi\" it's"_s << QString();
        QTest::newRow("line breaks") << u"first\nsecond\r\nthird\rfourth\t"_s << QString();
        QTest::newRow("non-Latin") << u"東京 Ελλάδα Москва 🙂"_s << QString();
        QTest::newRow("list commas") << u"one, two,three\\,four"_s << QString();
        QTest::newRow("control character") << u"bell\x07here"_s << u"bellhere"_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void presetSurvivesReopeningTheStore()
    {
        QFETCH(QString, text);
        QFETCH(QString, nameBack);
        PresetStore store;
        const auto saved = preset("configuration-0", text);
        saved->changedValues().insert(u"IPTC:City"_s, text);
        saved->changedValues().insert(u"IFD0:Make"_s, u"Canon"_s);
        saved->removedValues() = {u"GPS:GPSLatitude"_s, u"XMP-x:Odd\"Key<&>"_s};
        store.saveConfiguration(saved);

        PresetStore reopened;
        reopened.initializeSettings();
        QCOMPARE(reopened.configurations().keys(), QStringList{u"configuration-0"_s});
        const PresetPtr loaded = reopened.loadConfiguration(u"configuration-0"_s);
        QVERIFY(loaded);
        QCOMPARE(loaded->name(), nameBack.isNull() ? saved->name() : nameBack);
        QCOMPARE(loaded->changedValues(), saved->changedValues());
        QCOMPARE(loaded->removedValues(), saved->removedValues());
    }

    void storesTheDocumentLayout()
    {
        PresetStore store;
        const auto holiday = preset("configuration-3", u"Holiday"_s);
        holiday->changedValues().insert(u"IPTC:City"_s, u"Rome"_s);
        holiday->removedValues().insert(u"GPS:GPSLatitude"_s);
        store.saveConfiguration(holiday);
        store.saveConfiguration(preset("configuration-0", u"Bare"_s));

        const QSettings settings(UserSettings::storeFile(), QSettings::IniFormat);
        QCOMPARE(settings.value(u"configuration-3"_s).toString(),
                 u"\n<configuration name=\"Holiday\" identifier=\"configuration-3\">"
                 "\n <field-modification name=\"IPTC:City\">Rome</field-modification>"
                 "\n <field-remove name=\"GPS:GPSLatitude\"/>"
                 "\n</configuration>"_s);
        QCOMPARE(settings.value(u"configuration-0"_s).toString(),
                 u"\n<configuration name=\"Bare\" identifier=\"configuration-0\"/>"_s);
        QCOMPARE(storedNames(), u"configuration-0,configuration-3"_s);
    }

    void damagedOrMissingEntriesSpareTheOthers()
    {
        // The listed identifier is the key, whatever the document says.
        UserSettings::setValue(
            PresetStore::SettingsNamesKey,
            u"configuration-0,configuration-1,configuration-2,configuration-7"_s);
        UserSettings::setValue(u"configuration-0"_s,
                               u"<configuration name=\"A\" identifier=\"other\"/>"_s);
        UserSettings::setValue(u"configuration-1"_s, u"<configuration name=\"B\"><x>a<b</x>"_s);
        UserSettings::setValue(u"configuration-2"_s, u"<configuration name=\"C\"/>"_s);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Preset document unreadable"_s));
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(u"Skipping the unreadable preset.*configuration-1"_s));
        PresetStore store;
        store.initializeSettings();
        QCOMPARE(store.configurations().keys(),
                 (QStringList{u"configuration-0"_s, u"configuration-2"_s}));
        QCOMPARE(store.loadConfiguration(u"configuration-2"_s)->name(), u"C"_s);

        store.saveConfiguration(preset("configuration-1"));
        QCOMPARE(storedNames(), u"configuration-0,configuration-1,configuration-2"_s);
    }

    void identifiersOfRemovedPresetsAreReused()
    {
        PresetStore store;
        for (int i = 0; i < 3; ++i)
            store.saveConfiguration(preset(qPrintable(store.findUnusedNewIdentifier())));
        store.removeConfigurationIdentifier(u"configuration-1"_s);
        QCOMPARE(store.findUnusedNewIdentifier(), u"configuration-1"_s);
        QVERIFY(!QSettings(UserSettings::storeFile(), QSettings::IniFormat)
                     .contains(u"configuration-1"_s));
        QCOMPARE(storedNames(), u"configuration-0,configuration-2"_s);
    }

    void listenersAreToldInOrderEvenWhenOneThrows()
    {
        QStringList calls;
        RecordingListener first(&calls, "first"), broken(&calls, "broken"), last(&calls, "last");
        PresetStore store;
        for (auto *listener : {&first, &broken, &last})
            listener->listen(store);
        QTest::ignoreMessage(QtWarningMsg,
                             "Caught exception of name: Invalid reason: listener broke");
        store.saveConfiguration(preset("configuration-0"));
        QCOMPARE(calls, (QStringList{u"first"_s, u"broken"_s, u"last"_s}));

        calls.clear();
        store.disconnect(&broken);
        store.removeConfigurationIdentifier(u"configuration-0"_s);
        QCOMPARE(calls, (QStringList{u"first"_s, u"last"_s}));
    }
};

QTEST_GUILESS_MAIN(TestPresetStore)
#include "tst_presetstore.moc"
