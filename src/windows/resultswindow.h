#pragma once

#include "engine/exifoperationstatus.h"

#include <QHash>
#include <QIcon>
#include <QList>
#include <QString>
#include <QWidget>

class QLabel;
class QTreeView;
class ResultsModel;

// The window listing what ExifTool complained about in the last batch: a summary line above a
// tree of files and their messages, each line marked red (error) or orange (warning).
class ResultsWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ResultsWindow(QWidget *parent = nullptr);
    ~ResultsWindow() override;

    void displayErrors(const QList<ErrorMessagesPtr> &files);
    // The runner's batchFinished map, as it comes.
    void displayErrors(const QHash<QString, ErrorMessagesPtr> &results);

    // Shows the window and brings it to the front.
    void showWindow();

    ResultsModel *model() const { return m_model; }
    QTreeView *errorsOutline() const { return m_errorsOutline; }
    QString summaryText() const;

    const QIcon &errorImage() const { return m_errorImage; }
    const QIcon &warnImage() const { return m_warnImage; }

private:
    ResultsModel *m_model = nullptr;
    QTreeView *m_errorsOutline = nullptr;
    QLabel *m_topText = nullptr;
    QIcon m_errorImage;
    QIcon m_warnImage;
};
