#include "windows/addfilesnote.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("Localizable", text);
}

QColor noteTextColour()
{
    return QColor(235, 235, 235);
}

} // namespace

AddFilesNote::AddFilesNote(QWidget *parent)
    : QWidget(parent)
    , m_summary(new QLabel(this))
    , m_detailsButton(new QToolButton(this))
    , m_closeButton(new QToolButton(this))
    , m_details(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("AddFilesNote"));
    setAttribute(Qt::WA_TranslucentBackground);

    QPalette text = palette();
    text.setColor(QPalette::WindowText, noteTextColour());
    text.setColor(QPalette::ButtonText, noteTextColour());
    text.setColor(QPalette::Text, noteTextColour());
    text.setColor(QPalette::Base, QColor(0, 0, 0, 90));
    setPalette(text);

    m_summary->setObjectName(QStringLiteral("summary"));
    m_detailsButton->setObjectName(QStringLiteral("details"));
    m_detailsButton->setText(translated("Details"));
    m_detailsButton->setCheckable(true);
    m_detailsButton->setAutoRaise(true);
    m_closeButton->setObjectName(QStringLiteral("close"));
    m_closeButton->setText(QStringLiteral("\u2715"));
    m_closeButton->setToolTip(translated("Close"));
    m_closeButton->setAutoRaise(true);
    // Read-only text rather than a label, so the user can select and copy the paths.
    m_details->setObjectName(QStringLiteral("detailsList"));
    m_details->setReadOnly(true);
    m_details->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_details->setFrameShape(QFrame::NoFrame);
    m_details->setFixedHeight(m_details->fontMetrics().lineSpacing() * DetailLinesShown + 8);
    m_details->hide();

    auto *top = new QHBoxLayout;
    top->addWidget(m_summary, 1);
    top->addWidget(m_detailsButton);
    top->addWidget(m_closeButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->addLayout(top);
    layout->addWidget(m_details);

    connect(m_detailsButton, &QToolButton::toggled, this, &AddFilesNote::setShowingDetails);
    connect(m_closeButton, &QToolButton::clicked, this, &QWidget::hide);

    parent->installEventFilter(this);
    hide();
}

AddFilesNote::~AddFilesNote() = default;

void AddFilesNote::showRejections(const QList<FileRejection> &rejected)
{
    m_rejected = rejected;
    m_summary->setText(summaryText());
    m_details->setPlainText(detailLines().join(u'\n'));
    setShowingDetails(false);
    if (m_rejected.isEmpty()) {
        hide();
        return;
    }
    followParent();
    show();
    raise();
}

QString AddFilesNote::summaryText() const
{
    if (m_rejected.isEmpty())
        return {};
    if (m_rejected.size() == 1)
        return translated("1 file was not added.");
    return translated("%1 files were not added.").arg(m_rejected.size());
}

QStringList AddFilesNote::detailLines() const
{
    QStringList lines;
    lines.reserve(m_rejected.size());
    for (const FileRejection &rejection : m_rejected)
        lines << QStringLiteral("%1 \u2014 %2")
                     .arg(rejection.path, FileAdmission::reasonText(rejection));
    return lines;
}

bool AddFilesNote::isShowingDetails() const
{
    return !m_details->isHidden();
}

void AddFilesNote::setShowingDetails(bool isShowing)
{
    {
        const QSignalBlocker blocker(m_detailsButton);
        m_detailsButton->setChecked(isShowing);
    }
    m_details->setVisible(isShowing);
    followParent();
}

bool AddFilesNote::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        followParent();
    return QWidget::eventFilter(watched, event);
}

void AddFilesNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(255, 255, 255, 40));
    painter.setBrush(QColor(18, 18, 18, 225));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

void AddFilesNote::followParent()
{
    const QWidget *parent = parentWidget();
    if (!parent)
        return;
    if (QLayout *own = layout())
        own->activate();
    const int width = qMax(0, qMin(MaxWidth, parent->width() - 2 * Margin));
    const int height = qMin(heightForWidth(width) > 0 ? heightForWidth(width) : sizeHint().height(),
                            qMax(0, parent->height() - 2 * Margin));
    setGeometry((parent->width() - width) / 2, parent->height() - Margin - height, width, height);
}
