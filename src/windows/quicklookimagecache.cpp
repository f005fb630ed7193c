#include "windows/quicklookimagecache.h"

#include "values/logging.h"
#include "values/tagsmithexception.h"
#include "windows/thumbnailmaker.h"

#include <QMutexLocker>
#include <QPainter>
#include <QThread>
#include <QTimer>
#include <QtMath>

#include <algorithm>

namespace {

// Only rows in view ask for previews, so a long wait list means the user scrolled past them;
// the oldest are dropped and asked for again if they come back into view.
constexpr std::size_t maxPending = 256;

const QString placeholderKey = QStringLiteral("Tagsmith.Placeholder");

int costOf(const QImage &image)
{
    return int(std::max<qsizetype>(1, image.sizeInBytes() / 1024));
}

} // namespace

// Lives on the cache's thread, so the preview maker and its ExifTool process stay there.
class QuickLookImageCache::Worker : public QObject
{
public:
    std::unique_ptr<ThumbnailMaker> maker;
    QImage placeholder;
};

QuickLookImageCache::QuickLookImageCache(QObject *parent, qint64 memoryBudget,
                                         QString exifToolProgram)
    : QObject(parent)
    , m_images(qsizetype(std::max<qint64>(1, memoryBudget / 1024)))
    , m_worker(std::make_unique<Worker>())
    , m_thread(std::make_unique<QThread>())
{
    m_worker->maker = std::make_unique<ThumbnailMaker>(std::move(exifToolProgram));
    m_thread->setObjectName(QStringLiteral("QuickLook Image Cache"));
    m_worker->moveToThread(m_thread.get());
    m_thread->start(QThread::LowPriority);
}

QuickLookImageCache::~QuickLookImageCache()
{
    {
        QMutexLocker locker(&m_lock);
        m_isStopping = true;
        m_pending.clear();
    }
    // Waits for the preview in the works; the ExifTool process must end on its own thread.
    Worker *worker = m_worker.get();
    QMetaObject::invokeMethod(
        worker, [worker] { worker->maker.reset(); }, Qt::BlockingQueuedConnection);
    m_thread->quit();
    m_thread->wait();
}

QImage QuickLookImageCache::loadImage(const QString &path, qreal width, qreal height)
{
    const QSize size(qCeil(width), qCeil(height));
    if (!m_isBatchOpen) {
        // Requests made before the event loop turns again (one paint of the list) form a batch;
        // the newest batch is served first, so the rows in view come before those scrolled by.
        m_isBatchOpen = true;
        ++m_batch;
        QTimer::singleShot(0, this, [this] { m_isBatchOpen = false; });
    }

    QMutexLocker locker(&m_lock);
    if (const QImage *image = m_images.object(path))
        return *image;
    if (path == m_inFlightPath && !m_isInFlightCancelled)
        return {};
    const auto queued =
        std::find_if(m_pending.begin(), m_pending.end(),
                     [&path](const Request &request) { return request.path == path; });
    if (queued != m_pending.end()) {
        queued->batch = m_batch;
        queued->size = size;
        return {};
    }
    m_pending.push_back({path, size, m_batch});
    if (m_pending.size() > maxPending) {
        const auto oldest =
            std::min_element(m_pending.begin(), m_pending.end(),
                             [](const Request &a, const Request &b) { return a.batch < b.batch; });
        m_pending.erase(oldest);
    }
    if (m_isWorkerIdle) {
        m_isWorkerIdle = false;
        QMetaObject::invokeMethod(
            m_worker.get(), [this] { doLoadImages(); }, Qt::QueuedConnection);
    }
    return {};
}

void QuickLookImageCache::removeImage(const QString &path)
{
    QMutexLocker locker(&m_lock);
    m_images.remove(path);
    std::erase_if(m_pending, [&path](const Request &request) { return request.path == path; });
    if (path == m_inFlightPath)
        m_isInFlightCancelled = true;
}

void QuickLookImageCache::removeAll()
{
    QMutexLocker locker(&m_lock);
    m_images.clear();
    m_pending.clear();
    m_isInFlightCancelled = true;
}

QMetaObject::Connection
QuickLookImageCache::onImageReady(const QObject *context,
                                  std::function<void(const QString &, const QImage &)> receiver)
{
    return connect(this, &QuickLookImageCache::imageReady, context,
                   [receiver = std::move(receiver)](const QString &path, const QImage &image) {
                       runLoggingExceptions(
                           [&] { receiver(path, image); },
                           [](const QString &, const QString &reason) {
                               return QStringLiteral("Exception caught: %1").arg(reason);
                           });
                   });
}

int QuickLookImageCache::pendingCount() const
{
    QMutexLocker locker(&m_lock);
    return int(m_pending.size()) + (m_inFlightPath.isEmpty() ? 0 : 1);
}

bool QuickLookImageCache::takeRequest(Request &request)
{
    QMutexLocker locker(&m_lock);
    m_inFlightPath.clear();
    if (m_isStopping || m_pending.empty()) {
        m_isWorkerIdle = true;
        return false;
    }
    // The newest batch first, and within it the order of asking (top row first).
    const auto next =
        std::max_element(m_pending.begin(), m_pending.end(),
                         [](const Request &a, const Request &b) { return a.batch < b.batch; });
    request = *next;
    m_pending.erase(next);
    m_inFlightPath = request.path;
    m_isInFlightCancelled = false;
    return true;
}

void QuickLookImageCache::doLoadImages()
{
    Request request;
    while (takeRequest(request)) {
        QImage image = m_worker->maker->make(request.path, request.size);
        if (image.isNull()) {
            if (m_worker->placeholder.size() != request.size)
                m_worker->placeholder = placeholderImage(request.size);
            image = m_worker->placeholder;
        }
        {
            QMutexLocker locker(&m_lock);
            // A file removed meanwhile keeps no entry and tells no one.
            if (m_isInFlightCancelled || m_isStopping)
                continue;
            m_images.insert(request.path, new QImage(image), costOf(image));
        }
        QMetaObject::invokeMethod(
            this, [this, image, path = request.path] { Q_EMIT imageReady(path, image); },
            Qt::QueuedConnection);
    }
}

QImage QuickLookImageCache::placeholderImage(const QSize &size)
{
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(image.rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setPen(QPen(QColor(128, 128, 128, 160), 1.0, Qt::DashLine));
    painter.setBrush(QColor(128, 128, 128, 40));
    painter.drawRoundedRect(frame, 6, 6);
    painter.end();
    image.setText(placeholderKey, QStringLiteral("1"));
    return image;
}

bool QuickLookImageCache::isPlaceholder(const QImage &image)
{
    return !image.isNull() && !image.text(placeholderKey).isEmpty();
}
