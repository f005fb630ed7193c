#include "engine/errormessages.h"
#include "values/tagsmithexception.h"

#include <QtTest>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TestErrorMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exifToolLines_data();
    void exifToolLines();
    void countersFollowAddsAndDeletes();
    void missingTextsAndExceptionsGetFixedTexts();
};

void TestErrorMessages::exifToolLines_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QStringList>("errors");
    QTest::addColumn<QStringList>("warnings");

    QTest::newRow("warning") << QByteArray("Warning: [minor] Some text\n") << QStringList{}
                             << QStringList{s("[minor] Some text")};
    QTest::newRow("error") << QByteArray("Error: File not found - a.jpg\n")
                           << QStringList{s("File not found - a.jpg")} << QStringList{};
    QTest::newRow("other lines ignored")
        << QByteArray("    1 image files updated\n\nExifTool done\n") << QStringList{}
        << QStringList{};
    QTest::newRow("marker inside the line is cut from the start")
        << QByteArray("Sony: Error: bad block\n") << QStringList{s("rror: bad block")}
        << QStringList{};
    QTest::newRow("warning marker inside the line")
        << QByteArray("IFD0 Warning: odd\n") << QStringList{} << QStringList{s("ing: odd")};
    QTest::newRow("both markers make an error")
        << QByteArray("Warning: Error: x\n") << QStringList{s(": Error: x")} << QStringList{};
    QTest::newRow("marker needs its blank")
        << QByteArray("Error:x\nWarning:y\n") << QStringList{} << QStringList{};
    QTest::newRow("order kept across line endings")
        << QByteArray("Error: one\r\nWarning: two\rError: three")
        << QStringList{s("one"), s("three")} << QStringList{s("two")};
    QTest::newRow("utf-8 text") << QByteArray("Warning: Z\xc3\xbcrich is odd\n") << QStringList{}
                                << QStringList{s("Z\u00fcrich is odd")};
    QTest::newRow("marker alone gives an empty message")
        << QByteArray("Error: \n") << QStringList{s("")} << QStringList{};
}

void TestErrorMessages::exifToolLines()
{
    QFETCH(QByteArray, output);
    QFETCH(QStringList, errors);
    QFETCH(QStringList, warnings);
    ErrorMessages messages(s("/p/a.jpg"));
    messages.addExifToolOutput(output);
    QStringList gotErrors;
    QStringList gotWarnings;
    for (const ErrorMessage &message : messages.messages()) {
        QCOMPARE(message.fileName(), s("/p/a.jpg"));
        (message.isError() ? gotErrors : gotWarnings).append(message.message());
    }
    QCOMPARE(gotErrors, errors);
    QCOMPARE(gotWarnings, warnings);
    QCOMPARE(messages.errorsCount(), quint64(errors.size()));
    QCOMPARE(messages.warnsCount(), quint64(warnings.size()));
}

void TestErrorMessages::countersFollowAddsAndDeletes()
{
    ErrorMessages messages(s("/p/a.jpg"));
    messages.addError(s("e1"));
    messages.addWarning(s("w1"));
    messages.addError(s("e2"));
    messages.addErrorMessage(ErrorMessage(s("/p/a.jpg"), s("i1"), ErrorMessage::Info));
    messages.addErrorMessage(ErrorMessage(s("/p/a.jpg"), s("odd"), 7));
    QCOMPARE(messages.count(), 5u);
    QCOMPARE(messages.errorsCount(), 2u);
    QCOMPARE(messages.warnsCount(), 1u);
    QCOMPARE(messages.infosCount(), 1u);

    // The total is deliberately left alone by a deletion; the kinds stay exact.
    messages.deleteMessageAtIndex(1);
    QCOMPARE(messages.warnsCount(), 0u);
    QCOMPARE(messages.count(), 5u);
    QCOMPARE(messages.messages().size(), 4);
    QCOMPARE(messages.messages().at(1).message(), s("e2"));
    messages.deleteMessageAtIndex(3);
    QCOMPARE(messages.errorsCount(), 2u);
    QCOMPARE(messages.infosCount(), 1u);
    QVERIFY_THROWS_EXCEPTION(TagsmithException, messages.deleteMessageAtIndex(3));

    messages.removeAllMessages();
    QVERIFY(messages.messages().isEmpty());
    QCOMPARE(messages.count() + messages.errorsCount() + messages.warnsCount() +
                 messages.infosCount(),
             0u);
}

void TestErrorMessages::missingTextsAndExceptionsGetFixedTexts()
{
    ErrorMessages messages(s("/p/a.jpg"));
    messages.addError();
    messages.addWarning();
    messages.addError(s(""));
    QTest::ignoreMessage(QtWarningMsg, "secret reason");
    messages.addException(TagsmithException(TagsmithException::LogicError, s("secret reason")));
    const QStringList expected{s("Unknown error"), s("Unknown warning"), s(""),
                               s("Unknown error occured during processing")};
    QStringList texts;
    for (const ErrorMessage &message : messages.messages())
        texts.append(message.message());
    QCOMPARE(texts, expected);
}

QTEST_GUILESS_MAIN(TestErrorMessages)
#include "tst_errormessages.moc"
