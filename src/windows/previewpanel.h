#pragma once

#include <QString>
#include <QWidget>

class QLabel;

// A large preview of the selected file, toggled by space in the file list. Shows the picture
// itself when Qt can decode it and the embedded preview otherwise.
class PreviewPanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr int PreviewSide = 800;

    explicit PreviewPanel(QWidget *parent = nullptr);
    ~PreviewPanel() override;

    void setFile(const QString &path);
    const QString &file() const { return m_path; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *m_image = nullptr;
    QString m_path;
};
