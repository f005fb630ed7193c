#include "windows/reviewchangeswindow.h"

#include "windows/reviewchangesmodel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

ReviewChangesWindow::ReviewChangesWindow(QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_model(new ReviewChangesModel(this))
    , m_filter(new ReviewChangesFilter(this))
{
    setWindowTitle(tr("Review Changes"));
    resize(900, 560);
    m_filter->setSourceModel(m_model);

    m_fileFilter = new QLineEdit(this);
    m_fileFilter->setPlaceholderText(tr("Filter by file"));
    m_fileFilter->setClearButtonEnabled(true);
    m_tagFilter = new QLineEdit(this);
    m_tagFilter->setPlaceholderText(tr("Filter by tag"));
    m_tagFilter->setClearButtonEnabled(true);
    connect(m_fileFilter, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter->setFileFilter(text);
        updateSummary();
    });
    connect(m_tagFilter, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter->setTagFilter(text);
        updateSummary();
    });

    m_table = new QTableView(this);
    m_table->setModel(m_filter);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setWordWrap(false);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    // Fixed heights and widths: nothing is measured row by row, whatever the count.
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setStretchLastSection(true);
    header->resizeSection(ReviewChangesModel::FileColumn, 180);
    header->resizeSection(ReviewChangesModel::TagColumn, 260);
    header->resizeSection(ReviewChangesModel::OnDiskColumn, 200);

    m_summary = new QLabel(this);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &ReviewChangesWindow::updateSummary);
    connect(m_model, &ReviewChangesModel::filled, this, &ReviewChangesWindow::updateSummary);
    // What a later revert can and cannot give back, said before the save rather than after.
    auto *note = new QLabel(
        tr("Revert Last Save can take this save back: it restores these tags, removes the ones "
           "it adds, and skips a file changed since. The file's other bytes may be arranged "
           "differently."),
        this);
    note->setWordWrap(true);
    note->setEnabled(false);

    auto *cancel = new QPushButton(tr("Cancel"), this);
    m_save = new QPushButton(tr("Save"), this);
    m_save->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(m_save, &QPushButton::clicked, this, [this] {
        close();
        Q_EMIT saveRequested();
    });

    auto *filters = new QHBoxLayout;
    filters->addWidget(m_fileFilter);
    filters->addWidget(m_tagFilter);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_summary, 1);
    buttons->addWidget(cancel);
    buttons->addWidget(m_save);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addWidget(m_table, 1);
    layout->addWidget(note);
    layout->addLayout(buttons);
}

ReviewChangesWindow::~ReviewChangesWindow() = default;

void ReviewChangesWindow::setFiles(const QList<ExifFileInfoPtr> &files)
{
    m_model->setFiles(files);
    updateSummary();
}

void ReviewChangesWindow::showWindow()
{
    show();
    raise();
    activateWindow();
}

QString ReviewChangesWindow::summaryText() const
{
    return m_summary->text();
}

void ReviewChangesWindow::updateSummary()
{
    const int shown = m_filter->rowCount();
    const int total = m_model->rowCount();
    const int files = m_model->fileCount();
    QString text = (total == 1 ? tr("1 change") : tr("%1 changes").arg(total)) +
                   (files == 1 ? tr(" in 1 file") : tr(" in %1 files").arg(files));
    if (shown != total)
        text += tr(", %1 shown").arg(shown);
    if (m_model->isFilling())
        text += tr(" so far");
    else if (total == 0)
        text = tr("No changes to save");
    m_save->setEnabled(total > 0);
    m_summary->setText(text);
}
