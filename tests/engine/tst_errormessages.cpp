#include "engine/errormessages.h"
#include "values/tagsmithexception.h"

#include <QtTest>

namespace {

// "E:text|W:text|I:text" in order, then the kind counters, so one string shows it all.
QString summary(const ErrorMessages &messages)
{
    QStringList parts;
    for (const ErrorMessage &message : messages.messages()) {
        const char kind = message.isError()  ? 'E'
                          : message.isWarn() ? 'W'
                          : message.isInfo() ? 'I'
                                             : '?';
        parts.append(QLatin1Char(kind) + u':' + message.message());
    }
    return parts.join(u'|') + QStringLiteral(" (%1/%2/%3)")
                                  .arg(messages.errorsCount())
                                  .arg(messages.warnsCount())
                                  .arg(messages.infosCount());
}

} // namespace

class TestErrorMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exifToolLines_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("expected");
        auto row = [](const char *name, const char *output, const char *expected) {
            QTest::newRow(name) << QByteArray(output) << QString::fromUtf8(expected);
        };
        row("warning", "Warning: [minor] Some text\n", "W:[minor] Some text (0/1/0)");
        row("other lines", "    1 image files updated\n\nExifTool done\n", " (0/0/0)");
        // A marker inside a line is cut from the line's start, as the output has always been read.
        row("inner marker", "Sony: Error: bad\nIFD0 Warning: odd\n",
            "E:rror: bad|W:ing: odd (1/1/0)");
        row("both markers", "Warning: Error: x\n", "E:: Error: x (1/0/0)");
        row("no blank", "Error:x\nWarning:y\n", " (0/0/0)");
        row("line endings", "Error: one\r\nWarning: two\rError: three",
            "E:one|W:two|E:three (2/1/0)");
        row("utf-8", "Error: Z\xc3\xbcrich\n", "E:Zürich (1/0/0)");
    }
    void exifToolLines()
    {
        QFETCH(QByteArray, output);
        ErrorMessages messages(u"/p/a.jpg"_qs);
        messages.addExifToolOutput(output);
        QTEST(summary(messages), "expected");
        for (const ErrorMessage &message : messages.messages())
            QCOMPARE(message.fileName(), u"/p/a.jpg"_qs);
    }

    void countersFollowAddsAndDeletes()
    {
        ErrorMessages messages(u"/p/a.jpg"_qs);
        messages.addError(u"e1"_qs);
        messages.addWarning(u"w1"_qs);
        messages.addError(u"e2"_qs);
        messages.addErrorMessage(ErrorMessage(u"/p/a.jpg"_qs, u"i1"_qs, ErrorMessage::Info));
        messages.addErrorMessage(ErrorMessage(u"/p/a.jpg"_qs, u"odd"_qs, 7));
        QCOMPARE(messages.count(), 5u);
        // The total is deliberately left alone by a deletion; the kinds stay exact.
        messages.deleteMessageAtIndex(1);
        messages.deleteMessageAtIndex(3);
        QCOMPARE(summary(messages), u"E:e1|E:e2|I:i1 (2/0/1)"_qs);
        QCOMPARE(messages.count(), 5u);
        QVERIFY_THROWS_EXCEPTION(TagsmithException, messages.deleteMessageAtIndex(3));
        messages.removeAllMessages();
        QCOMPARE(summary(messages) + QString::number(messages.count()), u" (0/0/0)0"_qs);
    }

    void missingTextsGetFixedTexts()
    {
        ErrorMessages messages(u"/p/a.jpg"_qs);
        messages.addError();
        messages.addWarning();
        messages.addError(u""_qs);
        // The reason goes to the log, never to the user.
        QTest::ignoreMessage(QtWarningMsg, "secret reason");
        messages.addException(
            TagsmithException(TagsmithException::LogicError, u"secret reason"_qs));
        QCOMPARE(summary(messages), u"E:Unknown error|W:Unknown warning|E:|"
                                    u"E:Unknown error occurred during processing (3/1/0)"_qs);
    }
};

QTEST_GUILESS_MAIN(TestErrorMessages)
#include "tst_errormessages.moc"
