#pragma once

#include "catalogue/exiffield.h"
#include "engine/exiffileinfo.h"
#include "values/datecomponents.h"

#include <QWidget>

class DateEditorView;

// The content of the date popup: a title over the date panel of one field.
class DateEditorPopupController : public QWidget
{
    Q_OBJECT

public:
    DateEditorPopupController(ExifFieldPtr field, DateEditorType type, QWidget *parent = nullptr);

    DateEditorView *view() const { return m_view; }
    void setExifFiles(const QList<ExifFileInfoPtr> &files);
    void saveData();

private:
    DateEditorView *m_view = nullptr;
};
