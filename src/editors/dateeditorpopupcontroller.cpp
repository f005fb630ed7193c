#include "editors/dateeditorpopupcontroller.h"

#include "editors/dateeditorview.h"

#include "catalogue/stringtables.h"

#include <QLabel>
#include <QVBoxLayout>

DateEditorPopupController::DateEditorPopupController(ExifFieldPtr field, DateEditorType type,
                                                     QWidget *parent)
    : QWidget(parent)
{
    const StringTables &tables = StringTables::instance();
    setWindowTitle(tables.localizedString(QStringLiteral("Date/Time Editor")));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 5, 0, 0);
    auto *title =
        new QLabel(tables.localizedString(QStringLiteral("Date/Time Configuration")), this);
    QFont font = title->font();
    font.setPointSize(13);
    title->setFont(font);
    title->setAlignment(Qt::AlignCenter);
    title->setFixedHeight(25);
    layout->addWidget(title);
    m_view = new DateEditorView(std::move(field), type, this);
    layout->addWidget(m_view);
    setMinimumWidth(440);
}

void DateEditorPopupController::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    m_view->setExifFiles(files);
}

void DateEditorPopupController::saveData()
{
    m_view->saveValue();
}
