#include <QCoreApplication>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

// Every text of the sources that counts with %n has its English singular and plural: without
// one, the window would say "1 file(s)".
class TestPluralForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCountedTextHasItsForms()
    {
        const QString lupdate =
            QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/lupdate");
        if (!QFileInfo(lupdate).isExecutable())
            QSKIP("lupdate is not installed (qt6-l10n-tools, which the installer adds)");
        QTemporaryDir dir;
        const QString ts = dir.filePath(QStringLiteral("all.ts"));
        QProcess run;
        run.start(lupdate, {QStringLiteral("-silent"), QStringLiteral("-extensions"),
                            QStringLiteral("cpp,h"), QStringLiteral(TAGSMITH_SOURCE_DIR "/src"),
                            QStringLiteral("-ts"), ts});
        QVERIFY(run.waitForFinished(120'000));
        QFile file(ts);
        QVERIFY(file.open(QIODevice::ReadOnly));

        QXmlStreamReader xml(&file);
        QString context;
        int counted = 0;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == u"name") {
                context = xml.readElementText();
            } else if (xml.name() == u"message" &&
                       xml.attributes().value(QStringLiteral("numerus")) == u"yes") {
                while (!(xml.isStartElement() && xml.name() == u"source") && !xml.atEnd())
                    xml.readNext();
                const QByteArray source = xml.readElementText().toUtf8();
                const QByteArray where = context.toUtf8() + ": " + source;
                const QString one = QCoreApplication::translate(context.toUtf8().constData(),
                                                                source.constData(), nullptr, 1);
                const QString two = QCoreApplication::translate(context.toUtf8().constData(),
                                                                source.constData(), nullptr, 2);
                QVERIFY2(!one.contains(u"(s)") && !two.contains(u"(s)"), where.constData());
                QVERIFY2(one != two, where.constData());
                ++counted;
            }
        }
        QVERIFY(!xml.hasError());
        QVERIFY(counted > 0);
    }
};

QTEST_GUILESS_MAIN(TestPluralForms)
#include "tst_pluralforms.moc"
