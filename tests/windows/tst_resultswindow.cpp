#include "windows/resultsmodel.h"
#include "windows/resultswindow.h"

#include <QAbstractItemModelTester>
#include <QTreeView>
#include <QtTest>

namespace {

using Batch = QList<ErrorMessagesPtr>;

// "<level>:<text>", levels as the model shows them: 1 information, 2 warning, 3 error.
ErrorMessagesPtr results(const QString &path, const QStringList &messages = {})
{
    auto file = std::make_shared<ErrorMessages>(path);
    for (const QString &entry : messages)
        file->addErrorMessage(ErrorMessage(path, entry.mid(2), entry.at(0).digitValue()));
    return file;
}

// Each line as "level text", children indented.
QStringList lines(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList out;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        out << (parent.isValid() ? u"  "_qs : QString()) +
                   index.data(ResultsModel::LevelRole).toString() + u' ' + index.data().toString();
        out << lines(model, index);
    }
    return out;
}

} // namespace

class TestResultsWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summary_data()
    {
        QTest::addColumn<Batch>("batch");
        QTest::addColumn<QString>("summary");
        const auto a = [](const QStringList &messages) { return results(u"/a.jpg"_qs, messages); };
        const auto b = [](const QStringList &messages) { return results(u"/b.jpg"_qs, messages); };
        QTest::newRow("empty") << Batch{} << u"No errors"_qs;
        QTest::newRow("both") << Batch{a({u"3:x"_qs, u"3:y"_qs}), b({u"2:z"_qs})}
                              << u"There are 2 errors and 1 warning"_qs;
        QTest::newRow("errors, and a file without results")
            << Batch{nullptr, a({u"3:x"_qs})} << u"There is 1 error"_qs;
        QTest::newRow("one warning") << Batch{a({u"2:x"_qs})} << u"There is 1 warning"_qs;
        QTest::newRow("warnings") << Batch{a({u"2:x"_qs}), b({u"2:y"_qs, u"2:z"_qs})}
                                  << u"There are 3 warnings"_qs;
    }

    void summary()
    {
        QFETCH(Batch, batch);
        ResultsModel model;
        model.displayErrors(batch);
        QTEST(model.summary(), "summary");
    }

    void windowListsFilesSortedAndExpanded()
    {
        ResultsWindow window;
        QAbstractItemModelTester tester(window.errorsOutline()->model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(window.summaryText(), u"No errors or warnings"_qs);

        // A message loses the "[minor]" marker and its own file's path, not another's.
        const QString y = u"/photos/a/Łódź - y.jpg"_qs;
        QHash<QString, ErrorMessagesPtr> batch;
        for (const ErrorMessagesPtr &file :
             {results(u"/photos/b/x.jpg"_qs, {u"2:[minor] late - /photos/b/x.jpg"_qs}),
              results(y, {u"2:first - /photos/b/x.jpg"_qs, u"3:second - "_qs + y}),
              results(u"/photos/a/clean.jpg"_qs)})
            batch.insert(file->fileName(), file);
        window.displayErrors(batch);

        QCOMPARE(window.summaryText(), u"There is 1 error and 2 warnings"_qs);
        const QAbstractItemModel &model = *window.errorsOutline()->model();
        QCOMPARE(lines(model),
                 QStringList({u"1 /photos/a/clean.jpg"_qs,
                              u"3 Cannot save the file Łódź - y.jpg. See details below "
                              u"for more detailed information."_qs,
                              u"  2 first - /photos/b/x.jpg"_qs, u"  3 second"_qs,
                              u"2 /photos/b/x.jpg"_qs, u"  2 late"_qs}));
        QCOMPARE(model.index(1, 0).data(ResultsModel::FileNameRole), QVariant(y));
        for (int row = 0; row < model.rowCount(); ++row)
            QVERIFY(window.errorsOutline()->isExpanded(model.index(row, 0)));
        window.displayErrors(QHash<QString, ErrorMessagesPtr>{});
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_MAIN(TestResultsWindow)
#include "tst_resultswindow.moc"
