#include "windows/resultsmodel.h"
#include "windows/resultswindowcontroller.h"

#include <QAbstractItemModelTester>
#include <QTreeView>
#include <QtTest>

namespace {

using Batch = QList<ErrorMessagesPtr>;

// "E:text" adds an error, "W:text" a warning, anything else an information.
ErrorMessagesPtr results(const QString &path, const QStringList &messages = {})
{
    auto file = std::make_shared<ErrorMessages>(path);
    for (const QString &entry : messages) {
        if (entry.startsWith(u"E:"))
            file->addError(entry.mid(2));
        else if (entry.startsWith(u"W:"))
            file->addWarning(entry.mid(2));
        else
            file->addErrorMessage(ErrorMessage(path, entry, ErrorMessage::Info));
    }
    return file;
}

// Each line as "level text", children indented.
QStringList lines(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList out;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString indent = parent.isValid() ? u"  "_qs : QString();
        out << indent + index.data(ResultsModel::LevelRole).toString() + u' ' +
                   index.data().toString();
        out << lines(model, index);
    }
    return out;
}

} // namespace

class TestResultsWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summary_data();
    void summary();
    void treeSortsFilesAndTitlesThemByErrors();
    void messageText_data();
    void messageText();
    void windowShowsTheBatchExpanded();
};

void TestResultsWindow::summary_data()
{
    QTest::addColumn<Batch>("batch");
    QTest::addColumn<QString>("summary");

    QTest::newRow("empty batch") << Batch{} << u"No errors"_qs;
    QTest::newRow("informations only")
        << Batch{results(u"/a.jpg"_qs, {u"note"_qs})} << u"No errors"_qs;
    QTest::newRow("errors and warnings over two files")
        << Batch{results(u"/a.jpg"_qs, {u"E:x"_qs, u"E:y"_qs}), results(u"/b.jpg"_qs, {u"W:z"_qs})}
        << u"There are 2 error(s) and 1 warning(s)"_qs;
    QTest::newRow("errors only") << Batch{results(u"/a.jpg"_qs, {u"E:x"_qs})}
                                 << u"There are 1 error(s)"_qs;
    QTest::newRow("warnings only")
        << Batch{results(u"/a.jpg"_qs, {u"W:x"_qs, u"W:y"_qs}), results(u"/b.jpg"_qs, {u"W:z"_qs})}
        << u"There are 3 warning(s)"_qs;
}

void TestResultsWindow::summary()
{
    QFETCH(Batch, batch);
    QFETCH(QString, summary);
    ResultsModel model;
    model.displayErrors(batch);
    QCOMPARE(model.summary(), summary);
}

void TestResultsWindow::treeSortsFilesAndTitlesThemByErrors()
{
    ResultsModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.displayErrors({results(u"/photos/b/x.jpg"_qs, {u"W:late"_qs}),
                         results(u"/photos/a/y.jpg"_qs, {u"W:first"_qs, u"E:second"_qs}), nullptr,
                         results(u"/photos/a/clean.jpg"_qs)});
    QCOMPARE(
        lines(model),
        QStringList({u"1 /photos/a/clean.jpg"_qs,
                     u"3 Cannot save the file y.jpg. See details bellow for more detailed "
                     u"information."_qs,
                     u"  2 first"_qs, u"  3 second"_qs, u"2 /photos/b/x.jpg"_qs, u"  2 late"_qs}));
    QCOMPARE(model.index(1, 0).data(ResultsModel::FileNameRole), QVariant(u"/photos/a/y.jpg"_qs));
    model.displayErrors({});
    QCOMPARE(model.rowCount(), 0);
}

void TestResultsWindow::messageText_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const QString a = u"/photos/a.jpg"_qs;

    QTest::newRow("minor marker and trailing path")
        << a << u"[minor] Ignored empty IFD0 - /photos/a.jpg"_qs << u"Ignored empty IFD0"_qs;
    QTest::newRow("another file's path is kept")
        << a << u"Error opening - /photos/b.jpg"_qs << u"Error opening - /photos/b.jpg"_qs;
    // The marker's length is cut from the start wherever it stood, as it always has been.
    QTest::newRow("marker not first") << a << u"Bad [minor] tag"_qs << u"or] tag"_qs;
    QTest::newRow("path with spaces, dashes and unicode")
        << u"/photos/Łódź/a - b.jpg"_qs << u"Truncated - /photos/Łódź/a - b.jpg"_qs
        << u"Truncated"_qs;
}

void TestResultsWindow::messageText()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QFETCH(QString, shown);
    const ErrorMessage message(path, text, ErrorMessage::Warning);
    QCOMPARE(ResultsModel::formatErrorForErrorMessage(message), shown);
}

void TestResultsWindow::windowShowsTheBatchExpanded()
{
    ResultsWindowController window;
    QCOMPARE(window.summaryText(), u"No errors or warnings"_qs);

    QHash<QString, ErrorMessagesPtr> batch;
    batch.insert(u"/b.jpg"_qs, results(u"/b.jpg"_qs, {u"W:[minor] w"_qs}));
    batch.insert(u"/a.jpg"_qs, results(u"/a.jpg"_qs, {u"E:e"_qs}));
    window.displayErrors(batch);

    QCOMPARE(window.summaryText(), u"There are 1 error(s) and 1 warning(s)"_qs);
    const QAbstractItemModel &model = *window.errorsOutline()->model();
    QCOMPARE(lines(model), QStringList({u"3 Cannot save the file a.jpg. See details bellow for "
                                        u"more detailed information."_qs,
                                        u"  3 e"_qs, u"2 /b.jpg"_qs, u"  2 w"_qs}));
    for (int row = 0; row < model.rowCount(); ++row)
        QVERIFY(window.errorsOutline()->isExpanded(model.index(row, 0)));
}

QTEST_MAIN(TestResultsWindow)
#include "tst_resultswindow.moc"
