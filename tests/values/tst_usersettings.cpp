#include "values/usersettings.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <future>

class TestUserSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void defaultsApplyUntilSet();
    void gpsDisplay_data();
    void gpsDisplay();
    void readsStoredTextValues();
    void storeIsNeverTheUsersDuringTests();

private:
    QTemporaryDir m_dir;
    int m_storeNumber = 0;
};

void TestUserSettings::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(m_dir.isValid());
}

void TestUserSettings::init()
{
    UserSettings::setStoreFile(m_dir.filePath(QStringLiteral("store-%1.ini").arg(++m_storeNumber)));
}

void TestUserSettings::cleanupTestCase()
{
    UserSettings::setStoreFile(QString());
}

void TestUserSettings::defaultsApplyUntilSet()
{
    QCOMPARE(UserSettings::gpsFormat(), 0);
    QCOMPARE(UserSettings::forceFixBase(), false);
    QCOMPARE(UserSettings::ignoreMinorErrors(), false);
    QCOMPARE(UserSettings::fileModifyDate(), 0);
    QCOMPARE(UserSettings::fileCreateDate(), 0);
    // Registered defaults are not written to the store.
    QVERIFY(UserSettings::openStore()->allKeys().isEmpty());

    UserSettings::setValue(UserSettings::ForceFixBase, true);
    UserSettings::setValue(UserSettings::IgnoreMinorErrors, true);
    UserSettings::setValue(UserSettings::FileCreateDate, 1);
    QCOMPARE(UserSettings::forceFixBase(), true);
    QCOMPARE(UserSettings::ignoreMinorErrors(), true);
    QCOMPARE(UserSettings::fileCreateDate(), 1);

    UserSettings::remove(UserSettings::ForceFixBase);
    QCOMPARE(UserSettings::forceFixBase(), false);
}

void TestUserSettings::gpsDisplay_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("number");
    QTest::addColumn<UserSettings::GpsDisplay>("display");

    using D = UserSettings::GpsDisplay;
    QTest::newRow("unset") << QVariant() << 0 << D::DegreesMinutesSeconds;
    QTest::newRow("decimal minutes") << QVariant(1) << 1 << D::DegreesDecimalMinutes;
    QTest::newRow("decimal degrees") << QVariant(2) << 2 << D::DecimalDegrees;
    QTest::newRow("out of range") << QVariant(7) << 7 << D::DegreesMinutesSeconds;
    QTest::newRow("not a number") << QVariant(QStringLiteral("abc")) << 0
                                  << D::DegreesMinutesSeconds;
}

void TestUserSettings::gpsDisplay()
{
    QFETCH(QVariant, stored);
    QFETCH(int, number);
    QFETCH(UserSettings::GpsDisplay, display);

    if (stored.isValid())
        UserSettings::setValue(UserSettings::GpsFormat, stored);
    QCOMPARE(UserSettings::gpsFormat(), number);
    QCOMPARE(UserSettings::gpsDisplay(), display);
}

void TestUserSettings::readsStoredTextValues()
{
    // A hand-edited store holds text, not typed values.
    QFile file(UserSettings::storeFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\nGPS_FORMAT=2\nEXIFTOOL_OPTIONS_FORCE-F=true\n"
               "EXIFTOOL_OPTIONS_FORCE-m=false\nFILE_MODIFY_DATE=1\n");
    file.close();

    QCOMPARE(UserSettings::gpsFormat(), 2);
    QCOMPARE(UserSettings::forceFixBase(), true);
    QCOMPARE(UserSettings::ignoreMinorErrors(), false);
    QCOMPARE(UserSettings::fileModifyDate(), 1);
}

void TestUserSettings::storeIsNeverTheUsersDuringTests()
{
    UserSettings::setValue(UserSettings::GpsFormat, 1);
    QCOMPARE(UserSettings::openStore()->fileName(), UserSettings::storeFile());
    QVERIFY(UserSettings::storeFile().startsWith(m_dir.path()));

    // Reads from another thread while the main thread writes.
    auto reader = std::async(std::launch::async, [] {
        int seen = 0;
        for (int i = 0; i < 200; ++i)
            seen |= 1 << UserSettings::gpsFormat();
        return seen;
    });
    for (int i = 0; i < 200; ++i)
        UserSettings::setValue(UserSettings::GpsFormat, 1 + i % 2);
    const int seen = reader.get();
    QVERIFY((seen & ~0b110) == 0);
}

QTEST_GUILESS_MAIN(TestUserSettings)
#include "tst_usersettings.moc"
