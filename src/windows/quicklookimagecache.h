#pragma once

#include "engine/exiftoolpath.h"

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QObject>
#include <QSize>
#include <QString>

#include <deque>
#include <memory>
#include <vector>

class QThread;
class QuickLookImageCache;

// Told on the main thread when a preview is ready. The cache holds its listeners weakly: a
// listener that is destroyed is simply no longer told.
class QuickLookImageCacheListener
{
public:
    QuickLookImageCacheListener() = default;
    virtual ~QuickLookImageCacheListener() = default;
    QuickLookImageCacheListener(const QuickLookImageCacheListener &) = delete;
    QuickLookImageCacheListener &operator=(const QuickLookImageCacheListener &) = delete;

    virtual void imageLoaded(const QImage &image, const QString &path,
                             QuickLookImageCache *cache) = 0;

private:
    friend class QuickLookImageCache;
    std::shared_ptr<int> m_alive = std::make_shared<int>(0);
};

// Previews of the files in the list, made one at a time on a worker thread of the cache's own.
// The main thread only looks up and queues; it never waits for a preview.
class QuickLookImageCache : public QObject
{
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
    // and the preview is queued to arrive later through the listeners. Sizes are in pixels.
    QImage loadImage(const QString &path, qreal width, qreal height);
    void removeImage(const QString &path);
    void removeAll();

    void addListener(QuickLookImageCacheListener *listener);
    void removeListener(QuickLookImageCacheListener *listener);

    // Requests waiting for the worker, the one in the works included.
    int pendingCount() const;

    // What a file without a preview shows: a neutral frame, told apart by isPlaceholder().
    static QImage placeholderImage(const QSize &size);
    static bool isPlaceholder(const QImage &image);

private:
    struct Request
    {
        QString path;
        QSize size;
        quint64 batch = 0;
    };
    struct ListenerEntry
    {
        std::weak_ptr<int> alive;
        QuickLookImageCacheListener *listener = nullptr;
    };
    class Worker;

    void doLoadImages();
    bool takeRequest(Request &request);
    void doNotifyListeners(const QImage &image, const QString &path);

    mutable QMutex m_lock; // guards everything down to m_isWorkerIdle
    QCache<QString, QImage> m_images;
    std::deque<Request> m_pending;
    QString m_inFlightPath;
    bool m_isInFlightCancelled = false;
    bool m_isWorkerIdle = true;
    bool m_isStopping = false;

    quint64 m_batch = 0; // main thread only
    bool m_isBatchOpen = false;
    std::vector<ListenerEntry> m_listeners;
    std::unique_ptr<Worker> m_worker;
    std::unique_ptr<QThread> m_thread;
};
