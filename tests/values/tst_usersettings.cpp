#include "values/usersettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <future>
#include <thread>

namespace {

bool writeStore(const QByteArray &lines)
{
    QFile file(UserSettings::storeFile());
    return file.open(QIODevice::WriteOnly) && file.write("[General]\n" + lines + '\n') > 0;
}

// What another process would read now.
QSettings onDisk()
{
    return QSettings(UserSettings::storeFile(), QSettings::IniFormat);
}

} // namespace

class TestUserSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        UserSettings::setStoreFile(m_dir.filePath(u"store-%1.ini"_qs.arg(++m_storeNumber)));
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
        QVERIFY(writeStore(store));
        QTEST(UserSettings::gpsFormat(), "gpsFormat");
        QTEST(UserSettings::gpsDisplay(), "display");
        QTEST(UserSettings::forceFixBase(), "forceFixBase");
        QTEST(UserSettings::fileModifyDate(), "fileModifyDate");
        QCOMPARE(UserSettings::ignoreMinorErrors() || UserSettings::fileCreateDate(), false);
        // Defaults are never written, and removing a value brings its default back.
        QCOMPARE(onDisk().allKeys().size(), store.count('='));
        UserSettings::remove(UserSettings::ForceFixBase);
        QCOMPARE(UserSettings::forceFixBase(), false);
        QVERIFY(!onDisk().contains(UserSettings::ForceFixBase));
    }

    // Read once: a file changed behind the program's back counts only once the store is set
    // again, while the program's own changes are on disk before the call returns.
    void readsOnceAndWritesThrough()
    {
        QVERIFY(writeStore("GPS_FORMAT=1"));
        QCOMPARE(UserSettings::gpsFormat(), 1);
        // Another length: QSettings tells a changed file by its size and time.
        QVERIFY(writeStore("GPS_FORMAT=12"));
        QCOMPARE(UserSettings::gpsFormat(), 1);
        UserSettings::setStoreFile(UserSettings::storeFile());
        QCOMPARE(UserSettings::gpsFormat(), 12);

        UserSettings::setValue(UserSettings::FileCreateDate, 1);
        QCOMPARE(onDisk().value(UserSettings::FileCreateDate).toInt(), 1);
        QCOMPARE(onDisk().value(UserSettings::GpsFormat).toInt(), 12);
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

    // Two threads writing different keys: neither write may be lost on disk.
    void writesOfTwoThreadsAllReachTheDisk()
    {
        const auto writeKeys = [](const QString &prefix) {
            for (int i = 0; i < 50; ++i)
                UserSettings::setValue(prefix + QString::number(i), i);
        };
        auto other = std::async(std::launch::async, writeKeys, u"other-"_qs);
        writeKeys(u"main-"_qs);
        other.get();
        const QSettings disk = onDisk();
        QCOMPARE(disk.allKeys().size(), 100);
        QCOMPARE(disk.value(u"other-49"_qs).toInt(), 49);
        QCOMPARE(disk.value(u"main-42"_qs).toInt(), 42);
    }

    // The save thread may be the first to read the store and then end; the store must go on
    // working, and no write may be left to that thread's event loop.
    void storeOpenedByAnEndedThreadStillWrites()
    {
        std::thread([] { UserSettings::gpsFormat(); }).join();
        UserSettings::setValue(UserSettings::WriteXmpSidecars, true);
        QCoreApplication::processEvents();
        QCOMPARE(UserSettings::writesXmpSidecars(), true);
        QCOMPARE(onDisk().value(UserSettings::WriteXmpSidecars).toBool(), true);
    }

private:
    QTemporaryDir m_dir;
    int m_storeNumber = 0;
};

QTEST_GUILESS_MAIN(TestUserSettings)
#include "tst_usersettings.moc"
