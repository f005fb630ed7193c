#include "editors/configurationviewcontroller.h"

#include "catalogue/exiffieldscontroller.h"

#include <QScrollArea>

// Placeholder until the form is built; the "form" work replaces this file.
ConfigurationViewController::ConfigurationViewController(QObject *parent,
                                                         const ExifFieldsController *catalogue)
    : QObject(parent)
    , m_catalogue(catalogue ? catalogue : ExifFieldsController::defaultInstance())
{
    m_scrollArea = new QScrollArea;
    m_view = new QWidget;
    m_scrollArea->setWidget(m_view);
}

ConfigurationViewController::~ConfigurationViewController()
{
    delete m_scrollArea.data();
}

QScrollArea *ConfigurationViewController::scrollArea() const
{
    return m_scrollArea;
}
QWidget *ConfigurationViewController::view() const
{
    return m_view;
}
void ConfigurationViewController::createUserInterface()
{
    m_isBuilt = true;
}
double ConfigurationViewController::calculateMaxLabelWidth(const QList<GroupPtr> &)
{
    return 0;
}
void ConfigurationViewController::setExifFiles(const QList<ExifFileInfoPtr> &files)
{
    m_exifFiles = files;
}
std::optional<QString> ConfigurationViewController::gatherImageMaker(const QList<ExifFileInfoPtr> &)
{
    return std::nullopt;
}
void ConfigurationViewController::setExifConfiguration(const ExifConfiguration *)
{
}
bool ConfigurationViewController::copyToConfiguration(ExifConfiguration &)
{
    return false;
}
bool ConfigurationViewController::copyToFileInfos(const QList<ExifFileInfoPtr> &)
{
    return false;
}
void ConfigurationViewController::commitPendingInput()
{
}
void ConfigurationViewController::clearEditors()
{
}
void ConfigurationViewController::setEnabled(bool)
{
}
int ConfigurationViewController::formHeight() const
{
    return 0;
}
int ConfigurationViewController::createFieldEditor(const ExifFieldPtr &, QList<FieldEditor *> &,
                                                   int top)
{
    return top;
}
void ConfigurationViewController::layoutForm(const std::optional<QString> &)
{
}
