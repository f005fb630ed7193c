#include "windows/previewpanel.h"

#include "catalogue/stringtables.h"
#include "windows/thumbnailmaker.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

PreviewPanel::PreviewPanel(QWidget *parent)
    : QWidget(parent, Qt::Tool)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    m_image = new QLabel(this);
    m_image->setAlignment(Qt::AlignCenter);
    m_image->setMinimumSize(200, 150);
    layout->addWidget(m_image);
}

PreviewPanel::~PreviewPanel() = default;

void PreviewPanel::setFile(const QString &path)
{
    m_path = path;
    setWindowTitle(path.isEmpty()
                       ? StringTables::instance().localizedString(QStringLiteral("Preview"))
                       : QFileInfo(path).fileName());
    if (path.isEmpty()) {
        m_image->setPixmap({});
        m_image->setText(
            StringTables::instance().localizedString(QStringLiteral("No file selected")));
        return;
    }
    // Made on demand on the main thread: one picture, asked for by the user.
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    ThumbnailMaker maker;
    const QImage image = maker.make(path, QSize(PreviewSide, PreviewSide));
    QGuiApplication::restoreOverrideCursor();
    if (image.isNull()) {
        m_image->setPixmap({});
        m_image->setText(StringTables::instance().localizedString(QStringLiteral("No preview")));
    } else {
        m_image->setPixmap(QPixmap::fromImage(image));
    }
    adjustSize();
}

void PreviewPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    QWidget::keyPressEvent(event);
}
