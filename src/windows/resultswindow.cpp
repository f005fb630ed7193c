#include "windows/resultswindow.h"

#include "windows/resultsmodel.h"

#include "catalogue/stringtables.h"
#include "controls/aperturetheme.h"

#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int ImageSize = 18;
constexpr int CellImageSize = 20;

QIcon roundIcon(const QColor &colour)
{
    QPixmap pixmap(ImageSize * 2, ImageSize * 2);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient gradient(QPointF(ImageSize * 0.8, ImageSize * 0.7), ImageSize);
    gradient.setColorAt(0, colour.lighter(150));
    gradient.setColorAt(1, colour.darker(120));
    painter.setBrush(gradient);
    painter.setPen(QPen(colour.darker(160), 2));
    painter.drawEllipse(QRectF(2, 2, ImageSize * 2 - 4, ImageSize * 2 - 4));
    painter.end();
    pixmap.setDevicePixelRatio(2);
    return QIcon(pixmap);
}

// Each line's icon follows its level; nothing paints a background, so the window's fill shows.
class ResultLineDelegate : public QStyledItemDelegate
{
public:
    ResultLineDelegate(const QIcon &errorImage, const QIcon &warnImage, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_errorImage(errorImage)
        , m_warnImage(warnImage)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->backgroundBrush = Qt::NoBrush;
        option->decorationSize = QSize(CellImageSize, CellImageSize);
        switch (index.data(ResultsModel::LevelRole).toInt()) {
        case ErrorMessage::Error:
            option->icon = m_errorImage;
            break;
        case ErrorMessage::Warning:
            option->icon = m_warnImage;
            break;
        default:
            option->icon = QIcon();
            break;
        }
        option->features.setFlag(QStyleOptionViewItem::HasDecoration, !option->icon.isNull());
    }

private:
    QIcon m_errorImage;
    QIcon m_warnImage;
};

} // namespace

ResultsWindow::ResultsWindow(QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_model(new ResultsModel(this))
    , m_errorImage(roundIcon(QColor(0xd0, 0x21, 0x1b)))
    , m_warnImage(roundIcon(QColor(0xf0, 0x8c, 0x1a)))
{
    setObjectName(QStringLiteral("ResultsWindow"));
    setWindowTitle(StringTables::instance().localizedString(QStringLiteral("Results")));
    resize(620, 380);

    QPalette fill = palette();
    fill.setColor(QPalette::Window, ApertureTheme::normalSolidFill());
    fill.setColor(QPalette::Base, ApertureTheme::normalSolidFill());
    setPalette(fill);
    setAutoFillBackground(true);

    m_topText = new QLabel(m_model->summary(), this);
    m_topText->setObjectName(QStringLiteral("topText"));
    m_topText->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_errorsOutline = new QTreeView(this);
    m_errorsOutline->setObjectName(QStringLiteral("errorsOutline"));
    m_errorsOutline->setModel(m_model);
    m_errorsOutline->setItemDelegate(
        new ResultLineDelegate(m_errorImage, m_warnImage, m_errorsOutline));
    m_errorsOutline->setHeaderHidden(true);
    m_errorsOutline->setIconSize(QSize(CellImageSize, CellImageSize));
    m_errorsOutline->setUniformRowHeights(false);
    m_errorsOutline->setWordWrap(true);
    m_errorsOutline->setPalette(fill);
    m_errorsOutline->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_errorsOutline->setEditTriggers(QAbstractItemView::NoEditTriggers);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_topText);
    layout->addWidget(m_errorsOutline, 1);
}

ResultsWindow::~ResultsWindow() = default;

void ResultsWindow::displayErrors(const QList<ErrorMessagesPtr> &files)
{
    m_model->displayErrors(files);
    m_errorsOutline->expandAll();
    m_topText->setText(m_model->summary());
}

void ResultsWindow::displayErrors(const QHash<QString, ErrorMessagesPtr> &results)
{
    displayErrors(results.values());
}

void ResultsWindow::showWindow()
{
    show();
    raise();
    activateWindow();
}

QString ResultsWindow::summaryText() const
{
    return m_topText->text();
}
