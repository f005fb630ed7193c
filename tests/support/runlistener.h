#pragma once

#include "engine/exifbackgroundrunnerlistener.h"

#include <QFileInfo>
#include <QStringList>
#include <QTest>

// Hears a background batch as lines "before NAME i/n", "after NAME i/n" and "finish N", so one
// comparison shows order, pairing and counts.
struct RunListener final : ExifBackgroundRunnerListener
{
    void fileToBeProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &s) override
    {
        events << step("before", s);
    }
    void fileProcessed(const ExifFileInfoPtr &, const ExifOperationStatus &s) override
    {
        events << step("after", s);
    }
    void finishProcessing(const QHash<QString, ErrorMessagesPtr> &map) override
    {
        events << u"finish "_qs + QString::number(map.size());
        results = map;
        ++finished;
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

    QStringList events;
    QHash<QString, ErrorMessagesPtr> results;
    int finished = 0;
};
