#include "editorfixtures.h"

#include "catalogue/exiffieldscontroller.h"
#include "editors/otherlanguagesdialog.h"
#include "editors/texteditor.h"
#include "engine/exifutil.h"
#include "engine/metadatareader.h"
#include "engine/writequeue.h"

#include "../support/fixtures.h"
#include "../support/runlistener.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Key = QStringLiteral("XMP-dc:Description");
using Languages = QMap<QString, QString>; // "x-default" for the default one

Languages languagesOnDisk(const QString &path)
{
    const QJsonObject read =
        QJsonDocument::fromJson(Fixtures::runExifTool({u"-j"_qs, u"-G1"_qs, u"--"_qs, path}).out)[0]
            .toObject();
    Languages languages;
    for (auto it = read.constBegin(); it != read.constEnd(); ++it) {
        if (it.key() == Key)
            languages.insert(u"x-default"_qs, it.value().toString());
        else if (it.key().startsWith(Key + u'-'))
            languages.insert(it.key().mid(Key.size() + 1), it.value().toString());
    }
    return languages;
}

QStringList writeArguments(const Languages &languages)
{
    QStringList arguments;
    for (auto it = languages.cbegin(); it != languages.cend(); ++it)
        arguments.append(u'-' + Key + u'-' + it.key() + u'=' + it.value());
    return arguments;
}

const Languages First{{u"x-default"_qs, u"Two"_qs}, {u"de"_qs, u"Zwei"_qs}, {u"fr"_qs, u"Deux"_qs}};
const Languages Second{{u"x-default"_qs, u"Two"_qs},
                       {u"de"_qs, u"Zwei"_qs},
                       {u"fr"_qs, u"Deux (autre)"_qs},
                       {u"it"_qs, u"Due"_qs}};

} // namespace

// The other languages of a caption over two files that share some and differ in others: what
// the window shows, and what it writes (only what the user touched) once saved.
class TestOtherLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        ExifFieldsController::defaultInstance()->initializeConfigurations();
    }

    void init()
    {
        m_files.clear();
        for (const Languages &languages : {First, Second}) {
            const QString path = m_dir.filePath(u"%1-%2.jpg"_qs.arg(
                QString::fromLatin1(QTest::currentTestFunction()),
                QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'_') +
                    QString::number(m_files.size())));
            QCOMPARE(Fixtures::makeImage(path, writeArguments(languages)), QString());
            m_files.append(std::make_shared<ExifFileInfo>(path));
        }
        QVERIFY(MetadataReader(Fixtures::exifTool()).readRecords(m_files).ok());
        m_row = std::make_unique<EditorFixtures::Row<TextEditor>>(
            ExifFieldsController::defaultInstance()->field(Key));
        m_row->editor.setExifFiles(m_files);
    }

    void cleanup() { m_row.reset(); }

    void theWindowShowsWhatTheFilesShare()
    {
        QCOMPARE(m_row->editor.otherLanguagesLabel()->text(), u"3 other languages"_qs);
        OtherLanguagesDialog *dialog = m_row->editor.openOtherLanguages();
        QVERIFY(dialog);
        QCOMPARE(dialog->textField(u"de"_qs)->text(), u"Zwei"_qs);
        for (const QString &mixed : {u"fr"_qs, u"it"_qs}) {
            QCOMPARE(dialog->textField(mixed)->text(), QString());
            QCOMPARE(dialog->textField(mixed)->placeholderText(), u"Multiple values"_qs);
        }
        QVERIFY(!dialog->textField(u"x-default"_qs));
        dialog->reject();
    }

    // An action is a verb, a language and, for edit and add, the text typed.
    void onlyWhatWasTouchedIsWritten_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<Languages>("first");
        QTest::addColumn<Languages>("second");
        Languages first = First;
        Languages second = Second;
        first[u"de"_qs] = second[u"de"_qs] = u"Zwei!"_qs;
        QTest::newRow("a shared language edited") << u"edit de Zwei!"_qs << first << second;
        second = Second;
        second[u"fr"_qs] = u"Deux"_qs;
        QTest::newRow("a differing one typed over") << u"edit fr Deux"_qs << First << second;
        second = Second;
        second.remove(u"it"_qs);
        QTest::newRow("one removed") << u"remove it"_qs << First << second;
        first = First;
        second = Second;
        first.remove(u"de"_qs);
        second.remove(u"de"_qs);
        QTest::newRow("a shared one emptied") << u"edit de"_qs << first << second;
        // Showing "Multiple values", an empty field is no edit: the files keep their texts.
        QTest::newRow("a differing one cleared") << u"edit fr"_qs << First << Second;
        first = First;
        second = Second;
        first[u"pt-BR"_qs] = second[u"pt-BR"_qs] = u"Dois"_qs;
        QTest::newRow("one added, its code in ExifTool's case")
            << u"add PT-br Dois"_qs << first << second;
        QTest::newRow("nothing typed") << u"none"_qs << First << Second;
    }
    void onlyWhatWasTouchedIsWritten()
    {
        QFETCH(QString, action);
        QFETCH(Languages, first);
        QFETCH(Languages, second);
        OtherLanguagesDialog *dialog = m_row->editor.openOtherLanguages();
        QVERIFY(dialog);
        const QString verb = action.section(u' ', 0, 0);
        const QString language = action.section(u' ', 1, 1);
        const QString text = action.section(u' ', 2);
        if (verb == u"edit") {
            QLineEdit *field = dialog->textField(language);
            field->setFocus();
            field->selectAll();
            QTest::keyClick(field, Qt::Key_Backspace);
            QTest::keyClicks(field, text);
        } else if (verb == u"remove") {
            dialog->removeLanguage(language);
        } else if (verb == u"add") {
            const OtherLanguagesDialog::Fields added = dialog->addLanguage();
            QTest::keyClicks(added.code, language);
            QTest::keyClicks(added.text, text);
        }
        dialog->accept();
        QCOMPARE(dialog->errorText(), QString());
        QCOMPARE(isExifFileModified(*m_files.at(0)), first != First);
        QCOMPARE(isExifFileModified(*m_files.at(1)), second != Second);
        QCOMPARE(m_row->editor.isModified(), first != First || second != Second);

        const auto listener = RunListener::save(m_files);
        for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
            QCOMPARE(listener->messages(file->fileName()), QStringList());
            QVERIFY(!isExifFileModified(*file));
        }
        QCOMPARE(languagesOnDisk(m_files.at(0)->fileName()), first);
        QCOMPARE(languagesOnDisk(m_files.at(1)->fileName()), second);
    }

    void badCodesAreRefused_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("the default") << u"x-default"_qs << u"not a language code"_qs;
        QTest::newRow("underscore") << u"de_DE"_qs << u"not a language code"_qs;
        QTest::newRow("words") << u"deutsch language"_qs << u"not a language code"_qs;
        QTest::newRow("one already there") << u"DE"_qs << u"de is listed twice"_qs;
    }
    void badCodesAreRefused()
    {
        QFETCH(QString, code);
        QFETCH(QString, message);
        OtherLanguagesDialog *dialog = m_row->editor.openOtherLanguages();
        QTest::keyClicks(dialog->addLanguage().code, code);
        QTest::keyClicks(dialog->addLanguage().text, u"text"_qs);
        dialog->accept();
        QVERIFY2(dialog->errorText().contains(message), qPrintable(dialog->errorText()));
        QVERIFY(dialog->isVisible());
        QVERIFY(!isExifFileModified(*m_files.at(0)));
        QVERIFY(!isExifFileModified(*m_files.at(1)));
        dialog->reject();
    }

private:
    QTemporaryDir m_dir;
    QList<ExifFileInfoPtr> m_files;
    std::unique_ptr<EditorFixtures::Row<TextEditor>> m_row;
};

QTEST_MAIN(TestOtherLanguages)
#include "tst_otherlanguages.moc"
