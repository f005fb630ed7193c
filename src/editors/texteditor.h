#pragma once

#include "editors/fieldeditor.h"

#include <QPointer>

#include <memory>

class AttachedWindow;
class NumberFormatter;
class OtherLanguagesDialog;
class QLabel;
class QLineEdit;
struct ExifFilesUpdate;

// The row for values typed as text: plain text, numbers, exposure-time fractions and GPS
// coordinates. The value is written into the files when the user ends editing.
class TextEditor : public FieldEditor
{
    Q_OBJECT

public:
    explicit TextEditor(ExifFieldPtr field, QObject *parent = nullptr);
    ~TextEditor() override;

    QLineEdit *editor() const;
    bool textChanged() const { return m_textChanged; }
    // The open error popup, if any.
    AttachedWindow *errorMessageWindow() const;

    // Also when only another language of a language alternative was edited.
    bool isModified() const override;
    void clearEditor() override;
    int hideEditor(int top) override;
    void setExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void updateExifFileValue(const ExifFileInfoPtr &file) override;
    void setExifConfiguration(const Preset *configuration) override;
    bool copyToConfiguration(Preset &configuration) override;
    void setEnabled(bool enabled) override;
    int createEditorContent(QWidget *parent, QRect frame) override;
    // Writes, relabels and announces only after the user typed: an untouched row writes nothing.
    bool copyToExifFiles(const QList<ExifFileInfoPtr> &files) override;
    void focusControl() override;
    void commitPendingInput() override;

    // For a language alternative: "N other languages" inside the row when the files hold the
    // value in other languages too, which an edit of the default one keeps; otherwise null.
    QLabel *otherLanguagesLabel() const;
    // For a language alternative: opens the window of its other languages over the selected
    // files (not modal to the program; null for another field or without files). What it
    // changes is announced and shown when it closes with OK.
    OtherLanguagesDialog *openOtherLanguages();
    // For a field with an IIM byte limit: the bytes left, shown while typing and while over.
    QLabel *bytesLeftLabel() const;

    // A stored coordinate as the user's GPS_FORMAT setting shows it.
    QString formatLocation(double degrees) const;
    // false (and the popup) when the text is not a coordinate; nothing is written then.
    bool setGpsValue(const QString &text, const ExifFileInfoPtr &file, const QString &xmlName);
    void showErrorPopup(const QString &message);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    // A coordinate row follows the other coordinate.
    bool followsOtherRows() const override;
    void receiveFilesUpdateNotification(const ExifFilesUpdate &update) override;

private:
    void controlTextDidChange();
    void controlTextDidEndEditing();
    void displayValue(const QString &value);
    void showOtherLanguages(const QList<ExifFileInfoPtr> &files);
    void updateBytesLeft(bool typing);
    QString currentText() const;
    bool isCoordinate() const;
    QString referenceKey() const;

    QPointer<QLineEdit> m_editor;
    QPointer<QLabel> m_otherLanguages;
    QPointer<QLabel> m_bytesLeft;
    bool m_textChanged = false;
    QPointer<AttachedWindow> m_errorMessageWindow;
    QPointer<QLabel> m_errorMessageLabel;
    std::unique_ptr<NumberFormatter> m_formatter;
    // The hemisphere letter the last write derived from the text, announced once per commit.
    QString m_pendingReference;
    bool m_gpsFailed = false;
};
