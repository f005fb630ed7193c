#pragma once

#include "engine/exiftoolpath.h"

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QObject>
#include <QSize>
#include <QString>

#include <deque>
#include <functional>
#include <memory>

class QThread;

// Previews of the files in the list, made one at a time on a worker thread of the cache's own.
// The main thread only looks up and queues; it never waits for a preview.
class QuickLookImageCache : public QObject
{
    Q_OBJECT

public:
    // Finished previews share this budget, the least recently shown leaving first. A row's
    // preview takes about 45 KB (180 KB on a double-density screen), so 64 MB holds many
    // screens of rows, while keeping every preview of 10,000 files would take 450 MB or more.
    static constexpr qint64 defaultMemoryBudget = 64 * 1024 * 1024;

    explicit QuickLookImageCache(QObject *parent = nullptr,
                                 qint64 memoryBudget = defaultMemoryBudget,
                                 QString exifToolProgram = exifToolPath());
    ~QuickLookImageCache() override;

    // The finished preview (or the placeholder of a file without one); otherwise a null image,
    // and the preview is queued to arrive later through imageReady. Sizes are in pixels.
    QImage loadImage(const QString &path, qreal width, qreal height);
    void removeImage(const QString &path);
    void removeAll();

    // Connects receiver to imageReady so that what it throws is logged and the receivers after
    // it are still told; an exception must never cross the signal itself.
    QMetaObject::Connection
    onImageReady(const QObject *context,
                 std::function<void(const QString &, const QImage &)> receiver);

    // Requests waiting for the worker, the one in the works included.
    int pendingCount() const;

    // What a file without a preview shows: a neutral frame, told apart by isPlaceholder().
    static QImage placeholderImage(const QSize &size);
    static bool isPlaceholder(const QImage &image);

Q_SIGNALS:
    // In the cache's thread, once the preview of path is in the cache.
    void imageReady(const QString &path, const QImage &image);

private:
    struct Request
    {
        QString path;
        QSize size;
        quint64 batch = 0;
    };
    class Worker;

    void doLoadImages();
    bool takeRequest(Request &request);

    mutable QMutex m_lock; // guards everything down to m_isWorkerIdle
    QCache<QString, QImage> m_images;
    std::deque<Request> m_pending;
    QString m_inFlightPath;
    bool m_isInFlightCancelled = false;
    bool m_isWorkerIdle = true;
    bool m_isStopping = false;

    quint64 m_batch = 0; // main thread only
    bool m_isBatchOpen = false;
    std::unique_ptr<Worker> m_worker;
    std::unique_ptr<QThread> m_thread;
};
