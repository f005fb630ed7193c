#include "values/usersettings.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <future>

class TestUserSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        UserSettings::setStoreFile(
            m_dir.filePath(QStringLiteral("store-%1.ini").arg(++m_storeNumber)));
        QCOMPARE(UserSettings::openStore()->fileName(), UserSettings::storeFile());
    }

    void cleanupTestCase() { UserSettings::setStoreFile(QString()); }

    void defaultsApplyUntilSetAndAfterRemoval()
    {
        QCOMPARE(UserSettings::forceFixBase(), false);
        QCOMPARE(UserSettings::ignoreMinorErrors(), false);
        QCOMPARE(UserSettings::fileModifyDate() + UserSettings::fileCreateDate(), 0);
        QVERIFY(UserSettings::openStore()->allKeys().isEmpty()); // defaults are never written

        UserSettings::setValue(UserSettings::ForceFixBase, true);
        UserSettings::setValue(UserSettings::FileCreateDate, 1);
        QCOMPARE(UserSettings::forceFixBase(), true);
        QCOMPARE(UserSettings::fileCreateDate(), 1);
        UserSettings::remove(UserSettings::ForceFixBase);
        QCOMPARE(UserSettings::forceFixBase(), false);
    }

    // The store as a hand edit leaves it: text, not typed values.
    void storedValues_data()
    {
        QTest::addColumn<QByteArray>("store");
        QTest::addColumn<int>("gpsFormat");
        QTest::addColumn<UserSettings::GpsDisplay>("display");
        QTest::addColumn<bool>("forceFixBase");
        QTest::addColumn<int>("fileModifyDate");

        using D = UserSettings::GpsDisplay;
        QTest::newRow("empty") << QByteArray() << 0 << D::DegreesMinutesSeconds << false << 0;
        QTest::newRow("text values")
            << QByteArray("GPS_FORMAT=2\nEXIFTOOL_OPTIONS_FORCE-F=true\nFILE_MODIFY_DATE=1\n") << 2
            << D::DecimalDegrees << true << 1;
        QTest::newRow("decimal minutes")
            << QByteArray("GPS_FORMAT=1\nEXIFTOOL_OPTIONS_FORCE-F=false\n") << 1
            << D::DegreesDecimalMinutes << false << 0;
        QTest::newRow("style out of range")
            << QByteArray("GPS_FORMAT=7\n") << 7 << D::DegreesMinutesSeconds << false << 0;
        QTest::newRow("not a number")
            << QByteArray("GPS_FORMAT=abc\n") << 0 << D::DegreesMinutesSeconds << false << 0;
    }

    void storedValues()
    {
        QFETCH(QByteArray, store);
        QFile file(UserSettings::storeFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[General]\n" + store);
        file.close();
        QTEST(UserSettings::gpsFormat(), "gpsFormat");
        QTEST(UserSettings::gpsDisplay(), "display");
        QTEST(UserSettings::forceFixBase(), "forceFixBase");
        QTEST(UserSettings::fileModifyDate(), "fileModifyDate");
    }

    void readsWhileAnotherThreadWrites()
    {
        QVERIFY(UserSettings::storeFile().startsWith(m_dir.path())); // never the user's own store
        UserSettings::setValue(UserSettings::GpsFormat, 1);
        auto reader = std::async(std::launch::async, [] {
            int seen = 0;
            for (int i = 0; i < 200; ++i)
                seen |= 1 << UserSettings::gpsFormat();
            return seen;
        });
        for (int i = 0; i < 200; ++i)
            UserSettings::setValue(UserSettings::GpsFormat, 1 + i % 2);
        QCOMPARE(reader.get() & ~0b110, 0);
    }

private:
    QTemporaryDir m_dir;
    int m_storeNumber = 0;
};

QTEST_GUILESS_MAIN(TestUserSettings)
#include "tst_usersettings.moc"
