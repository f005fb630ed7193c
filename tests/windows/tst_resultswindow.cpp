#include "windows/resultsmodel.h"
#include "windows/resultswindowcontroller.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QTreeView>
#include <QtTest>

namespace {

// "E:text" adds an error, "W:text" a warning, "I:text" an information.
ErrorMessagesPtr results(const QString &path, const QStringList &messages = {})
{
    auto file = std::make_shared<ErrorMessages>(path);
    for (const QString &entry : messages) {
        const QString text = entry.mid(2);
        if (entry.startsWith(QLatin1String("E:")))
            file->addError(text);
        else if (entry.startsWith(QLatin1String("W:")))
            file->addWarning(text);
        else
            file->addErrorMessage(ErrorMessage(path, text, ErrorMessage::Info));
    }
    return file;
}

using Batch = QList<ErrorMessagesPtr>;

QStringList topLevelTexts(const ResultsModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.index(row, 0).data().toString();
    return texts;
}

} // namespace

class TestResultsWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summary_data();
    void summary();
    void fileLinesAreSortedByPathAndTitledByErrors();
    void messageLinesKeepTheirOrderAndLevels();
    void messageText_data();
    void messageText();
    void modelSurvivesTheModelTester();
    void windowShowsTheBatchExpanded();
    void windowSummaryBeforeTheFirstBatch();
};

void TestResultsWindow::summary_data()
{
    QTest::addColumn<Batch>("batch");
    QTest::addColumn<QString>("summary");

    QTest::newRow("empty batch") << Batch{} << QStringLiteral("No errors");
    QTest::newRow("files without messages")
        << Batch{results(QStringLiteral("/a.jpg")), results(QStringLiteral("/b.jpg"))}
        << QStringLiteral("No errors");
    QTest::newRow("errors and warnings over two files")
        << Batch{results(QStringLiteral("/a.jpg"), {QStringLiteral("E:x"), QStringLiteral("E:y")}),
                 results(QStringLiteral("/b.jpg"), {QStringLiteral("W:z")})}
        << QStringLiteral("There are 2 error(s) and 1 warning(s)");
    QTest::newRow("errors only") << Batch{results(QStringLiteral("/a.jpg"),
                                                  {QStringLiteral("E:x")})}
                                 << QStringLiteral("There are 1 error(s)");
    QTest::newRow("warnings only")
        << Batch{results(QStringLiteral("/a.jpg"), {QStringLiteral("W:x"), QStringLiteral("W:y")}),
                 results(QStringLiteral("/b.jpg"), {QStringLiteral("W:z")})}
        << QStringLiteral("There are 3 warning(s)");
    QTest::newRow("informations do not count")
        << Batch{results(QStringLiteral("/a.jpg"), {QStringLiteral("I:x")})}
        << QStringLiteral("No errors");
}

void TestResultsWindow::summary()
{
    QFETCH(Batch, batch);
    QFETCH(QString, summary);
    ResultsModel model;
    model.displayErrors(batch);
    QCOMPARE(model.summary(), summary);
}

void TestResultsWindow::fileLinesAreSortedByPathAndTitledByErrors()
{
    ResultsModel model;
    model.displayErrors({results(QStringLiteral("/photos/b/x.jpg"), {QStringLiteral("W:late")}),
                         results(QStringLiteral("/photos/a/y.jpg"),
                                 {QStringLiteral("E:one"), QStringLiteral("E:two")}),
                         nullptr, results(QStringLiteral("/photos/a/clean.jpg"))});

    QCOMPARE(topLevelTexts(model),
             QStringList({QStringLiteral("/photos/a/clean.jpg"),
                          QStringLiteral("Cannot save the file y.jpg. See details bellow for more "
                                         "detailed information."),
                          QStringLiteral("/photos/b/x.jpg")}));
    const QList<int> levels{model.index(0, 0).data(ResultsModel::LevelRole).toInt(),
                            model.index(1, 0).data(ResultsModel::LevelRole).toInt(),
                            model.index(2, 0).data(ResultsModel::LevelRole).toInt()};
    QCOMPARE(levels, QList<int>({ErrorMessage::Info, ErrorMessage::Error, ErrorMessage::Warning}));
    QCOMPARE(model.index(1, 0).data(ResultsModel::FileNameRole).toString(),
             QStringLiteral("/photos/a/y.jpg"));
}

void TestResultsWindow::messageLinesKeepTheirOrderAndLevels()
{
    ResultsModel model;
    model.displayErrors(
        {results(QStringLiteral("/a.jpg"), {QStringLiteral("W:first"), QStringLiteral("E:second"),
                                            QStringLiteral("W:third")})});
    const QModelIndex file = model.index(0, 0);
    QCOMPARE(model.rowCount(file), 3);
    QStringList texts;
    QList<int> levels;
    for (int row = 0; row < 3; ++row) {
        const QModelIndex line = model.index(row, 0, file);
        QCOMPARE(line.parent(), file);
        QVERIFY(!model.hasChildren(line));
        QVERIFY(!line.data(ResultsModel::IsFileRole).toBool());
        texts << line.data().toString();
        levels << line.data(ResultsModel::LevelRole).toInt();
    }
    QCOMPARE(texts, QStringList({QStringLiteral("first"), QStringLiteral("second"),
                                 QStringLiteral("third")}));
    QCOMPARE(levels,
             QList<int>({ErrorMessage::Warning, ErrorMessage::Error, ErrorMessage::Warning}));
}

void TestResultsWindow::messageText_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const QString a = QStringLiteral("/photos/a.jpg");

    QTest::newRow("minor marker and trailing path")
        << a << QStringLiteral("[minor] Ignored empty IFD0 - /photos/a.jpg")
        << QStringLiteral("Ignored empty IFD0");
    QTest::newRow("plain text") << a << QStringLiteral("Not a valid JPEG")
                                << QStringLiteral("Not a valid JPEG");
    QTest::newRow("another file's path is kept")
        << a << QStringLiteral("Error opening - /photos/b.jpg")
        << QStringLiteral("Error opening - /photos/b.jpg");
    // The marker's length is cut from the start wherever it stood, as it always has been.
    QTest::newRow("marker not first")
        << a << QStringLiteral("Bad [minor] tag") << QStringLiteral("or] tag");
    QTest::newRow("path with spaces and unicode")
        << QStringLiteral("/photos/Ł ódź/a - b.jpg")
        << QStringLiteral("Truncated - /photos/Ł ódź/a - b.jpg") << QStringLiteral("Truncated");
}

void TestResultsWindow::messageText()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QFETCH(QString, shown);
    const ErrorMessage message(path, text, ErrorMessage::Warning);
    QCOMPARE(ResultsModel::formatErrorForErrorMessage(message), shown);
}

void TestResultsWindow::modelSurvivesTheModelTester()
{
    ResultsModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.displayErrors(
        {results(QStringLiteral("/b.jpg"), {QStringLiteral("E:x")}),
         results(QStringLiteral("/a.jpg"), {QStringLiteral("W:y"), QStringLiteral("W:z")}),
         results(QStringLiteral("/c.jpg"))});
    model.displayErrors({});
    model.displayErrors({results(QStringLiteral("/d.jpg"), {QStringLiteral("E:x")})});
}

void TestResultsWindow::windowShowsTheBatchExpanded()
{
    ResultsWindowController window;
    QHash<QString, ErrorMessagesPtr> batch;
    batch.insert(QStringLiteral("/photos/b.jpg"),
                 results(QStringLiteral("/photos/b.jpg"), {QStringLiteral("W:[minor] w")}));
    batch.insert(QStringLiteral("/photos/a.jpg"),
                 results(QStringLiteral("/photos/a.jpg"), {QStringLiteral("E:e")}));
    window.displayErrors(batch);

    QCOMPARE(window.summaryText(), QStringLiteral("There are 1 error(s) and 1 warning(s)"));
    QCOMPARE(window.findChild<QLabel *>(QStringLiteral("topText"))->text(), window.summaryText());
    QTreeView *tree = window.errorsOutline();
    QCOMPARE(tree->model()->rowCount(), 2);
    for (int row = 0; row < 2; ++row)
        QVERIFY(tree->isExpanded(tree->model()->index(row, 0)));
    QCOMPARE(tree->model()->index(0, 0, tree->model()->index(1, 0)).data().toString(),
             QStringLiteral("w"));
    QVERIFY(!window.errorImage().isNull());
    QVERIFY(!window.warnImage().isNull());

    window.displayErrors(QList<ErrorMessagesPtr>{});
    QCOMPARE(window.summaryText(), QStringLiteral("No errors"));
    QCOMPARE(tree->model()->rowCount(), 0);
}

void TestResultsWindow::windowSummaryBeforeTheFirstBatch()
{
    ResultsWindowController window;
    QCOMPARE(window.summaryText(), QStringLiteral("No errors or warnings"));
}

QTEST_MAIN(TestResultsWindow)
#include "tst_resultswindow.moc"
