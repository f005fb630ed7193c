#pragma once

#include "engine/exiffileinfo.h"

#include <QList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class ReviewChangesFilter;
class ReviewChangesModel;

// The window that shows, before a save, every tag it will change in every file, filterable by
// file and by tag, with Save and Cancel. A model and one view, so thousands of rows open at
// once.
class ReviewChangesWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ReviewChangesWindow(QWidget *parent = nullptr);
    ~ReviewChangesWindow() override;

    void setFiles(const QList<ExifFileInfoPtr> &files);
    // Shows the window and brings it to the front.
    void showWindow();

    ReviewChangesModel *model() const { return m_model; }
    ReviewChangesFilter *filter() const { return m_filter; }
    QTableView *table() const { return m_table; }
    QLineEdit *fileFilterField() const { return m_fileFilter; }
    QLineEdit *tagFilterField() const { return m_tagFilter; }
    QPushButton *saveButton() const { return m_save; }
    QString summaryText() const;

Q_SIGNALS:
    // The window has closed itself; the owner runs the save.
    void saveRequested();

private:
    void updateSummary();

    ReviewChangesModel *m_model = nullptr;
    ReviewChangesFilter *m_filter = nullptr;
    QTableView *m_table = nullptr;
    QLineEdit *m_fileFilter = nullptr;
    QLineEdit *m_tagFilter = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_save = nullptr;
};
