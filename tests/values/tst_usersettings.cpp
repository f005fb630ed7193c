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
        UserSettings::setStoreFile(m_dir.filePath(u"store-%1.ini"_qs.arg(++m_storeNumber)));
        QCOMPARE(UserSettings::openStore()->fileName(), UserSettings::storeFile());
    }
    void cleanupTestCase() { UserSettings::setStoreFile(QString()); }

    // The store as a hand edit leaves it: text, not typed values.
    void storedValues_data()
    {
        QTest::addColumn<QByteArray>("store");
        QTest::addColumn<int>("gpsFormat");
        QTest::addColumn<UserSettings::GpsDisplay>("display");
        QTest::addColumn<bool>("forceFixBase");
        QTest::addColumn<int>("fileModifyDate");
        using D = UserSettings::GpsDisplay;
        auto row = [](const char *store, int gps, D display, bool force, int modify) {
            QTest::newRow(store) << QByteArray(store) << gps << display << force << modify;
        };
        row("", 0, D::DegreesMinutesSeconds, false, 0);
        row("GPS_FORMAT=2\nEXIFTOOL_OPTIONS_FORCE-F=true\nFILE_MODIFY_DATE=1", 2, D::DecimalDegrees,
            true, 1);
        row("GPS_FORMAT=1\nEXIFTOOL_OPTIONS_FORCE-F=false", 1, D::DegreesDecimalMinutes, false, 0);
        row("GPS_FORMAT=7", 7, D::DegreesMinutesSeconds, false, 0);
        row("GPS_FORMAT=abc", 0, D::DegreesMinutesSeconds, false, 0);
    }
    void storedValues()
    {
        QFETCH(QByteArray, store);
        QFile file(UserSettings::storeFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("[General]\n" + store + '\n') > 0);
        file.close();
        QTEST(UserSettings::gpsFormat(), "gpsFormat");
        QTEST(UserSettings::gpsDisplay(), "display");
        QTEST(UserSettings::forceFixBase(), "forceFixBase");
        QTEST(UserSettings::fileModifyDate(), "fileModifyDate");
        QCOMPARE(UserSettings::ignoreMinorErrors() || UserSettings::fileCreateDate(), false);
        // Defaults are never written, and removing a value brings its default back.
        QCOMPARE(UserSettings::openStore()->allKeys().size(), store.count('='));
        UserSettings::remove(UserSettings::ForceFixBase);
        QCOMPARE(UserSettings::forceFixBase(), false);
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
