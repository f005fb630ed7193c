#include "windows/addfilesnote.h"

// Placeholder until the note is built; the "formats" work replaces this file.
AddFilesNote::AddFilesNote(QWidget *parent)
    : QWidget(parent)
{
    hide();
}

AddFilesNote::~AddFilesNote() = default;
void AddFilesNote::showRejections(const QList<FileRejection> &rejected)
{
    m_rejected = rejected;
}
QString AddFilesNote::summaryText() const
{
    return {};
}
