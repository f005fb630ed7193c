#pragma once

#include <QList>
#include <QPointer>
#include <QString>

class FieldEditor;
class QFrame;
class QLabel;
class QPushButton;
class QWidget;

// The heading of one catalogue section in the form, above its field rows.
class SectionEditor
{
public:
    // The one section that carries a map button.
    static inline const QString GpsSectionName = QStringLiteral("GPS");

    SectionEditor(QString name, QString title);
    ~SectionEditor();
    SectionEditor(const SectionEditor &) = delete;
    SectionEditor &operator=(const SectionEditor &) = delete;

    const QString &name() const { return m_name; }
    const QString &title() const { return m_title; }
    int top() const { return m_top; }
    QFrame *line() const;
    QLabel *label() const;
    // The "Show Map" button of the GPS section; null elsewhere.
    QPushButton *additionalButton() const;

    // Not owned: the form owns the rows.
    QList<FieldEditor *> &editors() { return m_editors; }
    const QList<FieldEditor *> &editors() const { return m_editors; }

    // Returns the top of what follows.
    int createInParent(QWidget *parent, int top, bool first);
    int showEditor(int top);
    // Keeps the heading across the whole width of the form.
    void setWidth(int width);
    int hideEditor(int top);

private:
    QString m_name;
    QString m_title;
    int m_top = 0;
    QPointer<QFrame> m_line;
    QPointer<QLabel> m_label;
    QPointer<QPushButton> m_additionalButton;
    QList<FieldEditor *> m_editors;
};
