#pragma once

#include "engine/writequeue.h"

#include <QFileInfo>
#include <QObject>
#include <QStringList>
#include <QTest>

#include <memory>

// Hears a background batch as lines "before NAME i/n", "after NAME i/n" and "finish N", so one
// comparison shows order, pairing and counts; keeps the records the runner named with each.
struct RunListener final : QObject
{
    RunListener() = default;
    explicit RunListener(WriteQueue &runner) { listen(runner); }

    void listen(WriteQueue &runner)
    {
        connect(&runner, &WriteQueue::fileStarted, this,
                [this](const ExifFileInfoPtr &file, const ExifOperationStatus &s) {
                    events << step("before", s);
                    startedFiles << file;
                });
        connect(&runner, &WriteQueue::fileFinished, this,
                [this](const ExifFileInfoPtr &file, const ExifOperationStatus &s) {
                    events << step("after", s);
                    finishedFiles << file;
                });
        connect(&runner, &WriteQueue::batchFinished, this,
                [this](const QHash<QString, ErrorMessagesPtr> &map) {
                    events << u"finish "_qs + QString::number(map.size());
                    results = map;
                    ++finished;
                });
    }
    bool wait(int batches = 1) const
    {
        return QTest::qWaitFor([&] { return finished >= batches; }, 120'000);
    }
    QStringList messages(const QString &fileName) const { return texts(results.value(fileName)); }
    // "TYPE text" per message (type 3 is an error).
    static QStringList texts(const ErrorMessagesPtr &errors)
    {
        QStringList lines;
        for (const ErrorMessage &message : errors ? errors->messages() : QList<ErrorMessage>())
            lines << QString::number(message.type()) + u' ' + message.message();
        return lines;
    }
    static QString step(const char *what, const ExifOperationStatus &s)
    {
        return QStringLiteral("%1 %2 %3/%4")
            .arg(QLatin1String(what), QFileInfo(s.fileName()).fileName())
            .arg(s.processedTasks())
            .arg(s.totalTasks());
    }

    // Saves the files through a queue of their own and waits for the batch to end.
    static std::unique_ptr<RunListener> save(const QList<ExifFileInfoPtr> &files)
    {
        auto listener = std::make_unique<RunListener>();
        WriteQueue runner;
        listener->listen(runner);
        // A save that never ends fails the test rather than leaving it to look at nothing.
        if (runner.saveFiles(files, ExifOperationOption::ReReadFile) > 0 && !listener->wait())
            QTest::qFail("the save did not finish", __FILE__, __LINE__);
        return listener;
    }

    QStringList events;
    QList<ExifFileInfoPtr> startedFiles;
    QList<ExifFileInfoPtr> finishedFiles;
    QHash<QString, ErrorMessagesPtr> results;
    int finished = 0;
};
